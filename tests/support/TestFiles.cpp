#include "tests/support/TestFiles.h"

#include <QFile>

using namespace Qt::StringLiterals;

TestDir::TestDir() : m_dir(QDir::tempPath() + u"/upsizer-test-XXXXXX"_s) {}

QString TestDir::copyFixture(const QString& name) const {
    const QString target = file(name);
    if (!QFile::copy(fixturesDir() + u'/' + name, target)) {
        return {};
    }
    QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
    return target;
}

QString fixturesDir() { return QString::fromUtf8(UPSIZER_FIXTURES_DIR); }
