#include "frame/nxError.h"

#include "tests/recordset/RsFixture.h"

namespace {

using ado::HResult;

TEST_F(RsTest, AClosedRecordsetIsAtBothEndsAndAnswersDefaults) {
    EXPECT_TRUE(rs.Bof());
    EXPECT_TRUE(rs.Eof());
    EXPECT_TRUE(rs.IsEmpty());
    EXPECT_EQ(rs.FldGet(u"NOME"_s, u"x"_s), vb::Variant(u"x"_s));
    EXPECT_EQ(rs.SQL(), QString());
    EXPECT_EQ(rs.Count(), 0);
    EXPECT_FALSE(rs.SetWhere(u"ID = 1"_s));
    EXPECT_FALSE(rs.MoveNext());
    EXPECT_TRUE(statements().isEmpty());
}

TEST_F(RsTest, OpenReadsFieldsKeyAndIdentityOnAConnectionOfItsOwn) {
    ASSERT_MEMBER_OK(openTable());
    EXPECT_EQ(statements(), QStringList{u"select * from ANAGRAFICA"_s});
    EXPECT_NE(rs.rs()->ActiveConnection(), db->cn());
    EXPECT_EQ(rs.Name(), u"ANAGRAFICA"_s);
    EXPECT_EQ(rs.SQL(), u"select * from ANAGRAFICA"_s);
    EXPECT_EQ(rs.FldCount(), 6);
    EXPECT_EQ(rs.IndexPrimary(), u"PK_ANAGRAFICA"_s);
    EXPECT_TRUE(rs.FldIsPrimary(u"ID"_s));
    EXPECT_FALSE(rs.FldIsPrimary(u"NOME"_s));
    EXPECT_TRUE(rs.FldIsAutoIncrement(0));
    EXPECT_EQ(rs.FldKind(u"ETA"_s), nxRs::kKindNumber);
    EXPECT_EQ(rs.FldKind(u"NOME"_s), nxRs::kKindText);
    EXPECT_EQ(rs.FldKind(u"ATTIVO"_s), nxRs::kKindBoolean);
    EXPECT_EQ(rs.FldKind(u"NATO"_s), nxRs::kKindDate);
    // A property the field lacks comes from the catalogue's column.
    EXPECT_EQ(rs.FldProp(u"NOME"_s, u"Jet OLEDB:Allow Zero Length"_s), vb::Variant(false));
    EXPECT_EQ(rs.FldProp(u"NOME"_s, u"Nessuna"_s), vb::Variant());
    EXPECT_EQ(rs.FldGet(u"NOME"_s), vb::Variant(u"Nome 1"_s));
}

TEST_F(RsTest, FieldsAreFoundByIndexNameBracketsAndDottedName) {
    ASSERT_MEMBER_OK(openTable());
    int i = -1;
    EXPECT_TRUE(rs.FldExist(u"t.NOME"_s, &i));
    EXPECT_EQ(i, 1);
    EXPECT_TRUE(rs.FldExist(u"[eta]"_s, &i));
    EXPECT_EQ(i, 2);
    EXPECT_TRUE(rs.FldExist(std::int32_t{5}, &i));
    EXPECT_EQ(i, 5);
    EXPECT_FALSE(rs.FldExist(std::int32_t{6}));
    EXPECT_FALSE(rs.FldExist(std::int32_t{-1}));
    EXPECT_FALSE(rs.FldExist(u"t.NESSUNO"_s));
    EXPECT_FALSE(rs.FldExist(vb::Variant()));
    EXPECT_EQ(rs.FldIndex(u"codice"_s), 5);
    EXPECT_EQ(rs.FldName(3), u"NATO"_s);
    EXPECT_EQ(rs.FldSize(u"NOME"_s), 10);
}

TEST_F(RsTest, MovesWalkTheRowsAndStopAtTheEnds) {
    ASSERT_MEMBER_OK(openTable());
    QList<std::int32_t> seen;
    int moves = 0;
    rs.OnChange = [&](int kind, nxRs&) { moves += kind == nxRs::kChangeMove; };
    for (bool ok = rs.MoveFirst(); ok; ok = rs.MoveNext()) {
        seen.append(*rs.FldGet(u"ID"_s).get<std::int32_t>());
    }
    EXPECT_EQ(seen, (QList<std::int32_t>{1, 2, 3}));
    EXPECT_TRUE(rs.Eof());
    EXPECT_FALSE(rs.MoveNext()); // stays at the end
    EXPECT_TRUE(rs.Eof());
    EXPECT_EQ(rs.FldGet(u"ID"_s, -1), vb::Variant(-1));
    EXPECT_TRUE(rs.MoveLast());
    EXPECT_EQ(rs.FldGet(u"ID"_s), vb::Variant(std::int32_t{3}));
    EXPECT_EQ(rs.Position(), 3);
    EXPECT_TRUE(rs.MovePrevious());
    EXPECT_EQ(rs.FldGet(u"ID"_s), vb::Variant(std::int32_t{2}));
    EXPECT_GE(moves, 6);

    // A bookmark brings the row back.
    const vb::Variant second = rs.Bookmark();
    ASSERT_FALSE(second.isEmpty());
    rs.MoveFirst();
    EXPECT_MEMBER_OK(rs.SetBookmark(second));
    EXPECT_EQ(rs.FldGet(u"ID"_s), vb::Variant(std::int32_t{2}));
}

TEST_F(RsTest, AMissingTableOrQueryIsReportedWithTheStatement) {
    script().fails(u"select * from NESSUNA"_s,
                   ado::Error(HResult::DB_E_BADTABLEID, u"Invalid object name 'NESSUNA'."_s,
                              u"Microsoft OLE DB Provider for SQL Server"_s, u"42S02"_s, 208));
    script().fails(u"NESSUNA"_s, ado::Error(HResult::DB_E_BADTABLEID, u"x"_s, u"y"_s));
    rs.Db(db.get());
    box->answer(win::id::kOk);
    EXPECT_FALSE(rs.RsOpen(u"  select * from NESSUNA "_s, 1, 3, false, 2));
    EXPECT_FALSE(rs.IsOpened());
    const nxError& e = nxApp::LastError();
    EXPECT_EQ(e.Description(), u"Impossibile eseguire la query. (select * from NESSUNA)"_s);
    EXPECT_EQ(e.Source(), u"nxRs.RsOpen()"_s);
    EXPECT_EQ(e.Number(), ado::toNumber(HResult::DB_E_BADTABLEID));
    ASSERT_EQ(box->shown().size(), 1u);
    EXPECT_EQ(box->last().flags, 48);
    EXPECT_FALSE(rs.RsOpen(u"NESSUNA"_s, 1, 3, true, 2));
    EXPECT_EQ(nxApp::LastError().Description(), u"Impossibile aprire la tabella. (NESSUNA)"_s);
    EXPECT_EQ(box->shown().size(), 1u); // silent
}

TEST_F(RsTest, FldSetChecksAndConvertsByKind) {
    ASSERT_MEMBER_OK(openTable());
    EXPECT_FALSE(rs.FldSet(u"NOME"_s, u"x"_s, true));
    EXPECT_EQ(nxApp::LastError().Description(), u"Record non in editing"_s);
    EXPECT_EQ(nxApp::LastError().Source(), u"nxRs.FldSet"_s);
    ASSERT_TRUE(rs.Edit());
    EXPECT_FALSE(rs.FldSet(u"NESSUNO"_s, 1, true));
    EXPECT_EQ(nxApp::LastError().Description(), u"Campo 'NESSUNO' inesistente"_s);
    EXPECT_TRUE(rs.FldSet(u"ETA"_s, u"abc"_s, true)); // not a number: 0
    EXPECT_EQ(rs.FldGet(u"ETA"_s), vb::Variant(std::int32_t{0}));
    EXPECT_FALSE(rs.FldSet(u"ETA"_s, vb::Null{}, true));
    EXPECT_EQ(nxApp::LastError().Description(), u"Valore per il campo 'ETA' non valido"_s);
    EXPECT_TRUE(rs.FldSet(u"NOME"_s, u"Giovanni Battista"_s, true)); // cut, not refused
    EXPECT_EQ(rs.FldGet(u"NOME"_s), vb::Variant(u"Giovanni B"_s));
    EXPECT_TRUE(rs.FldSet(u"ATTIVO"_s, u"forse"_s, true));
    EXPECT_EQ(rs.FldGet(u"ATTIVO"_s), vb::Variant(false));
    // The server reads an ANSI date text itself.
    EXPECT_TRUE(rs.FldSet(u"NATO"_s, u"'2020-02-29'"_s, true));
    EXPECT_EQ(rs.FldGet(u"NATO"_s), vb::Variant(u"'2020-02-29'"_s));
    EXPECT_FALSE(rs.FldSet(u"ID"_s, 9, true));
    EXPECT_EQ(nxApp::LastError().Description(), u"Impossibile modificare il campo contatore"_s);
    EXPECT_TRUE(box->shown().empty());
}

TEST_F(RsTest, UpdateWritesTheEditAndDoesNothingWhenNotEditing) {
    ASSERT_MEMBER_OK(openTable());
    EXPECT_TRUE(rs.Update());
    EXPECT_TRUE(rowChanges().isEmpty());
    ASSERT_TRUE(rs.Edit());
    ASSERT_TRUE(rs.FldSet(u"NOME"_s, u"Anna"_s));
    ASSERT_MEMBER_OK(rs.Update());
    EXPECT_FALSE(rs.IsEditing());
    ASSERT_EQ(rowChanges().size(), 1);
    EXPECT_TRUE(rowChanges()[0].startsWith(u"update select * from ANAGRAFICA: "_s));
    EXPECT_TRUE(rowChanges()[0].contains(u"'Anna'"_s)) << rowChanges()[0].toStdString();
    EXPECT_EQ(rs.FldGet(u"NOME"_s), vb::Variant(u"Anna"_s));
}

TEST_F(RsTest, AnIdentityGivenByHandMovesTheServerCounterAtClose) {
    ASSERT_MEMBER_OK(openTable());
    ASSERT_MEMBER_OK(rs.AddNew(false, true, u"ID"_s, 500));
    ASSERT_TRUE(rs.FldSet(u"CODICE"_s, u"X"_s));
    ASSERT_MEMBER_OK(rs.Update());
    EXPECT_TRUE(rowChanges().back().startsWith(u"insert select * from ANAGRAFICA: "_s));
    const qsizetype before = statements().size();
    rs.RsClose();
    const QStringList after = statements().mid(before);
    EXPECT_FALSE(after.filter(u"ANAGRAFICA"_s).isEmpty()) << after.join(u" | "_s).toStdString();
}

TEST_F(RsTest, ADuplicateKeyGivesTheServersTextAndState) {
    ASSERT_MEMBER_OK(openTable());
    ado::Error duplicate(HResult::DB_E_INTEGRITYVIOLATION,
                         u"Violation of PRIMARY KEY constraint 'PK_ANAGRAFICA'."_s,
                         u"Microsoft OLE DB Provider for SQL Server"_s, u"23000"_s, 2627);
    duplicate.addRelated(
        ado::Error(HResult::DB_E_INTEGRITYVIOLATION, u"The statement has been terminated."_s,
                   u"Microsoft OLE DB Provider for SQL Server"_s, u"01000"_s, 3621));
    provider->faults->push_back(duplicate);
    ASSERT_MEMBER_OK(rs.AddNew(false, true, u"ID"_s, 1));
    ASSERT_TRUE(rs.FldSet(u"CODICE"_s, u"X"_s));
    EXPECT_FALSE(rs.Update(true));
    const nxError& e = nxApp::LastError();
    EXPECT_EQ(e.Number(), 23000);
    EXPECT_EQ(
        e.Description(),
        u"Violation of PRIMARY KEY constraint 'PK_ANAGRAFICA'.\r\nThe statement has been terminated."_s);
    EXPECT_EQ(e.Source(), u"nxRs.Update()"_s);
    EXPECT_FALSE(rs.IsEditing()); // the new row is given up
    EXPECT_TRUE(rowChanges().isEmpty());
}

TEST_F(RsTest, AMissingRequiredValueIsNamed) {
    ASSERT_MEMBER_OK(openTable());
    provider->faults->push_back(ado::Error(HResult::DB_E_INTEGRITYVIOLATION,
                                           u"Cannot insert the value NULL."_s, u"x"_s, u"42000"_s,
                                           515));
    ASSERT_MEMBER_OK(rs.AddNew(false, true, u"ID"_s, 7));
    ASSERT_TRUE(rs.FldSet(u"NOME"_s, u"Anna"_s));
    EXPECT_FALSE(rs.Update(true));
    EXPECT_EQ(nxApp::LastError().Description(),
              u"Cannot insert the value NULL.\r\nAssegnare un valore ai seguenti campi: CODICE"_s);
}

// A row deleted under the cursor: OLE DB's DB_E_DELETEDROW.
constexpr auto kDeletedRow = static_cast<HResult>(0x80040E23);

// Whether a failed update of a row the provider can no longer find leaves the record status
// adRecInvalid (0x10), the one status that is tried again.
bool statusAfterALostRow(nxRs& rs, FaultyProvider& provider) {
    provider.faults->assign({ado::Error(kDeletedRow, u"x"_s, u"y"_s)});
    bool invalid = false;
    if (rs.Edit(true) && rs.FldSet(u"NOME"_s, u"Sonda"_s, true)) {
        try {
            rs.rs()->Update();
        } catch (const ado::Error&) {
            invalid = rs.rs()->Status() == ado::adRecInvalid;
        }
    }
    rs.CancelUpdate(false, true);
    provider.faults->clear();
    *provider.changes = 0;
    return invalid;
}

#define SKIP_UNLESS_LOST_ROW_STATUS()                                                              \
    if (!statusAfterALostRow(rs, *provider)) {                                                     \
        GTEST_SKIP() << "the ado layer gives no adRecInvalid status after a failed update";        \
    }

TEST_F(RsTest, ARowTheProviderCannotFindIsTriedAgainAfterAWait) {
    ASSERT_MEMBER_OK(openTable());
    SKIP_UNLESS_LOST_ROW_STATUS();
    std::int32_t now = 0;
    int ticks = 0;
    rs.SetClock([&] {
        ++ticks;
        return now += 10;
    });
    const ado::Error lost(kDeletedRow, u"Row cannot be located for updating."_s, u"x"_s);
    provider->faults->assign({lost, lost});
    ASSERT_TRUE(rs.Edit());
    ASSERT_TRUE(rs.FldSet(u"NOME"_s, u"Anna"_s));
    EXPECT_MEMBER_OK(rs.Update(true));
    EXPECT_EQ(*provider->changes, 3);
    EXPECT_TRUE(rs.GotErrRetry());
    EXPECT_GE(ticks, 2 * 6); // two waits of 50 ms on a clock of 10 ms a tick
    ASSERT_FALSE(rowChanges().isEmpty());
    EXPECT_TRUE(rowChanges().back().contains(u"'Anna'"_s));
}

TEST_F(RsTest, TheRetryGivesUpAfter600Tries) {
    ASSERT_MEMBER_OK(openTable());
    SKIP_UNLESS_LOST_ROW_STATUS();
    std::int32_t now = 0;
    rs.SetClock([&] { return now += 25; });
    provider->faults->assign(700, ado::Error(kDeletedRow, u"x"_s, u"y"_s));
    ASSERT_TRUE(rs.Edit());
    ASSERT_TRUE(rs.FldSet(u"NOME"_s, u"Anna"_s));
    EXPECT_FALSE(rs.Update(true));
    EXPECT_EQ(*provider->changes, nxRs::kRetryLimit + 1);
    EXPECT_EQ(nxApp::LastError().Source(), u"nxRs.Update()"_s);
    EXPECT_EQ(nxApp::LastError().Number(), ado::toNumber(kDeletedRow));
}

// The optimistic check refused the change (record status 0x800): no second try, no wait; the
// edit is undone and the provider's error reported.
TEST_F(RsTest, ARefusedOptimisticCheckIsNotTriedAgain) {
    ASSERT_MEMBER_OK(openTable());
    int ticks = 0;
    rs.SetClock([&] { return ++ticks * 50; });
    provider->faults->assign(
        3, ado::Error(HResult::DB_E_CONCURRENCYVIOLATION,
                      u"Row cannot be located for updating. Some values may have been changed "
                      u"since it was last read."_s,
                      u"x"_s));
    ASSERT_TRUE(rs.Edit());
    ASSERT_TRUE(rs.FldSet(u"NOME"_s, u"Anna"_s));
    EXPECT_FALSE(rs.Update(true));
    EXPECT_EQ(*provider->changes, 1);
    EXPECT_EQ(ticks, 0);
    EXPECT_FALSE(rs.GotErrRetry());
    EXPECT_FALSE(rs.IsEditing());
    EXPECT_EQ(nxApp::LastError().Source(), u"nxRs.Update()"_s);
    EXPECT_EQ(nxApp::LastError().Number(), ado::toNumber(HResult::DB_E_CONCURRENCYVIOLATION));
    EXPECT_TRUE(rowChanges().isEmpty());
    EXPECT_EQ(rs.FldGet(u"NOME"_s), vb::Variant(u"Nome 1"_s)); // the row as it stands
}

TEST_F(RsTest, AReadOnlyRecordsetRefusesEditing) {
    ASSERT_MEMBER_OK(openTable(1));
    EXPECT_FALSE(rs.IsUpdatable());
    EXPECT_FALSE(rs.AddNew());
    EXPECT_FALSE(rs.Edit());
    EXPECT_FALSE(rs.FldSet(u"NOME"_s, u"x"_s, true));
    EXPECT_TRUE(rowChanges().isEmpty());
}

TEST_F(RsTest, CountAndMaxRunTheirOwnQueries) {
    script().returns(
        u"SELECT COUNT(*) AS RecNum FROM (select * from ANAGRAFICA) AS TempTab"_s,
        ado::recording::rows({{u"RecNum"_s, ado::DataTypeEnum::adInteger}}, {{std::int32_t{3}}}));
    script().returns(u"SELECT MAX([ETA]) AS Num FROM (select * from ANAGRAFICA) AS TempTab"_s,
                     ado::recording::rows({{u"Num"_s, ado::DataTypeEnum::adInteger}},
                                          {{vb::Variant(vb::Null{})}}));
    ASSERT_MEMBER_OK(openTable());
    EXPECT_EQ(rs.Count(), 3);
    EXPECT_EQ(rs.Count(), 3);            // asked again each time
    EXPECT_EQ(rs.MaxQuery(u"ETA"_s), 0); // null on an empty table
    const QStringList s = statements();
    EXPECT_EQ(s.count(u"SELECT COUNT(*) AS RecNum FROM (select * from ANAGRAFICA) AS TempTab"_s),
              2);
    EXPECT_TRUE(
        s.contains(u"SELECT MAX([ETA]) AS Num FROM (select * from ANAGRAFICA) AS TempTab"_s));
}

TEST_F(RsTest, WhereAndOrderRequeryTheJoinedStatement) {
    script().returns(u"select * from ANAGRAFICA Where ID > 1"_s, table(3));
    script().returns(u"select * from ANAGRAFICA Where ID > 1 Order By [ID] asc"_s, table(3));
    ASSERT_MEMBER_OK(openTable());
    EXPECT_MEMBER_OK(rs.SetWhere(u"ID > 1"_s));
    EXPECT_EQ(rs.Where(), u"ID > 1"_s);
    EXPECT_MEMBER_OK(rs.SetIndex(u"PK_ANAGRAFICA"_s));
    EXPECT_EQ(rs.OrderBy(), u"[ID] asc"_s);
    EXPECT_EQ(rs.Index(), u"PK_ANAGRAFICA"_s);
    EXPECT_FALSE(rs.SetIndex(u"NESSUNO"_s, true));
    EXPECT_EQ(statements().mid(1),
              (QStringList{u"select * from ANAGRAFICA Where ID > 1"_s,
                           u"select * from ANAGRAFICA Where ID > 1 Order By [ID] asc"_s}));

    // A wrong where text leaves the recordset closed; the order stays.
    script().fails(u"select * from ANAGRAFICA Where ID > Order By [ID] asc"_s,
                   ado::Error(HResult::DB_E_ERRORSINCOMMAND, u"Incorrect syntax."_s, u"x"_s));
    EXPECT_FALSE(rs.SetWhere(u"ID >"_s, true));
    EXPECT_FALSE(rs.IsOpened());
    EXPECT_EQ(nxApp::LastError().Description(), u"Incorrect syntax."_s);
}

TEST_F(RsTest, DeleteRemovesTheRowAndStandsOnAValidOne) {
    ASSERT_MEMBER_OK(openTable());
    ASSERT_TRUE(rs.MoveNext());
    EXPECT_MEMBER_OK(rs.Delete());
    EXPECT_TRUE(rowChanges().back().startsWith(u"delete select * from ANAGRAFICA: "_s));
    EXPECT_TRUE(rowChanges().back().endsWith(u"2"_s)) << rowChanges().back().toStdString();
    EXPECT_TRUE(rs.IsValidRec());
    EXPECT_EQ(rs.PrimaryFields(), QStringList{u"ID"_s});
    EXPECT_EQ(rs.GetIndexesName(), QStringList{u"PK_ANAGRAFICA"_s});
    EXPECT_EQ(rs.FldAttr(u"CODICE"_s), 0);
}

} // namespace
