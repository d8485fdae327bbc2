#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>

namespace jetfile::detail {

// Jet 4 text: UTF-16LE, or "compressed" when it starts with FF FE. A compressed value runs in
// one-byte characters (U+0001..U+00FF) and switches to two-byte units and back at each 0x00.
// Returns false when the bytes cannot be text (an odd number of bytes in two-byte form).
bool decodeText(const std::uint8_t* bytes, std::size_t length, QString& out);

// Plain UTF-16LE, as names are stored; an odd trailing byte makes it false.
bool decodeUtf16(const std::uint8_t* bytes, std::size_t length, QString& out);

// "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}", upper case, from the 16 stored bytes (the first
// three groups little-endian), as ADO shows a GUID.
QString guidText(const std::uint8_t* bytes);

} // namespace jetfile::detail
