#include "progress/Settings.h"
#include "support/PlayedGame.h"

#include <gmock/gmock.h>

namespace veyrand::app {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::Field;
using ::testing::IsEmpty;
using ::testing::Not;

namespace {

using Shown = present::Extras::Shown;

VirtualGame::Options with(platform::PreferenceRecord settings)
{
    VirtualGame::Options options;
    options.screen = { .width = 720, .height = 450 };
    options.window = { 720, 450 };
    options.preferences.records[std::string(progress::kSettingsKey)] = std::move(settings);
    return options;
}

// What a gesture changes on the screen within a twentieth of a second.
class AnswersTest : public test::PlayedGame {
protected:
    explicit AnswersTest(platform::PreferenceRecord settings = {})
        : PlayedGame(with(std::move(settings)))
    {
    }

    void look() { m_before = game().picture(); }
    [[nodiscard]] bool somethingChanged()
    {
        wait(0.05);
        return game().picture() != m_before;
    }
    [[nodiscard]] std::vector<Shown> extras() { return game().game().layers().extras().shown(); }
    static ::testing::Matcher<Shown> one(present::ExtraKind kind, const std::string& key)
    {
        return AllOf(Field(&Shown::kind, kind), Field(&Shown::key, key));
    }
    [[nodiscard]] std::string cursor()
    {
        return std::string(input::nameOf(game().controller().answers().cursor()));
    }
    [[nodiscard]] std::string tip() { return game().controller().answers().tip(); }
    [[nodiscard]] std::string whisper() { return game().controller().answers().whisper(); }
    void moveTo(double x, double y) { game().move({ .x = x, .y = y }); }

private:
    QImage m_before;
};

// The same with the reasons in words.
class WhispersTest : public AnswersTest {
protected:
    WhispersTest()
        : AnswersTest({ { "SayWhy", true } })
    {
    }
};

class SwitchedOffTest : public AnswersTest {
protected:
    SwitchedOffTest()
        : AnswersTest({ { "Answers", false } })
    {
    }
};

} // namespace

TEST_F(AnswersTest, ARefusedClickShakesItsHead)
{
    play("YRGR", "YB");
    move("chip-1-0");
    look();
    click("chip-1-0");
    EXPECT_THAT(extras(), Contains(one(present::ExtraKind::Shake, "chip-1-0")));
    EXPECT_TRUE(somethingChanged());
    wait(0.3);
    EXPECT_THAT(extras(), Not(Contains(one(present::ExtraKind::Shake, "chip-1-0"))));
}

TEST_F(AnswersTest, AClickOnALineThatIsNotTheLastLightsTheLast)
{
    play("YR", "YB");
    click("chip-1-0");
    settle();
    move("chip-0-0");
    look();
    click("chip-0-0");
    EXPECT_THAT(extras(), Contains(one(present::ExtraKind::Light, "row-1")));
    EXPECT_TRUE(somethingChanged());
}

TEST_F(AnswersTest, ALineThatWouldBeTooLongLightsTheEdge)
{
    play("YRGRGRGR", "YB");
    move("chip-0-0");
    wait(1.0);
    look();
    click("chip-0-0");
    EXPECT_THAT(extras(), Contains(one(present::ExtraKind::Limit, "row-0")));
    EXPECT_TRUE(somethingChanged());
}

TEST_F(AnswersTest, ADragThatMayNotStartShakesItsHead)
{
    play("YR", "YB");
    click("chip-1-0");
    settle();
    move("chip-0-0");
    look();
    press("chip-0-0");
    move("chip-1-0");
    EXPECT_THAT(extras(), Contains(one(present::ExtraKind::Shake, "chip-0-0")));
    EXPECT_TRUE(somethingChanged());
    moveTo(1.2, 0.3);
    game().release({ .x = 1.2, .y = 0.3 });
}

TEST_F(AnswersTest, APressIntoABlockBlinks)
{
    play("YR", "YB");
    click("chip-1-0");
    wait(1.0);
    ASSERT_TRUE(blocked());
    move("chip-0-1");
    wait(0.3);
    look();
    press("chip-0-1");
    EXPECT_THAT(extras(), Contains(one(present::ExtraKind::Light, "chip-0-1")));
    EXPECT_TRUE(somethingChanged());
    release("chip-0-1");
}

TEST_F(AnswersTest, ThePointerOverAMoveAHeldStoneAndALiftedOneAreSeen)
{
    play("YRRRG", "YB");
    moveTo(0.1, 0.1);
    wait(1.0);
    EXPECT_EQ(cursor(), "arrow");
    look();
    move("chip-1-0");
    EXPECT_TRUE(somethingChanged()) << "over a stone that can be dragged";
    EXPECT_EQ(cursor(), "open");
    look();
    press("chip-1-0");
    EXPECT_TRUE(somethingChanged()) << "held";
    moveTo(0.95, 0.8);
    EXPECT_EQ(cursor(), "closed");
    EXPECT_THAT(extras(), Contains(one(present::ExtraKind::Ring, "chip-3-0")));
    EXPECT_THAT(extras(), Not(Contains(one(present::ExtraKind::Ring, "chip-2-0"))));
    game().release({ .x = 0.95, .y = 0.8 });
    move("chip-0-0");
    EXPECT_EQ(cursor(), "pointing");
    wait(0.05);
    EXPECT_THAT(extras(), Contains(one(present::ExtraKind::Light, "chip-0-0")));
}

TEST_F(AnswersTest, OnlyTargetsThatAreMovesNowHaveRings)
{
    play({ .root = "YRRRGG",
        .goal = "YB",
        .par = 2,
        .level = 1,
        .stage = 6,
        .mode = Mode::Classic }); // nothing can be dragged yet
    press("chip-1-0");
    moveTo(0.95, 0.8);
    EXPECT_THAT(extras(), Not(Contains(Field(&Shown::kind, present::ExtraKind::Ring))));
    game().release({ .x = 0.95, .y = 0.8 });
}

TEST_F(AnswersTest, ADeleteButtonShowsWhatWouldGo)
{
    play("YR", "YB");
    click("chip-1-0");
    settle();
    click("chip-0-1");
    settle();
    moveTo(0.1, 0.1);
    wait(1.0);
    look();
    move("delete-1");
    EXPECT_TRUE(somethingChanged());
    EXPECT_EQ(cursor(), "pointing");
    EXPECT_THAT(extras(), Contains(one(present::ExtraKind::Light, "delete-1")));
    EXPECT_THAT(extras(), Contains(one(present::ExtraKind::Row, "row-0")));
}

TEST_F(AnswersTest, TheRowInPlayFollowsTheLines)
{
    play("YR", "YB");
    EXPECT_THAT(extras(), Contains(one(present::ExtraKind::Row, "row-0")));
    click("chip-1-0");
    EXPECT_THAT(extras(), Contains(one(present::ExtraKind::Row, "row-1")));
}

TEST_F(AnswersTest, ABlockUnderASecondChangesNoCursor)
{
    play("YRRR", "YB");
    move("chip-1-0");
    click("chip-2-0"); // refused: 0.75 s
    move("chip-1-0");
    EXPECT_TRUE(blocked());
    EXPECT_EQ(cursor(), "open");
    settle();
    click("chip-3-0"); // a move: 1.5 s
    move("chip-0-1");
    EXPECT_EQ(cursor(), "arrow");
    settle();
    EXPECT_EQ(cursor(), "pointing");
}

TEST_F(AnswersTest, TipsComeAfterHalfASecondAndSayWhatThingsMean)
{
    play("YR", "YB");
    move("counter-par");
    wait(0.49);
    EXPECT_EQ(tip(), "");
    wait(0.02);
    EXPECT_EQ(tip(), "1 move is enough; you have made 0");
    move("label-points");
    EXPECT_EQ(tip(), "");
    wait(0.5);
    EXPECT_EQ(tip(), "150 for a solution at par, 10 less for every move more");
    move("button-lightbulbon");
    wait(0.5);
    EXPECT_EQ(tip(), "the first only explains");
    move("chip-1-0");
    wait(0.5);
    EXPECT_EQ(tip(), "Click: adds a green at the end.");
    press("chip-1-0");
    EXPECT_EQ(tip(), "");
    release("chip-1-0");
}

TEST_F(AnswersTest, WhoHasJustPlayedIsToldNothingUntilThePointerMoves)
{
    play("YRRR", "YB");
    drag("chip-1-0", "chip-3-0");
    wait(5.0);
    EXPECT_EQ(tip(), "");
    move("chip-2-0");
    wait(0.5);
    EXPECT_EQ(tip(), "Only the last line can be played on.");
}

TEST_F(AnswersTest, WhoStaysOnARefusedStoneIsToldWhy)
{
    play("YRG", "YB");
    move("chip-1-0");
    click("chip-1-0");
    wait(0.5);
    EXPECT_EQ(tip(), "Only a red at the end takes a click.");
}

TEST_F(AnswersTest, TheSecondMissedClickAndTheThirdLostPressNameTheirOptions)
{
    play("YR", "YB");
    const auto nudge = [this] {
        press("chip-0-0");
        const auto place = game().centreOf("chip-0-0").value();
        game().move({ .x = place.x + 0.02, .y = place.y });
        game().release({ .x = place.x + 0.02, .y = place.y });
    };
    nudge();
    EXPECT_EQ(tip(), "");
    nudge();
    EXPECT_THAT(tip(), ::testing::HasSubstr("Forgiving Clicks"));
    wait(1.0);
    click("chip-1-0");
    for (int i = 0; i < 3; ++i) {
        click("chip-0-1");
    }
    EXPECT_THAT(tip(), ::testing::HasSubstr("Remember a Press"));
}

TEST_F(AnswersTest, NothingIsWhisperedUnlessAsked)
{
    play("YRGR", "YB");
    click("chip-1-0");
    EXPECT_EQ(whisper(), "");
}

TEST_F(WhispersTest, TheReasonIsWhisperedForThreeSeconds)
{
    play("YRGRGRGR", "YB");
    click("chip-0-0");
    EXPECT_EQ(whisper(), "A line holds 12 chips at most.");
    EXPECT_THAT(extras(), Contains(Field(&Shown::kind, present::ExtraKind::Whisper)));
    EXPECT_EQ(game().controller().messages().page(), "");
    wait(3.0);
    EXPECT_EQ(whisper(), "");
}

TEST_F(SwitchedOffTest, NothingIsLeftOfIt)
{
    play("YRGR", "YB");
    click("chip-1-0");
    move("chip-0-0");
    wait(1.0);
    EXPECT_THAT(extras(), IsEmpty());
    EXPECT_EQ(cursor(), "arrow");
    EXPECT_EQ(tip(), "");
}

} // namespace veyrand::app
