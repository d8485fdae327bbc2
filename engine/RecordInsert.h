#pragma once

#include "engine/SqlNames.h"
#include "platform/vb/Variant.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// What one record of a source table becomes on the server: a parameterised insert of its
// non-null fields, wrapped in "set identity_insert" when an identity value is carried over.
namespace engine {

// One field of the current source record.
struct RecordField {
    QString name;
    long index = -1;       // the field's position in the recordset
    long adoType = 0;      // ADO DataTypeEnum
    long definedSize = 0;  // DefinedSize
    vb::Variant value;
};

// The parameter of one field: its size and the value it carries (none for a type that has no
// kind, such as binary: the parameter is appended without a value).
struct InsertParameter {
    QString name;
    long adoType = 0;
    long size = 0;
    std::optional<vb::Variant> value;
};

struct InsertStatement {
    QString text;
    QList<InsertParameter> parameters;
    bool identityWrap = false;
};

// The autoincrement column of the source and the identity column of the destination, by field
// index, -1 for none.
struct IdentityColumns {
    long sourceAutoincrement = -1;
    long destinationIdentity = -1;
};

// Parameter size: DefinedSize for (var)wchar, -1 for long text, 0 otherwise.
long ParameterSize(long adoType, long definedSize);

// The field kind: 1 numeric, 2 text, 3 boolean, 4 date, 0 none.
int FieldKind(long adoType);

// The value a parameter carries: booleans travel as 1 or 0, other kinds as they are.
std::optional<vb::Variant> ParameterValue(long adoType, vb::Variant value);

// Null fields are left out, so the column takes its server default. A record whose fields are
// all null gives "insert into T () values ()", which the server refuses.
InsertStatement ComposeInsert(const QString& table, const QList<RecordField>& fields,
                              const IdentityColumns& identity, const KeywordTest& isKeyword = {});

// ComposeInsert in two halves. The text and the identity wrap depend only on which fields are
// present (the values are looked at for null only), so the record copy keeps one per pattern of
// nulls; the parameters carry the record's values, moved out of the fields given.
InsertStatement ComposeInsertText(const QString& table, const QList<RecordField>& fields,
                                  const IdentityColumns& identity,
                                  const KeywordTest& isKeyword = {});
QList<InsertParameter> InsertParameters(QList<RecordField> fields);

// Sets to 0 what the inserts left null in a bit column.
QString BooleanFixStatement(const QString& table, const QString& column,
                            const KeywordTest& isKeyword = {});

} // namespace engine
