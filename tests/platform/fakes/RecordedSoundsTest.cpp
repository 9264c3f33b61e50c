#include "platform/fakes/RecordedSounds.h"

#include "platform/SoundsContract.h"

namespace veyrand::platform {

namespace {

class RecordedSoundsHarness {
public:
    Sounds& sounds() { return m_sounds; }
    bool isHeard()
    {
        const bool loops = m_sounds.loop() && m_sounds.loop()->volume > 0.0
            && m_sounds.volume(SoundKind::Music) > 0;
        const bool effects
            = !m_sounds.takePlayed().empty() && m_sounds.volume(SoundKind::Effects) > 0;
        return effects || loops;
    }

private:
    platform::RecordedSounds m_sounds;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, SoundsContract, RecordedSoundsHarness);

} // namespace veyrand::platform
