#include "platform/jetfile/Schema.h"

namespace jetfile {

const Property* PropertyMap::find(QStringView propertyName) const {
    for (const auto& item : items) {
        if (item.name.compare(propertyName, Qt::CaseInsensitive) == 0) {
            return &item;
        }
    }
    return nullptr;
}

vb::Variant PropertyMap::value(QStringView propertyName) const {
    const Property* p = find(propertyName);
    return p != nullptr ? p->value : vb::Variant();
}

int TableDefinition::columnIndex(QStringView columnName) const {
    for (const auto& c : columns) {
        if (c.name.compare(columnName, Qt::CaseInsensitive) == 0) {
            return c.index;
        }
    }
    return -1;
}

const Column* TableDefinition::column(QStringView columnName) const {
    const int i = columnIndex(columnName);
    return i < 0 ? nullptr : &columns[static_cast<std::size_t>(i)];
}

const Index* TableDefinition::primaryKey() const {
    for (const auto& index : indexes) {
        if (index.isPrimaryKey()) {
            return &index;
        }
    }
    return nullptr;
}

} // namespace jetfile
