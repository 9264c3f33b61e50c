#pragma once

#include "engine/TreeNode.h"

#include <string>
#include <unordered_set>
#include <vector>

namespace veyrand::engine {

// The moves on lines of any letters and any length, by their rules' patterns: what searches fall
// back to where PackedMoves has no form for a rule or a line.
class PlainMoves {
public:
    using Line = Theorem;
    using Children = std::vector<Theorem>;

    explicit PlainMoves(SharedRules rules)
        : m_rules(std::move(rules))
    {
    }

    // As PackedMoves::childrenOf.
    void childrenOf(const Theorem& line, unsigned longest, Children& children) const
    {
        TreeNode node(nullptr, line, m_rules);
        node.makeChildren();
        children.clear();
        for (const TreeNode& child : node.children()) {
            const bool fits = child.theorem().theorem().size() <= longest;
            children.push_back(fits ? child.theorem() : Theorem());
        }
    }

private:
    SharedRules m_rules;
};

// The lines a search by PlainMoves has seen.
class PlainLineSet {
public:
    void clear() { m_lines.clear(); }

    void makeRoomFor(std::size_t lines) { m_lines.reserve(lines); }

    // True when the line was not yet there and is one.
    bool insert(const Theorem& line)
    {
        return line.hasText() && m_lines.insert(line.theorem()).second;
    }

private:
    std::unordered_set<std::string> m_lines;
};

} // namespace veyrand::engine
