#pragma once

#include "platform/jetfile/detail/PageSource.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>

namespace jetfile::detail {

// A Memo or OLE value: a 12-byte header in the row (length and kind, then a row pointer), the
// data either inline after it, in one long-value row, or in a chain of rows each starting with a
// pointer to the next. The stored length is checked against the file before anything is
// allocated, and every chunk must move the read forward, so a damaged chain ends in an error.
class LongValueReader {
public:
    explicit LongValueReader(const PageSource& source) : m_source(source) {}

    // The length the header declares, checked against the file size.
    std::uint32_t length(const std::uint8_t* field, std::size_t size, std::uint32_t page) const;
    QByteArray read(const std::uint8_t* field, std::size_t size, std::uint32_t page);

private:
    void readChain(std::uint32_t page, int row, QByteArray& out, std::uint32_t length,
                   std::uint32_t fieldPage);

    const PageSource& m_source;
    PageBuffer m_buffer; // the one long-value page held while reading
};

} // namespace jetfile::detail
