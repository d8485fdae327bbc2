#pragma once

#include "console/frmMain.h"

#include "frame/nxReg.h"

#include "tests/frame/FrameFixture.h"

#include <QComboBox>
#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QPushButton>
#include <QTest>

#include <deque>
#include <memory>
#include <stdexcept>

// A file dialog that answers from a script: each showing takes the next name, or, with the
// script run dry, behaves as cancelled. It remembers what it was shown with.
class ScriptedFileDialog : public FileOpenDialog {
public:
    void ShowOpen(QWidget* /*owner*/) override {
        ++shows;
        seenFilter = Filter;
        seenInitDir = InitDir;
        if (!answers.empty()) {
            FileName = answers.front();
            answers.pop_front();
        }
    }
    std::deque<QString> answers;
    int shows = 0;
    QString seenFilter;
    QString seenInitDir;
};

// A picture of the window for the README. The window is grabbed in every run (so a window that
// can no longer paint fails here); the file under docs/screens is rewritten only with
// UPSIZER_UPDATE_SCREENSHOTS=1.
inline void saveScreen(QWidget& window, const QString& name) {
    QCoreApplication::processEvents();
    const QPixmap picture = window.grab();
    ASSERT_FALSE(picture.isNull());
    EXPECT_EQ(picture.size(), window.size());
    // Not a blank picture: the controls are drawn in more than one colour.
    const QImage image = picture.toImage();
    EXPECT_NE(image.pixel(5, 5), image.pixel(image.width() / 2, image.height() / 2 + 40));
    if (qEnvironmentVariable("UPSIZER_UPDATE_SCREENSHOTS") == QStringLiteral("1")) {
        const QString folder = QStringLiteral(UPSIZER_SOURCE_DIR) + QStringLiteral("/docs/screens");
        QDir().mkpath(folder);
        EXPECT_TRUE(picture.save(folder + QStringLiteral("/") + name));
    }
}

// A window on a started library with a registry, message boxes and a file dialog of the test's
// own, and no server search unless a test gives one.
class WindowTest : public FrameTest {
protected:
    void SetUp() override {
        FrameTest::SetUp();
        auto scripted = std::make_unique<ScriptedFileDialog>();
        dialog = scripted.get();
        window = std::make_unique<frmMain>(servers, std::move(scripted));
    }
    void TearDown() override {
        window.reset();
        FrameTest::TearDown();
    }

    template <class W> W* control(const char* name) const {
        auto* found = window->findChild<W*>(QString::fromLatin1(name));
        if (found == nullptr) {
            throw std::logic_error(name);
        }
        return found;
    }
    QPushButton* buttonNamed(const char* name) const { return control<QPushButton>(name); }
    QLineEdit* edit(const char* name) const { return control<QLineEdit>(name); }
    QListWidget* list(const char* name) const { return control<QListWidget>(name); }
    QComboBox* serverBox() const { return control<QComboBox>("cmbSqlServer"); }

    void type(const char* name, const QString& text) const { QTest::keyClicks(edit(name), text); }
    void typeServer(const QString& text) const { QTest::keyClicks(serverBox()->lineEdit(), text); }
    static void click(QPushButton* button) { QTest::mouseClick(button, Qt::LeftButton); }

    // A folder under the test's own that holds a system database when `withDatabase`.
    QString archiveFolder(const QString& name, bool withDatabase = true) const {
        QDir(dir.path()).mkpath(name);
        const QString folder = dir.file(name);
        if (withDatabase) {
            writeFile(folder + QStringLiteral("/QZSystem.mdb"), QByteArray("x"));
        }
        return folder;
    }
    static void registerValue(win::HKey root, const QString& key, const QString& name,
                              const QString& value) {
        nxReg reg;
        ASSERT_TRUE(reg.RegCreate(key, root));
        ASSERT_TRUE(reg.SetVal(name, vb::Variant(value)));
        reg.RegClose();
    }

    ServerDirectory servers{[] { return std::unique_ptr<ServerBrowser>(); },
                            [] { return std::unique_ptr<InstanceBrowser>(); }};
    ScriptedFileDialog* dialog = nullptr;
    std::unique_ptr<frmMain> window;
};
