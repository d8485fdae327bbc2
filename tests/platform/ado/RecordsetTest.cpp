#include "platform/ado/Connection.h"
#include "platform/ado/Error.h"
#include "platform/ado/MemoryRowset.h"
#include "platform/ado/ProviderRegistry.h"
#include "platform/ado/Recordset.h"
#include "platform/ado/recording/RecordingProvider.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using ado::CursorTypeEnum;
using ado::DataTypeEnum;
using ado::HResult;
using ado::LockTypeEnum;

namespace {

const QString kQuery = u"select SYS_SERIALE, ARCHIVIO from DB_ELENCO order by SYS_SERIALE"_s;

HResult codeOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const ado::Error& e) {
        return static_cast<HResult>(static_cast<std::uint32_t>(e.hresult()));
    }
    return static_cast<HResult>(0);
}

class RecordsetTest : public ::testing::Test {
protected:
    void SetUp() override {
        m_provider = std::make_shared<ado::recording::RecordingProvider>();
        m_scope = std::make_unique<ado::ScopedProvider>(u"Rs.Test"_s, m_provider);
        m_provider->script().returns(
            kQuery, ado::recording::rows({{u"SYS_SERIALE"_s, DataTypeEnum::adInteger},
                                          {u"ARCHIVIO"_s, DataTypeEnum::adVarWChar}},
                                         {{std::int32_t{1}, u"Fatture"_s},
                                          {std::int32_t{2}, u"Ordini"_s},
                                          {std::int32_t{3}, vb::Null{}},
                                          {std::int32_t{4}, u"Fornitori"_s},
                                          {std::int32_t{5}, u"Fatture passive"_s}}));
        m_provider->script().returns(
            u"select * from EMPTY"_s,
            ado::recording::rows({{u"A"_s, DataTypeEnum::adInteger}}, {}));
        m_cn = ado::Connection::create();
        m_cn->Open(u"Provider=Rs.Test;Data Source=s"_s);
    }

    ado::RecordsetPtr open(CursorTypeEnum type, const QString& source = kQuery) {
        auto rs = std::make_shared<ado::Recordset>();
        rs->Open(source, m_cn, type, LockTypeEnum::adLockReadOnly);
        return rs;
    }

    static std::vector<std::int32_t> serialsForward(ado::Recordset& rs) {
        std::vector<std::int32_t> seen;
        while (!rs.Eof()) {
            seen.push_back(*rs.Fields(u"sys_seriale").Value().toLong());
            rs.MoveNext();
        }
        return seen;
    }

    std::shared_ptr<ado::recording::RecordingProvider> m_provider;
    std::unique_ptr<ado::ScopedProvider> m_scope;
    ado::ConnectionPtr m_cn;
};

} // namespace

TEST_F(RecordsetTest, ForwardOnlyScanAndItsRefusals) {
    auto rs = open(CursorTypeEnum::adOpenForwardOnly);
    EXPECT_EQ(rs->State(), ado::adStateOpen);
    EXPECT_EQ(rs->CursorType(), CursorTypeEnum::adOpenForwardOnly);
    EXPECT_FALSE(rs->Bof());
    EXPECT_EQ(serialsForward(*rs), (std::vector<std::int32_t>{1, 2, 3, 4, 5}));
    EXPECT_TRUE(rs->Eof());
    EXPECT_FALSE(rs->Bof());
    EXPECT_EQ(codeOf([&] { rs->MoveNext(); }), HResult::adErrNoCurrentRecord);
    EXPECT_EQ(codeOf([&] { (void)rs->Fields(0L).Value(); }), HResult::adErrNoCurrentRecord);
    EXPECT_EQ(codeOf([&] { rs->MovePrevious(); }), HResult::DB_E_CANTFETCHBACKWARDS);
    EXPECT_EQ(codeOf([&] { rs->MoveLast(); }), HResult::DB_E_CANTFETCHBACKWARDS);
    EXPECT_EQ(codeOf([&] { (void)rs->Bookmark(); }), HResult::adErrFeatureNotAvailable);
    EXPECT_EQ(rs->RecordCount(), -1);
    EXPECT_FALSE(rs->Supports(ado::adMovePrevious));
    EXPECT_FALSE(rs->Supports(ado::adBookmark));
    rs->Close();
    EXPECT_EQ(rs->State(), ado::adStateClosed);
    EXPECT_EQ(codeOf([&] { (void)rs->Eof(); }), HResult::adErrObjectClosed);
}

TEST_F(RecordsetTest, EmptyRowsetIsAtBofAndEof) {
    for (auto type : {CursorTypeEnum::adOpenForwardOnly, CursorTypeEnum::adOpenStatic}) {
        auto rs = open(type, u"select * from EMPTY"_s);
        EXPECT_TRUE(rs->Bof());
        EXPECT_TRUE(rs->Eof());
        EXPECT_EQ(codeOf([&] { rs->MoveFirst(); }), HResult::adErrNoCurrentRecord);
        EXPECT_EQ(codeOf([&] { rs->MoveNext(); }), HResult::adErrNoCurrentRecord);
        EXPECT_EQ(rs->Fields().Count(), 1);
    }
    EXPECT_EQ(open(CursorTypeEnum::adOpenStatic, u"select * from EMPTY"_s)->RecordCount(), 0);
}

TEST_F(RecordsetTest, ScrollableMovesBofEofAndPositions) {
    auto rs = open(CursorTypeEnum::adOpenKeyset);
    EXPECT_EQ(rs->CursorType(), CursorTypeEnum::adOpenKeyset);
    EXPECT_TRUE(rs->Supports(ado::adMovePrevious | ado::adBookmark));
    EXPECT_FALSE(rs->Supports(ado::adAddNew)); // read-only lock
    rs->MoveLast();
    EXPECT_EQ(*rs->Fields(0L).Value().toLong(), 5);
    EXPECT_EQ(rs->AbsolutePosition(), 5);
    rs->MovePrevious();
    EXPECT_EQ(*rs->Fields(0L).Value().toLong(), 4);
    rs->Move(-3);
    EXPECT_EQ(*rs->Fields(0L).Value().toLong(), 1);
    rs->MovePrevious();
    EXPECT_TRUE(rs->Bof());
    EXPECT_FALSE(rs->Eof());
    EXPECT_EQ(codeOf([&] { rs->MovePrevious(); }), HResult::adErrNoCurrentRecord);
    EXPECT_EQ(rs->AbsolutePosition(), ado::adPosBOF);
    rs->MoveNext();
    EXPECT_EQ(*rs->Fields(0L).Value().toLong(), 1);
    rs->Move(10); // past the end stops at EOF
    EXPECT_TRUE(rs->Eof());
    EXPECT_EQ(rs->AbsolutePosition(), ado::adPosEOF);
    rs->setAbsolutePosition(3);
    EXPECT_TRUE(rs->Fields(u"ARCHIVIO").Value().isNull());
    EXPECT_EQ(rs->RecordCount(), 5);
    EXPECT_EQ(*rs->Fields(0L).Value().toLong(), 3); // counting keeps the current row
    EXPECT_EQ(codeOf([&] { rs->setAbsolutePosition(6); }), HResult::adErrInvalidArgument);
}

TEST_F(RecordsetTest, BookmarksReturnToTheirRowAndCompare) {
    auto rs = open(CursorTypeEnum::adOpenStatic);
    rs->MoveNext();
    const vb::Variant second = rs->Bookmark();
    rs->MoveNext();
    rs->MoveNext();
    const vb::Variant fourth = rs->Bookmark();
    rs->MoveFirst();
    rs->setBookmark(fourth);
    EXPECT_EQ(rs->Fields(1L).Value().toString(), u"Fornitori"_s);
    rs->setBookmark(second);
    EXPECT_EQ(rs->Fields(1L).Value().toString(), u"Ordini"_s);
    EXPECT_EQ(rs->CompareBookmarks(second, fourth), ado::CompareEnum::adCompareLessThan);
    EXPECT_EQ(rs->CompareBookmarks(fourth, second), ado::CompareEnum::adCompareGreaterThan);
    EXPECT_EQ(rs->CompareBookmarks(second, rs->Bookmark()), ado::CompareEnum::adCompareEqual);
    EXPECT_EQ(codeOf([&] { rs->setBookmark(vb::Variant(99.0)); }), HResult::adErrInvalidArgument);
    EXPECT_EQ(codeOf([&] { rs->setBookmark(u"x"_s); }), HResult::adErrInvalidArgument);
    rs->Move(1, fourth);
    EXPECT_EQ(*rs->Fields(0L).Value().toLong(), 5);

    // A clone's bookmarks work on the original.
    auto clone = rs->Clone();
    clone->setBookmark(second);
    EXPECT_EQ(*clone->Fields(0L).Value().toLong(), 2);
}

TEST_F(RecordsetTest, FilterNarrowsTheRowsAndKeepsBookmarks) {
    auto rs = open(CursorTypeEnum::adOpenStatic);
    rs->setFilter(u"archivio like 'fatt%'"_s);
    EXPECT_EQ(rs->Filter().toString(), u"archivio like 'fatt%'"_s);
    EXPECT_EQ(serialsForward(*rs), (std::vector<std::int32_t>{1, 5}));
    EXPECT_EQ(rs->RecordCount(), 2);
    rs->MoveLast();
    const vb::Variant fifth = rs->Bookmark();
    rs->MovePrevious();
    EXPECT_EQ(*rs->Fields(0L).Value().toLong(), 1);
    EXPECT_EQ(rs->AbsolutePosition(), 1);

    rs->setFilter(u"SYS_SERIALE > 1 AND ARCHIVIO <> 'Ordini'"_s);
    EXPECT_EQ(serialsForward(*rs), (std::vector<std::int32_t>{4, 5})); // the null row never compares

    rs->setFilter(u"ARCHIVIO = 'Nessuno'"_s);
    EXPECT_TRUE(rs->Bof());
    EXPECT_TRUE(rs->Eof());

    rs->setFilter(ado::adFilterNone);
    EXPECT_EQ(*rs->Filter().toLong(), ado::adFilterNone);
    EXPECT_EQ(rs->RecordCount(), 5);
    rs->setBookmark(fifth); // bookmarks stay valid across filters
    EXPECT_EQ(*rs->Fields(0L).Value().toLong(), 5);

    EXPECT_EQ(codeOf([&] { rs->setFilter(u"NOPE = 1"_s); }), HResult::adErrInvalidArgument);
    EXPECT_EQ(*rs->Fields(0L).Value().toLong(), 5); // a refused filter changes nothing
}

TEST_F(RecordsetTest, FilterOnAForwardOnlyCursorSkipsRowsAsTheyStream) {
    auto rs = open(CursorTypeEnum::adOpenForwardOnly);
    rs->setFilter(u"SYS_SERIALE <> 2 and SYS_SERIALE < 5"_s);
    EXPECT_EQ(serialsForward(*rs), (std::vector<std::int32_t>{1, 3, 4}));
}

TEST_F(RecordsetTest, FieldsByNameAndIndexWithTheirTypes) {
    auto rs = open(CursorTypeEnum::adOpenForwardOnly);
    auto& fields = rs->Fields();
    ASSERT_EQ(fields.Count(), 2);
    EXPECT_EQ(fields.Item(0L).Name(), u"SYS_SERIALE"_s);
    EXPECT_EQ(fields.Item(0L).Type(), DataTypeEnum::adInteger);
    EXPECT_EQ(static_cast<int>(fields.Item(u"archivio").Type()), 202);
    EXPECT_EQ(&fields.Item(u"ARCHIVIO"), &fields.Item(1L));
    EXPECT_EQ(fields.Item(1L).ActualSize(), 7); // "Fatture"
    for (auto bad : {-1L, 2L}) {
        try {
            (void)fields.Item(bad);
            ADD_FAILURE() << bad;
        } catch (const ado::Error& e) {
            EXPECT_EQ(e.hresult(), static_cast<std::int32_t>(0x800A0CC1));
            EXPECT_EQ(e.description(),
                      u"Item cannot be found in the collection corresponding to the requested name or ordinal."_s);
        }
    }
    EXPECT_EQ(codeOf([&] { (void)fields.Item(u"NOPE"); }), HResult::adErrItemNotFound);
    EXPECT_EQ(fields.find(u"nope"), nullptr);
    // A read-only recordset refuses edits with ADO's text.
    EXPECT_EQ(codeOf([&] { fields.Item(1L).setValue(u"x"_s); }), HResult::adErrFeatureNotAvailable);
}

TEST_F(RecordsetTest, ProviderFailuresAreThrownAndListedInErrors) {
    ado::Error failure(HResult::DB_E_BADTABLEID, u"Invalid object name 'NOPE'."_s,
                       u"Microsoft OLE DB Provider for SQL Server"_s, u"42S02"_s, 208);
    failure.addRelated(ado::Error(HResult::DB_E_ERRORSINCOMMAND,
                                  u"Statement(s) could not be prepared."_s,
                                  u"Microsoft OLE DB Provider for SQL Server"_s, u"42000"_s, 8180));
    m_provider->script().fails(u"select * from NOPE"_s, failure);
    try {
        (void)m_cn->Execute(u"select * from NOPE"_s);
        ADD_FAILURE() << "no error";
    } catch (const ado::Error& e) {
        EXPECT_EQ(e.hresult(), static_cast<std::int32_t>(0x80040E37));
        EXPECT_EQ(e.nativeError(), 208);
        EXPECT_EQ(e.sqlState(), u"42S02"_s);
        EXPECT_STREQ(e.what(), "0x80040E37: Invalid object name 'NOPE'.");
    }
    auto& errors = m_cn->Errors();
    ASSERT_EQ(errors.Count(), 2);
    EXPECT_EQ(errors.Item(0).description(), u"Invalid object name 'NOPE'."_s);
    EXPECT_EQ(errors.Item(1).nativeError(), 8180);
    EXPECT_EQ(errors.Item(1).sqlState(), u"42000"_s);
    EXPECT_EQ(codeOf([&] { (void)errors.Item(2); }), HResult::adErrItemNotFound);

    // The same through Recordset::Open, after which a new failure replaces the list.
    m_provider->script().fails(u"select X"_s, ado::Error(HResult::E_UNSPECIFIED, u"gone"_s, u"p"_s));
    auto rs = std::make_shared<ado::Recordset>();
    EXPECT_EQ(codeOf([&] { rs->Open(u"select X"_s, m_cn); }), HResult::E_UNSPECIFIED);
    EXPECT_EQ(rs->State(), ado::adStateClosed);
    ASSERT_EQ(errors.Count(), 1);
    EXPECT_EQ(errors.Item(0).description(), u"gone"_s);
    errors.Clear();
    EXPECT_EQ(errors.Count(), 0);
}

TEST_F(RecordsetTest, AClientCursorIsStaticAndExecuteWithoutRowsGivesAClosedRecordset) {
    m_cn->setCursorLocation(ado::CursorLocationEnum::adUseClient);
    auto rs = open(CursorTypeEnum::adOpenForwardOnly);
    EXPECT_EQ(rs->CursorType(), CursorTypeEnum::adOpenStatic);
    EXPECT_EQ(rs->RecordCount(), 5);

    m_provider->script().on(u"delete from T"_s, ado::recording::Answer::affecting(3));
    long affected = 0;
    auto none = m_cn->Execute(u"delete from T"_s, &affected);
    EXPECT_EQ(affected, 3);
    EXPECT_EQ(none->State(), ado::adStateClosed);
}

TEST(MemoryRowset, RefusesChangesWithoutAHandlerAndSeeksOnlyWhenScrollable) {
    std::vector<ado::ColumnInfo> columns(1);
    columns[0].name = u"A"_s;
    columns[0].type = DataTypeEnum::adInteger;
    ado::MemoryRowset forward(columns, {{std::int32_t{1}}, {std::int32_t{2}}},
                              CursorTypeEnum::adOpenForwardOnly);
    EXPECT_FALSE(forward.canSeek());
    EXPECT_FALSE(forward.canUpdate());
    EXPECT_THROW(forward.insertRow({}), ado::Error);
    ado::MemoryRowset rows(columns, {{std::int32_t{1}}, {std::int32_t{2}}, {std::int32_t{3}}});
    ASSERT_TRUE(rows.next());
    ASSERT_TRUE(rows.next());
    const auto second = rows.rowId();
    ASSERT_TRUE(rows.next());
    EXPECT_FALSE(rows.next());
    ASSERT_TRUE(rows.seek(second));
    EXPECT_EQ(*rows.value(0).toLong(), 2);
    rows.restart();
    ASSERT_TRUE(rows.next());
    EXPECT_EQ(*rows.value(0).toLong(), 1);
}
