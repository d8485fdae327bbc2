#pragma once

#include "platform/ado/sqlserver/odbc/Handles.h"
#include "platform/ado/sqlserver/odbc/Values.h"
#include "platform/vb/Variant.h"

#include <QString>

#include <cstddef>
#include <vector>

namespace odbc {

struct Column {
    ColumnDescription description;
    QString serverType;
    int adoType = 0;
    long definedSize = 0;
};

using Row = std::vector<vb::Variant>;

// One run of T-SQL text (a batch of statements, with or without ? parameters) on a connection.
// The driver returns after the first statement's result; the others, and their errors, come
// only as each earlier result is consumed. Leaving results unread would make the driver cancel
// the rest of the batch (a trailing "set identity_insert ... off" would never run), so an
// Execution is always read to its end: finish() drains it, and the destructor does too.
class Execution {
public:
    // A time-out of 0 waits for ever; a negative one keeps the driver's default.
    Execution(Connection& connection, const QString& text,
              const std::vector<ParameterValue>& parameters = {}, int timeoutSeconds = -1);
    ~Execution();
    Execution(const Execution&) = delete;
    Execution& operator=(const Execution&) = delete;
    Execution(Execution&&) = delete;
    Execution& operator=(Execution&&) = delete;

    // The current result: a row set (columns not empty) or a row count.
    const std::vector<Column>& columns() const noexcept { return m_columns; }
    SQLLEN rowCount() const noexcept { return m_rowCount; }
    // Next row of the current row set; false at its end.
    bool fetch(Row* row);
    // Moves to the next result, skipping unread rows; false when the batch has ended.
    bool nextResult();
    bool atEnd() const noexcept { return m_ended; }

    // Every diagnostic record of the batch so far, in order: informational messages and the
    // errors of every statement.
    const std::vector<DiagRecord>& messages() const noexcept { return m_messages; }
    bool failed() const noexcept { return m_failed; }
    // Reads to the end of the batch; then throws Failure with all its records if any
    // statement failed.
    void finish();

private:
    // Takes the return code of SQLExecDirect or SQLMoreResults; true when a result is there.
    bool accept(SQLRETURN rc);
    void describe();

    Statement m_stmt;
    BoundParameters m_parameters;
    std::vector<Column> m_columns;
    SQLLEN m_rowCount = -1;
    std::vector<DiagRecord> m_messages;
    bool m_failed = false;
    bool m_ended = false;
    std::size_t m_results = 0;
};

struct ResultSet {
    std::vector<Column> columns;
    std::vector<Row> rows;
};

// A whole batch read into memory: every row set, every row count, every message.
struct BatchResult {
    std::vector<ResultSet> resultSets;
    std::vector<SQLLEN> rowCounts;
    std::vector<DiagRecord> messages;
};

// Runs the batch to its end; throws Failure with every record of the batch when any statement
// failed, after the last statement has run.
BatchResult runBatch(Connection& connection, const QString& text,
                     const std::vector<ParameterValue>& parameters = {}, int timeoutSeconds = -1);

} // namespace odbc
