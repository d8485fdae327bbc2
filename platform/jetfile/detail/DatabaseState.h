#pragma once

#include "platform/jetfile/Schema.h"
#include "platform/jetfile/detail/PageSource.h"
#include "platform/jetfile/detail/TableDefParser.h"

#include <QByteArray>

#include <map>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace jetfile::detail {

// The page of MSysObjects' definition, fixed in every Jet 4 file.
inline constexpr std::uint32_t kCatalogPage = 2;

struct DatabaseState {
    std::shared_ptr<const PageSource> source;
    std::vector<CatalogEntry> catalog;
    // Where each entry's catalog row is (data page, slot), to read its LvProp when asked: the
    // property blobs are not kept, so opening a file costs memory for the names only.
    std::vector<std::pair<std::uint32_t, int>> catalogRows;
    std::shared_ptr<const ParsedTable> catalogTable;
    int catalogPropertiesColumn = -1;

    // The stored property blocks of catalog entry `at`.
    std::vector<PropertyMap> entryProperties(std::size_t at) const;

    // A table definition, read once and kept.
    std::shared_ptr<const ParsedTable> parsedTable(const CatalogEntry& entry) const;
    const CatalogEntry& localTable(QStringView name) const;
    std::size_t entryIndex(const CatalogEntry& entry) const {
        return static_cast<std::size_t>(&entry - catalog.data());
    }

private:
    mutable std::mutex m_lock;
    mutable std::map<std::uint32_t, std::shared_ptr<const ParsedTable>> m_tables;
};

// Reads MSysObjects into `state`.
void readCatalog(DatabaseState& state);
// Reads MSysRelationships, if there is one.
std::vector<Relation> readRelations(const DatabaseState& state);

} // namespace jetfile::detail
