#pragma once

#include "platform/capicom/Bstr.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

// The component's password-based EncryptedData object, its Algorithm and their numbers. The
// system passes the numbers themselves (Algorithm.Name = 3, SetSecret(pw, 0), Encrypt(1)), so the
// members take them as they are and refuse the ones the component refuses. Failures raise
// capicom::Error (platform/capicom/Error.h) with the component's HRESULT.
namespace capicom {

// CAPICOM_ENCRYPTION_ALGORITHM
inline constexpr long CAPICOM_ENCRYPTION_ALGORITHM_RC2 = 0;
inline constexpr long CAPICOM_ENCRYPTION_ALGORITHM_RC4 = 1;
inline constexpr long CAPICOM_ENCRYPTION_ALGORITHM_DES = 2;
inline constexpr long CAPICOM_ENCRYPTION_ALGORITHM_3DES = 3;
inline constexpr long CAPICOM_ENCRYPTION_ALGORITHM_AES = 4;

// CAPICOM_ENCRYPTION_KEY_LENGTH
inline constexpr long CAPICOM_ENCRYPTION_KEY_LENGTH_MAXIMUM = 0;
inline constexpr long CAPICOM_ENCRYPTION_KEY_LENGTH_40_BITS = 1;
inline constexpr long CAPICOM_ENCRYPTION_KEY_LENGTH_56_BITS = 2;
inline constexpr long CAPICOM_ENCRYPTION_KEY_LENGTH_128_BITS = 3;
inline constexpr long CAPICOM_ENCRYPTION_KEY_LENGTH_192_BITS = 4;
inline constexpr long CAPICOM_ENCRYPTION_KEY_LENGTH_256_BITS = 5;

// CAPICOM_ENCODING_TYPE (ANY is 0xFFFFFFFF, -1 as a Long)
inline constexpr long CAPICOM_ENCODE_BASE64 = 0;
inline constexpr long CAPICOM_ENCODE_BINARY = 1;
inline constexpr long CAPICOM_ENCODE_ANY = -1;

// CAPICOM_SECRET_TYPE
inline constexpr long CAPICOM_SECRET_PASSWORD = 0;

// The cipher and key length an EncryptedData object encrypts with.
class Algorithm {
public:
    long Name() const noexcept { return m_name; }
    // Raises InvalidAlgorithm for a value that is not a CAPICOM_ENCRYPTION_ALGORITHM.
    void setName(long value);
    // Triple DES and DES ignore it: their keys have one length.
    long KeyLength() const noexcept { return m_keyLength; }
    // Raises InvalidKeyLength for a value that is not a CAPICOM_ENCRYPTION_KEY_LENGTH.
    void setKeyLength(long value);

private:
    long m_name = CAPICOM_ENCRYPTION_ALGORITHM_RC2;
    long m_keyLength = CAPICOM_ENCRYPTION_KEY_LENGTH_MAXIMUM;
};

// Encrypts its Content under a key derived from a password into the component's message, and
// decrypts such a message back into Content. Only DES and triple DES are available here: the
// other algorithms are refused with NotSupported, in both directions.
class EncryptedData {
public:
    // Gives `count` random bytes; the initialisation vector and the salt of each message.
    using RandomSource = std::function<QByteArray(qsizetype count)>;

    EncryptedData(); // OpenSSL's random generator
    explicit EncryptedData(RandomSource random);

    // The plain text: set before Encrypt, filled by Decrypt (which replaces it only when it
    // succeeds). A text is encrypted as its UTF-16LE bytes, a binary string byte for byte.
    const Bstr& Content() const noexcept { return m_content; }
    void setContent(Bstr value) { m_content = std::move(value); }

    capicom::Algorithm& Algorithm() noexcept { return m_algorithm; }
    const capicom::Algorithm& Algorithm() const noexcept { return m_algorithm; }

    // The password the key is derived from, taken as its UTF-16 code units. Raises InvalidArg
    // for a secret type other than CAPICOM_SECRET_PASSWORD.
    void SetSecret(const QString& newVal, long SecretType = CAPICOM_SECRET_PASSWORD);

    // The message for Content: with CAPICOM_ENCODE_BINARY a binary string of its DER bytes,
    // otherwise its Base64 text in lines of 64 (CAPICOM_ENCODE_ANY means Base64). A fresh IV and
    // salt every time. Raises EncodeInvalidType, EncryptNotInitialized (no Content),
    // EncryptNoSecret (no SetSecret yet) or NotSupported (an algorithm other than DES/3DES).
    Bstr Encrypt(long EncodingType = CAPICOM_ENCODE_BASE64) const;

    // Reads a message given as a binary string or as Base64 text (with or without its line ends)
    // and puts the plain text in Content. The algorithm comes from the message, not from the
    // Algorithm property. Raises EncryptNoSecret, EncryptInvalidType (not such a message),
    // NotSupported or BadAlgId (an algorithm not available), BadData (a wrong password or a
    // damaged cipher text). The message carries no check value: about one wrong password in 256
    // passes the padding check and gives garbage, as it does with the component.
    void Decrypt(const Bstr& EncryptedMessage);

private:
    RandomSource m_random;
    Bstr m_content;
    capicom::Algorithm m_algorithm;
    std::optional<QByteArray> m_secret; // the password's bytes; nothing before SetSecret
};

} // namespace capicom
