#pragma once

#include "monkey/CagedGame.h"

#include <optional>
#include <random>
#include <vector>

namespace veyrand::test {

// What a monkey found.
struct Finding {
    std::string fault;
    std::vector<Event> events; // that lead to it
};

// Presses, drags, types and waits without sense or mercy, and now and then plays a move, so that
// it sees more than refusals. The same number does the same.
class Monkey {
public:
    explicit Monkey(std::uint32_t number);

    // So many events, or fewer where something is found.
    [[nodiscard]] std::optional<Finding> play(int events);
    [[nodiscard]] const Cage& cage() const { return m_cage; }

private:
    [[nodiscard]] Event next();
    [[nodiscard]] Event anyGesture();
    [[nodiscard]] Event move();
    [[nodiscard]] Event waiting();
    [[nodiscard]] Event pressSomewhere(Event::Kind kind);
    [[nodiscard]] std::string anyKey();
    [[nodiscard]] platform::Point anyPlace();
    [[nodiscard]] unsigned below(std::size_t bound)
    {
        return static_cast<unsigned>(m_random() % bound);
    }

    std::mt19937 m_random;
    Cage m_cage;
    CagedGame m_game;
};

// As few of the events as still lead to a fault.
[[nodiscard]] Finding shrunk(const Cage& cage, Finding finding);

} // namespace veyrand::test
