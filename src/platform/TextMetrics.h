#pragma once

#include "platform/Geometry.h"

#include <string_view>

namespace veyrand::platform {

// Measures one line of text in the game's font.
class TextMetrics {
public:
    TextMetrics() = default;
    TextMetrics(const TextMetrics&) = delete;
    TextMetrics& operator=(const TextMetrics&) = delete;
    virtual ~TextMetrics() = default;

    // Advance width and ascent plus descent, in units of the em (multiply by the font size).
    [[nodiscard]] virtual Size preferredFrameSize(std::string_view text) const = 0;
};

} // namespace veyrand::platform
