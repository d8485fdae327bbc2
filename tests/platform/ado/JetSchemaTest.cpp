// The schema rowsets and ADOX catalogs of files built by mdbgen from tools/mdbgen/examples,
// against what the real Jet provider reports for each kind of column, index and relationship.
#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "platform/ado/adox/Catalog.h"
#include "platform/ado/adox/Objects.h"

#include "tests/platform/ado/BuiltMdb.h"
#include "tests/support/Printers.h"
#include "tests/support/TestFiles.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <map>

using namespace Qt::StringLiterals;
using ado::DataTypeEnum;
using ado::SchemaEnum;

namespace {

ado::ConnectionPtr openJet(const QString& path) {
    auto cn = ado::Connection::create();
    cn->Open(u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + path);
    return cn;
}

QStringList fieldNames(ado::Recordset& rs) {
    QStringList names;
    for (long i = 0; i < rs.Fields().Count(); ++i) {
        names << rs.Fields(i).Name();
    }
    return names;
}

// Every row of a rowset, each as the named fields' values joined with '|' ("~" for Null).
QStringList rows(ado::Recordset& rs, const QStringList& fields) {
    QStringList out;
    for (; !rs.Eof(); rs.MoveNext()) {
        QStringList values;
        for (const QString& f : fields) {
            const vb::Variant v = rs.Fields(f).Value();
            if (const bool* b = v.get<bool>()) {
                values << (*b ? u"True"_s : u"False"_s);
            } else {
                values << (v.isNull() ? u"~"_s : v.toString());
            }
        }
        out << values.join(u'|');
    }
    return out;
}

std::vector<vb::Variant> onTable(const QString& table, std::size_t position) {
    std::vector<vb::Variant> r(position + 1);
    r[position] = table;
    return r;
}

} // namespace

TEST(JetSchema, RowsetsHaveExactlyTheStandardColumns) {
    TestDir dir;
    auto cn = openJet(builtMdb(u"all-types.mdb"_s, dir));
    auto tables = cn->OpenSchema(SchemaEnum::adSchemaTables);
    EXPECT_EQ(fieldNames(*tables),
              QStringList({u"TABLE_CATALOG"_s, u"TABLE_SCHEMA"_s, u"TABLE_NAME"_s, u"TABLE_TYPE"_s,
                           u"TABLE_GUID"_s, u"DESCRIPTION"_s, u"TABLE_PROPID"_s, u"DATE_CREATED"_s,
                           u"DATE_MODIFIED"_s}));
    auto pk = cn->OpenSchema(SchemaEnum::adSchemaPrimaryKeys);
    EXPECT_EQ(fieldNames(*pk),
              QStringList({u"TABLE_CATALOG"_s, u"TABLE_SCHEMA"_s, u"TABLE_NAME"_s, u"COLUMN_NAME"_s,
                           u"COLUMN_GUID"_s, u"COLUMN_PROPID"_s, u"ORDINAL"_s, u"PK_NAME"_s}));
    auto fk = cn->OpenSchema(SchemaEnum::adSchemaForeignKeys);
    EXPECT_EQ(fieldNames(*fk),
              QStringList({u"PK_TABLE_CATALOG"_s, u"PK_TABLE_SCHEMA"_s, u"PK_TABLE_NAME"_s,
                           u"PK_COLUMN_NAME"_s, u"PK_COLUMN_GUID"_s, u"PK_COLUMN_PROPID"_s,
                           u"FK_TABLE_CATALOG"_s, u"FK_TABLE_SCHEMA"_s, u"FK_TABLE_NAME"_s,
                           u"FK_COLUMN_NAME"_s, u"FK_COLUMN_GUID"_s, u"FK_COLUMN_PROPID"_s,
                           u"ORDINAL"_s, u"UPDATE_RULE"_s, u"DELETE_RULE"_s, u"PK_NAME"_s,
                           u"FK_NAME"_s, u"DEFERRABILITY"_s}));
    auto indexes = cn->OpenSchema(SchemaEnum::adSchemaIndexes);
    const QStringList indexFields = fieldNames(*indexes);
    ASSERT_EQ(indexFields.size(), 25);
    EXPECT_EQ(indexFields.mid(0, 6),
              QStringList({u"TABLE_CATALOG"_s, u"TABLE_SCHEMA"_s, u"TABLE_NAME"_s,
                           u"INDEX_CATALOG"_s, u"INDEX_SCHEMA"_s, u"INDEX_NAME"_s}));
    EXPECT_EQ(indexFields.mid(16, 3),
              QStringList({u"ORDINAL_POSITION"_s, u"COLUMN_NAME"_s, u"COLUMN_GUID"_s}));
    EXPECT_EQ(indexFields.last(), u"INTEGRATED"_s);

    // Jet has neither catalogs nor schemas.
    for (; !tables->Eof(); tables->MoveNext()) {
        EXPECT_TRUE(tables->Fields(u"TABLE_CATALOG").Value().isNull());
        EXPECT_TRUE(tables->Fields(u"TABLE_SCHEMA").Value().isNull());
    }
}

// One row per Access field type, as the Jet provider describes it: the type, the lengths in
// characters and bytes, the column flags and nullability, and the default text verbatim.
TEST(JetSchema, ColumnsOfEveryTypeAsJetDescribesThem) {
    TestDir dir;
    auto cn = openJet(builtMdb(u"all-types.mdb"_s, dir));
    auto columns = cn->OpenSchema(SchemaEnum::adSchemaColumns, onTable(u"AllTypes"_s, 2));
    const QStringList got =
        rows(*columns, {u"COLUMN_NAME"_s, u"DATA_TYPE"_s, u"CHARACTER_MAXIMUM_LENGTH"_s,
                        u"CHARACTER_OCTET_LENGTH"_s, u"COLUMN_FLAGS"_s, u"IS_NULLABLE"_s,
                        u"COLUMN_HASDEFAULT"_s, u"COLUMN_DEFAULT"_s})
            .filter(QRegularExpression(u"^(?!Decimal)"_s));
    // In the order of the names, not of the columns' positions. The decimal columns are
    // checked apart: what Jet reports in their flags is not known.
    const QStringList expected{
        u"BinaryCol|128|16|16|106|True|False|~"_s,
        u"ByteCol|17|~|~|122|True|True|0"_s,
        u"DateCol|7|~|~|122|True|True|Now()"_s,
        u"DoubleCol|5|~|~|122|True|False|~"_s,
        u"GuidCol|72|~|~|122|True|False|~"_s,
        u"ID|3|~|~|90|False|False|~"_s,
        u"IntCol|2|~|~|122|True|False|~"_s,
        u"LinkCol|130|0|0|234|True|False|~"_s,
        u"LongCol|3|~|~|90|False|True|0"_s,
        u"MemoCol|130|0|0|234|True|False|~"_s,
        u"MoneyCol|6|~|~|122|True|False|~"_s,
        u"OleCol|128|0|0|234|True|False|~"_s,
        u"SingleCol|4|~|~|122|True|False|~"_s,
        u"TextCol|130|50|100|106|True|True|\"n/a\""_s,
        u"TextNoZeroLen|130|255|510|106|True|False|~"_s,
        u"YesNoCol|11|~|~|90|False|True|No"_s,
    };
    EXPECT_EQ(got.join(u'\n').toStdString(), expected.join(u'\n').toStdString());

    columns->MoveFirst();
    QStringList decimals;
    for (const QString& row : rows(*columns, {u"COLUMN_NAME"_s, u"DATA_TYPE"_s, u"IS_NULLABLE"_s,
                                              u"NUMERIC_PRECISION"_s, u"NUMERIC_SCALE"_s})) {
        if (row.startsWith(u"Decimal"_s)) {
            decimals << row;
        }
    }
    EXPECT_EQ(decimals.join(u'\n').toStdString(),
              "Decimal18_0|131|True|18|0\nDecimalCol|131|True|28|10");
    columns->setFilter(u"COLUMN_NAME = 'DecimalCol'"_s);
    EXPECT_EQ(columns->Fields(u"NUMERIC_PRECISION").Value().toLong(), 28);
    EXPECT_EQ(columns->Fields(u"NUMERIC_SCALE").Value().toLong(), 10);
    columns->setFilter(u"COLUMN_NAME = 'ID'"_s);
    EXPECT_EQ(columns->Fields(u"ORDINAL_POSITION").Value().toLong(), 1);
    EXPECT_EQ(columns->Fields(u"DESCRIPTION").Value().toString(), u"AutoNumber (increment)"_s);
    columns->setFilter(u"COLUMN_NAME = 'BinaryCol'"_s);
    EXPECT_EQ(columns->Fields(u"ORDINAL_POSITION").Value().toLong(), 18);
    EXPECT_TRUE(columns->Fields(u"DESCRIPTION").Value().isNull());

    // A restriction on the column name leaves one row; on a missing table, none.
    auto one = cn->OpenSchema(SchemaEnum::adSchemaColumns,
                              {vb::Variant(), vb::Variant(), u"AllTypes"_s, u"MemoCol"_s});
    EXPECT_EQ(rows(*one, {u"TABLE_NAME"_s, u"COLUMN_NAME"_s}), QStringList{u"AllTypes|MemoCol"_s});
    auto none = cn->OpenSchema(SchemaEnum::adSchemaColumns, onTable(u"NoSuchTable"_s, 2));
    EXPECT_TRUE(none->Bof() && none->Eof());
}

// ADOX reads what the rowset cannot tell: an autonumber from a required Long, and a Yes/No
// column that is not Required is Nullable to ADOX though the rowset says it holds no nulls.
TEST(JetSchema, AdoxColumnPropertiesOfEveryType) {
    TestDir dir;
    auto cn = openJet(builtMdb(u"all-types.mdb"_s, dir));
    auto catalog = ado::adox::Catalog::create();
    catalog->setActiveConnection(cn);
    auto& table = catalog->Tables().Item(u"AllTypes");
    EXPECT_EQ(table.Type(), u"TABLE"_s);
    auto property = [&](const QString& column, const QString& name) {
        return table.Columns().Item(column).Properties().Item(name).Value();
    };
    EXPECT_EQ(property(u"ID"_s, u"Autoincrement"_s), vb::Variant(true));
    EXPECT_EQ(property(u"LongCol"_s, u"Autoincrement"_s), vb::Variant(false));
    EXPECT_EQ(property(u"ID"_s, u"Increment"_s).toLong(), 1);
    EXPECT_EQ(property(u"LongCol"_s, u"Nullable"_s), vb::Variant(false));
    EXPECT_EQ(property(u"YesNoCol"_s, u"Nullable"_s), vb::Variant(true));
    EXPECT_EQ(property(u"TextCol"_s, u"Jet OLEDB:Allow Zero Length"_s), vb::Variant(true));
    EXPECT_EQ(property(u"TextNoZeroLen"_s, u"Jet OLEDB:Allow Zero Length"_s), vb::Variant(false));
    EXPECT_EQ(property(u"TextCol"_s, u"Default"_s), vb::Variant(u"\"n/a\""_s));
    EXPECT_EQ(property(u"DateCol"_s, u"Default"_s), vb::Variant(u"Now()"_s));
    EXPECT_TRUE(property(u"IntCol"_s, u"Default"_s).isEmpty() ||
                property(u"IntCol"_s, u"Default"_s).isNull());

    // The seed is the next number Jet gives: one past the highest the table has used.
    long highest = 0;
    auto ids = cn->Execute(u"SELECT MAX(ID) AS Num FROM (select ID from AllTypes) AS TempTab"_s);
    highest = ids->Fields(u"Num").Value().toLong().value_or(-1);
    ASSERT_GT(highest, 0);
    EXPECT_EQ(property(u"ID"_s, u"Seed"_s).toLong(), highest + 1);

    auto type = [&](const QString& column) { return table.Columns().Item(column).Type(); };
    EXPECT_EQ(type(u"TextCol"_s), DataTypeEnum::adVarWChar);
    EXPECT_EQ(type(u"MemoCol"_s), DataTypeEnum::adLongVarWChar);
    EXPECT_EQ(type(u"OleCol"_s), DataTypeEnum::adLongVarBinary);
    EXPECT_EQ(type(u"DateCol"_s), DataTypeEnum::adDate);
    EXPECT_EQ(type(u"GuidCol"_s), DataTypeEnum::adGUID);
    EXPECT_EQ(type(u"DecimalCol"_s), DataTypeEnum::adNumeric);
    EXPECT_EQ(table.Columns().Item(u"TextNoZeroLen").DefinedSize(), 255);
    EXPECT_EQ(table.Columns().Item(u"MemoCol").DefinedSize(), 0);
    EXPECT_EQ(table.Columns().Item(u"TextCol").Attributes() & ado::adColNullable,
              ado::adColNullable);
    EXPECT_EQ(table.Columns().Item(u"LongCol").Attributes() & ado::adColNullable, 0);
    EXPECT_EQ(table.Columns().Count(), 18);
}

// One row per index column, indexes by name and columns in their order within the index, with
// Jet's fixed values and the sort order of each column.
TEST(JetSchema, IndexesRowByColumnWithTheirSortOrders) {
    TestDir dir;
    auto cn = openJet(builtMdb(u"indexes.mdb"_s, dir));
    auto indexes = cn->OpenSchema(SchemaEnum::adSchemaIndexes, onTable(u"Indexed Things"_s, 4));
    const QStringList got =
        rows(*indexes, {u"INDEX_NAME"_s, u"ORDINAL_POSITION"_s, u"COLUMN_NAME"_s, u"COLLATION"_s,
                        u"PRIMARY_KEY"_s, u"UNIQUE"_s, u"NULLS"_s});
    const QStringList expected{
        u"Active|1|Active|1|False|False|0"_s,
        u"Added desc, Title asc, Revision desc|1|Added|2|False|False|0"_s,
        u"Added desc, Title asc, Revision desc|2|Title|1|False|False|0"_s,
        u"Added desc, Title asc, Revision desc|3|Revision|2|False|False|0"_s,
        u"Exact desc|1|Exact|2|False|False|0"_s,
        // Added after the rows were written.
        u"Late index on Serial, Weight|1|Serial|1|False|False|0"_s,
        u"Late index on Serial, Weight|2|Weight|2|False|False|0"_s,
        u"Price|1|Price|1|False|False|0"_s,
        u"PrimaryKey|1|Part No|1|True|True|1"_s,
        u"PrimaryKey|2|Revision|1|True|True|1"_s,
        u"Serial unique ignoring nulls|1|Serial|1|False|True|2"_s,
        u"Tag|1|Tag|1|False|True|0"_s,
        u"Title required|1|Title|1|False|False|1"_s,
        u"Weight desc|1|Weight|2|False|False|0"_s,
    };
    EXPECT_EQ(got.join(u'\n').toStdString(), expected.join(u'\n').toStdString());
    indexes->MoveFirst();
    for (; !indexes->Eof(); indexes->MoveNext()) {
        EXPECT_EQ(indexes->Fields(u"CLUSTERED").Value(), vb::Variant(false));
        EXPECT_EQ(indexes->Fields(u"TYPE").Value().toLong(), 1);
        EXPECT_EQ(indexes->Fields(u"FILL_FACTOR").Value().toLong(), 100);
        EXPECT_EQ(indexes->Fields(u"NULL_COLLATION").Value().toLong(), 4);
        EXPECT_EQ(indexes->Fields(u"AUTO_UPDATE").Value(), vb::Variant(true));
    }
    // The index name is the third restriction.
    auto byName =
        cn->OpenSchema(SchemaEnum::adSchemaIndexes, {vb::Variant(), vb::Variant(), u"Word desc"_s});
    EXPECT_EQ(rows(*byName, {u"TABLE_NAME"_s, u"COLUMN_NAME"_s, u"COLLATION"_s}),
              QStringList{u"Texts|Word|2"_s});

    auto catalog = ado::adox::Catalog::create();
    catalog->setActiveConnection(cn);
    auto& index = catalog->Tables()
                      .Item(u"Indexed Things")
                      .Indexes()
                      .Item(u"Added desc, Title asc, Revision desc");
    ASSERT_EQ(index.Columns().Count(), 3);
    EXPECT_EQ(index.Columns().Item(0L).SortOrder(), ado::SortOrderEnum::adSortDescending);
    EXPECT_EQ(index.Columns().Item(1L).SortOrder(), ado::SortOrderEnum::adSortAscending);
    EXPECT_EQ(index.Columns().Item(2L).Name(), u"Revision"_s);
    EXPECT_FALSE(index.Unique());
    EXPECT_TRUE(catalog->Tables().Item(u"Indexed Things").Indexes().Item(u"Tag").Unique());
}

// Relationships that enforce integrity, one row per column pair, with their rules as text; the
// primary-key side's bookkeeping indexes (".rB"...) never show.
TEST(JetSchema, ForeignKeysWithTheirRulesAndColumnPairs) {
    TestDir dir;
    auto cn = openJet(builtMdb(u"relations.mdb"_s, dir));
    const QStringList fields{u"FK_NAME"_s,       u"PK_TABLE_NAME"_s,  u"PK_COLUMN_NAME"_s,
                             u"FK_TABLE_NAME"_s, u"FK_COLUMN_NAME"_s, u"ORDINAL"_s,
                             u"UPDATE_RULE"_s,   u"DELETE_RULE"_s,    u"DEFERRABILITY"_s};
    auto toOrders = cn->OpenSchema(
        SchemaEnum::adSchemaForeignKeys,
        {vb::Variant(), vb::Variant(), u"Orders"_s, vb::Variant(), vb::Variant(), u"OrderLines"_s});
    EXPECT_EQ(
        rows(*toOrders, fields),
        QStringList{u"OrdersOrderLines|Orders|OrderID|OrderLines|OrderID|1|NO ACTION|CASCADE|3"_s});

    auto fromCustomers =
        cn->OpenSchema(SchemaEnum::adSchemaForeignKeys, onTable(u"Customers"_s, 2));
    std::map<QString, QStringList> byName;
    for (const QString& row : rows(*fromCustomers, fields)) {
        byName[row.section(u'|', 0, 0)] << row.section(u'|', 1);
    }
    EXPECT_EQ(byName[u"CustomersOrders"_s],
              QStringList{u"Customers|CustomerID|Orders|CustomerID|1|CASCADE|NO ACTION|3"_s});
    EXPECT_EQ(byName[u"CustomersContacts"_s],
              QStringList{u"Customers|CustomerID|Contacts|CustomerID|1|NO ACTION|SET NULL|3"_s});
    EXPECT_EQ(byName[u"CustomersProfiles"_s],
              QStringList{u"Customers|CustomerID|Profiles|CustomerID|1|CASCADE|CASCADE|3"_s});
    EXPECT_EQ(byName[u"RegionBranchVisits"_s],
              QStringList({u"Customers|Region|Visits|Region|1|NO ACTION|NO ACTION|3"_s,
                           u"Customers|Branch|Visits|Branch|2|NO ACTION|NO ACTION|3"_s}));

    // The referenced side's unique index names the key: the primary key, or the unique index
    // over the referenced columns.
    auto pkNames = cn->OpenSchema(SchemaEnum::adSchemaForeignKeys, onTable(u"Customers"_s, 2));
    std::map<QString, QString> pkName;
    for (const QString& row : rows(*pkNames, {u"FK_NAME"_s, u"PK_NAME"_s})) {
        pkName[row.section(u'|', 0, 0)] = row.section(u'|', 1, 1);
    }
    EXPECT_EQ(pkName[u"CustomersOrders"_s], u"PrimaryKey"_s);
    EXPECT_EQ(pkName[u"RegionBranchVisits"_s], u"RegionBranch"_s);

    auto customerIndexes = cn->OpenSchema(SchemaEnum::adSchemaIndexes, onTable(u"Customers"_s, 4));
    for (const QString& name : rows(*customerIndexes, {u"INDEX_NAME"_s})) {
        EXPECT_FALSE(name.startsWith(u'.')) << name.toStdString();
    }
    auto primary = cn->OpenSchema(SchemaEnum::adSchemaPrimaryKeys, onTable(u"OrderLines"_s, 2));
    EXPECT_EQ(
        rows(*primary, {u"TABLE_NAME"_s, u"COLUMN_NAME"_s, u"ORDINAL"_s, u"PK_NAME"_s}),
        QStringList({u"OrderLines|OrderID|1|PrimaryKey"_s, u"OrderLines|LineNo|2|PrimaryKey"_s}));

    auto catalog = ado::adox::Catalog::create();
    catalog->setActiveConnection(cn);
    auto& visits = catalog->Tables().Item(u"Visits").Keys().Item(u"RegionBranchVisits");
    EXPECT_EQ(visits.Type(), ado::KeyTypeEnum::adKeyForeign);
    EXPECT_EQ(visits.RelatedTable(), u"Customers"_s);
    ASSERT_EQ(visits.Columns().Count(), 2);
    EXPECT_EQ(visits.Columns().Item(1L).Name(), u"Branch"_s);
    EXPECT_EQ(visits.Columns().Item(1L).RelatedColumn(), u"Branch"_s);
    auto& contacts = catalog->Tables().Item(u"Contacts").Keys().Item(u"CustomersContacts");
    EXPECT_EQ(contacts.DeleteRule(), ado::RuleEnum::adRISetNull);
    EXPECT_EQ(contacts.UpdateRule(), ado::RuleEnum::adRINone);
}

// An Access-written file: its engine tables and Access's own, and the saved select queries as
// views, in the order of type and then name.
TEST(JetSchema, TableTypesOfAnAccessWrittenFile) {
    TestDir dir;
    auto cn = openJet(dir.copyFixture(u"queryTestV2000.mdb"_s));
    auto tables = cn->OpenSchema(SchemaEnum::adSchemaTables);
    const QStringList got = rows(*tables, {u"TABLE_TYPE"_s, u"TABLE_NAME"_s});
    EXPECT_TRUE(got.contains(u"SYSTEM TABLE|MSysObjects"_s));
    EXPECT_TRUE(got.contains(u"SYSTEM TABLE|MSysRelationships"_s));
    EXPECT_TRUE(got.contains(u"ACCESS TABLE|MSysAccessObjects"_s))
        << got.join(u", "_s).toStdString();
    EXPECT_FALSE(got.filter(u"VIEW|"_s).isEmpty()) << got.join(u", "_s).toStdString();
    QStringList sorted = got;
    std::stable_sort(sorted.begin(), sorted.end(), [](const QString& a, const QString& b) {
        const QString ta = a.section(u'|', 0, 0);
        const QString tb = b.section(u'|', 0, 0);
        return ta != tb ? ta < tb
                        : a.section(u'|', 1).compare(b.section(u'|', 1), Qt::CaseInsensitive) < 0;
    });
    EXPECT_EQ(got, sorted);
    auto views = cn->OpenSchema(SchemaEnum::adSchemaTables,
                                {vb::Variant(), vb::Variant(), vb::Variant(), u"VIEW"_s});
    EXPECT_EQ(rows(*views, {u"TABLE_TYPE"_s, u"TABLE_NAME"_s}), got.filter(u"VIEW|"_s));
}
