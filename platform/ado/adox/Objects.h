#pragma once

#include "platform/ado/Enums.h"
#include "platform/ado/Properties.h"
#include "platform/ado/Provider.h"
#include "platform/ado/adox/Collection.h"

#include <QDateTime>
#include <QString>

#include <functional>
#include <memory>

namespace ado::adox {

class Catalog;
using CatalogPtr = std::shared_ptr<Catalog>;

// A column of a table, of an index (name and sort order) or of a key (name and related column).
class Column {
public:
    Column() = default;
    explicit Column(const QString& name, DataTypeEnum type = DataTypeEnum::adVarWChar,
                    long definedSize = 0);
    explicit Column(const CatalogColumn& description);

    const QString& Name() const noexcept { return m_desc.name; }
    void setName(const QString& name) { m_desc.name = name; }
    DataTypeEnum Type() const noexcept { return m_desc.type; }
    void setType(DataTypeEnum type) { m_desc.type = type; }
    long DefinedSize() const noexcept { return m_desc.definedSize; }
    void setDefinedSize(long size) { m_desc.definedSize = size; }
    long Attributes() const noexcept { return m_desc.attributes; }
    void setAttributes(long attributes) { m_desc.attributes = attributes; }
    std::uint8_t Precision() const noexcept { return m_desc.precision; }
    void setPrecision(std::uint8_t precision) { m_desc.precision = precision; }
    std::uint8_t NumericScale() const noexcept { return m_desc.numericScale; }
    void setNumericScale(std::uint8_t scale) { m_desc.numericScale = scale; }
    SortOrderEnum SortOrder() const noexcept { return m_desc.sortOrder; }
    void setSortOrder(SortOrderEnum order) { m_desc.sortOrder = order; }
    const QString& RelatedColumn() const noexcept { return m_desc.relatedColumn; }
    void setRelatedColumn(const QString& name) { m_desc.relatedColumn = name; }

    // The provider's column properties: those of the database for a column of an existing
    // table, the provider's defaults for a new column once ParentCatalog is set.
    ado::Properties& Properties() noexcept { return m_properties; }
    CatalogPtr ParentCatalog() const { return m_catalog.lock(); }
    void setParentCatalog(const CatalogPtr& catalog);

    CatalogColumn describe() const;
    // Property changes of a column of an existing table go to the provider.
    void bind(std::function<void(const PropertyValue&)> onPropertyChange);

private:
    CatalogColumn m_desc;
    ado::Properties m_properties{QStringLiteral("ADOX.Properties")};
    std::weak_ptr<Catalog> m_catalog;
};
using ColumnPtr = std::shared_ptr<Column>;
using Columns = Collection<Column>;

class Index {
public:
    Index() = default;
    explicit Index(const QString& name);
    explicit Index(const CatalogIndex& description);

    const QString& Name() const noexcept { return m_desc.name; }
    void setName(const QString& name) { m_desc.name = name; }
    bool PrimaryKey() const noexcept { return m_desc.primaryKey; }
    void setPrimaryKey(bool value) { m_desc.primaryKey = value; }
    bool Unique() const noexcept { return m_desc.unique; }
    void setUnique(bool value) { m_desc.unique = value; }
    bool Clustered() const noexcept { return m_desc.clustered; }
    void setClustered(bool value) { m_desc.clustered = value; }
    AllowNullsEnum IndexNulls() const noexcept { return m_desc.indexNulls; }
    void setIndexNulls(AllowNullsEnum value) { m_desc.indexNulls = value; }
    adox::Columns& Columns() noexcept { return m_columns; }
    ado::Properties& Properties() noexcept { return m_properties; }

    CatalogIndex describe() const;

private:
    CatalogIndex m_desc;
    adox::Columns m_columns{QStringLiteral("ADOX.Columns")};
    ado::Properties m_properties{QStringLiteral("ADOX.Properties")};
};
using IndexPtr = std::shared_ptr<Index>;
using Indexes = Collection<Index>;

class Key {
public:
    Key() = default;
    explicit Key(const QString& name);
    explicit Key(const CatalogKey& description);

    const QString& Name() const noexcept { return m_desc.name; }
    void setName(const QString& name) { m_desc.name = name; }
    KeyTypeEnum Type() const noexcept { return m_desc.type; }
    void setType(KeyTypeEnum type) { m_desc.type = type; }
    const QString& RelatedTable() const noexcept { return m_desc.relatedTable; }
    void setRelatedTable(const QString& table) { m_desc.relatedTable = table; }
    RuleEnum DeleteRule() const noexcept { return m_desc.deleteRule; }
    void setDeleteRule(RuleEnum rule) { m_desc.deleteRule = rule; }
    RuleEnum UpdateRule() const noexcept { return m_desc.updateRule; }
    void setUpdateRule(RuleEnum rule) { m_desc.updateRule = rule; }
    adox::Columns& Columns() noexcept { return m_columns; }

    CatalogKey describe() const;

private:
    CatalogKey m_desc;
    adox::Columns m_columns{QStringLiteral("ADOX.Columns")};
};
using KeyPtr = std::shared_ptr<Key>;
using Keys = Collection<Key>;

class Table : public std::enable_shared_from_this<Table> {
public:
    Table() = default;
    explicit Table(const QString& name);
    explicit Table(const CatalogTable& description);

    const QString& Name() const noexcept { return m_desc.name; }
    // Renaming a table that exists in the database is not offered.
    void setName(const QString& name);
    // "TABLE", "SYSTEM TABLE", "ACCESS TABLE", "VIEW"...; empty for a new table.
    const QString& Type() const noexcept { return m_desc.type; }
    QDateTime DateCreated() const { return m_desc.dateCreated; }
    QDateTime DateModified() const { return m_desc.dateModified; }
    adox::Columns& Columns() noexcept { return m_columns; }
    adox::Indexes& Indexes() noexcept { return m_indexes; }
    adox::Keys& Keys() noexcept { return m_keys; }
    ado::Properties& Properties() noexcept { return m_properties; }
    CatalogPtr ParentCatalog() const { return m_catalog.lock(); }
    void setParentCatalog(const CatalogPtr& catalog) { m_catalog = catalog; }

    CatalogTable describe() const;
    // From now on the table is the database's: its collections load from the provider and
    // their changes go to it.
    void bind(const CatalogPtr& catalog);
    bool exists() const noexcept { return m_exists; }

private:
    CatalogTable m_desc;
    adox::Columns m_columns{QStringLiteral("ADOX.Columns")};
    adox::Indexes m_indexes{QStringLiteral("ADOX.Indexes")};
    adox::Keys m_keys{QStringLiteral("ADOX.Keys")};
    ado::Properties m_properties{QStringLiteral("ADOX.Properties")};
    std::weak_ptr<Catalog> m_catalog;
    bool m_exists = false;
};
using TablePtr = std::shared_ptr<Table>;
using Tables = Collection<Table>;

} // namespace ado::adox
