#pragma once

#include "platform/MemoryPreferences.h"
#include "platform/fakes/MemoryJournal.h"

namespace veyrand::test {

// What a simulated game keeps, and finds again when it is launched anew: its player's record and
// its journals.
class SimulatedDisk {
public:
    SimulatedDisk() = default;
    SimulatedDisk(const SimulatedDisk&) = delete;
    SimulatedDisk& operator=(const SimulatedDisk&) = delete;
    virtual ~SimulatedDisk() = default;

    [[nodiscard]] virtual platform::Preferences& preferences() = 0;
    [[nodiscard]] virtual platform::Journal& journal() = 0;
};

// One that is nowhere but in memory, and fills up when it is told to: then no journal can be
// written until there is room again.
class MemoryDisk final : public SimulatedDisk {
public:
    [[nodiscard]] platform::MemoryPreferences& preferences() override { return m_preferences; }
    [[nodiscard]] platform::MemoryJournal& journal() override { return m_journal; }

private:
    platform::MemoryPreferences m_preferences;
    platform::MemoryJournal m_journal;
};

} // namespace veyrand::test
