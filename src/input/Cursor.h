#pragma once

#include <string_view>

namespace veyrand::input {

// What the pointer looks like: over what can be clicked, over what can be dragged, while dragging,
// and elsewhere.
enum class Cursor { Arrow, Pointing, Open, Closed };

[[nodiscard]] constexpr std::string_view nameOf(Cursor cursor)
{
    switch (cursor) {
    case Cursor::Pointing:
        return "pointing";
    case Cursor::Open:
        return "open";
    case Cursor::Closed:
        return "closed";
    case Cursor::Arrow:
        break;
    }
    return "arrow";
}

} // namespace veyrand::input
