// nxRsJob walking a million rows that a provider generates as it goes, reading every field of
// every record, against a bare loop over the same provider rowset. Prints records per second of
// both and the resident memory at 10 %, 50 % and 100 % of the walk, so that a layer that keeps
// something per record shows as growth.
//
//   rsjob_bench [rows]

#include "jobs/nxRsJob.h"
#include "recordset/nxRs.h"
#include "dbaccess/nxDb.h"
#include "frame/nxApp.h"
#include "platform/ado/ProviderRegistry.h"
#include "platform/ado/SchemaRowsets.h"
#include "platform/ado/recording/RecordingProvider.h"
#include "platform/win/FileRegistry.h"
#include "platform/win/ScriptedMessageBox.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

// Rows made from their number: ID, NOME, IMPORTO, DATA, ATTIVO, NOTE.
class GeneratedRowset : public ado::ProviderRowset {
public:
    explicit GeneratedRowset(std::int64_t rows) : m_rows(rows) {
        using T = ado::DataTypeEnum;
        const std::pair<const char16_t*, T> columns[] = {
            {u"ID", T::adInteger},     {u"NOME", T::adVarWChar}, {u"IMPORTO", T::adDouble},
            {u"DATA", T::adDBTimeStamp}, {u"ATTIVO", T::adBoolean}, {u"NOTE", T::adVarWChar}};
        for (const auto& [name, type] : columns) {
            ado::ColumnInfo c;
            c.name = QString::fromUtf16(name);
            c.type = type;
            c.definedSize = type == T::adVarWChar ? 50 : 0;
            c.attributes = 0x20 | 0x40;
            m_columns.push_back(c);
        }
    }
    const std::vector<ado::ColumnInfo>& columns() const override { return m_columns; }
    ado::CursorTypeEnum cursorType() const override { return ado::CursorTypeEnum::adOpenForwardOnly; }
    bool next() override { return ++m_current <= m_rows; }
    void restart() override { m_current = 0; }
    bool canSeek() const override { return false; }
    ado::RowId rowId() const override { return static_cast<ado::RowId>(m_current); }
    bool seek(ado::RowId) override { return false; }
    vb::Variant value(int column) override {
        const auto i = static_cast<std::int32_t>(m_current);
        switch (column) {
        case 0:
            return i;
        case 1:
            return u"Nome "_s + QString::number(i);
        case 2:
            return i * 1.25;
        case 3:
            return vb::dateFromOle(36526.0 + i % 10000);
        case 4:
            return i % 2 == 0;
        default:
            return i % 7 == 0 ? vb::Variant(vb::Null{}) : vb::Variant(u"Nota di prova"_s);
        }
    }
    std::vector<ado::PropertyValue> properties() const override { return {}; }
    bool canUpdate() const override { return false; }
    ado::RowId insertRow(const std::vector<ado::FieldChange>&) override { refuse(); }
    void updateRow(ado::RowId, const std::vector<ado::FieldChange>&) override { refuse(); }
    void deleteRow(ado::RowId) override { refuse(); }

private:
    [[noreturn]] static void refuse() {
        throw ado::Error(ado::HResult::DB_E_NOTSUPPORTED, u"read-only"_s, u"bench"_s);
    }
    std::int64_t m_rows;
    std::int64_t m_current = 0;
    std::vector<ado::ColumnInfo> m_columns;
};

// The recording provider, with "select * from BIG" answered by generated rows.
class GeneratingSession : public ado::ProviderSession {
public:
    GeneratingSession(std::unique_ptr<ado::ProviderSession> inner, std::int64_t rows)
        : m_inner(std::move(inner)), m_rows(rows) {}
    QString connectionString() const override { return m_inner->connectionString(); }
    std::vector<ado::PropertyValue> properties() const override { return m_inner->properties(); }
    void setProperty(const ado::PropertyValue& v) override { m_inner->setProperty(v); }
    ado::CommandResult execute(const ado::CommandRequest& request) override {
        if (request.text.startsWith(u"select * from BIG"_s)) {
            ado::CommandResult result;
            result.rowset = std::make_unique<GeneratedRowset>(m_rows);
            return result;
        }
        return m_inner->execute(request);
    }
    std::unique_ptr<ado::ProviderRowset>
    openSchema(ado::SchemaEnum s, const std::vector<vb::Variant>& r) override {
        return m_inner->openSchema(s, r);
    }
    long beginTransaction() override { return m_inner->beginTransaction(); }
    void commitTransaction() override { m_inner->commitTransaction(); }
    void rollbackTransaction() override { m_inner->rollbackTransaction(); }
    ado::ProviderCatalog& catalog() override { return m_inner->catalog(); }
    void close() noexcept override { m_inner->close(); }

private:
    std::unique_ptr<ado::ProviderSession> m_inner;
    std::int64_t m_rows;
};

class GeneratingProvider : public ado::Provider {
public:
    explicit GeneratingProvider(std::int64_t rows) : m_rows(rows) {}
    ado::recording::RecordingProvider recording;
    QString name() const override { return recording.name(); }
    std::unique_ptr<ado::ProviderSession> open(const ado::OpenRequest& r) override {
        return std::make_unique<GeneratingSession>(recording.open(r), m_rows);
    }
    void createDatabase(const ado::ConnectionString& c) override { recording.createDatabase(c); }

private:
    std::int64_t m_rows;
};

// Resident memory in kB, from /proc; 0 where there is none.
long residentKb() {
    QFile f(u"/proc/self/status"_s);
    if (!f.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray& line : f.readAll().split('\n')) {
        if (line.startsWith("VmRSS:")) {
            return line.mid(6).trimmed().split(' ').front().toLong();
        }
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const std::int64_t rows = argc > 1 ? QByteArray(argv[1]).toLongLong() : 1000000;
    QTemporaryDir dir;
    nxApp::SetMessageBox(std::make_shared<win::ScriptedMessageBox>());
    nxApp::SetRegistry(std::make_shared<win::FileRegistry>(dir.filePath(u"registry"_s)));
    if (!nxApp::AppInitialize(vb::Variant(), QString())) {
        std::fprintf(stderr, "the library did not start\n");
        return 1;
    }
    auto provider = std::make_shared<GeneratingProvider>(rows);
    ado::ScopedProvider scoped(u"SQLOLEDB"_s, provider);
    provider->recording.script().schema(ado::SchemaEnum::adSchemaCatalogs,
                                        {{u"BENCH"_s, vb::Variant()}});
    provider->recording.script().returns(
        u"SELECT COUNT(*) AS RecNum FROM (select * from BIG) AS TempTab"_s,
        ado::recording::rows({{u"RecNum"_s, ado::DataTypeEnum::adInteger}},
                             {{static_cast<std::int32_t>(rows)}}));

    // The bare loop: the provider's rowset, every value of every row.
    QElapsedTimer timer;
    timer.start();
    std::int64_t bare = 0;
    {
        GeneratedRowset r(rows);
        while (r.next()) {
            for (int c = 0; c < 6; ++c) {
                bare += r.value(c).isNull() ? 0 : 1;
            }
        }
    }
    const double bareSeconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;

    nxDb db;
    if (!db.DbOpen(u"BENCH"_s, 1, true, u"SQLOLEDB"_s, u"SRV"_s, 2, u"sa"_s, u"pw"_s)) {
        std::fprintf(stderr, "the database did not open\n");
        return 1;
    }
    nxRsJob job;
    job.Db(&db);
    job.Job().UseForm(false);
    job.Job().Confirm(false);
    job.Job().EndMessage(false);
    job.CursorType(0); // forward-only and read-only, as the record copy opens user tables
    job.LockType(1);
    std::int64_t visited = 0;
    std::int64_t outOfOrder = 0;
    std::int64_t values = 0;
    long memory[3] = {};
    job.OnRecord = [&](nxRs& r, bool&, bool) {
        ++visited;
        outOfOrder += r.FldGet(0).toLong().value_or(-1) != visited;
        for (int c = 0; c < 6; ++c) {
            values += r.FldGet(c).isEmpty() ? 0 : 1;
        }
        if (visited == rows / 10) {
            memory[0] = residentKb();
        } else if (visited == rows / 2) {
            memory[1] = residentKb();
        }
    };
    if (!job.RsOpen(u"select * from BIG"_s, true)) {
        std::fprintf(stderr, "the recordset did not open\n");
        return 1;
    }
    timer.restart();
    const bool ok = job.Start();
    const double jobSeconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    memory[2] = residentKb();
    job.RsClose();

    std::printf("rows %lld, job %s, visited %lld, out of order %lld\n",
                static_cast<long long>(rows), ok ? "ok" : "failed",
                static_cast<long long>(visited), static_cast<long long>(outOfOrder));
    std::printf("bare provider loop: %.0f records/s (%.2f s)\n",
                static_cast<double>(rows) / bareSeconds, bareSeconds);
    std::printf("nxRsJob walk:       %.0f records/s (%.2f s), %.3f of the bare loop\n",
                static_cast<double>(visited) / jobSeconds, jobSeconds, bareSeconds / jobSeconds);
    std::printf("resident memory: %ld kB at 10 %%, %ld kB at 50 %%, %ld kB at the end\n",
                memory[0], memory[1], memory[2]);
    return ok && visited == rows && outOfOrder == 0 && bare > 0 && values > 0 ? 0 : 1;
}
