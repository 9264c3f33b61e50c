#include "board/Buttons.h"
#include "controller/FlowedLines.h"
#include "headless/EvenLetters.h"
#include "language/Marks.h"
#include "present/ExtraTable.h"
#include "progress/Settings.h"
#include "support/HeadlessPlay.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace veyrand::controller {

using ::testing::Contains;
using ::testing::Not;

namespace {

// What the board says and shows of a gesture, as the player has set it.
class AnswersAsSet : public test::HeadlessPlay {
protected:
    void saySoWithoutAnswers()
    {
        choose([](progress::Settings& settings) {
            settings.answers = false;
            settings.sayWhy = true;
        });
    }
    [[nodiscard]] std::vector<present::ExtraKind> kinds()
    {
        static_cast<void>(game().game().layers().displayList()); // the next picture
        std::vector<present::ExtraKind> kinds;
        for (const auto& shown : game().game().layers().extras().shown()) {
            kinds.push_back(shown.kind);
        }
        return kinds;
    }
    [[nodiscard]] Answers& answers() { return game().controller().answers(); }
    [[nodiscard]] std::string text(const char* id) { return game().game().texts().text(id); }
    // A chip is lifted and put down where it lay.
    void nudge(const std::string& key)
    {
        press(key);
        auto place = game().centreOf(key).value();
        place.x += 0.012;
        game().move(place);
        game().release(place);
        wait(0.5);
    }
    void pressIntoABlock()
    {
        click("chip-1-0");
        wait(1.0);
        ASSERT_TRUE(blocked());
        press("chip-0-1");
        release("chip-0-1");
    }
};

} // namespace

TEST_F(AnswersAsSet, ARefusalIsSaidAndNoHeadShakenWithoutAnswers)
{
    saySoWithoutAnswers();
    play("YRGR", "YB");
    click("chip-1-0");
    EXPECT_EQ(answers().whisper(), text("refusals.RedNotLast"));
    EXPECT_THAT(kinds(), Not(Contains(present::ExtraKind::Shake)));
}

TEST_F(AnswersAsSet, AChipPutDownWhereItLayIsToldAndNothingIsAdvisedWithoutAnswers)
{
    saySoWithoutAnswers();
    play("YRRRG", "YB");
    for (int time = 0; time < 3; ++time) {
        nudge("chip-1-0");
        EXPECT_EQ(answers().whisper(), text("refusals.SameChip"));
    }
    EXPECT_EQ(answers().tip(), "");
}

TEST_F(AnswersAsSet, APressIntoABlockDoesNotBlinkWithoutAnswers)
{
    saySoWithoutAnswers();
    play("YR", "YB");
    pressIntoABlock();
    EXPECT_THAT(kinds(), Not(Contains(present::ExtraKind::Light)));
}

TEST_F(AnswersAsSet, WhoHasPressesRememberedIsNotAdvisedToDoSo)
{
    for (const bool remembers : { false, true }) {
        choose([=](progress::Settings& settings) { settings.rememberPress = remembers; });
        play("YR", "YB");
        click("chip-1-0");
        wait(0.2);
        ASSERT_TRUE(blocked());
        for (int time = 0; time < 3; ++time) {
            press("chip-0-0");
            release("chip-0-0");
        }
        wait(0.3);
        EXPECT_EQ(answers().tip() == text("advice.rememberPress"), !remembers);
        settle();
    }
}

TEST_F(AnswersAsSet, APressOnAButtonIntoABlockDoesNotBlink)
{
    play("YR", "YB");
    click("chip-1-0");
    wait(0.2);
    ASSERT_TRUE(blocked());
    press("button-lightbulboff");
    EXPECT_THAT(kinds(), Not(Contains(present::ExtraKind::Light)));
    release("button-lightbulboff");
}

TEST_F(AnswersAsSet, APuzzleIsSolvedWithoutACelebrationOrAPageWithRays)
{
    choose([](progress::Settings& settings) { settings.answers = false; });
    play("YR", "YRG");
    click("chip-1-0");
    wait(2.0);
    EXPECT_THAT(kinds(), Not(Contains(present::ExtraKind::Plate)));
    wait(8.0);
    game().controller().pages().show("stage3MessageWindow");
    wait(0.5);
    EXPECT_THAT(kinds(), Not(Contains(present::ExtraKind::Light)));
}

TEST_F(AnswersAsSet, WhoSwitchesThemOnAfterTheSolutionSeesNoDust)
{
    choose([](progress::Settings& settings) { settings.answers = false; });
    play("YR", "YRG");
    click("chip-1-0");
    wait(0.5);
    choose([](progress::Settings& settings) { settings.answers = true; });
    for (int tenth = 0; tenth < 60; ++tenth) {
        wait(0.1);
        EXPECT_THAT(kinds(), Not(Contains(present::ExtraKind::Dust)));
    }
}

TEST_F(AnswersAsSet, WhoLiftsByClicksIsNotAdvisedToDoSo)
{
    choose([](progress::Settings& settings) { settings.liftByClick = true; });
    play("YRRRG", "YB");
    for (int time = 0; time < 4; ++time) {
        game().controller().mouseClick({}, 0, 1);
        wait(0.2);
    }
    EXPECT_NE(answers().tip(), text("advice.liftByClick"));
}

TEST_F(AnswersAsSet, ALimitMetAtOnceAgainDoesNotFlicker)
{
    play("YRGRGRGR", "YB");
    const auto limits = [this] {
        const auto now = kinds();
        return std::count(now.begin(), now.end(), present::ExtraKind::Limit);
    };
    const auto meet = [this] {
        game().game().layers().extras().end(present::ExtraKind::Limit); // as a press does
        game().controller().mouseClick({}, 0, 0);
    };
    meet();
    EXPECT_EQ(limits(), 1);
    wait(present::extras::kLimitAgain - 0.1);
    meet();
    EXPECT_EQ(limits(), 0);
    wait(0.2);
    meet();
    EXPECT_EQ(limits(), 1);
}

TEST_F(AnswersAsSet, ALaterReasonStaysAsLongAsAFirst)
{
    choose([](progress::Settings& settings) { settings.sayWhy = true; });
    play("YRGR", "YB");
    click("chip-1-0");
    wait(present::extras::kWhisper - 0.5);
    click("chip-2-0");
    wait(1.0);
    EXPECT_EQ(answers().whisper(), text("refusals.LoneGreen"));
    wait(present::extras::kWhisper);
    EXPECT_EQ(answers().whisper(), "");
}

TEST_F(AnswersAsSet, AClickOnAChipThatIsNoLongerThereIsRefusedAndNothingShakes)
{
    play("YR", "YB");
    game().controller().mouseClick({}, 0, 7);
    EXPECT_THAT(sounds(), Contains("No"));
    EXPECT_THAT(kinds(), Not(Contains(present::ExtraKind::Shake)));
}

TEST_F(AnswersAsSet, ADeleteButtonOfALineThatHasGoneTakesNothing)
{
    play("YRR", "YRRGG");
    click("chip-2-0");
    settle();
    ASSERT_EQ(lines().size(), 2U);
    game().controller().lines().deleteClick(5);
    EXPECT_EQ(lines().size(), 2U);
}

TEST_F(AnswersAsSet, APuzzleThatIsLeftInItsCelebrationTakesThePlateAlong)
{
    for (const double moment :
        { present::extras::kLightRuns - 0.05, present::extras::kLightRuns + 0.1 }) {
        play("YR", "YRG");
        click("chip-1-0");
        wait(moment);
        game().play(at(5, 1, "YRR", "YB"));
        wait(2.0);
        EXPECT_THAT(kinds(), Not(Contains(present::ExtraKind::Plate))) << moment;
        EXPECT_EQ(lines(), std::vector<std::string> { "YRR" });
    }
}

TEST_F(AnswersAsSet, TheSealOfANewMoveMakesDustOnlyWhereThingsMayMove)
{
    for (const auto taste :
        { progress::Settings::ReducedMotion::Off, progress::Settings::ReducedMotion::On }) {
        choose([=](progress::Settings& settings) { settings.reducedMotion = taste; });
        play("YR", "YB");
        game().controller().pages().show("stage3MessageWindow");
        bool makesDust = false;
        for (int tenth = 0; tenth < 20; ++tenth) {
            const auto now = kinds();
            makesDust = makesDust
                || std::find(now.begin(), now.end(), present::ExtraKind::Dust) != now.end();
            wait(0.1);
        }
        EXPECT_EQ(makesDust, taste == progress::Settings::ReducedMotion::Off);
        game().controller().closePage();
        wait(2.0);
    }
}

TEST_F(AnswersAsSet, ACounterTellsWhatItCounts)
{
    play("YR", "YB");
    for (const char* const key : { "counter-score", "counter-par", "counter-stage" }) {
        move(key);
        wait(2.0);
        EXPECT_EQ(answers().tip(), Tips(game().controller()).textFor(key));
        EXPECT_NE(answers().tip(), "") << key;
    }
    game().move({ .x = 0.02, .y = 0.02 });
    wait(0.5);
    EXPECT_EQ(answers().tip(), "");
}

TEST_F(AnswersAsSet, TheAnswersToAQuestionArePointedAt)
{
    wait(2.0);
    game().controller().dialogues().showDialogue(
        "ContinueGame", "StartNewGame", Dialogues::Question::ClassicGame);
    wait(2.0);
    for (const board::Button& button : board::kButtons) {
        if (button.screen == board::ButtonScreen::Question) {
            const auto place = game().centreOf(std::string(button.litKey));
            ASSERT_TRUE(place.has_value()) << button.litKey;
            game().move(*place);
            EXPECT_EQ(answers().cursor(), input::Cursor::Pointing) << button.litKey;
        }
    }
}

TEST_F(AnswersAsSet, ADropThatMissesIsToldByWhereItFell)
{
    choose([](progress::Settings& settings) { settings.sayWhy = true; });
    play("YRR", "YB");
    click("chip-2-0");
    settle();
    press("chip-0-0"); // of a line that is not the last
    move("chip-1-0");
    EXPECT_EQ(answers().whisper(), text("refusals.NotLastLine"));
    release("chip-1-0");
    settle();
    drag("chip-0-1", "chip-1-0");
    EXPECT_EQ(answers().whisper(), text("refusals.OtherRow"));
    settle();
    press("chip-0-1");
    game().move({ .x = 1.0, .y = 0.3 });
    game().release({ .x = 1.0, .y = 0.3 });
    EXPECT_EQ(answers().whisper(), text("refusals.NoChip"));
}

// What a language says between its words and its chips it may leave no blank for.
TEST(LinesThatFlow, KeepTogetherWhatNoBlankParts)
{
    const headless::EvenLetters letters;
    const LineBreaker breaker(letters, 1.0);
    const auto lines = breaker.broken(language::piecesOf("take ({YR}), then  go "), 4.0);
    ASSERT_GE(lines.size(), 2U);
    std::string all;
    std::size_t chips = 0;
    for (const FlowedLine& line : lines) {
        all += line.text;
        chips += line.chips.size();
        EXPECT_EQ(
            line.text.find("( "), line.chips.empty() ? std::string::npos : line.text.find('('));
    }
    EXPECT_EQ(chips, 1U);
    EXPECT_EQ(all.substr(0, 4), "take");
}

} // namespace veyrand::controller
