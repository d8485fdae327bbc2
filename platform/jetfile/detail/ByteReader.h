#pragma once

#include "platform/jetfile/detail/Bytes.h"
#include "platform/jetfile/detail/PageSource.h"

#include <QString>

#include <cstddef>
#include <cstdint>

namespace jetfile::detail {

// Sequential, bounds-checked reads from a block assembled from the file (a table definition,
// a property blob). Running past the end throws Damaged: "<what> is cut short".
class ByteReader {
public:
    ByteReader(const PageSource& source, const std::uint8_t* data, std::size_t size, QString what,
               std::uint32_t page)
        : m_source(source), m_data(data), m_size(size), m_what(std::move(what)), m_page(page) {}

    std::size_t position() const noexcept { return m_pos; }
    std::size_t size() const noexcept { return m_size; }
    std::size_t remaining() const noexcept { return m_size - m_pos; }
    bool atEnd() const noexcept { return m_pos >= m_size; }

    void seek(std::size_t pos) {
        if (pos > m_size) {
            cutShort();
        }
        m_pos = pos;
    }
    void skip(std::size_t n) { seek(take(n) + n); }
    const std::uint8_t* bytes(std::size_t n) { return m_data + advance(n); }
    std::uint8_t u8() { return m_data[advance(1)]; }
    std::uint16_t u16() { return le16(m_data + advance(2)); }
    std::uint32_t u32() { return le32(m_data + advance(4)); }
    // The bytes at an absolute position, without moving.
    const std::uint8_t* at(std::size_t pos, std::size_t n) const {
        if (pos > m_size || n > m_size - pos) {
            cutShort();
        }
        return m_data + pos;
    }

    [[noreturn]] void cutShort() const {
        m_source.damaged(m_what + QStringLiteral(" is cut short"), m_page);
    }
    [[noreturn]] void fail(const QString& reason) const {
        m_source.damaged(m_what + QStringLiteral(": ") + reason, m_page);
    }

private:
    std::size_t take(std::size_t n) const {
        if (n > m_size - m_pos) {
            cutShort();
        }
        return m_pos;
    }
    std::size_t advance(std::size_t n) {
        const std::size_t at = take(n);
        m_pos += n;
        return at;
    }

    const PageSource& m_source;
    const std::uint8_t* m_data;
    std::size_t m_size;
    std::size_t m_pos = 0;
    QString m_what;
    std::uint32_t m_page;
};

} // namespace jetfile::detail
