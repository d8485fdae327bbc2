#pragma once

#include "dbaccess/nxConn.h"
#include "dbaccess/nxDb.h"
#include "frame/nxApp.h"
#include "frame/nxLog.h"

#include "platform/vb/Err.h"
#include "platform/win/Cp1252.h"
#include "platform/win/FileRegistry.h"
#include "platform/win/ScriptedMessageBox.h"

#include "tests/support/AppFixture.h"
#include "tests/support/MemberOk.h"
#include "tests/support/Printers.h"
#include "tests/support/TestFiles.h"

#include <QFile>
#include <QStringList>

#include <gtest/gtest.h>

#include <memory>

namespace enginetest {

using namespace Qt::StringLiterals;

using apptest::kJetProvider;

// The Solvaria-shaped sources mdbgen builds ("small", "findings-dates"...), or empty when this
// build has none.
inline QString solvariaSource(const QString& name) {
#ifdef SOLVARIA_DIR
    return QStringLiteral(SOLVARIA_DIR) + u"/solvaria-"_s + name + u".mdb"_s;
#else
    (void)name;
    return {};
#endif
}

// The lines of a log file without the stamp each line carries ("dd/mm/yyyy - HH:nn - ").
inline QStringList logTexts(const QString& path) {
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) {
        return {};
    }
    QStringList lines = win::fromCp1252(f.readAll()).split(u"\r\n"_s);
    QStringList texts;
    for (const QString& line : lines) {
        static const int kStamp = 21;
        texts << (line.size() >= kStamp && line.at(2) == u'/' && line.mid(10, 3) == u" - "_s
                      ? line.mid(kStamp)
                      : line);
    }
    return texts;
}

// A started application object with a scripted message box and a registry of its own, in a
// folder of the test's own.
class EngineTest : public apptest::AppTest {
protected:
    // Copies a built source into the test's folder as QZSystem.mdb; skips when there is none.
    QString copySource(const QString& name) {
        const QString from = solvariaSource(name);
        if (from.isEmpty() || !QFile::exists(from)) {
            return {};
        }
        const QString to = dir.file(u"QZSystem.mdb"_s);
        QFile::remove(to);
        if (!QFile::copy(from, to)) {
            return {};
        }
        QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner);
        return to;
    }
};

} // namespace enginetest

#define SKIP_WITHOUT_SOURCE(path)                                                                  \
    if ((path).isEmpty()) {                                                                        \
        GTEST_SKIP() << "the Solvaria sources are built only with -DUPSIZER_MDBGEN=ON";            \
    }
