#include "controller/HistoryFixture.h"

namespace veyrand::controller {

TEST_F(HistoryTest, LeavesThePictureAsItWasPixelForPixel)
{
    struct Step {
        const char* root;
        std::vector<std::string> gesture; // a key to click, or two to drag between
    };
    const std::vector<Step> moves { { "YR", { "chip-1-0" } }, { "YRG", { "chip-0-0" } },
        { "YRRRG", { "chip-1-0", "chip-3-0" } }, { "YGGR", { "chip-1-0", "chip-2-0" } },
        { "YRGB", { "chip-0-0", "chip-2-0" } }, { "YGGR", { "chip-1-0" } },
        { "YBRGBR", { "chip-1-0", "chip-4-0" } } };
    for (const auto& [root, gesture] : moves) {
        play(root, "YB");
        const QImage before = atRest();
        gesture.size() == 1 ? click(gesture[0]) : drag(gesture[0], gesture[1]);
        const QImage after = atRest();
        ASSERT_NE(before, after) << root;
        undo();
        EXPECT_EQ(atRest(), before) << root;
        redo();
        EXPECT_EQ(atRest(), after) << root;
        click("delete-1");
        EXPECT_EQ(atRest(), before) << root;
        undo();
        EXPECT_EQ(atRest(), after) << root;
        redo();
        wait(0.1);
        undo();
        EXPECT_EQ(atRest(), after) << root << ", the removal's redo cut short";
    }
}

TEST_F(HistoryTest, LeavesThePictureOfAHintedLineAsItWas)
{
    play("YR", "YRRRRG");
    hint();
    hint();
    const QImage after = atRest();
    undo();
    const QImage before = atRest();
    redo();
    EXPECT_EQ(atRest(), after);
    undo();
    EXPECT_EQ(atRest(), before);
}

TEST_F(HistoryTest, LeavesThePictureOfWhatAWalkBackTookAsItWas)
{
    play("YRR", "YRRRRG");
    click("chip-2-0");
    settle();
    click("chip-0-1");
    settle();
    hint();
    const QImage after = atRest(); // with its mark, and the points it cost
    undo();
    const QImage before = atRest();
    expectBoardShowsTheLines();
    redo();
    EXPECT_EQ(atRest(), after);
    undo();
    EXPECT_EQ(atRest(), before);
}

} // namespace veyrand::controller
