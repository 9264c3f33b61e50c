#pragma once

#include "engine/Rule.h"
#include "engine/Theorem.h"
#include "engine/TreeLimits.h"

#include <memory>
#include <optional>
#include <vector>

namespace veyrand::reference {

// The search as one would first write it, and nothing done to make it fast: the pattern of every
// rule on every line, an object for every line with a link to the line it came from, and the MD5
// digest of every line kept. The engine's own search must meet the same lines in the same order;
// the tests hold the one against the other, and the measurements say what the difference is worth.
struct Node {
    std::shared_ptr<const Node> parent; // null for the root
    engine::Theorem theorem;
};

using Nodes = std::vector<std::shared_ptr<const Node>>;

struct Search {
    Nodes nodes; // in order of discovery, the root first
    unsigned result = engine::kGoalNotFound; // the index of the node whose child was the goal
    unsigned examined = 0;
};

[[nodiscard]] Search search(const engine::Theorem& root, const engine::Rules& rules,
    const engine::TreeLimits& limits, const engine::Theorem* goal);

// The way from a line to a goal, both included, if it has at most pathLimit lines.
[[nodiscard]] std::optional<Nodes> solution(const engine::Theorem& from,
    const engine::Theorem& goal, const engine::Rules& rules, unsigned pathLimit);

// What a hint asks: the last row from which the goal can still be reached within the board. It runs
// one search a row, from the last row up, until one succeeds.
[[nodiscard]] unsigned lastGoodRow(const std::vector<engine::Theorem>& lines,
    const engine::Theorem& goal, const engine::Rules& rules);

} // namespace veyrand::reference
