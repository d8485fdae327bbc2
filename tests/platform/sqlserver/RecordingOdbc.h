#pragma once

#include "platform/ado/sqlserver/odbc/OdbcApi.h"
#include "platform/vb/Variant.h"

#include <QString>
#include <QStringList>

#include <deque>
#include <map>
#include <memory>
#include <vector>

// A recording ODBC layer: it logs every call the provider makes, as text, and answers from a
// script. It models no SQL and no driver beyond what a test scripts.
class RecordingOdbc final : public odbc::Api {
public:
    // One result of a batch: a row set (columns not empty), a row count, or an error.
    struct Result {
        SQLRETURN rc = SQL_SUCCESS;
        std::vector<odbc::DiagRecord> diagnostics;
        std::vector<odbc::ColumnDescription> columns;
        QStringList typeNames;
        std::vector<std::vector<vb::Variant>> rows;
        SQLLEN rowCount = -1;
    };
    using Batch = std::vector<Result>;

    static Result rows(std::vector<odbc::ColumnDescription> columns, QStringList typeNames,
                       std::vector<std::vector<vb::Variant>> rows);
    static Result count(SQLLEN n);
    static Result error(QString state, SQLINTEGER native, QString message);
    static odbc::DiagRecord diag(QString state, SQLINTEGER native, QString message);

    // What the next connect and the next executions answer. An execution without a scripted
    // batch answers SQL_NO_DATA.
    SQLRETURN connectResult = SQL_SUCCESS;
    std::vector<odbc::DiagRecord> connectDiagnostics;
    std::deque<Batch> batches;
    std::map<SQLUSMALLINT, QString> info;

    QStringList log;
    // SQLFetch is not logged (rows would drown the statements); it is counted, and each
    // SQLExecDirect notes how many fetches came before it.
    int fetches = 0;
    std::vector<int> fetchesBeforeExec;
    // Bytes of each bound parameter as the driver would read them at execution.
    std::vector<QByteArray> lastParameterBytes;
    int openHandles() const { return static_cast<int>(m_handles.size()); }

    SQLRETURN allocHandle(SQLSMALLINT type, SQLHANDLE input, SQLHANDLE* output) override;
    SQLRETURN freeHandle(SQLSMALLINT type, SQLHANDLE handle) override;
    SQLRETURN setEnvAttr(SQLHENV env, SQLINTEGER attribute, SQLULEN value) override;
    SQLRETURN setConnectAttr(SQLHDBC dbc, SQLINTEGER attribute, SQLULEN value) override;
    SQLRETURN setStmtAttr(SQLHSTMT stmt, SQLINTEGER attribute, SQLULEN value) override;
    SQLRETURN driverConnect(SQLHDBC dbc, const QString& connectionString) override;
    SQLRETURN disconnect(SQLHDBC dbc) override;
    SQLRETURN getInfo(SQLHDBC dbc, SQLUSMALLINT infoType, QString* value) override;
    SQLRETURN endTran(SQLHDBC dbc, SQLSMALLINT completion) override;
    SQLRETURN execDirect(SQLHSTMT stmt, const QString& text) override;
    SQLRETURN bindParameter(SQLHSTMT stmt, SQLUSMALLINT number, SQLSMALLINT cType,
                            SQLSMALLINT sqlType, SQLULEN columnSize, SQLSMALLINT decimalDigits,
                            SQLPOINTER value, SQLLEN bufferLength,
                            SQLLEN* lengthOrIndicator) override;
    SQLRETURN numResultCols(SQLHSTMT stmt, SQLSMALLINT* count) override;
    SQLRETURN describeCol(SQLHSTMT stmt, SQLUSMALLINT column,
                          odbc::ColumnDescription* description) override;
    SQLRETURN columnTypeName(SQLHSTMT stmt, SQLUSMALLINT column, QString* name) override;
    SQLRETURN rowCount(SQLHSTMT stmt, SQLLEN* count) override;
    SQLRETURN fetch(SQLHSTMT stmt) override;
    SQLRETURN getData(SQLHSTMT stmt, SQLUSMALLINT column, SQLSMALLINT cType, SQLPOINTER buffer,
                      SQLLEN bufferLength, SQLLEN* indicator) override;
    SQLRETURN moreResults(SQLHSTMT stmt) override;
    SQLRETURN freeStmt(SQLHSTMT stmt, SQLUSMALLINT option) override;
    SQLRETURN getDiagRec(SQLSMALLINT handleType, SQLHANDLE handle, SQLSMALLINT number,
                         odbc::DiagRecord* record) override;

private:
    struct Bound {
        SQLSMALLINT cType;
        SQLPOINTER value;
        SQLLEN* indicator;
    };
    struct State {
        SQLSMALLINT type = 0;
        std::vector<odbc::DiagRecord> diagnostics;
        Batch batch;
        std::size_t result = 0;
        std::size_t row = 0; // 1-based once fetched
        std::size_t readOffset = 0;
        SQLUSMALLINT readColumn = 0;
        std::map<SQLUSMALLINT, Bound> parameters;
    };
    State& state(SQLHANDLE handle);
    const Result* current(State& s);
    SQLRETURN enter(State& s, SQLRETURN rc);

    std::map<SQLHANDLE, std::unique_ptr<State>> m_handles;
};
