#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace veyrand::fuzz {

inline std::string_view textOf(const std::uint8_t* data, std::size_t size)
{
    return { reinterpret_cast<const char*>(data), size };
}

// Bytes taken from the front, as the numbers and texts that somebody needs. Once they have run out
// there are zeros and empty texts.
class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size)
        : m_rest(textOf(data, size))
    {
    }

    [[nodiscard]] bool areLeft() const { return !m_rest.empty(); }

    [[nodiscard]] unsigned byte()
    {
        if (m_rest.empty()) {
            return 0;
        }
        const auto first = static_cast<unsigned char>(m_rest.front());
        m_rest.remove_prefix(1);
        return first;
    }
    [[nodiscard]] unsigned below(std::size_t bound)
    {
        const unsigned high = byte();
        return (high * 256U + byte()) % static_cast<unsigned>(bound);
    }
    // Any there is, those that are none among them.
    [[nodiscard]] double number()
    {
        double number = 0;
        char bytes[sizeof number] = {};
        const std::size_t size
            = m_rest.copy(bytes, sizeof number); // none there may be no place either
        std::memcpy(&number, bytes, sizeof number);
        m_rest.remove_prefix(size);
        return number;
    }
    // Up to the mark, which is taken off as well.
    [[nodiscard]] std::string_view textUpTo(char mark)
    {
        const std::size_t end = m_rest.find(mark);
        const std::string_view text = m_rest.substr(0, end);
        m_rest.remove_prefix(end == std::string_view::npos ? m_rest.size() : end + 1);
        return text;
    }
    [[nodiscard]] std::string_view rest() { return m_rest; }

private:
    std::string_view m_rest;
};

} // namespace veyrand::fuzz
