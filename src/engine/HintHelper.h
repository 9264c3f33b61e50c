#pragma once

#include "engine/Proof.h"

#include <map>
#include <memory>
#include <optional>

namespace veyrand::engine {

// Lines a finished proof may have, the root included.
inline constexpr unsigned kMostLines = 13;

// How many chips of each letter a line holds: always the four keys Y, R, G and B.
using HintMatrix = std::map<char, unsigned>;

// Works out what the player should do next: the line to make, or, when the last lines lead nowhere,
// the row to go back to. The controller makes one for a hint and drops it when the proof changes;
// it answers for the lines that stood when it was made. It is for its proof's thread.
class HintHelper {
public:
    explicit HintHelper(std::shared_ptr<const Proof> proof);

    // A shortest way from the proof's last line to its goal that still fits on the board.
    [[nodiscard]] const std::optional<Path>& solution() const { return m_solution; }

    // The next line to make; nothing when there is no solution or it would run through a line that
    // already stands: the hint is then to go back.
    [[nodiscard]] std::optional<Theorem> nextTheorem() const;
    [[nodiscard]] std::optional<HintMatrix> nextTheoremAsMatrix() const;

    // The last row (from 0) from which the goal can be reached within the board: the last one of
    // all while there is a next line, and 0 when no row qualifies.
    [[nodiscard]] unsigned lastGoodRow() const;

private:
    std::shared_ptr<const Proof> m_proof;
    std::optional<Path> m_solution;
};

} // namespace veyrand::engine
