#pragma once

#include "engine/Range.h"
#include "play/PuzzleCode.h"
#include "play/Ways.h"

#include <optional>
#include <string>
#include <vector>

namespace veyrand::play {

// One line of a solution, and what the move that made it was worth.
struct TrailStep {
    std::string line;
    Move move {}; // says nothing of the start line
    unsigned more = 0; // moves that it cost beyond the shortest way on from the line before
    MoveSet instead = 0; // where it cost any: the moves that would have cost none
};

// A solution line by line. The moves must follow from each other.
[[nodiscard]] std::vector<TrailStep> trailOf(
    const CodedPuzzle& puzzle, const std::vector<Move>& moves);
// The same of one of the shortest ways.
[[nodiscard]] std::vector<TrailStep> trailOf(const Ways& ways, std::uint64_t number, MoveSet open);

// Finds out where a solution left the shortest ways that these moves open, line by line.
void markWhereItLeaves(std::vector<TrailStep>& trail, WaySearch& search, MoveSet open);

// The columns of the stones that a move was about, of the line it was made on: the one that was
// clicked, or those from which to which it was dragged.
[[nodiscard]] std::optional<engine::Range> stonesOf(const std::string& line, const Move& move);

} // namespace veyrand::play
