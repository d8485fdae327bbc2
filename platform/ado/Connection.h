#pragma once

#include "platform/ado/Enums.h"
#include "platform/ado/Errors.h"
#include "platform/ado/Properties.h"
#include "platform/ado/Provider.h"
#include "platform/vb/Variant.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace ado {

class Connection;
using ConnectionPtr = std::shared_ptr<Connection>;
class Recordset;
using RecordsetPtr = std::shared_ptr<Recordset>;

// ADO's Connection. The provider comes from the connection string's "Provider=" keyword (or the
// Provider property) through the ProviderRegistry. Provider failures are thrown as ado::Error and
// listed in Errors.
class Connection : public std::enable_shared_from_this<Connection> {
public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    Connection(Connection&&) = delete;
    Connection& operator=(Connection&&) = delete;

    static ConnectionPtr create() { return std::make_shared<Connection>(); }

    // While open: the string the provider reports, which may differ from the one given.
    QString ConnectionString() const;
    void setConnectionString(const QString& connectionString);
    // While open: the provider's full name; closed: the name given or found in the string.
    QString Provider() const;
    void setProvider(const QString& provider);
    long Mode() const noexcept { return m_mode; }
    void setMode(long mode);
    CursorLocationEnum CursorLocation() const noexcept { return m_cursorLocation; }
    void setCursorLocation(CursorLocationEnum location) { m_cursorLocation = location; }
    long ConnectionTimeout() const noexcept { return m_connectionTimeout; }
    void setConnectionTimeout(long seconds);
    long CommandTimeout() const noexcept { return m_commandTimeout; }
    void setCommandTimeout(long seconds) { m_commandTimeout = seconds; }
    long State() const noexcept;

    void Open(const QString& connectionString = {}, const QString& userId = {},
              const QString& password = {}, long options = adOptionUnspecified);
    void Close();

    // Runs a statement; the recordset is closed when the statement returns no rows.
    RecordsetPtr Execute(const QString& commandText, long* recordsAffected = nullptr,
                         long options = adOptionUnspecified);
    // A static, read-only schema rowset; `restrictions` line up with the rowset's restriction
    // columns, an Empty value leaving that one free.
    RecordsetPtr OpenSchema(SchemaEnum schema, const std::vector<vb::Variant>& restrictions = {});

    // Returns the new nesting level.
    long BeginTrans();
    void CommitTrans();
    void RollbackTrans();

    ado::Properties& Properties() noexcept { return m_properties; }
    ado::Errors& Errors() noexcept { return m_errors; }

    // For the other objects of this layer.
    ProviderSession& session() const;
    // Lists a provider failure in Errors and throws it on.
    [[noreturn]] void providerFailed(const Error& error);

private:
    void requireOpen(const QString& source) const;
    void requireClosed() const;
    QString providerName() const;

    QString m_connectionString;
    QString m_provider;
    long m_mode = adModeUnknown;
    CursorLocationEnum m_cursorLocation = CursorLocationEnum::adUseServer;
    long m_connectionTimeout = 15;
    long m_commandTimeout = 30;
    std::shared_ptr<ado::Provider> m_providerObject;
    std::unique_ptr<ProviderSession> m_session;
    long m_transactionLevel = 0;
    ado::Properties m_properties{QStringLiteral("ADODB.Properties")};
    ado::Errors m_errors;
};

} // namespace ado
