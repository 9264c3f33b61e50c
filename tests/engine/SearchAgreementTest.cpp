#include "EngineSupport.h"
#include "StringSearch.h"
#include "engine/SolutionSearch.h"
#include "reference/ReferenceSearch.h"

#include <gtest/gtest.h>
#include <random>

namespace veyrand::engine {
namespace {

using Texts = std::vector<std::string>;

Texts linesOf(const Tree& tree)
{
    Texts texts;
    for (std::size_t i = 0; i < tree.count(); ++i) {
        texts.push_back(tree.lineAt(i).theorem());
    }
    return texts;
}

Texts linesOf(const reference::Search& search)
{
    Texts texts;
    for (const auto& node : search.nodes) {
        texts.push_back(node->theorem.theorem());
    }
    return texts;
}

// Fifty-five roots: a yellow chip and up to four others.
Texts someRoots()
{
    Texts roots;
    Texts shorter { "Y" };
    while (roots.size() < 55) {
        Texts longer;
        for (const std::string& root : shorter) {
            for (const char chip : { 'R', 'G', 'B' }) {
                longer.push_back(root + chip);
                roots.push_back(root + chip);
            }
        }
        shorter = std::move(longer);
    }
    roots.resize(55);
    return roots;
}

struct Build {
    const char* root;
    TreeLimits limits;
    const char* goal; // null for none
};

class SearchBuild : public testing::TestWithParam<Build> { };

TEST_P(SearchBuild, MeetsTheSameLinesInTheSameOrderAsTheReference)
{
    const Build& p = GetParam();
    const Theorem goal = p.goal != nullptr ? line(p.goal) : Theorem();
    const Theorem* goalOrNone = p.goal != nullptr ? &goal : nullptr;
    Tree tree(line(p.root), sevenMoves(), 0, 0);
    const unsigned result = tree.makeTreeOfDepth(p.limits, goalOrNone);
    const reference::Search plain
        = reference::search(line(p.root), *sevenMoves(), p.limits, goalOrNone);
    EXPECT_EQ(result, plain.result);
    EXPECT_EQ(tree.examined(), plain.examined);
    EXPECT_EQ(linesOf(tree), linesOf(plain));
    for (std::size_t i = 1; i < tree.count(); ++i) {
        ASSERT_EQ(tree.lineAt(tree.parentOf(i)), plain.nodes[i]->parent->theorem);
    }
}

INSTANTIATE_TEST_SUITE_P(Builds, SearchBuild,
    testing::Values(Build { "YR", { 15000, 12, 13 }, nullptr },
        Build { "YRRRRR", { 15000, 10, 13 }, nullptr }, // another length
        Build { "YR", { 15000, 12, 13 }, "YRRGRRG" }, //
        Build { "YRGG", { 15000, 12, 13 }, "YRGG" }, // the root for a goal
        Build { "YR", { 15000, 12, 13 }, "x" }, // a goal of foreign letters
        Build { "YRRRGGB", { 700, 12, 3 }, nullptr }, // the path's limit
        Build { "YRRRGGB", { 701, 12, 13 }, nullptr }, // the children's limit
        Build { "YGGGGGGGGGGG", { 300, 11, 13 }, nullptr }, // a root longer than the limit
        Build { "YYRYR", { 1000, 12, 13 }, nullptr }, //
        Build { "", { 10, 12, 13 }, nullptr }, //
        Build { "GG", { 10, 12, 13 }, "" }, // the line of no chips
        Build { "YxRRR", { 200, 12, 13 }, nullptr }, // by the patterns
        Build { "YxRRR", { 200, 12, 13 }, "YxG" }, //
        Build { "YxRRR", { 7, 12, 13 }, "YxG" }, //
        Build { "YxRRR", { 700, 12, 2 }, nullptr }, //
        Build { "YR", { 300, 40, 13 }, nullptr })); // longer lines than can be packed

TEST(SearchAgreement, LinesWithForeignLettersAreSearchedByThePatterns)
{
    std::mt19937 random(8);
    constexpr std::string_view kLetters = "YRGBx\xE9";
    for (int i = 0; i < 100; ++i) {
        std::string root = "z";
        while (root.size() < 9) {
            root.insert(random() % (root.size() + 1), 1, kLetters[random() % kLetters.size()]);
        }
        const Tree tree(line(root), sevenMoves(), 60, 12);
        EXPECT_EQ(linesOf(tree),
            linesOf(reference::search(line(root), *sevenMoves(), { 60, 12 }, nullptr)));
    }
}

// The goal ends a search early and changes nothing else, so one tree answers every goal.
TEST(OneTreeForAllGoals, AnswersAsEachGoalsOwnSearchWould)
{
    SolutionSearch search(sevenMoves());
    const Theorem root = line("YGG");
    const Tree all(root, sevenMoves(), 15000, 12);
    for (std::size_t i = 1; i < all.count(); i += 97) {
        const Theorem goal = all.lineAt(i);
        Tree tree(root, sevenMoves(), 0, 0);
        const unsigned result = tree.makeTreeOfDepth(kSolutionLimits, &goal);
        EXPECT_EQ(search.result(root, goal), result);
        const auto path = search.path(root, goal);
        ASSERT_EQ(path.has_value(), result != kGoalNotFound);
        if (path) {
            EXPECT_EQ(textsOf(*path), textsOf(tree.pathTo(tree.count() - 1)));
        }
    }
    EXPECT_EQ(search.result(root, line("x")), kGoalNotFound);
    EXPECT_EQ(search.result(root, root), [&] {
        Tree tree(root, sevenMoves(), 0, 0);
        return tree.makeTreeOfDepth(kSolutionLimits, &root);
    }());
}

// Every line that a search finds, from 55 roots, against a search that shares no code with it.
TEST(ShortestPaths, AgreeWithAnExhaustiveSearchForEveryGoal)
{
    SolutionSearch search(sevenMoves());
    for (const std::string& root : someRoots()) {
        const Tree& tree = search.treeFrom(line(root));
        unsigned deepest = 0;
        std::vector<unsigned> moves(tree.count(), 0);
        for (std::size_t i = 1; i < tree.count(); ++i) {
            moves[i] = moves[tree.parentOf(i)] + 1;
            deepest = std::max(deepest, moves[i]);
        }
        const DistanceByLine distances = distancesByHand(root, deepest, 12);
        for (std::size_t i = 1; i < tree.count(); ++i) {
            ASSERT_EQ(distances.at(tree.lineAt(i).theorem()), moves[i]) << root;
        }
        ASSERT_EQ(solutionsByHand(root).size() + 1, tree.count()) << root;
    }
}

TEST(SolutionPaths, AreJoinedByMovesFromEndToEnd)
{
    SolutionSearch search(sevenMoves());
    std::mt19937 random(11);
    for (const char* root : { "YR", "YRG", "YGGB", "YRRRR" }) {
        const Tree& tree = search.treeFrom(line(root));
        for (int i = 0; i < 50; ++i) {
            const Theorem goal = tree.lineAt(1 + random() % (tree.count() - 1));
            const auto path = search.path(line(root), goal);
            ASSERT_TRUE(path);
            EXPECT_EQ(path->front()->theorem(), line(root));
            EXPECT_EQ(path->back()->theorem(), goal);
            for (std::size_t step = 1; step < path->size(); ++step) {
                EXPECT_TRUE(joinedByAMove((*path)[step - 1]->theorem(), (*path)[step]->theorem()));
            }
        }
    }
}

// From here ways of more than thirteen lines turn up long before enough children were examined.
TEST(SolutionSearch, EndsWhereWaysOfMoreThanThirteenLinesAreFollowed)
{
    const auto countWith = [](unsigned path) {
        Tree tree(line("YRGBG"), sevenMoves(), 0, 0);
        tree.makeTreeOfDepth({ 15000, 12, path }, nullptr);
        return tree.count();
    };
    const std::size_t count = SolutionSearch(sevenMoves()).treeFrom(line("YRGBG")).count();
    EXPECT_EQ(count, countWith(13));
    EXPECT_GT(count, countWith(12));
    EXPECT_LT(count, countWith(14));
}

TEST(SolutionSearch, AnswersTheSameHoweverManyRootsCameBetween)
{
    SolutionSearch search(sevenMoves());
    const auto before = textsOf(*search.path(line("YR"), line("YRRGRRG")));
    for (const std::string& root : someRoots()) {
        (void)search.treeFrom(line(root));
    }
    EXPECT_EQ(textsOf(*search.path(line("YR"), line("YRRGRRG"))), before);
}

TEST(SolutionSearch, KeepsTheTreeOfARootThatIsAskedForAgain)
{
    SolutionSearch search(sevenMoves());
    const Tree* const tree = &search.treeFrom(line("YR"));
    for (int i = 0; i < 100; ++i) {
        (void)search.treeFrom(line(someRoots()[static_cast<std::size_t>(i) % 13]));
        EXPECT_EQ(&search.treeFrom(line("YR")), tree);
    }
}

} // namespace
} // namespace veyrand::engine
