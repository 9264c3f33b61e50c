#include "Command.h"
#include "JsonOf.h"
#include "play/Decide.h"

#include <algorithm>

namespace veyrand::workshop {

namespace {

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
        const std::vector<Theorem> lines(std::min(m_lineCount, play::kMostLines), Theorem(m_line));
        const Theorem goal = m_goal ? Theorem(*m_goal) : Theorem();
        const play::Position position { .lines = lines, .goal = goal, .open = m_highestRule };
        for (const play::Gesture& gesture : play::actions(position)) {
            const auto action = std::get<play::Action>(play::decide(position, gesture));
            const auto move = std::get<play::Move>(action);
            Json entry = describe(gesture);
            entry["rule"] = move.rule;
            entry["line"] = play::lineAfter(lines.back(), move)->theorem();
            answer.push_back(std::move(entry));
        }
        return answer;
    }

private:
    [[nodiscard]] static Json describe(const play::Gesture& gesture)
    {
        if (const auto* const click = std::get_if<play::Click>(&gesture)) {
            return { { "click", click->column } };
        }
        const auto& drag = std::get<play::Drag>(gesture);
        return { { "drag", { drag.from, drag.to } } };
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
