#include "frame/nxMisc.h"
#include "frame/nxReg.h"
#include "frame/nxSys.h"
#include "frame/nxUtilsDll.h"

#include "platform/win/FileVersion.h"

#include "tests/frame/FrameFixture.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

class AppTest : public FrameTest {};

class NotStartedTest : public FrameTest {
protected:
    NotStartedTest() { startLibrary = false; }
};

TEST_F(AppTest, BoxTitlesAndIconsComeFromTheStyleFlags) {
    box->answer({1, 1, 1, 1, 1});
    nxApp::MsgBox(u"a"_s, 0);
    nxApp::MsgBox(u"b"_s, 16);
    nxApp::MsgBox(u"c"_s, 36);
    nxApp::MsgBox(u"d"_s, 48);
    nxApp::MsgBox(u"e"_s, 65);
    const auto& shown = box->shown();
    ASSERT_EQ(shown.size(), 5u);
    const QString app = win::productName() + u" - "_s;
    EXPECT_EQ(shown[0].flags, 64);
    EXPECT_EQ(shown[0].title, app + u"Informazione"_s);
    EXPECT_EQ(shown[1].title, app + u"Errore!"_s);
    EXPECT_EQ(shown[2].title, app + u"Domanda"_s);
    EXPECT_EQ(shown[3].title, app + u"Avvertimento"_s);
    EXPECT_EQ(shown[4].title, app + u"Informazione"_s);
    EXPECT_EQ(shown[4].flags, 65);
}

TEST_F(AppTest, TheDefaultPointerStandsWhileABoxIsOpen) {
    nxApp::SetMousePointer(11);
    box->answer(6);
    EXPECT_EQ(nxApp::MsgBox(u"?"_s, 36), 6);
    EXPECT_EQ(pointer->history, (std::vector<int>{11, 0, 11}));
}

TEST_F(AppTest, ErrorBoxNumbersAndIcons) {
    struct Case {
        std::int32_t number;
        QString tail;
        long flags;
    };
    const std::vector<Case> cases = {
        {0, QString(), 64},
        {5, u" (errore 5)"_s, 16},
        {10, u" (errore 10, 0xA)"_s, 16},
        {2999, u" (errore 2999, 0xBB7)"_s, 16},
        {3000, u" (errore 3000, 0xBB8)"_s, 48},
        {-2147217865, u" (errore -2147217865, 0x80040E37)"_s, 48},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.number);
        vb::Err().Clear();
        vb::Err().Number = c.number;
        vb::Err().Description = u"Qualcosa non va"_s;
        box->answer(1);
        nxApp::ErrorBox(u"nxRs.Update()"_s, false);
        ASSERT_FALSE(box->shown().empty());
        EXPECT_EQ(box->last().text, u"Qualcosa non va\r\n\r\nnxRs.Update()"_s + c.tail);
        EXPECT_EQ(box->last().flags, c.flags);
        EXPECT_EQ(nxApp::LastError().Number(), c.number);
        EXPECT_EQ(nxApp::LastError().Source(), u"nxRs.Update()"_s);
    }
}

TEST_F(AppTest, SilentErrorBoxRecordsWithoutShowing) {
    vb::Err().Number = 3021;
    vb::Err().Description = u"Nessun record corrente"_s;
    vb::Err().Source = u"ADODB.Recordset"_s;
    nxApp::ErrorBox(u"nxRs.Find()"_s, true, true);
    EXPECT_TRUE(box->shown().empty());
    EXPECT_EQ(nxApp::LastError().Number(), 3021);
    EXPECT_EQ(nxApp::LastError().Source(), u"nxRs.Find()"_s);
    EXPECT_EQ(nxApp::LastError().Description(), u"Nessun record corrente"_s);
}

TEST_F(AppTest, FriendlyErrorBoxDoesNotTellZeroFromNegative) {
    box->answer({1, 1});
    nxApp::FriendlyErrorBox(u"Spiacenti"_s, false);
    EXPECT_EQ(box->last().text, u"Errore '0' (HEX 0)\r\n\r\nSpiacenti"_s);
    EXPECT_EQ(box->last().flags, 48);
    vb::Err().Number = 13;
    nxApp::FriendlyErrorBox(u"Tipo"_s, false);
    EXPECT_EQ(box->last().text, u"Errore '13' (HEX D)\r\n\r\nTipo"_s);
    EXPECT_EQ(box->last().flags, 16);
    EXPECT_EQ(nxApp::LastError().Description(), u"Tipo"_s);
}

TEST_F(AppTest, CustomCaptionsStayFromOneBoxToTheNext) {
    box->answer({1, 2});
    nxApp::MsgBoxEx(nullptr, u"uno"_s, 3, u"&Sì|&No|&Forse"_s);
    EXPECT_EQ(box->last().captions, (QStringList{u"&Sì"_s, u"&No"_s, u"&Forse"_s, QString()}));
    EXPECT_EQ(nxApp::MsgBoxEx(nullptr, u"due"_s, 3, u"&Va bene"_s), 2);
    EXPECT_EQ(box->last().captions, (QStringList{u"&Va bene"_s, u"&No"_s, u"&Forse"_s, QString()}));
    EXPECT_EQ(box->last().flags & win::mb::kHelp, 0);
}

TEST_F(AppTest, AFifthCaptionIsASubscriptError) {
    try {
        nxApp::MsgBoxEx(nullptr, u"cinque"_s, 0, u"a|b|c|d|e"_s);
        FAIL() << "a fifth caption has no slot";
    } catch (const vb::RuntimeError& e) {
        EXPECT_EQ(e.record().Number, 9);
    }
    EXPECT_TRUE(box->shown().empty());
}

TEST_F(AppTest, HelpButtonRunsTheCallbackAndTheBoxStays) {
    int views = 0;
    box->answer({win::id::kHelp, win::id::kHelp, win::id::kOk});
    const long result = nxApp::MsgBoxExHelp(nullptr, u"Proseguire?"_s, 16385,
                                            u"&Continua|&Annulla|&Vedi log"_s, [&] { ++views; });
    EXPECT_EQ(result, win::id::kOk);
    EXPECT_EQ(views, 2);
    const auto& shown = box->last();
    EXPECT_EQ(shown.flags, 16385 | win::mb::kHelp);
    EXPECT_TRUE(shown.beep);
    EXPECT_EQ(shown.helpPresses, 2);
    EXPECT_EQ(shown.captions.mid(0, 3),
              (QStringList{u"&Continua"_s, u"&Annulla"_s, u"&Vedi log"_s}));
}

TEST_F(AppTest, CancelEndIsTrueOnNo) {
    box->answer({7, 6});
    EXPECT_TRUE(nxApp::CancelEnd());
    EXPECT_EQ(box->last().text, u"Confermi l'uscita dal programma?"_s);
    EXPECT_EQ(box->last().flags, 36);
    EXPECT_FALSE(nxApp::CancelEnd());
}

TEST_F(AppTest, CommandLineTermsStopAtTheFirstEmptyOne) {
    ASSERT_TRUE(nxApp::AppInitialize(vb::Variant(), u"  prog.exe / a / B // c "_s));
    EXPECT_EQ(nxApp::ParamCount(), 2);
    EXPECT_EQ(nxApp::Param(0), u"prog.exe"_s);
    EXPECT_EQ(nxApp::Param(1), u"a"_s);
    EXPECT_EQ(nxApp::Param(2), u"B"_s);
    EXPECT_EQ(nxApp::Param(3), QString());
    EXPECT_EQ(nxApp::Param(-1), QString());
    EXPECT_TRUE(nxApp::ParamExist(u"b"_s));
    EXPECT_FALSE(nxApp::ParamExist(u"c"_s));
    EXPECT_FALSE(nxApp::ParamExist(u"prog.exe"_s));

    ASSERT_TRUE(nxApp::AppInitialize(vb::Variant(), QString()));
    EXPECT_EQ(nxApp::ParamCount(), 0);
    EXPECT_EQ(nxApp::Param(0), QString());
}

TEST_F(AppTest, StartingShowsTheHourglassAndPutsItBack) {
    ASSERT_TRUE(nxApp::AppInitialize(vb::Variant::fromLong(1234), QString()));
    EXPECT_EQ(pointer->history, (std::vector<int>{11, 0}));
    EXPECT_EQ(nxApp::AppInstance(), 1234);
}

TEST_F(AppTest, NameReleaseAndTitle) {
    EXPECT_EQ(nxApp::AppName(), win::productName());
    nxApp::AppName(u"Prova"_s);
    EXPECT_EQ(nxApp::AppName(), u"Prova"_s);
    EXPECT_TRUE(QRegularExpression(u"^\\d+\\.\\d+\\.\\d+$"_s).match(nxApp::AppRelease()).hasMatch())
        << nxApp::AppRelease().toStdString();
    const QString date = nxApp::AppDate().toString(u"dd/MM/yyyy"_s);
    EXPECT_EQ(nxApp::AppTitle(), u"Prova "_s + nxApp::AppRelease() + u" ("_s + date + u')');
}

TEST_F(AppTest, HostObjectAnswersGetAppInfo) {
    auto host = std::make_shared<nxApp::Host>();
    host->texts[3] = u"Prodotto"_s;
    host->major = 2;
    host->revision = 7;
    host->instance = 99;
    ASSERT_TRUE(nxApp::AppInitialize(host, QString()));
    EXPECT_EQ(nxApp::AppInstance(), 99);
    EXPECT_EQ(nxApp::GetAppInfo(3), vb::Variant(u"Prodotto"_s));
    EXPECT_EQ(nxApp::GetAppInfo(4), vb::Variant(std::int16_t(2)));
    EXPECT_EQ(nxApp::GetAppInfo(6), vb::Variant(std::int16_t(7)));
    EXPECT_TRUE(nxApp::GetAppInfo(7).isEmpty());
    ASSERT_TRUE(nxApp::AppInitialize(vb::Variant(), QString()));
    EXPECT_TRUE(nxApp::GetAppInfo(3).isEmpty());
}

TEST_F(AppTest, RegPathKeepsItsBackslashes) {
    EXPECT_EQ(nxApp::RegPath(u"Finestra"_s, u"Prova"_s),
              u"Software\\Brontel Data\\Prova\\Finestra"_s);
    EXPECT_EQ(nxApp::RegPath(QString(), u"Prova"_s), u"Software\\Brontel Data\\Prova\\"_s);
    EXPECT_EQ(nxApp::RegPath(u"S"_s),
              u"Software\\Brontel Data\\"_s + win::productName() + u"\\S"_s);
}

TEST_F(AppTest, MachineValueMovesToTheUserAtItsFirstRead) {
    const QString path = nxApp::RegPath(u"Opzioni"_s);
    {
        nxReg machine;
        ASSERT_TRUE(machine.RegCreate(path, win::kHKeyLocalMachine));
        ASSERT_TRUE(machine.SetVal(u"Cartella"_s, u"C:\\Dati"_s));
    }
    EXPECT_EQ(nxApp::GetSetting(u"Opzioni"_s, u"Cartella"_s, u"x"_s), vb::Variant(u"C:\\Dati"_s));
    {
        nxReg machine;
        ASSERT_TRUE(machine.RegOpen(win::kHKeyLocalMachine, path));
        ASSERT_TRUE(machine.DelVal(u"Cartella"_s));
        nxReg user;
        ASSERT_TRUE(user.RegOpen(win::kHKeyCurrentUser, path));
        EXPECT_EQ(user.GetVal(u"Cartella"_s), vb::Variant(u"C:\\Dati"_s));
    }
    EXPECT_EQ(nxApp::GetSetting(u"Opzioni"_s, u"Cartella"_s, u"x"_s), vb::Variant(u"C:\\Dati"_s));
}

TEST_F(AppTest, MachineRootIsReadAndNeverWritten) {
    nxApp::SaveSetting(u"Opzioni"_s, u"Livello"_s, vb::Variant::fromLong(3), {},
                       win::kHKeyLocalMachine);
    EXPECT_EQ(nxApp::GetSetting(u"Opzioni"_s, u"Livello"_s, {}, {}, win::kHKeyLocalMachine),
              vb::Variant::fromLong(3));
    nxReg user;
    EXPECT_FALSE(user.RegOpen(win::kHKeyCurrentUser, nxApp::RegPath(u"Opzioni"_s)));
    EXPECT_EQ(nxApp::GetSetting(u"Opzioni"_s, u"Assente"_s, u"def"_s, {}, win::kHKeyLocalMachine),
              vb::Variant(u"def"_s));
    EXPECT_TRUE(nxApp::GetSetting(u"Nessuna"_s, u"Chiave"_s).isEmpty());
}

TEST_F(AppTest, ConnectionStringsNameTheirBackEnd) {
    EXPECT_EQ(nxApp::AdoConnectionDbType(u"Provider=sqlncli;Data Source=x"_s), 1);
    EXPECT_EQ(nxApp::AdoConnectionDbType(u"Provider=SQLNCLI10"_s), 1);
    EXPECT_EQ(nxApp::AdoConnectionDbType(u"Provider=SQLOLEDB.1"_s), 1);
    EXPECT_EQ(nxApp::AdoConnectionDbType(u"provider=microsoft.jet.oledb.4.0;data source=a.mdb"_s),
              0);
    EXPECT_EQ(nxApp::AdoConnectionDbType(u"Provider=Microsoft.ACE.OLEDB.12.0"_s), -1);
}

TEST_F(AppTest, ReservedWordsAreFoundBetweenBlanks) {
    const QString& words = nxApp::ReservedWords();
    EXPECT_TRUE(words.startsWith(u" ADD "_s));
    EXPECT_TRUE(words.endsWith(u" WRITETEXT "_s));
    EXPECT_EQ(words.count(u" CURRENT_USER "_s), 2); // counted overlapping: the two share a blank
    EXPECT_TRUE(words.contains(u" CURRENT_USER CURRENT_USER "_s));
    EXPECT_EQ(words.split(u' ', Qt::SkipEmptyParts).size(), 175);
    EXPECT_FALSE(words.contains(u" IDENTITY_INSERTX "_s));
}

TEST_F(AppTest, CompleteErrAndFillError) {
    vb::Err().Number = 53;
    vb::Err().Description = u"Impossibile trovare il file"_s;
    nxApp::CompleteErr(u"C:\\a.mdb"_s);
    nxApp::FillError();
    EXPECT_EQ(nxApp::LastError().Description(), u"Impossibile trovare il file (C:\\a.mdb)"_s);
    EXPECT_EQ(nxApp::LastError().Number(), 53);
}

TEST_F(AppTest, DoEventsRunsTheWindowsHook) {
    int calls = 0;
    nxApp::DoEvents();
    nxApp::SetDoEvents([&] { ++calls; });
    nxApp::DoEvents();
    EXPECT_EQ(calls, 1);
}

TEST_F(NotStartedTest, EverythingIsEmptyBeforeTheStart) {
    EXPECT_FALSE(nxApp::IsInit());
    EXPECT_EQ(nxApp::AppRelease(), QString());
    EXPECT_EQ(nxApp::AppName(), QString());
    nxApp::AppName(u"x"_s);
    EXPECT_EQ(nxApp::ReservedWords(), QString());
    EXPECT_EQ(nxApp::Misc().Token(u"a/b"_s, 1, u"d"_s, u"/"_s), QString());
    EXPECT_EQ(nxApp::Misc().ApiciDoppi(u"l'a"_s), u"l''a"_s);
    EXPECT_EQ(nxApp::Sys().AppFullName(), QString());
    EXPECT_FALSE(nxApp::Utils().IsReady());
    nxReg reg;
    EXPECT_FALSE(reg.RegCreate(u"Software\\X"_s, win::kHKeyCurrentUser));
    EXPECT_EQ(nxApp::LastError().Description(), u"Errore sconosciuto"_s);
    ASSERT_TRUE(nxApp::AppInitialize(vb::Variant(), QString()));
    EXPECT_EQ(nxApp::AppName(), win::productName()); // the name written before the start is gone
}

} // namespace
