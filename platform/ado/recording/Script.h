#pragma once

#include "platform/ado/Error.h"
#include "platform/ado/MemoryRowset.h"
#include "platform/ado/Provider.h"

#include <QString>

#include <initializer_list>
#include <optional>
#include <utility>
#include <vector>

namespace ado::recording {

// Rows a test scripts as an answer: column names and ADO types, then values.
struct ScriptedRows {
    std::vector<ColumnInfo> columns;
    std::vector<Row> rows;
};
ScriptedRows rows(std::initializer_list<std::pair<QString, DataTypeEnum>> columns,
                  std::vector<Row> values = {});

// What a statement answers: rows, a failure, or a count of records affected.
struct Answer {
    std::optional<ScriptedRows> rowset;
    std::optional<Error> error;
    long recordsAffected = -1;

    static Answer withRows(ScriptedRows r) { return {std::move(r), std::nullopt, -1}; }
    static Answer failing(Error e) { return {std::nullopt, std::move(e), -1}; }
    static Answer affecting(long n) { return {std::nullopt, std::nullopt, n}; }
};

// The answers of a recording provider. It models no SQL: a statement is answered only by what
// the test wrote for exactly that text (or for a prefix of it), in the order written; an answer
// given `times` times is used up after that.
class Script {
public:
    Script& on(const QString& statement, Answer answer, int times = -1);
    Script& onPrefix(const QString& prefix, Answer answer, int times = -1);
    Script& returns(const QString& statement, ScriptedRows r) {
        return on(statement, Answer::withRows(std::move(r)));
    }
    Script& fails(const QString& statement, Error e, int times = -1) {
        return on(statement, Answer::failing(std::move(e)), times);
    }
    // The rows of a schema rowset, laid out as ado::schemaColumns(schema); OpenSchema applies its
    // restrictions to them.
    Script& schema(SchemaEnum schema, std::vector<Row> rows);
    // The next `times` opens fail with `e` (a refused login, an unknown server).
    Script& openFails(Error e, int times = 1);
    // A connection property the sessions report ("DBMS Version", ...).
    Script& property(const QString& name, const vb::Variant& value);
    // A table of the catalog that ADOX reads.
    Script& catalogTable(CatalogTable table, std::vector<CatalogColumn> columns,
                         std::vector<CatalogIndex> indexes = {}, std::vector<CatalogKey> keys = {});
    // With strict on, an unscripted statement fails instead of returning no rows.
    Script& strict(bool on = true) {
        m_strict = on;
        return *this;
    }

    // For the provider.
    std::optional<Answer> answer(const QString& statement);
    std::optional<Error> takeOpenFailure();
    std::vector<Row> schemaRows(SchemaEnum schema) const;
    bool isStrict() const noexcept { return m_strict; }
    const std::vector<PropertyValue>& properties() const noexcept { return m_properties; }

    struct Table {
        CatalogTable table;
        std::vector<CatalogColumn> columns;
        std::vector<CatalogIndex> indexes;
        std::vector<CatalogKey> keys;
    };
    std::vector<Table>& catalog() noexcept { return m_catalog; }

private:
    struct Rule {
        QString text;
        bool prefix = false;
        Answer answer;
        int times = -1;
    };
    std::vector<Rule> m_rules;
    std::vector<std::pair<SchemaEnum, std::vector<Row>>> m_schemas;
    std::vector<std::pair<Error, int>> m_openFailures;
    std::vector<PropertyValue> m_properties;
    std::vector<Table> m_catalog;
    bool m_strict = false;
};

} // namespace ado::recording
