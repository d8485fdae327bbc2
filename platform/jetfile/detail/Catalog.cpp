#include "platform/jetfile/Error.h"
#include "platform/jetfile/detail/CursorState.h"
#include "platform/jetfile/detail/DatabaseState.h"
#include "platform/jetfile/detail/PropertyParser.h"
#include "platform/jetfile/detail/Values.h"

#include <QHash>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace jetfile::detail {

namespace {

// Reads the named columns of the current row of a system table.
class SystemRow {
public:
    SystemRow(const DatabaseState& state, CursorState& cursor)
        : m_state(state), m_cursor(cursor), m_def(cursor.table->definition) {}

    int column(QStringView name, bool required) const {
        const int index = m_def.columnIndex(name);
        if (index < 0 && required) {
            m_state.source->damaged(
                u"the system table %1 has no column %2"_s.arg(m_def.name, name.toString()),
                m_def.page);
        }
        return index;
    }
    vb::Variant value(int column) const {
        if (column < 0) {
            return vb::Variant(vb::Null{});
        }
        return decodeValue(*m_state.source, m_def.columns[static_cast<std::size_t>(column)],
                           m_cursor.row, m_cursor.longValues);
    }
    std::int32_t number(int column) const { return value(column).toLong().value_or(0); }
    QString text(int column) const {
        const vb::Variant v = value(column);
        const QString* s = v.get<QString>();
        return s != nullptr ? *s : QString();
    }

private:
    const DatabaseState& m_state;
    CursorState& m_cursor;
    const TableDefinition& m_def;
};

} // namespace

void readCatalog(DatabaseState& state) {
    auto parsed = std::make_shared<const ParsedTable>(
        parseTableDefinition(*state.source, kCatalogPage, u"MSysObjects"_s));
    state.catalogTable = parsed;
    CursorState cursor(state.source, parsed);
    const SystemRow row(state, cursor);
    const int id = row.column(u"Id", true);
    const int parentId = row.column(u"ParentId", false);
    const int name = row.column(u"Name", true);
    const int type = row.column(u"Type", true);
    const int flags = row.column(u"Flags", false);
    const int created = row.column(u"DateCreate", false);
    const int updated = row.column(u"DateUpdate", false);
    state.catalogPropertiesColumn = row.column(u"LvProp", false);
    const int database = row.column(u"Database", false);
    const int connect = row.column(u"Connect", false);
    const int foreignName = row.column(u"ForeignName", false);
    while (cursor.next()) {
        CatalogEntry e;
        e.id = row.number(id);
        e.parentId = row.number(parentId);
        e.name = row.text(name);
        e.type = static_cast<std::int16_t>(row.number(type));
        e.flags = row.number(flags);
        e.created = row.value(created).toDate().value_or(QDateTime());
        e.updated = row.value(updated).toDate().value_or(QDateTime());
        e.database = row.text(database);
        e.connect = row.text(connect);
        e.foreignName = row.text(foreignName);
        state.catalogRows.emplace_back(cursor.dataPage->number(), cursor.slot);
        state.catalog.push_back(std::move(e));
    }
}

const CatalogEntry& DatabaseState::localTable(QStringView name) const {
    const CatalogEntry* other = nullptr;
    for (const auto& entry : catalog) {
        if (entry.name.compare(name, Qt::CaseInsensitive) != 0) {
            continue;
        }
        if (entry.isTable()) {
            return entry;
        }
        other = other != nullptr ? other : &entry;
    }
    const QString reason = other != nullptr && (other->type == CatalogEntry::kLink ||
                                                other->type == CatalogEntry::kOdbcLink)
                               ? u"'%1' is a linked table; its rows live in another database"_s
                               : u"there is no table '%1'"_s;
    throw Error(Error::Kind::NotFound, source->path(), reason.arg(name.toString()));
}

std::shared_ptr<const ParsedTable> DatabaseState::parsedTable(const CatalogEntry& entry) const {
    const std::uint32_t page = entry.tablePage();
    {
        std::lock_guard lock(m_lock);
        if (const auto found = m_tables.find(page); found != m_tables.end()) {
            return found->second;
        }
    }
    auto parsed = std::make_shared<ParsedTable>(parseTableDefinition(*source, page, entry.name));
    for (auto& map : entryProperties(entryIndex(entry))) {
        if (map.name.isEmpty()) {
            parsed->definition.properties = std::move(map);
        } else if (const int column = parsed->definition.columnIndex(map.name); column >= 0) {
            parsed->definition.columns[static_cast<std::size_t>(column)].properties =
                std::move(map);
        }
    }
    std::lock_guard lock(m_lock);
    return m_tables.emplace(page, std::move(parsed)).first->second;
}

std::vector<PropertyMap> DatabaseState::entryProperties(std::size_t at) const {
    if (catalogPropertiesColumn < 0) {
        return {};
    }
    const auto [page, slot] = catalogRows[at];
    CursorState cursor(source, catalogTable);
    if (!cursor.seek(page, slot)) {
        source->damaged(u"the catalog row of '%1' has gone"_s.arg(catalog[at].name), page);
    }
    const auto& column =
        catalogTable->definition.columns[static_cast<std::size_t>(catalogPropertiesColumn)];
    const vb::Variant blob = decodeValue(*source, column, cursor.row, cursor.longValues);
    const QByteArray* bytes = blob.get<QByteArray>();
    if (bytes == nullptr) {
        return {};
    }
    return parseProperties(*source, *bytes, u"the properties of '%1'"_s.arg(catalog[at].name),
                           cursor.row.page());
}

std::vector<Relation> readRelations(const DatabaseState& state) {
    const auto entry = std::find_if(state.catalog.begin(), state.catalog.end(), [](const auto& e) {
        return e.isTable() && e.name.compare(u"MSysRelationships", Qt::CaseInsensitive) == 0;
    });
    if (entry == state.catalog.end()) {
        return {};
    }
    CursorState cursor(state.source, state.parsedTable(*entry));
    const SystemRow row(state, cursor);
    const int name = row.column(u"szRelationship", true);
    const int table = row.column(u"szObject", true);
    const int column = row.column(u"szColumn", true);
    const int referencedTable = row.column(u"szReferencedObject", true);
    const int referencedColumn = row.column(u"szReferencedColumn", true);
    const int grbit = row.column(u"grbit", true);
    const int position = row.column(u"icolumn", false);

    struct Pair {
        std::int32_t position;
        QString column;
        QString referenced;
    };
    std::vector<Relation> relations;
    std::vector<std::vector<Pair>> pairs;
    QHash<QString, std::size_t> byName;
    while (cursor.next()) {
        const QString relationName = row.text(name);
        const QString key = relationName.toCaseFolded();
        auto found = byName.find(key);
        if (found == byName.end()) {
            Relation r;
            r.name = relationName;
            r.table = row.text(table);
            r.referencedTable = row.text(referencedTable);
            r.grbit = row.number(grbit);
            relations.push_back(std::move(r));
            pairs.emplace_back();
            found = byName.insert(key, relations.size() - 1);
        }
        pairs[*found].push_back(
            {row.number(position), row.text(column), row.text(referencedColumn)});
    }
    for (std::size_t i = 0; i < relations.size(); ++i) {
        std::stable_sort(pairs[i].begin(), pairs[i].end(),
                         [](const Pair& a, const Pair& b) { return a.position < b.position; });
        for (auto& p : pairs[i]) {
            relations[i].columns.push_back(std::move(p.column));
            relations[i].referencedColumns.push_back(std::move(p.referenced));
        }
    }
    return relations;
}

} // namespace jetfile::detail
