#pragma once

#include "platform/ado/Connection.h"
#include "platform/ado/adox/Catalog.h"
#include "platform/vb/Variant.h"

#include <QString>

#include <cstdint>
#include <memory>

class nxConn;

// The flags of nxDb::DbOpen, a bit mask.
inline constexpr long DbOpenShared = 1;    // without it the connection is opened exclusive
inline constexpr long DbOpenCreate = 2;    // create the database when it is missing
inline constexpr long DbOpenOverwrite = 4; // Jet, with DbOpenCreate: replace an existing file
inline constexpr long DbOpenPassword = 8;  // Jet: the suite's fixed password (and encryption)

// An open database on one of the two back ends: a Jet file through "Microsoft.Jet.OLEDB.4.0" or a
// SQL Server database through "SQLOLEDB". It composes the connection strings, creates a missing
// server database, holds the ADO connection and the ADOX catalog, counts transaction levels and
// says which delimiters and date type apply. Members answer with results and never throw; the
// reason of a failure stands in nxApp::LastError().
class nxDb {
public:
    nxDb();
    ~nxDb();
    nxDb(const nxDb&) = delete;
    nxDb& operator=(const nxDb&) = delete;
    nxDb(nxDb&&) = delete;
    nxDb& operator=(nxDb&&) = delete;

    bool IsOpened() const noexcept { return m_isOpened; }
    bool IsNew() const noexcept { return m_isOpened && m_isNew; }
    bool IsReadOnly() const noexcept { return m_isOpened && m_isReadOnly; }
    const ado::adox::CatalogPtr& Db() const noexcept { return m_db; }
    const ado::ConnectionPtr& cn() const noexcept { return m_cn; }
    // Null while the handle is closed.
    const std::shared_ptr<nxConn>& ConnUtils() const noexcept { return m_connUtils; }
    const QString& Name() const noexcept { return m_name; }
    const QString& ServerName() const noexcept { return m_serverName; }
    const QString& ConnectionString() const noexcept { return m_connectionString; }
    std::int32_t TransLevel() const noexcept { return m_transLevel; }

    const QString& DateDel() const noexcept { return m_dateDel; }
    const QString& FldStartDel() const noexcept { return m_fldStartDel; }
    const QString& FldEndDel() const noexcept { return m_fldEndDel; }
    const QString& Jolly() const noexcept { return m_jolly; }
    std::int32_t DateType() const noexcept { return m_dateType; }
    // 0 Jet, 1 SQL Server, -1 unknown or after a failed open.
    std::int32_t DbType() const noexcept { return m_dbType; }

    // Opens (and with DbOpenCreate creates) the database. `Name` is the file path on Jet, the
    // database name on the server; an empty `Server` is this computer; an empty `User` asks for
    // integrated security. `EngineType` is the Jet engine type of a new file.
    bool DbOpen(const QString& Name, long Flags, bool Silent, const QString& Provider,
                const QString& Server = {}, long CursorLocation = 2, const QString& User = {},
                const QString& Password = {}, long EngineType = 0) noexcept;
    // Commits the open transaction levels and closes; reports nothing.
    void DbClose() noexcept;

    bool BeginTrans(bool Silent = false) noexcept;
    bool CommitTrans(bool Silent = false) noexcept;
    bool RollbackTrans(bool Silent = false) noexcept;

    // Runs a command that returns no rows. On the server on a connection of its own, so outside
    // any transaction of cn.
    bool Execute(const QString& Sql, bool Silent = false, long Options = 128) noexcept;

    bool IsReservedKeyword(const QString& Word) const;
    QString NormalizeTbl(const QString& Name, bool Quote = true) const;
    QString NormalizeFld(const QString& Name) const;
    QString DataTypeKind(long Type, const QString& NumberVal, const QString& StringVal,
                         const QString& BooleanVal, const QString& DateVal) const;

    bool TdExist(const QString& Name) noexcept;
    std::int32_t TdRecordCount(const QString& Name, bool Silent = false) noexcept;
    // With `Fields` given and a match: "COL asc,COL2 desc" over the index's columns.
    bool IdxExists(const QString& Table, const QString& Index, QString* Fields = nullptr) noexcept;
    bool TblFieldExists(const QString& Table, const QString& Field) noexcept;
    bool UpdateAutoIncrement(const QString& Table, std::int32_t Value,
                             bool Silent = false) noexcept;

    bool RelExist(const QString& Name, const QString& Table) noexcept;
    // On a database that is not read-only: deletes the key when it is there.
    bool RelDel(const QString& Name, const QString& Table) noexcept;

private:
    bool openServer(const QString& server, const QString& user, const QString& password,
                    bool create);
    bool openJet(long flags, long engineType);
    bool openConnection(long cursorLocation, bool shared);
    void setDelimiters(bool server);
    QString autoIncrementField(const QString& table) const;

    bool m_init = false;
    QString m_jetPassword;
    QString m_name;
    ado::ConnectionPtr m_cn;
    std::int32_t m_transLevel = 0;
    std::shared_ptr<nxConn> m_connUtils;
    ado::adox::CatalogPtr m_db;
    QString m_connectionString;
    QString m_provider;
    QString m_serverName;
    std::int32_t m_dbType = -1;
    QString m_dateDel;
    QString m_fldStartDel;
    QString m_fldEndDel;
    QString m_jolly;
    std::int32_t m_dateType = 0;
    bool m_isOpened = false;
    bool m_isNew = false;
    bool m_isReadOnly = false;
};
