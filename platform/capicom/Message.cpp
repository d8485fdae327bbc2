#include "platform/capicom/Message.h"

#include <array>

namespace capicom::detail {

namespace {

constexpr std::uint8_t kTagInteger = 0x02;
constexpr std::uint8_t kTagOctetString = 0x04;
constexpr std::uint8_t kTagOid = 0x06;
constexpr std::uint8_t kTagSequence = 0x30;
constexpr std::uint8_t kTagExplicit0 = 0xA0; // [0], context-specific, constructed

// 1.3.6.1.4.1.311.88.3 and 1.3.6.1.4.1.311.88.3.1 in their DER content form.
constexpr std::array<std::uint8_t, 9> kOidEncryptedData = {0x2B, 0x06, 0x01, 0x04, 0x01,
                                                           0x82, 0x37, 0x58, 0x03};
constexpr std::array<std::uint8_t, 10> kOidEncryptedContent = {0x2B, 0x06, 0x01, 0x04, 0x01,
                                                               0x82, 0x37, 0x58, 0x03, 0x01};

// An INTEGER longer than this does not fit the fields of the message.
constexpr qsizetype kMaxIntegerBytes = 8;
// A length field of more than four bytes would describe more than any message holds.
constexpr int kMaxLengthBytes = 4;

template <std::size_t N> QByteArrayView bytesOf(const std::array<std::uint8_t, N>& a) {
    return QByteArrayView(a.data(), static_cast<qsizetype>(N));
}

// Minimal DER: short form under 128, else 0x80 | count followed by the big-endian length.
void appendLength(QByteArray& out, qsizetype length) {
    if (length < 0x80) {
        out.append(static_cast<char>(length));
        return;
    }
    QByteArray digits;
    for (auto rest = static_cast<std::uint64_t>(length); rest != 0; rest >>= 8) {
        digits.prepend(static_cast<char>(rest & 0xFF));
    }
    out.append(static_cast<char>(0x80 | digits.size()));
    out.append(digits);
}

QByteArray element(std::uint8_t tag, QByteArrayView content) {
    QByteArray out;
    out.reserve(content.size() + 6);
    out.append(static_cast<char>(tag));
    appendLength(out, content.size());
    out.append(content);
    return out;
}

// Minimal big-endian two's complement: 192 is 00 C0, 64 is 40, 0x00020001 is 02 00 01.
QByteArray integer(std::int64_t value) {
    QByteArray bytes;
    auto bits = static_cast<std::uint64_t>(value);
    for (int i = 0; i < 8; ++i, bits >>= 8) {
        bytes.prepend(static_cast<char>(bits & 0xFF));
    }
    while (bytes.size() > 1) {
        const auto first = static_cast<std::uint8_t>(bytes[0]);
        const bool nextHigh = (static_cast<std::uint8_t>(bytes[1]) & 0x80) != 0;
        if ((first == 0x00 && !nextHigh) || (first == 0xFF && nextHigh)) {
            bytes.remove(0, 1);
        } else {
            break;
        }
    }
    return element(kTagInteger, bytes);
}

// Walks DER elements inside one bounded range; every length is checked against what is left.
class Reader {
public:
    explicit Reader(QByteArrayView data) : m_data(data) {}

    bool atEnd() const { return m_pos == m_data.size(); }

    // The content of the next element when it has this tag.
    std::optional<QByteArrayView> next(std::uint8_t tag) {
        qsizetype pos = m_pos;
        if (m_data.size() - pos < 2 || static_cast<std::uint8_t>(m_data[pos]) != tag) {
            return std::nullopt;
        }
        ++pos;
        const auto first = static_cast<std::uint8_t>(m_data[pos++]);
        std::uint64_t length = first;
        if (first >= 0x80) {
            const int count = first & 0x7F; // 0: indefinite length, which DER does not allow
            if (count == 0 || count > kMaxLengthBytes || m_data.size() - pos < count) {
                return std::nullopt;
            }
            length = 0;
            for (int i = 0; i < count; ++i) {
                length = (length << 8) | static_cast<std::uint8_t>(m_data[pos++]);
            }
        }
        if (length > static_cast<std::uint64_t>(m_data.size() - pos)) {
            return std::nullopt;
        }
        m_pos = pos + static_cast<qsizetype>(length);
        return m_data.sliced(pos, static_cast<qsizetype>(length));
    }

    std::optional<std::int64_t> nextInteger() {
        const auto content = next(kTagInteger);
        if (!content || content->isEmpty() || content->size() > kMaxIntegerBytes) {
            return std::nullopt;
        }
        // Sign-extend from the first byte, then shift the rest in.
        std::uint64_t bits = (static_cast<std::uint8_t>((*content)[0]) & 0x80) ? ~0ULL : 0ULL;
        for (const char c : *content) {
            bits = (bits << 8) | static_cast<std::uint8_t>(c);
        }
        return static_cast<std::int64_t>(bits);
    }

    std::optional<QByteArray> nextOctets() {
        const auto content = next(kTagOctetString);
        return content ? std::optional<QByteArray>(content->toByteArray()) : std::nullopt;
    }

private:
    QByteArrayView m_data;
    qsizetype m_pos = 0;
};

// The content of the one element `data` consists of, with nothing after it.
std::optional<QByteArrayView> only(QByteArrayView data, std::uint8_t tag) {
    Reader reader(data);
    auto content = reader.next(tag);
    return content && reader.atEnd() ? content : std::nullopt;
}

std::optional<Message> decodeFields(QByteArrayView fields) {
    Reader reader(fields);
    Message message;
    const auto version = reader.nextInteger();
    const auto algId = reader.nextInteger();
    const auto keyLength = reader.nextInteger();
    auto iv = reader.nextOctets();
    auto salt = reader.nextOctets();
    auto cipherText = reader.nextOctets();
    if (!version || !algId || !keyLength || !iv || !salt || !cipherText || !reader.atEnd()) {
        return std::nullopt;
    }
    message.version = *version;
    message.algId = *algId;
    message.keyLength = *keyLength;
    message.iv = std::move(*iv);
    message.salt = std::move(*salt);
    message.cipherText = std::move(*cipherText);
    return message;
}

} // namespace

QByteArray encodeMessage(const Message& message) {
    const QByteArray fields = integer(message.version) + integer(message.algId) +
                              integer(message.keyLength) + element(kTagOctetString, message.iv) +
                              element(kTagOctetString, message.salt) +
                              element(kTagOctetString, message.cipherText);
    const QByteArray content = element(kTagOid, bytesOf(kOidEncryptedContent)) +
                               element(kTagExplicit0, element(kTagSequence, fields));
    const QByteArray outer = element(kTagOid, bytesOf(kOidEncryptedData)) +
                             element(kTagExplicit0, element(kTagSequence, content));
    return element(kTagSequence, outer);
}

std::optional<Message> decodeMessage(QByteArrayView der) {
    const auto outer = only(der, kTagSequence);
    if (!outer) {
        return std::nullopt;
    }
    Reader outerReader(*outer);
    const auto outerOid = outerReader.next(kTagOid);
    const auto outerWrap = outerReader.next(kTagExplicit0);
    if (!outerOid || !outerWrap || !outerReader.atEnd()) {
        return std::nullopt;
    }
    const auto content = only(*outerWrap, kTagSequence);
    if (!content) {
        return std::nullopt;
    }
    Reader contentReader(*content);
    const auto contentOid = contentReader.next(kTagOid);
    const auto contentWrap = contentReader.next(kTagExplicit0);
    if (!contentOid || *contentOid != bytesOf(kOidEncryptedContent) || !contentWrap ||
        !contentReader.atEnd()) {
        return std::nullopt;
    }
    const auto fields = only(*contentWrap, kTagSequence);
    return fields ? decodeFields(*fields) : std::nullopt;
}

} // namespace capicom::detail
