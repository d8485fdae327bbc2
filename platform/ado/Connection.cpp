#include "platform/ado/Connection.h"

#include "platform/ado/ConnectionString.h"
#include "platform/ado/ProviderRegistry.h"
#include "platform/ado/Recordset.h"

using namespace Qt::StringLiterals;

namespace ado {
namespace {

const QString kSource = u"ADODB.Connection"_s;

// ADO's default provider when a string names none: the ODBC bridge.
const QString kDefaultProvider = u"MSDASQL"_s;

CommandTypeEnum commandTypeOf(long options) {
    constexpr long kTypeBits = 1 | 2 | 4 | 8 | 512;
    if (options == adOptionUnspecified || (options & kTypeBits) == 0) {
        return CommandTypeEnum::adCmdUnknown;
    }
    return static_cast<CommandTypeEnum>(options & kTypeBits);
}

} // namespace

Connection::Connection() = default;

Connection::~Connection() {
    if (m_session) {
        m_session->close();
    }
}

QString Connection::providerName() const {
    try {
        const auto parsed = ConnectionString::parse(m_connectionString);
        if (auto name = parsed.find(u"Provider")) {
            return *name;
        }
    } catch (const Error&) {
        // an unreadable string names no provider; Open reports it
    }
    return m_provider.isEmpty() ? kDefaultProvider : m_provider;
}

QString Connection::ConnectionString() const {
    return m_session ? m_session->connectionString() : m_connectionString;
}

void Connection::setConnectionString(const QString& connectionString) {
    requireClosed();
    m_connectionString = connectionString;
}

QString Connection::Provider() const {
    return m_session ? m_providerObject->name() : providerName();
}

void Connection::setProvider(const QString& provider) {
    requireClosed();
    m_provider = provider;
}

void Connection::setMode(long mode) {
    requireClosed();
    m_mode = mode;
}

void Connection::setConnectionTimeout(long seconds) {
    requireClosed();
    m_connectionTimeout = seconds;
}

long Connection::State() const noexcept { return m_session ? adStateOpen : adStateClosed; }

void Connection::requireOpen(const QString& source) const {
    if (!m_session) {
        raise(HResult::adErrInvalidConnection, source);
    }
}

void Connection::requireClosed() const {
    if (m_session) {
        raise(HResult::adErrObjectOpen, kSource);
    }
}

ProviderSession& Connection::session() const {
    requireOpen(kSource);
    return *m_session;
}

void Connection::providerFailed(const Error& error) {
    m_errors.fill(error);
    throw error;
}

void Connection::Open(const QString& connectionString, const QString& userId,
                      const QString& password, long /*options*/) {
    requireClosed();
    if (!connectionString.isEmpty()) {
        m_connectionString = connectionString;
    }
    try {
        OpenRequest request;
        request.connectionText = m_connectionString;
        request.connectionString = ConnectionString::parse(m_connectionString);
        const QString name = providerName();
        request.connectionString.set(u"Provider"_s, name);
        request.userId = userId;
        request.password = password;
        request.mode = m_mode;
        request.connectionTimeoutSeconds = m_connectionTimeout;
        request.cursorLocation = m_cursorLocation;
        auto provider = ProviderRegistry::instance().get(name);
        m_session = provider->open(request);
        m_providerObject = std::move(provider);
    } catch (const Error& e) {
        providerFailed(e);
    }
    m_transactionLevel = 0;
    m_properties.reset(m_session->properties());
    m_properties.setOnChange([this](const Property& p) {
        try {
            m_session->setProperty({p.Name(), p.Value(), true});
        } catch (const Error& e) {
            providerFailed(e);
        }
    });
}

void Connection::Close() {
    if (!m_session) {
        raise(HResult::adErrObjectClosed, kSource);
    }
    if (m_transactionLevel > 0) {
        try {
            m_session->rollbackTransaction(); // an open transaction ends with the connection
        } catch (const Error&) {
            // the session is going away; nothing more to undo
        }
        m_transactionLevel = 0;
    }
    m_session->close();
    m_session.reset();
    m_properties.setOnChange(nullptr);
    m_properties.reset({});
}

RecordsetPtr Connection::Execute(const QString& commandText, long* recordsAffected, long options) {
    requireOpen(kSource);
    CommandRequest request;
    request.text = commandText;
    request.type = commandTypeOf(options);
    request.options = options;
    request.timeoutSeconds = m_commandTimeout;
    request.cursorLocation = m_cursorLocation;
    CommandResult result;
    try {
        result = m_session->execute(request);
    } catch (const Error& e) {
        providerFailed(e);
    }
    if (recordsAffected != nullptr) {
        *recordsAffected = result.recordsAffected;
    }
    auto recordset = std::make_shared<Recordset>();
    recordset->setSource(commandText);
    if (result.rowset) {
        recordset->attach(std::move(result.rowset), request, shared_from_this());
    }
    return recordset;
}

RecordsetPtr Connection::OpenSchema(SchemaEnum schema, const std::vector<vb::Variant>& restrictions) {
    requireOpen(kSource);
    std::unique_ptr<ProviderRowset> rowset;
    try {
        rowset = m_session->openSchema(schema, restrictions);
    } catch (const Error& e) {
        providerFailed(e);
    }
    CommandRequest request;
    request.cursorType = CursorTypeEnum::adOpenStatic;
    request.cursorLocation = m_cursorLocation;
    auto recordset = std::make_shared<Recordset>();
    recordset->setSchemaSource(schema, restrictions);
    recordset->attach(std::move(rowset), request, shared_from_this());
    return recordset;
}

long Connection::BeginTrans() {
    requireOpen(kSource);
    try {
        m_transactionLevel = m_session->beginTransaction();
    } catch (const Error& e) {
        providerFailed(e);
    }
    return m_transactionLevel;
}

void Connection::CommitTrans() {
    requireOpen(kSource);
    try {
        m_session->commitTransaction();
    } catch (const Error& e) {
        providerFailed(e);
    }
    if (m_transactionLevel > 0) {
        --m_transactionLevel;
    }
}

void Connection::RollbackTrans() {
    requireOpen(kSource);
    try {
        m_session->rollbackTransaction();
    } catch (const Error& e) {
        providerFailed(e);
    }
    if (m_transactionLevel > 0) {
        --m_transactionLevel;
    }
}

} // namespace ado
