#pragma once

#include "engine/Theorem.h"
#include "play/Ways.h"

#include <map>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace veyrand::play {

// Why the goal cannot be reached any more, as far as that can be said in a word.
enum class DeadEnd { Unsaid, ColourGone, TooFewLines, TooLong };

// "", "colour gone", "too few lines", "too long".
[[nodiscard]] std::string_view nameOf(DeadEnd why);

// What can be said of the lines on the board. All of it has been proven.
struct Advice {
    std::optional<unsigned> moves; // still needed; nothing: a dead end
    DeadEnd why = DeadEnd::Unsaid;
    char colour = 0; // the one that is gone
    unsigned goodRow = 0; // of a dead end: the last row from which the goal can be reached
    friend bool operator==(const Advice&, const Advice&) = default;
};

// Teaches one puzzle: how many moves are still needed after each line, exactly, within the board
// and by the moves that are open. It remembers what it has found out of lines that stand, so that
// going back, or on along a shortest way, costs nothing.
class Teacher {
public:
    Teacher(const engine::Theorem& goal, MoveSet open);

    // The lines are those on the board, the start line first.
    [[nodiscard]] Advice about(const std::vector<engine::Theorem>& lines);
    // The next line of a shortest way; nothing on a dead end.
    [[nodiscard]] std::optional<engine::Theorem> next(const std::vector<engine::Theorem>& lines);

private:
    struct Known {
        std::optional<unsigned> moves;
        engine::PackedLine next;
    };
    using Place = std::pair<std::uint64_t, unsigned>; // a line's word, and lines standing

    [[nodiscard]] const Known& know(engine::PackedLine line, unsigned standing);
    void explain(Advice& advice, engine::PackedLine last, engine::PackedLine good, unsigned row);
    [[nodiscard]] bool needs(char colour, engine::PackedLine from, unsigned standing);
    [[nodiscard]] bool leadsOnPastTheEdge(engine::PackedLine line, unsigned moves) const;

    engine::PackedLine m_goal;
    MoveSet m_open;
    WaySearch m_search;
    std::map<Place, Known> m_known;
};

} // namespace veyrand::play
