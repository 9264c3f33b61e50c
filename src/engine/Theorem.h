#pragma once

#include "engine/Range.h"

#include <optional>
#include <string>
#include <vector>

namespace veyrand::engine {

class Rule;

// A line of chips: one letter a chip, from left to right (Y yellow, R red, G green, B blue). A
// value; applying a rule makes a new line. It knows neither the alphabet nor any limit on its
// length: who takes lines from outside checks them there, and who plays them limits them.
class Theorem {
public:
    // A line without a text (not the same as a line without chips): it matches nothing, cannot be
    // rewritten, and equals no line but another of its kind.
    Theorem() = default;
    explicit Theorem(std::string theorem)
        : m_theorem(std::move(theorem))
    {
    }

    [[nodiscard]] bool hasText() const { return m_theorem.has_value(); }

    // Empty for a line without a text.
    [[nodiscard]] const std::string& theorem() const;

    // Every place where the rule applies, in order of location; they may overlap. Nothing at all
    // for a line without a text.
    [[nodiscard]] std::optional<std::vector<Range>> matchesWithRule(const Rule& rule) const;
    [[nodiscard]] unsigned numberOfMatchesWithRule(const Rule& rule) const;

    // The line with that one match rewritten; nothing for a line without a text. Throws
    // std::out_of_range for an index at or beyond the number of matches.
    [[nodiscard]] std::optional<Theorem> applyRule(const Rule& rule, unsigned matchIndex) const;

    friend bool operator==(const Theorem&, const Theorem&) = default;

private:
    std::optional<std::string> m_theorem;
};

} // namespace veyrand::engine
