#include "platform/jetfile/detail/UsageMap.h"

#include "platform/jetfile/detail/DataPage.h"

using namespace Qt::Literals::StringLiterals;

namespace jetfile::detail {

namespace {
constexpr std::uint8_t kInlineMap = 0;
constexpr std::uint8_t kReferenceMap = 1;
constexpr std::size_t kInlineBitsOffset = 5;
constexpr std::size_t kBitmapPageDataOffset = 4;
constexpr std::uint64_t kPagesPerBitmapPage = (kPageSize - kBitmapPageDataOffset) * 8;
} // namespace

UsageMap::UsageMap(std::shared_ptr<const PageSource> source, const std::uint8_t* ref,
                   std::uint32_t referringPage)
    : m_source(std::move(source)) {
    const RowPointer where = RowPointer::read(ref);
    if (where.page == 0) {
        m_source->damaged(u"a usage map reference points at page 0"_s, referringPage);
    }
    m_mapPage = where.page;
    PageBuffer buffer;
    const DataPage page(*m_source, m_source->page(where.page, buffer), where.page);
    const RowSpan span = page.row(where.row);
    if (span.length() < 1) {
        m_source->damaged(u"the usage map row %1 is empty"_s.arg(where.row), where.page);
    }
    const std::uint8_t* row = page.bytes() + span.start;
    if (row[0] == kInlineMap) {
        if (span.length() < kInlineBitsOffset) {
            m_source->damaged(u"the inline usage map in row %1 is cut short"_s.arg(where.row),
                              where.page);
        }
        m_inline = true;
        m_firstPage = le32(row + 1);
        m_bits.assign(row + kInlineBitsOffset, row + span.length());
        m_base = m_firstPage;
    } else if (row[0] == kReferenceMap) {
        m_inline = false;
        const std::size_t count = (span.length() - 1u) / 4u;
        m_mapPages.reserve(count);
        for (std::size_t i = 0; i < count; ++i) {
            m_mapPages.push_back(le32(row + 1 + 4 * i));
        }
    } else {
        m_source->damaged(u"unknown usage map type %1 in row %2"_s.arg(QString::number(row[0]),
                                                                       QString::number(where.row)),
                          where.page);
    }
    rewind();
}

void UsageMap::rewind() {
    m_bit = 0;
    if (m_inline) {
        m_base = m_firstPage;
        return;
    }
    m_bits.clear();
    m_mapIndex = 0;
    while (m_mapIndex < m_mapPages.size() && !loadReferencePage(m_mapIndex)) {
        ++m_mapIndex;
    }
}

bool UsageMap::loadReferencePage(std::size_t index) {
    const std::uint32_t number = m_mapPages[index];
    if (number == 0) {
        return false;
    }
    PageBuffer buffer;
    const std::uint8_t* bytes = m_source->page(number, buffer);
    if (bytes[0] != kPageUsageMap) {
        m_source->damaged(u"expected a usage map page, found page type %1"_s.arg(bytes[0]), number);
    }
    m_bits.assign(bytes + kBitmapPageDataOffset, bytes + kPageSize);
    m_base = static_cast<std::uint32_t>(
        std::min<std::uint64_t>(index * kPagesPerBitmapPage, UINT32_MAX));
    m_bit = 0;
    return true;
}

std::optional<std::uint32_t> UsageMap::next() {
    for (;;) {
        const std::uint64_t total = static_cast<std::uint64_t>(m_bits.size()) * 8;
        while (m_bit < total) {
            const std::uint8_t byte = m_bits[static_cast<std::size_t>(m_bit / 8)];
            if (byte == 0 && m_bit % 8 == 0) {
                m_bit += 8;
                continue;
            }
            const std::uint64_t bit = m_bit++;
            if ((byte & (1u << (bit % 8))) != 0) {
                const std::uint64_t page = static_cast<std::uint64_t>(m_base) + bit;
                if (page >= m_source->pageCount()) {
                    m_source->damaged(
                        u"the usage map names page %1, beyond the end of the file"_s.arg(
                            QString::number(page)),
                        m_mapPage);
                }
                return static_cast<std::uint32_t>(page);
            }
        }
        if (m_inline) {
            return std::nullopt;
        }
        do {
            ++m_mapIndex;
        } while (m_mapIndex < m_mapPages.size() && !loadReferencePage(m_mapIndex));
        if (m_mapIndex >= m_mapPages.size()) {
            m_bits.clear();
            return std::nullopt;
        }
    }
}

} // namespace jetfile::detail
