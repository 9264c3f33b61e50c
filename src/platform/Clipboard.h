#pragma once

#include <functional>
#include <string>

namespace veyrand::platform {

// What the player has copied, here or elsewhere, and means to paste.
class Clipboard {
public:
    Clipboard() = default;
    Clipboard(const Clipboard&) = delete;
    Clipboard& operator=(const Clipboard&) = delete;
    virtual ~Clipboard() = default;

    [[nodiscard]] virtual std::string text() const = 0; // empty when it holds none
    virtual void setText(const std::string& text) = 0;

    // Calls the function with the text, at once where nobody has to be asked for it; elsewhere the
    // function is kept until somebody has agreed.
    // NOLINTNEXTLINE(performance-unnecessary-value-param)
    virtual void askForText(std::function<void(const std::string& text)> use) { use(text()); }
};

} // namespace veyrand::platform
