#pragma once

#include "engine/Analysis.h"

namespace veyrand::engine {

// Prints trees and lists of nodes to the log, for the puzzle designers. Both the analysis and the
// log must outlive it.
class Reports {
public:
    Reports(const Analysis& analysis, platform::Log& log);

    // Every node with its index, between two rules.
    void printTreeTheorems(const Tree& tree) const;

    // The lines alone.
    void printNodeArray(const Nodes& nodes) const;

    // Lines with their rule sequence, their score and how far a search for them goes. The first
    // score other than 0 is the top score; the report ends before the first node two points below
    // it.
    void printNodeArrayWithRuleSequence(const Nodes& nodes) const;

private:
    const Analysis& m_analysis;
    platform::Log& m_log;
};

} // namespace veyrand::engine
