#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

// Little-endian reads from bytes the caller has already bounds-checked.
namespace jetfile::detail {

inline std::uint16_t le16(const std::uint8_t* p) noexcept {
    return static_cast<std::uint16_t>(p[0] | (p[1] << 8));
}
inline std::uint32_t le24(const std::uint8_t* p) noexcept {
    return static_cast<std::uint32_t>(p[0]) | (static_cast<std::uint32_t>(p[1]) << 8) |
           (static_cast<std::uint32_t>(p[2]) << 16);
}
inline std::uint32_t le32(const std::uint8_t* p) noexcept {
    return le24(p) | (static_cast<std::uint32_t>(p[3]) << 24);
}
inline std::uint64_t le64(const std::uint8_t* p) noexcept {
    return static_cast<std::uint64_t>(le32(p)) | (static_cast<std::uint64_t>(le32(p + 4)) << 32);
}
inline double leDouble(const std::uint8_t* p) noexcept {
    const std::uint64_t bits = le64(p);
    double d;
    std::memcpy(&d, &bits, sizeof d);
    return d;
}
inline float leFloat(const std::uint8_t* p) noexcept {
    const std::uint32_t bits = le32(p);
    float f;
    std::memcpy(&f, &bits, sizeof f);
    return f;
}

inline constexpr std::size_t kPageSize = 4096;

// Row slots on data pages: the low 13 bits are the offset, the top bits mark the slot.
inline constexpr std::uint16_t kSlotDeleted = 0x8000;
inline constexpr std::uint16_t kSlotOverflow = 0x4000;
inline constexpr std::uint16_t kSlotOffsetMask = 0x1FFF;

// Page types (byte 0 of every page).
inline constexpr std::uint8_t kPageData = 0x01;
inline constexpr std::uint8_t kPageTableDef = 0x02;
inline constexpr std::uint8_t kPageUsageMap = 0x05;

} // namespace jetfile::detail
