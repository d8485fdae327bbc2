#include "tests/schema/SchemaDbFixture.h"

#include "tests/support/Golden.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace schematest {

QString SchemaDbTest::jetFile(const QString& name) {
    const QString path = dir.file(name);
    QFile f(path);
    EXPECT_TRUE(f.open(QIODevice::WriteOnly));
    return path;
}

void expectGolden(const QString& name, const QStringList& lines) {
    expectGoldenText(u"tests/schema/golden/"_s + name + u".sql"_s, lines.join(u'\n') + u'\n');
}

} // namespace schematest
