#include "engine/RecordInsert.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace engine {

namespace {

struct KindRow {
    long adoType;
    int kind;
};

constexpr KindRow kKinds[] = {
    {2, 1},   {3, 1},   {4, 1},   {5, 1}, {6, 1}, {17, 1},  {131, 1}, // numbers
    {130, 2}, {202, 2}, {203, 2},                                  // texts
    {11, 3},                                                       // boolean
    {7, 4},   {135, 4},                                            // dates
};

// VB's "value = True": a boolean true, or a number equal to -1.
bool isTrue(const vb::Variant& value) {
    if (const bool* b = value.get<bool>()) {
        return *b;
    }
    if (value.isNumber()) {
        return value.toDouble() == -1.0;
    }
    return false;
}

} // namespace

long ParameterSize(long adoType, long definedSize) {
    switch (adoType) {
    case 130:
    case 202:
        return definedSize;
    case 203:
        return -1;
    default:
        return 0;
    }
}

int FieldKind(long adoType) {
    for (const KindRow& row : kKinds) {
        if (row.adoType == adoType) {
            return row.kind;
        }
    }
    return 0;
}

std::optional<vb::Variant> ParameterValue(long adoType, vb::Variant value) {
    switch (FieldKind(adoType)) {
    case 1:
    case 2:
    case 4:
        return value; // moved: a parameter is returned as an rvalue
    case 3:
        return vb::Variant(static_cast<std::int32_t>(isTrue(value) ? 1 : 0));
    default:
        return std::nullopt;
    }
}

InsertStatement ComposeInsert(const QString& table, const QList<RecordField>& fields,
                              const IdentityColumns& identity, const KeywordTest& isKeyword) {
    InsertStatement out = ComposeInsertText(table, fields, identity, isKeyword);
    out.parameters = InsertParameters(fields);
    return out;
}

InsertStatement ComposeInsertText(const QString& table, const QList<RecordField>& fields,
                                  const IdentityColumns& identity, const KeywordTest& isKeyword) {
    InsertStatement out;
    QString columns;
    QString marks;
    bool wrapDecided = false;
    for (const RecordField& field : fields) {
        if (field.value.isNull()) {
            continue;
        }
        if (!marks.isEmpty()) {
            columns += u", "_s;
            marks += u", "_s;
        }
        columns += EncloseFieldName(field.name, isKeyword);
        marks += u'?';
        if (!wrapDecided && field.index == identity.sourceAutoincrement) {
            wrapDecided = true;
            out.identityWrap = field.index == identity.destinationIdentity;
        }
    }
    const QString enclosed = EncloseTableName(table);
    out.text = u"insert into "_s + enclosed + u" ("_s + columns + u") values ("_s + marks + u')';
    if (out.identityWrap) {
        out.text = u"set identity_insert "_s + enclosed + u" on; "_s + out.text +
                   u"; set identity_insert "_s + enclosed + u" off"_s;
    }
    return out;
}

QList<InsertParameter> InsertParameters(QList<RecordField> fields) {
    QList<InsertParameter> out;
    out.reserve(fields.size());
    for (RecordField& field : fields) {
        if (field.value.isNull()) {
            continue;
        }
        out.append({std::move(field.name), field.adoType,
                    ParameterSize(field.adoType, field.definedSize),
                    ParameterValue(field.adoType, std::move(field.value))});
    }
    return out;
}

QString BooleanFixStatement(const QString& table, const QString& column,
                            const KeywordTest& isKeyword) {
    const QString field = EncloseFieldName(column, isKeyword);
    return u"update "_s + EncloseTableName(table) + u" set "_s + field + u"=0 where "_s + field +
           u" is null"_s;
}

} // namespace engine
