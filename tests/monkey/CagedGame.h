#pragma once

#include "headless/HeadlessGame.h"
#include "monkey/Event.h"
#include "platform/fakes/MemoryJournal.h"

#include <memory>

namespace veyrand::test {

// A game with what outlasts it, to which events are done one by one, and what must hold of it after
// each, whatever was done.
class CagedGame {
public:
    explicit CagedGame(const Cage& cage);

    // What no longer holds, in words; empty while all does. An event that finds nothing to be done
    // to, as a key that is not on the board, does nothing.
    [[nodiscard]] std::string perform(const Event& event);

    [[nodiscard]] headless::HeadlessGame& game() { return *m_game; }

private:
    void launch();
    void act(const Event& event);
    [[nodiscard]] std::optional<platform::Point> placeOf(
        const std::string& key, platform::Point place);
    [[nodiscard]] std::string restart();

    [[nodiscard]] std::string faultNow();
    [[nodiscard]] std::string faultOfLayers();
    [[nodiscard]] std::string faultOfPurse();
    [[nodiscard]] std::string faultOfJournals() const;
    [[nodiscard]] std::string faultAtRest();
    [[nodiscard]] bool isAtRest();

    std::uint32_t m_seed;
    platform::MemoryPreferences m_preferences;
    platform::MemoryJournal m_journal;
    std::unique_ptr<headless::HeadlessGame> m_game;
    bool m_isHeld = false; // the button
    unsigned long m_events = 0;
};

} // namespace veyrand::test
