#pragma once

#include "play/Action.h"
#include "play/Position.h"
#include "play/Refusal.h"

#include <string>
#include <variant>
#include <vector>

namespace veyrand::play {

// What a gesture comes to: a Move or a Remove, or why it is refused. Complete, and pure: nothing is
// applied and taken back.
[[nodiscard]] std::variant<Action, Refusal> decide(
    const Position& position, const Gesture& gesture);

// Whether a lesson, if there is one, lets the gesture go on. It never minds a removal.
[[nodiscard]] bool accepts(const std::optional<Lesson>& lesson, const Gesture& gesture);

// The columns offered as drop targets for a chip of the last line, whatever moves are open: the
// drop itself is what is held against those. None from twelve lines on.
[[nodiscard]] std::vector<unsigned> targets(const Position& position, unsigned column);

// Every click, and every drop on a target, that is a move, by column.
[[nodiscard]] std::vector<Gesture> actions(const Position& position);

// The first of those that makes the line.
[[nodiscard]] std::optional<Gesture> gestureFor(const Position& position, const std::string& line);

// The line that a move makes of another; nothing when there is no such match.
[[nodiscard]] std::optional<engine::Theorem> lineAfter(
    const engine::Theorem& line, const Move& move);

// The columns of the match that a move rewrites; nothing when there is none.
[[nodiscard]] std::optional<engine::Range> matchOf(const engine::Theorem& line, const Move& move);

} // namespace veyrand::play
