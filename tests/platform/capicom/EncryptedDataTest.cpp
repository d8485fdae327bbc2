// The object as the system uses it: config.ini values written and read back, and the errors the
// component raises for wrong use.
#include "platform/capicom/EncryptedData.h"

#include "platform/capicom/Error.h"
#include "platform/capicom/Utilities.h"

#include "tests/platform/capicom/CapicomTestSupport.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;
using namespace capicom;

namespace {

// A value as it is written to config.ini: binary message, Base64, line ends removed.
QString writeValue(const QString& text) {
    EncryptedData data;
    data.setContent(text);
    data.Algorithm().setName(CAPICOM_ENCRYPTION_ALGORITHM_3DES);
    data.SetSecret(kSuitePassword, CAPICOM_SECRET_PASSWORD);
    QString value = Utilities().Base64Encode(data.Encrypt(CAPICOM_ENCODE_BINARY));
    return value.remove(u'\r').remove(u'\n');
}

// And read back: pieces of 64 joined by CR LF, Base64 decoded, decrypted.
QString readValue(const QString& value) {
    QStringList pieces;
    for (qsizetype at = 0; at < value.size(); at += 64) {
        pieces << value.mid(at, 64);
    }
    EncryptedData data;
    data.Algorithm().setName(CAPICOM_ENCRYPTION_ALGORITHM_3DES);
    data.SetSecret(kSuitePassword, CAPICOM_SECRET_PASSWORD);
    data.Decrypt(Utilities().Base64Decode(pieces.join(u"\r\n")));
    return data.Content().toString();
}

// The code of the capicom::Error the call raises, or nothing.
std::optional<Hr> raised(const std::function<void()>& call) {
    try {
        call();
    } catch (const Error& e) {
        return e.code();
    }
    return std::nullopt;
}

TEST(CapicomEncryptedData, ConfigValuesRoundTrip) {
    const QString unpaired = QString(QChar(0xD800)) + u"x"_s + QChar(0);
    for (const QString& text :
         {u"1"_s, u"0"_s, u"SRV01\\SQLEXPRESS"_s, u"Archivio documentale – sede di Forlì €"_s,
          u"sa"_s, QString(300, u'p'), unpaired}) {
        SCOPED_TRACE(text.toStdString());
        const QString value = writeValue(text);
        EXPECT_FALSE(value.contains(u'\n') || value.contains(u'\r'));
        EXPECT_EQ(readValue(value), text);
    }
}

TEST(CapicomEncryptedData, EveryMessageHasItsOwnIvAndSalt) {
    const QString first = writeValue(u"Password1"_s);
    const QString second = writeValue(u"Password1"_s);
    EXPECT_NE(first, second);
    EXPECT_EQ(readValue(first), readValue(second));
}

TEST(CapicomEncryptedData, Base64FormIsTheBinaryFormInLinesOf64) {
    EncryptedData data(fixedRandom());
    data.setContent(QString(20, u'x')); // 40 bytes: a 124-byte message, 168 characters
    data.Algorithm().setName(CAPICOM_ENCRYPTION_ALGORITHM_3DES);
    data.SetSecret(kSuitePassword);
    const QString base64 = data.Encrypt().toString();
    EXPECT_EQ(base64, Utilities().Base64Encode(data.Encrypt(CAPICOM_ENCODE_BINARY)));
    EXPECT_EQ(data.Encrypt(CAPICOM_ENCODE_ANY).toString(), base64);
    const QStringList lines = base64.split(u"\r\n"_s);
    ASSERT_EQ(lines.size(), 4);
    EXPECT_EQ(lines[0].size(), 64);
    EXPECT_EQ(lines[1].size(), 64);
    EXPECT_EQ(lines[2].size(), 40);
    EXPECT_TRUE(lines[3].isEmpty()); // CR LF after the last line too

    EncryptedData reader;
    reader.SetSecret(kSuitePassword);
    reader.Decrypt(data.Encrypt()); // the Base64 text itself, as a string
    EXPECT_EQ(reader.Content(), data.Content());
}

TEST(CapicomEncryptedData, DesAndBinaryContentRoundTrip) {
    EncryptedData data(fixedRandom());
    data.setContent(Bstr::fromBytes(QByteArray("\x00\xff\x7f", 3))); // odd length, raw bytes
    data.Algorithm().setName(CAPICOM_ENCRYPTION_ALGORITHM_DES);
    data.Algorithm().setKeyLength(CAPICOM_ENCRYPTION_KEY_LENGTH_256_BITS); // ignored by DES
    data.SetSecret(u"k"_s);
    const Bstr message = data.Encrypt(CAPICOM_ENCODE_BINARY);
    EXPECT_EQ(message.bytes().mid(38, 7).toHex(), "02026601020140"); // CALG_DES, 64 bits
    EncryptedData reader;
    reader.Algorithm().setName(CAPICOM_ENCRYPTION_ALGORITHM_3DES); // the message decides
    reader.SetSecret(u"k"_s);
    reader.Decrypt(message);
    EXPECT_EQ(reader.Content().bytes(), QByteArray("\x00\xff\x7f", 3));
}

TEST(CapicomEncryptedData, WrongUseIsRefusedWithTheComponentsCodes) {
    EncryptedData data;
    data.Algorithm().setName(CAPICOM_ENCRYPTION_ALGORITHM_3DES);
    EXPECT_EQ(raised([&] { data.Encrypt(CAPICOM_ENCODE_BINARY); }), Hr::EncryptNotInitialized);
    data.setContent(u"x"_s);
    EXPECT_EQ(raised([&] { data.Encrypt(CAPICOM_ENCODE_BINARY); }), Hr::EncryptNoSecret);
    EXPECT_EQ(raised([&] { data.Decrypt(writeValue(u"x"_s)); }), Hr::EncryptNoSecret);
    EXPECT_EQ(raised([&] { data.SetSecret(u"pw"_s, 1); }), Hr::InvalidArg);
    data.SetSecret(u"pw"_s);
    EXPECT_EQ(raised([&] { data.Encrypt(2); }), Hr::EncodeInvalidType);
    EXPECT_EQ(raised([&] { data.Algorithm().setName(5); }), Hr::InvalidAlgorithm);
    EXPECT_EQ(raised([&] { data.Algorithm().setKeyLength(-1); }), Hr::InvalidKeyLength);
    EXPECT_EQ(data.Algorithm().Name(), CAPICOM_ENCRYPTION_ALGORITHM_3DES); // left as it was
    EXPECT_EQ(raised([&] { data.Encrypt(CAPICOM_ENCODE_BINARY); }), std::nullopt);

    // RC2 is the default algorithm; it and the others are not available in this build.
    for (const long name : {CAPICOM_ENCRYPTION_ALGORITHM_RC2, CAPICOM_ENCRYPTION_ALGORITHM_RC4,
                            CAPICOM_ENCRYPTION_ALGORITHM_AES}) {
        data.Algorithm().setName(name);
        EXPECT_EQ(raised([&] { data.Encrypt(); }), Hr::NotSupported) << name;
    }
    EXPECT_EQ(EncryptedData().Algorithm().Name(), CAPICOM_ENCRYPTION_ALGORITHM_RC2);
}

} // namespace
