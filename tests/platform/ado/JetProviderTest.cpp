#include "platform/ado/Connection.h"
#include "platform/ado/Error.h"
#include "platform/ado/Recordset.h"
#include "platform/ado/adox/Catalog.h"
#include "tests/support/TestFiles.h"

#include <QFile>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using ado::CursorTypeEnum;
using ado::DataTypeEnum;
using ado::SchemaEnum;

namespace {

const QString kJet = u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s;

ado::ConnectionPtr openJet(const QString& path, long mode = ado::adModeUnknown) {
    auto cn = ado::Connection::create();
    cn->setMode(mode);
    cn->Open(kJet + path);
    return cn;
}

std::int32_t errorOf(const std::function<void()>& action, QString* description = nullptr) {
    try {
        action();
    } catch (const ado::Error& e) {
        if (description != nullptr) {
            *description = e.description();
        }
        return e.hresult();
    }
    return 0;
}

QStringList column(ado::Recordset& rs, const QString& name) {
    QStringList values;
    while (!rs.Eof()) {
        values << rs.Fields(name).Value().toString();
        rs.MoveNext();
    }
    return values;
}

} // namespace

TEST(JetProvider, OpensByDataSourceAndReportsMissingAndDamagedFiles) {
    TestDir dir;
    const QString path = dir.copyFixture(u"testV2000.mdb"_s);
    auto cn = openJet(path);
    EXPECT_EQ(cn->Provider(), u"Microsoft.Jet.OLEDB.4.0"_s);
    EXPECT_EQ(cn->Properties().Item(u"DBMS Name").Value().toString(), u"MS Jet"_s);
    cn->Close();

    QString text;
    EXPECT_EQ(errorOf([&] { openJet(dir.file(u"missing.mdb"_s)); }, &text),
              static_cast<std::int32_t>(0x80004005));
    EXPECT_TRUE(text.startsWith(u"Could not find file '"_s)) << text.toStdString();

    const QString damaged = dir.file(u"damaged.mdb"_s);
    {
        QFile f(damaged);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(QByteArray(8192, '\x5a'));
    }
    auto bad = ado::Connection::create();
    EXPECT_EQ(errorOf([&] { bad->Open(kJet + damaged); }, &text), static_cast<std::int32_t>(0x80004005));
    EXPECT_TRUE(text.startsWith(u"Unrecognized database format '"_s)) << text.toStdString();
    ASSERT_EQ(bad->Errors().Count(), 1);
    EXPECT_EQ(bad->Errors().Item(0).source(), u"Microsoft JET Database Engine"_s);
}

TEST(JetProvider, ShareModesBetweenConnectionsOfThisProcess) {
    TestDir dir;
    const QString path = dir.copyFixture(u"testV2000.mdb"_s);
    auto exclusive = openJet(path, ado::adModeShareExclusive);
    QString text;
    EXPECT_EQ(errorOf([&] { openJet(path); }, &text), static_cast<std::int32_t>(0x80004005));
    EXPECT_TRUE(text.contains(u"already opened exclusively by another user"_s)) << text.toStdString();
    exclusive->Close();
    auto shared = openJet(path, ado::adModeRead);
    auto second = openJet(path, ado::adModeRead | ado::adModeShareDenyNone);
    EXPECT_NE(errorOf([&] { openJet(path, ado::adModeShareExclusive); }), 0);
    shared->Close();
    second->Close();
    auto again = openJet(path, ado::adModeShareExclusive | ado::adModeRead); // all released
    EXPECT_EQ(again->State(), ado::adStateOpen);
}

#ifdef Q_OS_UNIX
// Another program's hold on the file is an advisory lock on it (flock): an exclusive hold keeps
// every connection out with Jet's "already opened exclusively" error, and an exclusive
// connection keeps the other programs out while it is open.
TEST(JetProvider, AFileHeldExclusivelyByAnotherProgramIsReportedAsJetReportsIt) {
    TestDir dir;
    const QString path = dir.copyFixture(u"testV2000.mdb"_s);
    const QByteArray native = QFile::encodeName(path);
    const int other = ::open(native.constData(), O_RDONLY | O_CLOEXEC);
    ASSERT_GE(other, 0);
    ASSERT_EQ(::flock(other, LOCK_EX | LOCK_NB), 0);
    QString text;
    EXPECT_EQ(errorOf([&] { openJet(path, ado::adModeRead); }, &text),
              static_cast<std::int32_t>(0x80004005));
    EXPECT_EQ(text, u"The Microsoft Jet database engine cannot open the file '"_s + path +
                        u"'.  It is already opened exclusively by another user, or you need "
                        u"permission to view its data."_s);
    ::flock(other, LOCK_UN);
    {
        // Shared: another program may read along, but not hold the file alone.
        auto shared = openJet(path, ado::adModeRead | ado::adModeShareDenyNone);
        EXPECT_NE(::flock(other, LOCK_EX | LOCK_NB), 0);
        EXPECT_EQ(::flock(other, LOCK_SH | LOCK_NB), 0);
        ::flock(other, LOCK_UN);
        shared->Close();
    }
    auto exclusive = openJet(path, ado::adModeShareExclusive);
    EXPECT_NE(::flock(other, LOCK_SH | LOCK_NB), 0);
    exclusive->Close();
    EXPECT_EQ(::flock(other, LOCK_EX | LOCK_NB), 0); // closing gave the file back
    ::close(other);
}
#endif

TEST(JetProvider, TableRecordsetStreamsTypedFields) {
    TestDir dir;
    auto cn = openJet(dir.copyFixture(u"testV2000.mdb"_s));
    auto rs = std::make_shared<ado::Recordset>();
    rs->Open(u"Table1"_s, cn, CursorTypeEnum::adOpenForwardOnly, ado::LockTypeEnum::adLockReadOnly,
             static_cast<long>(ado::CommandTypeEnum::adCmdTable));
    ASSERT_FALSE(rs->Eof());
    EXPECT_EQ(rs->Fields(u"A").Type(), DataTypeEnum::adVarWChar);
    EXPECT_EQ(rs->Fields(u"A").DefinedSize(), 50);
    EXPECT_EQ(rs->Fields(u"C").Type(), DataTypeEnum::adUnsignedTinyInt);
    EXPECT_EQ(rs->Fields(u"D").Type(), DataTypeEnum::adSmallInt);
    EXPECT_EQ(rs->Fields(u"E").Type(), DataTypeEnum::adInteger);
    EXPECT_EQ(rs->Fields(u"F").Type(), DataTypeEnum::adDouble);
    EXPECT_EQ(rs->Fields(u"G").Type(), DataTypeEnum::adDate);
    EXPECT_EQ(rs->Fields(u"H").Type(), DataTypeEnum::adCurrency);
    EXPECT_EQ(rs->Fields(u"I").Type(), DataTypeEnum::adBoolean);
    EXPECT_EQ(rs->Fields(u"A").Value().toString(), u"abcdefg"_s);
    EXPECT_EQ(*rs->Fields(u"E").Value().toLong(), 333333333);
    EXPECT_EQ(rs->Fields(u"G").Value(), vb::Variant(vb::makeDate(1974, 9, 21)));
    EXPECT_EQ(rs->CursorType(), CursorTypeEnum::adOpenForwardOnly);

    QString text;
    EXPECT_EQ(errorOf([&] { (void)cn->Execute(u"select * from NoSuchTable"_s); }, &text),
              static_cast<std::int32_t>(0x80040E37));
    EXPECT_EQ(text, u"The Microsoft Jet database engine cannot find the input table or query 'NoSuchTable'.  Make sure it exists and that its name is spelled correctly."_s);
    EXPECT_EQ(errorOf([&] { (void)cn->Execute(u"select Nope from Table1"_s); }),
              static_cast<std::int32_t>(0x80040E10));
    for (const QString& refused : {u"delete from Table1"_s, u"select A from Table1 group by A"_s,
                                   u"select A + 1 from Table1"_s, u"update Table1 set A = 1"_s}) {
        EXPECT_EQ(errorOf([&] { (void)cn->Execute(refused); }), static_cast<std::int32_t>(0x80040E14))
            << refused.toStdString();
    }
}

TEST(JetProvider, KeysetCursorBookmarksAndFilter) {
    TestDir dir;
    auto cn = openJet(dir.copyFixture(u"overflowTestV2000.mdb"_s));
    auto rs = std::make_shared<ado::Recordset>();
    rs->Open(u"select * from Table1"_s, cn, CursorTypeEnum::adOpenKeyset);
    EXPECT_EQ(rs->CursorType(), CursorTypeEnum::adOpenKeyset);
    EXPECT_EQ(rs->RecordCount(), 7);
    rs->MoveFirst();
    rs->MoveNext();
    const vb::Variant second = rs->Bookmark();
    rs->MoveLast();
    rs->setBookmark(second);
    const vb::Variant a = rs->Fields(0L).Value();
    const vb::Variant b = rs->Fields(1L).Value();
    EXPECT_TRUE((a.isNull() ? b.toString() : a.toString()).startsWith(u"row2"_s));
    rs->MovePrevious();
    rs->MovePrevious();
    EXPECT_TRUE(rs->Bof());
}

TEST(JetProvider, SchemaTablesAndColumnsAsJetReportsThem) {
    TestDir dir;
    auto cn = openJet(dir.copyFixture(u"testV2000.mdb"_s));
    auto tables = cn->OpenSchema(SchemaEnum::adSchemaTables,
                                 {vb::Variant(), vb::Variant(), vb::Variant(), u"TABLE"_s});
    const QStringList names = column(*tables, u"TABLE_NAME"_s);
    EXPECT_TRUE(names.contains(u"Table1"_s));
    EXPECT_FALSE(names.contains(u"MSysObjects"_s));
    QStringList sorted = names;
    std::sort(sorted.begin(), sorted.end(),
              [](const QString& x, const QString& y) { return x.compare(y, Qt::CaseInsensitive) < 0; });
    EXPECT_EQ(names, sorted);
    auto system = cn->OpenSchema(SchemaEnum::adSchemaTables,
                                 {vb::Variant(), vb::Variant(), u"MSysObjects"_s});
    ASSERT_FALSE(system->Eof());
    EXPECT_EQ(system->Fields(u"TABLE_TYPE").Value().toString(), u"SYSTEM TABLE"_s);

    auto columns = cn->OpenSchema(SchemaEnum::adSchemaColumns,
                                  {vb::Variant(), vb::Variant(), u"Table1"_s});
    ASSERT_EQ(columns->Fields().Count(), 28);
    EXPECT_EQ(column(*columns, u"COLUMN_NAME"_s).first(), u"A"_s);
    columns->setFilter(u"COLUMN_NAME = 'A'"_s);
    EXPECT_EQ(*columns->Fields(u"DATA_TYPE").Value().toLong(), 130);
    EXPECT_EQ(*columns->Fields(u"CHARACTER_MAXIMUM_LENGTH").Value().toLong(), 50);
    EXPECT_EQ(*columns->Fields(u"CHARACTER_OCTET_LENGTH").Value().toLong(), 100);
    columns->setFilter(u"COLUMN_NAME = 'G'"_s);
    EXPECT_EQ(*columns->Fields(u"DATA_TYPE").Value().toLong(), 7);
    EXPECT_TRUE(columns->Fields(u"CHARACTER_MAXIMUM_LENGTH").Value().isNull());
    columns->setFilter(u"COLUMN_NAME = 'C'"_s);
    EXPECT_EQ(*columns->Fields(u"DATA_TYPE").Value().toLong(), 17);
    EXPECT_TRUE(columns->Fields(u"COLUMN_HASDEFAULT").Value().toBool().value_or(false));
    EXPECT_EQ(columns->Fields(u"COLUMN_DEFAULT").Value().toString(), u"0"_s);
    columns->setFilter(u"COLUMN_NAME = 'I'"_s);
    EXPECT_EQ(*columns->Fields(u"DATA_TYPE").Value().toLong(), 11);
    EXPECT_FALSE(columns->Fields(u"IS_NULLABLE").Value().toBool().value_or(true));
    EXPECT_EQ(*columns->Fields(u"COLUMN_FLAGS").Value().toLong() & 0x20, 0);

    auto pk = cn->OpenSchema(SchemaEnum::adSchemaPrimaryKeys, {vb::Variant(), vb::Variant(), u"Table1"_s});
    ASSERT_FALSE(pk->Eof());
    EXPECT_EQ(pk->Fields(u"COLUMN_NAME").Value().toString(), u"A"_s);
    EXPECT_EQ(*pk->Fields(u"ORDINAL").Value().toLong(), 1);

    EXPECT_EQ(errorOf([&] { (void)cn->OpenSchema(SchemaEnum::adSchemaCatalogs); }),
              static_cast<std::int32_t>(0x800A0CB3));
}

TEST(JetProvider, IndexesAndForeignKeysOfRelatedTables) {
    TestDir dir;
    auto cn = openJet(dir.copyFixture(u"indexTestV2000.mdb"_s));
    auto fks = cn->OpenSchema(SchemaEnum::adSchemaForeignKeys,
                              {vb::Variant(), vb::Variant(), u"Table2"_s, vb::Variant(), vb::Variant(), u"Table1"_s});
    ASSERT_FALSE(fks->Eof());
    fks->setFilter(u"FK_NAME = 'Table2Table1'"_s);
    ASSERT_FALSE(fks->Eof());
    EXPECT_EQ(fks->Fields(u"PK_COLUMN_NAME").Value().toString(), u"id"_s);
    EXPECT_EQ(fks->Fields(u"FK_COLUMN_NAME").Value().toString(), u"otherfk1"_s);
    EXPECT_EQ(fks->Fields(u"DELETE_RULE").Value().toString(), u"CASCADE"_s);
    EXPECT_EQ(fks->Fields(u"UPDATE_RULE").Value().toString(), u"NO ACTION"_s);

    // The table name is the fifth restriction of INDEXES; one row per index column.
    auto indexes = cn->OpenSchema(SchemaEnum::adSchemaIndexes,
                                  {vb::Variant(), vb::Variant(), vb::Variant(), vb::Variant(), u"Table1"_s});
    const QStringList names = column(*indexes, u"INDEX_NAME"_s);
    EXPECT_TRUE(names.contains(u"Table2Table1"_s));
    EXPECT_FALSE(std::any_of(names.begin(), names.end(), [](const QString& n) { return n.startsWith(u'.'); }));

    auto catalog = ado::adox::Catalog::create();
    catalog->setActiveConnection(cn);
    auto& t1 = catalog->Tables().Item(u"Table1");
    EXPECT_EQ(t1.Type(), u"TABLE"_s);
    auto& key = t1.Keys().Item(u"Table2Table1");
    EXPECT_EQ(key.Type(), ado::KeyTypeEnum::adKeyForeign);
    EXPECT_EQ(key.RelatedTable(), u"Table2"_s);
    EXPECT_EQ(key.DeleteRule(), ado::RuleEnum::adRICascade);
    EXPECT_EQ(key.Columns().Item(0L).RelatedColumn(), u"id"_s);
    // This build reads Jet files only: catalog writes fail with a clear error.
    QString text;
    EXPECT_EQ(errorOf([&] { catalog->Tables().Delete(u"Table1"); }, &text),
              static_cast<std::int32_t>(0x800A0CB3));
    EXPECT_TRUE(text.contains(u"reads .mdb files only"_s));
}

TEST(JetProvider, AdoxColumnsCarryTheJetProperties) {
    TestDir dir;
    auto cn = openJet(dir.copyFixture(u"testV2000.mdb"_s));
    auto catalog = ado::adox::Catalog::create();
    catalog->setActiveConnection(cn);
    auto& table3 = catalog->Tables().Item(u"Table3");
    auto& id = table3.Columns().Item(0L);
    EXPECT_TRUE(id.Properties().Item(u"Autoincrement").Value().toBool().value_or(false));
    EXPECT_EQ(*id.Properties().Item(u"Increment").Value().toLong(), 1);
    auto& c = catalog->Tables().Item(u"Table1").Columns().Item(u"C");
    EXPECT_FALSE(c.Properties().Item(u"Autoincrement").Value().toBool().value_or(true));
    EXPECT_EQ(c.Properties().Item(u"Default").Value().toString(), u"0"_s);
    EXPECT_EQ(c.Type(), DataTypeEnum::adUnsignedTinyInt);
    auto& a = catalog->Tables().Item(u"Table1").Columns().Item(u"A");
    EXPECT_EQ(a.Type(), DataTypeEnum::adVarWChar);
    EXPECT_EQ(a.DefinedSize(), 50);
    auto& pk = catalog->Tables().Item(u"Table1").Indexes().Item(u"PrimaryKey");
    EXPECT_TRUE(pk.PrimaryKey());
    EXPECT_EQ(pk.Columns().Item(0L).SortOrder(), ado::SortOrderEnum::adSortAscending);
}
