// Round trips: mdbgen builds a database from each example description with Jackcess and dumps
// everything Jackcess reads back as JSON; jetfile must read the same tables, columns,
// properties, indexes, relations and values from the same file.
#include "platform/jetfile/Database.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

using namespace Qt::Literals::StringLiterals;

namespace {

QString hexBits(const void* p, int bytes) {
    quint64 v = 0;
    std::memcpy(&v, p, static_cast<std::size_t>(bytes));
    return QString::number(v, 16).rightJustified(bytes * 2, u'0');
}

// A value in the dump's encoding (see tools/mdbgen/README.md), for the dump's type name.
QJsonValue encode(const vb::Variant& v, const QString& type) {
    if (v.isNull()) {
        return QJsonValue::Null;
    }
    if (const auto* b = v.get<bool>()) {
        return *b;
    }
    if (const auto* u = v.get<std::uint8_t>()) {
        return int(*u);
    }
    if (const auto* i = v.get<std::int16_t>()) {
        return int(*i);
    }
    if (const auto* l = v.get<std::int32_t>()) {
        return int(*l);
    }
    if (const auto* c = v.get<vb::Currency>()) {
        return QString::number(c->tenThousandths);
    }
    if (const auto* f = v.get<float>()) {
        return hexBits(f, 4);
    }
    if (const auto* d = v.get<double>()) {
        return hexBits(d, 8);
    }
    if (const auto* t = v.get<QDateTime>()) {
        return t->toString(u"yyyy-MM-ddTHH:mm:ss.zzz"_s);
    }
    if (const auto* n = v.get<vb::Decimal>()) {
        return n->toString();
    }
    if (const auto* s = v.get<QString>()) {
        return *s;
    }
    if (const auto* bytes = v.get<QByteArray>()) {
        return QString::fromLatin1(bytes->toHex());
    }
    return u"<unexpected subtype of %1>"_s.arg(type);
}

// Dates are compared through their ISO text; the other types as they stand.
QJsonValue expected(const QJsonValue& dumped) {
    return dumped.isObject() && dumped.toObject().contains(u"iso"_s) ? dumped[u"iso"_s] : dumped;
}

std::string show(const QJsonValue& v) {
    return QJsonDocument(QJsonArray{v}).toJson(QJsonDocument::Compact).toStdString();
}

void compareProperties(const jetfile::PropertyMap& ours, const QJsonArray& dumped) {
    EXPECT_EQ(ours.items.size(), std::size_t(dumped.size()));
    for (const auto& item : dumped) {
        const QString name = item[u"name"_s].toString();
        SCOPED_TRACE("property " + name.toStdString());
        const auto* p = ours.find(name);
        ASSERT_NE(p, nullptr);
        EXPECT_EQ(p->ddl, item[u"ddl"_s].toBool());
        EXPECT_EQ(show(encode(p->value, item[u"type"_s].toString())),
                  show(expected(item[u"value"_s])));
    }
}

void compareColumns(const jetfile::TableDefinition& def, const QJsonArray& columns) {
    ASSERT_EQ(def.columns.size(), std::size_t(columns.size()));
    for (qsizetype i = 0; i < columns.size(); ++i) {
        const QJsonObject c = columns[i].toObject();
        const jetfile::Column& col = def.columns[std::size_t(i)];
        SCOPED_TRACE("column " + c[u"name"_s].toString().toStdString());
        EXPECT_EQ(col.name, c[u"name"_s].toString());
        EXPECT_EQ(col.typeCode, c[u"typeCode"_s].toInt());
        EXPECT_EQ(col.index, c[u"index"_s].toInt());
        EXPECT_EQ(col.number, c[u"number"_s].toInt());
        EXPECT_EQ(col.displayIndex, c[u"displayIndex"_s].toInt());
        EXPECT_EQ(col.length, c[u"length"_s].toInt());
        EXPECT_EQ(!col.isFixedLength(), c[u"variableLength"_s].toBool());
        EXPECT_EQ(col.isAutoNumber() || col.isGuidAutoNumber(), c[u"autoNumber"_s].toBool());
        EXPECT_EQ(col.isCompressedUnicode(), c[u"compressedUnicode"_s].toBool());
        EXPECT_EQ(col.isHyperlink(), c[u"hyperlink"_s].toBool());
        if (c.contains(u"precision"_s)) {
            EXPECT_EQ(col.precision, c[u"precision"_s].toInt());
            EXPECT_EQ(col.scale, c[u"scale"_s].toInt());
        }
        if (c.contains(u"fixedOffset"_s)) {
            EXPECT_EQ(col.fixedOffset, c[u"fixedOffset"_s].toInt());
        } else {
            EXPECT_EQ(col.varIndex, c[u"varIndex"_s].toInt());
        }
        compareProperties(col.properties, c[u"properties"_s].toArray());
    }
}

void compareIndexes(const jetfile::Database& db, const jetfile::TableDefinition& def,
                    const QJsonArray& indexes) {
    ASSERT_EQ(def.indexes.size(), std::size_t(indexes.size()));
    for (qsizetype i = 0; i < indexes.size(); ++i) {
        const QJsonObject x = indexes[i].toObject();
        const jetfile::Index& index = def.indexes[std::size_t(i)];
        SCOPED_TRACE("index " + x[u"name"_s].toString().toStdString());
        EXPECT_EQ(index.name, x[u"name"_s].toString());
        EXPECT_EQ(index.number, x[u"number"_s].toInt());
        EXPECT_EQ(index.dataNumber, x[u"dataNumber"_s].toInt());
        EXPECT_EQ(index.isPrimaryKey(), x[u"primaryKey"_s].toBool());
        EXPECT_EQ(index.isForeignKey(), x[u"foreignKey"_s].toBool());
        EXPECT_EQ(index.isUnique(), x[u"unique"_s].toBool());
        EXPECT_EQ(index.ignoresNulls(), x[u"ignoreNulls"_s].toBool());
        EXPECT_EQ(index.isRequired(), x[u"required"_s].toBool());
        EXPECT_EQ(index.flags, x[u"dataFlags"_s].toInt());
        const QJsonArray keys = x[u"columns"_s].toArray();
        ASSERT_EQ(index.columns.size(), std::size_t(keys.size()));
        for (qsizetype k = 0; k < keys.size(); ++k) {
            EXPECT_EQ(index.columns[std::size_t(k)].name, keys[k][u"name"_s].toString());
            EXPECT_EQ(index.columns[std::size_t(k)].ascending, keys[k][u"ascending"_s].toBool());
        }
        const QJsonValue ref = x[u"reference"_s];
        ASSERT_EQ(index.reference.has_value(), ref.isObject());
        if (index.reference) {
            EXPECT_EQ(index.reference->onPrimaryTable, ref[u"primaryTable"_s].toBool());
            EXPECT_EQ(index.reference->otherIndexNumber, ref[u"otherIndexNumber"_s].toInt());
            EXPECT_EQ(index.reference->cascadeUpdates, ref[u"cascadeUpdates"_s].toBool());
            EXPECT_EQ(index.reference->cascadeDeletes, ref[u"cascadeDeletes"_s].toBool());
            EXPECT_EQ(index.reference->cascadeNull, ref[u"cascadeNullOnDelete"_s].toBool());
            const auto* other = db.findObject(ref[u"otherTable"_s].toString());
            ASSERT_NE(other, nullptr);
            EXPECT_EQ(index.reference->otherTablePage, other->tablePage());
        }
    }
}

void compareRows(const jetfile::Database& db, const jetfile::TableDefinition& def,
                 const QJsonObject& table) {
    const QJsonArray rows = table[u"rows"_s].toArray();
    const QJsonArray columns = table[u"columns"_s].toArray();
    auto cursor = db.scan(def.name);
    qsizetype r = 0;
    while (cursor.next()) {
        ASSERT_LT(r, rows.size()) << "more rows than Jackcess reads";
        const QJsonArray row = rows[r].toArray();
        for (qsizetype c = 0; c < columns.size(); ++c) {
            const QString type = columns[c][u"type"_s].toString();
            const QJsonValue ours = encode(cursor.value(int(c)), type);
            const QJsonValue theirs = expected(row[c]);
            if (ours != theirs) {
                ADD_FAILURE() << "row " << r << " column "
                              << columns[c][u"name"_s].toString().toStdString() << ": jetfile "
                              << show(ours).substr(0, 200) << ", Jackcess "
                              << show(theirs).substr(0, 200);
                return;
            }
        }
        ++r;
    }
    EXPECT_EQ(r, table[u"rowsRead"_s].toInteger());
}

void compareRelations(const jetfile::Database& db, const QJsonArray& relationships) {
    const auto ours = db.relations();
    EXPECT_EQ(ours.size(), std::size_t(relationships.size()));
    for (const auto& rel : relationships) {
        const QString name = rel[u"name"_s].toString();
        SCOPED_TRACE("relation " + name.toStdString());
        const auto found =
            std::find_if(ours.begin(), ours.end(), [&](const auto& r) { return r.name == name; });
        ASSERT_NE(found, ours.end());
        EXPECT_EQ(found->referencedTable, rel[u"primary"_s][u"table"_s].toString());
        EXPECT_EQ(found->table, rel[u"foreign"_s][u"table"_s].toString());
        QStringList primary;
        QStringList foreign;
        for (const auto& c : rel[u"primary"_s][u"columns"_s].toArray()) {
            primary << c.toString();
        }
        for (const auto& c : rel[u"foreign"_s][u"columns"_s].toArray()) {
            foreign << c.toString();
        }
        EXPECT_EQ(QStringList(found->referencedColumns.begin(), found->referencedColumns.end()),
                  primary);
        EXPECT_EQ(QStringList(found->columns.begin(), found->columns.end()), foreign);
        EXPECT_EQ(found->grbit, rel[u"flags"_s].toInt());
        EXPECT_EQ(found->isEnforced(), rel[u"referentialIntegrity"_s].toBool());
        EXPECT_EQ(found->cascadesUpdates(), rel[u"cascadeUpdates"_s].toBool());
        EXPECT_EQ(found->cascadesDeletes(), rel[u"cascadeDeletes"_s].toBool());
    }
}

class JetFileRoundTrip : public ::testing::TestWithParam<const char*> {};

} // namespace

TEST_P(JetFileRoundTrip, ReadsWhatJackcessWrote) {
#ifndef JETFILE_ROUNDTRIP_DIR
    GTEST_SKIP() << "mdbgen is not available in this build (UPSIZER_MDBGEN=OFF)";
#else
    const QString base =
        QString::fromUtf8(JETFILE_ROUNDTRIP_DIR) + u'/' + QString::fromUtf8(GetParam());
    QFile dumpFile(base + u".json"_s);
    ASSERT_TRUE(dumpFile.open(QIODevice::ReadOnly)) << base.toStdString();
    const QJsonObject dump = QJsonDocument::fromJson(dumpFile.readAll()).object();
    ASSERT_EQ(dump[u"mdbgenDump"_s].toInt(), 1);
    const auto db = jetfile::Database::open(base + u".mdb"_s);

    const QJsonObject file = dump[u"file"_s].toObject();
    EXPECT_EQ(db.header().password, file[u"password"_s].toString());
    EXPECT_EQ(db.header().password, file[u"jackcessPassword"_s].toString());
    EXPECT_EQ(QString::number(db.header().databaseKey, 16).rightJustified(8, u'0'),
              file[u"databaseKey"_s].toString());
    EXPECT_EQ(db.header().codePage, file[u"codePage"_s].toInt());
    EXPECT_EQ(db.header().pageCount, std::uint32_t(file[u"pages"_s].toInt()));

    for (const auto& t : dump[u"tables"_s].toArray()) {
        const QJsonObject table = t.toObject();
        if (table[u"linked"_s].toBool()) {
            continue;
        }
        SCOPED_TRACE("table " + table[u"name"_s].toString().toStdString());
        const auto def = db.table(table[u"name"_s].toString());
        EXPECT_EQ(def->page, std::uint32_t(table[u"tableDefPage"_s].toInt()));
        EXPECT_EQ(def->rowCount, std::uint32_t(table[u"rowCount"_s].toInt()));
        compareProperties(def->properties, table[u"properties"_s].toArray());
        compareColumns(*def, table[u"columns"_s].toArray());
        compareIndexes(db, *def, table[u"indexes"_s].toArray());
        if (table[u"rows"_s].isArray()) {
            compareRows(db, *def, table);
        }
    }
    compareRelations(db, dump[u"relationships"_s].toArray());
#endif
}

INSTANTIATE_TEST_SUITE_P(Examples, JetFileRoundTrip,
                         ::testing::Values("all-types", "indexes", "relations", "dates", "memos",
                                           "text-compression", "password", "changes"),
                         [](const ::testing::TestParamInfo<const char*>& example) {
                             std::string name = example.param;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });
