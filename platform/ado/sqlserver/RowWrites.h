#pragma once

#include "platform/ado/MemoryRowset.h"
#include "platform/ado/Provider.h"
#include "platform/ado/sqlserver/odbc/Execution.h"

#include <QString>

#include <functional>
#include <vector>

// Updatable keyset and static recordsets. The rows are kept on the client (the driver's server
// cursors cannot carry batches, and the T-SQL-on-PostgreSQL server has no updatable ones); each
// change is written back at Update as a parameterised INSERT, UPDATE or DELETE on the table the
// select reads, finding its row by the table's key.
namespace ado::sqlserver {

// Which original values an UPDATE or DELETE compares, besides the key, to notice a row changed
// by somebody else: the recordset property "Update Criteria" (adCriteriaKey 0,
// adCriteriaAllCols 1, adCriteriaUpdCols 2; adCriteriaTimeStamp 3 compares all columns, as
// there is no timestamp column to go by).
enum class Criteria { Key = 0, AllColumns = 1, ChangedColumns = 2 };

struct WriteTarget {
    QString table;                // as the statement names it
    std::vector<QString> columns; // the table's column behind each field; empty: not a column
    std::vector<int> key;         // the fields of the primary key, else of a unique index
    int identity = -1;            // the field of the identity column
    Criteria criteria = Criteria::ChangedColumns;
    bool clientCursor = false;    // the cursor engine's texts rather than the provider's
};

struct WriteStatement {
    QString text;
    std::vector<odbc::ParameterValue> parameters;
};

// The one table a select reads ("select ... from T [alias] [where ...] [order by ...]"); empty
// for a join, a union, a procedure or anything else.
QString baseTable(const QString& statement);

// The criteria the recordset properties ask for; a server cursor compares every column.
Criteria criteriaOf(const CommandRequest& request);

// The statements, with the values as parameters typed as the fields are.
WriteStatement insertStatement(const WriteTarget& target, const std::vector<ColumnInfo>& fields,
                               const std::vector<FieldChange>& values);
WriteStatement updateStatement(const WriteTarget& target, const std::vector<ColumnInfo>& fields,
                               const Row& before, const std::vector<FieldChange>& changes);
WriteStatement deleteStatement(const WriteTarget& target, const std::vector<ColumnInfo>& fields,
                               const Row& before);

// Matches the fields to the table's columns, key and identity as the catalog describes them,
// and marks the identity field ISAUTOINCREMENT (some servers leave that out of the result's
// metadata).
WriteTarget describeTarget(const QString& table, const std::vector<CatalogColumn>& tableColumns,
                           const std::vector<CatalogIndex>& indexes, std::vector<ColumnInfo>& fields);

// Runs one statement to its end on the recordset's connection; throws ado::Error.
using WriteRunner = std::function<odbc::BatchResult(const WriteStatement&)>;

// Makes the rowset write each change through run before it keeps it. A keyless target takes
// inserts only and refuses updates and deletes as the cursor engine does.
void makeWritable(MemoryRowset& rowset, WriteTarget target, std::vector<ColumnInfo> fields,
                  WriteRunner run);

} // namespace ado::sqlserver
