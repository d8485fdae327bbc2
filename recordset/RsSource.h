#pragma once

#include <QString>

#include <functional>
#include <vector>

// The statement of a recordset kept in three pieces, so that a filter or an order can change
// without rewriting the statement: the base statement, the where text and the order text (both
// without their keyword), and the table behind the statement.
namespace rs {

struct SourceParts {
    QString base;  // what stands before " Where " and " Order By "; a bare table name as it is
    QString where; // the condition, without WHERE
    QString order; // the order, without ORDER BY
    QString name;  // the table, or the text behind FROM
};

// VB's Trim: blanks only, not tabs or line ends.
QString TrimBlanks(const QString& text);

// Splits the source of an attached recordset into `parts`. A source that `isTable` knows as a
// table becomes the name and keeps the where and order texts already set; a statement is
// searched, without regard to case, for " From ", " Where " and " Order By " standing between
// single blanks (a line end before WHERE is not seen, and the text then stays whole).
void SplitSource(const QString& source, const std::function<bool(const QString&)>& isTable,
                 SourceParts& parts);

// The statement a requery opens: base, " Where " and the where text, " Order By " and the order
// text, each only when not blank.
QString JoinSource(const SourceParts& parts);

// "SELECT COUNT(*) AS RecNum FROM (base WHERE where AND extra) AS TempTab".
QString CountQueryText(const SourceParts& parts, const QString& extra);

// "SELECT MAX(field) AS Num FROM (base WHERE where) AS TempTab", MIN with `min`; `field` is
// already delimited by the database.
QString MaxQueryText(const SourceParts& parts, const QString& field, bool min);

// One column of an index, in the index's order.
struct IndexColumn {
    QString name;
    bool descending = false;
};

// The order text that sorts as an index does: "[A] asc, [B] desc".
QString IndexOrderText(const std::vector<IndexColumn>& columns);

} // namespace rs
