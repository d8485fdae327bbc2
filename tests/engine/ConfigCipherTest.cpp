#include "engine/ConfigCipher.h"

#include "platform/capicom/EncryptedData.h"
#include "platform/capicom/Error.h"
#include "platform/capicom/Utilities.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace engine;

TEST(ConfigCipher, RoundTrip) {
    for (const QString& plain :
         {u"1"_s, u"SRV\\SQLEXPRESS"_s, u"Archivio dell'anno più lungo di sessantaquattro caratteri, "
                                       u"per passare la prima riga di Base64"_s}) {
        const QString stored = Encrypt_Text(plain, QString::fromUtf16(kConfigSecret), true);
        EXPECT_FALSE(stored.contains(u'\r'));
        EXPECT_FALSE(stored.contains(u'\n'));
        EXPECT_NE(stored, plain);
        EXPECT_EQ(Decrypt_Text(stored, QString::fromUtf16(kConfigSecret), true), plain);
    }
}

TEST(ConfigCipher, MessageIsTripleDesUnderThePassword) {
    const QString stored = Encrypt_Text(u"sa"_s, u"brnzolvet52"_s, true);
    // Read back with the component's own objects, as the suite does.
    capicom::EncryptedData data;
    data.SetSecret(u"brnzolvet52"_s);
    data.Decrypt(capicom::Utilities().Base64Decode(stored));
    EXPECT_EQ(data.Content().toString(), u"sa"_s);
    // Fresh salt every time: the same value is stored differently twice.
    EXPECT_NE(Encrypt_Text(u"sa"_s, u"brnzolvet52"_s, true), stored);
}

TEST(ConfigCipher, BlankValuesPassUnciphered) {
    EXPECT_EQ(Encrypt_Text(u""_s, u"brnzolvet52"_s, true), u""_s);
    EXPECT_EQ(Encrypt_Text(u"   "_s, u"brnzolvet52"_s, true), u""_s);
    EXPECT_EQ(Decrypt_Text(u"  "_s, u"brnzolvet52"_s, true), u""_s);
    // Only blanks are trimmed: a tab is a value.
    EXPECT_EQ(Decrypt_Text(Encrypt_Text(u"\t"_s, u"brnzolvet52"_s, true), u"brnzolvet52"_s, true),
              u"\t"_s);
}

TEST(ConfigCipher, BinaryForm) {
    const QString binary = Encrypt_Text(u"pwd"_s, u"k"_s, false);
    EXPECT_FALSE(binary.isEmpty());
    EXPECT_EQ(Decrypt_Text(binary, u"k"_s, false), u"pwd"_s);
}

TEST(ConfigCipher, FailuresRaiseTheComponentsErrors) {
    const QString stored = Encrypt_Text(u"segreto di prova"_s, u"brnzolvet52"_s, true);
    EXPECT_THROW(Decrypt_Text(u"questo non è base64!"_s, u"brnzolvet52"_s, true), capicom::Error);
    EXPECT_THROW(Decrypt_Text(u"QUJD"_s, u"brnzolvet52"_s, true), capicom::Error);
    // A wrong password is caught by the padding check in most cases; collect a few tries.
    int refused = 0;
    for (const QString& wrong : {u"a"_s, u"b"_s, u"c"_s, u"d"_s}) {
        try {
            if (Decrypt_Text(stored, wrong, true) != u"segreto di prova"_s) {
                ++refused;
            }
        } catch (const capicom::Error&) {
            ++refused;
        }
    }
    EXPECT_EQ(refused, 4);
}
