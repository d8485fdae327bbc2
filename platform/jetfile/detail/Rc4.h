#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace jetfile::detail {

// The RC4 stream cipher, which Jet uses both to mask part of the header and to encode the pages
// of an "encrypted" database. Applying it twice gives the input back.
class Rc4 {
public:
    Rc4(const std::uint8_t* key, std::size_t keyLength) noexcept;
    void apply(std::uint8_t* data, std::size_t length) noexcept;

private:
    std::array<std::uint8_t, 256> m_state{};
    std::uint8_t m_i = 0;
    std::uint8_t m_j = 0;
};

} // namespace jetfile::detail
