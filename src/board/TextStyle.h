#pragma once

#include <string>

namespace veyrand::board {

struct Color {
    double red = 1.0;
    double green = 1.0;
    double blue = 1.0;
    double alpha = 1.0;
    friend bool operator==(const Color&, const Color&) = default;
};

// One line of text in the game's font. Sizes count in nine-hundredths of the game height, so that
// 60 stands for one fifteenth of it and text keeps its place on every screen.
struct TextStyle {
    std::string text;
    double fontSize = 60.0;
    Color color {};
};

} // namespace veyrand::board
