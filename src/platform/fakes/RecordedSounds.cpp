#include "platform/fakes/RecordedSounds.h"

#include <utility>

namespace veyrand::platform {

void RecordedSounds::startLoop(std::string_view name, double volume)
{
    m_loop = Loop { std::string(name), volume };
    ++m_loopsStarted;
}

void RecordedSounds::setLoopVolume(double volume)
{
    if (m_loop) {
        m_loop->volume = volume;
    }
}

int RecordedSounds::volume(SoundKind kind) const
{
    const auto found = m_volumes.find(kind);
    return found != m_volumes.end() ? found->second : 100;
}

std::vector<std::string> RecordedSounds::takePlayed()
{
    return std::exchange(m_played, {});
}

} // namespace veyrand::platform
