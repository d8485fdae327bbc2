#pragma once

#include "platform/vb/Variant.h"

#include <QString>

#include <optional>

namespace ado {

// Orders two values the way filters and Jet's comparisons do: numbers (booleans as -1 and 0) by
// value, text without regard to case, dates by time, text against a number or date converted
// first. Empty counts as 0 or "". Null, or values that cannot be compared, give no order.
std::optional<int> compareValues(const vb::Variant& a, const vb::Variant& b);

// A date written as mm/dd/yyyy or yyyy-mm-dd, with an optional hh:mm[:ss]; as Jet's #...# and
// a filter's #...# literals are read. Empty when it is not such a date.
std::optional<QDateTime> parseDateLiteral(QStringView text);

} // namespace ado
