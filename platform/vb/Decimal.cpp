#include "platform/vb/Decimal.h"

#include <array>

namespace vb {
namespace {

// The 96-bit magnitude as three 32-bit words, most significant first, for schoolbook arithmetic.
using Words = std::array<std::uint32_t, 3>;

Words toWords(const Decimal& d) {
    return {d.hi, static_cast<std::uint32_t>(d.lo >> 32), static_cast<std::uint32_t>(d.lo)};
}

std::uint32_t divideBy10(Words& w) {
    std::uint64_t rest = 0;
    for (auto& word : w) {
        const std::uint64_t cur = (rest << 32) | word;
        word = static_cast<std::uint32_t>(cur / 10);
        rest = cur % 10;
    }
    return static_cast<std::uint32_t>(rest);
}

// w = w * 10 + digit; false on overflow past 96 bits.
bool multiplyAdd(Words& w, std::uint32_t digit) {
    std::uint64_t carry = digit;
    for (int i = 2; i >= 0; --i) {
        const std::uint64_t cur = std::uint64_t{w[static_cast<std::size_t>(i)]} * 10 + carry;
        w[static_cast<std::size_t>(i)] = static_cast<std::uint32_t>(cur);
        carry = cur >> 32;
    }
    return carry == 0;
}

bool allZero(const Words& w) { return w[0] == 0 && w[1] == 0 && w[2] == 0; }

} // namespace

QString Decimal::toString() const {
    Words w = toWords(*this);
    QString digits;
    do {
        digits.prepend(QChar(u'0' + static_cast<char16_t>(divideBy10(w))));
    } while (!allZero(w));
    while (digits.size() <= scale) {
        digits.prepend(u'0');
    }
    if (scale > 0) {
        digits.insert(digits.size() - scale, u'.');
    }
    if (negative && !isZero()) {
        digits.prepend(u'-');
    }
    return digits;
}

double Decimal::toDouble() const noexcept {
    double value = static_cast<double>(hi) * 18446744073709551616.0 + static_cast<double>(lo);
    for (int i = 0; i < scale; ++i) {
        value /= 10.0;
    }
    return negative ? -value : value;
}

std::optional<Decimal> Decimal::parse(QStringView text) {
    text = text.trimmed();
    Decimal result;
    if (!text.isEmpty() && (text.front() == u'-' || text.front() == u'+')) {
        result.negative = text.front() == u'-';
        text = text.mid(1);
    }
    Words w{0, 0, 0};
    bool seenPoint = false;
    bool seenDigit = false;
    for (const QChar c : text) {
        if (c == u'.' && !seenPoint) {
            seenPoint = true;
            continue;
        }
        if (c < u'0' || c > u'9') {
            return std::nullopt;
        }
        if (!multiplyAdd(w, static_cast<std::uint32_t>(c.unicode() - u'0'))) {
            return std::nullopt;
        }
        seenDigit = true;
        if (seenPoint) {
            if (result.scale == kMaxScale) {
                return std::nullopt;
            }
            ++result.scale;
        }
    }
    if (!seenDigit) {
        return std::nullopt;
    }
    result.hi = w[0];
    result.lo = (std::uint64_t{w[1]} << 32) | w[2];
    return result;
}

} // namespace vb
