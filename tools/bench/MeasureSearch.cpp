#include "Measure.h"
#include "Measurements.h"
#include "engine/PackedMoves.h"
#include "engine/SolutionSearch.h"
#include "engine/Tree.h"
#include "progress/RuleSets.h"
#include "reference/ReferenceSearch.h"

#include <cstdint>
#include <iostream>

namespace veyrand::bench {

namespace {

using engine::PackedLine;
using engine::PackedMoves;
using engine::SharedRules;
using engine::Theorem;
using engine::Tree;

// No search finds this: no move makes a line of 13 chips within the limits.
const Theorem& unreachable()
{
    static const Theorem kLine("RRRRRRRRRRRRR");
    return kLine;
}

std::uint64_t hashed(std::uint64_t hash, const std::string& text)
{
    constexpr std::uint64_t kPrime = 0x100000001B3U;
    for (const char c : text + '\n') {
        hash = (hash ^ static_cast<unsigned char>(c)) * kPrime;
    }
    return hash;
}

constexpr std::uint64_t kHashStart = 0xCBF29CE484222325U;

std::uint64_t hashOf(const Tree& tree)
{
    std::uint64_t hash = kHashStart;
    for (std::size_t i = 0; i < tree.count(); ++i) {
        hash = hashed(hash, tree.lineAt(i).theorem());
    }
    return hash;
}

std::uint64_t hashOf(const reference::Search& search)
{
    std::uint64_t hash = kHashStart;
    for (const auto& node : search.nodes) {
        hash = hashed(hash, node->theorem.theorem());
    }
    return hash;
}

// Nanoseconds a child when each search has another root. The processor learns to guess the branches
// of a search that it sees again and again; these it cannot know beforehand, and nor can it a
// hint's.
double perChildFromNewRoots(const Tree& tree, const SharedRules& rules)
{
    std::vector<Tree> trees;
    for (std::size_t i = 0; trees.size() < 100; ++i) {
        trees.emplace_back(tree.lineAt(i), rules, 0, 0);
    }
    unsigned examined = 0;
    constexpr int kRuns = 20;
    const double seconds = leastSeconds(kRuns, [&] {
        examined = 0;
        for (Tree& each : trees) {
            each.makeTreeOfDepth(engine::kSolutionLimits, &unreachable());
            examined += each.examined();
        }
    });
    return seconds * 1e9 / examined;
}

// Nanoseconds a child when the lines to expand are known beforehand, so that nothing is left to do
// but to make the children and write them down: what no search over packed lines can beat.
double floorPerChild(const PackedMoves& moves, const Tree& tree)
{
    std::vector<PackedLine> lines;
    for (std::size_t i = 0; i < tree.count(); ++i) {
        lines.push_back(*PackedLine::pack(tree.lineAt(i).theorem()));
    }
    std::vector<PackedLine> written(engine::kSolutionLimits.children + 1);
    std::size_t made = 0;
    constexpr int kRuns = 400;
    const double seconds = leastSeconds(kRuns, [&] {
        PackedMoves::Children children;
        made = 0;
        for (std::size_t i = 0; i < lines.size() && made < tree.examined(); ++i) {
            moves.childrenOf(lines[i], engine::kSolutionLimits.theoremLength, children);
            for (const PackedLine child : children) {
                written[made] = child;
                made += made < tree.examined() ? 1 : 0;
            }
        }
    });
    return seconds * 1e9 / static_cast<double>(made);
}

} // namespace

bool measureSearch(Results& results)
{
    const SharedRules rules = std::make_shared<const engine::Rules>(progress::advancedRules());
    const Theorem root("YR");
    constexpr int kFastRuns = 400;
    constexpr int kReferenceRuns = 5;

    Results::heading("One search that finds nothing (15000 examined children, 12 chips)");
    Tree tree(root, rules, 0, 0);
    unsigned fastResult = 0;
    const double fast = leastSeconds(kFastRuns,
        [&] { fastResult = tree.makeTreeOfDepth(engine::kSolutionLimits, &unreachable()); });
    reference::Search plain;
    const double slow = leastSeconds(kReferenceRuns,
        [&] { plain = reference::search(root, *rules, engine::kSolutionLimits, &unreachable()); });
    const double floor = floorPerChild(*PackedMoves::derive(*rules), tree);
    const double perChild = fast * 1e9 / tree.examined();
    results.add("search.full.children", tree.examined(), "");
    results.add("search.full.nodes", static_cast<double>(tree.count()), "");
    results.add("search.reference.ms", slow * 1e3, "ms");
    results.add("search.full.ms", fast * 1e3, "ms");
    results.add("search.full.ratio", slow / fast, "times", "wanted: at least 100");
    results.add("search.full.ns_per_child", perChild, "ns", "wanted: at most 10");
    results.add("search.floor.ns_per_child", floor, "ns", "making the children alone");
    results.add("search.full.over_floor", perChild / floor, "times");
    results.add("search.new_roots.ns_per_child", perChildFromNewRoots(tree, rules), "ns",
        "100 roots one after another");

    const bool same = plain.result == fastResult && plain.examined == tree.examined()
        && plain.nodes.size() == tree.count() && hashOf(plain) == hashOf(tree);
    results.add("search.full.same_nodes", same ? 1 : 0, "", "1: same lines in the same order");
    return same;
}

} // namespace veyrand::bench
