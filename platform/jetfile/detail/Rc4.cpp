#include "platform/jetfile/detail/Rc4.h"

#include <utility>

namespace jetfile::detail {

Rc4::Rc4(const std::uint8_t* key, std::size_t keyLength) noexcept {
    for (int i = 0; i < 256; ++i) {
        m_state[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(i);
    }
    std::uint8_t j = 0;
    for (std::size_t i = 0; i < 256; ++i) {
        j = static_cast<std::uint8_t>(j + m_state[i] + key[i % keyLength]);
        std::swap(m_state[i], m_state[j]);
    }
}

void Rc4::apply(std::uint8_t* data, std::size_t length) noexcept {
    for (std::size_t k = 0; k < length; ++k) {
        m_i = static_cast<std::uint8_t>(m_i + 1);
        m_j = static_cast<std::uint8_t>(m_j + m_state[m_i]);
        std::swap(m_state[m_i], m_state[m_j]);
        data[k] ^= m_state[static_cast<std::uint8_t>(m_state[m_i] + m_state[m_j])];
    }
}

} // namespace jetfile::detail
