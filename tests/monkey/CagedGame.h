#pragma once

#include "monkey/Body.h"
#include "monkey/Event.h"
#include "monkey/Invariants.h"
#include "support/SimulatedDisk.h"

#include <memory>

namespace veyrand::test {

// A game with what outlasts it, to which events are done one by one, and what must hold of it after
// each, whatever was done.
class CagedGame {
public:
    // What takes long to look at: now and then, or, to find the very event that breaks something,
    // after each.
    enum class Looking { NowAndThen, Always };

    explicit CagedGame(const Cage& cage, const MakeBody& makeBody = bodyWithoutWindow,
        Looking looking = Looking::NowAndThen);

    // What no longer holds, in words; empty while all does. An event that finds nothing to be done
    // to, as a key that is not on the board, does nothing.
    [[nodiscard]] std::string perform(const Event& event);
    // The same for whoever has had enough: every page, note, sheet and question has a way out.
    [[nodiscard]] std::string findWayOut();

    [[nodiscard]] headless::HeadlessGame& game() { return m_body->game(); }
    // What can be pressed now, by its key: things on the board, and what a sheet before it offers.
    [[nodiscard]] std::vector<std::string> keys();
    // How often rows, buttons and chips were looked at while nothing moved.
    [[nodiscard]] unsigned long rests() const { return m_rests; }
    [[nodiscard]] unsigned long solved() const { return m_solved; } // puzzles

private:
    void launch();
    void act(const Event& event);
    void actAt(const Event& event, platform::Point place);
    void press(platform::Point place);
    void set(const std::string& item, int value);
    [[nodiscard]] std::optional<platform::Point> placeOf(
        const std::string& key, platform::Point place);
    // Whoever quits lets the game say its last words; whoever kills it does not.
    enum class End { Quit, Kill };
    [[nodiscard]] std::string restart(End end);
    [[nodiscard]] bool looksClosely(unsigned long shift) const;

    Looking m_looking;
    MemoryDisk m_disk;
    std::unique_ptr<Body> m_body;
    bool m_isHeld = false; // the button
    bool m_isDiskFull = false;
    bool m_hasDiskFailed = false; // since the launch
    SetAside m_setAside = SetAside::Never;
    unsigned long m_events = 0;
    unsigned long m_rests = 0;
    unsigned long m_solved = 0;
    std::string m_faultOfPage; // of the last press
};

} // namespace veyrand::test
