#include "reference/ReferenceSearch.h"

#include "engine/HintHelper.h"
#include "engine/SolutionSearch.h"

#include <openssl/evp.h>

#include <algorithm>
#include <array>
#include <set>
#include <string>

namespace veyrand::reference {

namespace {

using engine::Rule;
using engine::Rules;
using engine::Theorem;

using Digest = std::array<unsigned char, 16>;

Digest md5(const std::string& text)
{
    Digest digest {};
    EVP_Digest(text.data(), text.size(), digest.data(), nullptr, EVP_md5(), nullptr);
    return digest;
}

Nodes childrenOf(const std::shared_ptr<const Node>& node, const Rules& rules)
{
    Nodes children;
    for (const Rule& rule : rules) {
        const unsigned matches = node->theorem.numberOfMatchesWithRule(rule);
        for (unsigned match = 0; match < matches; ++match) {
            children.push_back(
                std::make_shared<const Node>(Node { node, *node->theorem.applyRule(rule, match) }));
        }
    }
    return children;
}

Nodes pathOf(std::shared_ptr<const Node> node)
{
    Nodes path;
    for (; node != nullptr; node = node->parent) {
        path.push_back(node);
    }
    std::reverse(path.begin(), path.end());
    return path;
}

} // namespace

Search search(
    const Theorem& root, const Rules& rules, const engine::TreeLimits& limits, const Theorem* goal)
{
    constexpr std::size_t kNodesBetweenPathChecks = 100;
    Search search;
    search.nodes.push_back(std::make_shared<const Node>(Node { nullptr, root }));
    std::set<Digest> seen;
    for (std::size_t i = 0; i < search.nodes.size() && search.examined < limits.children; ++i) {
        const Nodes children = childrenOf(search.nodes[i], rules);
        for (const auto& child : children) {
            if (search.examined >= limits.children) {
                return search;
            }
            const std::string& line = child->theorem.theorem();
            if (line.size() <= limits.theoremLength && seen.insert(md5(line)).second) {
                search.nodes.push_back(child);
                if (goal != nullptr && child->theorem == *goal) {
                    search.result = static_cast<unsigned>(i);
                    return search;
                }
            }
            ++search.examined;
        }
        if (!children.empty() && i % kNodesBetweenPathChecks == 0
            && pathOf(search.nodes[i]).size() > limits.path) {
            return search;
        }
    }
    return search;
}

std::optional<Nodes> solution(
    const Theorem& from, const Theorem& goal, const Rules& rules, unsigned pathLimit)
{
    const Search found = search(from, rules, engine::kSolutionLimits, &goal);
    if (found.result == engine::kGoalNotFound) {
        return std::nullopt;
    }
    Nodes path = pathOf(found.nodes.back());
    if (path.size() > pathLimit) {
        return std::nullopt;
    }
    return path;
}

unsigned lastGoodRow(const std::vector<Theorem>& lines, const Theorem& goal, const Rules& rules)
{
    for (auto row = static_cast<unsigned>(lines.size()); row-- > 0;) {
        if (solution(lines[row], goal, rules, engine::kMostLines - row)) {
            return row;
        }
    }
    return 0;
}

} // namespace veyrand::reference
