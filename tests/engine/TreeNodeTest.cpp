#include "engine/TreeNode.h"

#include "EngineSupport.h"

#include <gtest/gtest.h>
#include <type_traits>

namespace veyrand::engine {
namespace {

std::vector<std::string> childrenOf(TreeNode& node)
{
    node.makeChildren();
    std::vector<std::string> texts;
    for (const TreeNode& child : node.children()) {
        texts.push_back(child.theorem().theorem());
    }
    return texts;
}

using Texts = std::vector<std::string>;

TEST(TreeNode, ListsItsChildrenRuleByRuleAndMatchByMatch)
{
    TreeNode node(nullptr, line("YRRRR"), sevenMoves());
    EXPECT_EQ(childrenOf(node), (Texts { "YRRRRG", "YRRRRRRRR", "YGR", "YRG", "RRYRR" }));
}

TEST(TreeNode, KeepsTwoWaysToTheSameLine)
{
    TreeNode node(nullptr, line("GGG"), sevenMoves());
    EXPECT_EQ(childrenOf(node), (Texts { "G", "G", "GBGG", "GGBG" }));
}

TEST(TreeNode, GivesItsChildrenItselfAsParentAndItsRules)
{
    TreeNode node(nullptr, line("YR"), sevenMoves());
    node.makeChildren();
    ASSERT_EQ(node.children().size(), 2U);
    EXPECT_EQ(node.children().back().parent(), &node);
    EXPECT_EQ(node.children().back().rules(), sevenMoves());
    EXPECT_EQ(node.parent(), nullptr);
}

// A copy's children would point at the original.
static_assert(!std::is_copy_constructible_v<TreeNode> && !std::is_copy_assignable_v<TreeNode>);
static_assert(!std::is_move_constructible_v<TreeNode> && !std::is_move_assignable_v<TreeNode>);

TEST(TreeNode, HasNoChildrenWhereNoRuleApplies)
{
    TreeNode node(nullptr, line("G"), sevenMoves());
    EXPECT_TRUE(childrenOf(node).empty());
}

TEST(TreeNode, MakesNoChildrenWithoutATextOrWithoutRules)
{
    TreeNode withoutText(nullptr, Theorem(), sevenMoves());
    EXPECT_TRUE(childrenOf(withoutText).empty());
    TreeNode withoutRules(nullptr, line("YR"), nullptr);
    EXPECT_TRUE(childrenOf(withoutRules).empty());
}

TEST(TreeNode, MakingTheChildrenAgainMakesTheSameOnes)
{
    TreeNode node(nullptr, line("YR"), sevenMoves());
    const Texts once = childrenOf(node);
    EXPECT_EQ(childrenOf(node), once);
}

} // namespace
} // namespace veyrand::engine
