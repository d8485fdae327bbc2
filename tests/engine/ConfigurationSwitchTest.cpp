#include "engine/ConfigurationSwitch.h"

#include "engine/ConfigCipher.h"
#include "frame/nxApp.h"
#include "frame/nxIni.h"
#include "frame/nxLog.h"

#include "platform/capicom/Error.h"

#include "tests/support/AppFixture.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace engine;

namespace {

const ServerSettings kSettings{u"SRV\\SQL2019"_s, u"Archivio2024"_s, u"Archivio dell'anno"_s,
                               u"sa"_s, u"pass word"_s};

class ConfigurationSwitchTest : public apptest::AppTest {
protected:
    void SetUp() override {
        AppTest::SetUp();
        ASSERT_FALSE(HasFatalFailure());
        source = dir.file(u"QZSystem.mdb"_s);
        ini = dir.file(u"config.ini"_s);
        QFile mdb(source);
        ASSERT_TRUE(mdb.open(QIODevice::WriteOnly));
        mdb.write("jet");
    }
    void TearDown() override {
        log.LogClose();
        AppTest::TearDown();
    }

    void openLog() {
        log.LogSet(dir.file(u"ConversionLog.txt"_s));
        ASSERT_TRUE(log.LogOpen());
    }
    QString readText(const QString& path) const {
        QFile f(path);
        return f.open(QIODevice::ReadOnly) ? QString::fromLatin1(f.readAll()) : QString();
    }
    QString plain(const QString& key) const {
        nxIni file;
        file.SetIni(ini);
        return Decrypt_Text(file.GetVal(u"Database"_s, key, u""_s).toString(),
                            QString::fromUtf16(kConfigSecret), true);
    }

    nxLog log;
    QString source;
    QString ini;
};

} // namespace

TEST_F(ConfigurationSwitchTest, NewFileHoldsTheSevenKeysInOrder) {
    openLog();
    ConfigurationSwitch(&log).SaveConfiguration(source, kSettings);
    EXPECT_FALSE(QFile::exists(ini + u".old"_s));
    EXPECT_EQ(plain(u"DatabaseType"_s), u"1"_s);
    EXPECT_EQ(plain(u"ServerName"_s), u"SRV\\SQL2019"_s);
    EXPECT_EQ(plain(u"DatabaseName"_s), u"Archivio2024"_s);
    EXPECT_EQ(plain(u"DatabaseDesc"_s), u"Archivio dell'anno"_s);
    EXPECT_EQ(plain(u"SqlAuthType"_s), u"1"_s);
    EXPECT_EQ(plain(u"SqlUsername"_s), u"sa"_s);
    EXPECT_EQ(plain(u"SqlPassword"_s), u"pass word"_s);
    const QString text = readText(ini);
    EXPECT_FALSE(text.contains(u"pass word"_s));
    qsizetype at = text.indexOf(u"[Database]"_s);
    ASSERT_GE(at, 0);
    for (const QString& key : {u"DatabaseType="_s, u"ServerName="_s, u"DatabaseName="_s,
                               u"DatabaseDesc="_s, u"SqlAuthType="_s, u"SqlUsername="_s,
                               u"SqlPassword="_s}) {
        const qsizetype next = text.indexOf(key, at);
        EXPECT_GT(next, at) << key.toStdString();
        at = next;
    }
    log.LogClose();
    EXPECT_TRUE(readText(dir.file(u"ConversionLog.txt"_s)).contains(u" - Creato "_s + ini + u".\r\n"_s));
    EXPECT_TRUE(box->shown().empty());
}

TEST_F(ConfigurationSwitchTest, IntegratedSecurityLeavesUserAndPasswordEmpty) {
    ServerSettings s = kSettings;
    s.username.clear();
    s.password = u"   "_s;
    ConfigurationSwitch(nullptr).SaveConfiguration(source, s);
    EXPECT_EQ(plain(u"SqlAuthType"_s), u"0"_s);
    // An empty value is written as "key=", which a profile read treats like a missing key.
    const QString text = readText(ini);
    EXPECT_TRUE(text.contains(u"SqlUsername=\r\n"_s)) << text.toStdString();
    EXPECT_TRUE(text.contains(u"SqlPassword=\r\n"_s)) << text.toStdString();
}

TEST_F(ConfigurationSwitchTest, OldFileIsKeptAndOtherSectionsStay) {
    {
        QFile f(ini);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("[Generale]\r\nLingua=IT\r\n[Database]\r\nDatabaseType=0\r\nAltro=5\r\n");
    }
    const QString before = readText(ini);
    ConfigurationSwitch(nullptr).SaveConfiguration(source, kSettings);
    EXPECT_EQ(readText(ini + u".old"_s), before);
    nxIni file;
    file.SetIni(ini);
    EXPECT_EQ(file.GetVal(u"Generale"_s, u"Lingua"_s, u""_s).toString(), u"IT"_s);
    EXPECT_EQ(file.GetVal(u"Database"_s, u"Altro"_s, u""_s).toString(), u"5"_s);
    EXPECT_EQ(plain(u"DatabaseType"_s), u"1"_s);
}

TEST_F(ConfigurationSwitchTest, FailedCopyLeavesTheConfigurationAsItWas) {
    {
        QFile f(ini);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("[Database]\r\nDatabaseType=0\r\n");
    }
    // A folder where the copy should go makes the copy fail.
    ASSERT_TRUE(QDir(dir.path()).mkpath(u"config.ini.old/x"_s));
    box->setFallback(1);
    ConfigurationSwitch(nullptr).SaveConfiguration(source, kSettings);
    ASSERT_FALSE(box->shown().empty());
    const auto& asked = box->shown().back();
    EXPECT_EQ(asked.flags, 448);
    EXPECT_EQ(asked.text,
              u"Errore nella copia della vecchia configurazione. Controllare lo spazio disponibile su disco e i diritti di scrittura dell'utente che si sta utilizzando.\r\nProcedere al salvataggio della nuova configurazione?"_s);
    EXPECT_EQ(readText(ini), u"[Database]\r\nDatabaseType=0\r\n"_s);
}

TEST_F(ConfigurationSwitchTest, CipherFailureIsToldAndKeysBeforeItStay) {
    openLog();
    int calls = 0;
    ConfigurationSwitch failing(&log, [&](const QString& value) -> QString {
        if (++calls == 3) {
            capicom::Raise(capicom::Hr::NotSupported, QString::fromUtf16(capicom::kSourceEncryptedData));
        }
        return value;
    });
    box->answer(1);
    failing.SaveConfiguration(source, kSettings);
    ASSERT_EQ(box->shown().size(), 1u);
    EXPECT_EQ(box->last().flags, 48);
    const QString number = QString::number(static_cast<std::int32_t>(0x80880900));
    EXPECT_TRUE(box->last().text.startsWith(
        u"Errore nel salvataggio della configurazione. Controllare lo spazio disponibile su disco e i diritti di scrittura dell'utente che si sta utilizzando.\r\n("_s +
        number + u": "_s))
        << box->last().text.toStdString();
    nxIni file;
    file.SetIni(ini);
    EXPECT_EQ(file.GetVal(u"Database"_s, u"ServerName"_s, u""_s).toString(), u"SRV\\SQL2019"_s);
    EXPECT_EQ(file.GetVal(u"Database"_s, u"DatabaseName"_s, u"none"_s).toString(), u"none"_s);
    log.LogClose();
    const QString logText = readText(dir.file(u"ConversionLog.txt"_s));
    EXPECT_TRUE(logText.contains(u" - Errore "_s + number + u": "_s));
    EXPECT_FALSE(logText.contains(u"Creato"_s));
}

TEST_F(ConfigurationSwitchTest, RenameSource) {
    ConfigurationSwitch sw(nullptr);
    EXPECT_TRUE(sw.RenameSource(source));
    EXPECT_TRUE(QFile::exists(source + u".old"_s));
    EXPECT_FALSE(QFile::exists(source));
    EXPECT_TRUE(box->shown().empty());
    // Renamed already: the file is gone, and the box says so.
    box->setFallback(1);
    EXPECT_FALSE(sw.RenameSource(source));
    EXPECT_EQ(box->last().flags, 48);
    EXPECT_EQ(box->last().text,
              u"Impossibile rinominare il database originario "_s + source +
                  u".\r\nControllare i diritti di scrittura dell'utente che si sta utilizzando o verificare che il database non sia in uso da parte di altri programmi."_s);
}
