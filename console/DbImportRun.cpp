#include "console/DbImportRun.h"

#include "engine/DbImport.h"

using namespace Qt::StringLiterals;

namespace {

class DbImportRun : public ImportRun {
public:
    explicit DbImportRun(DbImportEvents* events) : m_import(events) {}

    void DbSrc(const QString& value) override { m_import.DbSrc(value); }
    void DbName(const QString& value) override { m_import.DbName(value); }
    void DbDesc(const QString& value) override { m_import.DbDesc(value); }
    void DbServerName(const QString& value) override { m_import.DbServerName(value); }
    void DbUsername(const QString& value) override { m_import.DbUsername(value); }
    void DbPassword(const QString& value) override { m_import.DbPassword(value); }
    void RecordControls(JobProgress* progress, JobLabel* count) override {
        m_import.RecordControls(progress, count);
    }
    bool Run(const QString& source, QObject* ownerWindow) override {
        return m_import.Run(source, ownerWindow, u"Microsoft.Jet.OLEDB.4.0"_s, QString());
    }
    void Stopped(bool value) override { m_import.Stopped(value); }
    bool Stopped() const override { return m_import.Stopped(); }

private:
    DbImport m_import;
};

} // namespace

ImportRunFactory dbImportRuns() {
    return [](DbImportEvents* events) { return std::make_unique<DbImportRun>(events); };
}
