#pragma once

#include "platform/ado/ConnectionString.h"
#include "platform/ado/Enums.h"
#include "platform/ado/Properties.h"
#include "platform/vb/Variant.h"

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

// What a provider implements. The object model (Connection, Recordset, Command, ADOX Catalog)
// keeps ADO's behaviour: states, BOF/EOF, moves, bookmarks, Filter, edit buffers, the Errors
// collection. A provider only opens sessions, runs commands, streams rows and describes its
// catalog. Every failure is thrown as ado::Error with the code the real provider gives.
namespace ado {

// One column of a rowset.
struct ColumnInfo {
    QString name;
    DataTypeEnum type = DataTypeEnum::adEmpty;
    long definedSize = 0;
    long attributes = 0; // FieldAttributeEnum bits
    std::uint8_t precision = 0;
    std::uint8_t numericScale = 0;
    std::vector<PropertyValue> properties; // field properties such as ISAUTOINCREMENT
};

// Identifies a row of a rowset for as long as the rowset is open; the object model builds its
// bookmarks and keysets on it.
using RowId = std::uint64_t;

// A changed value of a row being inserted or updated.
struct FieldChange {
    int column = 0;
    vb::Variant value;
};

// An open rowset. It streams: next() fetches one row at a time, and value() decodes one value
// of the current row when asked.
class ProviderRowset {
public:
    virtual ~ProviderRowset() = default;

    virtual const std::vector<ColumnInfo>& columns() const = 0;
    // The cursor really given, which may differ from the one asked for.
    virtual CursorTypeEnum cursorType() const = 0;
    // Fetches the next row in rowset order; false past the last row (no current row then).
    virtual bool next() = 0;
    // Back before the first row: the next next() gives the first row again.
    virtual void restart() = 0;
    // Whether seek() works: true for keyset and static cursors.
    virtual bool canSeek() const = 0;
    virtual RowId rowId() const = 0;
    // Makes a row fetched before current again; false when it no longer exists.
    virtual bool seek(RowId id) = 0;
    // A value of the current row.
    virtual vb::Variant value(int column) = 0;
    // The same value written into `into`, for a reader that keeps one variant per column: a
    // rowset that can decode into the storage `into` holds does so. On failure it throws as
    // value() does.
    virtual void readValue(int column, vb::Variant& into) { into = value(column); }
    virtual std::vector<PropertyValue> properties() const = 0;

    // Changes. A read-only rowset answers false and throws from the three others.
    virtual bool canUpdate() const = 0;
    virtual RowId insertRow(const std::vector<FieldChange>& values) = 0;
    virtual void updateRow(RowId id, const std::vector<FieldChange>& values) = 0;
    virtual void deleteRow(RowId id) = 0;
};

// A command parameter as the provider receives it.
struct ParameterValue {
    QString name;
    DataTypeEnum type = DataTypeEnum::adEmpty;
    ParameterDirectionEnum direction = ParameterDirectionEnum::adParamInput;
    long size = 0;
    std::uint8_t precision = 0;
    std::uint8_t numericScale = 0;
    vb::Variant value;
};

struct CommandRequest {
    QString text;
    CommandTypeEnum type = CommandTypeEnum::adCmdText; // never adCmdUnspecified here
    long options = adOptionUnspecified;                 // ExecuteOptionEnum bits of the call
    std::vector<ParameterValue> parameters;
    long timeoutSeconds = 30;
    CursorTypeEnum cursorType = CursorTypeEnum::adOpenForwardOnly;
    LockTypeEnum lockType = LockTypeEnum::adLockReadOnly;
    CursorLocationEnum cursorLocation = CursorLocationEnum::adUseServer;
    std::vector<PropertyValue> rowsetProperties; // set on the recordset before Open
};

struct CommandResult {
    std::unique_ptr<ProviderRowset> rowset; // null when the command returns no rows
    long recordsAffected = -1;
};

// ADOX, as plain descriptions.
struct CatalogColumn {
    QString name;
    DataTypeEnum type = DataTypeEnum::adVarWChar;
    long definedSize = 0;
    long attributes = 0; // ColumnAttributesEnum bits
    std::uint8_t precision = 0;
    std::uint8_t numericScale = 0;
    SortOrderEnum sortOrder = SortOrderEnum::adSortAscending; // index columns
    QString relatedColumn;                                    // key columns
    std::vector<PropertyValue> properties;
};

struct CatalogIndex {
    QString name;
    bool primaryKey = false;
    bool unique = false;
    bool clustered = false;
    AllowNullsEnum indexNulls = AllowNullsEnum::adIndexNullsAllow;
    std::vector<CatalogColumn> columns; // name and sortOrder
    std::vector<PropertyValue> properties;
};

struct CatalogKey {
    QString name;
    KeyTypeEnum type = KeyTypeEnum::adKeyPrimary;
    QString relatedTable;
    RuleEnum deleteRule = RuleEnum::adRINone;
    RuleEnum updateRule = RuleEnum::adRINone;
    std::vector<CatalogColumn> columns; // name and relatedColumn
};

struct CatalogTable {
    QString name;
    QString type; // "TABLE", "SYSTEM TABLE", "ACCESS TABLE", "VIEW", "LINK"...
    QDateTime dateCreated;
    QDateTime dateModified;
    std::vector<PropertyValue> properties;
};

// A session's catalog, for ADOX. Reads are lazy: the object model asks for a table's columns,
// indexes and keys when a caller first reaches them.
class ProviderCatalog {
public:
    virtual ~ProviderCatalog() = default;

    virtual std::vector<CatalogTable> tables() = 0;
    virtual std::vector<CatalogColumn> columns(const QString& table) = 0;
    virtual std::vector<CatalogIndex> indexes(const QString& table) = 0;
    virtual std::vector<CatalogKey> keys(const QString& table) = 0;
    // The properties a new column offers once it belongs to this catalog, with their defaults.
    virtual std::vector<PropertyValue> newColumnProperties() = 0;

    virtual void appendTable(const CatalogTable& table, const std::vector<CatalogColumn>& columns,
                             const std::vector<CatalogIndex>& indexes,
                             const std::vector<CatalogKey>& keys) = 0;
    virtual void deleteTable(const QString& table) = 0;
    virtual void appendColumn(const QString& table, const CatalogColumn& column) = 0;
    virtual void appendIndex(const QString& table, const CatalogIndex& index) = 0;
    virtual void deleteIndex(const QString& table, const QString& index) = 0;
    virtual void appendKey(const QString& table, const CatalogKey& key) = 0;
    virtual void deleteKey(const QString& table, const QString& key) = 0;
    virtual void setColumnProperty(const QString& table, const QString& column,
                                   const PropertyValue& value) = 0;
};

// What Connection::Open hands to the provider.
struct OpenRequest {
    QString connectionText;            // the string exactly as the caller gave it
    ConnectionString connectionString; // parsed, Provider= always present
    QString userId;                    // Open's arguments, when given
    QString password;
    long mode = adModeUnknown;
    long connectionTimeoutSeconds = 15;
    CursorLocationEnum cursorLocation = CursorLocationEnum::adUseServer;
};

// An open connection.
class ProviderSession {
public:
    virtual ~ProviderSession() = default;

    // The string the connection reports once open.
    virtual QString connectionString() const = 0;
    virtual std::vector<PropertyValue> properties() const = 0;
    // A caller set a connection property; throw to refuse it.
    virtual void setProperty(const PropertyValue& value) = 0;

    virtual CommandResult execute(const CommandRequest& request) = 0;
    virtual std::unique_ptr<ProviderRowset> openSchema(SchemaEnum schema,
                                                       const std::vector<vb::Variant>& restrictions) = 0;

    // Returns the new nesting level (1 for the outermost).
    virtual long beginTransaction() = 0;
    virtual void commitTransaction() = 0;
    virtual void rollbackTransaction() = 0;

    virtual ProviderCatalog& catalog() = 0;
    // Ends the session; must not throw.
    virtual void close() noexcept = 0;
};

class Provider {
public:
    virtual ~Provider() = default;

    // The name a connection reports in Connection::Provider once open.
    virtual QString name() const = 0;
    virtual std::unique_ptr<ProviderSession> open(const OpenRequest& request) = 0;
    // ADOX Catalog::Create: makes a new database as the connection string says.
    virtual void createDatabase(const ConnectionString& connectionString) = 0;
};

} // namespace ado
