#pragma once

#include "platform/ado/sqlserver/odbc/Diagnostics.h"
#include "platform/ado/sqlserver/odbc/OdbcApi.h"

#include <QString>

#include <utility>

namespace odbc {

// One owner per ODBC handle; its type says how it is freed. Destructors never throw.
template <SQLSMALLINT Kind> class Handle {
public:
    Handle() = default;
    Handle(Api& api, SQLHANDLE parent) : m_api(&api) {
        const SQLRETURN rc = api.allocHandle(Kind, parent, &m_handle);
        if (!succeeded(rc)) {
            m_handle = SQL_NULL_HANDLE;
            // An environment has no parent to carry the reason; others report on the parent.
            throw Failure(readDiagnostics(api, Kind == SQL_HANDLE_ENV ? SQL_HANDLE_ENV
                                                   : Kind == SQL_HANDLE_DBC ? SQL_HANDLE_ENV
                                                                            : SQL_HANDLE_DBC,
                                          parent),
                          Kind == SQL_HANDLE_STMT ? Phase::Command : Phase::Connect);
        }
    }
    Handle(Handle&& o) noexcept
        : m_api(o.m_api), m_handle(std::exchange(o.m_handle, SQL_NULL_HANDLE)) {}
    Handle& operator=(Handle&& o) noexcept {
        std::swap(m_api, o.m_api);
        std::swap(m_handle, o.m_handle);
        return *this;
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() {
        if (m_handle != SQL_NULL_HANDLE) {
            m_api->freeHandle(Kind, m_handle);
        }
    }

    SQLHANDLE get() const noexcept { return m_handle; }

private:
    Api* m_api = nullptr;
    SQLHANDLE m_handle = SQL_NULL_HANDLE;
};

// A statement on a connection. Freeing a statement with results pending makes the driver cancel
// the rest of the batch, so callers drain results before the statement ends (see Batch).
class Statement {
public:
    Statement(Api& api, SQLHDBC dbc) : m_api(&api), m_handle(api, dbc) {}

    Api& api() const noexcept { return *m_api; }
    SQLHSTMT get() const noexcept { return m_handle.get(); }
    // Throws with this statement's records unless rc is a success.
    void check(SQLRETURN rc) const { odbc::check(*m_api, rc, SQL_HANDLE_STMT, get(), Phase::Command); }
    std::vector<DiagRecord> diagnostics() const {
        return readDiagnostics(*m_api, SQL_HANDLE_STMT, get());
    }

private:
    Api* m_api;
    Handle<SQL_HANDLE_STMT> m_handle;
};

// An ODBC connection with its own environment: the environment is declared first so that it
// is freed last. Autocommit is on unless a transaction is open.
class Connection {
public:
    explicit Connection(Api& api);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    Connection(Connection&&) = delete;
    Connection& operator=(Connection&&) = delete;

    // Logs in with a driver connection string (no DSN). The login time-out covers the TCP
    // connection and the login exchange; 0 means the driver's (unbounded) default.
    void open(const QString& driverString, int loginTimeoutSeconds);
    void close() noexcept;
    bool isOpen() const noexcept { return m_connected; }

    // BeginTrans: autocommit off (the driver begins the transaction at once).
    void beginTransaction();
    // CommitTrans / RollbackTrans: end it and return to autocommit, so that statements which
    // refuse transactions (create database) run again.
    void endTransaction(bool commit);
    bool inTransaction() const noexcept { return m_inTransaction; }

    QString info(SQLUSMALLINT infoType);
    Statement statement() { return Statement(*m_api, m_dbc.get()); }
    Api& api() const noexcept { return *m_api; }

private:
    void check(SQLRETURN rc, Phase phase);

    Api* m_api;
    Handle<SQL_HANDLE_ENV> m_env;
    Handle<SQL_HANDLE_DBC> m_dbc;
    bool m_connected = false;
    bool m_inTransaction = false;
};

} // namespace odbc
