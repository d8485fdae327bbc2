#include "tests/support/CreatingServer.h"

using namespace Qt::StringLiterals;

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
    : m_inner(std::make_shared<ado::recording::RecordingProvider>(QStringLiteral("SQLOLEDB"))) {}

std::unique_ptr<ado::ProviderSession> CreatingServer::open(const ado::OpenRequest& request) {
    return std::make_unique<CreatingSession>(m_inner->open(request), m_inner->script());
}

ado::Row catalogRow(const QString& name) {
    return ado::SchemaRow(ado::SchemaEnum::adSchemaCatalogs).set(u"CATALOG_NAME", name).take();
}
