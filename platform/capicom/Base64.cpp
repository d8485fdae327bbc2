#include "platform/capicom/Base64.h"

namespace capicom::detail {

namespace {

constexpr qsizetype kLineLength = 64;

bool isBlank(QChar c) {
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

bool isBase64Char(QChar c) {
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9') ||
           c == u'+' || c == u'/';
}

} // namespace

QString encodeBase64Lines(QByteArrayView data) {
    const QByteArray plain = data.toByteArray().toBase64();
    QString text;
    text.reserve(plain.size() + (plain.size() / kLineLength + 1) * 2);
    for (qsizetype at = 0; at < plain.size(); at += kLineLength) {
        text += QString::fromLatin1(plain.mid(at, kLineLength));
        text += u"\r\n";
    }
    return text;
}

std::optional<QByteArray> decodeBase64(QStringView text) {
    QByteArray compact;
    compact.reserve(text.size());
    qsizetype padding = 0;
    for (const QChar c : text) {
        if (isBlank(c)) {
            continue;
        }
        if (c == u'=') {
            ++padding;
        } else if (!isBase64Char(c) || padding > 0) {
            return std::nullopt; // a stray character, or data after the padding
        }
        compact.append(static_cast<char>(c.unicode()));
    }
    const qsizetype data = compact.size() - padding;
    // A last group of one character cannot be; padding only ever fills the last group.
    if (data % 4 == 1 || padding > 2 || (padding > 0 && compact.size() % 4 != 0)) {
        return std::nullopt;
    }
    auto decoded = QByteArray::fromBase64Encoding(compact, QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded) {
        return std::nullopt;
    }
    return std::move(decoded.decoded);
}

} // namespace capicom::detail
