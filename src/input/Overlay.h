#pragma once

namespace veyrand::input {

// What lies over the board or the title page, at most one at a time: a page takes every press, play
// goes on beside a note, a question is answered by its own two buttons.
enum class Overlay { None, Page, Note, Question };

} // namespace veyrand::input
