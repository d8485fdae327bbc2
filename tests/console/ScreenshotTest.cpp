#include "tests/console/WindowFixture.h"

#include <QDir>
#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QProgressBar>

using namespace Qt::StringLiterals;

namespace {

// The pictures of the window in the README. The window is grabbed in every run (so a window
// that can no longer paint fails here); the files under docs/ are rewritten only with
// UPSIZER_UPDATE_SCREENSHOTS=1.
class ScreenshotTest : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        window->resize(640, 720);
        window->Form_Load();
        window->show();
    }
    void save(const QString& name) {
        QCoreApplication::processEvents();
        const QPixmap picture = window->grab();
        ASSERT_FALSE(picture.isNull());
        EXPECT_EQ(picture.size(), window->size());
        // Not a blank picture: the controls are drawn in more than one colour.
        const QImage image = picture.toImage();
        EXPECT_NE(image.pixel(5, 5), image.pixel(image.width() / 2, image.height() / 2 + 40));
        if (qEnvironmentVariable("UPSIZER_UPDATE_SCREENSHOTS") == u"1"_s) {
            const QString folder = QStringLiteral(UPSIZER_SOURCE_DIR) + u"/docs/screens"_s;
            QDir().mkpath(folder);
            EXPECT_TRUE(picture.save(folder + u"/"_s + name));
        }
    }
};

TEST_F(ScreenshotTest, TheIdleWindow) {
    save(u"idle.png"_s);
}

TEST_F(ScreenshotTest, AFinishedRun) {
    typeServer(u"SRV01\\ARCHIVIO"_s);
    type("txtMDBPath", u"C:\\Solvaria\\Dati\\QZSystem.mdb"_s);
    type("txtDbName", u"SolvariaSede"_s);
    type("txtDbDesc", u"Archivio sede centrale"_s);
    type("txtUsername", u"sa"_s);
    type("txtPassword", u"password"_s);
    window->m_cDbImp_EVTError(6, u"Inizio verifica database sorgente..."_s, false);
    window->m_cDbImp_EVTImportStart();
    window->m_cDbImp_EVTSysTableImportStart(3);
    for (std::int16_t i = 0; i < 3; ++i) {
        const QString table = QStringList{u"QZSYSTEM"_s, u"DB_ELENCO"_s, u"DB_DIZIONARIO"_s}[i];
        window->m_cDbImp_EVTSysTableImporting(i, table);
    }
    window->m_cDbImp_EVTUserTableImportStart(2);
    const QStringList archives{u"Fatture clienti"_s, u"Contratti"_s};
    for (std::int16_t i = 0; i < 2; ++i) {
        const QString table = u"%1"_s.arg(i + 1, 4, 10, QChar(u'0'));
        const vb::Variant description(archives[i]);
        window->m_cDbImp_EVTUserTableImporting(static_cast<std::int16_t>(i + 1), table,
                                               description);
        window->m_cDbImp_EVTUserTableCreating(table, description);
        window->m_cDbImp_EVTUserTableIndexCreating(table, description);
        window->m_cDbImp_EVTUserTableDataCopy(table, description);
    }
    window->m_cDbImp_EVTDictionayImportStart(1);
    window->m_cDbImp_EVTDictionaryImporting(1, u"DIZ_CITTA"_s);
    window->m_cDbImp_EVTDictionaryCreating(u"DIZ_CITTA"_s, 1);
    window->m_cDbImp_EVTDictionaryCreating(u"DIZ_CITTA"_s, 2);
    window->m_cDbImp_EVTDictionaryCreating(u"DIZ_CITTA"_s, 3);
    window->m_cDbImp_EVTImportEnd();
    window->m_cDbImp_EVTTableImportStart(1250);
    window->m_cDbImp_EVTRecordImporting(1250, 1250);
    EXPECT_EQ(list("lstLog")->count(), 20);
    save(u"finished-run.png"_s);
}

} // namespace
