#pragma once

#include "platform/ado/sqlserver/odbc/Handles.h"
#include "platform/vb/Variant.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace odbc {

// The value of a result column in the current row, read as the ADO type dictates. Columns are
// read in ascending order, each once (the driver allows no more).
vb::Variant readValue(const Statement& stmt, SQLUSMALLINT column, int adoType);

// A Command parameter as ADO describes it: type, size, precision and scale, value.
struct ParameterValue {
    int adoType = 0;
    long size = 0;
    int precision = 0;
    int scale = 0;
    vb::Variant value;
};

// How one parameter is bound: the C type of the buffer and the SQL type the driver declares.
struct Binding {
    SQLSMALLINT cType = 0;
    SQLSMALLINT sqlType = 0;
    SQLULEN columnSize = 0;
    SQLSMALLINT decimalDigits = 0;
    friend bool operator==(const Binding&, const Binding&) = default;
};

// Longest text and binary values the driver declares with a length; longer ones go as the
// (max) types, since a longer declared length would be cut to this one.
inline constexpr long kMaxBoundedChars = 4000;
inline constexpr long kMaxBoundedBytes = 8000;

// The parameters of one execution, with buffers that stay put until it has finished.
class BoundParameters {
public:
    BoundParameters();
    ~BoundParameters();
    BoundParameters(const BoundParameters&) = delete;
    BoundParameters& operator=(const BoundParameters&) = delete;
    BoundParameters(BoundParameters&&) = delete;
    BoundParameters& operator=(BoundParameters&&) = delete;

    // Converts and binds each value; throws Failure (0x80040E07) when a value does not convert
    // to its parameter's type, naming the parameter.
    void bind(const Statement& stmt, const std::vector<ParameterValue>& parameters);
    const std::vector<Binding>& bindings() const noexcept { return m_bindings; }

private:
    struct Slot;
    std::vector<std::unique_ptr<Slot>> m_slots;
    std::vector<Binding> m_bindings;
};

// Exact decimal text ("-1234.5600") of a numeric value, for currency and numeric parameters;
// empty when the value is not a number.
std::optional<QString> decimalText(const vb::Variant& value);
// Money text to ten-thousandths and back, never through a double.
std::optional<vb::Currency> currencyFromText(QStringView text);
QString currencyText(vb::Currency value);

} // namespace odbc
