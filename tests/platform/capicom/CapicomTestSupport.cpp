#include "tests/platform/capicom/CapicomTestSupport.h"

#include <QCryptographicHash>

#include <openssl/evp.h>

#include <memory>

namespace capicom {
void PrintTo(const Bstr& s, std::ostream* os) {
    *os << "Bstr(0x" << s.bytes().toHex().toStdString() << ')';
}
} // namespace capicom

namespace byhand {

namespace {

QByteArray sha1(const QByteArray& data) {
    return QCryptographicHash::hash(data, QCryptographicHash::Sha1);
}

// DER length field: one byte under 128, then 81 xx, then 82 xx xx.
QByteArray lengthField(qsizetype n) {
    if (n < 128) {
        return QByteArray(1, static_cast<char>(n));
    }
    if (n < 256) {
        return QByteArray("\x81") + static_cast<char>(n);
    }
    return QByteArray("\x82") + static_cast<char>(n >> 8) + static_cast<char>(n & 0xFF);
}

// T(n) of the size arithmetic: tag, length field, content.
qsizetype t(qsizetype n) {
    return 1 + lengthField(n).size() + n;
}

} // namespace

QByteArray utf16le(const QString& text) {
    QByteArray out;
    for (const QChar c : text) {
        out += static_cast<char>(c.unicode() & 0xFF);
        out += static_cast<char>(c.unicode() >> 8);
    }
    return out;
}

QByteArray tripleDesKey(const QString& password, const QByteArray& salt) {
    const QByteArray h = sha1(utf16le(password) + salt);
    QByteArray b1(64, '\x36');
    QByteArray b2(64, '\x5c');
    for (int i = 0; i < h.size(); ++i) {
        b1[i] = static_cast<char>(b1[i] ^ h[i]);
        b2[i] = static_cast<char>(b2[i] ^ h[i]);
    }
    return (sha1(b1) + sha1(b2)).left(24);
}

QByteArray ede3Cbc(bool encrypt, const QByteArray& key, const QByteArray& iv,
                   const QByteArray& data) {
    std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)> ctx(EVP_CIPHER_CTX_new(),
                                                                        EVP_CIPHER_CTX_free);
    QByteArray out(data.size() + 8, '\0');
    int n1 = 0;
    int n2 = 0;
    auto* o = reinterpret_cast<unsigned char*>(out.data());
    EVP_CipherInit_ex(ctx.get(), EVP_des_ede3_cbc(), nullptr,
                      reinterpret_cast<const unsigned char*>(key.data()),
                      reinterpret_cast<const unsigned char*>(iv.data()), encrypt ? 1 : 0);
    EVP_CipherUpdate(ctx.get(), o, &n1, reinterpret_cast<const unsigned char*>(data.data()),
                     static_cast<int>(data.size()));
    if (EVP_CipherFinal_ex(ctx.get(), o + n1, &n2) != 1) {
        return "<bad padding>";
    }
    return out.left(n1 + n2);
}

QByteArray message(const QString& password, const QString& text, const QByteArray& iv,
                   const QByteArray& salt) {
    const QByteArray c = ede3Cbc(true, tripleDesKey(password, salt), iv, utf16le(text));
    const QByteArray fields = QByteArray::fromHex("0203020001"
                                                  "02026603"
                                                  "020200c0"
                                                  "0408") +
                              iv + QByteArray::fromHex("0410") + salt + '\x04' +
                              lengthField(c.size()) + c;
    const qsizetype innermost = 41 + t(c.size());
    const qsizetype middle = 12 + t(innermost + 1 + lengthField(innermost).size());
    const QByteArray innerSeq = '\x30' + lengthField(innermost) + fields;
    const QByteArray innerWrap = '\xa0' + lengthField(innerSeq.size()) + innerSeq;
    const QByteArray midSeq =
        '\x30' + lengthField(middle) + QByteArray::fromHex("060a2b060104018237580301") + innerWrap;
    const QByteArray outerWrap = '\xa0' + lengthField(midSeq.size()) + midSeq;
    const qsizetype outer = 11 + t(midSeq.size());
    if (fields.size() != innermost || midSeq.size() != t(middle)) {
        return "<size arithmetic disagrees>";
    }
    return '\x30' + lengthField(outer) + QByteArray::fromHex("06092b0601040182375803") + outerWrap;
}

} // namespace byhand

capicom::EncryptedData::RandomSource fixedRandom() {
    return [](qsizetype count) { return count == kIv.size() ? kIv : kSalt; };
}
