#include "platform/ado/Error.h"
#include "platform/ado/MemoryRowset.h"
#include "platform/ado/RowNavigator.h"

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;
using ado::RowId;

namespace {

// Rows N = 1..count in column 0; rows whose N is a multiple of `deletedEvery` can be deleted.
// Ids are far from positions (N * 7919 + 3), so that a navigator that took a place for an id,
// or the other way round, lands on the wrong row. Counts restarts and seeks: a restart is a
// second run of the rowset, which is what reading the ids back costs.
class CountingRowset final : public ado::ProviderRowset {
public:
    explicit CountingRowset(int count) {
        std::vector<ado::Row> rows;
        for (int n = 1; n <= count; ++n) {
            rows.push_back({vb::Variant(static_cast<std::int32_t>(n))});
        }
        ado::ColumnInfo column;
        column.name = u"N"_s;
        column.type = ado::DataTypeEnum::adInteger;
        m_inner = std::make_unique<ado::MemoryRowset>(std::vector<ado::ColumnInfo>{column},
                                                      std::move(rows));
        m_inner->setChangeHandler([](auto, const auto&, auto&) {});
    }

    static RowId outer(RowId id) { return id * 7919 + 3; }
    static RowId inner(RowId id) { return (id - 3) / 7919; }

    const std::vector<ado::ColumnInfo>& columns() const override { return m_inner->columns(); }
    ado::CursorTypeEnum cursorType() const override { return m_inner->cursorType(); }
    bool next() override {
        ++nexts;
        return m_inner->next();
    }
    void restart() override {
        ++restarts;
        m_inner->restart();
    }
    bool canSeek() const override { return true; }
    RowId rowId() const override { return outer(m_inner->rowId()); }
    bool seek(RowId id) override {
        ++seeks;
        return (id - 3) % 7919 == 0 && m_inner->seek(inner(id));
    }
    vb::Variant value(int column) override { return m_inner->value(column); }
    std::vector<ado::PropertyValue> properties() const override { return {}; }
    bool canUpdate() const override { return true; }
    RowId insertRow(const std::vector<ado::FieldChange>& values) override {
        return outer(m_inner->insertRow(values));
    }
    void updateRow(RowId, const std::vector<ado::FieldChange>&) override {}
    void deleteRow(RowId id) override { m_inner->deleteRow(inner(id)); }

    int restarts = 0;
    int seeks = 0;
    long nexts = 0;

private:
    std::unique_ptr<ado::MemoryRowset> m_inner;
};

class RowNavigatorTest : public ::testing::Test {
protected:
    void open(int count, bool filterOdd = false) {
        m_rows = std::make_unique<CountingRowset>(count);
        m_nav.attach(m_rows.get(), true);
        if (filterOdd) {
            m_nav.setMatcher([this] { return *m_rows->value(0).toLong() % 2 == 1; });
        }
        m_nav.first();
    }

    // The current row's N, read as the recordset reads it: the provider is put on it first.
    long current() {
        EXPECT_TRUE(m_nav.positionProvider());
        const long n = *m_rows->value(0).toLong();
        EXPECT_EQ(m_nav.currentRowId(), CountingRowset::outer(static_cast<RowId>(n)));
        return n;
    }

    void forwardTo(long n) {
        while (m_nav.hasCurrent() && current() < n) {
            m_nav.next();
        }
        ASSERT_TRUE(m_nav.hasCurrent());
    }

    std::unique_ptr<CountingRowset> m_rows;
    ado::RowNavigator m_nav;
};

} // namespace

TEST_F(RowNavigatorTest, AForwardWalkInOrderKeepsNoIdsAndRunsTheRowsetOnce) {
    open(1000);
    m_nav.first(); // a MoveFirst right after opening stays where the rowset already is
    long expected = 1;
    while (!m_nav.eof()) {
        ASSERT_EQ(current(), expected);
        EXPECT_EQ(m_nav.bookmark(), static_cast<double>(expected));
        EXPECT_EQ(m_nav.absolutePosition(), expected);
        ++expected;
        m_nav.next();
    }
    EXPECT_EQ(expected, 1001);
    EXPECT_FALSE(m_nav.holdsRowIds());
    EXPECT_EQ(m_rows->restarts, 0);
    EXPECT_EQ(m_rows->seeks, 0);
    EXPECT_EQ(m_rows->nexts, 1001);
    EXPECT_EQ(m_nav.recordCount(), 1000); // known from the walk: nothing is read again
    EXPECT_EQ(m_rows->nexts, 1001);
}

TEST_F(RowNavigatorTest, GoingBackAfterHalfAWalkReadsTheIdsOnceAndFindsTheRightRows) {
    open(200);
    forwardTo(37);
    const double at37 = m_nav.bookmark();
    forwardTo(100);
    EXPECT_FALSE(m_nav.holdsRowIds());

    // A bookmark taken while walking returns to its row.
    ASSERT_TRUE(m_nav.gotoBookmark(at37));
    EXPECT_TRUE(m_nav.holdsRowIds());
    EXPECT_EQ(m_rows->restarts, 1);
    EXPECT_EQ(current(), 37);
    m_nav.next();
    EXPECT_EQ(current(), 38);
    ASSERT_TRUE(m_nav.gotoBookmark(100.0));
    EXPECT_EQ(current(), 100);
    m_nav.next(); // fetching goes on past the rows read back, each once
    EXPECT_EQ(current(), 101);
    EXPECT_EQ(m_rows->restarts, 1);
    EXPECT_FALSE(m_nav.gotoBookmark(201.0));
    EXPECT_FALSE(m_nav.gotoBookmark(0.5));
}

TEST_F(RowNavigatorTest, PreviousFirstAndPositionsFromTheMiddleOfAWalk) {
    open(50);
    forwardTo(20);
    m_nav.previous();
    EXPECT_EQ(current(), 19);
    EXPECT_EQ(m_nav.absolutePosition(), 19);

    open(50);
    forwardTo(20);
    m_nav.first();
    EXPECT_EQ(current(), 1);
    m_nav.next();
    EXPECT_EQ(current(), 2); // the second row is neither the first nor the last fetched
    m_nav.previous();
    m_nav.previous();
    EXPECT_TRUE(m_nav.bof());

    open(50);
    forwardTo(20);
    ASSERT_TRUE(m_nav.setAbsolutePosition(7));
    EXPECT_EQ(current(), 7);
    ASSERT_TRUE(m_nav.setAbsolutePosition(45));
    EXPECT_EQ(current(), 45);
    EXPECT_FALSE(m_nav.setAbsolutePosition(51));

    open(50);
    forwardTo(20);
    m_nav.last();
    EXPECT_EQ(current(), 50);
    m_nav.previous();
    EXPECT_EQ(current(), 49);

    // Past the end and back: the last row is found from EOF.
    open(5);
    forwardTo(5);
    m_nav.next();
    ASSERT_TRUE(m_nav.eof());
    m_nav.previous();
    EXPECT_EQ(current(), 5);
}

TEST_F(RowNavigatorTest, ACountInTheMiddleOfAWalkLeavesTheCurrentRowAndTheWalkGoesOn) {
    open(30);
    forwardTo(12);
    EXPECT_EQ(m_nav.recordCount(), 30);
    EXPECT_EQ(current(), 12); // the provider read to the end: the current row is sought again
    EXPECT_FALSE(m_nav.holdsRowIds());
    m_nav.next();
    EXPECT_EQ(current(), 13);
    long expected = 13;
    while (!m_nav.eof()) {
        ASSERT_EQ(current(), expected++);
        m_nav.next();
    }
    EXPECT_EQ(expected, 31);
}

TEST_F(RowNavigatorTest, AFilteredWalkThenBackAndABookmarkOfAFilteredRow) {
    open(40, true);
    EXPECT_EQ(current(), 1);
    forwardTo(21);
    EXPECT_EQ(m_nav.absolutePosition(), 11);
    EXPECT_FALSE(m_nav.holdsRowIds());
    m_nav.previous();
    EXPECT_EQ(current(), 19);
    EXPECT_EQ(m_nav.absolutePosition(), 10);
    EXPECT_EQ(m_nav.recordCount(), 20);

    // A bookmark names a place in the unfiltered rows: row 8 is reachable without the filter.
    open(40, true);
    forwardTo(15);
    m_nav.setMatcher(nullptr);
    ASSERT_TRUE(m_nav.gotoBookmark(8.0));
    EXPECT_EQ(current(), 8);
}

TEST_F(RowNavigatorTest, DeletingTheCurrentRowMidWalkKeepsItsPlaceAndSkipsIt) {
    open(20);
    forwardTo(10);
    m_nav.currentRowDeleting();
    EXPECT_TRUE(m_nav.holdsRowIds());
    m_rows->deleteRow(m_nav.currentRowId());
    m_nav.currentRowDeleted();
    EXPECT_FALSE(m_nav.positionProvider()); // the row has gone
    m_nav.next();
    EXPECT_EQ(current(), 11);
    EXPECT_EQ(m_nav.bookmark(), 11.0); // the places after it do not move
    m_nav.previous();
    EXPECT_EQ(current(), 9);
    EXPECT_FALSE(m_nav.gotoBookmark(10.0));
    EXPECT_EQ(m_nav.recordCount(), 20); // without a filter it counts places, the deleted one too
    m_nav.setMatcher([] { return true; });
    EXPECT_EQ(m_nav.recordCount(), 19);
}

TEST_F(RowNavigatorTest, AnAddedRowJoinsTheEndAfterAPartialWalk) {
    open(10);
    forwardTo(4);
    const RowId added = m_rows->insertRow({{0, vb::Variant(std::int32_t{11})}});
    m_nav.appendRow(added);
    EXPECT_EQ(m_nav.currentRowId(), added);
    EXPECT_EQ(m_nav.bookmark(), 11.0);
    EXPECT_EQ(current(), 11);
    m_nav.previous();
    EXPECT_EQ(current(), 10);
}

TEST_F(RowNavigatorTest, AttachingAgainForgetsTheIds) {
    open(10);
    forwardTo(6);
    m_nav.previous(); // one step back: the row left was the current one, its id is still known
    EXPECT_EQ(current(), 5);
    EXPECT_FALSE(m_nav.holdsRowIds());
    m_nav.previous();
    EXPECT_EQ(current(), 4);
    EXPECT_TRUE(m_nav.holdsRowIds());
    open(10);
    EXPECT_FALSE(m_nav.holdsRowIds());
    forwardTo(10);
    EXPECT_EQ(m_rows->restarts, 0);
}
