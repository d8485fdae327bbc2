#pragma once

#include "platform/ado/adox/Objects.h"
#include "platform/vb/Variant.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

class nxDb;

// The attributes of nxTd::FldAdd, a bit mask.
inline constexpr long FldRequired = 1;      // a value is required; the column ends up not null
inline constexpr long FldAutoIncrement = 2; // identity column
inline constexpr long FldOptional = 4;      // nullable; on Jet also zero length
inline constexpr long FldNotNull = 16;      // not nullable, nothing more
inline constexpr long FldZeroLength = 32;   // on Jet allows zero length

// The flags of nxTd::IdxAdd.
inline constexpr long IdxPrimary = 1;
inline constexpr long IdxRequired = 2; // accepted, not read
inline constexpr long IdxUnique = 4;

// A column of a table that goes out as one "create table" statement.
struct TdColumn {
    QString Name;
    std::int32_t Type = 0;
    std::int32_t Size = 0;
    bool Nullable = false;
    bool Identity = false;
};

// One table definition at a time, new or existing, on Jet or on SQL Server: attach a database,
// TdOpen, add fields and indexes, TdClose. On Jet (and servers before 2005) a new table is an
// ADOX table appended at TdClose; on SQL Server 2005 and later it becomes one "create table"
// statement. Whatever ADOX cannot say on the server (defaults, altered columns, keys, indexes)
// is gathered as statements, put into an order the server accepts and run at TdClose.
class nxTd {
public:
    nxTd();
    ~nxTd();
    nxTd(const nxTd&) = delete;
    nxTd& operator=(const nxTd&) = delete;
    nxTd(nxTd&&) = delete;
    nxTd& operator=(nxTd&&) = delete;

    bool IsOpened() const noexcept { return m_isOpened; }
    bool IsNew() const noexcept { return m_isNew; }
    const ado::adox::TablePtr& Td() const noexcept { return m_td; }
    const QString& Name() const noexcept { return m_name; }
    nxDb* Db() const noexcept { return m_db; }
    // The database stays the caller's; it must outlive its use here.
    void Db(nxDb* db) noexcept { m_db = db; }
    bool Sql2005() const noexcept { return m_sql2005; }
    void Sql2005(bool value) noexcept { m_sql2005 = value; }
    bool ColumnsChanged() const noexcept { return m_columnsChanged; }
    const std::vector<TdColumn>& Columns() const noexcept { return m_columns; }
    // Element 0 stays empty, as the list starts.
    const QStringList& BatchCommands() const noexcept { return m_batchCommands; }
    const QString& IndexCatalog() const noexcept { return m_indexCatalog; }
    const QString& IndexIdColumn() const noexcept { return m_indexIdColumn; }

    // `Connect` and `RemoteTable` make a linked table on Jet; empty for an ordinary one.
    bool TdOpen(const QString& Name, const QString& Connect = {}, const QString& RemoteTable = {},
                bool Silent = false) noexcept;
    bool TdClose(bool Silent = false) noexcept;

    bool FldExist(const QString& Name) noexcept;
    long FldType(const QString& Name) noexcept;
    QString FldKind(const QString& Name, const QString& NumberVal, const QString& StringVal,
                    const QString& BooleanVal, const QString& DateVal) noexcept;
    bool FldAdd(const QString& Name, long Type, long Size, long Attrs, const QString& Default,
                bool Silent = false) noexcept;

    bool IdxExist(const QString& Name) noexcept;
    // `Fields`: "+A;-B", a sign and a column name per item.
    bool IdxAdd(const QString& Name, const QString& Fields, long Flags,
                bool Silent = false) noexcept;

    // Removes every enclosing level of the pair ("[]", "()", two double quotes).
    static QString EnclosureRemove(const QString& Text, const QString& Pair);

    // The text of a "create table" for the column records; what the builder holds when there
    // are none.
    QString BuildCreateTable() noexcept;
    QString ColumnTypeText(long Type, long Size) const;

    // The server's type name for an ADO type; "nvarchar(max)" for long text from 2005 on.
    static QString columnTypeText(long type, long size, bool sql2005);
    // The order in which the server accepts a batch: other statements, constraint drops, column
    // drops, column alterations, defaults, primary keys, index creations, procedure calls.
    static QStringList sortBatchCommands(const QStringList& commands);
    // A default in Jet's notation, in the form of the back end.
    vb::Variant NormalizeDefault(const QString& Default, long Type, bool Required) const;

    QString StripName(const QString& Name, bool RemoveSuffix) const;
    QString QuoteTblName(const QString& Name, bool RemoveSuffix = false) const;
    QString QuoteIdxName(const QString& Name) const;

private:
    bool isServer() const;
    void addBatch(const QString& command);
    bool hasBatch() const;
    bool ExecuteBatchCommands(bool Silent);
    void linkTable(const QString& connect, const QString& remoteTable);
    QString FindCollectionKey(ado::adox::Tables& tables, const QString& name) const;
    QString FindCollectionKey(ado::adox::Columns& columns, const QString& name) const;
    ado::adox::ColumnPtr ColumnCreate(const QString& name);
    void ColumnSetNotNull(const QString& column);
    bool ColumnDropConstaintsIdx(const QString& column);
    bool IdxGetFlags(const QString& index, bool& unique, bool& uniqueConstraint);
    void addNewColumn(const QString& name, long type, long size, long attrs, QString def,
                      TdColumn* record);
    bool alterColumn(const QString& name, long type, long size, long attrs, const QString& def);
    QString alterTypeText(long type, long size) const;
    QString defaultConstraintName(const QString& column) const;
    QString previousConstraint(const QString& column, QString* table) const;
    void addIndexText(const QString& index, long flags, const QString& columns);
    void addPrimaryKey(const QString& index, const QString& columns);

    bool m_isOpened = false;
    bool m_columnsChanged = false;
    bool m_sql2005 = false;
    bool m_isNew = false;
    QString m_name;
    QString m_indexCatalog;
    QString m_indexIdColumn;
    QStringList m_batchCommands{QString()};
    ado::adox::TablePtr m_td;
    nxDb* m_db = nullptr;
    std::vector<TdColumn> m_columns;
    QString m_builder;
    QString m_renameFrom; // the Jet auto-increment column that FldAdd renames
};
