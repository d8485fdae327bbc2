#include "platform/ado/sqlserver/RowWrites.h"

#include "platform/ado/Error.h"
#include "platform/ado/sqlserver/AdoErrors.h"
#include "platform/ado/sqlserver/ServerCatalog.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ado::sqlserver {
namespace {

const QString kCursorEngine = u"Microsoft Cursor Engine"_s;

QString providerSource() { return QString::fromUtf16(kErrorSource); }

odbc::ParameterValue parameterFor(const ColumnInfo& field, const vb::Variant& value) {
    return odbc::ParameterValue{static_cast<int>(field.type), field.definedSize, field.precision,
                                field.numericScale, value};
}

const QString& columnOf(const WriteTarget& target, int field) {
    const QString& name = target.columns.at(static_cast<std::size_t>(field));
    if (name.isEmpty()) {
        // A computed value of the select (an expression, an alias) has no column to go to.
        throw Error(HResult::DB_E_ERRORSOCCURRED,
                    u"Multiple-step operation generated errors. Check each status value."_s,
                    providerSource());
    }
    return name;
}

bool comparable(const ColumnInfo& field) { return (field.attributes & adFldLong) == 0; }

// "where [K] = ? and [C] is null ...": the key, then the other columns the criteria name, each
// with the value read from the server.
void appendWhere(const WriteTarget& target, const std::vector<ColumnInfo>& fields,
                 const Row& before, const std::vector<int>& alsoCompared, WriteStatement* out) {
    QStringList terms;
    std::vector<int> compared = target.key;
    for (int f : alsoCompared) {
        if (std::find(compared.begin(), compared.end(), f) == compared.end() &&
            !target.columns.at(static_cast<std::size_t>(f)).isEmpty() &&
            comparable(fields.at(static_cast<std::size_t>(f)))) {
            compared.push_back(f);
        }
    }
    for (int f : compared) {
        const vb::Variant& original = before.at(static_cast<std::size_t>(f));
        const QString column = ddl::quoted(columnOf(target, f));
        if (original.isNull()) {
            terms << column + u" IS NULL"_s;
        } else {
            terms << column + u" = ?"_s;
            out->parameters.push_back(parameterFor(fields.at(static_cast<std::size_t>(f)), original));
        }
    }
    out->text += u" WHERE "_s + terms.join(u" AND "_s);
}

std::vector<int> allFields(const std::vector<ColumnInfo>& fields) {
    std::vector<int> all;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        all.push_back(static_cast<int>(i));
    }
    return all;
}

// The identity value SCOPE_IDENTITY() gives (numeric(38, 0)) as the field's own type.
vb::Variant identityAs(const ColumnInfo& field, const vb::Variant& value) {
    if (value.isNull()) {
        return value;
    }
    switch (field.type) {
    case DataTypeEnum::adInteger:
        if (auto v = value.toLong()) {
            return vb::Variant(*v);
        }
        break;
    case DataTypeEnum::adSmallInt:
        if (auto v = value.toInteger()) {
            return vb::Variant(*v);
        }
        break;
    case DataTypeEnum::adUnsignedTinyInt:
        if (auto v = value.toInteger()) {
            return vb::Variant(static_cast<std::uint8_t>(*v));
        }
        break;
    default: break;
    }
    return value;
}

SQLLEN lastCount(const odbc::BatchResult& result) {
    return result.rowCounts.empty() ? -1 : result.rowCounts.back();
}

[[noreturn]] void concurrencyViolation(const WriteTarget& target) {
    if (target.clientCursor) {
        throw Error(HResult::DB_E_CONCURRENCYVIOLATION,
                    u"Row cannot be located for updating. Some values may have been changed since it was last read."_s,
                    kCursorEngine);
    }
    throw Error(HResult::DB_E_CONCURRENCYVIOLATION,
                u"The rowset was using optimistic concurrency and the value of a column has been changed after the containing row was last fetched or resynchronized."_s,
                providerSource());
}

} // namespace

QString baseTable(const QString& statement) {
    static const QRegularExpression simpleSelect(
        uR"re(^\s*select\s+(?:distinct\s+)?(?:top\s+\d+\s+)?.+?\s+from\s+)re"
        uR"re(((?:\[[^\]]+\]|"[^"]+"|[\w#@$]+)(?:\s*\.\s*(?:\[[^\]]+\]|"[^"]+"|[\w#@$]+)){0,2}))re"
        uR"re((?:\s+(?:as\s+)?(?!where\b|order\b)[\w]+)?\s*(?:(?:where|order\s+by)\b.*)?;?\s*$)re"_s,
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch m = simpleSelect.match(statement);
    if (!m.hasMatch()) {
        return {};
    }
    // A second table, a union or a group makes the rows no table's own.
    static const QRegularExpression notOneTable(
        uR"re(\b(?:join|union|group\s+by|having|intersect|except)\b)re"_s,
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression secondTable(uR"re(^\s*(?:\w+\s*)?,)re"_s);
    if (notOneTable.match(statement).hasMatch() ||
        secondTable.match(statement.mid(m.capturedEnd(1))).hasMatch()) {
        return {};
    }
    return m.captured(1);
}

Criteria criteriaOf(const CommandRequest& request) {
    if (request.cursorLocation != CursorLocationEnum::adUseClient) {
        return Criteria::AllColumns;
    }
    for (const PropertyValue& p : request.rowsetProperties) {
        if (p.name.compare(u"Update Criteria", Qt::CaseInsensitive) == 0) {
            switch (p.value.toLong().value_or(2)) {
            case 0: return Criteria::Key;
            case 2: return Criteria::ChangedColumns;
            default: return Criteria::AllColumns;
            }
        }
    }
    return Criteria::ChangedColumns;
}

WriteStatement insertStatement(const WriteTarget& target, const std::vector<ColumnInfo>& fields,
                               const std::vector<FieldChange>& values) {
    WriteStatement out;
    QStringList names;
    QStringList marks;
    bool identityGiven = false;
    for (const FieldChange& v : values) {
        names << ddl::quoted(columnOf(target, v.column));
        marks << u"?"_s;
        out.parameters.push_back(parameterFor(fields.at(static_cast<std::size_t>(v.column)), v.value));
        identityGiven = identityGiven || v.column == target.identity;
    }
    out.text = names.isEmpty()
                   ? u"INSERT INTO %1 DEFAULT VALUES"_s.arg(target.table)
                   : u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(target.table, names.join(u", "_s),
                                                              marks.join(u", "_s));
    if (target.identity >= 0 && !identityGiven) {
        out.text += u"; SELECT SCOPE_IDENTITY()"_s;
    }
    return out;
}

WriteStatement updateStatement(const WriteTarget& target, const std::vector<ColumnInfo>& fields,
                               const Row& before, const std::vector<FieldChange>& changes) {
    WriteStatement out;
    QStringList sets;
    std::vector<int> changed;
    for (const FieldChange& c : changes) {
        sets << ddl::quoted(columnOf(target, c.column)) + u" = ?"_s;
        out.parameters.push_back(parameterFor(fields.at(static_cast<std::size_t>(c.column)), c.value));
        changed.push_back(c.column);
    }
    out.text = u"UPDATE %1 SET %2"_s.arg(target.table, sets.join(u", "_s));
    switch (target.criteria) {
    case Criteria::Key: appendWhere(target, fields, before, {}, &out); break;
    case Criteria::ChangedColumns: appendWhere(target, fields, before, changed, &out); break;
    case Criteria::AllColumns: appendWhere(target, fields, before, allFields(fields), &out); break;
    }
    return out;
}

WriteStatement deleteStatement(const WriteTarget& target, const std::vector<ColumnInfo>& fields,
                               const Row& before) {
    WriteStatement out;
    out.text = u"DELETE FROM "_s + target.table;
    appendWhere(target, fields, before,
                target.criteria == Criteria::AllColumns ? allFields(fields) : std::vector<int>{},
                &out);
    return out;
}

WriteTarget describeTarget(const QString& table, const std::vector<CatalogColumn>& tableColumns,
                           const std::vector<CatalogIndex>& indexes, std::vector<ColumnInfo>& fields) {
    WriteTarget target;
    target.table = table;
    target.columns.assign(fields.size(), QString());
    const auto fieldOf = [&](const QString& column) -> int {
        for (std::size_t i = 0; i < fields.size(); ++i) {
            if (fields[i].name.compare(column, Qt::CaseInsensitive) == 0) {
                return static_cast<int>(i);
            }
        }
        return -1;
    };
    for (const CatalogColumn& c : tableColumns) {
        const int f = fieldOf(c.name);
        if (f < 0) {
            continue;
        }
        target.columns[static_cast<std::size_t>(f)] = c.name;
        bool identity = false;
        for (const PropertyValue& p : c.properties) {
            if (p.name == u"Autoincrement") {
                identity = p.value.toBool().value_or(false);
            }
        }
        if (identity) {
            target.identity = f;
            for (PropertyValue& p : fields[static_cast<std::size_t>(f)].properties) {
                if (p.name == u"ISAUTOINCREMENT") {
                    p.value = vb::Variant(true);
                }
            }
        }
    }
    // The primary key first, then the first unique index whose columns the select reads.
    std::vector<const CatalogIndex*> candidates;
    for (const CatalogIndex& index : indexes) {
        if (index.primaryKey) {
            candidates.insert(candidates.begin(), &index);
        } else if (index.unique) {
            candidates.push_back(&index);
        }
    }
    for (const CatalogIndex* index : candidates) {
        std::vector<int> key;
        for (const CatalogColumn& c : index->columns) {
            const int f = fieldOf(c.name);
            if (f < 0) {
                key.clear();
                break;
            }
            key.push_back(f);
        }
        if (!key.empty()) {
            target.key = std::move(key);
            break;
        }
    }
    return target;
}

void makeWritable(MemoryRowset& rowset, WriteTarget target, std::vector<ColumnInfo> fields,
                  WriteRunner run) {
    rowset.setChangeHandler([target = std::move(target), fields = std::move(fields),
                             run = std::move(run)](MemoryRowset::ChangeKind kind, const Row& before,
                                                   std::vector<FieldChange>& changes) {
        if (kind != MemoryRowset::ChangeKind::Insert && target.key.empty()) {
            throw Error(HResult::E_UNSPECIFIED,
                        u"Insufficient key column information for updating or refreshing."_s,
                        kCursorEngine);
        }
        switch (kind) {
        case MemoryRowset::ChangeKind::Insert: {
            const odbc::BatchResult result = run(insertStatement(target, fields, changes));
            bool identityGiven = false;
            for (const FieldChange& c : changes) {
                identityGiven = identityGiven || c.column == target.identity;
            }
            if (target.identity >= 0 && !identityGiven && !result.resultSets.empty() &&
                !result.resultSets.front().rows.empty()) {
                const vb::Variant& value = result.resultSets.front().rows.front().at(0);
                changes.push_back(
                    {target.identity,
                     identityAs(fields.at(static_cast<std::size_t>(target.identity)), value)});
            }
            return;
        }
        case MemoryRowset::ChangeKind::Update:
            if (changes.empty()) {
                return;
            }
            if (lastCount(run(updateStatement(target, fields, before, changes))) == 0) {
                concurrencyViolation(target);
            }
            return;
        case MemoryRowset::ChangeKind::Delete:
            if (lastCount(run(deleteStatement(target, fields, before))) == 0) {
                concurrencyViolation(target);
            }
            return;
        }
    });
}

} // namespace ado::sqlserver
