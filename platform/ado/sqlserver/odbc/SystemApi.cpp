#include "platform/ado/sqlserver/odbc/OdbcApi.h"

#include <sqlucode.h>

#include <algorithm>
#include <iterator>
#include <vector>

namespace odbc {
namespace {

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t), "the W functions take UTF-16 here");

SQLWCHAR* wide(const QString& text) {
    // The driver manager does not write into input strings; its prototypes just lack const.
    return const_cast<SQLWCHAR*>(reinterpret_cast<const SQLWCHAR*>(text.utf16()));
}

QString fromWide(const SQLWCHAR* text, SQLSMALLINT length) {
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(text), length);
}

// Text returned through a caller's buffer: a second call with the reported length when the
// first buffer was short.
template <class Call> SQLRETURN readText(Call&& call, QString* out) {
    std::vector<SQLWCHAR> buffer(256);
    SQLSMALLINT length = 0;
    SQLRETURN rc = call(buffer.data(), static_cast<SQLSMALLINT>(buffer.size()), &length);
    if (succeeded(rc) && length >= static_cast<SQLSMALLINT>(buffer.size())) {
        buffer.resize(static_cast<std::size_t>(length) + 1);
        rc = call(buffer.data(), static_cast<SQLSMALLINT>(buffer.size()), &length);
    }
    if (succeeded(rc)) {
        *out = fromWide(buffer.data(), std::min<SQLSMALLINT>(
                                           length, static_cast<SQLSMALLINT>(buffer.size() - 1)));
    }
    return rc;
}

// ODBC passes an integer attribute in the pointer argument.
SQLPOINTER integerAttribute(SQLULEN value) {
    return reinterpret_cast<SQLPOINTER>(value); // NOLINT(performance-no-int-to-ptr)
}

class SystemApi final : public Api {
public:
    SQLRETURN allocHandle(SQLSMALLINT type, SQLHANDLE input, SQLHANDLE* output) override {
        return SQLAllocHandle(type, input, output);
    }
    SQLRETURN freeHandle(SQLSMALLINT type, SQLHANDLE handle) override {
        return SQLFreeHandle(type, handle);
    }
    SQLRETURN setEnvAttr(SQLHENV env, SQLINTEGER attribute, SQLULEN value) override {
        return SQLSetEnvAttr(env, attribute, integerAttribute(value), 0);
    }
    SQLRETURN setConnectAttr(SQLHDBC dbc, SQLINTEGER attribute, SQLULEN value) override {
        return SQLSetConnectAttrW(dbc, attribute, integerAttribute(value), 0);
    }
    SQLRETURN setStmtAttr(SQLHSTMT stmt, SQLINTEGER attribute, SQLULEN value) override {
        return SQLSetStmtAttrW(stmt, attribute, integerAttribute(value), 0);
    }
    SQLRETURN driverConnect(SQLHDBC dbc, const QString& connectionString) override {
        SQLWCHAR out[1024];
        SQLSMALLINT outLength = 0;
        return SQLDriverConnectW(dbc, nullptr, wide(connectionString),
                                 static_cast<SQLSMALLINT>(connectionString.size()), out,
                                 static_cast<SQLSMALLINT>(std::size(out)), &outLength,
                                 SQL_DRIVER_NOPROMPT);
    }
    SQLRETURN disconnect(SQLHDBC dbc) override { return SQLDisconnect(dbc); }
    SQLRETURN getInfo(SQLHDBC dbc, SQLUSMALLINT infoType, QString* value) override {
        return readText(
            [&](SQLWCHAR* buffer, SQLSMALLINT chars, SQLSMALLINT* length) {
                SQLSMALLINT bytes = 0;
                const SQLRETURN rc =
                    SQLGetInfoW(dbc, infoType, buffer,
                                static_cast<SQLSMALLINT>(chars * sizeof(SQLWCHAR)), &bytes);
                *length = static_cast<SQLSMALLINT>(bytes / sizeof(SQLWCHAR));
                return rc;
            },
            value);
    }
    SQLRETURN endTran(SQLHDBC dbc, SQLSMALLINT completion) override {
        return SQLEndTran(SQL_HANDLE_DBC, dbc, completion);
    }
    SQLRETURN execDirect(SQLHSTMT stmt, const QString& text) override {
        return SQLExecDirectW(stmt, wide(text), static_cast<SQLINTEGER>(text.size()));
    }
    SQLRETURN bindParameter(SQLHSTMT stmt, SQLUSMALLINT number, SQLSMALLINT cType,
                            SQLSMALLINT sqlType, SQLULEN columnSize, SQLSMALLINT decimalDigits,
                            SQLPOINTER value, SQLLEN bufferLength,
                            SQLLEN* lengthOrIndicator) override {
        return SQLBindParameter(stmt, number, SQL_PARAM_INPUT, cType, sqlType, columnSize,
                                decimalDigits, value, bufferLength, lengthOrIndicator);
    }
    SQLRETURN numResultCols(SQLHSTMT stmt, SQLSMALLINT* count) override {
        return SQLNumResultCols(stmt, count);
    }
    SQLRETURN describeCol(SQLHSTMT stmt, SQLUSMALLINT column,
                          ColumnDescription* d) override {
        const SQLRETURN rc = readText(
            [&](SQLWCHAR* buffer, SQLSMALLINT chars, SQLSMALLINT* length) {
                return SQLDescribeColW(stmt, column, buffer, chars, length, &d->sqlType, &d->size,
                                       &d->decimalDigits, &d->nullable);
            },
            &d->name);
        if (succeeded(rc)) {
            // Not every driver knows the attribute; a column it cannot tell about is no identity.
            SQLLEN autoUnique = SQL_FALSE;
            d->autoUnique = succeeded(SQLColAttributeW(stmt, column, SQL_DESC_AUTO_UNIQUE_VALUE,
                                                       nullptr, 0, nullptr, &autoUnique)) &&
                            autoUnique == SQL_TRUE;
        }
        return rc;
    }
    SQLRETURN columnTypeName(SQLHSTMT stmt, SQLUSMALLINT column, QString* name) override {
        return readText(
            [&](SQLWCHAR* buffer, SQLSMALLINT chars, SQLSMALLINT* length) {
                SQLSMALLINT bytes = 0;
                const SQLRETURN rc = SQLColAttributeW(
                    stmt, column, SQL_DESC_TYPE_NAME, buffer,
                    static_cast<SQLSMALLINT>(chars * sizeof(SQLWCHAR)), &bytes, nullptr);
                *length = static_cast<SQLSMALLINT>(bytes / sizeof(SQLWCHAR));
                return rc;
            },
            name);
    }
    SQLRETURN rowCount(SQLHSTMT stmt, SQLLEN* count) override { return SQLRowCount(stmt, count); }
    SQLRETURN fetch(SQLHSTMT stmt) override { return SQLFetch(stmt); }
    SQLRETURN getData(SQLHSTMT stmt, SQLUSMALLINT column, SQLSMALLINT cType, SQLPOINTER buffer,
                      SQLLEN bufferLength, SQLLEN* indicator) override {
        return SQLGetData(stmt, column, cType, buffer, bufferLength, indicator);
    }
    SQLRETURN moreResults(SQLHSTMT stmt) override { return SQLMoreResults(stmt); }
    SQLRETURN freeStmt(SQLHSTMT stmt, SQLUSMALLINT option) override {
        return SQLFreeStmt(stmt, option);
    }
    SQLRETURN getDiagRec(SQLSMALLINT handleType, SQLHANDLE handle, SQLSMALLINT number,
                         DiagRecord* record) override {
        SQLWCHAR state[6] = {};
        SQLINTEGER native = 0;
        const SQLRETURN rc = readText(
            [&](SQLWCHAR* buffer, SQLSMALLINT chars, SQLSMALLINT* length) {
                return SQLGetDiagRecW(handleType, handle, number, state, &native, buffer, chars,
                                      length);
            },
            &record->message);
        if (succeeded(rc)) {
            record->sqlState = fromWide(state, 5);
            record->nativeError = native;
        }
        return rc;
    }
};

} // namespace

Api& systemApi() {
    static SystemApi api; // stateless: every call goes straight to the driver manager
    return api;
}

} // namespace odbc
