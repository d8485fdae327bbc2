#pragma once

#include <QString>
#include <QTemporaryDir>

// A private folder per test: tests never write into the working directory or the fixtures.
class TestDir {
public:
    TestDir();
    bool isValid() const { return m_dir.isValid(); }
    QString path() const { return m_dir.path(); }
    QString file(const QString& name) const { return m_dir.filePath(name); }
    // Copies a read-only Access-written fixture in, writable; returns its new path or empty.
    QString copyFixture(const QString& name) const;

private:
    QTemporaryDir m_dir;
};

// The folder of the Access-written .mdb fixtures.
QString fixturesDir();
