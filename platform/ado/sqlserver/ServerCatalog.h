#pragma once

#include "platform/ado/Provider.h"

#include <QString>

namespace ado::sqlserver {

class Session;

// ADOX on the server: tables, columns, indexes and keys read from the catalog views of the
// connection's database; appends and deletes issued as T-SQL DDL on the same connection.
class ServerCatalog final : public ProviderCatalog {
public:
    explicit ServerCatalog(Session& session) : m_session(session) {}

    std::vector<CatalogTable> tables() override;
    std::vector<CatalogColumn> columns(const QString& table) override;
    std::vector<CatalogIndex> indexes(const QString& table) override;
    std::vector<CatalogKey> keys(const QString& table) override;
    std::vector<PropertyValue> newColumnProperties() override;

    void appendTable(const CatalogTable& table, const std::vector<CatalogColumn>& columns,
                     const std::vector<CatalogIndex>& indexes,
                     const std::vector<CatalogKey>& keys) override;
    void deleteTable(const QString& table) override;
    void appendColumn(const QString& table, const CatalogColumn& column) override;
    void appendIndex(const QString& table, const CatalogIndex& index) override;
    void deleteIndex(const QString& table, const QString& index) override;
    void appendKey(const QString& table, const CatalogKey& key) override;
    void deleteKey(const QString& table, const QString& key) override;
    void setColumnProperty(const QString& table, const QString& column,
                           const PropertyValue& value) override;

private:
    Session& m_session;
};

// The T-SQL of each ADOX change, and the catalog questions, as text.
namespace ddl {
QString quoted(const QString& name);
// The column's declaration in create table / alter table add.
QString columnDefinition(const CatalogColumn& column);
QString createTable(const QString& table, const std::vector<CatalogColumn>& columns);
QString addColumn(const QString& table, const CatalogColumn& column);
QString createIndex(const QString& table, const CatalogIndex& index);
QString dropIndex(const QString& table, const QString& index);
QString addKey(const QString& table, const CatalogKey& key);
QString dropConstraint(const QString& table, const QString& name);
QString dropTable(const QString& table);

QString tablesQuery();
QString columnsQuery();
QString indexesQuery();
QString keysQuery();
QString foreignKeysQuery();
} // namespace ddl

} // namespace ado::sqlserver
