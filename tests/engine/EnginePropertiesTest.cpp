#include "EngineSupport.h"
#include "StringSearch.h"
#include "engine/Regex.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

namespace veyrand::engine {
namespace {

rc::Gen<std::string> lines()
{
    return rc::gen::container<std::string>(rc::gen::element('Y', 'R', 'R', 'G', 'G', 'B'));
}

RC_GTEST_PROP(EngineProperties, RewritingPreservesTheAlphabet, ())
{
    const Theorem theorem = line(*lines());
    const Rule& rule = *rc::gen::elementOf(*sevenMoves());
    for (unsigned match = 0; match < theorem.numberOfMatchesWithRule(rule); ++match) {
        const std::string result = theorem.applyRule(rule, match)->theorem();
        RC_ASSERT(result.find_first_not_of("YRGB") == std::string::npos);
    }
}

RC_GTEST_PROP(EngineProperties, MatchesStandInOrderAndInsideTheLine, ())
{
    const Theorem theorem = line(*lines());
    const auto matches = *theorem.matchesWithRule(*rc::gen::elementOf(*sevenMoves()));
    for (std::size_t i = 0; i < matches.size(); ++i) {
        // In brackets, as the macro would otherwise take the two sides apart and evaluate both.
        RC_ASSERT((i == 0 || matches[i - 1].location < matches[i].location));
        RC_ASSERT(matches[i].location + matches[i].length <= theorem.theorem().size());
    }
}

RC_GTEST_PROP(EngineProperties, ChildrenAreThoseFoundByHand, ())
{
    const std::string text = *lines();
    TreeNode node(nullptr, line(text), sevenMoves());
    node.makeChildren();
    std::vector<std::string> children;
    for (const TreeNode& child : node.children()) {
        children.push_back(child.theorem().theorem());
    }
    RC_ASSERT(children == neighboursByHand(text));
}

// The layer against the dullest way to find a text in a text.
RC_GTEST_PROP(EngineProperties, PatternsOfLettersAreFoundWhereTheyStand, ())
{
    const std::string text = *lines();
    const std::string pattern = *rc::gen::nonEmpty(lines());
    const auto start = *rc::gen::inRange<std::size_t>(0, text.size() + 1);
    const std::size_t found = text.find(pattern, start);
    const Range range = rangeOfRegex(text, pattern,
        { static_cast<unsigned>(start), static_cast<unsigned>(text.size() - start) });
    if (found == std::string::npos) {
        RC_ASSERT(range == (Range { kNotFound, 0 }));
    } else {
        RC_ASSERT(range
            == (Range { static_cast<unsigned>(found), static_cast<unsigned>(pattern.size()) }));
    }
}

RC_GTEST_PROP(EngineProperties, LettersAreReplacedFromLeftToRight, ())
{
    const std::string text = *lines();
    const std::string pattern = *rc::gen::nonEmpty(lines());
    const std::string replacement = *lines();
    std::string expected;
    for (std::size_t i = 0; i < text.size();) {
        const bool here = text.compare(i, pattern.size(), pattern) == 0;
        expected += here ? replacement : text.substr(i, 1);
        i += here ? pattern.size() : 1;
    }
    RC_ASSERT(stringByReplacingOccurrencesOfRegex(text, pattern, replacement) == expected);
}

RC_GTEST_PROP(EngineProperties, ASolutionStartsAndEndsWhereItShouldAndEveryStepIsAMove, ())
{
    const std::string root = "Y" + (*lines()).substr(0, 5);
    const Tree tree(line(root), sevenMoves(), 500, 12);
    RC_PRE(tree.count() > 1);
    const Theorem goal = tree.lineAt(*rc::gen::inRange<std::size_t>(1, tree.count()));
    const Analysis analysis(nullptr, sevenMoves());
    const auto path = analysis.findSolutionPathFromTheorem(line(root), goal);
    RC_ASSERT(path.has_value());
    RC_ASSERT(path->front()->theorem() == line(root));
    RC_ASSERT(path->back()->theorem() == goal);
    for (std::size_t i = 1; i < path->size(); ++i) {
        RC_ASSERT(joinedByAMove((*path)[i - 1]->theorem(), (*path)[i]->theorem()));
    }
    const auto sequence = analysis.ruleSequenceForPath(*path);
    RC_ASSERT(sequence->size() == path->size() - 1);
}

// A proof never says more than its moves: each line follows from the one before.
RC_GTEST_PROP(EngineProperties, EveryLineOfAProofFollowsFromTheOneBefore, ())
{
    Proof proof = proofFromTo("YR", "B");
    const auto moves = *rc::gen::container<std::vector<std::pair<unsigned, unsigned>>>(
        rc::gen::pair(rc::gen::inRange(0U, 7U), rc::gen::inRange(0U, 3U)));
    for (const auto& [rule, match] : moves) {
        const Theorem last = proof.lines().back();
        const unsigned matches = last.numberOfMatchesWithRule(proof.rules()[rule]);
        if (match == matches || last.theorem().size() > 40) {
            continue;
        }
        const std::size_t before = proof.lines().size();
        RC_ASSERT(proof.applyRule(rule, match) == (match < matches));
        RC_ASSERT(proof.lines().size() == before + (match < matches ? 1 : 0));
        RC_ASSERT((match >= matches || joinedByAMove(last, proof.lines().back())));
    }
}

} // namespace
} // namespace veyrand::engine
