#pragma once

#include <string>

namespace veyrand::platform {

// The texts of the program in the player's language. A text without a translation is shown as it
// stands in the code.
class Texts {
public:
    Texts() = default;
    Texts(const Texts&) = delete;
    Texts& operator=(const Texts&) = delete;
    virtual ~Texts() = default;

    // The context tells translators where the text occurs: the name of the class that shows it.
    [[nodiscard]] virtual std::string localized(const char* context, const char* text) const = 0;
};

} // namespace veyrand::platform
