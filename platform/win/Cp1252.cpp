#include "platform/win/Cp1252.h"

#include <array>

namespace win {
namespace {

// 0x80..0x9F: where windows-1252 departs from Latin-1. Holes keep their own number.
constexpr std::array<char16_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 80-87
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, // 88-8F
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 90-97
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178, // 98-9F
};

constexpr char16_t toUnicode(unsigned char b) noexcept {
    return (b >= 0x80 && b <= 0x9F) ? kHigh[b - 0x80] : char16_t(b);
}

} // namespace

char cp1252Byte(QChar c) noexcept {
    const char16_t u = c.unicode();
    if (u < 0x80 || (u >= 0xA0 && u <= 0xFF)) {
        return static_cast<char>(u);
    }
    for (std::size_t i = 0; i < kHigh.size(); ++i) {
        if (kHigh[i] == u) {
            return static_cast<char>(0x80 + i);
        }
    }
    return '?';
}

QString fromCp1252(QByteArrayView bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    QChar* out = text.data();
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        out[i] = QChar(toUnicode(static_cast<unsigned char>(bytes[i])));
    }
    return text;
}

QByteArray toCp1252(QStringView text) {
    QByteArray bytes(text.size(), Qt::Uninitialized);
    for (qsizetype i = 0; i < text.size(); ++i) {
        bytes[i] = cp1252Byte(text[i]);
    }
    return bytes;
}

} // namespace win
