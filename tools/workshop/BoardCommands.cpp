#include "Command.h"
#include "JsonOf.h"
#include "controller/MoveDecision.h"
#include "engine/HintHelper.h"
#include "progress/Place.h"

namespace veyrand::workshop {

namespace {

using controller::MoveDecision;
using engine::Theorem;

class Gestures final : public Command {
public:
    void declare(CLI::App& arguments) override
    {
        arguments.add_option("LINE", m_line, "The last line on the board")
            ->required()
            ->check(plainLine());
        arguments.add_option("--highest-rule", m_highestRule, "How many moves are open")
            ->required()
            ->check(CLI::Range(1, progress::kMoveCount));
        arguments.add_option("--line-count", m_lineCount, "Lines on the board, this one included")
            ->required()
            ->check(CLI::PositiveNumber);
        arguments
            .add_option("--goal", m_goal, "The goal, for the last line the board has room for")
            ->check(plainLine());
    }

    Json run() override
    {
        Json answer = Json::array();
        const Theorem line(m_line);
        for (unsigned column = 0; column < m_line.size(); ++column) {
            add(answer, controller::decideClick(line, *sevenMoves(), column, m_highestRule),
                { { "click", column } });
            if (m_lineCount > kMostLinesForDrag) {
                continue;
            }
            for (const unsigned target : controller::dropTargets(line, column)) {
                add(answer,
                    controller::decideDrag(line, *sevenMoves(), column, target, m_highestRule),
                    { { "drag", { column, target } } });
            }
        }
        return answer;
    }

private:
    // Drop targets are offered while at most this many lines stand.
    static constexpr unsigned kMostLinesForDrag = 11;

    void add(Json& answer, const std::optional<MoveDecision>& move, Json gesture) const
    {
        const Theorem line(m_line);
        if (!move || line.numberOfMatchesWithRule(sevenMoves()->at(move->rule)) <= move->match) {
            return;
        }
        const std::string result
            = line.applyRule(sevenMoves()->at(move->rule), move->match)->theorem();
        const bool tooLong = move->lengthCheck == controller::LengthCheck::Needed
            && result.size() > engine::kSolutionLimits.theoremLength;
        if (tooLong || !hasRoomFor(result)) {
            return;
        }
        gesture["rule"] = move->rule;
        gesture["line"] = result;
        answer.push_back(std::move(gesture));
    }

    // The last line the board has room for must be the goal.
    [[nodiscard]] bool hasRoomFor(const std::string& result) const
    {
        return m_lineCount + 1 < engine::kMostLines
            || (m_lineCount + 1 == engine::kMostLines && result == m_goal);
    }

    std::string m_line;
    int m_highestRule = 0;
    unsigned m_lineCount = 0;
    std::optional<std::string> m_goal;
};

class PositionCommand final : public Command {
public:
    void declare(CLI::App& arguments) override
    {
        arguments.add_option("LEVEL", m_position.level, "The level, 1 to 11")->required();
        arguments.add_option("STAGE", m_position.stage, "The stage, 1 to 10")->required();
        arguments.add_flag("--endless", m_endless, "In an Endless game");
    }

    Json run() override
    {
        const progress::Place next = progress::nextPlace(m_position);
        return { { "highestRule",
                     m_endless ? progress::kMoveCount
                               : progress::highestRuleAt(m_position.level, m_position.stage) },
            { "index", progress::catalogueIndex(m_position) },
            { "next", { { "level", next.level }, { "stage", next.stage } } } };
    }

private:
    progress::Place m_position;
    bool m_endless = false;
};

} // namespace

std::vector<CommandEntry> boardCommands()
{
    return { entry<Gestures>("gestures", "Every click and drag the board accepts"),
        entry<PositionCommand>("position", "What a place of the Classic game means") };
}

} // namespace veyrand::workshop
