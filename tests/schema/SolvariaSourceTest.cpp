// The Solvaria-shaped sources that mdbgen builds from catalogue.tsv, read back with the Jet
// reader and held against the catalogue the program compiles in: what the conversion finds in
// a source must be what DbCreate makes on the server.

#include "platform/jetfile/Database.h"
#include "schema/Catalogue.h"

#include "tests/support/Printers.h"

#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString solvaria(const QString& file) {
    return QStringLiteral(SOLVARIA_DIR) + u'/' + file;
}

// The Jet column type the catalogue's ADO type becomes when nxTd makes the column on Jet.
std::uint8_t jetType(const schema::FieldDef& f) {
    if (f.dateType) {
        return static_cast<std::uint8_t>(jetfile::ColumnType::DateTime);
    }
    switch (f.type) {
    case 2: return static_cast<std::uint8_t>(jetfile::ColumnType::Integer);
    case 3: return static_cast<std::uint8_t>(jetfile::ColumnType::Long);
    case 5: return static_cast<std::uint8_t>(jetfile::ColumnType::Double);
    case 6: return static_cast<std::uint8_t>(jetfile::ColumnType::Currency);
    case 11: return static_cast<std::uint8_t>(jetfile::ColumnType::Boolean);
    case 72: return static_cast<std::uint8_t>(jetfile::ColumnType::Guid);
    case 202: return static_cast<std::uint8_t>(jetfile::ColumnType::Text);
    case 203: return static_cast<std::uint8_t>(jetfile::ColumnType::Memo);
    default: return 0;
    }
}

// An index's columns in IdxAdd's notation: "+A;-B".
QString fieldString(const jetfile::Index& index) {
    QStringList items;
    for (const jetfile::IndexColumn& c : index.columns) {
        items << (c.ascending ? u"+"_s : u"-"_s) + c.name;
    }
    return items.join(u';');
}

QList<QString> columnOf(const jetfile::Database& db, QStringView table, QStringView column) {
    QList<QString> out;
    jetfile::RowCursor cursor = db.scan(table);
    while (cursor.next()) {
        const vb::Variant v = cursor.value(column);
        out << (v.isNull() ? u"<null>"_s : v.toString());
    }
    return out;
}

class SolvariaSource : public testing::Test {
protected:
    static void SetUpTestSuite() {
        s_db = std::make_unique<jetfile::Database>(
            jetfile::Database::open(solvaria(u"solvaria-small.mdb"_s)));
    }
    static void TearDownTestSuite() { s_db.reset(); }

    static const schema::Catalogue& catalogue() { return schema::Catalogue::builtIn(); }
    static inline std::unique_ptr<jetfile::Database> s_db;
};

} // namespace

TEST_F(SolvariaSource, HeaderCarriesTheSuitesPassword) {
    EXPECT_EQ(s_db->header().password, u"brnzolvet52"_s);
    EXPECT_EQ(s_db->header().version, jetfile::JetVersion::Jet4);
    EXPECT_FALSE(s_db->header().isEncoded());
}

TEST_F(SolvariaSource, SystemTablesHoldTheCataloguesColumns) {
    ASSERT_TRUE(catalogue().isValid()) << catalogue().error().toStdString();
    qsizetype fields = 0;
    for (const schema::TableDef& t : catalogue().tables()) {
        SCOPED_TRACE(t.name.toStdString());
        const auto def = s_db->table(t.name);
        ASSERT_EQ(def->name, t.name); // exact spelling, not only a case-blind match
        ASSERT_EQ(def->columns.size(), static_cast<size_t>(t.fields.size()));
        for (qsizetype k = 0; k < t.fields.size(); ++k) {
            const schema::FieldDef& f = t.fields[k];
            const jetfile::Column& c = def->columns[static_cast<size_t>(k)];
            SCOPED_TRACE(f.name.toStdString());
            EXPECT_EQ(c.name, f.name);
            EXPECT_EQ(c.typeCode, jetType(f));
            if (f.type == 202) {
                EXPECT_EQ(c.length, 2 * f.size);
            }
            EXPECT_EQ(c.isAutoNumber(), (f.attributes & 2) != 0);
            EXPECT_EQ(c.properties.value(u"Required").toBool().value_or(false),
                      (f.attributes & 1) != 0);
            if (f.type == 202) {
                EXPECT_EQ(c.properties.value(u"AllowZeroLength").toBool().value_or(false),
                          (f.attributes & 32) != 0);
            }
            const vb::Variant dflt = c.properties.value(u"DefaultValue");
            if (f.hasDefault) {
                EXPECT_EQ(dflt.toString(), f.defaultValue);
            } else {
                EXPECT_TRUE(dflt.isEmpty());
            }
            ++fields;
        }
    }
    EXPECT_EQ(fields, 1073);
}

TEST_F(SolvariaSource, SystemTablesHoldTheCataloguesIndexes) {
    qsizetype indexes = 0;
    for (const schema::TableDef& t : catalogue().tables()) {
        SCOPED_TRACE(t.name.toStdString());
        const auto def = s_db->table(t.name);
        std::vector<const jetfile::Index*> own;
        for (const jetfile::Index& i : def->indexes) {
            if (!i.isForeignKey()) {
                own.push_back(&i);
            }
        }
        ASSERT_EQ(own.size(), static_cast<size_t>(t.indexes.size()));
        for (const schema::IndexDef& x : t.indexes) {
            SCOPED_TRACE(x.name.toStdString());
            const jetfile::Index* found = nullptr;
            for (const jetfile::Index* i : own) {
                if (i->name == x.name) {
                    found = i;
                }
            }
            ASSERT_NE(found, nullptr);
            EXPECT_EQ(fieldString(*found), x.fields);
            EXPECT_EQ(found->isPrimaryKey(), (x.flags & 1) != 0);
            EXPECT_EQ(found->isUnique(), (x.flags & 5) != 0);
            ++indexes;
        }
    }
    EXPECT_EQ(indexes, 230);
}

TEST_F(SolvariaSource, CascadingRelationsStandAsEnforcedKeys) {
    QHash<QString, jetfile::Relation> found;
    for (const jetfile::Relation& r : s_db->relations()) {
        found.insert(r.name, r);
    }
    int cascading = 0;
    for (const schema::RelationDef& r : catalogue().relations()) {
        SCOPED_TRACE(r.name.toStdString());
        if (r.deleteRule == 0 && r.updateRule == 0) {
            // a plain reference is never made as a key
            EXPECT_FALSE(found.contains(r.name));
            continue;
        }
        ++cascading;
        ASSERT_TRUE(found.contains(r.name));
        const jetfile::Relation& j = found[r.name];
        EXPECT_EQ(j.table, r.table);
        EXPECT_EQ(j.referencedTable, r.relatedTable);
        EXPECT_EQ(QStringList(j.columns.begin(), j.columns.end()), r.fields);
        EXPECT_EQ(QStringList(j.referencedColumns.begin(), j.referencedColumns.end()),
                  r.relatedFields);
        EXPECT_TRUE(j.isEnforced());
        EXPECT_EQ(j.cascadesDeletes(), r.deleteRule == 1);
        EXPECT_EQ(j.cascadesUpdates(), r.updateRule == 1);
    }
    EXPECT_EQ(cascading, 62);
    EXPECT_EQ(found.size(), 62);
}

TEST_F(SolvariaSource, RowsTheConversionReads) {
    EXPECT_EQ(columnOf(*s_db, u"QZSYSTEM", u"DESCRIZIONE"),
              QList<QString>{u"Comune di Valdorsa - archivio documentale"_s});
    const QList<QString> listed = columnOf(*s_db, u"DB_ELENCO", u"SYS_SERIALE");
    EXPECT_EQ(listed, (QList<QString>{u"D_PROTOCOLLO"_s, u"D_FATTURE"_s, u"D_CONTRATTI"_s,
                                      u"2019_CORRISP"_s, u"D_RIMOSSO"_s}));
    for (const QString& name : listed) {
        // every listed archive is in the file but the one kept out on purpose
        EXPECT_EQ(s_db->findObject(name) != nullptr, name != u"D_RIMOSSO") << name.toStdString();
    }
    EXPECT_NE(s_db->findObject(u"D_BOZZE"), nullptr);
    EXPECT_EQ(s_db->countRows(u"D_PROTOCOLLO"), 1000u);
    EXPECT_EQ(s_db->countRows(u"D_FATTURE"), 250u);
    EXPECT_EQ(s_db->countRows(u"2019_CORRISP"), 50u);
    for (const QString& dictionary : columnOf(*s_db, u"DB_DIZIONARIO", u"NOME_TABELLA")) {
        EXPECT_TRUE(dictionary.startsWith(u"DIZ_"));
        EXPECT_GT(s_db->countRows(dictionary), 0u) << dictionary.toStdString();
    }
    const auto archive = s_db->table(u"D_PROTOCOLLO");
    ASSERT_NE(archive->primaryKey(), nullptr);
    EXPECT_EQ(fieldString(*archive->primaryKey()), u"+SYS_RECORD"_s);
    EXPECT_TRUE(archive->column(u"SYS_RECORD")->isAutoNumber());
    EXPECT_EQ(archive->lastAutoNumber, 1000);
}

TEST(SolvariaFindings, EachVariantCarriesItsFinding) {
    using jetfile::Database;
    {
        const Database db = Database::open(solvaria(u"solvaria-findings-dates.mdb"_s));
        int before1753 = 0;
        jetfile::RowCursor c = db.scan(u"D_ANOMALIE");
        while (c.next()) {
            const auto d = c.value(u"DATA_DOC").toDate();
            if (d && d->date().year() < 1753) {
                ++before1753;
            }
        }
        EXPECT_EQ(before1753, 2);
    }
    {
        const Database db = Database::open(solvaria(u"solvaria-findings-nullkey.mdb"_s));
        const auto t = db.table(u"D_ANOMALIE");
        ASSERT_NE(t->primaryKey(), nullptr);
        EXPECT_EQ(fieldString(*t->primaryKey()), u"+CHIAVE"_s);
        EXPECT_EQ(columnOf(db, u"D_ANOMALIE", u"CHIAVE"),
                  (QList<QString>{u"K1"_s, u"<null>"_s, u"K3"_s}));
    }
    {
        const Database db = Database::open(solvaria(u"solvaria-findings-memoindex.mdb"_s));
        const auto t = db.table(u"D_ANOMALIE");
        bool memoIndexed = false;
        for (const jetfile::Index& i : t->indexes) {
            for (const jetfile::IndexColumn& c : i.columns) {
                memoIndexed |= t->columns[static_cast<size_t>(c.column)].type() ==
                               jetfile::ColumnType::Memo;
            }
        }
        EXPECT_TRUE(memoIndexed);
    }
    for (const auto& [file, bytes] : {std::pair{u"solvaria-findings-index900.mdb"_s, 900},
                                      std::pair{u"solvaria-findings-index901.mdb"_s, 901}}) {
        const Database db = Database::open(solvaria(file));
        const auto t = db.table(u"D_ANOMALIE");
        int length = -1;
        for (const jetfile::Index& i : t->indexes) {
            if (i.name == u"LUNGO") {
                length = 0;
                for (const jetfile::IndexColumn& c : i.columns) {
                    const jetfile::Column& col = t->columns[static_cast<size_t>(c.column)];
                    length += col.type() == jetfile::ColumnType::Boolean ? 1 : col.length;
                }
            }
        }
        EXPECT_EQ(length, bytes) << file.toStdString();
    }
}
