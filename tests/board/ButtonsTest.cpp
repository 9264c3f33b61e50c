#include "board/Buttons.h"

#include "board/ElementKey.h"

#include <gtest/gtest.h>
#include <set>

namespace veyrand::board {

TEST(Buttons, EachIsFoundByItsActionAndByEitherFace)
{
    std::set<std::string_view> keys;
    for (std::size_t index = 0; index < kButtons.size(); ++index) {
        const Button& button = kButtons.at(index);
        EXPECT_EQ(&buttonFor(static_cast<ButtonAction>(index)), &button);
        EXPECT_EQ(static_cast<std::size_t>(button.action), index);
        EXPECT_EQ(buttonWithLitFace(button.litKey), &button);
        EXPECT_EQ(buttonWithFace(button.key), &button);
        EXPECT_EQ(parsedKey(button.litKey).kind, ElementKey::Kind::Button);
        keys.insert(button.litKey);
        keys.insert(button.key);
    }
    EXPECT_EQ(keys.size(), 2 * kButtons.size());
    EXPECT_EQ(buttonWithLitFace("button-unheardof"), nullptr);
    EXPECT_EQ(buttonWithLitFace("button-lightbulboff"), nullptr);
    EXPECT_EQ(buttonWithFace("fullScreen-3i"), nullptr);
}

TEST(Buttons, AScreenHasItsOwnFromTheTopDown)
{
    for (const ButtonScreen screen : { ButtonScreen::Board, ButtonScreen::EndlessBoard,
             ButtonScreen::TitlePage, ButtonScreen::Question }) {
        double above = 1.0;
        int count = 0;
        forEachButton(screen, [&](const Button& button) {
            EXPECT_LT(button.y, above) << button.name;
            above = button.y;
            ++count;
        });
        EXPECT_GE(count, 2);
    }
}

} // namespace veyrand::board
