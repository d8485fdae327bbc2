#pragma once

#include "engine/SqlNames.h"

#include <QList>
#include <QString>
#include <QStringList>

// The primary key and indexes of a user archive or dictionary, rebuilt on the server from the
// Jet source's indexes schema.
namespace engine {

// One row of the indexes schema: one column of one index, rows of an index adjacent.
struct IndexRow {
    QString indexName;      // INDEX_NAME
    bool primaryKey = false; // PRIMARY_KEY
    bool unique = false;    // UNIQUE
    QString columnName;     // COLUMN_NAME
    long collation = 0;     // COLLATION: 1 ascending, 2 descending
};

// Delimiters and back end of the destination handle.
struct NameDelimiters {
    QString start = QStringLiteral("[");
    QString end = QStringLiteral("]");
    long dbType = 1; // 1 SQL Server
};

// Constraint names are unique in a whole server database, while Jet repeats "PrimaryKey" in
// every table: the primary key takes "CUR_" and the table's name, an index named exactly as its
// table takes "_IDX". SYS_PREDEFINITA keeps its index names as they are.
QString GetIndexName(const QString& indexName, const QString& table, const QString& primaryName,
                     const NameDelimiters& delimiters = {});

// The INDEX_NAME of the first primary-key row, or empty.
QString PrimaryIndexName(const QList<IndexRow>& rows);

// One statement per distinct index name (letter case ignored), in rowset order: "alter table
// [T] add constraint ... primary key (...)" or "create [unique ]index ... on [T] (...)".
QStringList IndexStatements(const QString& table, const QList<IndexRow>& rows,
                            const NameDelimiters& delimiters = {},
                            const KeywordTest& isKeyword = {});

} // namespace engine
