#include "platform/jetfile/detail/Text.h"

#include <QtEndian>

#include <cstring>

namespace jetfile::detail {

namespace {

// `out` sized to `units` characters, its contents undefined: a string of its own with room
// enough is kept, so that text decoded again and again into one string allocates once.
void makeRoom(QString& out, qsizetype units) {
    if (out.isDetached() && out.capacity() >= units) {
        if (out.size() != units) {
            out.resize(units);
        }
    } else {
        out = QString(units, Qt::Uninitialized);
    }
}

} // namespace

bool decodeUtf16(const std::uint8_t* bytes, std::size_t length, QString& out) {
    if (length % 2 != 0) {
        return false;
    }
    const auto units = static_cast<qsizetype>(length / 2);
    makeRoom(out, units);
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
    // Never more characters than bytes after the two of the mark; as many when no 0x00
    // switches to two-byte units, the common case, so that the string rarely shrinks.
    makeRoom(out, static_cast<qsizetype>(length - 2));
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
    if (n != out.size()) {
        out.truncate(n);
    }
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
