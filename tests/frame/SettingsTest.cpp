#include "frame/nxIni.h"
#include "frame/nxReg.h"

#include "tests/frame/FrameFixture.h"

#include <memory>

using namespace Qt::StringLiterals;

namespace {

class RegTest : public FrameTest {
protected:
    void SetUp() override {
        FrameTest::SetUp();
        ASSERT_TRUE(reg.RegCreate(kKey, win::kHKeyCurrentUser));
    }
    void TearDown() override {
        reg.RegClose();
        FrameTest::TearDown();
    }
    // Writes a value of any type, as another program would have.
    void put(const QString& name, win::RegType type, const QByteArray& data) {
        ASSERT_EQ(registry->setValue(reg.RegHKey(), name, {type, data}), win::reg::kSuccess);
    }

    const QString kKey = u"Software\\Brontel Data\\Prova"_s;
    nxReg reg;
};

TEST_F(RegTest, BooleansAndIntegersAreDwords) {
    EXPECT_MEMBER_OK(reg.SetVal(u"Attivo"_s, true));
    EXPECT_MEMBER_OK(reg.SetVal(u"Spento"_s, false));
    EXPECT_MEMBER_OK(reg.SetVal(u"Porta"_s, vb::Variant::fromLong(1433)));
    EXPECT_MEMBER_OK(reg.SetVal(u"Meno"_s, std::int16_t(-2)));
    EXPECT_EQ(reg.GetVal(u"Attivo"_s), vb::Variant::fromLong(1));
    EXPECT_EQ(reg.GetVal(u"spento"_s), vb::Variant::fromLong(0));
    EXPECT_EQ(reg.GetVal(u" PORTA "_s), vb::Variant::fromLong(1433));
    EXPECT_EQ(reg.GetVal(u"Meno"_s), vb::Variant::fromLong(-2));
    win::RegValue raw;
    ASSERT_EQ(registry->queryValue(reg.RegHKey(), u"Attivo"_s, &raw), win::reg::kSuccess);
    EXPECT_EQ(raw.type, win::RegType::Dword);
    EXPECT_EQ(raw.data, QByteArray("\x01\x00\x00\x00", 4));
}

TEST_F(RegTest, OtherValuesAreTextWithoutTerminator) {
    EXPECT_MEMBER_OK(reg.SetVal(u"Testo"_s, u"Città"_s));
    EXPECT_MEMBER_OK(reg.SetVal(u"Numero"_s, 1.5));
    win::RegValue raw;
    ASSERT_EQ(registry->queryValue(reg.RegHKey(), u"Testo"_s, &raw), win::reg::kSuccess);
    EXPECT_EQ(raw.type, win::RegType::Sz);
    EXPECT_EQ(raw.data, QByteArray("Citt\xE0"));
    EXPECT_EQ(reg.GetVal(u"Testo"_s), vb::Variant(u"Città"_s));
    EXPECT_EQ(reg.GetVal(u"Numero"_s), vb::Variant(u"1,5"_s));
}

TEST_F(RegTest, TextIsCutAtItsFirstNulTrimmedAndNeverExpanded) {
    put(u"Bin"_s, win::RegType::Binary, QByteArray("ab\0cd", 5));
    put(u"Exp"_s, win::RegType::ExpandSz, QByteArray("%TEMP%\\x"));
    put(u"Blank"_s, win::RegType::Sz, QByteArray("   "));
    put(u"Padded"_s, win::RegType::Sz, QByteArray("  v  \0", 6));
    put(u"Short"_s, win::RegType::Dword, QByteArray("\x01\x00", 2));
    EXPECT_EQ(reg.GetVal(u"Bin"_s), vb::Variant(u"ab"_s));
    EXPECT_EQ(reg.GetVal(u"Exp"_s), vb::Variant(u"%TEMP%\\x"_s));
    EXPECT_EQ(reg.GetVal(u"Blank"_s, u"def"_s), vb::Variant(u"def"_s));
    EXPECT_EQ(reg.GetVal(u"Padded"_s), vb::Variant(u"v"_s));
    EXPECT_EQ(reg.GetVal(u"Short"_s, vb::Variant::fromLong(-1)), vb::Variant::fromLong(-1));
    EXPECT_TRUE(reg.GetVal(u"Assente"_s).isEmpty());
}

TEST_F(RegTest, TheReadBufferHolds1023Characters) {
    put(u"Fits"_s, win::RegType::Sz, QByteArray(1023, 'a'));
    put(u"TooLong"_s, win::RegType::Sz, QByteArray(1024, 'a'));
    put(u"Terminated"_s, win::RegType::Sz, QByteArray(1023, 'b') + '\0');
    EXPECT_EQ(reg.GetVal(u"Fits"_s).toString().size(), 1023);
    EXPECT_EQ(reg.GetVal(u"TooLong"_s, u"def"_s), vb::Variant(u"def"_s));
    EXPECT_EQ(reg.GetVal(u"Terminated"_s).toString().size(), 1023);
}

TEST_F(RegTest, CreateWithAKeyOpenDoesNotMoveToTheNewKey) {
    EXPECT_MEMBER_OK(reg.RegCreate(u"Figlio"_s));
    EXPECT_MEMBER_OK(reg.SetVal(u"Dove"_s, u"padre"_s));
    nxReg child;
    ASSERT_TRUE(child.RegOpen(win::kHKeyCurrentUser, kKey + u"\\figlio"_s));
    EXPECT_TRUE(child.GetVal(u"Dove"_s).isEmpty());
    EXPECT_EQ(reg.GetVal(u"Dove"_s), vb::Variant(u"padre"_s));
}

TEST_F(RegTest, AFailedOpenKeepsTheKeyThatWasOpen) {
    const win::HKey before = reg.RegHKey();
    EXPECT_FALSE(reg.RegOpen(win::kHKeyCurrentUser, u"Software\\Nessuno"_s));
    EXPECT_FALSE(reg.RegOpen(0, kKey));
    EXPECT_EQ(reg.RegHKey(), before);
    EXPECT_TRUE(reg.SetVal(u"Ancora"_s, u"qui"_s));
}

TEST_F(RegTest, DeleteGoesDownTheTreeOnlyWhenAsked) {
    ASSERT_TRUE(reg.RegCreate(u"Albero\\A\\A1"_s));
    ASSERT_TRUE(reg.RegCreate(u"Albero\\B"_s));
    EXPECT_FALSE(reg.RegDelete(u"Albero"_s));
    EXPECT_FALSE(reg.RegDelete(u"  "_s, true));
    EXPECT_TRUE(reg.RegDelete(u"albero"_s, true));
    nxReg gone;
    EXPECT_FALSE(gone.RegOpen(win::kHKeyCurrentUser, kKey + u"\\Albero"_s));
    EXPECT_FALSE(reg.RegDelete(u"Albero"_s, true));
    EXPECT_MEMBER_OK(reg.SetVal(u"v"_s, u"1"_s));
    EXPECT_TRUE(reg.DelVal(u"V"_s));
    EXPECT_FALSE(reg.DelVal(u"V"_s));
}

TEST_F(RegTest, NoKeyOpenMeansDefaultsAndFalse) {
    nxReg none;
    EXPECT_EQ(none.RegHKey(), 0u);
    EXPECT_EQ(none.GetVal(u"x"_s, u"d"_s), vb::Variant(u"d"_s));
    EXPECT_FALSE(none.SetVal(u"x"_s, u"v"_s));
    EXPECT_FALSE(none.DelVal(u"x"_s));
    EXPECT_FALSE(none.RegCreate(u"Sotto"_s));
}

class IniTest : public FrameTest {
protected:
    void SetUp() override {
        FrameTest::SetUp();
        path = dir.file(u"config.ini"_s);
        ini = std::make_unique<nxIni>(); // made after the start: it keeps the flag it saw then
        ini->SetIni(path);
    }
    QString path;
    std::unique_ptr<nxIni> ini;
};

TEST_F(IniTest, MissingAndEmptyKeysGiveTheDefaultWithItsType) {
    ASSERT_TRUE(writeFile(path, "[Database]\r\nVuota=\r\nNumero=5\r\nSi=vero\r\nNo= Falso \r\n"));
    EXPECT_EQ(ini->GetVal(u"Database"_s, u"Assente"_s, vb::Variant::fromLong(7)),
              vb::Variant::fromLong(7));
    EXPECT_EQ(ini->GetVal(u"Database"_s, u"Vuota"_s, vb::Variant::fromLong(7)),
              vb::Variant::fromLong(7));
    EXPECT_EQ(ini->GetVal(u"database"_s, u"NUMERO"_s, vb::Variant::fromLong(7)),
              vb::Variant(u"5"_s));
    EXPECT_EQ(ini->GetVal(u"Database"_s, u"Si"_s), vb::Variant(u"True"_s));
    EXPECT_EQ(ini->GetVal(u"Database"_s, u"No"_s), vb::Variant(u"False"_s));
    EXPECT_TRUE(ini->GetVal(u"Altro"_s, u"Numero"_s).isEmpty());
    EXPECT_EQ(ini->GetVal(u"Altro"_s, u"Numero"_s, vb::Null{}), vb::Variant(vb::Null{}));
}

TEST_F(IniTest, WritesMakeTheFileAndKeepEverythingElse) {
    ini->SetVal(u"Database"_s, u"Server"_s, u"SRV\\SQL"_s);
    EXPECT_EQ(readAll(path), "[Database]\r\nServer=SRV\\SQL\r\n");
    ASSERT_TRUE(writeFile(path, "; suite\r\n[Database]\r\nServer=old\r\n\r\n[Altro]\nK=1\n"));
    ini->SetVal(u"DATABASE"_s, u"server"_s, u"nuovo"_s);
    ini->SetVal(u"Database"_s, u"Attivo"_s, u"VERO"_s);
    ini->SetVal(u"Nuova"_s, u"Prezzo"_s, u"10 €"_s);
    EXPECT_EQ(readAll(path), "; suite\r\n[Database]\r\nServer=nuovo\r\nAttivo=True\r\n\r\n"
                             "[Altro]\nK=1\n[Nuova]\r\nPrezzo=10 \x80\r\n");
    EXPECT_EQ(ini->KeyValue(u"Nuova"_s, u"Prezzo"_s, u"x"_s, false), vb::Variant(u"10 €"_s));
    EXPECT_EQ(ini->KeyValue(u"Nuova"_s, u"Altro"_s, u"x"_s, true), vb::Variant(u"x"_s));
    EXPECT_EQ(ini->GetVal(u"Nuova"_s, u"Altro"_s), vb::Variant(u"x"_s));
}

TEST_F(IniTest, SectionAndKeyListsStartAtOne) {
    ASSERT_TRUE(writeFile(path, "[Uno]\r\na=1\r\n; b=2\r\n c = 3 \r\n[Due]\r\n[   ]\r\n[Tre]\r\n"));
    QStringList sections;
    EXPECT_EQ(ini->GetSections(sections), 2); // the blank name ends the walk
    EXPECT_EQ(sections, (QStringList{QString(), u"Uno"_s, u"Due"_s}));
    QStringList keys;
    EXPECT_EQ(ini->GetKeys(u"uno"_s, keys), 2);
    EXPECT_EQ(keys, (QStringList{QString(), u"a"_s, u"c"_s}));
    QStringList untouched{u"x"_s};
    EXPECT_EQ(ini->GetKeys(u"Due"_s, untouched), 0);
    EXPECT_EQ(untouched, QStringList{u"x"_s});
    QStringList none;
    nxIni missing;
    missing.SetIni(dir.file(u"nessuno.ini"_s));
    EXPECT_EQ(missing.GetSections(none), 0);
    EXPECT_EQ(missing.GetVal(u"a"_s, u"b"_s, u"d"_s), vb::Variant(u"d"_s));
}

TEST_F(IniTest, AnUnwritableFileGoesUnnoticed) {
    nxIni nowhere;
    nowhere.SetIni(dir.file(u"manca/config.ini"_s));
    nowhere.SetVal(u"S"_s, u"K"_s, u"V"_s);
    EXPECT_FALSE(QFile::exists(dir.file(u"manca/config.ini"_s)));
    EXPECT_TRUE(box->shown().empty());
    EXPECT_EQ(nowhere.GetIni(), dir.file(u"manca/config.ini"_s));
}

} // namespace
