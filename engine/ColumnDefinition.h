#pragma once

#include "engine/SqlNames.h"
#include "platform/vb/Variant.h"

#include <QList>
#include <QString>

// The server column for a column of a user archive or a dictionary, from what the Jet source's
// columns schema and catalog say about it.
namespace engine {

// One row of the source's columns schema with the catalog properties the definition needs.
struct SourceColumn {
    QString name;                 // COLUMN_NAME
    long ordinal = 0;             // ORDINAL_POSITION
    long dataType = 0;            // DATA_TYPE (ADO type number)
    vb::Variant maximumLength;    // CHARACTER_MAXIMUM_LENGTH, Null for other than text
    bool isNullable = true;       // IS_NULLABLE
    bool hasDefault = false;      // COLUMN_HASDEFAULT
    vb::Variant defaultValue;     // COLUMN_DEFAULT, Null when there is none
    bool catalogNullable = true;  // catalog property "Nullable" (read for booleans only)
    bool autoincrement = false;   // catalog property "Autoincrement"
    long increment = 1;           // catalog property "Increment"
    bool inPrimaryKey = false;    // part of the source table's primary key
};

// The text after the column name, or the reason it cannot be written.
struct ColumnDefinition {
    QString text;
    QString refusal; // non-empty: no definition (a type the suite never uses, a bad default)
    bool ok() const noexcept { return refusal.isEmpty(); }
};

// Whether the column takes an identity clause, so the caller asks for the seed (the lowest value
// in use) only then. SYS_RECORD stays a plain int: the suite numbers it with GetIdentity.
bool NeedsIdentityClause(const SourceColumn& column);

// "int", "float", "money", "datetime", "bit", "nvarchar(n)" / "ntext", then the identity clause,
// " not null" and the default clause. `identitySeed` is read only when NeedsIdentityClause.
ColumnDefinition GetColumnDefinition(const SourceColumn& column, long identitySeed = 0);

// The whole "create table" statement, columns in ordinal order.
struct CreateTableText {
    QString text;
    // False when the statement stopped part way: a hole in the ordinal positions or a column
    // with no definition. The text then holds what was built, and the server refuses it.
    bool complete = false;
    QString refusal;
};

// `seedFor` gives the identity seed of a column that needs one.
CreateTableText GetCreateTableSql(const QString& table, const QList<SourceColumn>& columns,
                                  const std::function<long(const SourceColumn&)>& seedFor,
                                  const KeywordTest& isKeyword = {});

} // namespace engine
