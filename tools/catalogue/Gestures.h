#pragma once

#include "catalogue/Steps.h"

#include <cstddef>
#include <optional>

namespace veyrand::catalogue {

// What a player does with the mouse, by columns from 0.
struct Gesture {
    enum class Kind { Click, Drag };
    Kind kind = Kind::Click;
    unsigned from = 0;
    unsigned to = 0; // of a drag
};

// A gesture by which the board makes the one line of the other, with so many moves open and so many
// lines standing. Nothing when it accepts none: the move is not open, the line has no room, or a
// drag finds no targets because the board is nearly full.
[[nodiscard]] std::optional<Gesture> gestureFor(engine::PackedLine from, engine::PackedLine to,
    engine::PackedLine goal, int highestRule, std::size_t standing);

} // namespace veyrand::catalogue
