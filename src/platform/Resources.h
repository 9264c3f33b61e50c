#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace veyrand::platform {

// The application's named resources that the core reads as bytes (the puzzle catalogues, the texts
// of the pages). Images and sounds are fetched by name behind the ports that show and play them.
class Resources {
public:
    Resources() = default;
    Resources(const Resources&) = delete;
    Resources& operator=(const Resources&) = delete;
    virtual ~Resources() = default;

    // The bytes of the resource ("Theorems", "txt"), or nothing when it cannot be read.
    [[nodiscard]] virtual std::optional<std::string> dataNamed(
        std::string_view name, std::string_view type) const = 0;
};

} // namespace veyrand::platform
