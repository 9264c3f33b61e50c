#pragma once

namespace veyrand::platform {

// The menu items that the game reads. Their on-state is the player's choice.
class Menu {
public:
    Menu() = default;
    Menu(const Menu&) = delete;
    Menu& operator=(const Menu&) = delete;
    virtual ~Menu() = default;

    [[nodiscard]] virtual bool musicOn() const = 0;
    [[nodiscard]] virtual bool effectsOn() const = 0;
};

} // namespace veyrand::platform
