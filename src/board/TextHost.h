#pragma once

#include "board/GameObject.h"

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

// What the board asks of the rooms above for its text elements: the text lives on the record's
// layer, of which the board knows nothing.
class TextHost {
public:
    TextHost() = default;
    TextHost(const TextHost&) = delete;
    TextHost& operator=(const TextHost&) = delete;
    virtual ~TextHost() = default;

    // Puts a centred line of text onto the record's layer; the record is in the table already.
    virtual void attachText(const GameObject& record, const TextStyle& style) = 0;
    // The text on the record's layer; empty when it has none.
    [[nodiscard]] virtual std::string shownText(const GameObject& record) const = 0;
};

// What drawing the buttons asks of the input above: their hit areas, made anew.
class ButtonTracking {
public:
    ButtonTracking() = default;
    ButtonTracking(const ButtonTracking&) = delete;
    ButtonTracking& operator=(const ButtonTracking&) = delete;
    virtual ~ButtonTracking() = default;

    virtual void establishButtonTracking() = 0;
};

} // namespace veyrand::board
