#include "platform/jetfile/Database.h"

#include "platform/jetfile/detail/CursorState.h"
#include "platform/jetfile/detail/DatabaseState.h"

using namespace Qt::Literals::StringLiterals;

namespace jetfile {

Database::Database(std::shared_ptr<const detail::DatabaseState> state)
    : m_state(std::move(state)) {}

Database Database::open(const QString& path) {
    auto state = std::make_shared<detail::DatabaseState>();
    state->source = detail::PageSource::open(path);
    detail::readCatalog(*state);
    return Database(std::move(state));
}

const QString& Database::path() const noexcept {
    return m_state->source->path();
}

const HeaderInfo& Database::header() const noexcept {
    return m_state->source->header();
}

const std::vector<CatalogEntry>& Database::catalog() const noexcept {
    return m_state->catalog;
}

const CatalogEntry* Database::findObject(QStringView name) const {
    for (const auto& entry : m_state->catalog) {
        if (entry.name.compare(name, Qt::CaseInsensitive) == 0) {
            return &entry;
        }
    }
    return nullptr;
}

std::vector<QString> Database::tableNames(bool includeSystem) const {
    std::vector<QString> names;
    for (const auto& entry : m_state->catalog) {
        if (entry.isTable() && (includeSystem || !entry.isSystem())) {
            names.push_back(entry.name);
        }
    }
    return names;
}

std::shared_ptr<const TableDefinition> Database::table(QStringView name) const {
    auto parsed = m_state->parsedTable(m_state->localTable(name));
    return {parsed, &parsed->definition};
}

RowCursor Database::scan(QStringView tableName) const {
    auto parsed = m_state->parsedTable(m_state->localTable(tableName));
    return RowCursor(std::make_unique<detail::CursorState>(m_state->source, std::move(parsed)));
}

std::uint64_t Database::countRows(QStringView tableName) const {
    RowCursor cursor = scan(tableName);
    std::uint64_t count = 0;
    while (cursor.next()) {
        ++count;
    }
    return count;
}

std::vector<PropertyMap> Database::properties(QStringView objectName) const {
    const CatalogEntry* entry = findObject(objectName);
    if (entry == nullptr) {
        throw Error(Error::Kind::NotFound, path(),
                    u"there is no object '%1'"_s.arg(objectName.toString()));
    }
    return m_state->entryProperties(m_state->entryIndex(*entry));
}

std::vector<Relation> Database::relations() const {
    return detail::readRelations(*m_state);
}

} // namespace jetfile
