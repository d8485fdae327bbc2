#include "frame/nxSys.h"

#include "tests/console/WindowFixture.h"

#include <QLabel>
#include <QProgressBar>

using namespace Qt::StringLiterals;

namespace {

class FeedTest : public WindowTest {
protected:
    QStringList logLines() const {
        QStringList lines;
        for (int i = 0; i < list("lstLog")->count(); ++i) {
            lines << list("lstLog")->item(i)->text();
        }
        return lines;
    }
    // The newest line is the selected one after every event.
    void expectNewestSelected() const {
        EXPECT_EQ(list("lstLog")->currentRow(), list("lstLog")->count() - 1);
    }
    QProgressBar* tables() const { return control<QProgressBar>("pgBarTbl"); }
    QProgressBar* records() const { return control<QProgressBar>("pgBarRec"); }
    QString counter() const { return control<QLabel>("lblRec")->text(); }
};

TEST_F(FeedTest, SystemTablesMoveTheTableBarWithoutResettingIt) {
    tables()->setValue(4); // what an earlier run left
    window->m_cDbImp_EVTImportStart();
    window->m_cDbImp_EVTSysTableImportStart(20);
    EXPECT_EQ(tables()->maximum(), 20);
    EXPECT_EQ(tables()->value(), 4);
    window->m_cDbImp_EVTSysTableImporting(3, u"QZSYSTEM"_s);
    EXPECT_EQ(tables()->value(), 3);
    EXPECT_EQ(window->StatusText(), u"Importazione tabella di sistema QZSYSTEM"_s);
    // Not held: an index beyond the bar does not move it.
    window->m_cDbImp_EVTSysTableImporting(25, u"OLTRE"_s);
    EXPECT_EQ(tables()->value(), 3);
    EXPECT_EQ(logLines(), (QStringList{u"Inizio importazione archivio."_s,
                                       u"Importazione tabella di sistema QZSYSTEM"_s,
                                       u"Importazione tabella di sistema OLTRE"_s}));
    expectNewestSelected();
}

TEST_F(FeedTest, TheRecordBarIsHeldAtBothEnds) {
    window->m_cDbImp_EVTTableImportStart(0);
    EXPECT_EQ(counter(), u"0 / 0"_s);
    EXPECT_EQ(records()->minimum(), 0);
    EXPECT_EQ(records()->maximum(), 1);
    EXPECT_EQ(records()->value(), 0);

    window->m_cDbImp_EVTTableImportStart(100);
    EXPECT_EQ(counter(), u"0 / 100"_s);
    EXPECT_EQ(records()->maximum(), 100);
    window->m_cDbImp_EVTRecordImporting(120, 100);
    EXPECT_EQ(counter(), u"120 / 100"_s);
    EXPECT_EQ(records()->value(), 100);
    window->m_cDbImp_EVTRecordImporting(30, 100);
    EXPECT_EQ(records()->value(), 30);
    window->m_cDbImp_EVTTableImportEnd();
    EXPECT_EQ(counter(), QString());
    EXPECT_EQ(records()->value(), 0);
    EXPECT_EQ(list("lstLog")->count(), 0); // the record channel writes no lines
}

TEST_F(FeedTest, UserTablesShowNameAndDescriptionAndTheStatusTheDescription) {
    tables()->setMaximum(5);
    tables()->setValue(5);
    window->m_cDbImp_EVTUserTableImportStart(12);
    EXPECT_EQ(tables()->value(), 0);
    EXPECT_EQ(tables()->maximum(), 12);
    window->m_cDbImp_EVTUserTableImporting(2, u"ARC_0001"_s, vb::Variant(u"Fatture"_s));
    EXPECT_EQ(window->StatusText(), u"Importazione tabella utente 'Fatture'"_s);
    EXPECT_EQ(tables()->value(), 2);
    window->m_cDbImp_EVTUserTableCreating(u"ARC_0001"_s, vb::Variant(u"Fatture"_s));
    window->m_cDbImp_EVTUserTableDataCopy(u"ARC_0001"_s, vb::Variant(u"Fatture"_s));
    window->m_cDbImp_EVTUserTableIndexCreating(u"ARC_0001"_s, vb::Variant(u"Fatture"_s));
    // A description that is Null reads as nothing between the brackets.
    window->m_cDbImp_EVTUserTableNotExisting(u"ARC_0002"_s, vb::Variant(vb::Null{}));
    EXPECT_EQ(logLines(),
              (QStringList{u"Sono presenti 12 archivi utente nel db di origine."_s,
                           u"Importazione tabella utente ARC_0001 (Fatture)"_s,
                           u"---> Creazione tabella ARC_0001 (Fatture)"_s,
                           u"---> Copia dati tabella ARC_0001 (Fatture)"_s,
                           u"---> Creazione indici tabella ARC_0001 (Fatture)"_s,
                           u"---> La tabella ARC_0002 () non esiste nel db sorgente."_s}));
    expectNewestSelected();
}

TEST_F(FeedTest, DictionariesHoldTheBarAtItsTopAndStagesNameTheirStep) {
    window->m_cDbImp_EVTDictionayImportStart(2);
    window->m_cDbImp_EVTDictionaryImporting(1, u"DIZ_CITTA"_s);
    EXPECT_EQ(tables()->value(), 1);
    EXPECT_EQ(window->StatusText(), u"Importazione dizionario 'DIZ_CITTA'"_s);
    window->m_cDbImp_EVTDictionaryCreating(u"DIZ_CITTA"_s, 1);
    window->m_cDbImp_EVTDictionaryCreating(u"DIZ_CITTA"_s, 2);
    window->m_cDbImp_EVTDictionaryCreating(u"DIZ_CITTA"_s, 3);
    window->m_cDbImp_EVTDictionaryCreating(u"DIZ_CITTA"_s, 4); // no line
    window->m_cDbImp_EVTDictionaryImporting(7, u"DIZ_VIE"_s);
    EXPECT_EQ(tables()->value(), 2);
    window->m_cDbImp_EVTDictionaryNotExisting(u"DIZ_VIE"_s);
    // A group of none sets the top to 0, with no guard.
    window->m_cDbImp_EVTDictionayImportStart(0);
    EXPECT_EQ(tables()->maximum(), 0);
    EXPECT_EQ(
        logLines(),
        (QStringList{u"Sono presenti 2 dizionari nel db di origine."_s,
                     u"Importazione dizionario DIZ_CITTA"_s,
                     u"---> Creazione dizionario DIZ_CITTA"_s, u"---> Copia dizionario DIZ_CITTA"_s,
                     u"---> Creazione indici"_s, u"Importazione dizionario DIZ_VIE"_s,
                     u"---> Il dizionario DIZ_VIE non esiste nel db sorgente."_s,
                     u"Sono presenti 0 dizionari nel db di origine."_s}));
}

TEST_F(FeedTest, ErrorKindsChooseLineAndBox) {
    box->answer({1, 1});
    window->m_cDbImp_EVTError(0, u"Nome database non valido."_s, false);
    window->m_cDbImp_EVTError(1, u"Creazione fallita."_s, true);
    window->m_cDbImp_EVTError(2, u"Due"_s, false);
    window->m_cDbImp_EVTError(3, u"riga 4"_s, false);
    window->m_cDbImp_EVTError(4, u"IX_1"_s, false);
    window->m_cDbImp_EVTError(6, u"Stato"_s, false);
    window->m_cDbImp_EVTError(9, u"ignoto"_s, false);
    EXPECT_EQ(logLines(), (QStringList{u"Nome database non valido."_s, u"Creazione fallita."_s,
                                       u"Due"_s, u"Errore conversione dati: riga 4"_s,
                                       u"Errore creazione indice: IX_1"_s, u"Stato"_s}));
    expectNewestSelected();
    ASSERT_EQ(box->shown().size(), 2U);
    EXPECT_EQ(box->shown()[0].text, u"Nome database non valido."_s);
    EXPECT_EQ(box->shown()[1].flags, 48);
}

TEST_F(FeedTest, AFailedVerificationOffersTheLogBesideTheSource) {
    const QString folder = archiveFolder(u"src"_s);
    dialog->answers.push_back(folder + u"/QZSystem.mdb"_s);
    writeFile(folder + u"/config.ini"_s, "[Database]\r\n");
    click(buttonNamed("cmdPath")); // the source path the log is looked for beside

    box->answer({win::id::kOk, win::id::kNo, win::id::kYes});
    window->m_cDbImp_EVTError(5, u"tabelle mancanti"_s, false);
    window->m_cDbImp_EVTError(5, u"tabelle mancanti"_s, true);
    window->m_cDbImp_EVTError(5, u"tabelle mancanti"_s, true);
    ASSERT_EQ(box->shown().size(), 3U);
    EXPECT_EQ(box->shown()[0].text, u"Errore verifica database sorgente: tabelle mancanti"_s);
    EXPECT_EQ(box->shown()[0].flags, 48);
    EXPECT_EQ(box->shown()[1].text, u"Errore verifica database sorgente: tabelle mancanti"
                                    u"\r\n\r\nVisualizzare il log ora?"_s);
    EXPECT_EQ(box->shown()[1].flags, 36);
    // Only the Yes opens the log, in the source's folder.
    ASSERT_EQ(shell->calls.size(), 1U);
    EXPECT_EQ(shell->calls[0].file,
              nxApp::Sys().GetDir(folder + u"/QZSystem.mdb"_s) + u"ConversionLog.txt"_s);
    EXPECT_EQ(shell->calls[0].verb, u"open"_s);
    EXPECT_EQ(logLines(), QStringList(3, u"Verifica database sorgente non riuscita."_s));
}

} // namespace
