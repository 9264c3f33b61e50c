#include "engine/Proof.h"

#include "EngineSupport.h"

#include <gtest/gtest.h>

namespace veyrand::engine {
namespace {

std::vector<std::string> linesOf(const Proof& proof)
{
    std::vector<std::string> texts;
    for (const Theorem& theorem : proof.lines()) {
        texts.push_back(theorem.theorem());
    }
    return texts;
}

using Texts = std::vector<std::string>;

TEST(Proof, BeginsWithTheRootAlone)
{
    const Proof proof = proofFromTo("YR", "YRG");
    EXPECT_EQ(linesOf(proof), (Texts { "YR" }));
    EXPECT_EQ(proof.root(), line("YR"));
    EXPECT_EQ(proof.goal(), line("YRG"));
    EXPECT_EQ(proof.rules().size(), 7U);
    EXPECT_FALSE(proof.checkSolved());
    EXPECT_FALSE(proof.solved());
}

TEST(Proof, IsSolvedAtOnceWhereRootAndGoalAreEqual)
{
    EXPECT_TRUE(proofFromTo("YR", "YR").checkSolved());
}

TEST(Proof, AppendsTheResultOfAMove)
{
    Proof proof = proofFromTo("YR", "YRG");
    EXPECT_TRUE(proof.applyRule(0, 0));
    EXPECT_EQ(linesOf(proof), (Texts { "YR", "YRG" }));
    EXPECT_TRUE(proof.checkSolved());
}

TEST(Proof, RefusesAMoveThatDoesNotApply)
{
    Proof proof = proofFromTo("YR", "YRG");
    EXPECT_FALSE(proof.applyRule(2, 0));
    EXPECT_FALSE(proof.applyRule(0, 2)); // one match only
    EXPECT_EQ(linesOf(proof), (Texts { "YR" }));
}

TEST(Proof, AMatchIndexEqualToTheCountPassesTheTestAndIsARangeError)
{
    Proof proof = proofFromTo("YR", "YRG");
    EXPECT_THROW(proof.applyRule(0, 1), std::out_of_range);
    EXPECT_EQ(linesOf(proof), (Texts { "YR" }));
}

TEST(Proof, ARuleIndexBeyondTheRulesIsARangeError)
{
    Proof proof = proofFromTo("YR", "YRG");
    EXPECT_THROW(proof.applyRule(7, 0), std::out_of_range);
}

TEST(Proof, AppliesMovesToTheLastLine)
{
    Proof proof = proofFromTo("YRRRR", "YG");
    EXPECT_TRUE(proof.applyRule(2, 1));
    EXPECT_TRUE(proof.applyRule(1, 0));
    EXPECT_EQ(linesOf(proof), (Texts { "YRRRR", "YRG", "YRGRG" }));
}

TEST(Proof, TrustsAnAppendedLine)
{
    Proof proof = proofFromTo("YR", "YRG");
    proof.appendLine(line("YRG"));
    EXPECT_TRUE(proof.checkSolved());
}

TEST(Proof, RemovesOneLineAndLeavesTheOthersAsTheyAre)
{
    Proof proof = proofFromTo("YR", "B");
    proof.applyRule(1, 0);
    proof.applyRule(0, 0);
    EXPECT_TRUE(proof.removeLine(1));
    EXPECT_EQ(linesOf(proof), (Texts { "YR", "YRRG" }));
}

TEST(Proof, RemovesNoLineThatIsNotThere)
{
    Proof proof = proofFromTo("YR", "B");
    EXPECT_FALSE(proof.removeLine(1));
    EXPECT_EQ(linesOf(proof), (Texts { "YR" }));
}

TEST(Proof, DoesNotProtectTheRoot)
{
    Proof proof = proofFromTo("YR", "YR");
    EXPECT_TRUE(proof.removeLine(0));
    EXPECT_TRUE(proof.lines().empty());
    EXPECT_FALSE(proof.checkSolved());
    EXPECT_THROW((void)proof.solution(), std::out_of_range);
    EXPECT_THROW(proof.applyRule(0, 0), std::out_of_range);
}

TEST(Proof, NeverSaysSolved)
{
    Proof proof = proofFromTo("YR", "YRG");
    proof.applyRule(0, 0);
    ASSERT_TRUE(proof.checkSolved());
    EXPECT_FALSE(proof.solved());
}

TEST(Proof, ItsTreeHoldsTheRootAndOneChild)
{
    const Proof proof = proofFromTo("YR", "YRG");
    EXPECT_EQ(textsOf(proof.tree().nodes()), (Texts { "YR", "YRG" }));
    EXPECT_EQ(proof.analysis().tree(), &proof.tree());
}

TEST(Proof, ItsSolutionLeadsFromTheLastLineToTheGoal)
{
    Proof proof = proofFromTo("YR", "YRRGRRG");
    proof.applyRule(1, 0);
    EXPECT_EQ(textsOf(*proof.solution()), (Texts { "YRR", "YRRG", "YRRGRRG" }));
}

TEST(Proof, ItsSolutionIsNothingWhereTheGoalIsOutOfReach)
{
    EXPECT_EQ(proofFromTo("YR", "B").solution(), std::nullopt);
}

TEST(Proof, TheSolutionOfASolvedProofComesBackToTheGoal)
{
    const Proof proof = proofFromTo("YGG", "YGG");
    const auto solution = proof.solution();
    ASSERT_TRUE(solution);
    EXPECT_GT(solution->size(), 2U);
    EXPECT_EQ(solution->front()->theorem(), solution->back()->theorem());
}

} // namespace
} // namespace veyrand::engine
