// Every Access-written fixture, read by jetfile and checked against mdbtools' command-line tools
// where mdbtools is known to be right, plus the facts of particular fixtures that mdbtools gets
// wrong (index keys after a deleted index, the order of overflowed rows, the header password).
#include "platform/jetfile/Database.h"

#include "tests/support/TestFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using jetfile::ColumnType;

namespace {

QStringList fixtureNames() {
    return QDir(fixturesDir()).entryList({u"*.mdb"_s}, QDir::Files, QDir::Name);
}

bool haveMdbTools() {
    return !QStandardPaths::findExecutable(u"mdb-export"_s).isEmpty();
}

QString run(const QString& program, const QStringList& args) {
    QProcess p;
    p.start(program, args);
    p.waitForFinished(60000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

// mdb-export's CSV: fields separated by commas, text in double quotes with quotes doubled.
std::vector<QStringList> parseCsv(const QString& text) {
    std::vector<QStringList> rows;
    QStringList row;
    QString field;
    bool quoted = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (quoted) {
            if (c == u'"' && i + 1 < text.size() && text[i + 1] == u'"') {
                field += c;
                ++i;
            } else if (c == u'"') {
                quoted = false;
            } else {
                field += c;
            }
        } else if (c == u'"') {
            quoted = true;
        } else if (c == u',') {
            row << field;
            field.clear();
        } else if (c == u'\n') {
            row << field;
            rows.push_back(row);
            row.clear();
            field.clear();
        } else {
            field += c;
        }
    }
    return rows;
}

// The types whose mdb-export text is exact: integers, money, Yes/No, Decimal and text in the BMP
// (where NULL and "" both print as nothing).
bool comparable(const jetfile::Column& c) {
    switch (c.type()) {
    case ColumnType::Byte:
    case ColumnType::Integer:
    case ColumnType::Long:
    case ColumnType::Currency:
    case ColumnType::Boolean:
    case ColumnType::Numeric:
    case ColumnType::Text:
        return true;
    default:
        return false;
    }
}

QString asMdbText(const vb::Variant& v) {
    if (v.isNull()) {
        return {};
    }
    if (const auto* b = v.get<bool>()) {
        return *b ? u"1"_s : u"0"_s;
    }
    if (const auto* c = v.get<vb::Currency>()) {
        const qint64 t = c->tenThousandths;
        const quint64 a = t < 0 ? 0 - static_cast<quint64>(t) : static_cast<quint64>(t);
        return (t < 0 ? u"-"_s : QString()) + QString::number(a / 10000) + u'.' +
               QString::number(a % 10000).rightJustified(4, u'0');
    }
    if (const auto* d = v.get<vb::Decimal>()) {
        return d->toString();
    }
    if (const auto* s = v.get<QString>()) {
        return *s;
    }
    if (const auto* u = v.get<std::uint8_t>()) {
        return QString::number(*u);
    }
    if (const auto* i = v.get<std::int16_t>()) {
        return QString::number(*i);
    }
    if (const auto* l = v.get<std::int32_t>()) {
        return QString::number(*l);
    }
    return u"?"_s;
}

} // namespace

TEST(JetFileFixtures, EveryFixtureReadsCompletely) {
    const QStringList names = fixtureNames();
    ASSERT_GE(names.size(), 30);
    TestDir dir;
    for (const QString& name : names) {
        SCOPED_TRACE(name.toStdString());
        const auto db = jetfile::Database::open(dir.copyFixture(name));
        EXPECT_EQ(db.header().version, jetfile::JetVersion::Jet4);
        for (const auto& entry : db.catalog()) {
            (void)db.properties(entry.name);
        }
        (void)db.relations();
        for (const QString& table : db.tableNames(true)) {
            const auto def = db.table(table);
            auto cursor = db.scan(table);
            std::uint64_t rows = 0;
            // readValue decodes into the variants of `into`, row after row; on every other row
            // copies of them are handed out, and the next row must leave those copies alone.
            std::vector<vb::Variant> into(def->columns.size());
            std::vector<vb::Variant> handedOut;
            std::vector<vb::Variant> handedOutWas;
            while (cursor.next()) {
                ++rows;
                std::vector<vb::Variant> values;
                for (const auto& c : def->columns) {
                    const vb::Variant v = cursor.value(c.index);
                    EXPECT_EQ(v.isNull(), cursor.isNull(c.index));
                    auto& read = into[static_cast<std::size_t>(c.index)];
                    cursor.readValue(c.index, read);
                    EXPECT_EQ(read, v) << c.name.toStdString();
                    values.push_back(v);
                }
                EXPECT_EQ(handedOut, handedOutWas);
                handedOut = rows % 2 == 0 ? into : std::vector<vb::Variant>();
                handedOutWas = rows % 2 == 0 ? values : std::vector<vb::Variant>();
            }
            // Access keeps the count of a user table current (Jet's own tables' counts lag,
            // as Jackcess finds too).
            if (!db.findObject(table)->isSystem()) {
                EXPECT_EQ(rows, def->rowCount) << table.toStdString();
            }
        }
    }
}

TEST(JetFileFixtures, EveryFixtureAgreesWithMdbTools) {
    if (!haveMdbTools()) {
        GTEST_SKIP() << "mdbtools (mdb-tables, mdb-export) is not installed";
    }
    const QStringList names = fixtureNames();
    ASSERT_GE(names.size(), 30);
    TestDir dir;
    for (const QString& name : names) {
        SCOPED_TRACE(name.toStdString());
        const QString path = dir.copyFixture(name);
        const auto db = jetfile::Database::open(path);
        QStringList expectedTables =
            run(u"mdb-tables"_s, {u"-1"_s, path}).split(u'\n', Qt::SkipEmptyParts);
        QStringList tables;
        for (const QString& t : db.tableNames(false)) {
            tables << t;
        }
        expectedTables.sort();
        tables.sort();
        EXPECT_EQ(tables, expectedTables);
        for (const QString& table : tables) {
            SCOPED_TRACE(table.toStdString());
            const auto def = db.table(table);
            const auto csv = parseCsv(run(u"mdb-export"_s, {path, table}));
            ASSERT_FALSE(csv.empty());
            QStringList columns;
            for (const auto& c : def->columns) {
                columns << c.name;
            }
            EXPECT_EQ(csv.front(), columns);
            // mdbtools returns overflowed rows out of order, so compare the rows as sorted lists.
            QStringList expectedRows;
            for (std::size_t r = 1; r < csv.size(); ++r) {
                QStringList kept;
                for (const auto& c : def->columns) {
                    if (comparable(c) && c.index < csv[r].size()) {
                        kept << csv[r][c.index];
                    }
                }
                expectedRows << kept.join(u'|');
            }
            QStringList rows;
            auto cursor = db.scan(table);
            while (cursor.next()) {
                QStringList kept;
                for (const auto& c : def->columns) {
                    if (comparable(c)) {
                        kept << asMdbText(cursor.value(c.index));
                    }
                }
                rows << kept.join(u'|');
            }
            EXPECT_EQ(rows.size(), qsizetype(csv.size() - 1));
            EXPECT_EQ(db.countRows(table), std::uint64_t(csv.size() - 1));
            rows.sort();
            expectedRows.sort();
            EXPECT_EQ(rows, expectedRows);
        }
    }
}

TEST(JetFileFixtures, IndexesKeepTheirKeysAfterAnIndexWasDeleted) {
    TestDir dir;
    const auto props = jetfile::Database::open(dir.copyFixture(u"testIndexPropertiesV2000.mdb"_s));
    for (const auto* tableName :
         {u"TableIgnoreNulls2", u"TableUnique1_temp", u"TableUnique2_temp"}) {
        const auto table = props.table(QStringView(tableName));
        SCOPED_TRACE(table->name.toStdString());
        const auto* pk = table->primaryKey();
        ASSERT_NE(pk, nullptr);
        ASSERT_EQ(pk->columns.size(), 1u);
        EXPECT_EQ(pk->columns[0].name, u"row"_s);
        EXPECT_TRUE(pk->isUnique());
        EXPECT_EQ(pk->flags, 0x89);
    }
    const auto ignoreNulls = props.table(u"TableIgnoreNulls2");
    const auto& data = ignoreNulls->indexes.back();
    EXPECT_EQ(data.name, u"DataIndex"_s);
    ASSERT_EQ(data.columns.size(), 2u);
    EXPECT_EQ(data.columns[0].name, u"data1"_s);
    EXPECT_EQ(data.columns[1].name, u"data2"_s);
    EXPECT_TRUE(data.ignoresNulls());
    EXPECT_FALSE(data.isUnique());
    EXPECT_TRUE(props.table(u"TableUnique2_temp")->indexes.back().isUnique());

    const auto delCol = jetfile::Database::open(dir.copyFixture(u"delColTestV2000.mdb"_s));
    const auto table1 = delCol.table(u"table1"); // names are looked up without regard to case
    std::vector<int> numbers;
    for (const auto& c : table1->columns) {
        numbers.push_back(c.number);
    }
    EXPECT_EQ(numbers, (std::vector<int>{0, 2, 3, 5}));
    ASSERT_EQ(table1->indexes.size(), 2u);
    EXPECT_EQ(table1->indexes[1].name, u"id2"_s);
    EXPECT_EQ(table1->indexes[1].number, 2);
    ASSERT_EQ(table1->indexes[1].columns.size(), 1u);
    EXPECT_EQ(table1->indexes[1].columns[0].name, u"id2"_s);
}

TEST(JetFileFixtures, RelationsAndForeignKeyIndexes) {
    TestDir dir;
    const auto db = jetfile::Database::open(dir.copyFixture(u"indexTestV2000.mdb"_s));
    std::vector<jetfile::Relation> user;
    for (auto& r : db.relations()) {
        if (!r.name.startsWith(u"MSys"_s)) {
            user.push_back(r);
        }
    }
    ASSERT_EQ(user.size(), 2u);
    EXPECT_EQ(user[0].name, u"Table2Table1"_s);
    EXPECT_EQ(user[0].table, u"Table1"_s);
    EXPECT_EQ(user[0].referencedTable, u"Table2"_s);
    EXPECT_EQ(user[0].columns, (std::vector<QString>{u"otherfk1"_s}));
    EXPECT_EQ(user[0].referencedColumns, (std::vector<QString>{u"id"_s}));
    EXPECT_TRUE(user[0].cascadesDeletes());
    EXPECT_FALSE(user[0].cascadesUpdates());
    EXPECT_TRUE(user[0].isEnforced());
    EXPECT_TRUE(user[1].cascadesUpdates());
    EXPECT_FALSE(user[1].cascadesDeletes());

    const auto table1 = db.table(u"Table1");
    const auto fk = std::find_if(table1->indexes.begin(), table1->indexes.end(),
                                 [](const auto& i) { return i.name == u"Table2Table1"_s; });
    ASSERT_NE(fk, table1->indexes.end());
    EXPECT_TRUE(fk->isForeignKey());
    ASSERT_TRUE(fk->reference.has_value());
    EXPECT_FALSE(fk->reference->onPrimaryTable);
    EXPECT_TRUE(fk->reference->cascadeDeletes);
    EXPECT_EQ(fk->reference->otherTablePage, db.findObject(u"Table2")->tablePage());
    ASSERT_EQ(fk->columns.size(), 1u);
    EXPECT_EQ(fk->columns[0].name, u"otherfk1"_s);
}

TEST(JetFileFixtures, OverflowedRowsComeBackInTheirPlace) {
    TestDir dir;
    const auto db = jetfile::Database::open(dir.copyFixture(u"overflowTestV2000.mdb"_s));
    auto cursor = db.scan(u"Table1");
    QStringList firstColumn;
    while (cursor.next()) {
        const vb::Variant a = cursor.value(0);
        const vb::Variant b = cursor.value(1);
        firstColumn << (a.isNull() ? b.toString() : a.toString()).left(4);
    }
    EXPECT_EQ(firstColumn, (QStringList{u"row1"_s, u"row2"_s, u"row3"_s, u"row4"_s, u"row5"_s,
                                        u"row6"_s, u"row7"_s}));
}

TEST(JetFileFixtures, HeaderFactsAndEncodedPages) {
    TestDir dir;
    const auto plain = jetfile::Database::open(dir.copyFixture(u"testV2000.mdb"_s));
    EXPECT_EQ(plain.header().codePage, 1252);
    EXPECT_EQ(plain.header().sortOrder, 1033);
    EXPECT_FALSE(plain.header().isEncoded());
    EXPECT_TRUE(plain.header().password.isEmpty());

    const auto encoded = jetfile::Database::open(dir.copyFixture(u"encodedV2000.mdb"_s));
    EXPECT_TRUE(encoded.header().isEncoded());
    EXPECT_EQ(encoded.header().databaseKey, 0xa7b773e0u);
    auto cursor = encoded.scan(u"Table1");
    QStringList texts;
    while (cursor.next()) {
        texts << cursor.value(1).toString();
    }
    EXPECT_EQ(texts, (QStringList{u"hello"_s, u"world"_s}));
    EXPECT_EQ(encoded.table(u"Table1")->lastAutoNumber, 2);
}

TEST(JetFileFixtures, TypedValuesOfTheBasicTable) {
    TestDir dir;
    const auto db = jetfile::Database::open(dir.copyFixture(u"testV2000.mdb"_s));
    auto cursor = db.scan(u"Table1");
    ASSERT_TRUE(cursor.next());
    EXPECT_EQ(cursor.value(u"A"), vb::Variant(u"abcdefg"_s)); // stored compressed
    EXPECT_EQ(cursor.value(u"C"), vb::Variant(std::uint8_t{2}));
    EXPECT_EQ(cursor.value(u"D"), vb::Variant(std::int16_t{222}));
    EXPECT_EQ(cursor.value(u"E"), vb::Variant(std::int32_t{333333333}));
    EXPECT_EQ(cursor.value(u"F"), vb::Variant(444.555));
    EXPECT_EQ(cursor.value(u"G"), vb::Variant(vb::makeDate(1974, 9, 21)));
    EXPECT_EQ(cursor.value(u"H"), vb::Variant(vb::Currency{35000}));
    EXPECT_EQ(cursor.value(u"I"), vb::Variant(true));
    const auto def = db.table(u"Table1");
    EXPECT_EQ(def->column(u"c")->properties.value(u"defaultvalue"), vb::Variant(u"0"_s));
    EXPECT_EQ(def->column(u"A")->length, 100);
    EXPECT_TRUE(def->column(u"A")->isCompressedUnicode());
    EXPECT_EQ(def->primaryKey()->columns[0].name, u"A"_s);

    const auto table3 = db.table(u"Table3");
    EXPECT_TRUE(table3->columns[0].isAutoNumber());
    const auto table4 = db.table(u"Table4");
    EXPECT_TRUE(table4->column(u"data")->isGuidAutoNumber());
    EXPECT_EQ(table4->column(u"data")->properties.value(u"DefaultValue"),
              vb::Variant(u"GenGUID()"_s));
}

TEST(JetFileFixtures, MissingObjectsAndLinkedNamesAreNotFound) {
    TestDir dir;
    const auto db = jetfile::Database::open(dir.copyFixture(u"queryTestV2000.mdb"_s));
    try {
        (void)db.table(u"NoSuchTable");
        FAIL() << "expected an error";
    } catch (const jetfile::Error& e) {
        EXPECT_EQ(e.kind(), jetfile::Error::Kind::NotFound);
        EXPECT_TRUE(e.message().endsWith(u": there is no table 'NoSuchTable'"_s))
            << e.message().toStdString();
    }
    // A query is in the catalog, but it is no table.
    const auto query = std::find_if(db.catalog().begin(), db.catalog().end(),
                                    [](const auto& e) { return e.type == 5; });
    ASSERT_NE(query, db.catalog().end());
    EXPECT_THROW((void)db.scan(query->name), jetfile::Error);
}

TEST(JetFileFixtures, LongValuesInlineInOneRowAndOverAChainOfPages) {
    TestDir dir;
    const auto db = jetfile::Database::open(dir.copyFixture(u"test2V2000.mdb"_s));
    const auto def = db.table(u"MSP_PROJECTS");
    auto cursor = db.scan(u"MSP_PROJECTS");
    ASSERT_TRUE(cursor.next());
    const int author = def->columnIndex(u"PROJ_PROP_AUTHOR");
    const int calendar = def->columnIndex(u"PROJ_INFO_CAL_NAME");
    const int blob = def->columnIndex(u"RESERVED_BINARY_DATA");
    ASSERT_GE(std::min({author, calendar, blob}), 0);
    // The declared length is in bytes: UTF-16 text, or compressed text with its FF FE mark.
    EXPECT_EQ(cursor.longValueLength(author), 696u);
    EXPECT_EQ(cursor.value(author).get<QString>()->size(), 348);
    EXPECT_EQ(cursor.longValueLength(calendar), 10u);
    EXPECT_EQ(cursor.value(calendar).get<QString>()->size(), 8);
    EXPECT_EQ(cursor.longValueLength(blob), 22970u);
    EXPECT_EQ(cursor.value(blob).get<QByteArray>()->size(), 22970);
    EXPECT_FALSE(cursor.next());
}

TEST(JetFileFixtures, SeekReturnsToARowAndGoesOnFromThere) {
    TestDir dir;
    const auto db = jetfile::Database::open(dir.copyFixture(u"overflowTestV2000.mdb"_s));
    auto cursor = db.scan(u"Table1");
    std::vector<std::pair<std::uint32_t, int>> places;
    QStringList values;
    while (cursor.next()) {
        places.emplace_back(cursor.page(), cursor.row());
        values << cursor.value(1).toString();
    }
    ASSERT_EQ(places.size(), 7u);
    // Row 3 was moved by Access to another page; its bookmark is its original slot.
    ASSERT_TRUE(cursor.seek(places[2].first, places[2].second));
    EXPECT_EQ(cursor.value(1).toString(), values[2]);
    ASSERT_TRUE(cursor.next());
    EXPECT_EQ(cursor.value(1).toString(), values[3]);
    ASSERT_TRUE(cursor.seek(places[0].first, places[0].second));
    EXPECT_EQ(cursor.value(1).toString(), values[0]);
    EXPECT_FALSE(cursor.seek(places[0].first, 250));
    EXPECT_FALSE(cursor.next());
    EXPECT_FALSE(cursor.seek(1, 0)); // not a page of this table
}
