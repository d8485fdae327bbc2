#pragma once

#include "platform/jetfile/Schema.h"
#include "platform/jetfile/detail/Bytes.h"

#include <QFile>
#include <QString>

#include <array>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>

namespace jetfile::detail {

// Room for one decoded page. Every reader that holds a page owns one of these, so the number of
// pages in memory is the number of buffers in use, never more.
struct PageBuffer {
    std::array<std::uint8_t, kPageSize> bytes{};
};

// The file, opened read-only and never locked, seen as numbered 4 KiB pages. Page 0 (the header)
// is parsed and checked when the file is opened; the pages of an encoded database are decoded
// as they are read. Thread-safe: reads never change shared state (the fallback path for a file
// that cannot be memory-mapped takes a lock).
class PageSource {
public:
    static std::shared_ptr<const PageSource> open(const QString& path);
    ~PageSource();
    PageSource(const PageSource&) = delete;
    PageSource& operator=(const PageSource&) = delete;
    PageSource(PageSource&&) = delete;
    PageSource& operator=(PageSource&&) = delete;

    const QString& path() const noexcept { return m_path; }
    const HeaderInfo& header() const noexcept { return m_header; }
    std::uint32_t pageCount() const noexcept { return m_header.pageCount; }
    std::uint64_t fileSize() const noexcept {
        return static_cast<std::uint64_t>(m_header.pageCount) * kPageSize;
    }

    // The bytes of page `number` (1 .. pageCount-1). The pointer stays valid while `buffer`
    // is not reused; for a plain mapped file it points into the map and `buffer` is untouched.
    const std::uint8_t* page(std::uint32_t number, PageBuffer& buffer) const;

    // Throws the Damaged error for this file.
    [[noreturn]] void damaged(const QString& reason,
                              std::optional<std::uint32_t> page = std::nullopt) const;

private:
    explicit PageSource(const QString& path);
    void readHeader();
    void readRaw(std::uint64_t offset, std::uint8_t* into, std::size_t length) const;

    QString m_path;
    mutable QFile m_file;
    mutable std::mutex m_readLock; // only for the unmapped fallback
    const std::uint8_t* m_map = nullptr;
    HeaderInfo m_header;
};

} // namespace jetfile::detail
