#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <exception>
#include <vector>

namespace ado {

// The HRESULTs that this layer and its providers raise, as the real ones raise them. ADO's own
// codes (0x800A....) are its run-time error numbers 3001... in the automation facility.
enum class HResult : std::uint32_t {
    E_UNSPECIFIED = 0x80004005, // E_FAIL: open failures, locks, network, login
    DB_E_BADTABLEID = 0x80040E37,         // no such table or query
    DB_E_ERRORSINCOMMAND = 0x80040E14,    // refused or malformed command
    DB_E_INTEGRITYVIOLATION = 0x80040E2F, // a constraint refused the change
    DB_E_PARAMNOTOPTIONAL = 0x80040E10,   // unknown name in a command: taken as a parameter
    DB_E_CANTFETCHBACKWARDS = 0x80040E24,
    DB_E_CANTSCROLLBACKWARDS = 0x80040E1A,
    DB_E_ERRORSOCCURRED = 0x80040E21,
    DB_E_CONCURRENCYVIOLATION = 0x80040E38,
    DB_E_NOTSUPPORTED = 0x80040E53,
    DB_E_NOCOMMAND = 0x80040E0C,
    DB_E_ABORTLIMITREACHED = 0x80040E31, // time-out
    DB_E_BADINITSTRING = 0x80040E73,     // a connection string OLE DB cannot read
    DB_SEC_E_AUTH_FAILED = 0x80040E4D,   // wrong password or login
    DB_SEC_E_PERMISSIONDENIED = 0x80040E09,
    XACT_E_NOTRANSACTION = 0x8004D00E, // commit or rollback with no transaction
    adErrInvalidArgument = 0x800A0BB9,      // 3001
    adErrNoCurrentRecord = 0x800A0BCD,      // 3021
    adErrIllegalOperation = 0x800A0C93,     // 3219
    adErrFeatureNotAvailable = 0x800A0CB3,  // 3251
    adErrItemNotFound = 0x800A0CC1,         // 3265
    adErrObjectInCollection = 0x800A0D27,   // 3367
    adErrDataConversion = 0x800A0D5D,       // 3421
    adErrObjectClosed = 0x800A0E78,         // 3704
    adErrObjectOpen = 0x800A0E79,           // 3705
    adErrProviderNotFound = 0x800A0E7A,     // 3706
    adErrInvalidParamInfo = 0x800A0E7C,     // 3708
    adErrInvalidConnection = 0x800A0E7D,    // 3709
};

// One error as ADO reports it: the Error object of Connection::Errors, and what every failing
// call of this layer throws. A provider failure with several records throws the first and carries
// the others, in order, in related().
class Error : public std::exception {
public:
    Error(HResult hresult, QString description, QString source, QString sqlState = {},
          std::int32_t nativeError = 0);
    Error(std::int32_t hresult, QString description, QString source, QString sqlState = {},
          std::int32_t nativeError = 0);

    // The number as Err.Number shows it: negative for failure codes.
    std::int32_t hresult() const noexcept { return m_hresult; }
    bool is(HResult code) const noexcept {
        return static_cast<std::uint32_t>(m_hresult) == static_cast<std::uint32_t>(code);
    }
    const QString& description() const noexcept { return m_description; }
    const QString& source() const noexcept { return m_source; }
    const QString& sqlState() const noexcept { return m_sqlState; }
    std::int32_t nativeError() const noexcept { return m_nativeError; }

    const std::vector<Error>& related() const noexcept { return m_related; }
    Error& addRelated(Error other);

    const char* what() const noexcept override { return m_what.constData(); }

private:
    std::int32_t m_hresult;
    QString m_description;
    QString m_source;
    QString m_sqlState;
    std::int32_t m_nativeError;
    std::vector<Error> m_related;
    QByteArray m_what;
};

// ADO's own text for its own codes; empty for provider codes, whose text the provider gives.
QString adoText(HResult code);

// Throws ADO's own error with its standard text.
[[noreturn]] void raise(HResult code, const QString& source);

inline constexpr std::int32_t toNumber(HResult code) noexcept {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(code));
}

} // namespace ado
