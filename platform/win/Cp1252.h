#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

namespace win {

// windows-1252, the ANSI code page of Italian Windows: what the log, the string builder, the
// profile files and the registry's ANSI calls hold. Qt 6.4 offers it only when built with ICU,
// so the table is our own.
//
// Bytes 0x81, 0x8D, 0x8F, 0x90 and 0x9D have no character in the code page; like Windows we map
// them to the control characters of the same number, so that every byte survives a round trip.
// A character the code page lacks becomes "?", Windows' default character; there is no
// best-fit mapping.
QString fromCp1252(QByteArrayView bytes);
QByteArray toCp1252(QStringView text);

// The byte for one character, or '?' when the code page has none.
char cp1252Byte(QChar c) noexcept;

} // namespace win
