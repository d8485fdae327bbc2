// Moves that land nowhere, the two events, and what CancelUpdate leaves behind.
#include "tests/recordset/RsFixture.h"

namespace {

using ado::HResult;

std::int32_t id(nxRs& rs) {
    return rs.FldGet(u"ID"_s, -1).toLong().value_or(-2);
}

TEST_F(RsTest, AMoveOntoARowThatCannotBeReadGoesBackToTheLastGoodOne) {
    ASSERT_MEMBER_OK(openTable());
    ASSERT_EQ(id(rs), 1);
    provider->unreadable->insert(2); // deleted by someone else under the cursor
    EXPECT_FALSE(rs.MoveNext(false, true));
    EXPECT_TRUE(rs.IsValidRec());
    EXPECT_EQ(id(rs), 1);
    EXPECT_FALSE(rs.MoveNext(true, true)); // from the current row: the same way back
    EXPECT_EQ(id(rs), 1);
    EXPECT_TRUE(box->shown().empty());

    // Once the row reads again, the walk goes on through it.
    provider->unreadable->clear();
    EXPECT_TRUE(rs.MoveNext(false, true));
    EXPECT_EQ(id(rs), 2);
}

TEST_F(RsTest, MoveValidStepsBackThenToTheFirstRecord) {
    ASSERT_MEMBER_OK(openTable());
    ASSERT_TRUE(rs.MoveLast());
    provider->unreadable->insert(3);
    EXPECT_TRUE(rs.MoveValid(true));
    EXPECT_EQ(id(rs), 2);

    ASSERT_FALSE(rs.MoveNext(false, true)); // 3 still unreadable: back on 2
    EXPECT_EQ(id(rs), 2);
    provider->unreadable->insert(2);
    EXPECT_TRUE(rs.MoveValid(true)); // 2 gone too: previous is 1
    EXPECT_EQ(id(rs), 1);

    // On the first record with nothing before it, MoveValid lands on the first readable one.
    provider->unreadable->clear();
    ASSERT_TRUE(rs.MoveFirst());
    provider->unreadable->insert(1);
    EXPECT_FALSE(rs.MoveValid(true)); // nothing valid to stand on: back where it was
    EXPECT_FALSE(rs.IsValidRec());
}

TEST_F(RsTest, AMoveTheCursorCannotMakeIsReportedAndLeavesTheRecordWhereItWas) {
    rs.Db(db.get());
    ASSERT_MEMBER_OK(rs.RsOpen(u"select * from ANAGRAFICA"_s, 0, 1, true, 2)); // forward-only
    ASSERT_TRUE(rs.MoveNext());
    ASSERT_EQ(id(rs), 2);
    box->answer(win::id::kOk);
    EXPECT_FALSE(rs.MovePrevious());
    EXPECT_EQ(nxApp::LastError().Description(), u"Impossibile spostarsi al record desiderato."_s);
    EXPECT_EQ(nxApp::LastError().Source(), u"nxRs.TryMove()"_s);
    ASSERT_EQ(box->shown().size(), 1u);
    EXPECT_EQ(id(rs), 2);
    EXPECT_FALSE(rs.MovePrevious(false, true));
    EXPECT_EQ(box->shown().size(), 1u);   // silent
    EXPECT_TRUE(rs.Bookmark().isEmpty()); // a forward-only cursor has no bookmarks
    EXPECT_FALSE(rs.SetBookmark(1, true));
}

TEST_F(RsTest, TheChangeEventTellsEditModeRefreshAndMove) {
    ASSERT_MEMBER_OK(openTable());
    QList<int> kinds;
    QList<bool> editingAtEvent;
    rs.OnChange = [&](int kind, nxRs& r) {
        kinds.append(kind);
        editingAtEvent.append(r.IsEditing());
    };
    ASSERT_TRUE(rs.Edit());
    EXPECT_EQ(kinds, QList<int>{nxRs::kChangeEditMode});
    EXPECT_EQ(editingAtEvent, QList<bool>{true});
    kinds.clear();
    rs.FldRefresh();
    EXPECT_EQ(kinds, QList<int>{nxRs::kChangeFields});
    kinds.clear();
    rs.CancelUpdate(false, true);
    EXPECT_TRUE(kinds.contains(nxRs::kChangeEditMode));
    EXPECT_FALSE(rs.IsEditing());
    kinds.clear();
    ASSERT_TRUE(rs.MoveNext());
    ASSERT_FALSE(kinds.isEmpty());
    EXPECT_EQ(kinds.back(), nxRs::kChangeMove);
}

TEST_F(RsTest, TheFieldEventCarriesTheValueAndTheIndexOnlyForAChange) {
    ASSERT_MEMBER_OK(openTable());
    QStringList changes;
    rs.OnFieldChange = [&](const vb::Variant& value, int field, nxRs&) {
        changes.append(QString::number(field) + u'=' + value.toString());
    };
    // Written straight into the field.
    ASSERT_TRUE(rs.Edit());
    ASSERT_TRUE(rs.FldSet(u"NOME"_s, u"Anna"_s));
    ASSERT_TRUE(rs.FldSet(u"NOME"_s, u"Anna"_s)); // the same value: no event
    ASSERT_TRUE(rs.FldSet(u"ETA"_s, u"x"_s));     // a number field takes 0
    EXPECT_EQ(changes, (QStringList{u"1=Anna"_s, u"2=0"_s}));
    ASSERT_MEMBER_OK(rs.Update());

    // Held back until Update: the event comes from FldSet itself, and the row keeps the old
    // value until then.
    changes.clear();
    rs.WriteOnUpdate(true);
    ASSERT_TRUE(rs.Edit());
    rs.WriteOnUpdate(false); // not while editing
    EXPECT_TRUE(rs.WriteOnUpdate());
    ASSERT_TRUE(rs.FldSet(u"NOME"_s, u"Bruna"_s));
    EXPECT_EQ(changes, QStringList{u"1=Bruna"_s});
    vb::Variant inRow;
    ASSERT_TRUE(rs.FldRecValue(u"NOME"_s, inRow));
    EXPECT_EQ(inRow, vb::Variant(u"Anna"_s));
    EXPECT_TRUE(rs.FldModified(u"NOME"_s));
    EXPECT_FALSE(rs.FldModified(u"ETA"_s));
    ASSERT_MEMBER_OK(rs.Update());
    ASSERT_TRUE(rs.FldRecValue(u"NOME"_s, inRow));
    EXPECT_EQ(inRow, vb::Variant(u"Bruna"_s));
    EXPECT_TRUE(rowChanges().back().contains(u"'Bruna'"_s)) << rowChanges().back().toStdString();
}

TEST_F(RsTest, CancelUpdateOnAnExistingRowBringsBackItsValues) {
    ASSERT_MEMBER_OK(openTable());
    ASSERT_TRUE(rs.Edit());
    ASSERT_TRUE(rs.FldSet(u"NOME"_s, u"Anna"_s));
    EXPECT_EQ(rs.FldGet(u"NOME"_s), vb::Variant(u"Anna"_s));
    rs.CancelUpdate(true, true); // and back into editing
    EXPECT_TRUE(rs.IsEditing());
    EXPECT_EQ(rs.FldGet(u"NOME"_s), vb::Variant(u"Nome 1"_s));
    rs.CancelUpdate(false, true);
    EXPECT_FALSE(rs.IsEditing());
    EXPECT_MEMBER_OK(rs.Update()); // nothing to write
    EXPECT_TRUE(rowChanges().isEmpty());
}

TEST_F(RsTest, CancelUpdateOnANewRowUndoesItOrKeepsItInEditing) {
    ASSERT_MEMBER_OK(openTable());
    ASSERT_TRUE(rs.MoveNext());
    ASSERT_MEMBER_OK(rs.AddNew(false, true, u"CODICE"_s, u"N1"_s));
    EXPECT_TRUE(rs.IsNewRec());
    EXPECT_EQ(rs.FldGet(u"CODICE"_s), vb::Variant(u"N1"_s));

    rs.CancelUpdate(false, false); // without undo the new row stays, values as typed
    EXPECT_TRUE(rs.IsEditing());
    EXPECT_TRUE(rs.IsNewRec());
    EXPECT_EQ(rs.FldGet(u"CODICE"_s), vb::Variant(u"N1"_s));

    rs.CancelUpdate(false, true); // undone: back on the last good record
    EXPECT_FALSE(rs.IsEditing());
    EXPECT_FALSE(rs.IsNewRec());
    EXPECT_EQ(id(rs), 2);
    EXPECT_TRUE(rowChanges().isEmpty());
}

TEST_F(RsTest, AddNewWithAFieldItCannotSetGivesTheRowUp) {
    ASSERT_MEMBER_OK(openTable());
    EXPECT_FALSE(rs.AddNew(false, true, u"ETA"_s, vb::Null{}));
    EXPECT_EQ(nxApp::LastError().Description(), u"Valore per il campo 'ETA' non valido"_s);
    EXPECT_FALSE(rs.IsEditing());
    EXPECT_EQ(id(rs), 1);
    // AddNew while editing is refused; so is a second Edit's change of mode.
    ASSERT_TRUE(rs.Edit());
    EXPECT_FALSE(rs.AddNew(false, true));
    EXPECT_TRUE(rs.Edit());
    EXPECT_TRUE(rowChanges().isEmpty());
}

TEST_F(RsTest, AMoveSavesThePendingEdit) {
    ASSERT_MEMBER_OK(openTable());
    ASSERT_TRUE(rs.Edit());
    ASSERT_TRUE(rs.FldSet(u"NOME"_s, u"Carla"_s));
    ASSERT_TRUE(rs.MoveNext());
    EXPECT_FALSE(rs.IsEditing());
    ASSERT_EQ(rowChanges().size(), 1);
    EXPECT_TRUE(rowChanges()[0].contains(u"'Carla'"_s)) << rowChanges()[0].toStdString();
    ASSERT_TRUE(rs.MoveFirst());
    EXPECT_EQ(rs.FldGet(u"NOME"_s), vb::Variant(u"Carla"_s));
}

TEST_F(RsTest, AnUpdateThatFailsWithUndoOffKeepsTheEditOpenWithTheTypedValues) {
    ASSERT_MEMBER_OK(openTable());
    provider->faults->push_back(ado::Error(HResult::DB_E_INTEGRITYVIOLATION,
                                           u"The UPDATE statement conflicted with the CHECK "
                                           u"constraint."_s,
                                           u"x"_s, u"23000"_s, 547));
    ASSERT_TRUE(rs.Edit());
    ASSERT_TRUE(rs.FldSet(u"ETA"_s, -5));
    EXPECT_FALSE(rs.Update(true, false, false, true));
    EXPECT_EQ(nxApp::LastError().Source(), u"nxRs.Update()"_s);
    EXPECT_TRUE(rs.IsEditing());
    EXPECT_EQ(rs.FldGet(u"ETA"_s), vb::Variant(std::int32_t{-5}));
    // The next try goes through.
    EXPECT_MEMBER_OK(rs.Update(true));
    EXPECT_FALSE(rs.IsEditing());
    ASSERT_FALSE(rowChanges().isEmpty());
    EXPECT_TRUE(rowChanges().back().contains(u"-5"_s)) << rowChanges().back().toStdString();
}

// A read-only recordset can't change the row it stands on: a walk that asks for the record's
// validity, its position and every field twice reads each value from the provider once, and a
// move, a requery or a recordset that may write reads again.
TEST_F(RsTest, AReadOnlyRecordsetReadsEachValueOnceARecordAndAfreshAfterAMove) {
    ASSERT_MEMBER_OK(openTable(1));
    const int fields = rs.FldCount();
    ASSERT_EQ(fields, 6);
    long before = *provider->reads - 1; // opening read the first field of the first record
    for (std::int32_t row = 1; row <= 3; ++row) {
        EXPECT_TRUE(rs.IsValidRec());
        EXPECT_EQ(rs.Position(), row);
        for (int pass = 0; pass < 2; ++pass) {
            EXPECT_EQ(id(rs), row);
            EXPECT_EQ(rs.FldGet(u"NOME"_s), vb::Variant(u"Nome "_s + QString::number(row)));
            EXPECT_EQ(rs.FldGet(2), vb::Variant(std::int32_t{20 + row}));
            EXPECT_EQ(rs.FldGet(u"NATO"_s), vb::Variant(vb::makeDate(2000, 1, row)));
            EXPECT_EQ(rs.FldGet(4), vb::Variant(row % 2 == 0));
            EXPECT_FALSE(rs.FldIsNull(u"CODICE"_s));
        }
        EXPECT_EQ(*provider->reads - before, fields) << "record " << row;
        before = *provider->reads;
        EXPECT_EQ(rs.MoveNext(false, true), row < 3);
    }
    EXPECT_TRUE(rs.Eof());
    EXPECT_EQ(rs.FldGet(u"NOME"_s, u"-"_s), vb::Variant(u"-"_s)); // past the end: no record

    ASSERT_TRUE(rs.MoveLast(true));
    EXPECT_EQ(id(rs), 3);
    ASSERT_TRUE(rs.Requery(true)); // back on the first record: its own values
    EXPECT_EQ(id(rs), 1);
    EXPECT_EQ(rs.FldGet(u"NOME"_s), vb::Variant(u"Nome 1"_s));
    ASSERT_TRUE(rs.MoveFirst(true));
    EXPECT_EQ(rs.FldGet(u"ETA"_s), vb::Variant(std::int32_t{21}));
    EXPECT_TRUE(box->shown().empty());
}

TEST_F(RsTest, ARecordsetThatMayWriteReadsTheProviderAtEveryFldGet) {
    ASSERT_MEMBER_OK(openTable(3));
    const long before = *provider->reads;
    EXPECT_EQ(id(rs), 1);
    EXPECT_EQ(id(rs), 1);
    EXPECT_EQ(*provider->reads - before, 2);
    // A row deleted by someone else since the move shows at once.
    provider->unreadable->insert(1);
    EXPECT_FALSE(rs.IsValidRec());
}

} // namespace
