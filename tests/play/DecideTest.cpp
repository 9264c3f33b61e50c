#include "play/Decide.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::play {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

namespace {

constexpr int kAllOpen = 7;

// So many lines, the last of which is the given one; the goal is one that no gesture here makes,
// unless it is named.
class Situation {
public:
    explicit Situation(const char* line, int open = kAllOpen, std::size_t count = 1)
        : m_lines(count, engine::Theorem(line))
        , m_open(open)
    {
    }

    Situation& towards(const char* goal)
    {
        m_goal = engine::Theorem(goal);
        return *this;
    }
    Situation& during(Phase phase)
    {
        m_phase = phase;
        return *this;
    }
    Situation& inLesson(const Lesson& lesson)
    {
        m_lesson = lesson;
        return *this;
    }

    [[nodiscard]] Position position() const
    {
        return {
            .lines = m_lines, .goal = m_goal, .open = m_open, .lesson = m_lesson, .phase = m_phase
        };
    }
    [[nodiscard]] unsigned row() const { return static_cast<unsigned>(m_lines.size() - 1); }

    // What the gesture comes to: "1/0 YRR" (rule, match and the new line), "remove 2", or the
    // reason's name, with the label of a move that is not open.
    [[nodiscard]] std::string ask(const Gesture& gesture) const
    {
        const auto decision = decide(position(), gesture);
        if (const auto* const refusal = std::get_if<Refusal>(&decision)) {
            const std::string label
                = refusal->label == 0 ? std::string() : ' ' + std::to_string(refusal->label);
            return std::string(entryOf(refusal->reason).name) + label;
        }
        const auto& action = std::get<Action>(decision);
        if (const auto* const remove = std::get_if<Remove>(&action)) {
            return "remove " + std::to_string(remove->row);
        }
        const Move move = std::get<Move>(action);
        return std::to_string(move.rule) + '/' + std::to_string(move.match) + ' '
            + lineAfter(m_lines.back(), move).value().theorem();
    }
    [[nodiscard]] std::string click(unsigned column) const { return ask(Click { row(), column }); }
    [[nodiscard]] std::string drag(unsigned from, unsigned to) const
    {
        return ask(Drag { row(), from, row(), to });
    }

private:
    std::vector<engine::Theorem> m_lines;
    engine::Theorem m_goal { "YRGBRGBRGB" };
    int m_open;
    std::optional<Lesson> m_lesson;
    Phase m_phase = Phase::Playing;
};

} // namespace

// The yellow chip, wherever it stands, if it is not the last: always open.
TEST(Click, OnTheYellowDoublesWhatFollowsIt)
{
    for (int open = 1; open <= kAllOpen; ++open) {
        EXPECT_EQ(Situation("YR", open).click(0), "1/0 YRR") << open;
    }
    EXPECT_EQ(Situation("RGYB").click(2), "1/0 RGYBB");
    EXPECT_EQ(Situation("Y").click(0), "YellowLast");
    EXPECT_EQ(Situation("RGY").click(2), "YellowLast");
}

TEST(Click, OnARedAtTheEndAddsAGreenThere)
{
    EXPECT_EQ(Situation("YR", 2).click(1), "0/0 YRG");
    EXPECT_EQ(Situation("YRGRR").click(4), "0/0 YRGRRG");
    EXPECT_EQ(Situation("YR", 1).click(1), "NotOpen 2");
    EXPECT_EQ(Situation("YRG").click(1), "RedNotLast");
    EXPECT_EQ(Situation("YRR").click(1), "RedNotLast");
}

TEST(Click, OnTheFirstOfTwoGreensLetsABlueBetweenThem)
{
    EXPECT_EQ(Situation("YGG", 6).click(1), "5/0 YGBG");
    EXPECT_EQ(Situation("YGGG").click(2), "5/1 YGGBG");
    EXPECT_EQ(Situation("YGGRGG").click(4), "5/1 YGGRGBG");
    EXPECT_EQ(Situation("YGG", 5).click(1), "NotOpen 6");
    EXPECT_EQ(Situation("YGG").click(2), "LoneGreen"); // the second of the pair
    EXPECT_EQ(Situation("YGR").click(1), "LoneGreen");
    EXPECT_EQ(Situation("YG").click(1), "LoneGreen");
}

TEST(Click, ElsewhereStartsNoMove)
{
    EXPECT_EQ(Situation("YBB").click(1), "NoMoveHere");
    EXPECT_EQ(Situation("YRB").click(2), "NoMoveHere");
    EXPECT_EQ(Situation("YR").click(2), "NoMoveHere"); // past the line
    EXPECT_EQ(Situation("YR").click(99), "NoMoveHere");
}

TEST(Click, MakesNoLineThatTheBoardHasNoRoomFor)
{
    EXPECT_EQ(Situation("RYGGGGG").click(1), "1/0 RYGGGGGGGGGG"); // 12 chips
    EXPECT_EQ(Situation("YGGGGGG").click(0), "TooLong");
    EXPECT_EQ(Situation("YR", kAllOpen, 11).click(0), "1/0 YRR");
    EXPECT_EQ(Situation("YR", kAllOpen, 12).click(0), "LastMustBeGoal");
    EXPECT_EQ(Situation("YR", kAllOpen, 12).towards("YRR").click(0), "1/0 YRR");
    EXPECT_EQ(Situation("YR", kAllOpen, 13).towards("YRR").click(0), "BoardFull");
    EXPECT_EQ(Situation("YR", kAllOpen, 0).ask(Click { 0, 0 }), "NoLine");
}

TEST(Click, IsForTheLastLine)
{
    EXPECT_EQ(Situation("YR", kAllOpen, 3).ask(Click { 1, 0 }), "NotLastLine");
    EXPECT_EQ(Situation("YR", kAllOpen, 3).ask(Click { 3, 0 }), "NotLastLine");
}

TEST(Drag, AlongThreeRedsMakesThemAGreen)
{
    EXPECT_EQ(Situation("YRRRG", 3).drag(1, 3), "2/0 YGG");
    EXPECT_EQ(Situation("YRRRG", 3).drag(3, 1), "2/0 YGG");
    EXPECT_EQ(Situation("YRRRR").drag(4, 2), "2/1 YRG");
    EXPECT_EQ(Situation("YRRRG", 2).drag(1, 3), "NotOpen 3");
    EXPECT_EQ(Situation("YRRRG").drag(1, 2), "DragReds");
    EXPECT_EQ(Situation("YRRRR").drag(1, 4), "DragReds");
    EXPECT_EQ(Situation("YRGR").drag(1, 3), "DragReds");
}

TEST(Drag, OfAGreenOntoTheNextMakesBothVanish)
{
    EXPECT_EQ(Situation("YGG", 4).drag(1, 2), "3/0 Y");
    EXPECT_EQ(Situation("YGG", 4).drag(2, 1), "3/0 Y");
    EXPECT_EQ(Situation("YGGG").drag(3, 2), "3/1 YG");
    EXPECT_EQ(Situation("YGG", 3).drag(1, 2), "NotOpen 4");
    EXPECT_EQ(Situation("YGGG").drag(1, 3), "DragGreens");
    EXPECT_EQ(Situation("YGRG").drag(1, 3), "DragGreens");
}

TEST(Drag, OfTheYellowJumpsOverTwoToTheRightOnly)
{
    EXPECT_EQ(Situation("YRG", 5).drag(0, 2), "4/0 GRY");
    EXPECT_EQ(Situation("GYRB").drag(1, 3), "4/0 GBRY");
    EXPECT_EQ(Situation("YRG", 4).drag(0, 2), "NotOpen 5");
    EXPECT_EQ(Situation("YRG").drag(0, 1), "DragYellow");
    EXPECT_EQ(Situation("YRG").drag(2, 0), "DragGreens");
    EXPECT_EQ(Situation("RGY").drag(2, 0), "DragYellow");
}

// Open as soon as greens can be split, not only with the seventh move.
TEST(Drag, OfABlueOntoTheNextMakesWhatStandsBetweenVanish)
{
    EXPECT_EQ(Situation("YBRGB", 6).drag(1, 4), "6/0 YBB");
    EXPECT_EQ(Situation("YBRGB", 6).drag(4, 1), "6/0 YBB");
    EXPECT_EQ(Situation("YBRBGB").drag(3, 5), "6/1 YBRBB");
    EXPECT_EQ(Situation("YBRGB", 5).drag(1, 4), "NotOpen 7");
    EXPECT_EQ(Situation("YBRBGB").drag(1, 5), "BlueBetween");
    EXPECT_EQ(Situation("YBRGB").drag(1, 3), "DragBlues");
}

// Two blues side by side have no match of their own: the first of the line is taken, if any.
TEST(Drag, OfNeighbouringBluesFallsToTheFirstMatchOfTheLine)
{
    EXPECT_EQ(Situation("YBRGBB").drag(4, 5), "6/0 YBBB");
    EXPECT_EQ(Situation("YBB").drag(1, 2), "BluesTouch");
    EXPECT_EQ(Situation("YBB", 5).drag(1, 2), "BluesTouch");
}

TEST(Drag, IsRefusedWhereItStartsThenWhereItEnds)
{
    const Situation three("YGG", kAllOpen, 3);
    EXPECT_EQ(three.ask(Drag { 1, 1, 1, 2 }), "NotLastLine");
    EXPECT_EQ(three.ask(Drag { 2, 1, 1, 2 }), "OtherRow");
    EXPECT_EQ(three.drag(1, 1), "SameChip");
    EXPECT_EQ(three.drag(1, 3), "NoChip");
    EXPECT_EQ(three.drag(7, 1), "NoChip");
    EXPECT_EQ(Situation("YGG", kAllOpen, 11).drag(1, 2), "3/0 Y");
    EXPECT_EQ(Situation("YGG", kAllOpen, 12).drag(1, 2), "NoDragNow");
    EXPECT_EQ(Situation("YGG", kAllOpen, 13).drag(1, 2), "NoDragNow");
    EXPECT_EQ(Situation("YGG", kAllOpen, 0).ask(Drag { 0, 1, 0, 2 }), "NoLine");
}

TEST(Drag, IsSilentOnALineThatIsNotTheLastWhereAClickIsNot)
{
    const Situation three("YGG", kAllOpen, 3);
    EXPECT_EQ(
        std::get<Refusal>(decide(three.position(), Drag { 1, 1, 1, 2 })).heard, Heard::Silent);
    EXPECT_EQ(std::get<Refusal>(decide(three.position(), Click { 1, 1 })).heard, Heard::No);
}

TEST(Removal, IsOfAnyRowButTheStartLine)
{
    const Situation three("YR", kAllOpen, 3);
    EXPECT_EQ(three.ask(Remove { 1 }), "remove 1");
    EXPECT_EQ(three.ask(Remove { 2 }), "remove 2");
    EXPECT_EQ(three.ask(Remove { 0 }), "NoSuchRow");
    EXPECT_EQ(three.ask(Remove { 3 }), "NoSuchRow");
}

TEST(ALesson, WithAClickAcceptsThatClickAndEveryDrag)
{
    Situation lesson("YGG", kAllOpen, 2);
    lesson.inLesson({ .click = Click { 1, 0 }, .drag = {} });
    EXPECT_EQ(lesson.click(0), "1/0 YGGGG");
    EXPECT_EQ(lesson.click(1), "Lesson");
    EXPECT_EQ(lesson.ask(Click { 0, 0 }), "Lesson"); // before the row is looked at
    EXPECT_EQ(lesson.drag(1, 2), "3/0 Y");
    EXPECT_EQ(lesson.ask(Remove { 1 }), "remove 1");
}

TEST(ALesson, WithADragAcceptsNothingButThatDrag)
{
    Situation lesson("YGGG", kAllOpen, 2);
    lesson.inLesson({ .click = {}, .drag = Drag { 1, 1, 1, 2 } });
    EXPECT_EQ(lesson.drag(1, 2), "3/0 YG");
    EXPECT_EQ(lesson.drag(2, 3), "Lesson");
    EXPECT_EQ(lesson.drag(2, 1), "Lesson");
    EXPECT_EQ(lesson.click(0), "Lesson");
    EXPECT_EQ(lesson.drag(1, 1), "SameChip"); // before the lesson
    EXPECT_EQ(lesson.ask(Remove { 1 }), "remove 1");
}

TEST(EveryGesture, IsRefusedWhileTheGameIsBusy)
{
    for (const Phase phase : { Phase::None, Phase::HintFlying, Phase::WalkingBack,
             Phase::Celebrating, Phase::Leaving }) {
        Situation busy("YGG", kAllOpen, 2);
        busy.during(phase);
        EXPECT_EQ(busy.click(0), "Busy");
        EXPECT_EQ(busy.drag(1, 2), "Busy");
        EXPECT_EQ(busy.ask(Remove { 1 }), "Busy");
        EXPECT_THAT(actions(busy.position()), IsEmpty());
    }
}

TEST(Targets, AreThePlacesEachShapeAllows)
{
    struct Case {
        const char* line;
        unsigned column;
        std::vector<unsigned> targets;
    };
    const std::vector<Case> cases {
        { "YRRRG", 1, { 3 } },
        { "YRRRG", 2, {} },
        { "YRRRG", 3, { 1 } },
        { "YRRRRR", 3, { 1, 5 } },
        { "RRR", 0, { 2 } },
        { "RRR", 2, { 0 } },
        { "YGG", 1, { 2 } },
        { "YGG", 2, { 1 } },
        { "YGGG", 2, { 1, 3 } },
        { "GG", 1, { 0 } },
        { "YRG", 0, { 2 } },
        { "YR", 0, {} },
        { "GYRB", 1, { 3 } },
        { "GRY", 2, {} },
        { "YBRGB", 1, { 4 } },
        { "YBRGB", 4, { 1 } },
        { "YBRBGB", 1, { 3 } }, // the outer blues are not targets of one another
        { "YBRBGB", 3, { 1, 5 } },
        { "YBRBGB", 5, { 3 } },
        { "YBB", 1, {} }, // adjacent blues have nothing between them
        { "YBB", 2, {} },
        { "YBBRB", 1, {} }, // and the nearest hides those behind it
        { "YBBRB", 2, { 4 } },
        { "B", 0, {} },
        { "YRGRG", 1, {} },
    };
    for (const auto& [line, column, expected] : cases) {
        EXPECT_THAT(targets(Situation(line, 1).position(), column), ElementsAreArray(expected))
            << line << " from " << column;
    }
}

TEST(Targets, AreNoneFromTwelveLinesOn)
{
    EXPECT_THAT(targets(Situation("YGG", kAllOpen, 11).position(), 1), ElementsAre(2));
    EXPECT_THAT(targets(Situation("YGG", kAllOpen, 12).position(), 1), IsEmpty());
}

// Whatever is open to the player; the drop itself is what is tested against that.
TEST(Targets, AreDropsThatAllMovesAccept)
{
    for (const char* line : { "YRRRRR", "YGGG", "YRG", "YBRBGB", "YBBRB", "GYRRRGGB" }) {
        const Situation standing(line);
        for (unsigned column = 0; column < std::string_view(line).size(); ++column) {
            for (const unsigned target : targets(standing.position(), column)) {
                EXPECT_TRUE(std::holds_alternative<Action>(
                    decide(standing.position(), Drag { 0, column, 0, target })))
                    << line << ' ' << column << " to " << target;
            }
        }
    }
}

TEST(Actions, AreTheClicksAndDropsThatAreMoves)
{
    EXPECT_THAT(actions(Situation("YGG", 4, 2).position()),
        ElementsAre(
            Gesture(Click { 1, 0 }), Gesture(Drag { 1, 1, 1, 2 }), Gesture(Drag { 1, 2, 1, 1 })));
    EXPECT_THAT(actions(Situation("YGG", 1, 2).position()), ElementsAre(Gesture(Click { 1, 0 })));
    EXPECT_THAT(actions(Situation("YGG", 1, 0).position()), IsEmpty());
}

TEST(AGestureFor, ALineComesWithTheMovesThatAreOpen)
{
    const auto made = [](const char* from, const char* to, int open, std::size_t standing) {
        return gestureFor(Situation(from, open, standing).position(), to).has_value();
    };
    EXPECT_TRUE(made("YRG", "GRY", 5, 1));
    EXPECT_FALSE(made("YRG", "GRY", 4, 1));
    EXPECT_TRUE(made("YGG", "YGBG", 6, 1));
    EXPECT_FALSE(made("YGG", "YGBG", 5, 1));
    EXPECT_TRUE(made("YGG", "Y", 4, 11));
    EXPECT_FALSE(made("YGG", "Y", 4, 12)); // a drag finds no targets any more
    EXPECT_FALSE(made("YR", "YRG", 7, 12)); // the last line must be the goal
    EXPECT_FALSE(made("YR", "YRG", 7, 13));
    EXPECT_FALSE(made("YR", "YB", 7, 1)); // no move at all
    EXPECT_EQ(gestureFor(Situation("YGGG").position(), "YGGBG"), Gesture(Click { 0, 2 }));
    EXPECT_EQ(gestureFor(Situation("YBRGB").position(), "YBB"), Gesture(Drag { 0, 1, 0, 4 }));
}

TEST(ALineAfterAMove, IsNoneWhereTheMoveHasNoSuchMatch)
{
    const engine::Theorem line("YGGG");
    EXPECT_EQ(lineAfter(line, { 3, 1 }), engine::Theorem("YG"));
    EXPECT_EQ(lineAfter(line, { 3, 2 }), std::nullopt);
    EXPECT_EQ(lineAfter(line, { 7, 0 }), std::nullopt);
    EXPECT_EQ(lineAfter(engine::Theorem(), { 1, 0 }), std::nullopt);
    EXPECT_EQ(matchOf(line, { 3, 1 }), (engine::Range { 2, 2 }));
}

} // namespace veyrand::play
