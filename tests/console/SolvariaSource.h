#pragma once

// mdbgen's Solvaria-shaped sources, built beside the tests only with -DUPSIZER_MDBGEN=ON.

#include "platform/ado/Connection.h"

#include <QFile>
#include <QString>

// The built source "solvaria-<name>.mdb", or nothing in a build without mdbgen.
inline QString builtSource(const QString& name = QStringLiteral("small")) {
#ifdef SOLVARIA_DIR
    return QStringLiteral(SOLVARIA_DIR "/solvaria-") + name + QStringLiteral(".mdb");
#else
    (void)name;
    return {};
#endif
}

inline bool hasBuiltSource(const QString& name = QStringLiteral("small")) {
    const QString path = builtSource(name);
    return !path.isEmpty() && QFile::exists(path);
}

// Copies the built source to `to` and makes the copy writable (the run renames and rewrites
// it). False when it was not built or could not be copied.
inline bool copyBuiltSource(const QString& to, const QString& name = QStringLiteral("small")) {
    if (!hasBuiltSource(name) || !QFile::copy(builtSource(name), to)) {
        return false;
    }
    return QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner);
}

// First statement of a test that converts a built source: skips it, visibly, without mdbgen.
#define SKIP_WITHOUT_BUILT_SOURCE(name)                                                            \
    do {                                                                                           \
        if (!hasBuiltSource(name)) {                                                               \
            GTEST_SKIP() << "the Solvaria sources are built only with -DUPSIZER_MDBGEN=ON";        \
        }                                                                                          \
    } while (false)

// The source at `path` opened through the Jet provider; the suite's system databases carry its
// fixed password. Throws ado::Error.
inline ado::ConnectionPtr openSource(const QString& path) {
    const ado::ConnectionPtr cn = ado::Connection::create();
    cn->Open(QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + path +
             QStringLiteral(";Jet OLEDB:Database Password=brnzolvet52"));
    return cn;
}
