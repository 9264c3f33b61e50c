#pragma once

#include "engine/TreeNode.h"

#include <string>
#include <unordered_set>

namespace veyrand::engine {

// The moves on lines of any letters and any length, by their rules' patterns: what searches fall
// back to where PackedMoves has no form for a rule or a line.
class PlainMoves {
public:
    using Line = Theorem;

    explicit PlainMoves(SharedRules rules)
        : m_rules(std::move(rules))
    {
    }

    // As PackedMoves::forEachChild.
    template <class Visit>
    void forEachChild(const Theorem& line, unsigned longest, const Visit& visit) const
    {
        TreeNode node(nullptr, line, m_rules);
        node.makeChildren();
        for (const TreeNode& child : node.children()) {
            const bool fits = child.theorem().theorem().size() <= longest;
            if (!visit(fits ? child.theorem() : Theorem())) {
                return;
            }
        }
    }

private:
    SharedRules m_rules;
};

// The lines a search by PlainMoves has seen.
class PlainLineSet {
public:
    void clear() { m_lines.clear(); }

    // True when the line was not yet there.
    bool insert(const Theorem& line) { return m_lines.insert(line.theorem()).second; }

private:
    std::unordered_set<std::string> m_lines;
};

} // namespace veyrand::engine
