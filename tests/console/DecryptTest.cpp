#include "console/Decrypt.h"

#include "frame/nxApp.h"
#include "frame/nxError.h"

#include "platform/capicom/EncryptedData.h"

#include "tests/console/WindowFixture.h"

using namespace Qt::StringLiterals;

namespace {

// A description as the suite stores it: encrypted with the password, in Base64 on one line.
QString stored(const QString& text) {
    capicom::EncryptedData data;
    data.Algorithm().setName(3);
    data.SetSecret(u"brnzolvet52"_s, 0);
    data.setContent(capicom::Bstr(text));
    QString base64 = data.Encrypt(0).toString();
    base64.remove(u'\r');
    base64.remove(u'\n');
    return base64;
}

} // namespace

using DecryptTest = WindowTest;

TEST_F(DecryptTest, AStoredDescriptionComesBack) {
    const QString text = u"Archivio documenti 2024 – sede di Forlì"_s;
    const QString line = stored(text);
    ASSERT_GT(line.size(), 64); // the decoder gets it back in lines of 64
    const DecryptResult plain = Decrypt_Text(line, u"brnzolvet52"_s, true);
    EXPECT_TRUE(plain.ok);
    EXPECT_EQ(plain.text, text);
    EXPECT_EQ(Decrypt_Text(u"  \t "_s, u"brnzolvet52"_s, true).text, QString());
}

TEST_F(DecryptTest, AnUndecodableTextIsRecordedWithoutABox) {
    const DecryptResult wrong = Decrypt_Text(u"non cifrato"_s, u"brnzolvet52"_s, true);
    EXPECT_FALSE(wrong.ok);
    EXPECT_EQ(wrong.text, QString());
    EXPECT_NE(wrong.number, 0);
    EXPECT_EQ(nxApp::LastError().Source(), u"frmMain.Decrypt_Text()"_s);
    EXPECT_EQ(nxApp::LastError().Number(), wrong.number);
    EXPECT_TRUE(box->shown().empty());
}

TEST_F(DecryptTest, PickingADatabaseShowsItsDescription) {
    const QString good = archiveFolder(u"buono"_s);
    const QString bad = archiveFolder(u"guasto"_s);
    writeFile(good + u"/config.ini"_s,
              "[Database]\r\nDatabaseDesc=" + stored(u"Archivio 2024"_s).toLatin1() + "\r\n");
    writeFile(bad + u"/config.ini"_s, "[Database]\r\nDatabaseDesc=non cifrato\r\n");
    registerValue(win::kHKeyCurrentUser, u"SOFTWARE\\Brontel Data\\Solvaria\\General"_s,
                  u"SharedPath"_s, good);
    registerValue(win::kHKeyCurrentUser, u"SOFTWARE\\Brontel Data\\Solvaria\\General\\Recent"_s,
                  u"SharedPath0"_s, bad);
    window->Form_Load();
    list("lstMdbPath")->setCurrentRow(0);
    EXPECT_EQ(edit("txtDbDesc")->text(), u"Archivio 2024"_s);
    EXPECT_EQ(list("lstLog")->count(), 0);

    list("lstMdbPath")->setCurrentRow(1);
    EXPECT_EQ(edit("txtDbDesc")->text(), QString());
    ASSERT_EQ(list("lstLog")->count(), 1);
    EXPECT_EQ(list("lstLog")->item(0)->text(), QString::number(nxApp::LastError().Number()) +
                                                   u": "_s + nxApp::LastError().Description());
    EXPECT_TRUE(box->shown().empty());
}
