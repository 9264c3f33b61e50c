#pragma once

#include "monkey/CagedGame.h"

#include <functional>
#include <optional>
#include <vector>

namespace veyrand::test {

// What a monkey found.
struct Finding {
    std::string fault;
    std::vector<Event> events; // that lead to it
};

// What decides what a monkey does: the next number each time.
using Dice = std::function<std::uint32_t()>;

// The same number makes the same dice.
[[nodiscard]] Dice diceOf(std::uint32_t number);
[[nodiscard]] Cage cageFrom(const Dice& dice);

// Presses, drags, types and waits without sense or mercy, and now and then plays a move, so that
// it sees more than refusals. The same dice do the same.
class Monkey {
public:
    Monkey(Dice dice, const MakeBody& makeBody = bodyWithoutWindow);

    // So many events and the way out, or fewer where something is found.
    [[nodiscard]] std::optional<Finding> play(int events);
    [[nodiscard]] const Cage& cage() const { return m_cage; }
    [[nodiscard]] const CagedGame& game() const { return m_game; }

private:
    [[nodiscard]] Event next();
    [[nodiscard]] std::optional<Event> roomAgain();
    [[nodiscard]] Event seldom(unsigned choice);
    [[nodiscard]] Event anyGesture();
    [[nodiscard]] Event move();
    [[nodiscard]] std::optional<play::Gesture> bestMove();
    [[nodiscard]] Event waiting();
    [[nodiscard]] Event setting();
    [[nodiscard]] Event key();
    [[nodiscard]] Event pressSomewhere(Event::Kind kind);
    [[nodiscard]] std::string anyKey();
    [[nodiscard]] platform::Point anyPlace();
    [[nodiscard]] unsigned below(std::size_t bound)
    {
        return static_cast<unsigned>(m_dice() % bound);
    }

    Dice m_dice;
    Cage m_cage;
    CagedGame m_game;
    bool m_isDiskFull = false;
    bool m_quits = false; // with the next event
};

// As few of the events as still lead to a fault.
[[nodiscard]] Finding shrunk(
    const Cage& cage, Finding finding, const MakeBody& makeBody = bodyWithoutWindow);

} // namespace veyrand::test
