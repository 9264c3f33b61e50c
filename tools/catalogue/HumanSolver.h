#pragma once

#include "catalogue/Steps.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace veyrand::platform {
class Random;
}

namespace veyrand::catalogue {

// Solves a puzzle the way a person seems to, and counts the lines it takes: the second measure of
// difficulty. It sees the board, the goal and a few lines that are one move before the goal; it
// remembers a handful of lines that it has made; it goes by how much a line begins and ends like
// the goal, by the chips of each colour and by the place of the yellow; it looks one move further
// at the two lines it likes best, is not sure of any of this, and begins again when some lines have
// brought it no nearer.
//
// One object serves one puzzle, and remembers what it has worked out of its lines.
class HumanSolver {
public:
    static constexpr unsigned kMostSteps = 60000; // patience of one try
    static constexpr unsigned kTries = 15;

    HumanSolver(engine::PackedLine root, engine::PackedLine goal, MoveSet open);

    // Lines made until the goal is; `most` when it gives up. The same seed takes the same steps.
    [[nodiscard]] unsigned solve(std::uint32_t seed, unsigned most = kMostSteps);

    // The median of some tries, an odd number, with the seeds from 1 on. Nobody waits longer than
    // `most`.
    [[nodiscard]] unsigned medianSteps(unsigned tries = kTries, unsigned most = kMostSteps);

private:
    struct Node {
        engine::PackedLine line;
        int worth = 0; // how much it looks like what is wanted
        int bestNext = 0; // the most that one of the next is worth
        bool isOpened = false;
        std::vector<std::uint32_t> next;
    };
    class Try;

    std::uint32_t nodeOf(engine::PackedLine line);
    const Node& opened(std::uint32_t index);
    [[nodiscard]] int worthOf(engine::PackedLine line) const;

    MoveSet m_open;
    engine::PackedLine m_goal;
    std::vector<engine::PackedLine> m_targets; // the goal, and lines one move before it
    std::vector<Node> m_nodes;
    std::unordered_map<std::uint64_t, std::uint32_t> m_numbers;
};

// The lines that one of these moves makes the goal of, as far as somebody sees them at a glance: of
// what lay between two blues no more than one chip.
[[nodiscard]] std::vector<engine::PackedLine> linesBefore(engine::PackedLine goal, MoveSet open);

} // namespace veyrand::catalogue
