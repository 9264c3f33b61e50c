#include "engine/Analysis.h"

#include "EngineSupport.h"

#include <gtest/gtest.h>

namespace veyrand::engine {
namespace {

using Texts = std::vector<std::string>;

// An analysis of the whole tree of a root within limits small enough to look at.
Analysis analysisOf(const std::string& root, unsigned childLimit = 15000, unsigned length = 12)
{
    auto tree = std::make_shared<const Tree>(line(root), sevenMoves(), childLimit, length);
    return { tree, sevenMoves() };
}

Analysis analysisWithoutTree()
{
    return { nullptr, sevenMoves() };
}

// A path made by hand, one line under the other.
Path handMade(const Texts& texts)
{
    static std::vector<std::shared_ptr<TreeNode>> kept;
    Path path;
    const TreeNode* parent = nullptr;
    for (const std::string& text : texts) {
        kept.push_back(std::make_shared<TreeNode>(parent, line(text), sevenMoves()));
        parent = kept.back().get();
        path.push_back(kept.back());
    }
    return path;
}

TEST(FindSolutionPath, RunsFromTheStartToTheGoal)
{
    const auto path
        = analysisWithoutTree().findSolutionPathFromTheorem(line("YR"), line("YRRGRRG"));
    ASSERT_TRUE(path);
    EXPECT_EQ(textsOf(*path), (Texts { "YR", "YRR", "YRRG", "YRRGRRG" }));
}

TEST(FindSolutionPath, AnswersNothingBelowTheLengthOfTheShortestPath)
{
    const Analysis analysis = analysisWithoutTree();
    EXPECT_TRUE(analysis.findSolutionPathFromTheorem(line("YR"), line("YRRGRRG"), 4));
    EXPECT_EQ(analysis.findSolutionPathFromTheorem(line("YR"), line("YRRGRRG"), 3), std::nullopt);
}

TEST(FindSolutionPath, AnswersNothingForAGoalOutOfReach)
{
    const Analysis analysis = analysisWithoutTree();
    EXPECT_EQ(analysis.findSolutionPathFromTheorem(line("YR"), line("B")), std::nullopt);
    EXPECT_EQ(
        analysis.findSolutionPathFromTheorem(line("YR"), line("RRRRRRRRRRRRR")), std::nullopt);
    EXPECT_EQ(analysis.findSolutionPathFromTheorem(line("YR"), Theorem()), std::nullopt);
}

TEST(FindSolutionPath, AnswersNothingFromALineWithoutAText)
{
    const Analysis analysis = analysisWithoutTree();
    EXPECT_EQ(analysis.findSolutionPathFromTheorem(Theorem(), line("YR")), std::nullopt);
    EXPECT_EQ(Analysis(nullptr, nullptr).findSolutionPathFromTheorem(line("YR"), line("YRG")),
        std::nullopt);
}

TEST(FindTreeCount, IsTheIndexOfTheNodeBeforeTheGoal)
{
    const Analysis analysis = analysisWithoutTree();
    EXPECT_EQ(analysis.findTreeCountFromTheorem(line("YR"), line("YRR"), 100), 0);
    EXPECT_EQ(analysis.findTreeCountFromTheorem(line("YR"), line("YRRG"), 100), 2);
    EXPECT_EQ(analysis.findTreeCountFromTheorem(line("YR"), line("B"), 100), -1);
    EXPECT_EQ(analysis.findTreeCountFromTheorem(Theorem(), line("B"), 100), 0); // never built
}

TEST(FindTreeCount, IgnoresItsLimit)
{
    EXPECT_EQ(analysisWithoutTree().findTreeCountFromTheorem(line("YR"), line("YRRG"), 1), 2);
}

TEST(RuleIndex, NamesTheMoveThatJoinsTwoLines)
{
    const Analysis analysis = analysisWithoutTree();
    EXPECT_EQ(analysis.ruleIndexFromTheorem(line("YRGG"), line("YR")), 3);
    EXPECT_EQ(analysis.ruleIndexFromTheorem(line("YRGG"), line("YRGBG")), 5);
    EXPECT_EQ(analysis.ruleIndexFromTheorem(line("YR"), line("B")), kNoRule);
}

TEST(RuleIndex, OfSeveralMovesTheHighestWins)
{
    const Analysis analysis(nullptr,
        std::make_shared<const Rules>(Rules { { "R", "G" }, { "B", "B" }, { "R$", "G" } }));
    EXPECT_EQ(analysis.ruleIndexFromTheorem(line("YR"), line("YG")), 2);
}

TEST(RuleIndex, LinesOfForeignLettersAreJoinedByThePatterns)
{
    const Analysis analysis = analysisWithoutTree();
    EXPECT_EQ(analysis.ruleIndexFromTheorem(line("YxGG"), line("Yx")), 3);
    EXPECT_EQ(analysis.ruleIndexFromTheorem(line("YRRRR"), line("YxG")), kNoRule);
    EXPECT_EQ(analysis.ruleIndexFromTheorem(line("YRRRRx"), line("YRGx")), 2);
}

TEST(RuleIndex, RulesWithoutAFastFormAreTriedByTheirPatterns)
{
    const Analysis analysis(nullptr, std::make_shared<const Rules>(Rules { { "R+", "$0G" } }));
    EXPECT_EQ(analysis.ruleIndexFromTheorem(line("YRR"), line("YRRG")), 0);
    EXPECT_EQ(analysis.ruleIndexFromTheorem(line("YRR"), line("YG")), kNoRule);
}

TEST(RuleIndex, NoMoveMakesOrTakesALineWithoutAText)
{
    const auto packed = std::make_shared<const Rules>(Rules { { "GG", "" } });
    const auto plain = std::make_shared<const Rules>(Rules { { "G+", "" }, { ".*", "G" } });
    ASSERT_TRUE(PackedMoves::derive(*packed) && !PackedMoves::derive(*plain));
    for (const SharedRules& rules : { packed, plain }) {
        const Analysis analysis(nullptr, rules);
        EXPECT_EQ(analysis.ruleIndexFromTheorem(line("GG"), line("")), 0);
        EXPECT_EQ(analysis.ruleIndexFromTheorem(line("GG"), Theorem()), kNoRule);
        EXPECT_EQ(analysis.ruleIndexFromTheorem(Theorem(), line("G")), kNoRule);
        EXPECT_EQ(analysis.ruleIndexFromTheorem(Theorem(), Theorem()), kNoRule);
    }
}

TEST(RuleIndex, CountsAMatchThatIsNotTheFirst)
{
    EXPECT_EQ(analysisWithoutTree().ruleIndexFromTheorem(line("YRRRR"), line("YRG")), 2);
}

TEST(RuleSequence, HasOneDigitAMove)
{
    const Analysis analysis = analysisWithoutTree();
    EXPECT_EQ(analysis.ruleSequenceForPath(handMade({ "YR", "YRR", "YRRG", "YRRGRRG" })), "101");
}

TEST(RuleSequence, IsNothingForAPathOfFewerThanTwoNodes)
{
    const Analysis analysis = analysisWithoutTree();
    EXPECT_EQ(analysis.ruleSequenceForPath({}), std::nullopt);
    EXPECT_EQ(analysis.ruleSequenceForPath(handMade({ "YR" })), std::nullopt);
    EXPECT_EQ(analysis.ruleSequenceForNode(handMade({ "YR" }).back()), std::nullopt);
}

TEST(RuleSequence, APairThatNoMoveJoinsReadsMinusOne)
{
    EXPECT_EQ(analysisWithoutTree().ruleSequenceForPath(handMade({ "YR", "B", "YR" })), "-1-1");
}

TEST(RuleSequence, OfANodeIsThatOfItsPath)
{
    EXPECT_EQ(
        analysisWithoutTree().ruleSequenceForNode(handMade({ "YR", "YRR", "YRRG" }).back()), "10");
}

struct ScoreCase {
    const char* sequence;
    int score;
};

class Score : public testing::TestWithParam<ScoreCase> { };

TEST_P(Score, RewardsVarietyAndPunishesRepetition)
{
    EXPECT_EQ(analysisOf("YR").scoreRuleSequence(GetParam().sequence), GetParam().score);
}

INSTANTIATE_TEST_SUITE_P(Sequences, Score,
    testing::Values(ScoreCase { "1000", 0 }, ScoreCase { "0123", 4 }, ScoreCase { "", 0 },
        ScoreCase { "00", 1 }, ScoreCase { "0000000", -1 }, ScoreCase { "000111", -2 },
        ScoreCase { "0123456", 7 }, ScoreCase { "789", 0 }, ScoreCase { "-1", 1 })); // the digit 1

TEST(ScoreNode, AddsAPointForAShortLineAndAnotherForAVeryShortOne)
{
    const Analysis analysis = analysisOf("YR");
    // Moves 1, 0, 1 in each case: two points for the sequence alone.
    EXPECT_EQ(analysis.scoreNode(handMade({ "YR", "YRR", "YRRG", "YRRGRRG" }).back()), 3);
    EXPECT_EQ(analysis.scoreNode(handMade({ "YRR", "YRRRR", "YRRRRG", "YRRRRGRRRRG" }).back()), 2);
    EXPECT_EQ(analysis.scoreNode(handMade({ "YR", "YRR", "YRRG" }).back()), 4);
    EXPECT_EQ(analysis.scoreNode(handMade({ "YR" }).back()), 2);
}

TEST(ScoreNode, FourMovesToALineOfFourChipsScoreSix)
{
    const auto rules = std::make_shared<const Rules>(
        Rules { { "YRRR", "YRRG" }, { "YRRG", "YRGG" }, { "YRGG", "YGGG" }, { "YGGG", "YGGR" } });
    const Analysis analysis(std::make_shared<const Tree>(line("YRRR"), rules, 100, 12), rules);
    const auto nodes = analysis.findNodesWithTheorem(line("YGGR"));
    ASSERT_TRUE(nodes);
    EXPECT_EQ(analysis.ruleSequenceForNode(nodes->front()), "0123");
    EXPECT_EQ(analysis.scoreNode(nodes->front()), 6);
}

TEST(RankNodes, KeepsWhatScoresMoreThanHalfTheBestInOrder)
{
    const Analysis analysis = analysisOf("YR");
    const auto scored = [&](const Texts& texts) { return handMade(texts).back(); };
    const NodePtr four = scored({ "YR", "YRR", "YRRG" }); // 2 moves, very short
    const NodePtr two = scored({ "YRRR" }); // no move, very short
    const NodePtr three = scored({ "YR", "YRR" }); // 1 move, very short
    const NodePtr alsoFour = scored({ "YG", "YGG", "Y" }); // 2 moves, very short
    ASSERT_EQ(analysis.scoreNode(four), 4);
    ASSERT_EQ(analysis.scoreNode(two), 2);
    ASSERT_EQ(analysis.scoreNode(three), 3);
    ASSERT_EQ(analysis.scoreNode(alsoFour), 4);
    EXPECT_EQ(analysis.rankNodes(Nodes { four, two, three, alsoFour }),
        (Nodes { four, alsoFour, three })); // 2 is not above 4 / 2
}

TEST(RankNodes, ABestBelowZeroIsNotAboveItsHalf)
{
    const Analysis analysis = analysisOf("YR");
    const NodePtr node = handMade({ "YR", "YRR", "YRRRR", "YRRRRRRRR" }).back();
    ASSERT_EQ(analysis.scoreNode(node), -1); // and half of that, rounded towards zero, is 0
    EXPECT_TRUE(analysis.rankNodes(Nodes { node }).empty());
}

TEST(RankNodes, ABestOfOneIsAboveItsHalf)
{
    const Analysis analysis = analysisOf("YR");
    const NodePtr node = handMade({ "YGGGGGRRRRR", "YGGGGGRRRRRG" }).back();
    ASSERT_EQ(analysis.scoreNode(node), 1);
    EXPECT_EQ(analysis.rankNodes(Nodes { node }), (Nodes { node }));
}

TEST(RankNodes, OfNothingIsAnEmptyList)
{
    EXPECT_TRUE(analysisOf("YR").rankNodes(std::nullopt).empty());
    EXPECT_TRUE(analysisOf("YR").rankNodes(Nodes()).empty());
}

TEST(FindNodes, AnswersEveryNodeOfTheLine)
{
    const Analysis analysis = analysisOf("YGG");
    EXPECT_EQ(analysis.findNodesWithTheorem(line("YGG"))->size(), 2U); // the root is kept again
    EXPECT_EQ(analysis.findNodesWithTheorem(line("Y"))->size(), 1U);
    EXPECT_EQ(analysis.findNodesWithTheorem(line("R")), std::nullopt);
}

TEST(FindPaths, AnswersAPathForEachNode)
{
    const Analysis analysis = analysisOf("YGG");
    const auto paths = analysis.findPathsWithTheorem(line("YGG"));
    ASSERT_EQ(paths->size(), 2U);
    EXPECT_EQ(paths->front().size(), 1U);
    EXPECT_GT(paths->back().size(), 1U);
    EXPECT_EQ(analysis.findPathsWithTheorem(line("R")), std::nullopt);
}

TEST(FindShortestPath, OfSeveralIsThePathWithTheFewestNodes)
{
    const auto shortest = analysisOf("YGG").findShortestPath(line("YGG"));
    ASSERT_TRUE(shortest);
    EXPECT_EQ(std::get<Path>(*shortest).size(), 1U);
}

TEST(FindShortestPath, OfOneIsTheListThatHoldsIt)
{
    const auto shortest = analysisOf("YR").findShortestPath(line("YRR"));
    ASSERT_TRUE(shortest);
    const auto& only = std::get<std::vector<Path>>(*shortest);
    ASSERT_EQ(only.size(), 1U);
    EXPECT_EQ(textsOf(only.front()), (Texts { "YR", "YRR" }));
}

TEST(FindShortestPath, OfNoneIsNothing)
{
    EXPECT_EQ(analysisOf("YR").findShortestPath(line("B")), std::nullopt);
}

TEST(NodesOfPathLength, CountsTheRootAsOne)
{
    const Analysis analysis = analysisOf("YR");
    EXPECT_EQ(textsOf(*analysis.nodesOfPathLength(1)), (Texts { "YR" }));
    EXPECT_EQ(textsOf(*analysis.nodesOfPathLength(2)), (Texts { "YRG", "YRR" }));
    EXPECT_EQ(analysis.nodesOfPathLength(0), std::nullopt);
    EXPECT_EQ(analysis.nodesOfPathLength(99), std::nullopt);
}

TEST(UniqueNodes, LogsEachStepAndKeepsNewLines)
{
    RecordingLog log;
    const auto unique = analysisOf("YR").uniqueNodesOfPathLength(2, log);
    EXPECT_EQ(textsOf(*unique), (Texts { "YRG", "YRR" }));
    EXPECT_EQ(log.entries,
        (Texts { "Compiling list for: 2", "Thinning list for: 2 (1 to thin)",
            "Deleting list for: 2 (0 to delete)", "Finished Deleting: 2" }));
}

TEST(UniqueNodes, DropsTheRootsLineWhereItIsDerivedAgain)
{
    const Analysis analysis = analysisOf("YGG");
    const std::size_t length = analysis.findPathsWithTheorem(line("YGG"))->back().size();
    const auto n = static_cast<unsigned>(length);
    RecordingLog log;
    const auto unique = analysis.uniqueNodesOfPathLength(n, log);
    EXPECT_EQ(unique->size() + 1, analysis.nodesOfPathLength(n)->size());
    EXPECT_EQ(log.entries[2], "Deleting list for: " + std::to_string(n) + " (1 to delete)");
    for (const std::string& text : textsOf(*unique)) {
        EXPECT_NE(text, "YGG");
    }
}

// The root's line stands twice among the shorter ways, and is counted twice.
TEST(UniqueNodes, TellHowManyNodesAreShorterRepeatsIncluded)
{
    const Analysis analysis = analysisOf("YGG");
    const auto n
        = static_cast<unsigned>(analysis.findPathsWithTheorem(line("YGG"))->back().size() + 1);
    std::size_t shorter = 0;
    for (unsigned length = 1; length < n; ++length) {
        shorter += analysis.nodesOfPathLength(length)->size();
    }
    RecordingLog log;
    (void)analysis.uniqueNodesOfPathLength(n, log);
    EXPECT_EQ(log.entries[1],
        "Thinning list for: " + std::to_string(n) + " (" + std::to_string(shorter) + " to thin)");
}

TEST(UniqueNodes, OfALengthWithoutNodesLogsAllTheSame)
{
    RecordingLog log;
    EXPECT_EQ(analysisOf("YR", 1).uniqueNodesOfPathLength(3, log), std::nullopt);
    EXPECT_EQ(log.entries,
        (Texts { "Compiling list for: 3", "Thinning list for: 3 (2 to thin)",
            "Deleting list for: 3 (0 to delete)", "Finished Deleting: 3" }));
}

TEST(RemoveNotedNodes, EachRemovalFallsFurtherBehind)
{
    Nodes nodes = handMade({ "A", "B", "C", "D", "E", "F" });
    removeNotedNodes(nodes, { 0, 1 });
    // First A; then position 2 of what is left, which is D (B was noted).
    EXPECT_EQ(textsOf(nodes), (Texts { "B", "C", "E", "F" }));
}

TEST(RemoveNotedNodes, OneEntryIsTheOneThatWasNoted)
{
    Nodes nodes = handMade({ "A", "B", "C" });
    removeNotedNodes(nodes, { 2 });
    EXPECT_EQ(textsOf(nodes), (Texts { "A", "B" }));
}

TEST(RemoveNotedNodes, APositionBeyondTheEndIsARangeError)
{
    Nodes nodes = handMade({ "A", "B", "C" });
    EXPECT_THROW(removeNotedNodes(nodes, { 1, 2 }), std::out_of_range);
}

} // namespace
} // namespace veyrand::engine
