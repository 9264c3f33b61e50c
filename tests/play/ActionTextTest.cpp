#include "play/ActionText.h"

#include "play/ActionGenerators.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace veyrand::play {

using progress::Mode;

TEST(ActionText, SaysEachActionInOneLine)
{
    const std::vector<std::pair<std::string, Action>> texts {
        { "puzzle 5-4 YGBRB BBYBB 6 470 0",
            Puzzle { Mode::Classic, { 5, 4 }, "YGBRB", "BBYBB", 6, 470, 0 } },
        { "puzzle endless YGR YGRGR 2 -10 100",
            Puzzle { Mode::Endless, {}, "YGR", "YGRGR", 2, -10, 100 } },
        { "move 1 0", Move { 1, 0 } },
        { "remove 12", Remove { 12 } },
        { "hint good", Hint { Hint::Kind::Good } },
        { "hint back 3", Hint { Hint::Kind::Back, 3 } },
        { "hint pieces", Hint { Hint::Kind::Pieces } },
        { "hint line 6 2", Hint { Hint::Kind::Line, 0, { 6, 2 } } },
        { "hint nothing", Hint { Hint::Kind::Nothing } },
        { "undo", Undo {} },
        { "redo", Redo {} },
        { "leave 7", Leave { 7 } },
    };
    for (const auto& [text, action] : texts) {
        EXPECT_EQ(print(action), text);
        EXPECT_EQ(parse(text), action) << text;
    }
}

TEST(ActionText, UnderstandsNothingElse)
{
    for (const char* const text : { "", " ", "Move 1 0", "move", "move 1", "move 1 0 ", " move 1 0",
             "move  1 0", "move 1 0 0", "move +1 0", "move -1 0", "move 01 0", "move 1 4294967296",
             "move 1 0\n", "move one 0", "move 1.5 0", "remove", "remove -1", "undo 1", "redo now",
             "leave", "hint", "hint bad", "hint good 1", "hint back", "hint back x",
             "hint nothing 1", "hint line x 2", "hint line 6 x", "hint line 6", "hint pieces ",
             "puzzle 5-4 YGBRB BBYBB 6 470", "puzzle 5-4 YGBRB BBYBB 6 470 0 0",
             "puzzle 5 YGBRB BBYBB 6 470 0", "puzzle 5-4 YGXRB BBYBB 6 470 0",
             "puzzle 5-4  BBYBB 6 470 0", "puzzle 5- YGBRB BBYBB 6 470 0",
             "puzzle x-4 YGBRB BBYBB 6 470 0", "puzzle 5-4 YGBRB BBYXB 6 470 0",
             "puzzle 5-4 YGBRB BBYBB 6 9223372036854775808 0", "puzzle Endless YGR YGR 2 0 0" }) {
        EXPECT_EQ(parse(text), std::nullopt) << '"' << text << '"';
    }
}

RC_GTEST_PROP(ActionText, ParsingInvertsPrinting, ())
{
    const Action action = *anyAction();
    RC_ASSERT(parse(print(action)) == std::optional(action));
}

// Whatever is understood at all is a text that is printed: two texts never mean the same.
RC_GTEST_PROP(ActionText, PrintingInvertsParsing, ())
{
    std::string text = print(*anyAction());
    const auto at = *rc::gen::inRange<std::size_t>(0, text.size());
    text[at] = *rc::gen::element('0', '1', '-', '+', ' ', 'Y', 'd', '\n', '\0');
    const auto action = parse(text);
    RC_ASSERT((!action || print(*action) == text));
}

} // namespace veyrand::play
