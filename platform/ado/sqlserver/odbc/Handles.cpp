#include "platform/ado/sqlserver/odbc/Handles.h"

namespace odbc {

Connection::Connection(Api& api) : m_api(&api), m_env(api, SQL_NULL_HANDLE) {
    // ODBC 3 behaviour: SQL_NO_DATA from DDL, SQLSTATEs of version 3.
    odbc::check(api, api.setEnvAttr(m_env.get(), SQL_ATTR_ODBC_VERSION, SQL_OV_ODBC3),
                SQL_HANDLE_ENV, m_env.get(), Phase::Connect);
    m_dbc = Handle<SQL_HANDLE_DBC>(api, m_env.get());
}

Connection::~Connection() { close(); }

void Connection::check(SQLRETURN rc, Phase phase) {
    odbc::check(*m_api, rc, SQL_HANDLE_DBC, m_dbc.get(), phase);
}

void Connection::open(const QString& driverString, int loginTimeoutSeconds) {
    if (loginTimeoutSeconds > 0) {
        check(m_api->setConnectAttr(m_dbc.get(), SQL_ATTR_LOGIN_TIMEOUT,
                                    static_cast<SQLULEN>(loginTimeoutSeconds)),
              Phase::Connect);
    }
    check(m_api->driverConnect(m_dbc.get(), driverString), Phase::Connect);
    m_connected = true;
}

void Connection::close() noexcept {
    if (!m_connected) {
        return;
    }
    if (m_inTransaction) {
        // An open transaction is never committed by accident.
        m_api->endTran(m_dbc.get(), SQL_ROLLBACK);
        m_inTransaction = false;
    }
    m_api->disconnect(m_dbc.get());
    m_connected = false;
}

void Connection::beginTransaction() {
    check(m_api->setConnectAttr(m_dbc.get(), SQL_ATTR_AUTOCOMMIT, SQL_AUTOCOMMIT_OFF),
          Phase::Command);
    m_inTransaction = true;
}

void Connection::endTransaction(bool commit) {
    check(m_api->endTran(m_dbc.get(), commit ? SQL_COMMIT : SQL_ROLLBACK), Phase::Command);
    m_inTransaction = false;
    check(m_api->setConnectAttr(m_dbc.get(), SQL_ATTR_AUTOCOMMIT, SQL_AUTOCOMMIT_ON),
          Phase::Command);
}

QString Connection::info(SQLUSMALLINT infoType) {
    QString value;
    check(m_api->getInfo(m_dbc.get(), infoType, &value), Phase::Command);
    return value;
}

} // namespace odbc
