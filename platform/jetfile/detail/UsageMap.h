#pragma once

#include "platform/jetfile/detail/PageSource.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace jetfile::detail {

// The set of pages a table (or an index) owns, stored as a bitmap either inline in one row
// (type 0: a first page number and the bits after it) or spread over usage-map pages that the
// row lists (type 1). Pages come out in ascending order; reference pages are read one at a time,
// so the map never holds more than one of them.
class UsageMap {
public:
    // The map stored in the row the four-byte reference at `ref` points to.
    UsageMap(std::shared_ptr<const PageSource> source, const std::uint8_t* ref,
             std::uint32_t referringPage);

    // The next page in the map, or nothing at the end.
    std::optional<std::uint32_t> next();
    void rewind();

private:
    bool loadReferencePage(std::size_t index);

    std::shared_ptr<const PageSource> m_source;
    bool m_inline = true;
    std::uint32_t m_mapPage = 0;
    std::uint32_t m_firstPage = 0;         // inline: page of bit 0
    std::vector<std::uint32_t> m_mapPages; // reference: the bitmap pages, 0 where none
    std::size_t m_mapIndex = 0;            // reference: the bitmap page loaded in m_bits
    std::vector<std::uint8_t> m_bits;      // the bitmap being walked
    std::uint64_t m_bit = 0;               // next bit to look at in m_bits
    std::uint32_t m_base = 0;              // page of bit 0 of m_bits
};

} // namespace jetfile::detail
