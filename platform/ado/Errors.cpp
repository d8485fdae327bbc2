#include "platform/ado/Errors.h"

using namespace Qt::StringLiterals;

namespace ado {

const Error& Errors::Item(long index) const {
    if (index < 0 || index >= Count()) {
        raise(HResult::adErrItemNotFound, u"ADODB.Errors"_s);
    }
    return m_items[static_cast<std::size_t>(index)];
}

void Errors::fill(const Error& error) {
    m_items.clear();
    Error first = error;
    m_items.push_back(first);
    for (const auto& more : error.related()) {
        m_items.push_back(more);
    }
}

} // namespace ado
