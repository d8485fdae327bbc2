#include "platform/capicom/Bstr.h"

#include <utility>

namespace capicom {

Bstr::Bstr(const QString& text) {
    m_bytes.reserve(text.size() * 2);
    for (const QChar c : text) {
        const char16_t unit = c.unicode();
        m_bytes.append(static_cast<char>(unit & 0xFF));
        m_bytes.append(static_cast<char>(unit >> 8));
    }
}

Bstr Bstr::fromBytes(QByteArray bytes) {
    Bstr result;
    result.m_bytes = std::move(bytes);
    return result;
}

QString Bstr::toString() const {
    QString text;
    const qsizetype units = m_bytes.size() / 2;
    text.reserve(units);
    for (qsizetype i = 0; i < units; ++i) {
        const auto low = static_cast<unsigned char>(m_bytes[2 * i]);
        const auto high = static_cast<unsigned char>(m_bytes[2 * i + 1]);
        text.append(QChar(static_cast<char16_t>(low | (high << 8))));
    }
    return text;
}

} // namespace capicom
