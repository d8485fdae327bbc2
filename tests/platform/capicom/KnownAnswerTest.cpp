// The published vectors and the documented byte layout of a triple-DES message.
#include "platform/capicom/Cipher.h"
#include "platform/capicom/EncryptedData.h"
#include "platform/capicom/Error.h"
#include "platform/capicom/Utilities.h"

#include "tests/platform/capicom/CapicomTestSupport.h"

#include <QCryptographicHash>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace capicom;

namespace {

// A DES message written by the component itself, password "lovebread", plain text "hello world",
// as it printed it: version 0x00020001, 99 bytes, so the last Base64 line has 4 characters.
const QString kDesLines[] = {u"MGEGCSsGAQQBgjdYA6BUMFIGCisGAQQBgjdYAwGgRDBCAgMCAAECAmYBAgFABAgq"_s,
                             u"GpllWj9cswQQh/fnBUZ6ijwKDTH9DLZmBgQYmfaZ3VFyS/lq391oDtjlcRFGnXpx"_s,
                             u"lG7o"_s};
const QString kDesBase64 =
    kDesLines[0] + u"\r\n"_s + kDesLines[1] + u"\r\n"_s + kDesLines[2] + u"\r\n"_s;

QByteArray desBlob() {
    return Utilities().Base64Decode(kDesBase64).bytes();
}

QString decryptWith(const QString& password, const Bstr& message) {
    EncryptedData data;
    data.SetSecret(password, CAPICOM_SECRET_PASSWORD);
    data.Decrypt(message);
    return data.Content().toString();
}

TEST(CapicomKnownAnswer, DesMessageOfTheComponentDecryptsInEveryForm) {
    const QByteArray blob = desBlob();
    ASSERT_EQ(blob.size(), 99);
    EncryptedData data;
    data.SetSecret(u"lovebread"_s);
    data.Decrypt(Bstr::fromBytes(blob));
    // The decrypted bytes less their padding 02 02: UTF-16LE, no terminator.
    EXPECT_EQ(data.Content().bytes(),
              QByteArray::fromHex("680065006c006c006f00200077006f0072006c006400"));
    EXPECT_EQ(data.Content().toString(), u"hello world"_s);
    EXPECT_EQ(decryptWith(u"lovebread"_s, kDesBase64), u"hello world"_s);
    EXPECT_EQ(decryptWith(u"lovebread"_s, kDesLines[0] + kDesLines[1] + kDesLines[2]),
              u"hello world"_s);
    // The Base64 layout of the component, line for line, on the same odd-length blob.
    EXPECT_EQ(Utilities().Base64Encode(Bstr::fromBytes(blob)), kDesBase64);
}

TEST(CapicomKnownAnswer, DesMessageOfTheOlderVersionAndWithAStrayOidByteDecrypts) {
    QByteArray older = desBlob();
    ASSERT_EQ(older.mid(33, 5), QByteArray::fromHex("0203020001"));
    older[37] = 0x00; // version 0x00020000
    EXPECT_EQ(decryptWith(u"lovebread"_s, Bstr::fromBytes(older)), u"hello world"_s);

    // An outer identifier of 10 bytes instead of 9, the outer length one more.
    QByteArray stray = desBlob();
    stray[1] = static_cast<char>(stray[1] + 1);
    stray[3] = 0x0A;
    stray.insert(13, '\xF9');
    EXPECT_EQ(decryptWith(u"lovebread"_s, Bstr::fromBytes(stray)), u"hello world"_s);
}

TEST(CapicomKnownAnswer, DesMessageUnderAnotherPasswordFailsWithBadData) {
    try {
        decryptWith(u"Lovebread"_s, kDesBase64);
        FAIL() << "decrypted under a wrong password";
    } catch (const vb::RuntimeError& e) { // what the edge of the nx members catches
        const auto* error = dynamic_cast<const Error*>(&e);
        ASSERT_NE(error, nullptr);
        EXPECT_EQ(error->code(), Hr::BadData);
        EXPECT_EQ(error->hresult(), -2146893819);
        EXPECT_EQ(error->description(), u"Bad Data."_s);
        EXPECT_EQ(error->source(), u"CAPICOM.EncryptedData"_s);
        EXPECT_EQ(vb::Err().Number, -2146893819); // as a failing COM call leaves it
        EXPECT_EQ(vb::Err().Description, u"Bad Data."_s);
    }
}

TEST(CapicomKnownAnswer, HashStretchingMatchesCryptoApi) {
    const QByteArray h = QCryptographicHash::hash("Test", QCryptographicHash::Sha1);
    EXPECT_EQ(detail::expandHash(h).left(24),
              QByteArray::fromHex("97d4f8389786352382ce6079c28d6ed3d65021a99b96263e"));
    EXPECT_EQ(detail::expandHash(h).size(), 40);
}

// 11 characters: the 100-byte message whose every field sits at a documented offset.
TEST(CapicomKnownAnswer, TripleDesMessageHasTheDocumentedFieldsAtTheirOffsets) {
    EncryptedData data(fixedRandom());
    data.setContent(u"hello world"_s);
    data.Algorithm().setName(CAPICOM_ENCRYPTION_ALGORITHM_3DES);
    data.SetSecret(kSuitePassword, CAPICOM_SECRET_PASSWORD);
    const QByteArray blob = data.Encrypt(CAPICOM_ENCODE_BINARY).bytes();
    ASSERT_EQ(blob.size(), 100);
    EXPECT_EQ(blob.left(48).toHex(), QByteArray("3062"
                                                "06092b0601040182375803"
                                                "a055"
                                                "3053"
                                                "060a2b060104018237580301"
                                                "a045"
                                                "3043"
                                                "0203020001" // version 0x00020001
                                                "02026603"   // CALG_3DES
                                                "020200c0"   // 192 bits
                                                "0408"));
    EXPECT_EQ(blob.mid(48, 8), kIv);
    EXPECT_EQ(blob.mid(56, 2).toHex(), "0410");
    EXPECT_EQ(blob.mid(58, 16), kSalt);
    EXPECT_EQ(blob.mid(74, 2).toHex(), "0418");
    // The cipher text opens with the key of the documented derivation.
    const QByteArray key = byhand::tripleDesKey(kSuitePassword, kSalt);
    EXPECT_EQ(byhand::ede3Cbc(false, key, kIv, blob.mid(76)), byhand::utf16le(u"hello world"_s));
    EXPECT_EQ(blob, byhand::message(kSuitePassword, u"hello world"_s, kIv, kSalt));
}

// Lengths of 128 and more take the long form (81 xx, then 82 xx xx): about 44 characters on.
TEST(CapicomKnownAnswer, MessagesAssembledByHandDecryptAcrossLengthForms) {
    for (const int chars : {1, 11, 43, 44, 60, 100, 150}) {
        SCOPED_TRACE(chars);
        QString text;
        for (int i = 0; i < chars; ++i) {
            text += QChar(u'a' + i % 26);
        }
        const QByteArray assembled = byhand::message(kSuitePassword, text, kIv, kSalt);
        ASSERT_EQ(assembled.at(0), '\x30');
        EXPECT_EQ(decryptWith(kSuitePassword, Bstr::fromBytes(assembled)), text);
        EncryptedData data(fixedRandom());
        data.setContent(text);
        data.Algorithm().setName(CAPICOM_ENCRYPTION_ALGORITHM_3DES);
        data.SetSecret(kSuitePassword);
        EXPECT_EQ(data.Encrypt(CAPICOM_ENCODE_BINARY).bytes(), assembled);
    }
}

} // namespace
