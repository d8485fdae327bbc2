// A whole conversion of a Solvaria-shaped source built by mdbgen, through DbImport::Run, on a
// recording "SQLOLEDB" that answers the catalog questions as a SQL Server 2005 holding the new
// database would: what reaches the server, what the window hears, the conversion log, config.ini
// and the rename of the source.

#include "engine/ConfigCipher.h"
#include "engine/DbImport.h"

#include "schema/Catalogue.h"
#include "schema/qzSystem.h"

#include "frame/nxIni.h"

#include "platform/ado/Connection.h"
#include "platform/ado/Field.h"
#include "platform/ado/ProviderRegistry.h"
#include "platform/ado/Recordset.h"
#include "platform/ado/SchemaRowsets.h"

#include "tests/engine/DbImportEventLog.h"
#include "tests/engine/DbImportFixture.h"
#include "tests/support/CreatingServer.h"
#include "tests/support/Golden.h"

#include <QDir>
#include <QHash>

#include <algorithm>

using namespace enginetest;
using ado::recording::Journal;

namespace {

const QString kDatabase = u"Archivio2024"_s;

// The words SQLOLEDB gives as its own keywords: T-SQL's words that are not among OLE DB's SQL-92
// keywords.
const QStringList kServerKeywords = {
    u"BREAK"_s,      u"BROWSE"_s,      u"BULK"_s,        u"CHECKPOINT"_s,  u"CLUSTERED"_s,
    u"COMMITTED"_s,  u"COMPUTE"_s,     u"CONFIRM"_s,     u"CONTROLROW"_s,  u"DATABASE"_s,
    u"DBCC"_s,       u"DISK"_s,        u"DISTRIBUTED"_s, u"DUMMY"_s,       u"DUMP"_s,
    u"ERRLVL"_s,     u"ERROREXIT"_s,   u"EXIT"_s,        u"FILE"_s,        u"FILLFACTOR"_s,
    u"FLOPPY"_s,     u"HOLDLOCK"_s,    u"IDENTITY_INSERT"_s, u"IDENTITYCOL"_s, u"IF"_s,
    u"KILL"_s,       u"LINENO"_s,      u"LOAD"_s,        u"MIRROREXIT"_s,  u"NONCLUSTERED"_s,
    u"OFF"_s,        u"OFFSETS"_s,     u"ONCE"_s,        u"OVER"_s,        u"PERCENT"_s,
    u"PERM"_s,       u"PERMANENT"_s,   u"PLAN"_s,        u"PRINT"_s,       u"PROC"_s,
    u"PROCESSEXIT"_s, u"RAISERROR"_s,  u"READ"_s,        u"READTEXT"_s,    u"RECONFIGURE"_s,
    u"REPEATABLE"_s, u"RETURN"_s,      u"ROWCOUNT"_s,    u"RULE"_s,        u"SAVE"_s,
    u"SERIALIZABLE"_s, u"SETUSER"_s,   u"SHUTDOWN"_s,    u"STATISTICS"_s,  u"TAPE"_s,
    u"TEMP"_s,       u"TEXTSIZE"_s,    u"TOP"_s,         u"TRAN"_s,        u"TRIGGER"_s,
    u"TRUNCATE"_s,   u"TSEQUEL"_s,     u"UNCOMMITTED"_s, u"UPDATETEXT"_s,  u"USE"_s,
    u"WAITFOR"_s,    u"WHILE"_s,       u"WRITETEXT"_s,
};

// The question nxConn asks the server for a table's identity column.
QString identityQuestion(const QString& table) {
    return u"select t1.TABLE_NAME, c1.COLUMN_NAME "
           u"from INFORMATION_SCHEMA.TABLES t1 inner join INFORMATION_SCHEMA.COLUMNS c1  "
           u"on t1.TABLE_NAME = c1.TABLE_NAME "
           u"where c1.TABLE_SCHEMA = 'dbo' and "
           u"t1.TABLE_TYPE = 'BASE TABLE' and "
           u"columnproperty(object_id(c1.TABLE_NAME), c1.COLUMN_NAME, 'IsIdentity') = 1 and "
           u"t1.TABLE_NAME like '"_s +
           table + u'\'';
}

// The type the server's columns rowset gives a column the conversion made from a Jet column:
// text and memo come back as wide strings, dates as timestamps.
std::int32_t serverColumnType(std::int32_t jetType) {
    switch (jetType) {
    case 202:
    case 203:
        return 130;
    case 7:
        return 135;
    default:
        return jetType;
    }
}

ado::Row tableRow(const QString& name) {
    return ado::SchemaRow(ado::SchemaEnum::adSchemaTables)
        .set(u"TABLE_NAME", name)
        .set(u"TABLE_TYPE", u"TABLE"_s)
        .take();
}

ado::Row columnRow(const QString& table, const QString& column, std::int32_t type) {
    return ado::SchemaRow(ado::SchemaEnum::adSchemaColumns)
        .set(u"TABLE_NAME", table)
        .set(u"COLUMN_NAME", column)
        .set(u"DATA_TYPE", type)
        .take();
}

// What the source holds, read through the Jet provider before the run: the answers a server
// gives once the system tables are copied, and the archives' columns as they will be created.
struct SourceFacts {
    std::vector<ado::Row> archives; // SYS_SERIALE, ARCHIVIO in the server's order
    long dictionaries = 0;
    vb::Variant description;
    std::vector<ado::Row> userColumns;
    QStringList userTables; // archives (listed or not) and dictionaries present in the file
    QHash<QString, long> records; // of each of those tables
};

SourceFacts readSource(const QString& path) {
    SourceFacts facts;
    auto cn = ado::Connection::create();
    cn->Open(u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + path +
             u";Jet OLEDB:Database Password=brnzolvet52"_s);
    auto list = cn->Execute(u"select SYS_SERIALE, ARCHIVIO from DB_ELENCO"_s);
    QList<std::pair<QString, vb::Variant>> archives;
    for (; !list->Eof(); list->MoveNext()) {
        archives.append({list->Fields(0L).Value().toString(), list->Fields(1L).Value()});
    }
    list->Close();
    // The server's collation orders without regard to case.
    std::sort(archives.begin(), archives.end(), [](const auto& a, const auto& b) {
        return a.first.compare(b.first, Qt::CaseInsensitive) < 0;
    });
    for (const auto& [name, text] : archives) {
        facts.archives.push_back({vb::Variant(name), text});
    }
    auto count = cn->Execute(u"select count(*) from DB_DIZIONARIO"_s);
    facts.dictionaries = count->Fields(0L).Value().toLong().value_or(0);
    count->Close();
    auto qz = cn->Execute(u"select DESCRIZIONE from QZSYSTEM"_s);
    facts.description = qz->Fields(0L).Value();
    qz->Close();

    auto columns = cn->OpenSchema(ado::SchemaEnum::adSchemaColumns);
    for (; !columns->Eof(); columns->MoveNext()) {
        const QString table = columns->Fields(u"TABLE_NAME").Value().toString();
        const bool archive = std::any_of(archives.begin(), archives.end(), [&](const auto& a) {
            return a.first.compare(table, Qt::CaseInsensitive) == 0;
        });
        if (!archive && !table.startsWith(u"DIZ_"_s, Qt::CaseInsensitive) &&
            !table.startsWith(u"D_"_s, Qt::CaseInsensitive)) {
            continue;
        }
        if (!facts.userTables.contains(table)) {
            facts.userTables << table;
        }
        facts.userColumns.push_back(columnRow(
            table, columns->Fields(u"COLUMN_NAME").Value().toString(),
            serverColumnType(columns->Fields(u"DATA_TYPE").Value().toLong().value_or(0))));
    }
    columns->Close();
    for (const QString& table : facts.userTables) {
        auto n = cn->Execute(u"select count(*) from ["_s + table + u"]"_s);
        facts.records.insert(table, n->Fields(0L).Value().toLong().value_or(-1));
        n->Close();
    }
    cn->Close();
    return facts;
}

class DbImportEndToEndTest : public EngineTest {
protected:
    void SetUp() override {
        EngineTest::SetUp();
        // Made once the application object is started: the string builders do nothing before.
        runner = std::make_unique<DbImport>(&events);
        DbImport& run = *runner;
        run.DbName(kDatabase);
        run.DbDesc(u"Archivio dell'anno"_s);
        run.DbServerName(u"SRV01"_s);
        run.DbUsername(u"sa"_s);
        run.DbPassword(u"pw"_s);
        ado::recording::Script& script = server->script();
        script.property(u"DBMS Version"_s, u"09.00.5000"_s);
        std::vector<ado::Row> keywords;
        for (const QString& word : kServerKeywords) {
            keywords.push_back(ado::SchemaRow(ado::SchemaEnum::adSchemaDBInfoKeywords)
                                   .set(u"Keyword", word)
                                   .take());
        }
        script.schema(ado::SchemaEnum::adSchemaDBInfoKeywords, keywords);
        std::vector<ado::Row> literals;
        for (const char16_t* name : {u"Catalog_Name", u"Column_Name", u"Index_Name",
                                     u"Quote_Prefix", u"Quote_Suffix", u"Table_Name"}) {
            literals.push_back(ado::SchemaRow(ado::SchemaEnum::adSchemaDBInfoLiterals)
                                   .set(u"LiteralName", QString::fromUtf16(name))
                                   .take());
        }
        script.schema(ado::SchemaEnum::adSchemaDBInfoLiterals, literals);
        run.SetDatabaseCreator([this](const QString& name, long flags, bool silent,
                                      const QString& provider, const QString& serverName,
                                      long engineType, const QString& user,
                                      const QString& password) {
            m_createFrom = server->journal().entries().size();
            const bool made = qzSystem::DbCreate(name, flags, silent, provider, serverName,
                                                 engineType, user, password);
            m_createTo = server->journal().entries().size();
            if (made) {
                holdSystemTables();
            }
            return made;
        });
    }

    // The source's answers, scripted before the run.
    void answerFrom(const SourceFacts& facts) {
        ado::recording::Script& script = server->script();
        script.returns(u"select count(*) from DB_ELENCO"_s,
                       ado::recording::rows({{u"n"_s, ado::DataTypeEnum::adInteger}},
                                            {{vb::Variant(static_cast<std::int32_t>(
                                                facts.archives.size()))}}));
        script.returns(u"select SYS_SERIALE, ARCHIVIO from DB_ELENCO order by SYS_SERIALE"_s,
                       ado::recording::rows({{u"SYS_SERIALE"_s, ado::DataTypeEnum::adVarWChar},
                                             {u"ARCHIVIO"_s, ado::DataTypeEnum::adVarWChar}},
                                            facts.archives));
        script.returns(u"select count(*) from DB_DIZIONARIO"_s,
                       ado::recording::rows({{u"n"_s, ado::DataTypeEnum::adInteger}},
                                            {{vb::Variant(static_cast<std::int32_t>(
                                                facts.dictionaries))}}));
        script.returns(u"select DESCRIZIONE from QZSYSTEM"_s,
                       ado::recording::rows({{u"DESCRIZIONE"_s, ado::DataTypeEnum::adVarWChar}},
                                            {{facts.description}}));
        // The archives and dictionaries the run creates have no identity column: their
        // SYS_RECORD becomes a plain int, so the identity question finds nothing.
        m_userColumns = facts.userColumns;
    }

    // After the creation the server holds the suite's system tables, with the foreign keys of
    // the relations that cascade (the 62 qzSystem::DbCreate makes), listed by name as SQL
    // Server's catalog lists them.
    void holdSystemTables() {
        const schema::Catalogue& catalogue = schema::Catalogue::builtIn();
        QList<const schema::TableDef*> tables;
        for (const schema::TableDef& t : catalogue.tables()) {
            tables.append(&t);
        }
        std::sort(tables.begin(), tables.end(), [](const auto* a, const auto* b) {
            return a->name.compare(b->name, Qt::CaseInsensitive) < 0;
        });
        std::vector<ado::Row> tableRows;
        std::vector<ado::Row> columnRows = m_userColumns;
        ado::recording::Script& script = server->script();
        for (const schema::TableDef* t : tables) {
            std::vector<ado::CatalogKey> keys;
            for (const schema::RelationDef& r : catalogue.relations()) {
                // A relation that cascades nothing is never made on the server.
                const bool made = r.deleteRule != 0 || r.updateRule != 0;
                if (made && r.table.compare(t->name, Qt::CaseInsensitive) == 0) {
                    keys.push_back(ado::CatalogKey{r.name, ado::KeyTypeEnum::adKeyForeign,
                                                   r.relatedTable, {}, {}, {}});
                }
            }
            script.catalogTable(ado::CatalogTable{t->name, u"TABLE"_s, {}, {}, {}}, {}, {}, keys);
            tableRows.push_back(tableRow(t->name));
            for (const schema::FieldDef& f : t->fields) {
                columnRows.push_back(columnRow(t->name, f.name, serverColumnType(f.adoType(7))));
                // SYS_RECORD stays a plain int on the server: the suite numbers it itself.
                if ((f.attributes & 2) != 0 && f.name.toUpper() != u"SYS_RECORD"_s) {
                    script.returns(
                        identityQuestion(t->name),
                        ado::recording::rows({{u"TABLE_NAME"_s, ado::DataTypeEnum::adVarWChar},
                                              {u"COLUMN_NAME"_s, ado::DataTypeEnum::adVarWChar}},
                                             {{vb::Variant(t->name), vb::Variant(f.name)}}));
                }
            }
        }
        script.schema(ado::SchemaEnum::adSchemaTables, tableRows);
        script.schema(ado::SchemaEnum::adSchemaColumns, columnRows);
    }

    // The named source copied into the test's folder, with the server's answers scripted from
    // it; empty when this build has no Solvaria sources.
    QString prepare(const QString& name) {
        const QString source = copySource(name);
        if (!source.isEmpty()) {
            answerFrom(readSource(source));
        }
        return source;
    }

    // The stop button, pressed when the run raises the event of that line.
    void stopAt(const QString& line) {
        events.onEvent = [this, line](const QString& raised) {
            if (raised == line) {
                runner->Stopped(true);
            }
        };
    }

    bool convert(const QString& source) {
        runner->DbSrc(source);
        return runner->Run(source, nullptr, kJetProvider, {});
    }

    // The server's journal with the creation of the database folded into one line: what
    // qzSystem::DbCreate sends has golden files of its own.
    QStringList serverLines() const {
        QStringList lines;
        const std::vector<Journal::Entry>& entries = server->journal().entries();
        Journal part;
        auto flush = [&] {
            lines << part.lines();
            part.clear();
        };
        for (std::size_t i = 0; i < entries.size(); ++i) {
            if (i == m_createFrom) {
                flush();
                lines << u"(qzSystem::DbCreate: %1 entries, from \"%2\")"_s.arg(m_createTo -
                                                                                 m_createFrom)
                             .arg(entries.at(i).text);
                i = m_createTo - 1;
                continue;
            }
            part.add(entries.at(i));
        }
        flush();
        return nameConnections(foldKeywordQuestions(lines));
    }

    // Each connection string is written out once, at the head, and named by a number where a
    // connection is opened with it.
    static QStringList nameConnections(const QStringList& lines) {
        const QString open = u"open: "_s;
        QStringList strings;
        QStringList body;
        for (const QString& line : lines) {
            if (!line.startsWith(open)) {
                body << line;
                continue;
            }
            const QString text = line.mid(open.size());
            qsizetype at = strings.indexOf(text);
            if (at < 0) {
                strings << text;
                at = strings.size() - 1;
            }
            body << u"open #%1"_s.arg(at + 1);
        }
        QStringList named;
        for (qsizetype i = 0; i < strings.size(); ++i) {
            named << u"#%1 = %2"_s.arg(i + 1).arg(strings.at(i));
        }
        return named << body;
    }

    // Each name the run encloses is one keyword and one literal question on a connection of its
    // own to the master; a run of them becomes one line with their count.
    static QStringList foldKeywordQuestions(const QStringList& lines) {
        const QString master =
            u"open: Provider=SQLOLEDB;Data Source=SRV01;User ID=sa;Password=pw"_s;
        QStringList folded;
        qsizetype i = 0;
        while (i < lines.size()) {
            int keywords = 0;
            int literals = 0;
            while (i + 2 < lines.size() && lines.at(i) == master && lines.at(i + 2) == u"close"_s &&
                   (lines.at(i + 1) == u"schema 30: "_s || lines.at(i + 1) == u"schema 31: "_s)) {
                (lines.at(i + 1) == u"schema 30: "_s ? keywords : literals) += 1;
                i += 3;
            }
            if (keywords + literals > 0) {
                folded << u"(master: %1 keyword and %2 literal questions)"_s.arg(keywords).arg(literals);
                continue;
            }
            folded << lines.at(i);
            ++i;
        }
        return folded;
    }

    QStringList logLines() const {
        QStringList lines = logTexts(dir.file(u"ConversionLog.txt"_s));
        while (!lines.isEmpty() && lines.last().isEmpty()) {
            lines.removeLast();
        }
        return lines;
    }

    QString iniValue(const QString& path, const QString& key) const {
        nxIni file;
        file.SetIni(path);
        return engine::Decrypt_Text(file.GetVal(u"Database"_s, key, u""_s).toString(),
                                    QString::fromUtf16(engine::kConfigSecret), true);
    }

    std::shared_ptr<CreatingServer> server = std::make_shared<CreatingServer>();
    ado::ScopedProvider serverScope{u"SQLOLEDB"_s, server};
    EventLog events;
    std::unique_ptr<DbImport> runner;
    std::vector<ado::Row> m_userColumns;
    std::size_t m_createFrom = 0;
    std::size_t m_createTo = 0;
};

TEST_F(DbImportEndToEndTest, ASolvariaSourceIsConvertedWhole) {
    const QString source = prepare(u"e2e"_s);
    SKIP_WITHOUT_SOURCE(source);
    // The suite's earlier configuration, kept as config.ini.old.
    const QString ini = dir.file(u"config.ini"_s);
    {
        QFile old(ini);
        ASSERT_TRUE(old.open(QIODevice::WriteOnly));
        old.write("[Database]\r\nDatabaseType=0\r\n");
    }

    EXPECT_TRUE(convert(source)) << lastErrorReport();
    EXPECT_TRUE(box->shown().empty()) << box->last().text.toStdString();

    QStringList report;
    report << u"== events"_s << events.lines << u"== server"_s << serverLines()
           << u"== ConversionLog.txt"_s << logLines();
    expectGoldenText(u"tests/engine/golden/dbimport-solvaria.txt"_s,
                     report.join(u'\n').replace(dir.path(), u"<folder>"_s) + u'\n');

    // config.ini points the suite at the server; the earlier one is kept beside it.
    EXPECT_EQ(iniValue(ini, u"ServerName"_s), u"SRV01"_s);
    EXPECT_EQ(iniValue(ini, u"DatabaseName"_s), kDatabase);
    EXPECT_EQ(iniValue(ini, u"DatabaseDesc"_s), u"Archivio dell'anno"_s);
    EXPECT_EQ(iniValue(ini, u"DatabaseType"_s), u"1"_s);
    QFile old(ini + u".old"_s);
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    EXPECT_EQ(old.readAll(), QByteArray("[Database]\r\nDatabaseType=0\r\n"));
    // The source is renamed, so the suite can no longer open it by mistake.
    EXPECT_FALSE(QFile::exists(source));
    EXPECT_TRUE(QFile::exists(source + u".old"_s));
}

// The statements of the server, in order.
QStringList createdTables(const QStringList& statements) {
    QStringList tables;
    for (const QString& statement : statements) {
        if (statement.startsWith(u"create table "_s)) {
            tables << statement.section(u' ', 2, 2);
        }
    }
    return tables;
}

// The stop button pressed while an archive is copied, confirmed twice (the job's question, then
// the run's own before the next archive): the run ends there, nothing further is created,
// config.ini is not written and the source keeps its name. Nothing failed, so the run answers
// true; the window tells the two apart by reading Stopped.
TEST_F(DbImportEndToEndTest, AConfirmedStopAmongTheArchivesEndsTheRunBeforeTheNext) {
    const QString source = prepare(u"e2e"_s);
    SKIP_WITHOUT_SOURCE(source);
    stopAt(u"UserTableDataCopy D_CONTRATTI"_s);
    box->answer({win::id::kYes, win::id::kYes});
    EXPECT_TRUE(convert(source)) << lastErrorReport();
    EXPECT_TRUE(runner->Stopped());
    ASSERT_EQ(box->shown().size(), 2u);
    EXPECT_EQ(box->shown().at(0).text, u"Annullare l'operazione?"_s);
    EXPECT_EQ(box->shown().at(1).text,
              u"Vuoi interrompere l'operazione di esportazione del database?"_s);
    EXPECT_EQ(box->shown().at(1).flags, 36);
    // The archive in hand is finished; the next one is never started.
    EXPECT_EQ(events.lines.mid(events.lines.size() - 4),
              (QStringList{u"UserTableDataCopy D_CONTRATTI"_s, u"TableImportStart 2"_s,
                           u"TableImportEnd"_s, u"ImportEnd"_s}));
    const QStringList tables = createdTables(server->journal().statements());
    EXPECT_TRUE(tables.contains(u"D_CONTRATTI"_s));
    EXPECT_FALSE(tables.contains(u"D_FATTURE"_s));
    EXPECT_FALSE(tables.contains(u"DIZ_TIPIDOC"_s));
    EXPECT_FALSE(QFile::exists(dir.file(u"config.ini"_s)));
    EXPECT_TRUE(QFile::exists(source));
    EXPECT_FALSE(QFile::exists(source + u".old"_s));
    EXPECT_EQ(logLines().last(), u"Fine procedura di conversione."_s);
}

// The same stop refused at the run's question: the flag is cleared and the conversion goes on to
// its end, rename included.
TEST_F(DbImportEndToEndTest, ARefusedStopAmongTheArchivesLetsTheRunFinish) {
    const QString source = prepare(u"e2e"_s);
    SKIP_WITHOUT_SOURCE(source);
    stopAt(u"UserTableDataCopy D_CONTRATTI"_s);
    box->answer({win::id::kYes, win::id::kNo});
    EXPECT_TRUE(convert(source)) << lastErrorReport();
    EXPECT_FALSE(runner->Stopped());
    ASSERT_EQ(box->shown().size(), 2u);
    const QStringList tables = createdTables(server->journal().statements());
    EXPECT_TRUE(tables.contains(u"D_FATTURE"_s));
    EXPECT_TRUE(tables.contains(u"D_PROTOCOLLO"_s));
    EXPECT_TRUE(tables.contains(u"DIZ_UFFICI"_s));
    EXPECT_TRUE(QFile::exists(dir.file(u"config.ini"_s)));
    EXPECT_TRUE(QFile::exists(source + u".old"_s));
}

// A confirmed stop among the dictionaries ends their loop without a further question; the run
// still points the suite at the server, but a stopped run never renames its source.
TEST_F(DbImportEndToEndTest, AConfirmedStopAmongTheDictionariesSkipsTheRestButConfigures) {
    const QString source = prepare(u"e2e"_s);
    SKIP_WITHOUT_SOURCE(source);
    stopAt(u"DictionaryCreating DIZ_TIPIDOC 3"_s);
    box->answer(win::id::kYes);
    EXPECT_TRUE(convert(source)) << lastErrorReport();
    EXPECT_TRUE(runner->Stopped());
    ASSERT_EQ(box->shown().size(), 1u);
    EXPECT_EQ(box->last().text, u"Annullare l'operazione?"_s);
    EXPECT_FALSE(events.lines.contains(u"DictionaryImporting 1 DIZ_UFFICI"_s));
    const QStringList tables = createdTables(server->journal().statements());
    EXPECT_TRUE(tables.contains(u"DIZ_TIPIDOC"_s));
    EXPECT_FALSE(tables.contains(u"DIZ_UFFICI"_s));
    EXPECT_EQ(iniValue(dir.file(u"config.ini"_s), u"DatabaseName"_s), kDatabase);
    EXPECT_TRUE(QFile::exists(source));
    EXPECT_FALSE(QFile::exists(source + u".old"_s));
}

// Refused at the job's question, the stop never happens: every dictionary is made and the
// source is renamed.
TEST_F(DbImportEndToEndTest, ARefusedStopAmongTheDictionariesChangesNothing) {
    const QString source = prepare(u"e2e"_s);
    SKIP_WITHOUT_SOURCE(source);
    stopAt(u"DictionaryCreating DIZ_TIPIDOC 3"_s);
    box->answer(win::id::kNo);
    EXPECT_TRUE(convert(source)) << lastErrorReport();
    EXPECT_FALSE(runner->Stopped());
    ASSERT_EQ(box->shown().size(), 1u);
    EXPECT_TRUE(createdTables(server->journal().statements()).contains(u"DIZ_UFFICI"_s));
    EXPECT_TRUE(QFile::exists(source + u".old"_s));
}

// The server of the run, until it drops every connection at the third insert of a chosen table:
// that insert and everything after it fail as a lost network link does.
class DroppingServer : public ado::Provider {
public:
    DroppingServer(std::shared_ptr<CreatingServer> inner, QString table)
        : m_inner(std::move(inner)), m_state(std::make_shared<State>()) {
        m_state->insert = u"insert into "_s + table + u" ("_s;
    }
    QString name() const override { return m_inner->name(); }
    std::unique_ptr<ado::ProviderSession> open(const ado::OpenRequest& request) override {
        m_state->check();
        return std::make_unique<Session>(m_inner->open(request), m_state);
    }
    void createDatabase(const ado::ConnectionString& cs) override { m_inner->createDatabase(cs); }
    bool dropped() const { return m_state->dropped; }

private:
    struct State {
        QString insert;
        int inserts = 0;
        bool dropped = false;
        void check() const {
            if (dropped) {
                throw ado::Error(ado::HResult::E_UNSPECIFIED,
                                 u"[DBNETLIB][ConnectionWrite (send()).]General network error. "
                                 u"Check your network documentation."_s,
                                 u"Microsoft OLE DB Provider for SQL Server"_s);
            }
        }
    };
    class Session : public ado::ProviderSession {
    public:
        Session(std::unique_ptr<ado::ProviderSession> inner, std::shared_ptr<State> state)
            : m_session(std::move(inner)), m_state(std::move(state)) {}
        QString connectionString() const override { return m_session->connectionString(); }
        std::vector<ado::PropertyValue> properties() const override {
            return m_session->properties();
        }
        void setProperty(const ado::PropertyValue& value) override {
            m_state->check();
            m_session->setProperty(value);
        }
        ado::CommandResult execute(const ado::CommandRequest& request) override {
            if (request.text.contains(m_state->insert) && ++m_state->inserts == 3) {
                m_state->dropped = true;
            }
            m_state->check();
            return m_session->execute(request);
        }
        std::unique_ptr<ado::ProviderRowset>
        openSchema(ado::SchemaEnum schema, const std::vector<vb::Variant>& restrictions) override {
            m_state->check();
            return m_session->openSchema(schema, restrictions);
        }
        long beginTransaction() override {
            m_state->check();
            return m_session->beginTransaction();
        }
        void commitTransaction() override {
            m_state->check();
            m_session->commitTransaction();
        }
        void rollbackTransaction() override {
            m_state->check();
            m_session->rollbackTransaction();
        }
        ado::ProviderCatalog& catalog() override {
            m_state->check();
            return m_session->catalog();
        }
        void close() noexcept override { m_session->close(); }

    private:
        std::unique_ptr<ado::ProviderSession> m_session;
        std::shared_ptr<State> m_state;
    };

    std::shared_ptr<CreatingServer> m_inner;
    std::shared_ptr<State> m_state;
};

// The server goes away in the middle of an archive. The record that met the loss ends its table
// with the failure's number and text, and the run goes on: the next archive's statements fail,
// each with nxDb's box, its indexes with their event. The count of the dictionaries then fails
// into the run's trap, whose rollback meets the lost connection too: that second failure is shown
// and ends the run at once, without its close-down (no ImportEnd, no closing line in the log).
// config.ini is not written and the source keeps its name.
TEST_F(DbImportEndToEndTest, AServerThatDropsTheConnectionInATableFailsTheRun) {
    const QString source = prepare(u"e2e"_s);
    SKIP_WITHOUT_SOURCE(source);
    auto dropping = std::make_shared<DroppingServer>(server, u"D_FATTURE"_s);
    ado::ScopedProvider scope(u"SQLOLEDB"_s, dropping);
    for (int i = 0; i < 4; ++i) {
        box->answer(win::id::kOk);
    }

    EXPECT_FALSE(convert(source));
    EXPECT_TRUE(dropping->dropped());
    const QString lost = u"[DBNETLIB][ConnectionWrite (send()).]General network error. Check "
                         u"your network documentation."_s;
    const QString number = u"-2147467259: "_s;
    const QString index = u"create unique index CODICE on [D_PROTOCOLLO] (CODICE asc)"_s;
    const qsizetype copy = events.lines.indexOf(u"UserTableDataCopy D_FATTURE"_s);
    ASSERT_GE(copy, 0) << events.lines.join(u'\n').toStdString();
    EXPECT_EQ(events.lines.mid(copy),
              (QStringList{u"UserTableDataCopy D_FATTURE"_s, u"TableImportStart 5"_s,
                           u"Error 3 "_s + number + lost, u"TableImportEnd"_s,
                           u"UserTableImporting 3 D_PROTOCOLLO (Protocollo generale)"_s,
                           u"UserTableCreating D_PROTOCOLLO"_s,
                           u"UserTableIndexCreating D_PROTOCOLLO"_s,
                           u"Error 4 (D_PROTOCOLLO) "_s + number + lost + u" ("_s + index + u")"_s,
                           u"UserTableDataCopy D_PROTOCOLLO"_s, u"TableImportStart 20"_s,
                           u"Error 3 (D_PROTOCOLLO) "_s + number + lost,
                           u"UserTableImporting 4 D_RIMOSSO (Archivio rimosso)"_s,
                           u"UserTableNotExisting D_RIMOSSO"_s}));
    const QString execute = u"\r\n\r\nnxDb.Execute() (errore -2147467259, 0x80004005)"_s;
    QStringList texts;
    for (const auto& shown : box->shown()) {
        texts << shown.text;
        EXPECT_EQ(shown.flags, 48);
    }
    ASSERT_EQ(texts.size(), 4);
    EXPECT_EQ(texts.at(0),
              lost + u" (update D_FATTURE set ARCHIVIATO=0 where ARCHIVIATO is null)"_s + execute);
    EXPECT_TRUE(texts.at(1).startsWith(lost + u" (create table D_PROTOCOLLO ("_s));
    EXPECT_EQ(texts.at(2), lost + u" ("_s + index + u")"_s + execute);
    EXPECT_EQ(texts.at(3), lost + u"\r\n\r\nDbImport.DbImport() (errore -2147467259, 0x80004005)"_s);
    // The log holds what the verification wrote, and nothing after.
    EXPECT_EQ(logLines(), (QStringList{u"==================================================="_s,
                                       u"Tabella D_BOZZE non presente in DB_ELENCO. Non verrà importata."_s,
                                       u"==================================================="_s}));
    EXPECT_FALSE(QFile::exists(dir.file(u"config.ini"_s)));
    EXPECT_TRUE(QFile::exists(source));
    EXPECT_FALSE(QFile::exists(source + u".old"_s));
}

// The inserts the server received, by table.
QHash<QString, long> insertsByTable(const QStringList& statements) {
    QHash<QString, long> counts;
    const QString insert = u"insert into "_s;
    for (const QString& statement : statements) {
        const qsizetype at = statement.indexOf(insert);
        if (at < 0) {
            continue;
        }
        QString table = statement.mid(at + insert.size()).section(u' ', 0, 0);
        if (table.startsWith(u'[') && table.endsWith(u']')) {
            table = table.mid(1, table.size() - 2);
        }
        ++counts[table];
    }
    return counts;
}

// The larger source, 1,400 archive records with memos of mixed scripts: every record of every
// listed archive and of each dictionary reaches the server as one insert; the archive in the file
// but not in DB_ELENCO sends none.
TEST_F(DbImportEndToEndTest, EveryRecordOfTheSmallSourceBecomesOneInsert) {
    const QString source = copySource(u"small"_s);
    SKIP_WITHOUT_SOURCE(source);
    const SourceFacts facts = readSource(source);
    answerFrom(facts);
    EXPECT_TRUE(convert(source)) << lastErrorReport();
    EXPECT_TRUE(box->shown().empty());
    const QHash<QString, long> inserts = insertsByTable(server->journal().statements());
    EXPECT_EQ(facts.records.value(u"D_PROTOCOLLO"_s), 1000);
    for (const QString& table : facts.userTables) {
        const long expected = table == u"D_BOZZE"_s ? 0 : facts.records.value(table);
        EXPECT_EQ(inserts.value(table), expected) << table.toStdString();
    }
    EXPECT_TRUE(facts.userTables.contains(u"D_BOZZE"_s));
    EXPECT_TRUE(QFile::exists(source + u".old"_s));
}

} // namespace
