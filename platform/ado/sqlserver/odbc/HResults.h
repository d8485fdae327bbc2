#pragma once

#include <cstdint>

// The HRESULTs the provider raises, with OLE DB's names.
namespace odbc::hr {

inline constexpr std::int32_t E_FAIL_ = static_cast<std::int32_t>(0x80004005u);
inline constexpr std::int32_t E_NOTIMPL_ = static_cast<std::int32_t>(0x80004001u);
inline constexpr std::int32_t DB_E_ERRORSINCOMMAND = static_cast<std::int32_t>(0x80040E14u);
inline constexpr std::int32_t DB_E_INTEGRITYVIOLATION = static_cast<std::int32_t>(0x80040E2Fu);
inline constexpr std::int32_t DB_E_NOTABLE = static_cast<std::int32_t>(0x80040E37u);
inline constexpr std::int32_t DB_E_CANTCONVERTVALUE = static_cast<std::int32_t>(0x80040E07u);
inline constexpr std::int32_t DB_E_DATAOVERFLOW = static_cast<std::int32_t>(0x80040E57u);
inline constexpr std::int32_t DB_E_ABORTLIMITREACHED = static_cast<std::int32_t>(0x80040E31u);
inline constexpr std::int32_t DB_E_BADPARAMETERTYPE = static_cast<std::int32_t>(0x80040E30u); // unsupported type

} // namespace odbc::hr
