#include "platform/ado/recording/Script.h"

namespace ado::recording {

ScriptedRows rows(std::initializer_list<std::pair<QString, DataTypeEnum>> columns,
                  std::vector<Row> values) {
    ScriptedRows result;
    for (const auto& [name, type] : columns) {
        ColumnInfo info;
        info.name = name;
        info.type = type;
        info.attributes = adFldIsNullable | adFldMayBeNull;
        result.columns.push_back(std::move(info));
    }
    result.rows = std::move(values);
    return result;
}

Script& Script::on(const QString& statement, Answer answer, int times) {
    m_rules.push_back({statement, false, std::move(answer), times});
    return *this;
}

Script& Script::onPrefix(const QString& prefix, Answer answer, int times) {
    m_rules.push_back({prefix, true, std::move(answer), times});
    return *this;
}

Script& Script::schema(SchemaEnum schema, std::vector<Row> rows) {
    m_schemas.emplace_back(schema, std::move(rows));
    return *this;
}

Script& Script::openFails(Error e, int times) {
    m_openFailures.emplace_back(std::move(e), times);
    return *this;
}

Script& Script::property(const QString& name, const vb::Variant& value) {
    for (auto& p : m_properties) {
        if (p.name.compare(name, Qt::CaseInsensitive) == 0) {
            p.value = value;
            return *this;
        }
    }
    m_properties.push_back({name, value, true});
    return *this;
}

Script& Script::catalogTable(CatalogTable table, std::vector<CatalogColumn> columns,
                             std::vector<CatalogIndex> indexes, std::vector<CatalogKey> keys) {
    m_catalog.push_back({std::move(table), std::move(columns), std::move(indexes), std::move(keys)});
    return *this;
}

std::optional<Answer> Script::answer(const QString& statement) {
    for (auto& rule : m_rules) {
        const bool hit = rule.prefix ? statement.startsWith(rule.text) : statement == rule.text;
        if (!hit || rule.times == 0) {
            continue;
        }
        if (rule.times > 0) {
            --rule.times;
        }
        return rule.answer;
    }
    return std::nullopt;
}

std::optional<Error> Script::takeOpenFailure() {
    for (auto& [error, times] : m_openFailures) {
        if (times != 0) {
            if (times > 0) {
                --times;
            }
            return error;
        }
    }
    return std::nullopt;
}

std::vector<Row> Script::schemaRows(SchemaEnum schema) const {
    std::vector<Row> result;
    for (const auto& [s, rows] : m_schemas) {
        if (s == schema) {
            result.insert(result.end(), rows.begin(), rows.end());
        }
    }
    return result;
}

} // namespace ado::recording
