#include "tests/support/Golden.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

void expectGoldenText(const QString& path, const QString& text) {
    const QString file = QStringLiteral(UPSIZER_SOURCE_DIR) + u'/' + path;
    if (qEnvironmentVariableIsSet("UPSIZER_UPDATE_GOLDEN")) {
        QDir().mkpath(QFileInfo(file).path());
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly | QIODevice::Truncate)) << file.toStdString();
        out.write(text.toUtf8());
        return;
    }
    QFile in(file);
    ASSERT_TRUE(in.open(QIODevice::ReadOnly))
        << file.toStdString() << " is missing; run with UPSIZER_UPDATE_GOLDEN=1 to write it";
    const QStringList expected = QString::fromUtf8(in.readAll()).split(u'\n');
    const QStringList actual = text.split(u'\n');
    for (qsizetype i = 0; i < std::max(expected.size(), actual.size()); ++i) {
        ASSERT_EQ(actual.value(i), expected.value(i))
            << path.toStdString() << ":" << i + 1 << " differs";
    }
}
