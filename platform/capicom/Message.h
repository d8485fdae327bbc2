#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <optional>

// The component's encrypted-data message: a small DER structure of its own, not PKCS #7.
//
//   SEQUENCE {
//     OBJECT IDENTIFIER 1.3.6.1.4.1.311.88.3          -- encrypted data
//     [0] EXPLICIT SEQUENCE {
//       OBJECT IDENTIFIER 1.3.6.1.4.1.311.88.3.1      -- encrypted content
//       [0] EXPLICIT SEQUENCE {
//         INTEGER version, INTEGER algId, INTEGER keyLength (bits, parity included),
//         OCTET STRING iv, OCTET STRING salt, OCTET STRING cipherText } } }
namespace capicom::detail {

// CryptoAPI algorithm ids, as the message stores them.
inline constexpr std::int64_t kCalgDes = 0x6601;
inline constexpr std::int64_t kCalgRc2 = 0x6602;
inline constexpr std::int64_t kCalg3Des = 0x6603;
inline constexpr std::int64_t kCalgRc4 = 0x6801;
inline constexpr std::int64_t kCalgAes128 = 0x660E;
inline constexpr std::int64_t kCalgAes192 = 0x660F;
inline constexpr std::int64_t kCalgAes256 = 0x6610;

// Both versions are found in messages written by the component; they are read alike.
inline constexpr std::int64_t kVersion20 = 0x00020000;
inline constexpr std::int64_t kVersion21 = 0x00020001;

struct Message {
    std::int64_t version = kVersion21;
    std::int64_t algId = 0;
    std::int64_t keyLength = 0;
    QByteArray iv;
    QByteArray salt;
    QByteArray cipherText;
};

QByteArray encodeMessage(const Message& message);

// The message the bytes hold, or nothing when they are not exactly one well-formed message.
// The content of the outer identifier is not checked: messages are found in use whose outer
// identifier carries one stray byte more.
std::optional<Message> decodeMessage(QByteArrayView der);

} // namespace capicom::detail
