#pragma once

#include "catalogue/Puzzle.h"
#include "engine/PackedLine.h"
#include "engine/PackedMoves.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace veyrand::catalogue {

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

// A line of the game's letters; throws std::runtime_error for any other.
[[nodiscard]] engine::PackedLine packed(const std::string& line);

// A line one move away, and every move that leads there.
struct Step {
    engine::PackedLine line;
    MoveSet moves = 0;
};

// The different lines that a player with these moves can make of this one, in the order in which
// the game's search meets them. The line itself is not among them, nor one that is too long.
[[nodiscard]] std::vector<Step> stepsFrom(engine::PackedLine line, MoveSet open);

// A move as it can be written down and replayed.
struct Move {
    unsigned rule = 0; // index into the seven
    unsigned match = 0; // index among the rule's matches on the line
    friend bool operator==(const Move&, const Move&) = default;
};

// The first of these moves that leads from one line to the other.
[[nodiscard]] std::optional<Move> moveBetween(
    engine::PackedLine from, engine::PackedLine to, MoveSet open);

} // namespace veyrand::catalogue
