#pragma once

#include "platform/TextMetrics.h"

namespace veyrand::headless {

// A font that nobody has: each letter is half an em wide, about as the game's own letters are on
// the average. Texts keep their places by it; where their ends lie to the pixel, only a real font
// tells.
class EvenLetters final : public platform::TextMetrics {
public:
    [[nodiscard]] platform::Size preferredFrameSize(std::string_view text) const override
    {
        constexpr double kWidth = 0.5; // em
        constexpr double kHeight = 1.2;
        std::size_t letters = 0;
        for (const char byte : text) {
            const bool continues = (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; // UTF-8
            letters += continues ? 0 : 1;
        }
        return { .width = kWidth * static_cast<double>(letters), .height = kHeight };
    }
};

} // namespace veyrand::headless
