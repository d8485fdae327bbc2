#include "platform/jetfile/detail/DataPage.h"

using namespace Qt::Literals::StringLiterals;

namespace jetfile::detail {

namespace {
constexpr int kRowCountOffset = 12;
constexpr std::size_t kSlotTableOffset = 14;
} // namespace

DataPage::DataPage(const PageSource& source, const std::uint8_t* bytes, std::uint32_t number)
    : m_source(source), m_bytes(bytes), m_number(number) {
    if (bytes[0] != kPageData) {
        source.damaged(u"expected a data page, found page type %1"_s.arg(bytes[0]), number);
    }
    m_rowCount = le16(bytes + kRowCountOffset);
    if (kSlotTableOffset + 2 * static_cast<std::size_t>(m_rowCount) > kPageSize) {
        source.damaged(u"the data page claims %1 rows, more than fit on a page"_s.arg(m_rowCount),
                       number);
    }
}

std::uint16_t DataPage::slotFlags(int row) const noexcept {
    return le16(m_bytes + kSlotTableOffset + 2 * static_cast<std::size_t>(row)) &
           static_cast<std::uint16_t>(~kSlotOffsetMask);
}

RowSpan DataPage::row(int row) const {
    if (row < 0 || row >= m_rowCount) {
        m_source.damaged(u"row %1 does not exist on a page of %2 rows"_s.arg(
                             QString::number(row), QString::number(m_rowCount)),
                         m_number);
    }
    const std::uint16_t slot = le16(m_bytes + kSlotTableOffset + 2 * static_cast<std::size_t>(row));
    RowSpan span;
    span.flags = slot & static_cast<std::uint16_t>(~kSlotOffsetMask);
    span.start = slot & kSlotOffsetMask;
    span.end = row == 0 ? static_cast<std::uint16_t>(kPageSize)
                        : static_cast<std::uint16_t>(le16(m_bytes + kSlotTableOffset +
                                                          2 * static_cast<std::size_t>(row - 1)) &
                                                     kSlotOffsetMask);
    const std::size_t slotTableEnd = kSlotTableOffset + 2 * static_cast<std::size_t>(m_rowCount);
    if (span.start < slotTableEnd || span.start > span.end || span.end > kPageSize) {
        m_source.damaged(
            u"row %1 lies outside its page (offsets %2 to %3)"_s.arg(
                QString::number(row), QString::number(span.start), QString::number(span.end)),
            m_number);
    }
    return span;
}

} // namespace jetfile::detail
