#pragma once

#include "engine/PhaseContext.h"
#include "engine/SqlNames.h"

#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"

#include <QHash>
#include <QString>

#include <cstdint>
#include <memory>

namespace engine {

// The "create table" statement of a user archive or a dictionary, read from the Jet source's
// columns schema and catalog. Archives are defined by the suite's operator, so their columns are
// mapped one by one: long to int, double to float, currency to money, date to datetime, yes/no to
// bit (always with a default), text to nvarchar(n) or, for a memo, ntext.
class TableRecreation {
public:
    explicit TableRecreation(const PhaseContext& run);

    // The whole statement, columns in their ordinal order. When something goes wrong part way
    // (a hole in the ordinal positions, a default that is no boolean, a column type the suite
    // never uses) the text built so far comes back without a word: the server then refuses it
    // and the run ends there. `Source` is the source connection.
    QString GetCreateTableSql(const QString& Table, const ado::ConnectionPtr& Source);

    // The text after the column name, from the current row of a columns schema rowset of the
    // source, with the catalog properties of the source handle. Throws on a row it cannot map;
    // GetCreateTableSql catches.
    QString GetColumnDefinition(ado::Recordset& Columns);

    // The lowest value in use in the column, so that the server's numbering starts where the
    // data starts; 0 for an empty table or on any error.
    std::int32_t GetIdentitySeed(const QString& Table, const QString& Column,
                                 const ado::ConnectionPtr& Source) noexcept;

    // Names as they go into the server's statements; EncloseFieldName brackets the server's own
    // keywords and literals (asked of the master connection) and the built-in reserved words.
    QString EncloseTableName(const QString& Name) const;
    QString EncloseFieldName(const QString& Name) const;
    bool IsReservedWord(const QString& Name) const;

    // The master connection's keyword and literal test, for the other phases' name builders.
    KeywordTest ServerKeywords() const;

private:
    PhaseContext m_run;
    // The server's answers by name: the record copy encloses every field of every record, and
    // the server's keywords do not change during a run.
    std::shared_ptr<QHash<QString, bool>> m_keywords;
};

} // namespace engine
