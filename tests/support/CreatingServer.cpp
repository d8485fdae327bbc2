#include "tests/support/CreatingServer.h"

#include "tests/support/ForwardingSession.h"

using namespace Qt::StringLiterals;

namespace {

// "create database X" makes X appear in the catalogs rowset; everything else is forwarded.
class CreatingSession : public ForwardingSession {
public:
    CreatingSession(std::unique_ptr<ado::ProviderSession> inner, ado::recording::Script& script)
        : ForwardingSession(std::move(inner)), m_script(script) {}

    ado::CommandResult execute(const ado::CommandRequest& request) override {
        ado::CommandResult result = ForwardingSession::execute(request);
        const QString prefix = u"create database "_s;
        if (request.text.startsWith(prefix)) {
            m_script.schema(ado::SchemaEnum::adSchemaCatalogs,
                            {catalogRow(request.text.mid(prefix.size()))});
        }
        return result;
    }

private:
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
