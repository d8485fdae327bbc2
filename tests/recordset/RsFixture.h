#pragma once

#include "recordset/nxRs.h"

#include "dbaccess/nxDb.h"

#include "platform/ado/ProviderRegistry.h"
#include "platform/ado/SchemaRowsets.h"
#include "platform/ado/recording/RecordingProvider.h"

#include "tests/frame/FrameFixture.h"
#include "tests/support/ForwardingSession.h"

#include <deque>
#include <memory>
#include <optional>
#include <set>

using namespace Qt::StringLiterals;

// The IDs (first column) of rows whose values can no longer be read, as a row deleted by
// another user under a cursor.
using UnreadableRows = std::set<std::int32_t>;

// A rowset that passes everything to another and fails the changes a test lines up: each
// insert or update takes the next error of its queue, if there is one. The values of the rows in
// `unreadable` fail with a provider error. `reads` counts the values asked for.
class FaultyRowset : public ado::ProviderRowset {
public:
    FaultyRowset(std::unique_ptr<ado::ProviderRowset> inner,
                 std::shared_ptr<std::deque<std::optional<ado::Error>>> faults,
                 std::shared_ptr<int> changes, std::shared_ptr<UnreadableRows> unreadable,
                 std::shared_ptr<long> reads)
        : m_inner(std::move(inner)), m_faults(std::move(faults)), m_changes(std::move(changes)),
          m_unreadable(std::move(unreadable)), m_reads(std::move(reads)) {}

    const std::vector<ado::ColumnInfo>& columns() const override { return m_inner->columns(); }
    ado::CursorTypeEnum cursorType() const override { return m_inner->cursorType(); }
    bool next() override { return m_inner->next(); }
    void restart() override { m_inner->restart(); }
    bool canSeek() const override { return m_inner->canSeek(); }
    ado::RowId rowId() const override { return m_inner->rowId(); }
    bool seek(ado::RowId id) override { return m_inner->seek(id); }
    vb::Variant value(int column) override {
        ++*m_reads;
        if (!m_unreadable->empty() &&
            m_unreadable->count(m_inner->value(0).toLong().value_or(-1)) != 0) {
            throw ado::Error(ado::HResult::E_UNSPECIFIED, u"Row handle referred to a deleted row"_s,
                             u"Microsoft OLE DB Provider for SQL Server"_s);
        }
        return m_inner->value(column);
    }
    std::vector<ado::PropertyValue> properties() const override { return m_inner->properties(); }
    bool canUpdate() const override { return m_inner->canUpdate(); }
    ado::RowId insertRow(const std::vector<ado::FieldChange>& values) override {
        fault();
        return m_inner->insertRow(values);
    }
    void updateRow(ado::RowId id, const std::vector<ado::FieldChange>& values) override {
        fault();
        m_inner->updateRow(id, values);
    }
    void deleteRow(ado::RowId id) override { m_inner->deleteRow(id); }

private:
    void fault() {
        ++*m_changes;
        if (m_faults->empty()) {
            return;
        }
        std::optional<ado::Error> next = m_faults->front();
        m_faults->pop_front();
        if (next) {
            throw *next;
        }
    }
    std::unique_ptr<ado::ProviderRowset> m_inner;
    std::shared_ptr<std::deque<std::optional<ado::Error>>> m_faults;
    std::shared_ptr<int> m_changes;
    std::shared_ptr<UnreadableRows> m_unreadable;
    std::shared_ptr<long> m_reads;
};

class FaultySession : public ForwardingSession {
public:
    FaultySession(std::unique_ptr<ado::ProviderSession> inner,
                  std::shared_ptr<std::deque<std::optional<ado::Error>>> faults,
                  std::shared_ptr<int> changes, std::shared_ptr<UnreadableRows> unreadable,
                  std::shared_ptr<long> reads)
        : ForwardingSession(std::move(inner)), m_faults(std::move(faults)),
          m_changes(std::move(changes)), m_unreadable(std::move(unreadable)),
          m_reads(std::move(reads)) {}

    ado::CommandResult execute(const ado::CommandRequest& request) override {
        ado::CommandResult result = ForwardingSession::execute(request);
        if (result.rowset) {
            result.rowset = std::make_unique<FaultyRowset>(std::move(result.rowset), m_faults,
                                                           m_changes, m_unreadable, m_reads);
        }
        return result;
    }

private:
    std::shared_ptr<std::deque<std::optional<ado::Error>>> m_faults;
    std::shared_ptr<int> m_changes;
    std::shared_ptr<UnreadableRows> m_unreadable;
    std::shared_ptr<long> m_reads;
};

// The recording provider in place of "SQLOLEDB", with faults on row changes.
class FaultyProvider : public ado::Provider {
public:
    ado::recording::RecordingProvider recording;
    std::shared_ptr<std::deque<std::optional<ado::Error>>> faults =
        std::make_shared<std::deque<std::optional<ado::Error>>>();
    std::shared_ptr<int> changes = std::make_shared<int>(0);
    std::shared_ptr<UnreadableRows> unreadable = std::make_shared<UnreadableRows>();
    std::shared_ptr<long> reads = std::make_shared<long>(0);

    QString name() const override { return recording.name(); }
    std::unique_ptr<ado::ProviderSession> open(const ado::OpenRequest& request) override {
        return std::make_unique<FaultySession>(recording.open(request), faults, changes,
                                               unreadable, reads);
    }
    void createDatabase(const ado::ConnectionString& c) override { recording.createDatabase(c); }
};

// An application object, a server database "ARCHIVIO" on the recording provider, and the
// table ANAGRAFICA: ID (identity, primary key), NOME (text of 10), ETA (number), NATO (date),
// ATTIVO (boolean), CODICE (required text, not null).
class RsTest : public FrameTest {
protected:
    void SetUp() override {
        FrameTest::SetUp();
        ado::recording::Script& s = provider->recording.script();
        s.schema(ado::SchemaEnum::adSchemaCatalogs, {{u"ARCHIVIO"_s, vb::Variant()}});
        s.schema(ado::SchemaEnum::adSchemaTables, {tableRow(u"ANAGRAFICA"_s)});
        s.catalogTable({u"ANAGRAFICA"_s, u"TABLE"_s, {}, {}, {}}, catalogColumns(), {primaryKey()});
        s.returns(u"select * from ANAGRAFICA"_s, table(3));
        db = std::make_unique<nxDb>(); // after the library has started
        ASSERT_MEMBER_OK(
            db->DbOpen(u"ARCHIVIO"_s, 1, true, u"SQLOLEDB"_s, u"SRV"_s, 2, u"sa"_s, u"pw"_s));
        journal().clear();
    }
    void TearDown() override {
        rs.RsClose();
        if (db) {
            db->DbClose();
        }
        FrameTest::TearDown();
    }

    static ado::Row tableRow(const QString& name) {
        return ado::SchemaRow(ado::SchemaEnum::adSchemaTables)
            .set(u"TABLE_NAME", name)
            .set(u"TABLE_TYPE", u"TABLE"_s)
            .take();
    }
    static std::vector<ado::CatalogColumn> catalogColumns() {
        std::vector<ado::CatalogColumn> c(6);
        const char16_t* names[] = {u"ID", u"NOME", u"ETA", u"NATO", u"ATTIVO", u"CODICE"};
        for (int i = 0; i < 6; ++i) {
            c[static_cast<std::size_t>(i)].name = QString::fromUtf16(names[i]);
        }
        c[1].properties = {{u"Jet OLEDB:Allow Zero Length"_s, false, true}};
        return c;
    }
    static ado::CatalogIndex primaryKey() {
        ado::CatalogIndex pk;
        pk.name = u"PK_ANAGRAFICA"_s;
        pk.primaryKey = true;
        pk.unique = true;
        ado::CatalogColumn id;
        id.name = u"ID"_s;
        pk.columns = {id};
        return pk;
    }
    // The rows of ANAGRAFICA: IDs 1..n.
    static ado::recording::ScriptedRows table(int n) {
        using T = ado::DataTypeEnum;
        ado::recording::ScriptedRows r = ado::recording::rows({{u"ID"_s, T::adInteger},
                                                               {u"NOME"_s, T::adVarWChar},
                                                               {u"ETA"_s, T::adInteger},
                                                               {u"NATO"_s, T::adDBTimeStamp},
                                                               {u"ATTIVO"_s, T::adBoolean},
                                                               {u"CODICE"_s, T::adVarWChar}});
        r.columns[0].properties = {{u"ISAUTOINCREMENT"_s, true, false}};
        r.columns[0].attributes = 0;
        r.columns[1].definedSize = 10;
        r.columns[5].definedSize = 20;
        r.columns[5].attributes = 0;
        for (int i = 1; i <= n; ++i) {
            r.rows.push_back({std::int32_t{i}, u"Nome "_s + QString::number(i),
                              std::int32_t{20 + i}, vb::makeDate(2000, 1, i), i % 2 == 0,
                              u"C"_s + QString::number(i)});
        }
        return r;
    }

    ado::recording::Journal& journal() { return provider->recording.journal(); }
    ado::recording::Script& script() { return provider->recording.script(); }
    bool openTable(long lock = 3) {
        rs.Db(db.get());
        return rs.RsOpen(u"select * from ANAGRAFICA"_s, 1, lock, true, 2);
    }
    // The statements run so far, in order.
    QStringList statements() { return journal().statements(); }
    QStringList rowChanges() {
        QStringList lines;
        for (const auto& e : journal().entries()) {
            if (e.kind == ado::recording::Journal::Kind::RowChange) {
                lines.append(e.text);
            }
        }
        return lines;
    }

    std::shared_ptr<FaultyProvider> provider = std::make_shared<FaultyProvider>();
    ado::ScopedProvider scoped{u"SQLOLEDB"_s, provider};
    std::unique_ptr<nxDb> db;
    nxRs rs;
};
