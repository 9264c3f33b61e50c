#pragma once

#include "engine/PackedLine.h"
#include "engine/PackedMoves.h"
#include "play/Move.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace veyrand::play {

// The moves on packed lines, for whoever goes through many: lines one step away, whoever may take
// it, on whatever board.

// A set of moves: bit n is the move of index n.
using MoveSet = unsigned;

inline constexpr MoveSet kAllMoves = 0x7F;

[[nodiscard]] inline constexpr MoveSet only(unsigned move)
{
    return 1U << move;
}

// The game's seven moves on packed lines.
[[nodiscard]] const engine::PackedMoves& gameMoves();

// Calls visit(child) for each match of one rule, in order, however long the child is: from a line
// of the board none is ever too long for a word. Ends early, answering false, as soon as visit
// does.
template <class Visit>
bool forEachMatch(unsigned rule, engine::PackedLine line, const Visit& visit,
    const engine::PackedMoves& moves = gameMoves())
{
    engine::PackedMoves::Children children;
    moves.childrenByRule(rule, line, engine::PackedLine::kMostChips, children);
    return std::all_of(children.begin(), children.end(), visit);
}

// A line one move away, and every move that leads there.
struct Step {
    engine::PackedLine line;
    MoveSet moves = 0;
};

// The different lines that a player with these moves can make of this one, in the order in which
// the game's search meets them. The line itself is not among them, nor one that is too long.
[[nodiscard]] std::vector<Step> stepsFrom(engine::PackedLine line, MoveSet open);

// The first of these moves that leads from one line to the other.
[[nodiscard]] std::optional<Move> moveBetween(
    engine::PackedLine from, engine::PackedLine to, MoveSet open);

} // namespace veyrand::play
