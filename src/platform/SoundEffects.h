#pragma once

#include "platform/Effect.h"
#include "platform/Sounds.h"

#include <functional>
#include <utility>

namespace veyrand::platform {

// The sounds that play only while the player has effects switched on, which is asked anew for each.
class SoundEffects {
public:
    SoundEffects(Sounds& sounds, std::function<bool()> areOn)
        : m_sounds(sounds)
        , m_areOn(std::move(areOn))
    {
    }

    void play(Effect effect) const
    {
        if (m_areOn()) {
            m_sounds.play(nameOf(effect));
        }
    }

private:
    Sounds& m_sounds;
    std::function<bool()> m_areOn;
};

} // namespace veyrand::platform
