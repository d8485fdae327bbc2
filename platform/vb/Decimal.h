#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace vb {

// A scaled 96-bit integer, as the Decimal subtype and Jet's numeric columns hold it:
// value = (-1 if negative) * (hi * 2^64 + lo) / 10^scale, scale 0..28.
struct Decimal {
    std::uint64_t lo = 0;
    std::uint32_t hi = 0;
    std::uint8_t scale = 0;
    bool negative = false;

    static constexpr std::uint8_t kMaxScale = 28;

    bool isZero() const noexcept { return lo == 0 && hi == 0; }
    // Plain decimal text with '.' as separator, trailing zeros of the scale kept: "-12.50".
    QString toString() const;
    double toDouble() const noexcept;
    // Parses "-123.4500" (no exponent, no grouping); empty when malformed or too large.
    static std::optional<Decimal> parse(QStringView text);

    friend bool operator==(const Decimal&, const Decimal&) = default;
};

} // namespace vb
