#include "platform/capicom/EncryptedData.h"

#include "platform/capicom/Base64.h"
#include "platform/capicom/Cipher.h"
#include "platform/capicom/Error.h"
#include "platform/capicom/Message.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace capicom {

namespace {

// The key length the message records for each cipher: CryptoAPI's KP_KEYLEN, parity included.
constexpr std::int64_t kDesKeyBits = 64;
constexpr std::int64_t kTripleDesKeyBits = 192;

[[noreturn]] void raise(Hr hr, const QString& detail = {}) {
    Raise(hr, QString::fromUtf16(kSourceEncryptedData), detail);
}

[[noreturn]] void raiseNotAvailable() {
    raise(Hr::NotSupported, u"(only DES and triple DES are available)"_s);
}

// The message in a binary string, or in Base64 text carried as a string.
detail::Message readMessage(const Bstr& encrypted) {
    if (auto message = detail::decodeMessage(encrypted.bytes())) {
        return std::move(*message);
    }
    if (encrypted.byteLength() % 2 == 0) {
        if (const auto der = detail::decodeBase64(encrypted.toString())) {
            if (auto message = detail::decodeMessage(*der)) {
                return std::move(*message);
            }
        }
    }
    raise(Hr::EncryptInvalidType);
}

bool isKnownAlgorithm(std::int64_t algId) {
    using namespace detail;
    return algId == kCalgRc2 || algId == kCalgRc4 || algId == kCalgAes128 || algId == kCalgAes192 ||
           algId == kCalgAes256;
}

} // namespace

void Algorithm::setName(long value) {
    if (value < CAPICOM_ENCRYPTION_ALGORITHM_RC2 || value > CAPICOM_ENCRYPTION_ALGORITHM_AES) {
        Raise(Hr::InvalidAlgorithm, QString::fromUtf16(kSourceAlgorithm));
    }
    m_name = value;
}

void Algorithm::setKeyLength(long value) {
    if (value < CAPICOM_ENCRYPTION_KEY_LENGTH_MAXIMUM ||
        value > CAPICOM_ENCRYPTION_KEY_LENGTH_256_BITS) {
        Raise(Hr::InvalidKeyLength, QString::fromUtf16(kSourceAlgorithm));
    }
    m_keyLength = value;
}

EncryptedData::EncryptedData() : EncryptedData(detail::randomBytes) {}

EncryptedData::EncryptedData(RandomSource random) : m_random(std::move(random)) {}

void EncryptedData::SetSecret(const QString& newVal, long SecretType) {
    if (SecretType != CAPICOM_SECRET_PASSWORD) {
        raise(Hr::InvalidArg);
    }
    m_secret = Bstr(newVal).bytes();
}

Bstr EncryptedData::Encrypt(long EncodingType) const {
    if (EncodingType != CAPICOM_ENCODE_BASE64 && EncodingType != CAPICOM_ENCODE_BINARY &&
        EncodingType != CAPICOM_ENCODE_ANY) {
        raise(Hr::EncodeInvalidType);
    }
    if (m_content.isEmpty()) {
        raise(Hr::EncryptNotInitialized);
    }
    if (!m_secret) {
        raise(Hr::EncryptNoSecret);
    }
    detail::Message message;
    switch (m_algorithm.Name()) {
    case CAPICOM_ENCRYPTION_ALGORITHM_3DES:
        message.algId = detail::kCalg3Des;
        message.keyLength = kTripleDesKeyBits;
        break;
    case CAPICOM_ENCRYPTION_ALGORITHM_DES:
        message.algId = detail::kCalgDes;
        message.keyLength = kDesKeyBits;
        break;
    default:
        raiseNotAvailable();
    }
    message.iv = m_random(detail::kBlockSize);
    message.salt = m_random(detail::kSaltSize);
    if (message.iv.size() != detail::kBlockSize || message.salt.size() != detail::kSaltSize) {
        raise(Hr::Internal, u"(short random data)"_s);
    }
    const QByteArray key = detail::tripleDesKey(message.algId, *m_secret, message.salt);
    message.cipherText = detail::encryptCbc(key, message.iv, m_content.bytes());
    const QByteArray der = detail::encodeMessage(message);
    if (EncodingType == CAPICOM_ENCODE_BINARY) {
        return Bstr::fromBytes(der);
    }
    return Bstr(detail::encodeBase64Lines(der));
}

void EncryptedData::Decrypt(const Bstr& EncryptedMessage) {
    if (!m_secret) {
        raise(Hr::EncryptNoSecret);
    }
    const detail::Message message = readMessage(EncryptedMessage);
    if (message.version != detail::kVersion20 && message.version != detail::kVersion21) {
        raise(Hr::EncryptInvalidType);
    }
    if (message.algId != detail::kCalg3Des && message.algId != detail::kCalgDes) {
        if (isKnownAlgorithm(message.algId)) {
            raiseNotAvailable();
        }
        raise(Hr::BadAlgId);
    }
    if (message.iv.size() != detail::kBlockSize) {
        raise(Hr::EncryptInvalidType);
    }
    const QByteArray key = detail::tripleDesKey(message.algId, *m_secret, message.salt);
    auto plain = detail::decryptCbc(key, message.iv, message.cipherText);
    if (!plain) {
        raise(Hr::BadData);
    }
    m_content = Bstr::fromBytes(std::move(*plain));
}

} // namespace capicom
