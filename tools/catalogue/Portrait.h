#pragma once

#include "catalogue/Ideas.h"
#include "catalogue/Kindness.h"
#include "catalogue/Likeness.h"
#include "catalogue/Metrics.h"

#include <optional>

namespace veyrand::catalogue {

// All that is known of a Classic puzzle: by it puzzles are chosen, compared and held to what their
// level promises.
struct Portrait {
    Puzzle puzzle;
    Metrics metrics;
    int highestRule = 0; // moves that must be open for every shortest solution
    IdeaSet ideas = 0;
    Way way;
    unsigned steps = 0; // of the human-like solver
    Kindness kindness;
};

// Makes portraits, with memory shared between them.
class Painter {
public:
    // For a player with these moves open. Nothing when there is no solution.
    [[nodiscard]] std::optional<Portrait> paint(const Puzzle& puzzle, MoveSet open);

    // The same of a line that a root's reach holds already.
    [[nodiscard]] std::optional<Portrait> paint(
        const Reach& reach, engine::PackedLine root, engine::PackedLine goal, MoveSet open);

private:
    Reach m_reach;
    Board m_board;
    std::optional<std::pair<engine::PackedLine, MoveSet>> m_explored; // by the board
};

} // namespace veyrand::catalogue
