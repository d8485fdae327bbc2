#pragma once

#include "tests/support/TestFiles.h"

#include <QFile>
#include <QString>

// A writable copy, in the test's own folder, of a file that mdbgen built for these tests.
inline QString builtMdb(const QString& name, const TestDir& dir) {
    const QString target = dir.file(name);
    QFile::copy(QStringLiteral(ADO_JET_MDB_DIR) + u'/' + name, target);
    QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
    return target;
}
