#include "platform/capicom/Cipher.h"

#include "platform/capicom/Error.h"
#include "platform/capicom/Message.h"

#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/rand.h>

#include <limits>
#include <memory>

using namespace Qt::StringLiterals;

namespace capicom::detail {

namespace {

struct CipherCtxFree {
    void operator()(EVP_CIPHER_CTX* ctx) const noexcept { EVP_CIPHER_CTX_free(ctx); }
};
struct MdCtxFree {
    void operator()(EVP_MD_CTX* ctx) const noexcept { EVP_MD_CTX_free(ctx); }
};
using CipherCtx = std::unique_ptr<EVP_CIPHER_CTX, CipherCtxFree>;
using MdCtx = std::unique_ptr<EVP_MD_CTX, MdCtxFree>;

constexpr int kPadBlockSize = 64; // SHA-1's block, the size of CryptDeriveKey's buffers

// OpenSSL's reason for the last failure of this thread, which is then cleared.
[[noreturn]] void raiseOpenSsl(const char* step) {
    char reason[256] = {};
    ERR_error_string_n(ERR_get_error(), reason, sizeof reason);
    ERR_clear_error();
    Raise(Hr::Internal, QString::fromUtf16(kSourceEncryptedData),
          u"(%1: %2)"_s.arg(QString::fromLatin1(step), QString::fromLatin1(reason)));
}

const unsigned char* bytes(QByteArrayView view) {
    return reinterpret_cast<const unsigned char*>(view.data());
}

QByteArray sha1(QByteArrayView first, QByteArrayView second = {}) {
    MdCtx ctx(EVP_MD_CTX_new());
    QByteArray digest(kHashSize, '\0');
    unsigned int size = 0;
    if (!ctx || EVP_DigestInit_ex(ctx.get(), EVP_sha1(), nullptr) != 1 ||
        EVP_DigestUpdate(ctx.get(), first.data(), static_cast<size_t>(first.size())) != 1 ||
        EVP_DigestUpdate(ctx.get(), second.data(), static_cast<size_t>(second.size())) != 1 ||
        EVP_DigestFinal_ex(ctx.get(), reinterpret_cast<unsigned char*>(digest.data()), &size) !=
            1 ||
        size != kHashSize) {
        raiseOpenSsl("SHA-1");
    }
    return digest;
}

// One pass of triple DES in CBC mode with padding, in either direction; false when the final
// block fails (bad padding, or a length that is not whole blocks).
bool runCbc(bool encrypt, QByteArrayView key, QByteArrayView iv, QByteArrayView in,
            QByteArray& out) {
    if (in.size() > std::numeric_limits<int>::max() - kBlockSize) {
        Raise(Hr::Internal, QString::fromUtf16(kSourceEncryptedData), u"(content too long)"_s);
    }
    CipherCtx ctx(EVP_CIPHER_CTX_new());
    if (!ctx || key.size() != kTripleDesKeySize || iv.size() != kBlockSize ||
        EVP_CipherInit_ex(ctx.get(), EVP_des_ede3_cbc(), nullptr, bytes(key), bytes(iv),
                          encrypt ? 1 : 0) != 1) {
        raiseOpenSsl("DES-EDE3-CBC");
    }
    out.resize(in.size() + kBlockSize);
    auto* target = reinterpret_cast<unsigned char*>(out.data());
    int written = 0;
    int last = 0;
    if (EVP_CipherUpdate(ctx.get(), target, &written, bytes(in), static_cast<int>(in.size())) !=
        1) {
        raiseOpenSsl("DES-EDE3-CBC");
    }
    if (EVP_CipherFinal_ex(ctx.get(), target + written, &last) != 1) {
        ERR_clear_error();
        out.clear();
        return false;
    }
    out.resize(written + last);
    return true;
}

} // namespace

QByteArray passwordHash(QByteArrayView password, QByteArrayView salt) {
    return sha1(password, salt);
}

QByteArray expandHash(QByteArrayView hash) {
    QByteArray inner(kPadBlockSize, '\x36');
    QByteArray outer(kPadBlockSize, '\x5C');
    for (qsizetype i = 0; i < hash.size() && i < kPadBlockSize; ++i) {
        inner[i] = static_cast<char>(inner[i] ^ hash[i]);
        outer[i] = static_cast<char>(outer[i] ^ hash[i]);
    }
    return sha1(inner) + sha1(outer);
}

QByteArray tripleDesKey(std::int64_t algId, QByteArrayView password, QByteArrayView salt) {
    const QByteArray hash = passwordHash(password, salt);
    if (algId == kCalgDes) {
        const QByteArray desKey = hash.first(kBlockSize);
        return desKey + desKey + desKey;
    }
    return expandHash(hash).first(kTripleDesKeySize);
}

QByteArray encryptCbc(QByteArrayView key, QByteArrayView iv, QByteArrayView plain) {
    QByteArray out;
    if (!runCbc(true, key, iv, plain, out)) {
        raiseOpenSsl("DES-EDE3-CBC");
    }
    return out;
}

std::optional<QByteArray> decryptCbc(QByteArrayView key, QByteArrayView iv,
                                     QByteArrayView cipherText) {
    if (cipherText.isEmpty() || cipherText.size() % kBlockSize != 0) {
        return std::nullopt;
    }
    QByteArray out;
    return runCbc(false, key, iv, cipherText, out) ? std::optional<QByteArray>(out) : std::nullopt;
}

QByteArray randomBytes(qsizetype count) {
    QByteArray out(count, '\0');
    if (RAND_bytes(reinterpret_cast<unsigned char*>(out.data()), static_cast<int>(count)) != 1) {
        raiseOpenSsl("RAND_bytes");
    }
    return out;
}

} // namespace capicom::detail
