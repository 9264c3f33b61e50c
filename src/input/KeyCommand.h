#pragma once

#include <optional>
#include <string_view>

namespace veyrand::input {

// What a key on the board means, whatever toolkit tells of it.
struct KeyCommand {
    enum class Verb {
        Left,
        Right,
        Up,
        Down,
        FarLeft,
        FarRight,
        FarUp,
        FarDown,
        First, // of the row
        Last,
        NextGroup,
        PreviousGroup,
        Column,
        Click,
        Lift,
        PutBack,
        TakeBack, // the last line
        Hint,
        Moves,
        HowFar, // the goal is
        SpeakGoal,
        SpeakLine,
        SpeakDifference,
        SpeakPoints,
        SpeakAgain,
        SpeakChoices,
    };

    Verb verb = Verb::Click;
    unsigned column = 0; // of Column, from 0

    friend bool operator==(const KeyCommand&, const KeyCommand&) = default;
};

// Keys as menus spell them: "Ctrl+Right", "Shift+Tab", "7", "H". Nothing for keys the board has no
// use for.
[[nodiscard]] std::optional<KeyCommand> commandFor(std::string_view keys);

// A letter that does nothing but speak. The player may have switched those off, because a reader or
// a dictation uses them.
[[nodiscard]] bool speaks(KeyCommand::Verb verb);

// Moves the focus; held down, it goes on. Every other command is given once for each press.
[[nodiscard]] bool movesFocus(KeyCommand::Verb verb);

} // namespace veyrand::input
