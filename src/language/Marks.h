#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace veyrand::language {

// One stretch of a text: words, or a mark in braces. A mark is a value that the game puts in
// ("{lines}"), or chips that are shown as pictures: a letter each out of Y, R, G, B, ? (any chip)
// and * (any chips), then perhaps the gesture that is drawn over them: "{Y}", "{RRR drag}",
// "{GG click}".
struct Piece {
    enum class Kind { Words, Value, Chips };
    enum class Gesture { None, Drag, Click };

    Kind kind = Kind::Words;
    std::string text; // the words, the value's name, or the chips' letters
    Gesture gesture = Gesture::None;
};

// The text in its stretches. Throws std::invalid_argument with the reason where a brace is left
// open or a mark is neither chips nor a name.
[[nodiscard]] std::vector<Piece> piecesOf(std::string_view text);

// The names of the values in the text, each once, sorted. Throws as above.
[[nodiscard]] std::vector<std::string> valuesIn(std::string_view text);

} // namespace veyrand::language
