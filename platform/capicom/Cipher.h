#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <optional>

// The password-based key and the block cipher under the encrypted-data message, on OpenSSL.
// Failures of the library itself raise capicom::Error (Internal).
namespace capicom::detail {

inline constexpr qsizetype kBlockSize = 8; // DES and triple DES
inline constexpr qsizetype kSaltSize = 16; // what the component writes
inline constexpr qsizetype kHashSize = 20; // SHA-1
inline constexpr qsizetype kTripleDesKeySize = 24;

// SHA-1 over the password's bytes (UTF-16LE, no terminator) followed by the salt.
QByteArray passwordHash(QByteArrayView password, QByteArrayView salt);

// CryptDeriveKey's stretching of a SHA-1 hash for a key longer than the hash:
// SHA-1(64 bytes of 0x36 with the hash XORed in) then SHA-1(the same with 0x5C): 40 bytes.
// Each buffer is hashed alone; this is not HMAC.
QByteArray expandHash(QByteArrayView hash);

// The 24-byte triple-DES key for an algorithm id of the message (kCalgDes or kCalg3Des).
// Triple DES takes the first 24 bytes of the stretched hash. Single DES takes the first 8 bytes
// of the hash itself, given three times: encrypt-decrypt-encrypt under one key is DES, so both
// run through the same cipher, and no legacy OpenSSL provider is needed.
QByteArray tripleDesKey(std::int64_t algId, QByteArrayView password, QByteArrayView salt);

// Triple DES in CBC mode with PKCS #5 padding (always 1 to 8 bytes).
QByteArray encryptCbc(QByteArrayView key, QByteArrayView iv, QByteArrayView plain);
// Nothing when the cipher text is not whole blocks or its padding does not check out: what a
// wrong password nearly always gives.
std::optional<QByteArray> decryptCbc(QByteArrayView key, QByteArrayView iv,
                                     QByteArrayView cipherText);

// Bytes from OpenSSL's random generator.
QByteArray randomBytes(qsizetype count);

} // namespace capicom::detail
