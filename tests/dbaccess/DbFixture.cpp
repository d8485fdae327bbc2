#include "tests/dbaccess/DbFixture.h"

#include <QDir>

namespace dbtest {
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

std::unique_ptr<ado::ProviderSession> CreatingServer::open(const ado::OpenRequest& request) {
    return std::make_unique<CreatingSession>(m_inner->open(request), m_inner->script());
}

void expectGolden(const QString& name, const QStringList& lines) {
    const QString path =
        QStringLiteral(UPSIZER_SOURCE_DIR) + u"/tests/dbaccess/golden/"_s + name + u".sql"_s;
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

} // namespace dbtest
