#include "platform/jetfile/detail/Text.h"

#include <QtEndian>

#include <cstring>

namespace jetfile::detail {

bool decodeUtf16(const std::uint8_t* bytes, std::size_t length, QString& out) {
    if (length % 2 != 0) {
        return false;
    }
    const auto units = static_cast<qsizetype>(length / 2);
    out = QString(units, Qt::Uninitialized);
    auto* dst = reinterpret_cast<char16_t*>(out.data());
#if Q_BYTE_ORDER == Q_LITTLE_ENDIAN
    if (length != 0) {
        std::memcpy(dst, bytes, length);
    }
#else
    for (qsizetype i = 0; i < units; ++i) {
        dst[i] = static_cast<char16_t>(bytes[2 * i] | (bytes[2 * i + 1] << 8));
    }
#endif
    return true;
}

bool decodeText(const std::uint8_t* bytes, std::size_t length, QString& out) {
    if (length < 2 || bytes[0] != 0xFF || bytes[1] != 0xFE) {
        return decodeUtf16(bytes, length, out);
    }
    // Never more characters than bytes.
    out = QString(static_cast<qsizetype>(length), Qt::Uninitialized);
    auto* dst = reinterpret_cast<char16_t*>(out.data());
    qsizetype n = 0;
    bool compressed = true;
    std::size_t i = 2;
    while (i < length) {
        if (bytes[i] == 0) {
            compressed = !compressed;
            ++i;
        } else if (compressed) {
            dst[n++] = static_cast<char16_t>(bytes[i]);
            ++i;
        } else if (i + 1 < length) {
            dst[n++] = static_cast<char16_t>(bytes[i] | (bytes[i + 1] << 8));
            i += 2;
        } else {
            return false;
        }
    }
    out.truncate(n);
    return true;
}

QString guidText(const std::uint8_t* b) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    // Byte order of the text: Data1 (4 bytes LE), Data2 and Data3 (2 bytes LE), then 8 in order.
    static constexpr int kOrder[16] = {3, 2, 1, 0, 5, 4, 7, 6, 8, 9, 10, 11, 12, 13, 14, 15};
    QString text;
    text.reserve(38);
    text += u'{';
    for (int k = 0; k < 16; ++k) {
        if (k == 4 || k == 6 || k == 8 || k == 10) {
            text += u'-';
        }
        const std::uint8_t v = b[kOrder[k]];
        text += QLatin1Char(kHex[v >> 4]);
        text += QLatin1Char(kHex[v & 0xF]);
    }
    text += u'}';
    return text;
}

} // namespace jetfile::detail
