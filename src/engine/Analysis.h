#pragma once

#include "engine/PackedMoves.h"
#include "engine/Rule.h"
#include "engine/SolutionSearch.h"
#include "engine/Theorem.h"
#include "engine/Tree.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace veyrand::platform {
class Log;
}

namespace veyrand::engine {

// Elements a solution may have when the caller sets no limit of its own.
inline constexpr unsigned kSolutionPathLimit = 100;

// No move leads from the one line to the other.
inline constexpr int kNoRule = -1;

// Answers questions about derivations: the way from one line to another (hints, par), the move that
// joins two lines, and the designers' questions about one tree. Rule sequences are strings of
// digits, one a move: the index of the rule used.
//
// An analysis is for one thread at a time, and so are its copies together: they share what their
// searches remember. Each thread makes its own; the rules may be shared.
//
// "Nothing" (nullopt) is not the same as an empty list: it says that no node qualified at all.
class Analysis {
public:
    // Without a tree only the questions about solutions and rules can be asked.
    Analysis(std::shared_ptr<const Tree> tree, SharedRules rules);

    [[nodiscard]] const Tree* tree() const { return m_tree.get(); }
    [[nodiscard]] const SharedRules& rules() const { return m_rules; }

    // A shortest way within kSolutionLimits, both lines included; nothing when there is none or it
    // has more elements than the path limit. `from` itself is never held against `to`.
    [[nodiscard]] std::optional<Path> findSolutionPathFromTheorem(
        const Theorem& from, const Theorem& to, unsigned pathLimit = kSolutionPathLimit) const;

    // How far that search went: the index of the node whose child was `to`, or -1. The path limit
    // is ignored: the search has its own, whatever the caller asks.
    [[nodiscard]] int findTreeCountFromTheorem(
        const Theorem& from, const Theorem& to, unsigned pathLimit) const;

    // The rule that joins the two lines, or kNoRule. Where several do, the last of them.
    [[nodiscard]] int ruleIndexFromTheorem(const Theorem& from, const Theorem& to) const;

    // Nothing for a path of fewer than two nodes. A pair that no rule joins reads "-1".
    [[nodiscard]] std::optional<std::string> ruleSequenceForPath(const Path& path) const;
    [[nodiscard]] std::optional<std::string> ruleSequenceForNode(const NodePtr& node) const;

    // One point for each rule of the tree that occurs, less two for each that occurs three times
    // running. The "-1" of an unjoined pair counts as the digit 1.
    [[nodiscard]] int scoreRuleSequence(std::string_view sequence) const;

    // The score of the node's sequence, and a point each for a line under 8 and under 5 chips.
    [[nodiscard]] int scoreNode(const NodePtr& node) const;

    // The nodes that score more than half of the best, best first; equals keep their order.
    [[nodiscard]] Nodes rankNodes(const std::optional<Nodes>& nodes) const;

    [[nodiscard]] std::optional<Nodes> findNodesWithTheorem(const Theorem& theorem) const;
    [[nodiscard]] std::optional<std::vector<Path>> findPathsWithTheorem(
        const Theorem& theorem) const;

    // The shortest of findPathsWithTheorem, the earliest on ties. Where there is only one path to
    // choose from, the answer is the list that holds it, not the path.
    using ShortestPath = std::variant<Path, std::vector<Path>>;
    [[nodiscard]] std::optional<ShortestPath> findShortestPath(const Theorem& theorem) const;

    // The nodes n - 1 moves from the root.
    [[nodiscard]] std::optional<Nodes> nodesOfPathLength(unsigned n) const;

    // Those of them whose line occurs at no shorter path length.
    [[nodiscard]] std::optional<Nodes> uniqueNodesOfPathLength(
        unsigned n, platform::Log& log) const;

private:
    [[nodiscard]] bool leadsTo(std::size_t rule, const Theorem& from, const Theorem& to) const;

    std::shared_ptr<const Tree> m_tree;
    SharedRules m_rules;
    std::optional<PackedMoves> m_packedMoves; // where the rules have a fast form
    std::shared_ptr<SolutionSearch> m_search; // copies of an analysis share what it remembers
};

// The removal behind uniqueNodesOfPathLength: the k-th noted entry (from 0) is removed at its index
// plus k. The entries behind a removed one move the other way, so every removal after the first
// falls further behind the entry that was noted. The designers' lists were made so, and lists made
// today must compare with theirs. Throws std::out_of_range for a position beyond the end.
void removeNotedNodes(Nodes& nodes, const std::vector<std::size_t>& noted);

} // namespace veyrand::engine
