#include "platform/ado/sqlserver/odbc/Execution.h"

#include "platform/ado/sqlserver/odbc/Types.h"

namespace odbc {
namespace {

// No batch of this tool has that many statements; the bound stops a driver that keeps
// answering with errors.
constexpr std::size_t kMaxResults = 100000;

// After these the statement is unusable and no further result will come.
bool endsTheBatch(const std::vector<DiagRecord>& records) {
    for (const DiagRecord& r : records) {
        if (r.sqlState == u"HY010" || r.sqlState == u"08S01" || r.sqlState == u"HY000" ||
            r.sqlState == u"24000" || r.sqlState == u"08003" || r.sqlState == u"HYT00") {
            return true;
        }
    }
    return records.empty();
}

} // namespace

Execution::Execution(Connection& connection, const QString& text,
                     const std::vector<ParameterValue>& parameters, int timeoutSeconds)
    : m_stmt(connection.statement()) {
    if (timeoutSeconds >= 0) {
        m_stmt.check(m_stmt.api().setStmtAttr(m_stmt.get(), SQL_ATTR_QUERY_TIMEOUT,
                                              static_cast<SQLULEN>(timeoutSeconds)));
    }
    m_parameters.bind(m_stmt, parameters);
    if (!accept(m_stmt.api().execDirect(m_stmt.get(), text))) {
        nextResult();
    }
}

Execution::~Execution() {
    try {
        while (nextResult()) {
        }
    } catch (...) {
        // Freeing the statement cancels whatever the driver still holds.
    }
}

bool Execution::accept(SQLRETURN rc) {
    m_columns.clear();
    m_rowCount = -1;
    ++m_results;
    if (rc == SQL_NO_DATA) {
        // ODBC 3 drivers answer a statement with neither rows nor a count (DDL, SET) this way.
        return false;
    }
    std::vector<DiagRecord> records = m_stmt.diagnostics();
    const bool error = !succeeded(rc);
    const bool fatal = error && endsTheBatch(records);
    for (DiagRecord& r : records) {
        m_failed = m_failed || isError(r);
        m_messages.push_back(std::move(r));
    }
    if (error) {
        m_failed = true;
        m_ended = m_ended || fatal;
        return false;
    }
    describe();
    if (m_columns.empty()) {
        SQLLEN count = -1;
        if (succeeded(m_stmt.api().rowCount(m_stmt.get(), &count))) {
            m_rowCount = count;
        }
    }
    return true;
}

void Execution::describe() {
    SQLSMALLINT count = 0;
    m_stmt.check(m_stmt.api().numResultCols(m_stmt.get(), &count));
    for (SQLSMALLINT i = 1; i <= count; ++i) {
        Column column;
        const auto number = static_cast<SQLUSMALLINT>(i);
        m_stmt.check(m_stmt.api().describeCol(m_stmt.get(), number, &column.description));
        if (!succeeded(m_stmt.api().columnTypeName(m_stmt.get(), number, &column.serverType))) {
            column.serverType.clear();
        }
        column.adoType = fieldType(column.description, column.serverType);
        column.definedSize = definedSize(column.adoType, column.description);
        m_columns.push_back(std::move(column));
    }
}

bool Execution::fetch(Row* row) {
    if (m_ended || m_columns.empty()) {
        return false;
    }
    const SQLRETURN rc = m_stmt.api().fetch(m_stmt.get());
    if (rc == SQL_NO_DATA) {
        return false;
    }
    if (!succeeded(rc)) {
        // A row-level error (conversion, arithmetic overflow) ends the row set, not the batch.
        std::vector<DiagRecord> records = m_stmt.diagnostics();
        m_failed = true;
        m_messages.insert(m_messages.end(), records.begin(), records.end());
        return false;
    }
    row->clear();
    row->reserve(m_columns.size());
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        row->push_back(readValue(m_stmt, static_cast<SQLUSMALLINT>(i + 1), m_columns[i].adoType));
    }
    return true;
}

bool Execution::nextResult() {
    while (!m_ended) {
        if (m_results >= kMaxResults) {
            m_ended = true;
            break;
        }
        const SQLRETURN rc = m_stmt.api().moreResults(m_stmt.get());
        if (rc == SQL_NO_DATA) {
            m_ended = true;
            m_columns.clear();
            m_rowCount = -1;
            break;
        }
        if (accept(rc)) {
            return true;
        }
    }
    return false;
}

void Execution::finish() {
    while (nextResult()) {
    }
    if (m_failed) {
        throw Failure(m_messages, Phase::Command);
    }
}

BatchResult runBatch(Connection& connection, const QString& text,
                     const std::vector<ParameterValue>& parameters, int timeoutSeconds) {
    BatchResult result;
    Execution run(connection, text, parameters, timeoutSeconds);
    do {
        if (!run.columns().empty()) {
            ResultSet set;
            set.columns = run.columns();
            Row row;
            while (run.fetch(&row)) {
                set.rows.push_back(row);
            }
            result.resultSets.push_back(std::move(set));
        } else if (run.rowCount() >= 0) {
            result.rowCounts.push_back(run.rowCount());
        }
    } while (run.nextResult());
    run.finish();
    result.messages = run.messages();
    return result;
}

} // namespace odbc
