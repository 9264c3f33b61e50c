#pragma once

#include "platform/Effect.h"
#include "platform/Menu.h"
#include "platform/Sounds.h"

namespace veyrand::platform {

// The sounds that play only while the effects menu item is on.
class SoundEffects {
public:
    SoundEffects(Sounds& sounds, const Menu& menu)
        : m_sounds(sounds)
        , m_menu(menu)
    {
    }

    void play(Effect effect) const
    {
        if (m_menu.effectsOn()) {
            m_sounds.play(nameOf(effect));
        }
    }

private:
    Sounds& m_sounds;
    const Menu& m_menu;
};

} // namespace veyrand::platform
