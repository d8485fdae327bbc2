#include "platform/jetfile/detail/RowView.h"

#include "platform/jetfile/detail/TableDefParser.h"

using namespace Qt::Literals::StringLiterals;

namespace jetfile::detail {

RowView::RowView(const PageSource& source, const std::uint8_t* page, std::uint32_t pageNumber,
                 RowSpan span)
    : m_source(&source), m_row(page + span.start), m_page(pageNumber), m_length(span.length()) {
    if (m_length < 2) {
        source.damaged(u"a row of %1 bytes has no column count"_s.arg(m_length), pageNumber);
    }
    m_columnCount = le16(m_row);
    const std::size_t maskBytes = (static_cast<std::size_t>(m_columnCount) + 7) / 8;
    if (2 + maskBytes > m_length) {
        source.damaged(u"a row of %1 bytes cannot hold the null mask of %2 columns"_s.arg(
                           QString::number(m_length), QString::number(m_columnCount)),
                       pageNumber);
    }
    m_nullMask = m_length - maskBytes;
}

bool RowView::isNull(const Column& column) const noexcept {
    if (column.number >= m_columnCount) {
        return true;
    }
    const auto number = static_cast<std::size_t>(column.number);
    return (m_row[m_nullMask + number / 8] & (1u << (number % 8))) == 0;
}

void RowView::damaged(const Column& column, const QString& reason) const {
    m_source->damaged(u"column '%1': %2"_s.arg(column.name, reason), m_page);
}

void RowView::data(const Column& column, const std::uint8_t*& bytes, std::size_t& length) const {
    if (!column.isFixedLength()) {
        variableData(column, bytes, length);
        return;
    }
    const auto size = static_cast<std::size_t>(fixedDataSize(column));
    const std::size_t at = 2 + static_cast<std::size_t>(column.fixedOffset);
    if (at + size > m_nullMask) {
        damaged(column, u"its fixed data at offset %1 lies outside a row of %2 bytes"_s.arg(
                            QString::number(at), QString::number(m_length)));
    }
    bytes = m_row + at;
    length = size;
}

void RowView::variableData(const Column& column, const std::uint8_t*& bytes,
                           std::size_t& length) const {
    // The variable offset table sits just before the null mask, read backwards from its end:
    // the count of variable columns, then each column's start, then the end of the data.
    if (m_nullMask < 4) {
        damaged(column, u"the row has no room for its variable column table"_s);
    }
    const std::size_t countAt = m_nullMask - 2;
    const std::size_t varCount = le16(m_row + countAt);
    const auto slot = static_cast<std::size_t>(column.varIndex);
    if (slot >= varCount) {
        damaged(column, u"variable slot %1 of a row with %2"_s.arg(QString::number(slot),
                                                                   QString::number(varCount)));
    }
    const std::size_t tableBytes = 2 * (varCount + 1);
    if (countAt < 2 + tableBytes) {
        damaged(column, u"a row of %1 bytes cannot hold %2 variable offsets"_s.arg(
                            QString::number(m_length), QString::number(varCount)));
    }
    const std::size_t tableStart = countAt - tableBytes;
    const std::size_t startAt = countAt - 2 * (slot + 1);
    const std::size_t begin = le16(m_row + startAt);
    const std::size_t end = le16(m_row + startAt - 2);
    if (begin < 2 || begin > end || end > tableStart) {
        damaged(column, u"its data from offset %1 to %2 lies outside the row"_s.arg(
                            QString::number(begin), QString::number(end)));
    }
    bytes = m_row + begin;
    length = end - begin;
}

} // namespace jetfile::detail
