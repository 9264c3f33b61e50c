#include "platform/fakes/RecordedSounds.h"

#include "platform/SoundsContract.h"

namespace veyrand::platform {

namespace {

class RecordedSoundsHarness {
public:
    Sounds& sounds() { return m_sounds; }
    bool isHeard()
    {
        const bool loops = m_sounds.loop() && m_sounds.loop()->volume > 0.0;
        return !m_sounds.takePlayed().empty() || loops;
    }

private:
    platform::RecordedSounds m_sounds;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, SoundsContract, RecordedSoundsHarness);

} // namespace veyrand::platform
