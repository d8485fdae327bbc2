#pragma once

#include "platform/vb/Err.h"

#include <QString>

#include <cstdint>

namespace sqldmo {

// The numbers a failure carries. SQL-DMO raises FACILITY_ITF codes whose bits 8-15 give the
// category (SQLDMO_ECAT_INVALIDPARAMETER 0x5300, _INVALIDPLATFORM 0x5400, _ITEMNOTFOUND 0x5500,
// _CONNECTION 0x5800); the low byte tells our own cases apart within a category.
enum class Hr : std::uint32_t {
    InvalidParameter = 0x80045300, // a server or instance name that cannot be asked for
    NoTcpPort = 0x80045400,        // the instance answers, but does not listen on TCP
    ItemNotFound = 0x80045500,     // a list ordinal out of range
    InstanceNotFound = 0x80045501, // the browser answered without the instance asked for
    NoAnswer = 0x80045800,         // no browser answered in time
    HostNotFound = 0x80045801,     // the server name does not resolve to an address
    NetworkFailure = 0x80045802,   // the datagram socket could not be opened or used
};

// The sources failures name: the SQL-DMO objects, and the instance look-up of the provider.
inline constexpr char16_t kSourceDmo[] = u"Microsoft SQL-DMO";
inline constexpr char16_t kSourceBrowser[] = u"SQL Server Browser";

// A failed discovery call. Like a failing COM call it is a run-time error: Number is the HRESULT
// as a signed 32-bit value, Source names the component, Description says what failed.
class Error : public vb::RuntimeError {
public:
    Error(Hr hr, const QString& source, const QString& description);
    Hr code() const noexcept { return m_code; }
    std::int32_t hresult() const noexcept { return record().Number; }
    const QString& description() const noexcept { return record().Description; }
    const QString& source() const noexcept { return record().Source; }

private:
    Hr m_code;
};

// Fills the thread's ambient error (Err), as a failing COM call does, and throws.
[[noreturn]] void Raise(Hr hr, const QString& source, const QString& description);

} // namespace sqldmo
