#include "platform/ado/adox/Objects.h"

#include "platform/ado/adox/Catalog.h"

using namespace Qt::StringLiterals;

namespace ado::adox {
namespace {

std::vector<CatalogColumn> describeAll(const Columns& columns) {
    std::vector<CatalogColumn> result;
    for (const auto& c : columns) {
        result.push_back(c->describe());
    }
    return result;
}

} // namespace

Column::Column(const QString& name, DataTypeEnum type, long definedSize) {
    m_desc.name = name;
    m_desc.type = type;
    m_desc.definedSize = definedSize;
}

Column::Column(const CatalogColumn& description) : m_desc(description) {
    m_properties.reset(description.properties);
}

void Column::setParentCatalog(const CatalogPtr& catalog) {
    m_catalog = catalog;
    if (catalog && m_properties.Count() == 0) {
        m_properties.reset(catalog->call([](ProviderCatalog& c) { return c.newColumnProperties(); }));
    }
}

CatalogColumn Column::describe() const {
    CatalogColumn result = m_desc;
    result.properties = m_properties.values();
    return result;
}

void Column::bind(std::function<void(const PropertyValue&)> onPropertyChange) {
    m_properties.setOnChange([change = std::move(onPropertyChange)](const Property& p) {
        change({p.Name(), p.Value(), true});
    });
}

Index::Index(const QString& name) { m_desc.name = name; }

Index::Index(const CatalogIndex& description) : m_desc(description) {
    for (const auto& c : description.columns) {
        m_columns.Append(std::make_shared<Column>(c));
    }
    m_properties.reset(description.properties);
}

CatalogIndex Index::describe() const {
    CatalogIndex result = m_desc;
    result.columns = describeAll(m_columns);
    result.properties = m_properties.values();
    return result;
}

Key::Key(const QString& name) { m_desc.name = name; }

Key::Key(const CatalogKey& description) : m_desc(description) {
    for (const auto& c : description.columns) {
        m_columns.Append(std::make_shared<Column>(c));
    }
}

CatalogKey Key::describe() const {
    CatalogKey result = m_desc;
    result.columns = describeAll(m_columns);
    return result;
}

Table::Table(const QString& name) { m_desc.name = name; }

Table::Table(const CatalogTable& description) : m_desc(description) {
    m_properties.reset(description.properties);
}

void Table::setName(const QString& name) {
    if (m_exists) {
        raise(HResult::adErrFeatureNotAvailable, u"ADOX.Table"_s);
    }
    m_desc.name = name;
}

CatalogTable Table::describe() const {
    CatalogTable result = m_desc;
    result.properties = m_properties.values();
    return result;
}

void Table::bind(const CatalogPtr& catalog) {
    m_catalog = catalog;
    m_exists = true;
    const std::weak_ptr<Catalog> weak = catalog;
    const QString name = m_desc.name;
    auto provider = [weak]() -> CatalogPtr {
        auto c = weak.lock();
        if (!c) {
            raise(HResult::adErrInvalidConnection, u"ADOX.Catalog"_s);
        }
        return c;
    };
    auto bindColumn = [provider, name](Column& column) {
        column.bind([provider, name, columnName = column.Name()](const PropertyValue& value) {
            provider()->call([&](ProviderCatalog& c) { c.setColumnProperty(name, columnName, value); });
        });
    };
    m_columns.setLoader([provider, name, bindColumn] {
        std::vector<ColumnPtr> result;
        for (const auto& c : provider()->call([&](ProviderCatalog& p) { return p.columns(name); })) {
            auto column = std::make_shared<Column>(c);
            bindColumn(*column);
            result.push_back(std::move(column));
        }
        return result;
    });
    m_columns.setHooks(
        [provider, name, bindColumn](Column& column) {
            provider()->call([&](ProviderCatalog& p) { p.appendColumn(name, column.describe()); });
            bindColumn(column);
        },
        nullptr);
    m_indexes.setLoader([provider, name] {
        std::vector<IndexPtr> result;
        for (const auto& i : provider()->call([&](ProviderCatalog& p) { return p.indexes(name); })) {
            result.push_back(std::make_shared<Index>(i));
        }
        return result;
    });
    m_indexes.setHooks(
        [provider, name](Index& index) {
            provider()->call([&](ProviderCatalog& p) { p.appendIndex(name, index.describe()); });
        },
        [provider, name](Index& index) {
            provider()->call([&](ProviderCatalog& p) { p.deleteIndex(name, index.Name()); });
        });
    m_keys.setLoader([provider, name] {
        std::vector<KeyPtr> result;
        for (const auto& k : provider()->call([&](ProviderCatalog& p) { return p.keys(name); })) {
            result.push_back(std::make_shared<Key>(k));
        }
        return result;
    });
    m_keys.setHooks(
        [provider, name](Key& key) {
            provider()->call([&](ProviderCatalog& p) { p.appendKey(name, key.describe()); });
        },
        [provider, name](Key& key) {
            provider()->call([&](ProviderCatalog& p) { p.deleteKey(name, key.Name()); });
        });
}

} // namespace ado::adox
