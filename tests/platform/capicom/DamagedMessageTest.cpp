// Damaged and foreign input: every failure is a capicom::Error, never a crash or a wrong answer.
#include "platform/capicom/EncryptedData.h"
#include "platform/capicom/Error.h"
#include "platform/capicom/Utilities.h"

#include "tests/platform/capicom/CapicomTestSupport.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace capicom;

namespace {

const QString kText = u"hello world"_s;

QByteArray goodMessage() {
    return byhand::message(kSuitePassword, kText, kIv, kSalt);
}

// The code raised by decrypting these bytes, or nothing when they decrypt.
std::optional<Hr> decryptRaises(const Bstr& message) {
    EncryptedData data;
    data.setContent(u"before"_s);
    data.SetSecret(kSuitePassword);
    try {
        data.Decrypt(message);
    } catch (const Error& e) {
        EXPECT_EQ(data.Content().toString(), u"before"_s); // a failure leaves Content alone
        return e.code();
    }
    return std::nullopt;
}

TEST(CapicomDamagedMessage, EveryTruncationIsNotAMessage) {
    const QByteArray good = goodMessage();
    for (qsizetype size = 0; size < good.size(); ++size) {
        EXPECT_EQ(decryptRaises(Bstr::fromBytes(good.left(size))), Hr::EncryptInvalidType) << size;
    }
    EXPECT_EQ(decryptRaises(Bstr::fromBytes(good + '\0')), Hr::EncryptInvalidType);
}

TEST(CapicomDamagedMessage, EveryChangedByteFailsCleanlyOrDecrypts) {
    const QByteArray good = goodMessage();
    for (qsizetype at = 0; at < good.size(); ++at) {
        QByteArray bad = good;
        bad[at] = static_cast<char>(bad[at] ^ 0x5A);
        const auto hr = decryptRaises(Bstr::fromBytes(bad));
        if (at < 4 || (at > 12 && at < 44) || at == 46 || at == 47) {
            // tags, lengths, the inner identifier, version and algorithm
            EXPECT_TRUE(hr == Hr::EncryptInvalidType || hr == Hr::BadAlgId) << at;
        } else if (at >= 90) {
            // the padding's bytes in the last block, or the last block itself
            EXPECT_EQ(hr, Hr::BadData) << at;
        } else if (at >= 4 && at <= 12) {
            EXPECT_EQ(hr, std::nullopt) << at; // the outer identifier's content is not checked
        }
        // The key length (ignored by triple DES), IV, salt and the other blocks give a wrong
        // key or wrong text, or a failed padding: any of these, but no crash.
    }
}

TEST(CapicomDamagedMessage, ImpossibleLengthsAndFieldsAreRefused) {
    const QByteArray good = goodMessage();
    auto patched = [&](qsizetype at, const char* hex, qsizetype replaced) {
        QByteArray bad = good;
        return Bstr::fromBytes(bad.replace(at, replaced, QByteArray::fromHex(hex)));
    };
    EXPECT_EQ(decryptRaises(patched(1, "84ffffffff", 1)), Hr::EncryptInvalidType);
    EXPECT_EQ(decryptRaises(patched(1, "80", 1)), Hr::EncryptInvalidType); // indefinite
    EXPECT_EQ(decryptRaises(patched(75, "ff", 1)), Hr::EncryptInvalidType);
    EXPECT_EQ(decryptRaises(patched(33, "0203030000", 5)), Hr::EncryptInvalidType); // version
    EXPECT_EQ(decryptRaises(patched(40, "6801", 2)), Hr::NotSupported);             // RC4
    EXPECT_EQ(decryptRaises(patched(40, "1234", 2)), Hr::BadAlgId);
}

TEST(CapicomDamagedMessage, TextThatIsNoMessageIsRefused) {
    for (const QString& text :
         {QString(), u"not a message"_s, u"MGEG"_s, u"QUJD"_s, u"hello world"_s + QChar(0x00E9)}) {
        EXPECT_EQ(decryptRaises(text), Hr::EncryptInvalidType) << text.toStdString();
    }
    EXPECT_EQ(decryptRaises(Bstr::fromBytes("\x30")), Hr::EncryptInvalidType); // odd, not DER
}

TEST(CapicomUtilities, Base64DecodeIgnoresLineEndsAndRefusesOtherText) {
    const Utilities u;
    EXPECT_EQ(u.Base64Decode(u"QQA="_s).toString(), u"A"_s); // a text's UTF-16LE bytes
    EXPECT_EQ(u.Base64Encode(u"A"_s), u"QQA=\r\n"_s);
    EXPECT_EQ(u.Base64Decode(u" QU\r\nJD\t"_s).bytes(), "ABC");
    EXPECT_EQ(u.Base64Decode(u"QUI"_s).bytes(), "AB"); // padding left out
    EXPECT_EQ(u.Base64Decode(QString()).bytes(), QByteArray());
    EXPECT_EQ(u.Base64Encode(Bstr()), QString());
    EXPECT_EQ(u.Base64Encode(Bstr::fromBytes(QByteArray(48, 'x'))).size(), 66);
    for (const QString& bad : {u"Q"_s, u"QUJD-"_s, u"QQ==QQ=="_s, u"QQ="_s, u"QUJD€"_s}) {
        try {
            u.Base64Decode(bad);
            ADD_FAILURE() << bad.toStdString();
        } catch (const Error& e) {
            EXPECT_EQ(e.code(), Hr::InvalidData);
            EXPECT_EQ(e.source(), u"CAPICOM.Utilities"_s);
        }
    }
}

} // namespace
