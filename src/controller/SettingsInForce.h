#pragma once

#include "controller/GameContext.h"

namespace veyrand::controller {

// Hands what the player has chosen to whatever in the game moves, looks or sounds by it: the tempo,
// the taste for motion, the drawings of the stones and the volumes. Where the desktop decides on
// motion, it is asked, and believed again whenever it changes its mind.
class SettingsInForce {
public:
    explicit SettingsInForce(GameContext& context);
    SettingsInForce(const SettingsInForce&) = delete;
    SettingsInForce& operator=(const SettingsInForce&) = delete;
    ~SettingsInForce();

    // The preferences have changed.
    void apply();

private:
    [[nodiscard]] bool wantsLessMotion(progress::Settings::ReducedMotion choice) const;

    GameContext& m_game;
};

} // namespace veyrand::controller
