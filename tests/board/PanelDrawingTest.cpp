#include "board/BoardFixture.h"

#include <gmock/gmock.h>

namespace veyrand::board {

using progress::CurrentGame;
using ::testing::ElementsAre;

namespace {

class PanelDrawingTest : public BoardTest {
protected:
    PanelDrawingTest() { place(1, 1, 2); }

    // The keys in the order in which they are added.
    std::vector<std::string> addedBy(const std::function<void()>& draw)
    {
        std::vector<std::string> keys;
        table().setNewObjectListener([&](const std::string& key) { keys.push_back(key); });
        draw();
        table().setNewObjectListener({});
        return keys;
    }
};

constexpr double kButtonWidth = 0.15;
constexpr double kButtonHeight = 0.06880733944954;

} // namespace

TEST_F(PanelDrawingTest, EveryButtonIsAPairWhoseLitFaceComesFirst)
{
    EXPECT_THAT(addedBy([this] { board().panel.drawButtons(); }),
        ElementsAre("button-lightbulbon", "button-lightbulboff", "button-movesbuttonon",
            "button-movesbuttonoff", "button-menubuttonon", "button-menubuttonoff"));
    EXPECT_EQ(lookOf(*object("button-lightbulbon")),
        (Look { "HintButton", 0.3, 0.275, kButtonWidth, kButtonHeight, 0.0 }));
    EXPECT_EQ(lookOf(*object("button-lightbulboff")),
        (Look { "HintButtonUncoloured", 0.3, 0.275, kButtonWidth, kButtonHeight, 1.0 }));
    EXPECT_EQ(lookOf(*object("button-movesbuttonon")),
        (Look { "MovesButton", 0.3, 0.2, kButtonWidth, kButtonHeight, 0.0 }));
    EXPECT_EQ(lookOf(*object("button-movesbuttonoff")),
        (Look { "MovesButtonUncoloured", 0.3, 0.2, kButtonWidth, kButtonHeight, 1.0 }));
    EXPECT_EQ(lookOf(*object("button-menubuttonon")),
        (Look { "MenuButton", 0.3, 0.125, kButtonWidth, kButtonHeight, 0.0 }));
    EXPECT_EQ(lookOf(*object("button-menubuttonoff")),
        (Look { "MenuButtonUncoloured", 0.3, 0.125, kButtonWidth, kButtonHeight, 1.0 }));
}

TEST_F(PanelDrawingTest, DrawnTwiceTheButtonsStandOnceAndFadeInAgain)
{
    board().panel.drawButtons();
    const auto first = object("button-menubuttonoff");
    std::map<std::string, double> opacities;
    table().setNewObjectListener(
        [&](const std::string& key) { opacities[key] = object(key)->opacity(); });
    board().panel.drawButtons();
    EXPECT_EQ(table().keys().size(), 6U);
    EXPECT_NE(object("button-menubuttonoff"), first);
    EXPECT_EQ(first->keyInGameData(), std::nullopt); // removed, not replaced
    EXPECT_EQ(opacities.size(), 6U);
    EXPECT_EQ(opacities["button-menubuttonoff"], 0.0);
}

TEST_F(PanelDrawingTest, TheHitAreasOfButtonsAreRebuiltOnceTheyStand)
{
    board().panel.drawButtons();
    EXPECT_EQ(tracking().established(), 1);
}

TEST_F(PanelDrawingTest, EndlessHasTwoMoreButtons)
{
    place(1, 1, 5, CurrentGame::Mode::Endless);
    const auto keys = addedBy([this] { board().panel.drawButtons(); });
    ASSERT_EQ(keys.size(), 10U);
    EXPECT_EQ(std::vector<std::string>(keys.begin() + 6, keys.end()),
        (std::vector<std::string> { "button-harderbuttonon", "button-harderbuttonoff",
            "button-easierbuttonon", "button-easierbuttonoff" }));
    EXPECT_EQ(lookOf(*object("button-harderbuttonon")),
        (Look { "HarderEasierTop", 0.3, 0.485, 0.2, 0.08703703703704, 0.0 }));
    EXPECT_EQ(lookOf(*object("button-harderbuttonoff")),
        (Look { "HarderEasierTopUncoloured", 0.3, 0.485, 0.2, 0.08703703703704, 1.0 }));
    EXPECT_EQ(lookOf(*object("button-easierbuttonon")),
        (Look { "HarderEasierBottom", 0.3, 0.3985, 0.2, 0.08703703703704, 0.0 }));
    EXPECT_EQ(lookOf(*object("button-easierbuttonoff")),
        (Look { "HarderEasierBottomUncoloured", 0.3, 0.3985, 0.2, 0.08703703703704, 1.0 }));
}

TEST_F(PanelDrawingTest, ClassicHasThreeCaptionsAndThreeCounters)
{
    EXPECT_THAT(addedBy([this] { board().panel.drawLabels(); }),
        ElementsAre("label-points", "counter-score", "label-stage", "label-par", "counter-stage",
            "counter-par"));
    EXPECT_EQ(lookOf(*object("label-points")), (Look { "Points", 0.3, 0.9, 0.2, 0.06, 1.0 }));
    EXPECT_EQ(lookOf(*object("label-stage")),
        (Look { "Stage", 0.3, 0.7, 0.271186440677966, 0.08150943396226, 1.0 }));
    EXPECT_EQ(lookOf(*object("label-par")), (Look { "Par", 0.3, 0.5, 0.2, 0.06, 1.0 }));
    EXPECT_EQ(lookOf(*object("counter-score")), (Look { "", 0.3, 0.8, 0, 0, 1.0 }));
    EXPECT_EQ(lookOf(*object("counter-stage")), (Look { "", 0.3, 0.6, 0, 0, 1.0 }));
    EXPECT_EQ(lookOf(*object("counter-par")), (Look { "", 0.3, 0.4, 0, 0, 1.0 }));
    EXPECT_EQ(text("counter-score"), "0");
    EXPECT_EQ(text("counter-stage"), "1-1");
    EXPECT_EQ(text("counter-par"), "1");
}

TEST_F(PanelDrawingTest, EndlessHasNoStage)
{
    place(1, 1, 5, CurrentGame::Mode::Endless);
    EXPECT_THAT(addedBy([this] { board().panel.drawLabels(); }),
        ElementsAre("label-points", "counter-score", "label-par", "counter-par"));
    EXPECT_EQ(lookOf(*object("label-par")), (Look { "Par", 0.3, 0.7, 0.2, 0.06, 1.0 }));
    EXPECT_EQ(lookOf(*object("counter-par")), (Look { "", 0.3, 0.6, 0, 0, 1.0 }));
    EXPECT_EQ(text("counter-score"), "0");
    EXPECT_EQ(text("counter-par"), "5");
}

TEST_F(PanelDrawingTest, ParSixShowsFive)
{
    board().panel.drawLabels();
    place(1, 1, 6);
    board().panel.drawCounters();
    EXPECT_EQ(text("counter-par"), "5");
}

TEST_F(PanelDrawingTest, TheStageCounterReadsLevelThenStage)
{
    board().panel.drawLabels();
    place(2, 3, 6);
    board().panel.drawCounters();
    EXPECT_EQ(text("counter-stage"), "2-3");
}

TEST_F(PanelDrawingTest, EachModeShowsItsOwnScore)
{
    board().panel.drawLabels();
    currentGame().addToScore(-20);
    board().panel.drawCounters();
    EXPECT_EQ(text("counter-score"), "-20");

    table().removeAllEntries();
    place(1, 1, 5, CurrentGame::Mode::Endless);
    board().panel.drawLabels();
    currentGame().setEndlessScore(1230);
    board().panel.drawCounters();
    EXPECT_EQ(text("counter-score"), "1230");
    EXPECT_FALSE(table().contains("counter-stage"));
}

// First appearances fade, changes do not.
TEST_F(PanelDrawingTest, ACounterThatKeepsItsTextKeepsItsRecord)
{
    board().panel.drawLabels();
    const auto stage = object("counter-stage");
    const auto score = object("counter-score");
    currentGame().addToScore(10);
    board().panel.drawCounters();
    EXPECT_EQ(object("counter-stage"), stage);
    EXPECT_NE(object("counter-score"), score);
}

TEST_F(PanelDrawingTest, PracticeHasItsCaptionAndNoPoints)
{
    currentGame().placePuzzle({ .root = "YR",
        .goal = "YRG",
        .par = 4,
        .level = 2,
        .stage = 3,
        .practice
        = progress::CurrentGame::Practice { .open = 7, .caption = "daily", .purse = 50 } });
    board().panel.drawLabels();
    board().panel.drawCounters();
    EXPECT_EQ(text("counter-score"), "\u2013");
    EXPECT_EQ(text("counter-stage"), "daily");
    EXPECT_EQ(text("counter-par"), "3");
}

} // namespace veyrand::board
