#pragma once

#include "frame/ListControl.h"
#include "frame/nxApp.h"
#include "frame/nxError.h"

#include "platform/vb/Err.h"
#include "platform/win/FileRegistry.h"
#include "platform/win/ScriptedMessageBox.h"
#include "platform/win/Shell.h"

#include "tests/support/MemberOk.h"
#include "tests/support/Printers.h"
#include "tests/support/TestFiles.h"

#include <QByteArray>
#include <QFile>
#include <QStringList>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

// Remembers every pointer it is given.
class RecordingPointer : public win::MousePointer {
public:
    int get() const override { return m_pointer; }
    void set(int pointer) override {
        m_pointer = pointer;
        history.push_back(pointer);
    }
    std::vector<int> history;

private:
    int m_pointer = 0;
};

// A list in memory, 7 pixels to a character.
class MemoryList : public ListControl {
public:
    void AddItem(const QString& text) override { rows.append(text); }
    void RemoveItem(int index) override { rows.removeAt(index); }
    int ListCount() const override { return static_cast<int>(rows.size()); }
    int NewIndex() const override { return static_cast<int>(rows.size()) - 1; }
    void ListIndex(int index) override { selected = index; }
    void Refresh() override { ++refreshes; }
    QString List(int index) const override { return rows.value(index); }
    int TextWidth(const QString& text) const override { return static_cast<int>(text.size()) * 7; }
    void SetHorizontalExtent(int pixels) override { extent = pixels; }

    QStringList rows;
    int selected = -1;
    int refreshes = 0;
    int extent = 0;
};

// A fresh application object for every test, started, with a scripted message box, a registry
// of its own in a temporary folder, a shell that starts nothing and a pointer that remembers.
class FrameTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dir.isValid());
        nxApp::ResetForTesting();
        vb::Err().Clear();
        nxApp::SetMessageBox(box);
        registry = std::make_shared<win::FileRegistry>(dir.file(QStringLiteral("registry")));
        nxApp::SetRegistry(registry);
        nxApp::SetShell(shell);
        nxApp::SetPointer(pointer);
        if (startLibrary) {
            ASSERT_TRUE(nxApp::AppInitialize(vb::Variant(), QString()));
        }
        pointer->history.clear();
    }
    void TearDown() override {
        nxApp::ResetForTesting();
        vb::Err().Clear();
    }

    static QByteArray readAll(const QString& path) {
        QFile f(path);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    static bool writeFile(const QString& path, const QByteArray& bytes) {
        QFile f(path);
        return f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size();
    }

    bool startLibrary = true;
    TestDir dir;
    std::shared_ptr<win::ScriptedMessageBox> box = std::make_shared<win::ScriptedMessageBox>();
    std::shared_ptr<win::FileRegistry> registry;
    std::shared_ptr<win::RecordingShell> shell = std::make_shared<win::RecordingShell>();
    std::shared_ptr<RecordingPointer> pointer = std::make_shared<RecordingPointer>();
};
