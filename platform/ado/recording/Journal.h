#pragma once

#include "platform/ado/Provider.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace ado::recording {

// Everything the layers above asked of a recording provider, in order.
class Journal {
public:
    enum class Kind {
        Open,
        Close,
        Execute,
        Schema,
        BeginTrans,
        CommitTrans,
        RollbackTrans,
        SetProperty,
        RowChange,
        Catalog,
        CreateDatabase,
    };
    struct Entry {
        Kind kind = Kind::Execute;
        QString text; // the connection string, statement, property or catalog change
        std::vector<ParameterValue> parameters;
        std::vector<vb::Variant> restrictions;
        int schema = 0;
    };

    void add(Entry entry) { m_entries.push_back(std::move(entry)); }
    const std::vector<Entry>& entries() const noexcept { return m_entries; }
    void clear() { m_entries.clear(); }

    // One readable line per entry, such as "execute: select 1" or
    // "execute: insert into T (A) values (?) [A adInteger(3) size 0 = 5]" or "schema 20: -|-|T|-".
    QStringList lines() const;
    // The statements only, in order.
    QStringList statements() const;

    // How a value is written in a line: Null, Empty, 'text', numbers as written in C, dates ISO.
    static QString describe(const vb::Variant& value);

private:
    std::vector<Entry> m_entries;
};

} // namespace ado::recording
