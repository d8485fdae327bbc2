#include "platform/jetfile/detail/LongValue.h"

#include "platform/jetfile/detail/DataPage.h"

#include <cstring>

using namespace Qt::Literals::StringLiterals;

namespace jetfile::detail {

namespace {
constexpr std::size_t kHeaderSize = 12;
constexpr std::uint32_t kKindMask = 0xC0000000u;
constexpr std::uint32_t kInline = 0x80000000u;
constexpr std::uint32_t kOneRow = 0x40000000u;
constexpr std::uint32_t kChain = 0;
} // namespace

std::uint32_t LongValueReader::length(const std::uint8_t* field, std::size_t size,
                                      std::uint32_t page) const {
    if (size < kHeaderSize) {
        m_source.damaged(u"a long value header of %1 bytes"_s.arg(size), page);
    }
    const std::uint32_t word = le32(field);
    if ((word & kKindMask) == kKindMask) {
        m_source.damaged(u"a long value of unknown kind 0x%1"_s.arg(word >> 24, 2, 16), page);
    }
    const std::uint32_t length = word & ~kKindMask;
    if (length > m_source.fileSize()) {
        m_source.damaged(u"a long value of %1 bytes in a file of %2"_s.arg(
                             QString::number(length), QString::number(m_source.fileSize())),
                         page);
    }
    return length;
}

QByteArray LongValueReader::read(const std::uint8_t* field, std::size_t size, std::uint32_t page) {
    const std::uint32_t total = length(field, size, page);
    const std::uint32_t kind = le32(field) & kKindMask;
    QByteArray out;
    if (kind == kInline) {
        if (size - kHeaderSize < total) {
            m_source.damaged(u"an inline long value of %1 bytes holds only %2"_s.arg(
                                 QString::number(total), QString::number(size - kHeaderSize)),
                             page);
        }
        return QByteArray(reinterpret_cast<const char*>(field + kHeaderSize),
                          static_cast<qsizetype>(total));
    }
    const RowPointer where = RowPointer::read(field + 4);
    if (total == 0) {
        return out;
    }
    if (kind == kOneRow) {
        const DataPage lval(m_source, m_source.page(where.page, m_buffer), where.page);
        const RowSpan span = lval.row(where.row);
        if (span.length() < total) {
            m_source.damaged(u"a long value of %1 bytes in a row of %2"_s.arg(
                                 QString::number(total), QString::number(span.length())),
                             where.page);
        }
        return QByteArray(reinterpret_cast<const char*>(lval.bytes() + span.start),
                          static_cast<qsizetype>(total));
    }
    Q_ASSERT(kind == kChain);
    readChain(where.page, where.row, out, total, page);
    return out;
}

void LongValueReader::readChain(std::uint32_t page, int row, QByteArray& out, std::uint32_t length,
                                std::uint32_t fieldPage) {
    out.resize(static_cast<qsizetype>(length));
    std::uint32_t done = 0;
    // Brent's cycle check: a link that comes round to the marked one means a loop, which would
    // otherwise only end at the declared length.
    RowPointer mark{page, row};
    std::uint64_t power = 1;
    std::uint64_t sinceMark = 0;
    while (done < length) {
        if (page == 0) {
            m_source.damaged(u"a long value chain ends after %1 of %2 bytes"_s.arg(
                                 QString::number(done), QString::number(length)),
                             fieldPage);
        }
        const DataPage lval(m_source, m_source.page(page, m_buffer), page);
        const RowSpan span = lval.row(row);
        // Each link holds the pointer to the next one and at least one byte, so the chain
        // cannot go round for ever.
        if (span.length() <= 4) {
            m_source.damaged(u"a long value link of %1 bytes in row %2"_s.arg(
                                 QString::number(span.length()), QString::number(row)),
                             page);
        }
        const std::uint8_t* bytes = lval.bytes() + span.start;
        const RowPointer next = RowPointer::read(bytes);
        const std::uint32_t chunk = std::min<std::uint32_t>(span.length() - 4u, length - done);
        std::memcpy(out.data() + done, bytes + 4, chunk);
        done += chunk;
        page = next.page;
        row = next.row;
        if (done < length && page == mark.page && row == mark.row) {
            m_source.damaged(u"a long value chain comes back to an earlier link"_s, fieldPage);
        }
        if (++sinceMark == power) {
            mark = {page, row};
            power *= 2;
            sinceMark = 0;
        }
    }
}

} // namespace jetfile::detail
