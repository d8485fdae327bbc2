#pragma once

#include "platform/ado/Error.h"

#include <vector>

namespace ado {

// Connection::Errors: the provider's records of the last failure on the connection, first the
// one that was thrown. ADO's own errors (no current record, closed object...) are not listed.
class Errors {
public:
    long Count() const noexcept { return static_cast<long>(m_items.size()); }
    // Throws adErrItemNotFound for an index out of range.
    const Error& Item(long index) const;
    void Clear() noexcept { m_items.clear(); }
    // Replaces the list with a provider failure and its related records.
    void fill(const Error& error);

    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

private:
    std::vector<Error> m_items;
};

} // namespace ado
