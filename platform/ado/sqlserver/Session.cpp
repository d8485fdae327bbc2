#include "platform/ado/sqlserver/Session.h"

#include "platform/ado/sqlserver/AdoErrors.h"
#include "platform/ado/sqlserver/RowWrites.h"
#include "platform/ado/sqlserver/ServerCatalog.h"
#include "platform/ado/sqlserver/odbc/HResults.h"
#include "platform/ado/sqlserver/odbc/SchemaQueries.h"

#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace ado::sqlserver {
namespace {

constexpr auto kTransactionExists = static_cast<std::int32_t>(0x8004D013u); // XACT_E_XTIONEXISTS

QString source() { return QString::fromUtf16(kErrorSource); }

std::vector<odbc::ParameterValue> odbcParameters(const std::vector<ParameterValue>& parameters) {
    std::vector<odbc::ParameterValue> out;
    out.reserve(parameters.size());
    for (const ParameterValue& p : parameters) {
        if (p.direction != ParameterDirectionEnum::adParamInput) {
            throw Error(HResult::DB_E_NOTSUPPORTED,
                        u"Parameter '%1': only input parameters are supported."_s.arg(p.name),
                        source());
        }
        out.push_back(odbc::ParameterValue{static_cast<int>(p.type), p.size, p.precision,
                                           p.numericScale, p.value});
    }
    return out;
}

std::unique_ptr<ProviderRowset> memoryRowset(const odbc::StaticRowset& r) {
    std::vector<ColumnInfo> columns;
    for (qsizetype i = 0; i < r.columns.size(); ++i) {
        ColumnInfo c;
        c.name = r.columns.at(i);
        c.type = static_cast<DataTypeEnum>(r.types.at(static_cast<std::size_t>(i)));
        c.attributes = adFldIsNullable | adFldMayBeNull;
        columns.push_back(std::move(c));
    }
    return std::make_unique<MemoryRowset>(std::move(columns), r.rows);
}

// The table a recordset writes to: "Unique Table" when set, else the one table its select reads.
QString writeTable(const CommandRequest& request, const QString& text) {
    for (const PropertyValue& p : request.rowsetProperties) {
        if (p.name.compare(u"Unique Table", Qt::CaseInsensitive) == 0 &&
            !p.value.toString().trimmed().isEmpty()) {
            return p.value.toString().trimmed();
        }
    }
    return baseTable(text);
}

// The last part of a table name as the catalog knows it: "[dbo].[Doc]" and "dbo.Doc" are Doc.
QString unquotedName(const QString& table) {
    static const QRegularExpression lastPart(uR"re((?:\[([^\]]+)\]|"([^"]+)"|([^.\s]+))\s*$)re"_s);
    const QRegularExpressionMatch m = lastPart.match(table);
    if (!m.hasMatch()) {
        return table;
    }
    for (int i = 1; i <= 3; ++i) {
        if (m.capturedLength(i) > 0) {
            return m.captured(i);
        }
    }
    return table;
}

bool isBareName(const QString& text) {
    static const QRegularExpression name(
        uR"re(^\s*(?:\[[^\]]+\]|[A-Za-z_#@][\w#@$]*)(?:\.(?:\[[^\]]+\]|[A-Za-z_#@][\w#@$]*)){0,2}\s*$)re"_s);
    static const QRegularExpression statement(
        uR"re(^\s*(?:begin|commit|rollback|save|checkpoint|shutdown|reconfigure|return|break|continue|print|go)\s*$)re"_s,
        QRegularExpression::CaseInsensitiveOption);
    return name.match(text).hasMatch() && !statement.match(text).hasMatch();
}

} // namespace

QString commandText(const CommandRequest& request) {
    switch (request.type) {
    case CommandTypeEnum::adCmdTable:
    case CommandTypeEnum::adCmdTableDirect: return u"select * from "_s + request.text;
    case CommandTypeEnum::adCmdUnknown:
        // ADO finds out what a text of unknown type is; a lone name without parameters is the
        // table it names (the tool opens tables by name, and runs its procedures with exec or
        // as stored procedures). T-SQL statements of one word stay statements.
        return request.parameters.empty() && isBareName(request.text)
                   ? u"select * from "_s + request.text.trimmed()
                   : request.text;
    case CommandTypeEnum::adCmdStoredProc: {
        QStringList marks;
        for (std::size_t i = 0; i < request.parameters.size(); ++i) {
            marks << u"?"_s;
        }
        return (u"exec "_s + request.text + u' ' + marks.join(u", "_s)).trimmed();
    }
    default: return request.text;
    }
}

Session::Session(QString providerName, ConnectionString given, odbc::LoginSettings settings,
                 int connectTimeout, std::unique_ptr<odbc::Connection> connection,
                 QString dbmsVersion)
    : m_providerName(std::move(providerName)), m_given(std::move(given)),
      m_settings(std::move(settings)), m_connectTimeout(connectTimeout),
      m_dbmsVersion(std::move(dbmsVersion)), m_connection(std::move(connection)) {}

Session::~Session() {
    *m_self = nullptr;
    close();
}

odbc::Connection& Session::connection() {
    if (!m_connection || !m_connection->isOpen()) {
        raise(HResult::adErrObjectClosed, source());
    }
    // The connection carries one statement at a time: a result still streaming is read into
    // memory first.
    m_stream->release();
    return *m_connection;
}

int Session::commandTimeout(const CommandRequest& request) const {
    // 'Command Time Out' in the connection string is the provider's own default and wins.
    return m_settings.commandTimeout >= 0 ? m_settings.commandTimeout
                                          : static_cast<int>(request.timeoutSeconds);
}

QString Session::connectionString() const {
    ConnectionString out;
    out.set(u"Provider"_s, m_providerName);
    for (const auto& [keyword, value] : m_given.items()) {
        const QString k = keyword.trimmed().toLower();
        if (k == u"provider") {
            continue;
        }
        // Without Persist Security Info the password is not given back.
        if ((k == u"password" || k == u"pwd") && !m_settings.persistSecurityInfo) {
            continue;
        }
        out.set(keyword, value);
    }
    return out.toString();
}

std::vector<PropertyValue> Session::properties() const {
    return {
        {u"Provider"_s, vb::Variant(m_providerName), false},
        {u"Provider Name"_s, vb::Variant(u"sqloledb.dll"_s), false},
        {u"Provider Friendly Name"_s, vb::Variant(source()), false},
        {u"DBMS Name"_s, vb::Variant(u"Microsoft SQL Server"_s), false},
        {u"DBMS Version"_s, vb::Variant(m_dbmsVersion), false},
        {u"Data Source"_s, vb::Variant(m_settings.dataSource), false},
        {u"Initial Catalog"_s, vb::Variant(m_settings.database), false},
        {u"Current Catalog"_s, vb::Variant(m_settings.database), false},
        {u"User ID"_s, vb::Variant(m_settings.integrated ? QString() : m_settings.user), false},
        {u"Password"_s, vb::Variant(m_settings.integrated ? QString() : m_settings.password),
         false},
        {u"Integrated Security"_s, vb::Variant(m_settings.integrated ? u"SSPI"_s : QString()),
         false},
        {u"Persist Security Info"_s, vb::Variant(m_settings.persistSecurityInfo), false},
        {u"Connect Timeout"_s, vb::Variant(std::int32_t(m_connectTimeout)), false},
        {u"Multiple connections"_s, vb::Variant(m_multipleConnections), true},
    };
}

void Session::setProperty(const PropertyValue& value) {
    if (value.name.compare(u"Multiple connections", Qt::CaseInsensitive) == 0) {
        // This provider never opens hidden connections: a pending result is read into memory
        // instead, so the setting changes nothing but what it reads back.
        const std::optional<bool> on = value.value.toBool();
        if (!on) {
            raise(HResult::adErrInvalidArgument, source());
        }
        m_multipleConnections = *on;
        return;
    }
    raise(HResult::adErrFeatureNotAvailable, source());
}

CommandResult Session::execute(const CommandRequest& request) {
    odbc::Connection& c = connection();
    const QString text = commandText(request);
    const auto parameters = odbcParameters(request.parameters);
    const int timeout = commandTimeout(request);
    return translated([&] {
        CommandResult result;
        if (request.options != adOptionUnspecified && (request.options & adExecuteNoRecords)) {
            const odbc::BatchResult batch = odbc::runBatch(c, text, parameters, timeout);
            result.recordsAffected = batch.rowCounts.empty() ? -1 : batch.rowCounts.back();
            return result;
        }
        auto run = std::make_unique<odbc::Execution>(c, text, parameters, timeout);
        if (run->failed() || run->columns().empty()) {
            // ADO gives the first result: here a count, or nothing.
            result.recordsAffected = run->rowCount();
            run->finish();
            return result;
        }
        const bool streams = request.cursorType == CursorTypeEnum::adOpenForwardOnly &&
                             (request.lockType == LockTypeEnum::adLockReadOnly ||
                              request.lockType == LockTypeEnum::adLockUnspecified) &&
                             request.cursorLocation != CursorLocationEnum::adUseClient;
        if (streams) {
            result.rowset = std::make_unique<StreamingRowset>(std::move(run), m_stream);
        } else {
            result.rowset = clientRowset(std::move(run), request, text);
        }
        return result;
    });
}

std::unique_ptr<ProviderRowset> Session::clientRowset(std::unique_ptr<odbc::Execution> run,
                                                      const CommandRequest& request,
                                                      const QString& text) {
    const bool writable = request.lockType != LockTypeEnum::adLockReadOnly &&
                          request.lockType != LockTypeEnum::adLockUnspecified;
    const QString table = writable ? writeTable(request, text) : QString();
    if (table.isEmpty()) {
        return bufferedRowset(*run, request.cursorType);
    }
    std::vector<ColumnInfo> fields = columnInfos(run->columns());
    std::vector<Row> rows;
    odbc::Row row;
    while (run->fetch(&row)) {
        rows.push_back(row);
    }
    run->finish();
    run.reset();
    // The table's key and identity, from the catalog: the result's metadata has neither for
    // sure.
    const QString bare = unquotedName(table);
    const std::vector<CatalogColumn> tableColumns = catalog().columns(bare);
    const std::vector<CatalogIndex> indexes = catalog().indexes(bare);
    WriteTarget target = describeTarget(table, tableColumns, indexes, fields);
    target.criteria = criteriaOf(request);
    target.clientCursor = request.cursorLocation == CursorLocationEnum::adUseClient;
    auto rowset = std::make_unique<MemoryRowset>(
        fields, std::move(rows),
        request.cursorType == CursorTypeEnum::adOpenKeyset ? CursorTypeEnum::adOpenKeyset
                                                           : CursorTypeEnum::adOpenStatic);
    // Without a key a server cursor is read-only; the cursor engine still takes new rows.
    if (!target.key.empty() || target.clientCursor) {
        makeWritable(*rowset, std::move(target), std::move(fields),
                     [self = m_self](const WriteStatement& statement) {
                         if (*self == nullptr) {
                             raise(HResult::adErrObjectClosed, source());
                         }
                         return (*self)->run(statement.text, statement.parameters);
                     });
    }
    return rowset;
}

std::unique_ptr<ProviderRowset> Session::openSchema(SchemaEnum schema,
                                                    const std::vector<vb::Variant>& restrictions) {
    const int id = static_cast<int>(schema);
    if (odbc::isStaticSchema(id)) {
        return memoryRowset(odbc::staticRowset(id));
    }
    return translated([&] {
        const odbc::SchemaQuery q = odbc::schemaQuery(id, restrictions);
        odbc::Execution run(connection(), q.text, q.parameters);
        if (run.columns().empty()) {
            run.finish();
            throw odbc::Failure(odbc::hr::E_FAIL_, u"OpenSchema %1: the server returned no rows."_s.arg(id));
        }
        return bufferedRowset(run, CursorTypeEnum::adOpenStatic);
    });
}

long Session::beginTransaction() {
    odbc::Connection& c = connection();
    if (c.inTransaction()) {
        throw Error(kTransactionExists, u"Only one transaction can be active on this session."_s,
                    source());
    }
    translated([&] { c.beginTransaction(); });
    return 1;
}

void Session::commitTransaction() {
    odbc::Connection& c = connection();
    if (!c.inTransaction()) {
        raise(HResult::XACT_E_NOTRANSACTION, source());
    }
    translated([&] { c.endTransaction(true); });
}

void Session::rollbackTransaction() {
    odbc::Connection& c = connection();
    if (!c.inTransaction()) {
        raise(HResult::XACT_E_NOTRANSACTION, source());
    }
    translated([&] { c.endTransaction(false); });
}

ProviderCatalog& Session::catalog() {
    if (!m_catalog) {
        m_catalog = std::make_unique<ServerCatalog>(*this);
    }
    return *m_catalog;
}

void Session::close() noexcept {
    m_stream->release();
    if (m_connection) {
        m_connection->close();
    }
}

odbc::BatchResult Session::run(const QString& text,
                               const std::vector<odbc::ParameterValue>& parameters) {
    odbc::Connection& c = connection();
    return translated([&] { return odbc::runBatch(c, text, parameters); });
}

} // namespace ado::sqlserver
