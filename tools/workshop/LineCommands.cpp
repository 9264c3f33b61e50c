#include "Command.h"
#include "JsonOf.h"
#include "ProgressLine.h"
#include "engine/Distances.h"
#include "engine/HintHelper.h"
#include "engine/Tree.h"

namespace veyrand::workshop {

namespace {

using engine::Theorem;

class Matches final : public Command {
public:
    void declare(CLI::App& arguments) override
    {
        arguments.add_option("LINE", m_lines, "Lines of chips")->required()->check(plainLine());
    }

    Json run() override
    {
        Json answer = Json::array();
        for (const std::string& line : m_lines) {
            Json row = Json::array({ line });
            for (const engine::Rule& rule : *sevenMoves()) {
                row.push_back(matchesOf(Theorem(line), rule));
            }
            answer.push_back(std::move(row));
        }
        return answer;
    }

private:
    static Json matchesOf(const Theorem& line, const engine::Rule& rule)
    {
        Json answer = Json::array();
        const std::vector<engine::Range> matches = line.matchesWithRule(rule).value();
        for (unsigned i = 0; i < matches.size(); ++i) {
            answer.push_back(
                { matches[i].location, matches[i].length, line.applyRule(rule, i)->theorem() });
        }
        return answer;
    }

    std::vector<std::string> m_lines;
};

class TreeCommand final : public Command {
public:
    void declare(CLI::App& arguments) override
    {
        arguments.add_option("ROOT", m_root, "Where to start")->required()->check(plainLine());
        arguments.add_option("--goal", m_goal, "Where to end")->check(plainLine());
        arguments.add_option("--children", m_limits.children, "Children to examine")
            ->capture_default_str();
        arguments.add_option("--length", m_limits.theoremLength, "Chips a line may have")
            ->capture_default_str();
        arguments.add_option("--path", m_limits.path, "Lines a path may have")
            ->capture_default_str();
    }

    Json run() override
    {
        engine::Tree tree(Theorem(m_root), sevenMoves(), 0, 0);
        const Theorem goal = m_goal ? Theorem(*m_goal) : Theorem();
        const unsigned result = tree.makeTreeOfDepth(m_limits, m_goal ? &goal : nullptr);
        const bool found = result != engine::kGoalNotFound && tree.count() > 0;
        Json lines = Json::array();
        for (std::size_t i = 0; i < tree.count(); ++i) {
            lines.push_back(tree.lineAt(i).theorem());
        }
        return { { "result", static_cast<int>(result) }, { "count", tree.count() },
            { "examined", tree.examined() },
            { "path", found ? linesOf(tree.pathTo(tree.count() - 1)) : Json(nullptr) },
            { "lines", std::move(lines) } };
    }

private:
    std::string m_root;
    std::optional<std::string> m_goal;
    engine::TreeLimits m_limits = engine::kSolutionLimits;
};

class Solve final : public Command {
public:
    void declare(CLI::App& arguments) override
    {
        arguments.add_option("FROM", m_from, "Where to start")->required()->check(plainLine());
        arguments.add_option("TO", m_to, "Where to end")->required()->check(plainLine());
        arguments.add_option("--limit", m_limit, "Lines the way may have")->capture_default_str();
    }

    Json run() override
    {
        // The score counts the moves of a tree; any tree of the seven moves will do.
        const auto tree = std::make_shared<const engine::Tree>(Theorem(m_from), sevenMoves(), 1, 1);
        const engine::Analysis analysis(tree, sevenMoves());
        const auto path
            = analysis.findSolutionPathFromTheorem(Theorem(m_from), Theorem(m_to), m_limit);
        if (!path) {
            return { { "path", nullptr }, { "sequence", nullptr }, { "score", nullptr } };
        }
        const std::string sequence = analysis.ruleSequenceForPath(*path).value_or("");
        return { { "path", linesOf(*path) }, { "sequence", sequence },
            { "score", analysis.scoreRuleSequence(sequence) } };
    }

private:
    std::string m_from;
    std::string m_to;
    unsigned m_limit = engine::kSolutionPathLimit;
};

class Hint final : public Command {
public:
    void declare(CLI::App& arguments) override
    {
        arguments.add_option("ROOT", m_root, "The first line")->required()->check(plainLine());
        arguments.add_option("GOAL", m_goal, "The goal")->required()->check(plainLine());
        arguments.add_option("LINE", m_lines, "The lines below the first")->check(plainLine());
    }

    Json run() override
    {
        const auto proof
            = std::make_shared<engine::Proof>(Theorem(m_root), Theorem(m_goal), sevenMoves());
        for (const std::string& line : m_lines) {
            proof->appendLine(Theorem(line));
        }
        const engine::HintHelper helper(proof);
        const auto next = helper.nextTheorem();
        return { { "solution", linesOf(helper.solution()) },
            { "next", next ? Json(next->theorem()) : Json(nullptr) }, { "matrix", matrix(helper) },
            { "lastGoodRow", helper.lastGoodRow() } };
    }

private:
    static Json matrix(const engine::HintHelper& helper)
    {
        const auto counts = helper.nextTheoremAsMatrix();
        if (!counts) {
            return nullptr;
        }
        Json answer = Json::object();
        for (const char chip : { 'Y', 'R', 'G', 'B' }) {
            answer[std::string(1, chip)] = counts->at(chip);
        }
        return answer;
    }

    std::string m_root;
    std::string m_goal;
    std::vector<std::string> m_lines;
};

class DistancesCommand final : public Command {
public:
    void declare(CLI::App& arguments) override
    {
        arguments.add_option("ROOT", m_root, "Where to start")->required()->check(plainLine());
        arguments.add_option("--length", m_length, "Chips a line may have")
            ->capture_default_str()
            ->check(CLI::Range(1U, engine::Distances::kMostChips));
    }

    Json run() override
    {
        const auto root = engine::PackedLine::pack(m_root);
        if (!root) {
            throw UsageError("distances are known for lines of up to 31 chips Y, R, G and B only");
        }
        engine::Distances distances(*engine::PackedMoves::derive(*sevenMoves()), m_length);
        ProgressLine progress("lines");
        std::uint64_t lines = 0;
        Json counts = Json::array();
        distances.forEachDistance(
            *root, [&](unsigned, const std::vector<engine::PackedLine>& found) {
                counts.push_back(found.size());
                lines += found.size();
                progress.show(lines);
            });
        return counts;
    }

private:
    std::string m_root;
    unsigned m_length = engine::kSolutionLimits.theoremLength;
};

} // namespace

std::vector<CommandEntry> lineCommands()
{
    return { entry<Matches>("matches", "Where each move applies to lines, and what it makes"),
        entry<TreeCommand>("tree", "The derivation tree of a line"),
        entry<Solve>("solve", "A shortest way from one line to another"),
        entry<Hint>("hint", "What the game would advise with these lines on the board"),
        entry<DistancesCommand>("distances", "How many lines there are at each exact distance") };
}

} // namespace veyrand::workshop
