#include "tests/schema/SchemaDbFixture.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace schematest {
namespace {

class CreatingSession : public ado::ProviderSession {
public:
    CreatingSession(std::unique_ptr<ado::ProviderSession> inner, ado::recording::Script& script)
        : m_inner(std::move(inner)), m_script(script) {}

    QString connectionString() const override { return m_inner->connectionString(); }
    std::vector<ado::PropertyValue> properties() const override { return m_inner->properties(); }
    void setProperty(const ado::PropertyValue& value) override { m_inner->setProperty(value); }
    ado::CommandResult execute(const ado::CommandRequest& request) override {
        ado::CommandResult result = m_inner->execute(request);
        const QString prefix = u"create database "_s;
        if (request.text.startsWith(prefix)) {
            m_script.schema(ado::SchemaEnum::adSchemaCatalogs,
                            {catalogRow(request.text.mid(prefix.size()))});
        }
        return result;
    }
    std::unique_ptr<ado::ProviderRowset>
    openSchema(ado::SchemaEnum schema, const std::vector<vb::Variant>& restrictions) override {
        return m_inner->openSchema(schema, restrictions);
    }
    long beginTransaction() override { return m_inner->beginTransaction(); }
    void commitTransaction() override { m_inner->commitTransaction(); }
    void rollbackTransaction() override { m_inner->rollbackTransaction(); }
    ado::ProviderCatalog& catalog() override { return m_inner->catalog(); }
    void close() noexcept override { m_inner->close(); }

private:
    std::unique_ptr<ado::ProviderSession> m_inner;
    ado::recording::Script& m_script;
};

} // namespace

CreatingServer::CreatingServer()
    : m_inner(std::make_shared<ado::recording::RecordingProvider>(kServerProvider)) {}

std::unique_ptr<ado::ProviderSession> CreatingServer::open(const ado::OpenRequest& request) {
    return std::make_unique<CreatingSession>(m_inner->open(request), m_inner->script());
}

ado::Row catalogRow(const QString& name) {
    return ado::SchemaRow(ado::SchemaEnum::adSchemaCatalogs).set(u"CATALOG_NAME", name).take();
}

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
    const QString path =
        QStringLiteral(UPSIZER_SOURCE_DIR) + u"/tests/schema/golden/"_s + name + u".sql"_s;
    const QByteArray actual = (lines.join(u'\n') + u'\n').toUtf8();
    QFile file(path);
    if (qEnvironmentVariableIsSet("UPSIZER_UPDATE_GOLDEN")) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << path.toStdString();
        file.write(actual);
        return;
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly))
        << path.toStdString() << " is missing; run with UPSIZER_UPDATE_GOLDEN=1 to write it";
    EXPECT_EQ(QString::fromUtf8(file.readAll()), QString::fromUtf8(actual)) << path.toStdString();
}

} // namespace schematest
