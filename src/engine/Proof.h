#pragma once

#include "engine/Analysis.h"
#include "engine/Rule.h"
#include "engine/Theorem.h"
#include "engine/Tree.h"

#include <memory>
#include <optional>
#include <vector>

namespace veyrand::engine {

// One puzzle in play: where it starts, where it must lead, the moves allowed and the lines derived
// so far, the root first. The current game makes one a puzzle. It knows nothing of the board, its
// limits or which moves are open to the player. For one thread at a time, its copies together with
// it: asking for a solution changes what their common analysis remembers.
class Proof {
public:
    Proof(Theorem root, Theorem goal, SharedRules rules);

    [[nodiscard]] const Theorem& root() const { return m_root; }
    [[nodiscard]] const Theorem& goal() const { return m_goal; }
    [[nodiscard]] const Rules& rules() const { return *m_rules; }
    [[nodiscard]] const SharedRules& sharedRules() const { return m_rules; }
    [[nodiscard]] const std::vector<Theorem>& lines() const { return m_lines; }
    [[nodiscard]] const Tree& tree() const { return *m_tree; }
    [[nodiscard]] const Analysis& analysis() const { return m_analysis; }

    // Applies a move to the last line and appends the result. False, with nothing changed, when the
    // rule has no match there or fewer than the index asks for. An index equal to the number of
    // matches is let through and throws std::out_of_range, as does a rule index beyond the rules;
    // no caller does either.
    bool applyRule(unsigned rule, unsigned match);

    // Appends a line that is trusted to follow from the last one: a hint's.
    void appendLine(Theorem line);

    // Removes one line; those after it move up unchanged. False when there is no such line. The
    // root is not protected here: clearing the board removes it too.
    bool removeLine(unsigned index);

    // Whether the last line is the goal. Never, once every line has been removed.
    [[nodiscard]] bool checkSolved() const;

    // Always false: it is set at the start and nothing changes it. Ask checkSolved.
    [[nodiscard]] bool solved() const { return m_solved; }

    // A shortest way from the last line to the goal, within the limits of the search; nothing when
    // there is none. The start is not held against the goal, so a solved proof is answered with a
    // way that leaves the goal and returns to it. Throws std::out_of_range when no line is left.
    [[nodiscard]] std::optional<Path> solution() const;

private:
    Theorem m_root;
    Theorem m_goal;
    SharedRules m_rules;
    std::vector<Theorem> m_lines;
    bool m_solved = false;
    std::shared_ptr<const Tree> m_tree; // only so that the analysis has one; no search uses it
    Analysis m_analysis;
};

} // namespace veyrand::engine
