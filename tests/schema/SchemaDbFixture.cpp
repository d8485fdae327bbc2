#include "tests/schema/SchemaDbFixture.h"

#include "tests/support/Golden.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace schematest {

void AppTest::SetUp() {
    ASSERT_TRUE(dir.isValid());
    nxApp::ResetForTesting();
    vb::Err().Clear();
    nxApp::SetMessageBox(box);
    nxApp::SetRegistry(std::make_shared<win::FileRegistry>(dir.file(u"registry"_s)));
    ASSERT_TRUE(nxApp::AppInitialize(vb::Variant(), QString()));
}

void AppTest::TearDown() {
    nxApp::ResetForTesting();
    vb::Err().Clear();
}

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
