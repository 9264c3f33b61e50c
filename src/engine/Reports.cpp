#include "engine/Reports.h"

#include "platform/Log.h"

namespace veyrand::engine {

namespace {

constexpr std::string_view kRuler = "----------";

// The searches of a report start here, whatever tree is reported on: it is the line the designers'
// trees grow from.
constexpr std::string_view kSearchRoot = "YRRRRR";

constexpr int kReportedSpan = 2; // points below the top score

} // namespace

Reports::Reports(const Analysis& analysis, platform::Log& log)
    : m_analysis(analysis)
    , m_log(log)
{
}

void Reports::printTreeTheorems(const Tree& tree) const
{
    m_log.write("Tree");
    m_log.write(kRuler);
    for (std::size_t i = 0; i < tree.count(); ++i) {
        m_log.write(std::to_string(i) + ": " + tree.node(i)->theorem().theorem());
    }
    m_log.write(kRuler);
}

void Reports::printNodeArray(const Nodes& nodes) const
{
    for (const NodePtr& node : nodes) {
        m_log.write(node->theorem().theorem());
    }
}

void Reports::printNodeArrayWithRuleSequence(const Nodes& nodes) const
{
    const std::string root(kSearchRoot);
    int topScore = 0;
    for (const NodePtr& node : nodes) {
        const Theorem& line = node->theorem();
        const std::optional<std::string> sequence = m_analysis.ruleSequenceForNode(node);
        const int score = m_analysis.scoreNode(node);
        if (topScore == 0) {
            topScore = score;
        }
        if (score == topScore - kReportedSpan) {
            return;
        }
        const int treeCount
            = m_analysis.findTreeCountFromTheorem(Theorem(root), line, kSolutionPathLimit);
        m_log.write(root + "," + line.theorem() + "," + std::to_string(treeCount) + " - "
            + std::to_string(sequence.value_or("").size()) + "," + sequence.value_or("(null)")
            + " (Score: " + std::to_string(score) + ")");
    }
}

} // namespace veyrand::engine
