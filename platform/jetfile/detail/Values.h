#pragma once

#include "platform/jetfile/Schema.h"
#include "platform/jetfile/detail/LongValue.h"
#include "platform/jetfile/detail/RowView.h"
#include "platform/vb/Variant.h"

namespace jetfile::detail {

// A column's value in the current row, of the subtype ADO shows for its type: Byte uint8_t,
// Integer int16_t, Long int32_t, Single float, Double double, Currency vb::Currency, Date
// QDateTime, Text and Memo QString, Yes/No bool, Decimal vb::Decimal, GUID QString "{...}",
// Binary and OLE QByteArray; Null when nothing is stored. Types Jet 4 does not define come back
// as their raw bytes.
// Jet's date: days since 1899-12-30 with the time of day as the fraction, to the millisecond.
QDateTime oleDate(double days);

vb::Variant decodeValue(const PageSource& source, const Column& column, const RowView& row,
                        LongValueReader& longValues);
// The same value written into `into`: a text reuses the string `into` already holds when no one
// else shares it. A value that cannot be decoded leaves `into` Empty and throws as decodeValue.
void decodeValueInto(const PageSource& source, const Column& column, const RowView& row,
                     LongValueReader& longValues, vb::Variant& into);

} // namespace jetfile::detail
