#include "engine/ColumnDefinition.h"

using namespace Qt::StringLiterals;

namespace engine {

namespace {

enum AdoType : long {
    adInteger = 3,
    adDouble = 5,
    adCurrency = 6,
    adDate = 7,
    adBoolean = 11,
    adWChar = 130,
};

struct TypeRow {
    long dataType;
    const char16_t* text; // nvarchar has its length added
    bool quoted;
};

// The only Jet types a suite archive is built from.
constexpr TypeRow kTypes[] = {
    {adInteger, u"int", false},  {adDouble, u"float", false},  {adCurrency, u"money", false},
    {adDate, u"datetime", true}, {adBoolean, u"bit", false},   {adWChar, u"nvarchar", true},
};

const TypeRow* findType(long dataType) {
    for (const TypeRow& row : kTypes) {
        if (row.dataType == dataType) {
            return &row;
        }
    }
    return nullptr;
}

long textLength(const SourceColumn& column) {
    return column.maximumLength.toLong().value_or(0);
}

QString typeText(const TypeRow& type, const SourceColumn& column) {
    if (type.dataType != adWChar) {
        return QString::fromUtf16(type.text);
    }
    const long length = textLength(column);
    return length < 1 ? u"ntext"_s : u"nvarchar(%1)"_s.arg(length);
}

// The default clause for a column that wants one; the refusal is set when it cannot be built.
QString defaultClause(const SourceColumn& column, const QString& quote, QString& refusal) {
    const QString defaultText = column.defaultValue.toString();
    switch (column.dataType) {
    case adDate: {
        // Jet's Date() and Time() have server equivalents; any other date default is dropped.
        const QString lower = defaultText.toLower();
        if (lower == u"date()") {
            return u" default getdate()"_s;
        }
        if (lower == u"time()") {
            return u" default '18991230 '+convert(char(8), getdate(), 108)"_s;
        }
        return {};
    }
    case adBoolean: {
        // Every bit column gets a default, so that no insert leaves it null.
        if (!column.hasDefault) {
            return u" default 0"_s;
        }
        const std::optional<bool> value = vb::Variant(defaultText).toBool();
        if (!value) {
            refusal = u"Default '%1' of column %2 is not a boolean."_s.arg(defaultText, column.name);
            return {};
        }
        return *value ? u" default 1"_s : u" default 0"_s;
    }
    case adWChar: {
        if (defaultText.size() >= 2 && defaultText.startsWith(u'"') && defaultText.endsWith(u'"')) {
            return u" default "_s + quote + defaultText.mid(1, defaultText.size() - 2) + quote;
        }
        const long length = textLength(column);
        const QString stripped = StripQuotes(defaultText);
        return u" default "_s + quote + (length < 1 ? stripped : stripped.left(length)) + quote;
    }
    default:
        return u" default "_s + quote + StripQuotes(defaultText) + quote;
    }
}

} // namespace

bool NeedsIdentityClause(const SourceColumn& column) {
    return column.dataType == adInteger && column.autoincrement &&
           column.name.toUpper() != u"SYS_RECORD";
}

ColumnDefinition GetColumnDefinition(const SourceColumn& column, long identitySeed) {
    const TypeRow* type = findType(column.dataType);
    if (type == nullptr) {
        // No mapping is made up for a type the suite does not use.
        return {{}, u"Column %1 has DATA_TYPE %2, which has no server type."_s.arg(
                        column.name, QString::number(column.dataType))};
    }
    const QString quote = type->quoted ? u"'"_s : QString();
    const bool isBoolean = column.dataType == adBoolean;
    QString text = typeText(*type, column);
    if (NeedsIdentityClause(column)) {
        text += u" identity(%1, %2)"_s.arg(QString::number(identitySeed),
                                           QString::number(column.increment));
    }
    const bool nullable = isBoolean ? column.catalogNullable : column.isNullable;
    if (column.inPrimaryKey || !nullable) {
        text += u" not null"_s;
    }
    QString refusal;
    if (isBoolean || column.hasDefault) {
        text += defaultClause(column, quote, refusal);
    }
    return {refusal.isEmpty() ? text : QString(), refusal};
}

CreateTableText GetCreateTableSql(const QString& table, const QList<SourceColumn>& columns,
                                  const std::function<long(const SourceColumn&)>& seedFor,
                                  const KeywordTest& isKeyword) {
    // Slot i holds the column at ordinal position i; slot 0 stays empty.
    QStringList byPosition;
    for (const SourceColumn& column : columns) {
        if (column.ordinal >= byPosition.size()) {
            byPosition.resize(column.ordinal + 1);
        }
        if (column.ordinal >= 0) {
            byPosition[column.ordinal] = column.name;
        }
    }
    CreateTableText out;
    out.text = u"create table "_s + EncloseTableName(table) + u" ("_s;
    for (qsizetype i = 1; i < byPosition.size(); ++i) {
        // The rowset is filtered with COLUMN_NAME like '<name>', which ignores letter case.
        const auto found =
            std::find_if(columns.begin(), columns.end(), [&](const SourceColumn& c) {
                return !byPosition[i].isEmpty() &&
                       c.name.compare(byPosition[i], Qt::CaseInsensitive) == 0;
            });
        if (i > 1) {
            out.text += u", "_s;
        }
        if (found == columns.end()) {
            out.refusal = u"No column at ordinal position %1."_s.arg(i);
            return out;
        }
        const long seed = NeedsIdentityClause(*found) && seedFor ? seedFor(*found) : 0;
        const ColumnDefinition definition = GetColumnDefinition(*found, seed);
        out.text += EncloseFieldName(found->name, isKeyword) + u' ';
        if (!definition.ok()) {
            out.refusal = definition.refusal;
            return out;
        }
        out.text += definition.text;
    }
    out.text += u')';
    out.complete = true;
    return out;
}

} // namespace engine
