#pragma once

#include "engine/PhaseContext.h"

#include "platform/vb/Variant.h"

#include <QString>

namespace engine {

class TableRecreation;

// The primary key and indexes of a user archive or dictionary that now exists on the server,
// rebuilt from the source's indexes schema: one statement per distinct index name, run on the
// destination handle. Index names pass through the renaming rule of GetIndexName, since
// constraint names are unique in a whole server database.
class IndexRecreation {
public:
    IndexRecreation(const PhaseContext& run, const TableRecreation& names) noexcept;

    // True when every index of the table was made (also when it has none). A refused statement
    // raises EVTError kind 4 "(<table>) <number>: <description>" and gives False; indexes made
    // before it stay. `Table` is taken by reference as the run passes it; it is not changed.
    bool CreateTableIndexes(QString& Table);

    // The server name of index `IndexName` of `Table`, with the destination's delimiters.
    // `PrimaryName` is the INDEX_NAME of the table's primary key (empty or Null when none).
    QString GetIndexName(const QString& IndexName, const QString& Table,
                         const vb::Variant& PrimaryName) const;

    // The name without a leading "[" and a trailing "]", or the name as it stands.
    static QString StripBrackets(const QString& Name);

private:
    PhaseContext m_run;
    const TableRecreation& m_names;
};

} // namespace engine
