#include "tests/platform/sqlserver/RecordingOdbc.h"

#include "platform/ado/sqlserver/odbc/Values.h"

#include <QUuid>

#include <sqlucode.h>

#include <cstring>

using namespace Qt::StringLiterals;

RecordingOdbc::Result RecordingOdbc::rows(std::vector<odbc::ColumnDescription> columns,
                                          QStringList typeNames,
                                          std::vector<std::vector<vb::Variant>> rows) {
    Result r;
    r.columns = std::move(columns);
    r.typeNames = std::move(typeNames);
    r.rows = std::move(rows);
    return r;
}

RecordingOdbc::Result RecordingOdbc::count(SQLLEN n) {
    Result r;
    r.rowCount = n;
    return r;
}

odbc::DiagRecord RecordingOdbc::diag(QString state, SQLINTEGER native, QString message) {
    return odbc::DiagRecord{std::move(state), native, std::move(message)};
}

RecordingOdbc::Result RecordingOdbc::error(QString state, SQLINTEGER native, QString message) {
    Result r;
    r.rc = SQL_ERROR;
    r.diagnostics.push_back(diag(std::move(state), native, std::move(message)));
    return r;
}

RecordingOdbc::State& RecordingOdbc::state(SQLHANDLE handle) {
    auto it = m_handles.find(handle);
    if (it == m_handles.end()) {
        throw std::logic_error("RecordingOdbc: call on a handle that is not allocated");
    }
    return *it->second;
}

const RecordingOdbc::Result* RecordingOdbc::current(State& s) {
    return s.result < s.batch.size() ? &s.batch[s.result] : nullptr;
}

SQLRETURN RecordingOdbc::enter(State& s, SQLRETURN rc) {
    s.row = 0;
    s.readColumn = 0;
    s.diagnostics = current(s) ? current(s)->diagnostics : std::vector<odbc::DiagRecord>{};
    return rc;
}

SQLRETURN RecordingOdbc::allocHandle(SQLSMALLINT type, SQLHANDLE input, SQLHANDLE* output) {
    if (type != SQL_HANDLE_ENV) {
        state(input);
    }
    auto s = std::make_unique<State>();
    s->type = type;
    *output = s.get();
    m_handles.emplace(*output, std::move(s));
    return SQL_SUCCESS;
}

SQLRETURN RecordingOdbc::freeHandle(SQLSMALLINT type, SQLHANDLE handle) {
    if (state(handle).type != type) {
        throw std::logic_error("RecordingOdbc: handle freed as the wrong kind");
    }
    m_handles.erase(handle);
    return SQL_SUCCESS;
}

SQLRETURN RecordingOdbc::setEnvAttr(SQLHENV env, SQLINTEGER attribute, SQLULEN value) {
    state(env);
    log << u"SQLSetEnvAttr %1=%2"_s.arg(QString::number(attribute), QString::number(value));
    return SQL_SUCCESS;
}

SQLRETURN RecordingOdbc::setConnectAttr(SQLHDBC dbc, SQLINTEGER attribute, SQLULEN value) {
    state(dbc);
    log << u"SQLSetConnectAttr %1=%2"_s.arg(QString::number(attribute), QString::number(value));
    return SQL_SUCCESS;
}

SQLRETURN RecordingOdbc::setStmtAttr(SQLHSTMT stmt, SQLINTEGER attribute, SQLULEN value) {
    state(stmt);
    log << u"SQLSetStmtAttr %1=%2"_s.arg(QString::number(attribute), QString::number(value));
    return SQL_SUCCESS;
}

SQLRETURN RecordingOdbc::driverConnect(SQLHDBC dbc, const QString& connectionString) {
    log << u"SQLDriverConnect "_s + connectionString;
    state(dbc).diagnostics = connectDiagnostics;
    return connectResult;
}

SQLRETURN RecordingOdbc::disconnect(SQLHDBC dbc) {
    state(dbc);
    log << u"SQLDisconnect"_s;
    return SQL_SUCCESS;
}

SQLRETURN RecordingOdbc::getInfo(SQLHDBC dbc, SQLUSMALLINT infoType, QString* value) {
    state(dbc);
    const auto it = info.find(infoType);
    if (it == info.end()) {
        return SQL_ERROR;
    }
    *value = it->second;
    return SQL_SUCCESS;
}

SQLRETURN RecordingOdbc::endTran(SQLHDBC dbc, SQLSMALLINT completion) {
    state(dbc);
    log << (completion == SQL_COMMIT ? u"SQLEndTran commit"_s : u"SQLEndTran rollback"_s);
    return SQL_SUCCESS;
}

SQLRETURN RecordingOdbc::execDirect(SQLHSTMT stmt, const QString& text) {
    State& s = state(stmt);
    log << u"SQLExecDirect "_s + text;
    fetchesBeforeExec.push_back(fetches);
    lastParameterBytes.clear();
    for (const auto& [number, bound] : s.parameters) {
        lastParameterBytes.push_back(
            *bound.indicator == SQL_NULL_DATA
                ? QByteArray("<null>")
                : QByteArray(static_cast<const char*>(bound.value), *bound.indicator));
    }
    s.batch = batches.empty() ? Batch{} : std::move(batches.front());
    if (!batches.empty()) {
        batches.pop_front();
    }
    s.result = 0;
    if (s.batch.empty()) {
        s.diagnostics.clear();
        return SQL_NO_DATA;
    }
    return enter(s, s.batch.front().rc);
}

SQLRETURN RecordingOdbc::bindParameter(SQLHSTMT stmt, SQLUSMALLINT number, SQLSMALLINT cType,
                                       SQLSMALLINT sqlType, SQLULEN columnSize,
                                       SQLSMALLINT decimalDigits, SQLPOINTER value, SQLLEN,
                                       SQLLEN* lengthOrIndicator) {
    state(stmt).parameters[number] = Bound{cType, value, lengthOrIndicator};
    log << u"SQLBindParameter %1 c=%2 sql=%3 size=%4 digits=%5"_s.arg(
        QString::number(number), QString::number(cType), QString::number(sqlType),
        QString::number(columnSize), QString::number(decimalDigits));
    return SQL_SUCCESS;
}

SQLRETURN RecordingOdbc::numResultCols(SQLHSTMT stmt, SQLSMALLINT* count) {
    const Result* r = current(state(stmt));
    *count = r ? static_cast<SQLSMALLINT>(r->columns.size()) : 0;
    return SQL_SUCCESS;
}

SQLRETURN RecordingOdbc::describeCol(SQLHSTMT stmt, SQLUSMALLINT column,
                                     odbc::ColumnDescription* description) {
    *description = current(state(stmt))->columns.at(column - 1);
    return SQL_SUCCESS;
}

SQLRETURN RecordingOdbc::columnTypeName(SQLHSTMT stmt, SQLUSMALLINT column, QString* name) {
    const Result* r = current(state(stmt));
    *name = column <= r->typeNames.size() ? r->typeNames.at(column - 1) : QString();
    return SQL_SUCCESS;
}

SQLRETURN RecordingOdbc::rowCount(SQLHSTMT stmt, SQLLEN* count) {
    const Result* r = current(state(stmt));
    *count = r ? r->rowCount : -1;
    return SQL_SUCCESS;
}

SQLRETURN RecordingOdbc::fetch(SQLHSTMT stmt) {
    State& s = state(stmt);
    ++fetches;
    const Result* r = current(s);
    s.readColumn = 0;
    if (r == nullptr || s.row >= r->rows.size()) {
        return SQL_NO_DATA;
    }
    ++s.row;
    return SQL_SUCCESS;
}

namespace {

template <class T> SQLRETURN put(const T& value, SQLPOINTER buffer, SQLLEN* indicator) {
    std::memcpy(buffer, &value, sizeof value);
    *indicator = sizeof value;
    return SQL_SUCCESS;
}

QByteArray bytesOf(const vb::Variant& v, bool wide) {
    if (!wide) {
        return v.get<QByteArray>() ? *v.get<QByteArray>() : QByteArray();
    }
    QString text;
    if (const auto* c = v.get<vb::Currency>()) {
        text = odbc::currencyText(*c);
    } else if (const auto* d = v.get<vb::Decimal>()) {
        text = d->toString();
    } else {
        text = v.toString();
    }
    return QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
}

} // namespace

SQLRETURN RecordingOdbc::getData(SQLHSTMT stmt, SQLUSMALLINT column, SQLSMALLINT cType,
                                 SQLPOINTER buffer, SQLLEN bufferLength, SQLLEN* indicator) {
    State& s = state(stmt);
    const vb::Variant& v = current(s)->rows.at(s.row - 1).at(column - 1);
    if (v.isNull()) {
        *indicator = SQL_NULL_DATA;
        return SQL_SUCCESS;
    }
    switch (cType) {
    case SQL_C_SSHORT: return put<SQLSMALLINT>(v.toInteger().value(), buffer, indicator);
    case SQL_C_SLONG: return put<SQLINTEGER>(v.toLong().value(), buffer, indicator);
    case SQL_C_UTINYINT:
        return put<SQLCHAR>(static_cast<SQLCHAR>(v.toInteger().value()), buffer, indicator);
    case SQL_C_BIT: return put<SQLCHAR>(v.toBool().value() ? 1 : 0, buffer, indicator);
    case SQL_C_FLOAT:
        return put<float>(static_cast<float>(v.toDouble().value()), buffer, indicator);
    case SQL_C_DOUBLE: return put<double>(v.toDouble().value(), buffer, indicator);
    case SQL_C_SBIGINT:
        return put<SQLBIGINT>(v.get<vb::Decimal>()->toString().toLongLong(), buffer, indicator);
    case SQL_C_TYPE_TIMESTAMP: {
        const QDateTime d = v.toDate().value();
        SQL_TIMESTAMP_STRUCT t{};
        t.year = static_cast<SQLSMALLINT>(d.date().year());
        t.month = static_cast<SQLUSMALLINT>(d.date().month());
        t.day = static_cast<SQLUSMALLINT>(d.date().day());
        t.hour = static_cast<SQLUSMALLINT>(d.time().hour());
        t.minute = static_cast<SQLUSMALLINT>(d.time().minute());
        t.second = static_cast<SQLUSMALLINT>(d.time().second());
        t.fraction = static_cast<SQLUINTEGER>(d.time().msec()) * 1000000u;
        return put(t, buffer, indicator);
    }
    case SQL_C_GUID: {
        const QUuid id(v.toString());
        SQLGUID g{};
        g.Data1 = id.data1;
        g.Data2 = id.data2;
        g.Data3 = id.data3;
        std::memcpy(g.Data4, id.data4, sizeof g.Data4);
        return put(g, buffer, indicator);
    }
    default: break;
    }
    const bool wide = cType == SQL_C_WCHAR;
    const QByteArray all = bytesOf(v, wide);
    if (s.readColumn != column) {
        s.readColumn = column;
        s.readOffset = 0;
    } else if (s.readOffset >= static_cast<std::size_t>(all.size())) {
        return SQL_NO_DATA;
    }
    const SQLLEN left = all.size() - static_cast<SQLLEN>(s.readOffset);
    const SQLLEN room = (bufferLength - (wide ? 2 : 0)) & ~SQLLEN(wide ? 1 : 0);
    const SQLLEN n = std::min(left, room);
    std::memcpy(buffer, all.constData() + s.readOffset, static_cast<std::size_t>(n));
    if (wide) {
        std::memset(static_cast<char*>(buffer) + n, 0, 2);
    }
    s.readOffset += static_cast<std::size_t>(n);
    *indicator = left;
    if (n < left) {
        s.diagnostics = {diag(u"01004"_s, 0, u"String data, right truncated"_s)};
        return SQL_SUCCESS_WITH_INFO;
    }
    if (all.isEmpty()) {
        s.readOffset = 1; // an empty value is read once
    }
    return SQL_SUCCESS;
}

SQLRETURN RecordingOdbc::moreResults(SQLHSTMT stmt) {
    State& s = state(stmt);
    log << u"SQLMoreResults"_s;
    if (s.result + 1 >= s.batch.size()) {
        s.result = s.batch.size();
        s.diagnostics.clear();
        return SQL_NO_DATA;
    }
    ++s.result;
    return enter(s, s.batch[s.result].rc);
}

SQLRETURN RecordingOdbc::freeStmt(SQLHSTMT stmt, SQLUSMALLINT option) {
    state(stmt);
    log << u"SQLFreeStmt %1"_s.arg(option);
    return SQL_SUCCESS;
}

SQLRETURN RecordingOdbc::getDiagRec(SQLSMALLINT, SQLHANDLE handle, SQLSMALLINT number,
                                    odbc::DiagRecord* record) {
    const State& s = state(handle);
    if (number < 1 || static_cast<std::size_t>(number) > s.diagnostics.size()) {
        return SQL_NO_DATA;
    }
    *record = s.diagnostics[static_cast<std::size_t>(number) - 1];
    return SQL_SUCCESS;
}
