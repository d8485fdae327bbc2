// The statements an editable server recordset writes its changes back with, and how it finds
// the table, key and identity behind its fields.
#include "platform/ado/Error.h"
#include "platform/ado/sqlserver/RowWrites.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace ado;
using namespace ado::sqlserver;

namespace {

ColumnInfo field(const QString& name, DataTypeEnum type, long size = 0, long attributes = 0) {
    ColumnInfo c;
    c.name = name;
    c.type = type;
    c.definedSize = size;
    c.attributes = attributes;
    c.properties.push_back({u"ISAUTOINCREMENT"_s, vb::Variant(false), false});
    return c;
}

// ID int, Code nvarchar(10), Note ntext, Total (an expression of the select).
std::vector<ColumnInfo> docFields() {
    return {field(u"ID"_s, DataTypeEnum::adInteger, 4), field(u"Code"_s, DataTypeEnum::adVarWChar, 10),
            field(u"Note"_s, DataTypeEnum::adLongVarWChar, 1073741823, adFldLong),
            field(u"Total"_s, DataTypeEnum::adInteger, 4)};
}

WriteTarget docTarget(Criteria criteria) {
    WriteTarget t;
    t.table = u"[Doc]"_s;
    t.columns = {u"ID"_s, u"Code"_s, u"Note"_s, QString()};
    t.key = {0};
    t.identity = 0;
    t.criteria = criteria;
    return t;
}

QStringList describe(const std::vector<odbc::ParameterValue>& parameters) {
    QStringList out;
    for (const auto& p : parameters) {
        out << u"%1/%2:%3"_s.arg(p.adoType).arg(p.size).arg(
                   p.value.isNull() ? u"null"_s : p.value.toString());
    }
    return out;
}

CatalogColumn tableColumn(const QString& name, bool identity = false) {
    CatalogColumn c;
    c.name = name;
    c.properties = {{u"Autoincrement"_s, vb::Variant(identity), true}};
    return c;
}

CatalogIndex index(const QString& name, bool primary, bool unique, const QStringList& columns) {
    CatalogIndex i;
    i.name = name;
    i.primaryKey = primary;
    i.unique = unique;
    for (const QString& c : columns) {
        i.columns.push_back(tableColumn(c));
    }
    return i;
}

} // namespace

TEST(RowWrites, TheTableOfASelectIsFoundOnlyWhenItReadsOneTable) {
    EXPECT_EQ(baseTable(u"select * from Doc"_s), u"Doc"_s);
    EXPECT_EQ(baseTable(u"SELECT * FROM [Doc Archivio] WHERE (ID > 3) ORDER BY ID"_s),
              u"[Doc Archivio]"_s);
    EXPECT_EQ(baseTable(u"select top 10 ID, Code from dbo.Doc d where d.ID = 1"_s), u"dbo.Doc"_s);
    EXPECT_EQ(baseTable(u"select distinct Code from [dbo].[Doc] as d order by Code"_s),
              u"[dbo].[Doc]"_s);
    EXPECT_EQ(baseTable(u"select ID, (select max(N) from Other) as M from Doc"_s), u"Doc"_s);
    EXPECT_EQ(baseTable(u"select * from Doc where Code in ('a', 'b')"_s), u"Doc"_s);
    EXPECT_EQ(baseTable(u"select * from Doc a join Other b on b.ID = a.ID"_s), QString());
    EXPECT_EQ(baseTable(u"select * from Doc, Other"_s), QString());
    EXPECT_EQ(baseTable(u"select * from Doc d, Other o where o.ID = d.ID"_s), QString());
    EXPECT_EQ(baseTable(u"select ID from Doc union select ID from Other"_s), QString());
    EXPECT_EQ(baseTable(u"select Code, count(*) from Doc group by Code"_s), QString());
    EXPECT_EQ(baseTable(u"exec ListDocs"_s), QString());
    EXPECT_EQ(baseTable(u"Doc"_s), QString());
}

TEST(RowWrites, InsertsNameTheGivenColumnsAndReadTheIdentityBack) {
    const auto fields = docFields();
    WriteStatement s = insertStatement(docTarget(Criteria::Key), fields,
                                       {{1, vb::Variant(u"A-1"_s)}, {2, vb::Variant(vb::Null{})}});
    EXPECT_EQ(s.text, u"INSERT INTO [Doc] ([Code], [Note]) VALUES (?, ?); SELECT SCOPE_IDENTITY()"_s);
    EXPECT_EQ(describe(s.parameters), QStringList({u"202/10:A-1"_s, u"203/1073741823:null"_s}));
    // An identity given (identity_insert on) is not asked back; nothing given: the defaults.
    s = insertStatement(docTarget(Criteria::Key), fields, {{0, vb::Variant(std::int32_t(9))}});
    EXPECT_EQ(s.text, u"INSERT INTO [Doc] ([ID]) VALUES (?)"_s);
    WriteTarget noIdentity = docTarget(Criteria::Key);
    noIdentity.identity = -1;
    EXPECT_EQ(insertStatement(noIdentity, fields, {}).text, u"INSERT INTO [Doc] DEFAULT VALUES"_s);
}

TEST(RowWrites, UpdatesAndDeletesFindTheRowByKeyAndTheValuesTheCriteriaCompare) {
    const auto fields = docFields();
    const Row before{vb::Variant(std::int32_t(7)), vb::Variant(vb::Null{}), vb::Variant(u"long"_s),
                     vb::Variant(std::int32_t(3))};
    const std::vector<FieldChange> change{{1, vb::Variant(u"B"_s)}};
    WriteStatement s = updateStatement(docTarget(Criteria::Key), fields, before, change);
    EXPECT_EQ(s.text, u"UPDATE [Doc] SET [Code] = ? WHERE [ID] = ?"_s);
    EXPECT_EQ(describe(s.parameters), QStringList({u"202/10:B"_s, u"3/4:7"_s}));
    // The changed column's original was NULL: compared with IS NULL, not bound.
    s = updateStatement(docTarget(Criteria::ChangedColumns), fields, before, change);
    EXPECT_EQ(s.text, u"UPDATE [Doc] SET [Code] = ? WHERE [ID] = ? AND [Code] IS NULL"_s);
    EXPECT_EQ(describe(s.parameters), QStringList({u"202/10:B"_s, u"3/4:7"_s}));
    // Every column: long values cannot be compared and the expression has no column.
    s = updateStatement(docTarget(Criteria::AllColumns), fields,
                        {before[0], vb::Variant(u"A"_s), before[2], before[3]}, change);
    EXPECT_EQ(s.text, u"UPDATE [Doc] SET [Code] = ? WHERE [ID] = ? AND [Code] = ?"_s);
    EXPECT_EQ(describe(s.parameters), QStringList({u"202/10:B"_s, u"3/4:7"_s, u"202/10:A"_s}));
    s = deleteStatement(docTarget(Criteria::ChangedColumns), fields, before);
    EXPECT_EQ(s.text, u"DELETE FROM [Doc] WHERE [ID] = ?"_s);
    EXPECT_EQ(describe(s.parameters), QStringList({u"3/4:7"_s}));
    EXPECT_EQ(deleteStatement(docTarget(Criteria::AllColumns), fields, before).text,
              u"DELETE FROM [Doc] WHERE [ID] = ? AND [Code] IS NULL"_s);
    // A field that is no column of the table cannot be written.
    try {
        updateStatement(docTarget(Criteria::Key), fields, before, {{3, vb::Variant(std::int32_t(1))}});
        FAIL() << "wrote an expression";
    } catch (const Error& e) {
        EXPECT_TRUE(e.is(HResult::DB_E_ERRORSOCCURRED)) << e.what();
    }
}

TEST(RowWrites, TheKeyIsThePrimaryKeyElseAUniqueIndexTheSelectReads) {
    std::vector<ColumnInfo> fields{field(u"id"_s, DataTypeEnum::adInteger),
                                   field(u"CODE"_s, DataTypeEnum::adVarWChar),
                                   field(u"Total"_s, DataTypeEnum::adInteger)};
    const std::vector<CatalogColumn> columns{tableColumn(u"ID"_s, true), tableColumn(u"Code"_s),
                                             tableColumn(u"Year"_s)};
    WriteTarget t = describeTarget(u"Doc"_s, columns,
                                   {index(u"UQ_Code"_s, false, true, {u"Code"_s}),
                                    index(u"IX_Year"_s, false, false, {u"Year"_s}),
                                    index(u"PK_Doc"_s, true, true, {u"ID"_s})},
                                   fields);
    EXPECT_EQ(t.key, std::vector<int>{0});
    EXPECT_EQ(t.identity, 0);
    EXPECT_EQ(t.columns, std::vector<QString>({u"ID"_s, u"Code"_s, QString()}));
    EXPECT_EQ(fields[0].properties[0].value, vb::Variant(true));
    EXPECT_EQ(fields[1].properties[0].value, vb::Variant(false));

    // The select leaves the primary key out: the unique index serves.
    std::vector<ColumnInfo> noId{field(u"Code"_s, DataTypeEnum::adVarWChar),
                                 field(u"Year"_s, DataTypeEnum::adInteger)};
    t = describeTarget(u"Doc"_s, columns,
                       {index(u"PK_Doc"_s, true, true, {u"ID"_s}),
                        index(u"UQ_CodeYear"_s, false, true, {u"Code"_s, u"Year"_s})},
                       noId);
    EXPECT_EQ(t.key, std::vector<int>({0, 1}));
    EXPECT_EQ(t.identity, -1);
    // No unique index at all: keyless.
    t = describeTarget(u"Doc"_s, columns, {index(u"IX_Year"_s, false, false, {u"Year"_s})}, noId);
    EXPECT_TRUE(t.key.empty());
}

TEST(RowWrites, TheCriteriaComeFromTheRecordsetAndAServerCursorComparesEverything) {
    CommandRequest r;
    r.cursorLocation = CursorLocationEnum::adUseClient;
    EXPECT_EQ(criteriaOf(r), Criteria::ChangedColumns);
    r.rowsetProperties = {{u"Update Criteria"_s, vb::Variant(std::int32_t(0)), true}};
    EXPECT_EQ(criteriaOf(r), Criteria::Key);
    r.rowsetProperties = {{u"Update Criteria"_s, vb::Variant(std::int32_t(3)), true}};
    EXPECT_EQ(criteriaOf(r), Criteria::AllColumns);
    r.cursorLocation = CursorLocationEnum::adUseServer;
    r.rowsetProperties = {{u"Update Criteria"_s, vb::Variant(std::int32_t(0)), true}};
    EXPECT_EQ(criteriaOf(r), Criteria::AllColumns);
}
