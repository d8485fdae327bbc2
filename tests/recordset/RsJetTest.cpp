// nxRs on the Jet provider, over Access-written files: reading works, every editing member
// refuses without touching the file, and the copy of the record follows the moves.
#include "recordset/nxRs.h"

#include "dbaccess/nxDb.h"

#include "platform/jetfile/Database.h"

#include "tests/frame/FrameFixture.h"

#include <QCryptographicHash>

using namespace Qt::StringLiterals;

namespace {

QByteArray digest(const QString& path) {
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QCryptographicHash::hash(f.readAll(), QCryptographicHash::Sha256);
}

class RsJetTest : public FrameTest {
protected:
    void SetUp() override {
        FrameTest::SetUp();
        path = dir.copyFixture(u"testV2000.mdb"_s);
        ASSERT_FALSE(path.isEmpty());
        before = digest(path);
        db = std::make_unique<nxDb>();
        ASSERT_MEMBER_OK(db->DbOpen(path, 1, true, u"Microsoft.Jet.OLEDB.4.0"_s));
        ASSERT_EQ(db->DbType(), 0);
        rs.Db(db.get());
    }
    void TearDown() override {
        rs.RsClose();
        db->DbClose();
        EXPECT_EQ(digest(path), before); // nothing was written
        FrameTest::TearDown();
    }

    QString path;
    QByteArray before;
    std::unique_ptr<nxDb> db;
    nxRs rs;
};

TEST_F(RsJetTest, TheEditingMembersRefuseCleanly) {
    ASSERT_MEMBER_OK(rs.RsOpen(u"select * from Table1"_s, 1, 3, true, 2));
    ASSERT_TRUE(rs.IsValidRec());
    const vb::Variant first = rs.FldGet(u"A"_s);
    EXPECT_EQ(first, vb::Variant(u"abcdefg"_s));
    EXPECT_FALSE(rs.IsUpdatable());
    EXPECT_FALSE(rs.Edit());
    EXPECT_FALSE(rs.IsEditing());
    EXPECT_FALSE(rs.AddNew(true, true, u"A"_s, u"nuovo"_s));
    EXPECT_FALSE(rs.IsNewRec());
    EXPECT_FALSE(rs.FldSet(u"A"_s, u"x"_s, true));
    EXPECT_EQ(nxApp::LastError().Description(), u"Record non in editing"_s);
    EXPECT_TRUE(rs.Update(true)); // nothing in editing: nothing to do
    EXPECT_FALSE(rs.Delete(true));
    EXPECT_TRUE(box->shown().empty());
    // The recordset is still good for reading, on the same record.
    EXPECT_TRUE(rs.IsValidRec());
    EXPECT_EQ(rs.FldGet(u"A"_s), first);
    EXPECT_TRUE(rs.MoveNext());
}

TEST_F(RsJetTest, KeyFieldsComeFromTheCatalogueAndTheWalkEndsPastTheLastRecord) {
    ASSERT_MEMBER_OK(rs.RsOpen(u"select * from Table1"_s, 1, 3, true, 2));
    EXPECT_EQ(rs.Name(), u"Table1"_s);
    EXPECT_EQ(rs.PrimaryFields(), QStringList{u"A"_s});
    EXPECT_TRUE(rs.FldIsPrimary(u"a"_s));
    EXPECT_EQ(rs.FldKind(u"A"_s), nxRs::kKindText);
    EXPECT_EQ(rs.FldKind(u"E"_s), nxRs::kKindNumber);
    EXPECT_EQ(rs.FldKind(u"G"_s), nxRs::kKindDate);
    EXPECT_EQ(rs.FldKind(u"I"_s), nxRs::kKindBoolean);
    // The count runs a query of its own; the file's reader counts the rows apart.
    const auto rows = static_cast<int>(jetfile::Database::open(path).countRows(u"Table1"));
    ASSERT_GT(rows, 1);
    EXPECT_EQ(rs.Count(), rows);
    int walked = 1;
    while (rs.MoveNext(false, true)) {
        ++walked;
    }
    EXPECT_EQ(walked, rows);
    EXPECT_TRUE(rs.Eof());
    EXPECT_FALSE(rs.MoveNext(false, true)); // past the end stays at the end
    EXPECT_EQ(rs.FldGet(u"A"_s, u"-"_s), vb::Variant(u"-"_s));
    EXPECT_EQ(rs.Position(), 0);
    EXPECT_TRUE(rs.MoveLast());
    EXPECT_EQ(rs.Position(), rows);
    EXPECT_TRUE(box->shown().empty());
}

TEST_F(RsJetTest, AForwardOnlyReadOnlyRecordsetWalksOnceAndReadsEveryField) {
    ASSERT_MEMBER_OK(rs.RsOpen(u"Table1"_s, 0, 1, true, 2));
    // Every value handed out is kept to the end: the recordset reads each record into the
    // storage of its copy of the last one, which must leave the values already given alone.
    std::vector<std::vector<vb::Variant>> handedOut;
    do {
        auto& record = handedOut.emplace_back();
        for (int c = 0; c < rs.FldCount(); ++c) {
            record.push_back(rs.FldGet(c, vb::Null{}));
        }
    } while (rs.MoveNext(false, true));
    const auto file = jetfile::Database::open(path);
    auto cursor = file.scan(u"Table1"_s);
    std::size_t records = 0;
    int nonNull = 0;
    for (; cursor.next(); ++records) {
        ASSERT_LT(records, handedOut.size());
        const auto& record = handedOut[records];
        ASSERT_EQ(record.size(), file.table(u"Table1"_s)->columns.size());
        for (std::size_t c = 0; c < record.size(); ++c) {
            EXPECT_EQ(record[c], cursor.value(static_cast<int>(c))) << records << ", " << c;
            nonNull += record[c].isNull() ? 0 : 1;
        }
    }
    EXPECT_EQ(records, handedOut.size());
    EXPECT_EQ(handedOut.front().front(), vb::Variant(u"abcdefg"_s));
    EXPECT_GT(nonNull, static_cast<int>(records));
    EXPECT_TRUE(rs.Eof());
    EXPECT_TRUE(rs.Requery(true)); // opened again at its start
    EXPECT_EQ(rs.FldGet(0), vb::Variant(u"abcdefg"_s));
}

} // namespace
