#include "tests/platform/sqlserver/Golden.h"

#include "tests/support/Printers.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

void expectGolden(const QString& name, const QString& text) {
    const QString path =
        QStringLiteral(UPSIZER_SOURCE_DIR) + u"/tests/platform/sqlserver/golden/"_s + name;
    if (qEnvironmentVariable("UPSIZER_UPDATE_GOLDEN") == u"1"_s) {
        QDir().mkpath(QFileInfo(path).path());
        QFile out(path);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly | QIODevice::Truncate)) << path.toStdString();
        out.write(text.toUtf8());
        return;
    }
    QFile in(path);
    ASSERT_TRUE(in.open(QIODevice::ReadOnly))
        << path.toStdString() << " is missing; run once with UPSIZER_UPDATE_GOLDEN=1";
    const QStringList expected = QString::fromUtf8(in.readAll()).split(u'\n');
    const QStringList actual = text.split(u'\n');
    for (qsizetype i = 0; i < std::max(expected.size(), actual.size()); ++i) {
        ASSERT_EQ(actual.value(i), expected.value(i))
            << name.toStdString() << ":" << i + 1 << " differs";
    }
}
