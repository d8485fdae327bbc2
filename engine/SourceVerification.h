#pragma once

#include "engine/SqlNames.h"
#include "engine/VerificationReport.h"

#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "platform/ado/adox/Catalog.h"

#include <QString>

class nxLog;

// Examines the source database for what the server will refuse before anything is created
// there: index keys over 900 bytes, dates before 1753, nulls in primary-key fields and memo
// fields in indexes. Findings go to the conversion log table by table, in the layout of
// TableReport. Only reads: every query runs on the source Jet connection.
//
// Date, key and memo findings fail the verification; an index that is too long only lowers
// IdxOk, and the operator then decides whether to go on.
namespace engine {

class SourceVerification {
public:
    // `connection`: the source connection the questions run on; `catalog`: the source handle's
    // catalog, which gives each table's name; `isKeyword`: the server's keyword test for field
    // names in the queries (may be empty).
    SourceVerification(ado::ConnectionPtr connection, ado::adox::CatalogPtr catalog, nxLog& log,
                       KeywordTest isKeyword = {});

    // False on a hard finding. `IdxOk` is only ever lowered (the caller sets it true first).
    bool AnalyzeDatabase(bool& IdxOk) noexcept;
    // Every table that is not numbered and not a dictionary, archives included: no length check.
    bool AnalyzeSystemTables(ado::Recordset& Tables) noexcept;
    // The tables that `Filter` leaves (or, with OnlyNumbered, those whose name begins with a
    // digit) and that DB_ELENCO lists; the others are noted in the log and passed over.
    bool AnalyzeTables(ado::Recordset& Tables, bool& IdxOk, const QString& Filter,
                       bool OnlyNumbered) noexcept;

    // The checks of one table: each appends its findings to `Report` and answers false when it
    // found something. An error ends a check early and counts as a finding.
    bool CheckIndexLength(const QString& Table, TableReport& Report) noexcept;
    bool CheckDateFields(const QString& Table, TableReport& Report) noexcept;
    bool CheckPrimaryKeyNulls(const QString& Table, TableReport& Report) noexcept;
    bool CheckMemoIndexes(const QString& Table, TableReport& Report) noexcept;

private:
    QString catalogName(const QString& tableName) const;
    QString tableText(const QString& table) const;
    QString fieldText(const QString& field) const;
    ado::RecordsetPtr openKeyset(const QString& sql) const;
    void writeReport(const TableReport& report);
    bool checkArchiveTable(const QString& name, const QString& archive, bool& lengthOk);

    ado::ConnectionPtr m_connection;
    ado::adox::CatalogPtr m_catalog;
    nxLog& m_log;
    KeywordTest m_isKeyword;
};

} // namespace engine
