#include "engine/SourceVerification.h"

#include "tests/engine/DbImportFixture.h"

using namespace enginetest;
using engine::SourceVerification;
using engine::TableReport;

namespace {

const QString kSeparator = u"==================================================="_s;

class SourceVerificationTest : public EngineTest {
protected:
    // Opens the source as the run does and verifies it into ConversionLog.txt.
    bool verify(const QString& source, bool& idxOk) {
        nxDb db;
        EXPECT_MEMBER_OK(db.DbOpen(source, 9, true, kJetProvider, {}, 2, {}, {}, 0));
        if (!db.IsOpened()) {
            return false;
        }
        nxLog log;
        log.LogSet(dir.file(u"ConversionLog.txt"_s));
        EXPECT_TRUE(log.LogOpen());
        SourceVerification check(db.ConnUtils()->CloneConnection(), db.Db(), log);
        const bool ok = check.AnalyzeDatabase(idxOk);
        log.LogClose();
        db.DbClose();
        return ok;
    }
    // The log without the stamps, the closing blank line and the "Fine" line.
    QStringList logLines() const {
        QStringList lines = logTexts(dir.file(u"ConversionLog.txt"_s));
        while (!lines.isEmpty() && lines.last().isEmpty()) {
            lines.removeLast();
        }
        return lines;
    }
};

TEST_F(SourceVerificationTest, CleanSourceNamesOnlyTheUnlistedArchive) {
    const QString source = copySource(u"small"_s);
    SKIP_WITHOUT_SOURCE(source);
    bool idxOk = true;
    EXPECT_TRUE(verify(source, idxOk));
    EXPECT_TRUE(idxOk);
    // D_BOZZE is in the file but not in DB_ELENCO; D_RIMOSSO is listed but absent, which the
    // verification does not look at; dictionaries are passed in silence.
    EXPECT_EQ(logLines(),
              (QStringList{kSeparator,
                           u"Tabella D_BOZZE non presente in DB_ELENCO. Non verrà importata."_s,
                           kSeparator}));
    EXPECT_TRUE(box->shown().empty());
}

// A date before 1753 fails the table in both passes it goes through: archives are also walked
// as system tables. 01/01/1753 itself passes, and a SYS_ date is never looked at (the source
// has a SYS_DATAINS of 1600).
TEST_F(SourceVerificationTest, DatesBeforeTheServersFirstDayAreListedByRecord) {
    const QString source = copySource(u"findings-dates"_s);
    SKIP_WITHOUT_SOURCE(source);
    bool idxOk = true;
    EXPECT_FALSE(verify(source, idxOk));
    EXPECT_TRUE(idxOk);
    const QStringList findings = {
        u"     Campi data non validi:"_s,
        u"          Campo [DATA_DOC]"_s,
        u"               SYS_RECORD: 1 (15/03/1700)"_s,
        u"               SYS_RECORD: 3 (31/12/1752 23:59:59)"_s,
    };
    QStringList expected = {kSeparator, u"Anomalie tabella di sistema D_ANOMALIE"_s};
    expected << findings << kSeparator << u"Anomalie tabella D_ANOMALIE (Archivio con anomalie)"_s;
    expected << findings << kSeparator
             << u"Tabella D_BOZZE non presente in DB_ELENCO. Non verrà importata."_s << kSeparator;
    EXPECT_EQ(logLines(), expected);
}

// The listing of a null key selects SYS_RECORD only, so reading the key column's value fails:
// the report names the field and lists no record.
TEST_F(SourceVerificationTest, NullKeyNamesTheFieldOnly) {
    const QString source = copySource(u"findings-nullkey"_s);
    SKIP_WITHOUT_SOURCE(source);
    bool idxOk = true;
    EXPECT_FALSE(verify(source, idxOk));
    EXPECT_TRUE(idxOk);
    const QStringList lines = logLines();
    const QStringList archive = {
        kSeparator, u"Anomalie tabella D_ANOMALIE (Archivio con anomalie)"_s,
        u"     Campi della chiave primaria con valori nulli:"_s, u"          Campo [CHIAVE]"_s};
    ASSERT_GE(lines.size(), 8);
    EXPECT_EQ(lines.mid(4, 4), archive);
    EXPECT_EQ(lines.mid(0, 2), (QStringList{kSeparator, u"Anomalie tabella di sistema D_ANOMALIE"_s}));
    EXPECT_FALSE(lines.join(u'\n').contains(u"SYS_RECORD:"_s));
}

// A memo in an index is a hard finding; its octet length (0 on Jet) leaves the key short.
TEST_F(SourceVerificationTest, MemoInAnIndexGivesTheAdviceOnce) {
    const QString source = copySource(u"findings-memoindex"_s);
    SKIP_WITHOUT_SOURCE(source);
    bool idxOk = true;
    EXPECT_FALSE(verify(source, idxOk));
    EXPECT_TRUE(idxOk);
    const QStringList memo = {
        u"     Indice 'NOTE': Campo 'NOTE' di tipo MEMO."_s,
        u"          In SQL Server non è possibile indicizzare un campo di tipo MEMO."_s,
        u"          Modificare il tipo dei campi o la definizione degli indici sopra elencati."_s};
    const QStringList lines = logLines();
    ASSERT_GE(lines.size(), 10);
    EXPECT_EQ(lines.mid(2, 3), memo);
    EXPECT_EQ(lines.at(6), u"Anomalie tabella D_ANOMALIE (Archivio con anomalie)"_s);
    EXPECT_EQ(lines.mid(7, 3), memo);
}

// 510 + 382 + 8 bytes pass; one yes/no more is over the limit, which only lowers IdxOk and is
// checked for listed archives only (not in the system pass).
TEST_F(SourceVerificationTest, IndexLengthEdge) {
    const QString exact = copySource(u"findings-index900"_s);
    SKIP_WITHOUT_SOURCE(exact);
    bool idxOk = true;
    EXPECT_TRUE(verify(exact, idxOk));
    EXPECT_TRUE(idxOk);
    EXPECT_EQ(logLines().size(), 3);

    QFile::remove(dir.file(u"ConversionLog.txt"_s));
    const QString over = copySource(u"findings-index901"_s);
    idxOk = true;
    EXPECT_TRUE(verify(over, idxOk));
    EXPECT_FALSE(idxOk);
    EXPECT_EQ(logLines(),
              (QStringList{kSeparator, u"Anomalie tabella D_ANOMALIE (Archivio con anomalie)"_s,
                           u"     Indice LUNGO di lunghezza eccessiva."_s,
                           u"     - Modificare la definizione dell'archivio."_s, kSeparator,
                           u"Tabella D_BOZZE non presente in DB_ELENCO. Non verrà importata."_s,
                           kSeparator}));
}

// The walks over the tables show a failure and go on with what they found; a missing
// DB_ELENCO makes every archive pass fail that way.
TEST_F(SourceVerificationTest, AWalkThatFailsShowsWhereAndKeepsItsResult) {
    const QString source = copySource(u"small"_s);
    SKIP_WITHOUT_SOURCE(source);
    nxDb db;
    ASSERT_MEMBER_OK(db.DbOpen(source, 9, true, kJetProvider, {}, 2, {}, {}, 0));
    nxLog log;
    log.LogSet(dir.file(u"ConversionLog.txt"_s));
    ASSERT_TRUE(log.LogOpen());
    SourceVerification check(db.ConnUtils()->CloneConnection(), db.Db(), log);
    ado::RecordsetPtr tables = db.cn()->OpenSchema(ado::SchemaEnum::adSchemaTables,
                                                   {vb::Variant(), vb::Variant(), vb::Variant(),
                                                    vb::Variant(u"TABLE"_s)});
    bool idxOk = true;
    // A filter the grammar refuses fails inside the walk.
    box->answer(win::id::kOk);
    EXPECT_TRUE(check.AnalyzeTables(*tables, idxOk, u"TABLE_NAME like"_s, false));
    ASSERT_EQ(box->shown().size(), 1u);
    EXPECT_TRUE(box->last().text.startsWith(u"Errore "_s));
    EXPECT_TRUE(box->last().text.endsWith(u") - DbImport.AnalyzeTables()"_s));
    EXPECT_EQ(box->last().flags, 48);
    EXPECT_TRUE(idxOk);

    // Checks of a table that is not there fail quietly.
    TableReport report = TableReport::forSystemTable(u"NESSUNA"_s);
    EXPECT_FALSE(check.CheckDateFields(u"NESSUNA"_s, report) &&
                 check.CheckMemoIndexes(u"NESSUNA"_s, report));
    EXPECT_EQ(report.lines().size(), 2);
    log.LogClose();
}

} // namespace
