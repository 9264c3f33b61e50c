#include "play/Session.h"

#include "play/Decide.h"
#include "progress/RuleSets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::play {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

Puzzle puzzle(const char* root, const char* goal, std::int64_t saved = 500)
{
    return { .mode = progress::Mode::Classic,
        .place = { 5, 1 },
        .root = root,
        .goal = goal,
        .par = 3,
        .saved = saved,
        .spent = 0 };
}

std::vector<std::string> texts(const std::vector<engine::Theorem>& lines)
{
    std::vector<std::string> found;
    for (const engine::Theorem& line : lines) {
        found.push_back(line.theorem());
    }
    return found;
}

class SessionTest : public ::testing::Test {
protected:
    void begin(const char* root, const char* goal, std::int64_t saved = 500)
    {
        m_session.emplace(puzzle(root, goal, saved));
    }
    Session& session() { return m_session.value(); }
    Outcome done(const Action& action) { return std::get<Outcome>(session().apply(action)); }
    std::string refused(const Action& action)
    {
        const auto answer = session().apply(action);
        const auto* const refusal = std::get_if<Refusal>(&answer);
        return refusal != nullptr ? std::string(entryOf(refusal->reason).name) : "done";
    }
    std::vector<std::string> lines() { return texts(session().lines()); }

private:
    std::optional<Session> m_session;
};

constexpr Move kDouble { progress::kDoubling, 0 };
constexpr Move kGreen { progress::kGreenToEnd, 0 };

} // namespace

TEST_F(SessionTest, AMoveAppendsItsLine)
{
    begin("YR", "YB");
    const Outcome outcome = done(kDouble);
    EXPECT_EQ(outcome.row, 1U);
    EXPECT_THAT(texts(outcome.come), ElementsAre("YRR"));
    EXPECT_THAT(outcome.moves, ElementsAre(kDouble));
    EXPECT_THAT(outcome.gone, IsEmpty());
    EXPECT_FALSE(outcome.solved);
    EXPECT_THAT(lines(), ElementsAre("YR", "YRR"));
    EXPECT_EQ(session().phase(), Phase::Playing);
    EXPECT_EQ(refused(Move { progress::kTwoGreens, 0 }), "NoMoveHere");
}

TEST_F(SessionTest, ARemovalTakesTheRowAndAllBelow)
{
    begin("YR", "YB");
    done(kDouble);
    done(kDouble);
    const Outcome outcome = done(Remove { 1 });
    EXPECT_EQ(outcome.row, 1U);
    EXPECT_THAT(texts(outcome.gone), ElementsAre("YRR", "YRRRR"));
    EXPECT_THAT(lines(), ElementsAre("YR"));
    EXPECT_EQ(refused(Remove { 1 }), "NoSuchRow");
}

TEST_F(SessionTest, UndoAndRedoWalkAlongWhatWasDone)
{
    begin("YR", "YB");
    EXPECT_EQ(refused(Undo {}), "NothingToUndo");
    done(kDouble);
    done(kGreen);
    done(Remove { 1 });
    EXPECT_THAT(texts(done(Undo {}).come), ElementsAre("YRR", "YRRG"));
    EXPECT_THAT(texts(done(Undo {}).gone), ElementsAre("YRRG"));
    EXPECT_TRUE(session().canUndo());
    EXPECT_THAT(texts(done(Undo {}).gone), ElementsAre("YRR"));
    EXPECT_FALSE(session().canUndo());
    EXPECT_THAT(done(Redo {}).moves, ElementsAre(kDouble));
    EXPECT_THAT(done(Redo {}).moves, ElementsAre(kGreen));
    EXPECT_THAT(texts(done(Redo {}).gone), ElementsAre("YRR", "YRRG"));
    EXPECT_FALSE(session().canRedo());
    EXPECT_EQ(refused(Redo {}), "NothingToRedo");
}

TEST_F(SessionTest, WhatIsDoneAnewEndsTheRedoList)
{
    begin("YR", "YB");
    done(kDouble);
    done(Undo {});
    done(kGreen);
    EXPECT_FALSE(session().canRedo());
    EXPECT_THAT(lines(), ElementsAre("YR", "YRG"));
}

TEST_F(SessionTest, TheGoalBringsPointsAtOnceAndNothingMoreIsGranted)
{
    begin("YR", "YRRG");
    done(kDouble);
    const Outcome outcome = done(kGreen);
    EXPECT_TRUE(outcome.solved);
    EXPECT_EQ(outcome.points, 150);
    EXPECT_EQ(session().phase(), Phase::Celebrating);
    EXPECT_FALSE(session().canUndo());
    EXPECT_EQ(refused(Undo {}), "Busy");
    EXPECT_EQ(refused(kDouble), "Busy");
    EXPECT_THAT(texts(session().emptied().gone), ElementsAre("YR", "YRR", "YRRG"));
    EXPECT_THAT(lines(), IsEmpty());
    EXPECT_EQ(session().phase(), Phase::Celebrating);
}

TEST_F(SessionTest, AHintLeavesEveryLineThatLeadsOn)
{
    begin("YGG", "YGGGGGGGG");
    done(kDouble);
    done(Move { progress::kSplitGreens, 0 }); // the blue can never go again
    ASSERT_THAT(lines(), ElementsAre("YGG", "YGGGG", "YGBGGG"));
    EXPECT_EQ(std::get<Hint>(decideHint(session().proof(), HintStage::None, 500)),
        (Hint { Hint::Kind::Back, 2, {} }));
    done(kDouble);
    EXPECT_EQ(std::get<Hint>(decideHint(session().proof(), HintStage::None, 500)).left, 2U);
}

TEST_F(SessionTest, AHintsLineComesWhenItsPiecesHaveLanded)
{
    begin("YR", "YRRG");
    EXPECT_EQ(done(Hint { Hint::Kind::Pieces }).points, -50);
    EXPECT_EQ(session().hintStage(), HintStage::Pieces);
    EXPECT_EQ(done(Hint { Hint::Kind::Line, 0, kDouble }).points, -50);
    EXPECT_EQ(session().phase(), Phase::HintFlying);
    EXPECT_EQ(session().hintStage(), HintStage::Known);
    EXPECT_THAT(lines(), ElementsAre("YR"));
    EXPECT_EQ(refused(kDouble), "Busy");
    EXPECT_THAT(session().landed().moves, ElementsAre(kDouble));
    EXPECT_THAT(lines(), ElementsAre("YR", "YRR"));
    EXPECT_EQ(session().phase(), Phase::Playing);
    EXPECT_EQ(done(Undo {}).points, 0);
    EXPECT_EQ(session().hintStage(), HintStage::None);
    done(Redo {});
    EXPECT_EQ(session().hintStage(), HintStage::Known);
    EXPECT_FALSE(session().isMarked());
}

TEST_F(SessionTest, AHintsLineThatIsTheGoalEarnsWhenItLands)
{
    begin("YR", "YRR");
    EXPECT_EQ(done(Hint { Hint::Kind::Line, 0, kDouble }).points, -50);
    const Outcome outcome = session().landed();
    EXPECT_TRUE(outcome.solved);
    EXPECT_EQ(outcome.points, 160);
    EXPECT_EQ(session().phase(), Phase::Celebrating);
}

TEST_F(SessionTest, AWalkBackTakesOneLineAtOnceAndOneAStep)
{
    begin("YR", "YB");
    for (int i = 0; i < 3; ++i) {
        done(i == 2 ? kGreen : kDouble);
    }
    const Outcome outcome = done(Hint { Hint::Kind::Back, 1, {} });
    EXPECT_EQ(outcome.points, -50);
    EXPECT_EQ(outcome.row, 3U);
    EXPECT_THAT(texts(outcome.gone), ElementsAre("YRRRRG"));
    EXPECT_EQ(session().phase(), Phase::WalkingBack);
    EXPECT_EQ(session().hintStage(), HintStage::None);
    EXPECT_THAT(texts(session().stepBack().gone), ElementsAre("YRRRR"));
    EXPECT_THAT(texts(session().stepBack().gone), ElementsAre("YRR"));
    EXPECT_FALSE(session().isMarked());
    EXPECT_THAT(session().stepBack().gone, IsEmpty());
    EXPECT_EQ(session().phase(), Phase::Playing);
    EXPECT_EQ(session().hintStage(), HintStage::Known);
    EXPECT_TRUE(session().isMarked());
    EXPECT_THAT(texts(done(Undo {}).come), ElementsAre("YRR", "YRRRR", "YRRRRG"));
    EXPECT_FALSE(session().isMarked());
    EXPECT_THAT(texts(done(Redo {}).gone), ElementsAre("YRR", "YRRRR", "YRRRRG"));
    EXPECT_TRUE(session().isMarked());
}

TEST_F(SessionTest, LeavingKeepsTheLinesUntilTheBoardEmpties)
{
    Puzzle endless = puzzle("YR", "YB");
    endless.mode = progress::Mode::Endless;
    Session leaving(endless);
    ASSERT_TRUE(std::holds_alternative<Outcome>(leaving.apply(Leave { 4 })));
    EXPECT_EQ(leaving.phase(), Phase::Leaving);
    EXPECT_THAT(texts(leaving.lines()), ElementsAre("YR"));
    EXPECT_THAT(texts(leaving.emptied().gone), ElementsAre("YR"));
}

TEST_F(SessionTest, IsPickedUpWhereAListOfActionsHasLeftIt)
{
    Replay list;
    for (const Action& action : std::vector<Action> {
             puzzle("YR", "YB"), kDouble, kGreen, Hint { Hint::Kind::Good }, Undo {} }) {
        ASSERT_EQ(list.apply(action), "");
    }
    const auto proof = std::make_shared<engine::Proof>(engine::Theorem("YR"), engine::Theorem("YB"),
        std::make_shared<const engine::Rules>(progress::advancedRules()));
    Session picked(list, proof);
    EXPECT_THAT(texts(proof->lines()), ElementsAre("YR", "YRR"));
    EXPECT_TRUE(picked.canRedo());
    EXPECT_EQ(picked.hash(), list.hash());
    EXPECT_EQ(std::get<Outcome>(picked.apply(Redo {})).points, 0);
}

TEST_F(SessionTest, WhatCannotHaveHappenedIsRefusedAndChangesNothing)
{
    begin("YR", "YB", 0);
    EXPECT_EQ(refused(Hint { Hint::Kind::Good }), "NothingToHint"); // there is nothing to pay with
    EXPECT_EQ(refused(Leave { 4 }), "Busy"); // Classic puzzles are not left for another par
    EXPECT_EQ(refused(Remove { 1 }), "NoSuchRow");
    EXPECT_THAT(lines(), ElementsAre("YR"));
}

TEST_F(SessionTest, AnotherPuzzleBeginsAnew)
{
    begin("YR", "YB");
    done(kDouble);
    done(puzzle("YRRR", "YG"));
    EXPECT_THAT(lines(), ElementsAre("YRRR"));
    EXPECT_FALSE(session().canUndo());
    EXPECT_TRUE(done(Move { progress::kThreeReds, 0 }).solved);
}

TEST_F(SessionTest, SettledItStandsWhereEverythingThatHasBegunComesToRest)
{
    begin("YR", "YRRG");
    done(Hint { Hint::Kind::Line, 0, kDouble });
    session().settle();
    EXPECT_THAT(lines(), ElementsAre("YR", "YRR"));
    done(kDouble);
    done(kDouble);
    done(Hint { Hint::Kind::Back, 1, {} });
    session().settle();
    EXPECT_THAT(lines(), ElementsAre("YR"));
    EXPECT_EQ(session().phase(), Phase::Playing);
}

class HintDecision : public SessionTest {
protected:
    Hint asked(std::int64_t purse = 50)
    {
        return std::get<Hint>(decideHint(session().proof(), session().hintStage(), purse));
    }
};

TEST_F(HintDecision, GoesThroughTheStagesOfALine)
{
    begin("YR", "YRRG");
    EXPECT_EQ(asked(), (Hint { Hint::Kind::Pieces })); // the start line is always good
    done(kDouble);
    EXPECT_EQ(asked(), (Hint { Hint::Kind::Good }));
    done(asked());
    EXPECT_EQ(asked(), (Hint { Hint::Kind::Pieces }));
    done(asked());
    EXPECT_EQ(asked(), (Hint { Hint::Kind::Line, 0, kGreen }));
}

TEST_F(HintDecision, WalksBackToTheLastLineFromWhichTheGoalIsReached)
{
    begin("YRR", "YRRRRG");
    done(kGreen); // YRRG
    done(kDouble); // YRRGRRG
    EXPECT_EQ(asked(), (Hint { Hint::Kind::Back, 1, {} }));
}

TEST_F(HintDecision, HasNothingToTellWhereTheGoalIsOutOfReach)
{
    begin("YR", "YYYYY");
    EXPECT_EQ(asked(), (Hint { Hint::Kind::Nothing }));
}

TEST_F(HintDecision, IsRefusedWithTooFewPointsOrNoLine)
{
    begin("YR", "YRR");
    const auto reason = [this](std::int64_t purse) {
        return std::get<Refusal>(decideHint(session().proof(), HintStage::None, purse)).reason;
    };
    EXPECT_EQ(reason(49), Reason::TooFewPoints);
    session().emptied();
    EXPECT_EQ(reason(50), Reason::NothingToHint);
}

} // namespace veyrand::play
