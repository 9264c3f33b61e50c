#include "engine/Reports.h"

#include "EngineSupport.h"

#include <gtest/gtest.h>

namespace veyrand::engine {
namespace {

using Texts = std::vector<std::string>;

class ReportsTest : public testing::Test {
protected:
    // A report of hand-made nodes, each reached from YRRRRR by lines that are given.
    const Texts& reportOn(const std::vector<Texts>& paths)
    {
        Nodes nodes;
        for (const Texts& path : paths) {
            const TreeNode* parent = nullptr;
            for (const std::string& text : path) {
                m_kept.push_back(std::make_shared<TreeNode>(parent, line(text), sevenMoves()));
                parent = m_kept.back().get();
            }
            nodes.push_back(m_kept.back());
        }
        reports.printNodeArrayWithRuleSequence(nodes);
        return log.entries;
    }

    std::shared_ptr<const Tree> tree
        = std::make_shared<const Tree>(line("YR"), sevenMoves(), 2, 12);
    Analysis analysis { tree, sevenMoves() };
    RecordingLog log;
    Reports reports { analysis, log };

private:
    std::vector<std::shared_ptr<TreeNode>> m_kept;
};

TEST_F(ReportsTest, PrintsATreeBetweenRules)
{
    reports.printTreeTheorems(*tree);
    EXPECT_EQ(
        log.entries, (Texts { "Tree", "----------", "0: YR", "1: YRG", "2: YRR", "----------" }));
}

TEST_F(ReportsTest, PrintsTheLinesOfNodes)
{
    reports.printNodeArray(tree->nodes());
    EXPECT_EQ(log.entries, (Texts { "YR", "YRG", "YRR" }));
}

TEST_F(ReportsTest, PrintsSequenceAndScore)
{
    EXPECT_EQ(reportOn({ { "YRRRRR", "YRRG" } }), (Texts { "YRRRRR,YRRG,0 - 1,2 (Score: 3)" }));
}

TEST_F(ReportsTest, ANodeWithoutASequenceReadsNull)
{
    EXPECT_EQ(reportOn({ { "YRRRRR" } }), (Texts { "YRRRRR,YRRRRR,808 - 0,(null) (Score: 1)" }));
}

TEST_F(ReportsTest, EndsBeforeTheFirstNodeTwoPointsBelowTheTop)
{
    const Texts three = { "YRRRRR", "YRRG" }; // one move, very short
    const Texts two = { "YRRG" }; // no move, very short
    const Texts one = { "YRRRRR" }; // no move, short
    EXPECT_EQ(reportOn({ three, two, one, three }).size(), 2U);
}

TEST_F(ReportsTest, TheTopIsTheFirstScoreOtherThanZero)
{
    const Texts zero = { "YRRRRRRR" }; // no move, eight chips
    const Texts three = { "YRRRRR", "YRRG" };
    const Texts one = { "YRRRRR" };
    // Zeros go by without setting a top; once three is the top, one ends the report.
    EXPECT_EQ(reportOn({ zero, zero, three, zero, one, three }).size(), 4U);
}

TEST_F(ReportsTest, ATopBelowZeroIsATopToo)
{
    const Texts doubled = { "YR", "YRR", "YRRRR", "YRRRRRRRR" };
    const Texts minusOne = doubled; // one move three times, nine chips
    Texts minusThree = doubled; // three such moves, twelve chips
    minusThree.insert(minusThree.end(),
        { "YRRRRRRRRRRRRRRRR", "YRRRRRRRRRRRRRG", "YRRRRRRRRRRGG", "YRRRRRRRGGG", "YRRRRGGGG",
            "YRRRRGGGBG", "YRRRRGGBGBG", "YRRRRGBGBGBG" });
    const Texts three = { "YRRRRR", "YRRG" };
    const Texts one = { "YRRRRR" };
    EXPECT_EQ(reportOn({ minusOne, three, one, minusThree, three }).size(), 3U);
}

TEST_F(ReportsTest, AScoreFurtherBelowTheTopDoesNotEndIt)
{
    const Texts three = { "YRRRRR", "YRRG" };
    const Texts zero = { "YRRRRRRR" };
    EXPECT_EQ(reportOn({ three, zero, three }).size(), 3U);
}

} // namespace
} // namespace veyrand::engine
