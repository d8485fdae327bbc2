#pragma once

#include "platform/vb/Variant.h"

#include <QDateTime>
#include <QString>
#include <QStringView>

#include <cstdint>
#include <optional>
#include <vector>

namespace jetfile {

// Column types with Jet's own codes, as stored in a table definition.
enum class ColumnType : std::uint8_t {
    Boolean = 0x01,
    Byte = 0x02,
    Integer = 0x03, // 16-bit
    Long = 0x04,
    Currency = 0x05,
    Single = 0x06,
    Double = 0x07,
    DateTime = 0x08,
    Binary = 0x09,
    Text = 0x0A,
    Ole = 0x0B,
    Memo = 0x0C,
    Guid = 0x0F,
    Numeric = 0x10, // Decimal
};

// Bits of the column flag byte.
inline constexpr std::uint8_t kColumnFixedLength = 0x01;
inline constexpr std::uint8_t kColumnUpdatable = 0x02;
inline constexpr std::uint8_t kColumnAutoNumber = 0x04;
inline constexpr std::uint8_t kColumnReplication = 0x10;
inline constexpr std::uint8_t kColumnGuidAutoNumber = 0x40;
inline constexpr std::uint8_t kColumnHyperlink = 0x80;
// Bit of the extra flag byte.
inline constexpr std::uint8_t kColumnCompressedUnicode = 0x01;

// One stored property (from an object's LvProp blob): name, Jet type code and value. Text and
// memo properties are QString, booleans bool, GUIDs "{8-4-4-4-12}" text, binary QByteArray.
struct Property {
    QString name;
    std::uint8_t type = 0;
    vb::Variant value;
    bool ddl = false; // set through DDL rather than the designer
};

// The properties of one object or one of its columns, in stored order.
struct PropertyMap {
    QString name; // empty for the object itself, else the column name
    std::vector<Property> items;

    // Case-insensitive, as Jet matches property names.
    const Property* find(QStringView propertyName) const;
    // The value, or Empty when the property is absent.
    vb::Variant value(QStringView propertyName) const;
};

struct Column {
    QString name;
    std::uint8_t typeCode = 0;  // see ColumnType; other codes are read as raw bytes
    int number = 0;             // stored column number; has gaps after deletions
    int index = 0;              // dense 0-based position in TableDefinition::columns
    int displayIndex = 0;       // position in the stored definition
    int varIndex = 0;           // slot in the row's variable-length offset table
    int fixedOffset = 0;        // offset in the row's fixed-length area
    int length = 0;             // bytes: 2n for Text(n), 0 for Memo and OLE
    std::uint8_t precision = 0; // Decimal only
    std::uint8_t scale = 0;     // Decimal only
    std::uint8_t flags = 0;     // kColumn... bits
    std::uint8_t extFlags = 0;
    PropertyMap properties;

    ColumnType type() const noexcept { return static_cast<ColumnType>(typeCode); }
    bool isFixedLength() const noexcept { return (flags & kColumnFixedLength) != 0; }
    bool isAutoNumber() const noexcept { return (flags & kColumnAutoNumber) != 0; }
    bool isGuidAutoNumber() const noexcept { return (flags & kColumnGuidAutoNumber) != 0; }
    bool isHyperlink() const noexcept {
        return typeCode == static_cast<std::uint8_t>(ColumnType::Memo) &&
               (flags & kColumnHyperlink) != 0;
    }
    bool isCompressedUnicode() const noexcept { return (extFlags & kColumnCompressedUnicode) != 0; }
    bool isLongValue() const noexcept {
        return typeCode == static_cast<std::uint8_t>(ColumnType::Memo) ||
               typeCode == static_cast<std::uint8_t>(ColumnType::Ole);
    }
};

enum class IndexKind : std::uint8_t { Normal = 0, PrimaryKey = 1, ForeignKey = 2 };

// Bits of an index's flag byte.
inline constexpr std::uint8_t kIndexUnique = 0x01;
inline constexpr std::uint8_t kIndexIgnoreNulls = 0x02;
inline constexpr std::uint8_t kIndexRequired = 0x08;

struct IndexColumn {
    int column = 0; // position in TableDefinition::columns
    QString name;
    bool ascending = true;
};

// The relationship data a foreign-key index carries.
struct IndexReference {
    bool onPrimaryTable = false; // this index is the referenced ("one") side
    int otherIndexNumber = 0;
    std::uint32_t otherTablePage = 0;
    bool cascadeUpdates = false;
    bool cascadeDeletes = false;
    bool cascadeNull = false;
};

// A logical index, paired with the physical index that holds its keys.
struct Index {
    QString name;
    int number = 0;     // logical number
    int dataNumber = 0; // physical index it shares
    IndexKind kind = IndexKind::Normal;
    std::uint8_t flags = 0; // kIndex... bits of the physical index
    std::vector<IndexColumn> columns;
    std::uint32_t entryCount = 0; // unique entries, as stored
    std::optional<IndexReference> reference;

    bool isPrimaryKey() const noexcept { return kind == IndexKind::PrimaryKey; }
    bool isForeignKey() const noexcept { return kind == IndexKind::ForeignKey; }
    // The primary key is unique even when its physical flag says otherwise.
    bool isUnique() const noexcept { return isPrimaryKey() || (flags & kIndexUnique) != 0; }
    bool ignoresNulls() const noexcept { return (flags & kIndexIgnoreNulls) != 0; }
    bool isRequired() const noexcept { return (flags & kIndexRequired) != 0; }
};

struct TableDefinition {
    QString name;
    std::uint32_t page = 0; // first page of the definition
    std::uint32_t rowCount = 0;
    std::int32_t lastAutoNumber = 0; // the last Long AutoNumber handed out
    std::uint8_t tableType = 0;      // 0x4E user, 0x53 system
    std::vector<Column> columns;     // by stored column number
    std::vector<Index> indexes;      // by logical number
    PropertyMap properties;          // the table's own properties

    // Case-insensitive, as Jet looks names up; -1 when absent.
    int columnIndex(QStringView columnName) const;
    const Column* column(QStringView columnName) const;
    const Index* primaryKey() const;
};

// A row of MSysObjects.
struct CatalogEntry {
    std::int32_t id = 0;
    std::int32_t parentId = 0;
    QString name;
    std::int16_t type = 0; // 1 table, 4 ODBC link, 5 query, 6 Jet link, 8 relationship...
    std::int32_t flags = 0;
    QDateTime created; // invalid when not stored
    QDateTime updated;
    QString database;    // linked tables: the source
    QString connect;     // linked tables: the connect string
    QString foreignName; // linked tables: the name in the source

    static constexpr std::int16_t kTable = 1;
    static constexpr std::int16_t kOdbcLink = 4;
    static constexpr std::int16_t kQuery = 5;
    static constexpr std::int16_t kLink = 6;
    static constexpr std::int16_t kRelationship = 8;
    static constexpr std::int32_t kSystemFlag = static_cast<std::int32_t>(0x80000000u);
    static constexpr std::int32_t kAccessSystemFlag = 0x2;
    static constexpr std::int32_t kHiddenFlag = 0x8;

    // The page of a table's definition: the low 24 bits of its id.
    std::uint32_t tablePage() const noexcept { return static_cast<std::uint32_t>(id) & 0xFFFFFFu; }
    bool isTable() const noexcept { return type == kTable; }
    bool isSystem() const noexcept { return (flags & (kSystemFlag | kAccessSystemFlag)) != 0; }
};

// A relationship from MSysRelationships: its column pairs in order and its rules.
struct Relation {
    QString name;
    QString table;           // the referencing (foreign-key, "many") side
    QString referencedTable; // the referenced (primary-key, "one") side
    std::vector<QString> columns;
    std::vector<QString> referencedColumns;
    std::int32_t grbit = 0;

    bool isOneToOne() const noexcept { return (grbit & 0x1) != 0; }
    bool isEnforced() const noexcept { return (grbit & 0x2) == 0; }
    bool cascadesUpdates() const noexcept { return (grbit & 0x100) != 0; }
    bool cascadesDeletes() const noexcept { return (grbit & 0x1000) != 0; }
    bool cascadesNull() const noexcept { return (grbit & 0x2000) != 0; }
};

enum class JetVersion : std::uint8_t { Jet3 = 0, Jet4 = 1 };

struct HeaderInfo {
    JetVersion version = JetVersion::Jet4;
    int codePage = 0;
    int sortOrder = 0; // locale id of the text sort order (1033 = General)
    int sortOrderVersion = 0;
    std::uint32_t databaseKey = 0; // non-zero: the pages are RC4-encoded
    QString password;              // the database password as stored; empty when none
    double creationDate = 0;       // OLE date the header masks are derived from
    std::uint32_t pageCount = 0;

    bool isEncoded() const noexcept { return databaseKey != 0; }
};

} // namespace jetfile
