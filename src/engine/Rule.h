#pragma once

#include <memory>
#include <string>
#include <vector>

namespace veyrand::engine {

// One move of the game: a pattern that finds where it applies (the antecedent) and a template for
// what then stands there (the consequent). A rule is a value and never changes.
class Rule {
public:
    // A rule whose two texts are empty. It matches nowhere.
    Rule() = default;

    // A text that is no valid pattern becomes empty. The consequent is put to the same test
    // although it only ever serves as a template: every template of the game passes.
    Rule(const std::string& antecedent, const std::string& consequent);

    [[nodiscard]] const std::string& antecedent() const { return m_antecedent; }
    [[nodiscard]] const std::string& consequent() const { return m_consequent; }

    friend bool operator==(const Rule&, const Rule&) = default;

private:
    std::string m_antecedent;
    std::string m_consequent;
};

// The moves in their fixed order. Everything else names a move by its index here.
using Rules = std::vector<Rule>;

// One rule list serves a proof, its trees and all their nodes.
using SharedRules = std::shared_ptr<const Rules>;

} // namespace veyrand::engine
