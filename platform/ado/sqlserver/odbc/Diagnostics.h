#pragma once

#include "platform/ado/sqlserver/odbc/OdbcApi.h"

#include <QByteArray>
#include <QString>

#include <exception>
#include <vector>

namespace odbc {

// What was being done when the driver failed: the same server message maps to a different
// ADO error while logging in than while running a command.
enum class Phase { Connect, Command };

// Every diagnostic record of a handle, in order, until SQL_NO_DATA. Some drivers misbehave when
// asked past the end, so the loop also stops at the first failing call, and at a bound that no
// honest driver reaches.
std::vector<DiagRecord> readDiagnostics(Api& api, SQLSMALLINT handleType, SQLHANDLE handle);

// The server's message as SQL Server's own OLE DB provider shows it: without the driver's
// "[vendor][driver][SQL Server]" prefix. Messages of the driver or the driver manager keep their
// prefix, which says who is speaking.
QString serverText(const QString& message);

// The HRESULT ADO reports for one record: any failure while connecting is 0x80004005; during a
// command, by the server's message number first, then by the SQLSTATE class, else a refused
// command.
std::int32_t hresultFor(const DiagRecord& record, Phase phase);

// Warnings and informational messages (class 01) do not make a call fail.
bool isError(const DiagRecord& record);

// A failed ODBC call with every record the driver gave for it.
class Failure : public std::exception {
public:
    Failure(std::vector<DiagRecord> records, Phase phase);
    // A failure of this layer itself, before or without the driver.
    Failure(std::int32_t hresult, const QString& description);

    const std::vector<DiagRecord>& records() const noexcept { return m_records; }
    Phase phase() const noexcept { return m_phase; }
    // The HRESULT and text of the first error record (the cause; later records are
    // consequences such as "The statement has been terminated.").
    std::int32_t hresult() const noexcept { return m_hresult; }
    const QString& description() const noexcept { return m_description; }
    const QString& sqlState() const noexcept { return m_sqlState; }
    SQLINTEGER nativeError() const noexcept { return m_nativeError; }
    const char* what() const noexcept override { return m_what.constData(); }

private:
    std::vector<DiagRecord> m_records;
    Phase m_phase = Phase::Command;
    std::int32_t m_hresult = 0;
    QString m_description;
    QString m_sqlState;
    SQLINTEGER m_nativeError = 0;
    QByteArray m_what;
};

// Throws Failure with the handle's records unless rc is a success; SQL_NO_DATA counts as success
// where the caller says so.
void check(Api& api, SQLRETURN rc, SQLSMALLINT handleType, SQLHANDLE handle, Phase phase);

} // namespace odbc
