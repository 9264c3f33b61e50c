#include "progress/PlayerKeys.h"
#include "support/PlayedGame.h"

namespace veyrand::app {

namespace {

// A game with points for hints, and a look at it.
class HistoryPictures : public test::PlayedGame {
protected:
    HistoryPictures()
        : PlayedGame(richPlayer())
    {
    }

    void undo() { game().key(QStringLiteral("Ctrl+Z")); }
    void redo() { game().key(QStringLiteral("Ctrl+Shift+Z")); }
    void hint()
    {
        click("button-lightbulboff");
        settle();
    }

    // The picture once everything has come to rest and the pointer has gone aside.
    QImage atRest()
    {
        game().move({ .x = 1.59, .y = 0.02 });
        settle();
        settle();
        return game().picture();
    }

private:
    static Options richPlayer()
    {
        Options options;
        options.preferences.records[progress::playerRecordKey(progress::kDefaultPlayerName)]
            = { { std::string(progress::kLevelKey), std::int64_t { 5 } },
                  { std::string(progress::kStageKey), std::int64_t { 1 } },
                  { std::string(progress::kScoreKey), std::int64_t { 1000 } },
                  { std::string(progress::kFirstHintClickKey), true } };
        return options;
    }
};

} // namespace

TEST_F(HistoryPictures, AreAsTheyWerePixelForPixel)
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

TEST_F(HistoryPictures, OfAHintedLineAreAsTheyWere)
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

TEST_F(HistoryPictures, OfWhatAWalkBackTookAreAsTheyWere)
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
    redo();
    EXPECT_EQ(atRest(), after);
    undo();
    EXPECT_EQ(atRest(), before);
}

} // namespace veyrand::app
