#pragma once

#include "catalogue/HintSearch.h"

namespace veyrand::platform {
class Random;
}

namespace veyrand::catalogue {

// A player who does nothing but what the hints say, by gestures the board accepts. Where the hints
// ask to go back, lines go as the board removes them.
class HintPlayer {
public:
    struct Game {
        HintSearch::Lines lines; // as they stand at the end
        bool solved = false;
        bool strayed = false; // there was a detour to take
        unsigned placed = 0; // hinted lines that no gesture could make after the detour
    };

    HintPlayer(HintSearch& hints, int highestRule)
        : m_hints(hints)
        , m_highestRule(highestRule)
    {
    }

    [[nodiscard]] Game play(const Puzzle& puzzle);

    // With one accepted gesture on the way that is not the hinted one, at a random line. A hinted
    // line that then cannot be made is placed, as the third click on the light bulb places it.
    [[nodiscard]] Game playWithDetour(const Puzzle& puzzle, platform::Random& random);

private:
    // One hint followed; false when there is no way on.
    bool followHint(Game& game, engine::PackedLine goal);
    void stray(Game& game, engine::PackedLine goal, platform::Random& random);
    void finish(Game& game, engine::PackedLine goal);

    HintSearch& m_hints;
    int m_highestRule;
};

} // namespace veyrand::catalogue
