#pragma once

// The handful of ODBC calls the SQL Server provider makes, behind one interface, so that the
// provider runs on the driver manager in production and on a recording layer in tests. Text
// crosses the interface as QString; the system implementation converts to SQLWCHAR (UTF-16 on
// unixODBC and on Windows alike), which is the only form the provider uses.

#include <QString>

#include <sql.h>
#include <sqlext.h>

namespace odbc {

struct DiagRecord {
    QString sqlState;
    SQLINTEGER nativeError = 0;
    QString message;
    friend bool operator==(const DiagRecord&, const DiagRecord&) = default;
};

struct ColumnDescription {
    QString name;
    SQLSMALLINT sqlType = 0;
    SQLULEN size = 0;
    SQLSMALLINT decimalDigits = 0;
    SQLSMALLINT nullable = SQL_NULLABLE_UNKNOWN;
    // The column's values come from the server (an identity column).
    bool autoUnique = false;
};

class Api {
public:
    virtual ~Api() = default;

    virtual SQLRETURN allocHandle(SQLSMALLINT type, SQLHANDLE input, SQLHANDLE* output) = 0;
    virtual SQLRETURN freeHandle(SQLSMALLINT type, SQLHANDLE handle) = 0;
    virtual SQLRETURN setEnvAttr(SQLHENV env, SQLINTEGER attribute, SQLULEN value) = 0;
    virtual SQLRETURN setConnectAttr(SQLHDBC dbc, SQLINTEGER attribute, SQLULEN value) = 0;
    virtual SQLRETURN setStmtAttr(SQLHSTMT stmt, SQLINTEGER attribute, SQLULEN value) = 0;
    virtual SQLRETURN driverConnect(SQLHDBC dbc, const QString& connectionString) = 0;
    virtual SQLRETURN disconnect(SQLHDBC dbc) = 0;
    virtual SQLRETURN getInfo(SQLHDBC dbc, SQLUSMALLINT infoType, QString* value) = 0;
    virtual SQLRETURN endTran(SQLHDBC dbc, SQLSMALLINT completion) = 0;

    virtual SQLRETURN execDirect(SQLHSTMT stmt, const QString& text) = 0;
    virtual SQLRETURN bindParameter(SQLHSTMT stmt, SQLUSMALLINT number, SQLSMALLINT cType,
                                    SQLSMALLINT sqlType, SQLULEN columnSize,
                                    SQLSMALLINT decimalDigits, SQLPOINTER value,
                                    SQLLEN bufferLength, SQLLEN* lengthOrIndicator) = 0;
    virtual SQLRETURN numResultCols(SQLHSTMT stmt, SQLSMALLINT* count) = 0;
    virtual SQLRETURN describeCol(SQLHSTMT stmt, SQLUSMALLINT column,
                                  ColumnDescription* description) = 0;
    // The server's name of a result column's type ("money", "nvarchar"...).
    virtual SQLRETURN columnTypeName(SQLHSTMT stmt, SQLUSMALLINT column, QString* name) = 0;
    virtual SQLRETURN rowCount(SQLHSTMT stmt, SQLLEN* count) = 0;
    virtual SQLRETURN fetch(SQLHSTMT stmt) = 0;
    virtual SQLRETURN getData(SQLHSTMT stmt, SQLUSMALLINT column, SQLSMALLINT cType,
                              SQLPOINTER buffer, SQLLEN bufferLength, SQLLEN* indicator) = 0;
    virtual SQLRETURN moreResults(SQLHSTMT stmt) = 0;
    virtual SQLRETURN freeStmt(SQLHSTMT stmt, SQLUSMALLINT option) = 0;

    // One diagnostic record, numbered from 1; SQL_NO_DATA past the last.
    virtual SQLRETURN getDiagRec(SQLSMALLINT handleType, SQLHANDLE handle, SQLSMALLINT number,
                                 DiagRecord* record) = 0;
};

// The driver manager of this machine (unixODBC, or odbc32 on Windows).
Api& systemApi();

inline bool succeeded(SQLRETURN rc) { return rc == SQL_SUCCESS || rc == SQL_SUCCESS_WITH_INFO; }

} // namespace odbc
