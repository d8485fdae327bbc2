// The Solvaria-shaped source opened as the conversion opens it: through nxDb on the Jet provider,
// with the suite's password, and read through the ADOX catalog. Its system tables must read back
// as the built-in catalogue defines them, for the conversion verifies and copies what it finds.
#include "schema/Catalogue.h"

#include "dbaccess/nxDb.h"

#include "tests/schema/SchemaDbFixture.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace schematest;

namespace {

class SolvariaProvider : public AppTest {
protected:
    void SetUp() override {
        AppTest::SetUp();
        path = dir.file(u"QZSystem.mdb"_s);
        ASSERT_TRUE(QFile::copy(QStringLiteral(SOLVARIA_DIR) + u"/solvaria-small.mdb"_s, path));
        // A handle reads the application's state when it is made, so after the start.
        handle = std::make_unique<nxDb>();
        ASSERT_MEMBER_OK(handle->DbOpen(path, DbOpenShared | DbOpenPassword, true, kJetProvider));
    }
    void TearDown() override {
        handle.reset();
        AppTest::TearDown();
    }

    static const schema::Catalogue& catalogue() { return schema::Catalogue::builtIn(); }
    QString path;
    std::unique_ptr<nxDb> handle;
};

// The ADO type the Jet provider reports for a catalogue field made on Jet.
ado::DataTypeEnum jetAdoType(const schema::FieldDef& f) {
    return static_cast<ado::DataTypeEnum>(f.adoType(7));
}

TEST_F(SolvariaProvider, OpensWithTheSuitesPasswordOnly) {
    EXPECT_EQ(handle->DbType(), 0);
    EXPECT_EQ(handle->DateType(), 7);
    handle->DbClose();
    // Without the password the file does not open.
    EXPECT_FALSE(handle->DbOpen(path, DbOpenShared, true, kJetProvider));
    EXPECT_NE(nxApp::LastError().Number(), 0);
}

TEST_F(SolvariaProvider, ColumnsReadBackAsTheCatalogueDefinesThem) {
    ado::adox::Tables& tables = handle->Db()->Tables();
    qsizetype fields = 0;
    for (const schema::TableDef& t : catalogue().tables()) {
        SCOPED_TRACE(t.name.toStdString());
        const ado::adox::TablePtr table = tables.find(t.name);
        ASSERT_TRUE(table);
        EXPECT_EQ(table->Name(), t.name);
        EXPECT_EQ(table->Type(), u"TABLE"_s);
        ado::adox::Columns& columns = table->Columns();
        ASSERT_EQ(columns.Count(), t.fields.size());
        for (const schema::FieldDef& f : t.fields) {
            SCOPED_TRACE(f.name.toStdString());
            // ADOX lists columns by name; the order is the Jet reader test's business.
            const ado::adox::ColumnPtr c = columns.find(f.name);
            ASSERT_TRUE(c);
            EXPECT_EQ(c->Type(), jetAdoType(f));
            if (f.type == 202) {
                EXPECT_EQ(c->DefinedSize(), f.size);
            }
            // Required and auto-increment columns take no Null, nor does a Jet yes/no column.
            const bool nullable = (f.attributes & 3) == 0 && f.type != 11;
            EXPECT_EQ((c->Attributes() & ado::adColNullable) != 0, nullable);
            ++fields;
        }
    }
    EXPECT_EQ(fields, 1073);
}

TEST_F(SolvariaProvider, IndexesAndKeysReadBackAsTheCatalogueDefinesThem) {
    ado::adox::Tables& tables = handle->Db()->Tables();
    qsizetype indexes = 0;
    qsizetype keys = 0;
    for (const schema::TableDef& t : catalogue().tables()) {
        SCOPED_TRACE(t.name.toStdString());
        const ado::adox::TablePtr table = tables.find(t.name);
        ASSERT_TRUE(table);
        for (const schema::IndexDef& x : t.indexes) {
            SCOPED_TRACE(x.name.toStdString());
            const ado::adox::IndexPtr index = table->Indexes().find(x.name);
            ASSERT_TRUE(index);
            QStringList items;
            for (const ado::adox::ColumnPtr& c : index->Columns()) {
                items << (c->SortOrder() == ado::SortOrderEnum::adSortDescending ? u"-"_s
                                                                                 : u"+"_s) +
                             c->Name();
            }
            EXPECT_EQ(items.join(u';'), x.fields);
            EXPECT_EQ(index->PrimaryKey(), (x.flags & 1) != 0);
            EXPECT_EQ(index->Unique(), (x.flags & 5) != 0);
            ++indexes;
        }
        for (const ado::adox::KeyPtr& key : table->Keys()) {
            if (key->Type() != ado::KeyTypeEnum::adKeyForeign) {
                continue;
            }
            SCOPED_TRACE(key->Name().toStdString());
            const auto& relations = catalogue().relations();
            const auto rel =
                std::find_if(relations.begin(), relations.end(),
                             [&](const schema::RelationDef& r) { return r.name == key->Name(); });
            ASSERT_NE(rel, relations.end());
            EXPECT_EQ(rel->table, t.name);
            EXPECT_EQ(key->RelatedTable(), rel->relatedTable);
            EXPECT_EQ(static_cast<long>(key->DeleteRule()), rel->deleteRule);
            EXPECT_EQ(static_cast<long>(key->UpdateRule()), rel->updateRule);
            QStringList columns;
            QStringList related;
            for (const ado::adox::ColumnPtr& c : key->Columns()) {
                columns << c->Name();
                related << c->RelatedColumn();
            }
            EXPECT_EQ(columns, rel->fields);
            EXPECT_EQ(related, rel->relatedFields);
            ++keys;
        }
    }
    EXPECT_EQ(indexes, 230);
    EXPECT_EQ(keys, 62); // the relations that cascade; the others are never made
}

} // namespace
