#include "engine/Tree.h"

#include "EngineSupport.h"

#include <gtest/gtest.h>
#include <set>

namespace veyrand::engine {
namespace {

using Texts = std::vector<std::string>;

Tree unbuilt(const std::string& root)
{
    return { line(root), sevenMoves(), 0, 0 };
}

unsigned build(Tree& tree, TreeLimits limits, const std::string& goal)
{
    const Theorem theorem = line(goal);
    return tree.makeTreeOfDepth(limits, &theorem);
}

TEST(Tree, ARootOnWhichNoMoveAppliesIsAloneAndFindsNothing)
{
    Tree tree = unbuilt("G");
    EXPECT_EQ(build(tree, { 15000, 12, 13 }, "R"), kGoalNotFound);
    EXPECT_EQ(textsOf(tree.nodes()), (Texts { "G" }));
    EXPECT_EQ(tree.examined(), 0U);
}

TEST(Tree, AChildLimitOfOneKeepsTheRootAndItsFirstChild)
{
    const Tree tree(line("YR"), sevenMoves(), 1, 12);
    EXPECT_EQ(textsOf(tree.nodes()), (Texts { "YR", "YRG" }));
    EXPECT_EQ(tree.examined(), 1U);
}

TEST(Tree, AChildLimitOfOneKeepsNoChildThatIsTooLong)
{
    const Tree tree(line("YRRRRRRRRRRR"), sevenMoves(), 1, 12);
    EXPECT_EQ(tree.count(), 1U);
    EXPECT_EQ(tree.examined(), 1U);
}

TEST(Tree, AGoalOneMoveAwayIsFoundWhileExpandingTheRoot)
{
    Tree tree = unbuilt("YR");
    EXPECT_EQ(build(tree, { 15000, 12, 13 }, "YRR"), 0U);
    EXPECT_EQ(tree.node(tree.count() - 1)->theorem(), line("YRR"));
    EXPECT_EQ(textsOf(Tree::pathForNode(tree.node(tree.count() - 1))), (Texts { "YR", "YRR" }));
}

TEST(Tree, TheChildThatIsTheGoalIsNotCounted)
{
    Tree tree = unbuilt("YR");
    build(tree, { 15000, 12, 13 }, "YRR");
    EXPECT_EQ(tree.examined(), 1U); // YRG alone
}

TEST(Tree, AChildThatIsTooLongIsDroppedButCounted)
{
    // Twelve chips: the green at the end and the doubling are too long, every other child is not.
    Tree tree(line("YGGRRRRRRRRR"), sevenMoves(), 2, 12);
    EXPECT_EQ(tree.count(), 1U);
    EXPECT_EQ(tree.examined(), 2U);
}

TEST(Tree, NodesStandInTheOrderOfTheirDiscovery)
{
    const Tree tree(line("YR"), sevenMoves(), 7, 12);
    EXPECT_EQ(textsOf(tree.nodes()),
        (Texts { "YR", "YRG", "YRR", "YRGRG", "GRY", "YRRG", "YRRRR", "RRY" }));
}

TEST(Tree, KeepsNoLineTwiceButTheRootOnce)
{
    const Tree tree(line("YGG"), sevenMoves(), 15000, 12);
    std::multiset<std::string> texts;
    for (const NodePtr& node : tree.nodes()) {
        texts.insert(node->theorem().theorem());
    }
    for (const std::string& text : std::set<std::string>(texts.begin(), texts.end())) {
        EXPECT_EQ(texts.count(text), text == "YGG" ? 2U : 1U) << text;
    }
}

TEST(Tree, FindsAGoalThatIsTheRootOnlyWhereItIsDerivedAgain)
{
    Tree tree = unbuilt("YGG");
    const unsigned result = build(tree, { 15000, 12, 13 }, "YGG");
    ASSERT_NE(result, kGoalNotFound);
    const Path path = Tree::pathForNode(tree.node(tree.count() - 1));
    EXPECT_GT(path.size(), 1U);
    EXPECT_EQ(path.front()->theorem(), path.back()->theorem());
}

TEST(Tree, TheResultIsTheIndexOfTheNodeThatWasExpanded)
{
    Tree tree = unbuilt("YR");
    const unsigned result = build(tree, { 15000, 12, 13 }, "YRRG");
    EXPECT_EQ(tree.node(tree.count() - 1)->parent(), tree.node(result).get());
    EXPECT_EQ(result, 2U);
}

TEST(Tree, StopsWhereAPathIsTooLongAtAHundredthNodeOnly)
{
    Tree shallow = unbuilt("YR");
    EXPECT_EQ(build(shallow, { 15000, 12, 1 }, "none"), kGoalNotFound);
    // The root's path has one element and node 100's more: the build ends with node 100 expanded.
    EXPECT_GT(shallow.count(), 100U);
    std::size_t lastExpanded = 0;
    for (const NodePtr& node : shallow.nodes()) {
        for (std::size_t i = lastExpanded; i < shallow.count(); ++i) {
            if (shallow.node(i).get() == node->parent()) {
                lastExpanded = i;
            }
        }
    }
    EXPECT_LE(lastExpanded, 100U);
}

TEST(Tree, APathLimitOfNothingStopsAtTheRoot)
{
    Tree tree = unbuilt("YR");
    EXPECT_EQ(build(tree, { 15000, 12, 0 }, "none"), kGoalNotFound);
    EXPECT_EQ(textsOf(tree.nodes()), (Texts { "YR", "YRG", "YRR" }));
}

TEST(Tree, ABuildWithoutALimitARootOrRulesIsRefusedAndLeavesTheNodes)
{
    Tree tree(line("YR"), sevenMoves(), 1, 12);
    const Theorem goal = line("YRG");
    EXPECT_EQ(tree.makeTreeOfDepth({ 0, 12, 13 }, &goal), 0U);
    EXPECT_EQ(tree.makeTreeOfDepth({ 15000, 0, 13 }, &goal), 0U);
    EXPECT_EQ(textsOf(tree.nodes()), (Texts { "YR", "YRG" }));

    Tree rootless(Theorem(), sevenMoves(), 15000, 12);
    EXPECT_EQ(rootless.count(), 0U);
    EXPECT_EQ(rootless.makeTreeOfDepth({ 15000, 12, 13 }, &goal), 0U);

    Tree ruleless(line("YR"), nullptr, 15000, 12);
    EXPECT_EQ(ruleless.makeTreeOfDepth({ 15000, 12, 13 }, &goal), 0U);
    EXPECT_EQ(ruleless.count(), 0U);
}

TEST(Tree, AGoalWithoutATextIsNeverFound)
{
    Tree tree = unbuilt("YR");
    const Theorem none;
    EXPECT_EQ(tree.makeTreeOfDepth({ 100, 12, 13 }, &none), kGoalNotFound);
    EXPECT_EQ(tree.indexOfDerived(none), std::nullopt);
    EXPECT_EQ(unbuilt("YR").indexOfDerived(line("YR")), std::nullopt);
}

TEST(Tree, ADesignersBuildGoesFarBeyondTheGamesLimits)
{
    const Tree tree(line("YR"), sevenMoves(), 200000, 12);
    EXPECT_EQ(tree.examined(), 200000U);
    const Tree usual(line("YR"), sevenMoves(), 15000, 12);
    for (std::size_t i = 0; i < usual.count(); i += 50) {
        EXPECT_EQ(tree.lineAt(i), usual.lineAt(i));
    }
}

TEST(Tree, RulesWithoutAFastFormAreSearchedByTheirPatterns)
{
    const auto rules = std::make_shared<const Rules>(Rules { { "R+", "GB" }, { "GB", "R" } });
    const Tree tree(line("YRR"), rules, 15000, 12);
    EXPECT_EQ(
        textsOf(tree.nodes()), (Texts { "YRR", "YGB", "YRGB", "YR", "YGBGB", "YRR", "YGBR" }));
}

TEST(Tree, FindsLinesOfForeignLettersToo)
{
    const Tree tree(line("xRRR"), sevenMoves(), 15000, 12);
    EXPECT_EQ(tree.lineAt(*tree.indexOfDerived(line("xG"))), line("xG"));
    EXPECT_EQ(tree.indexOfDerived(line("xRRR")), std::nullopt); // never derived
    EXPECT_EQ(tree.indexOfDerived(line("xYY")), std::nullopt);
}

TEST(Tree, ARefusedBuildAnswersThatTheGoalWasFound)
{
    Tree tree = unbuilt("YR");
    EXPECT_TRUE(tree.makeTreeOfDepth(0, 12, line("YRG")));
    EXPECT_TRUE(tree.makeTreeOfDepth(15000, 12, line("YRG")));
    EXPECT_FALSE(tree.makeTreeOfDepth(15000, 12, line("B")));
}

TEST(Tree, EachBuildReplacesTheNodes)
{
    Tree tree(line("YR"), sevenMoves(), 15000, 12);
    tree.makeTreeOfDepth(1, 12);
    EXPECT_EQ(tree.count(), 2U);
}

TEST(Tree, APathOutlivesItsTree)
{
    Path path;
    {
        Tree tree = unbuilt("YR");
        build(tree, { 15000, 12, 13 }, "YRRG");
        path = Tree::pathForNode(tree.node(tree.count() - 1));
    }
    EXPECT_EQ(textsOf(path), (Texts { "YR", "YRR", "YRRG" }));
    EXPECT_EQ(path[2]->parent(), path[1].get());
}

TEST(Tree, ANodeBeyondTheLastIsARangeError)
{
    EXPECT_THROW((void)unbuilt("YR").node(0), std::out_of_range);
}

TEST(Tree, ReversesAPathAndAnswersNothingForAnEmptyOne)
{
    const Tree tree(line("YR"), sevenMoves(), 1, 12);
    EXPECT_EQ(textsOf(*Tree::reversePath(tree.nodes())), (Texts { "YRG", "YR" }));
    EXPECT_EQ(Tree::reversePath({}), std::nullopt);
}

} // namespace
} // namespace veyrand::engine
