#pragma once

#include <string_view>

namespace veyrand::platform {

enum class SoundKind { Music, Effects };

// Named sounds: short effects, and one loop at a time for the music. A sound that cannot be played
// is reported once by the implementation and never stops the game.
class Sounds {
public:
    Sounds() = default;
    Sounds(const Sounds&) = delete;
    Sounds& operator=(const Sounds&) = delete;
    virtual ~Sounds() = default;

    virtual void play(std::string_view name) = 0;

    // Starts the loop from its beginning at a volume from 0 to 1; a loop already playing is stopped
    // first. Loops may fade in and out.
    virtual void startLoop(std::string_view name, double volume) = 0;
    // Changes the volume without a break. Does nothing when no loop plays.
    virtual void setLoopVolume(double volume) = 0;
    virtual void stopLoop() = 0;

    // What the player sets, in percent, for everything of a kind that sounds or will: 0 is silent,
    // 100, which it is at first, as the sounds were made. Music at 0 goes on unheard.
    virtual void setVolume(SoundKind kind, int percent) = 0;
};

} // namespace veyrand::platform
