#include "Command.h"
#include "JsonOf.h"
#include "engine/Reports.h"

namespace veyrand::workshop {

namespace {

using engine::Analysis;
using engine::Nodes;
using engine::Theorem;
using engine::Tree;

// A tree to analyse and the lengths of path that are of interest.
struct Subject {
    std::string root;
    unsigned children = engine::kSolutionLimits.children;
    unsigned length = engine::kSolutionLimits.theoremLength;
    unsigned lines = 0; // of the paths to look at

    void declare(CLI::App& arguments)
    {
        arguments.add_option("ROOT", root, "The tree's root")->required()->check(plainLine());
        arguments.add_option("--children", children, "Children to examine")->capture_default_str();
        arguments.add_option("--length", length, "Chips a line may have")->capture_default_str();
    }

    void declareLines(CLI::App& arguments)
    {
        arguments.add_option("--lines", lines, "Lines of the paths to look at, root included")
            ->required();
    }

    [[nodiscard]] Analysis analysis() const
    {
        return { std::make_shared<const Tree>(Theorem(root), sevenMoves(), children, length),
            sevenMoves() };
    }
};

class AnalysisCommand final : public Command {
public:
    void declare(CLI::App& arguments) override
    {
        m_subject.declare(arguments);
        m_subject.declareLines(arguments);
    }

    Json run() override
    {
        const Analysis analysis = m_subject.analysis();
        JsonLog log;
        const auto unique = analysis.uniqueNodesOfPathLength(m_subject.lines, log);
        Json ranked = Json::array();
        for (const engine::NodePtr& node : analysis.rankNodes(unique)) {
            ranked.push_back({ node->theorem().theorem(),
                orNull(analysis.ruleSequenceForNode(node)), analysis.scoreNode(node) });
        }
        return { { "unique", linesOf(unique) }, { "ranked", std::move(ranked) },
            { "log", log.lines() } };
    }

private:
    Subject m_subject;
};

class Report final : public Command {
public:
    void declare(CLI::App& arguments) override
    {
        m_subject.declare(arguments);
        CLI::Option* lines = arguments.add_option(
            "--lines", m_subject.lines, "Report the ranked lines that paths of this many lead to");
        arguments.add_flag("--plain", m_plain, "Without rule sequences and scores")->needs(lines);
    }

    Json run() override
    {
        const Analysis analysis = m_subject.analysis();
        JsonLog log;
        const engine::Reports reports(analysis, log);
        if (m_subject.lines == 0) {
            reports.printTreeTheorems(*analysis.tree());
        } else {
            const Nodes ranked
                = analysis.rankNodes(analysis.uniqueNodesOfPathLength(m_subject.lines, log));
            m_plain ? reports.printNodeArray(ranked)
                    : reports.printNodeArrayWithRuleSequence(ranked);
        }
        return log.lines();
    }

private:
    Subject m_subject;
    bool m_plain = false;
};

// What the designers ask most often: the rewarding ends of long ways from YRRRRR.
class RunAnalysis final : public Command {
public:
    void declare(CLI::App& /*arguments*/) override { }

    Json run() override
    {
        const Subject subject { "YRRRRR", 15000, 10 };
        const Analysis analysis = subject.analysis();
        JsonLog log;
        const engine::Reports reports(analysis, log);
        for (const unsigned lines : { 11U, 12U }) {
            reports.printNodeArrayWithRuleSequence(
                analysis.rankNodes(analysis.uniqueNodesOfPathLength(lines, log)));
        }
        return log.lines();
    }
};

} // namespace

std::vector<CommandEntry> analysisCommands()
{
    return { entry<AnalysisCommand>(
                 "analysis", "New lines at one length of path, and the best of them"),
        entry<Report>("report", "The same as a report, or a whole tree"),
        entry<RunAnalysis>("run-analysis", "Reports on the long ways from YRRRRR") };
}

} // namespace veyrand::workshop
