#pragma once

#include "platform/jetfile/Error.h"
#include "platform/jetfile/RowCursor.h"
#include "platform/jetfile/Schema.h"

#include <QString>
#include <QStringView>

#include <cstdint>
#include <memory>
#include <vector>

namespace jetfile {

namespace detail {
struct DatabaseState;
}

// A Jet 4 .mdb file opened for reading only: the file is never opened for writing, no lock file
// is made, and nothing on disk changes. Opening reads the header and the catalog (MSysObjects);
// table definitions are read when first asked for and kept. Every length, offset and page
// number taken from the file is checked before use, so a damaged file ends in a jetfile::Error
// that says what is wrong and where, never in a crash, a hang or an unbounded allocation.
//
// Copies share one open file. Const members may be called from several threads at once.
class Database {
public:
    // Throws Error: Io (missing, unreadable), NotJet, UnsupportedVersion (Jet 3, ACE), Damaged.
    static Database open(const QString& path);

    const QString& path() const noexcept;
    const HeaderInfo& header() const noexcept;

    // Every row of MSysObjects, in stored order.
    const std::vector<CatalogEntry>& catalog() const noexcept;
    // The first catalog entry of that name (case-insensitive, as Jet compares names), or null.
    const CatalogEntry* findObject(QStringView name) const;
    // Names of the local tables, in catalog order, with or without the system ones.
    std::vector<QString> tableNames(bool includeSystem) const;

    // The definition of a local table, with its column and table properties attached. Throws
    // Error NotFound when no local table has that name.
    std::shared_ptr<const TableDefinition> table(QStringView name) const;
    // A new scan over a local table, before its first row.
    RowCursor scan(QStringView tableName) const;
    // Counts the live rows by scanning (the stored count can be stale after a crash).
    std::uint64_t countRows(QStringView tableName) const;

    // The stored property blocks of any object (the object's own block has an empty name).
    std::vector<PropertyMap> properties(QStringView objectName) const;
    // The relationships in MSysRelationships, each with its columns in order, in the order of
    // their first row; those between system tables included.
    std::vector<Relation> relations() const;

private:
    explicit Database(std::shared_ptr<const detail::DatabaseState> state);
    std::shared_ptr<const detail::DatabaseState> m_state;
};

} // namespace jetfile
