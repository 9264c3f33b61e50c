#include "controller/Moves.h"

#include "board/Choreography.h"
#include "controller/GameController.h"
#include "play/Decide.h"
#include "progress/RuleSets.h"

#include <algorithm>

namespace veyrand::controller {

Moves::Moves(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
{
}

void Moves::mouseClick(unsigned row, unsigned column)
{
    Tutorial& tutorial = m_controller.tutorial();
    if (!tutorial.running() || tutorial.checkTutorialClick(row, column)) {
        perform(play::Click { row, column });
    }
}

bool Moves::mouseDrag(unsigned fromRow, unsigned fromColumn, unsigned toRow, unsigned toColumn)
{
    Tutorial& tutorial = m_controller.tutorial();
    if (tutorial.running() && !tutorial.checkTutorialDrag(fromRow, fromColumn, toRow, toColumn)) {
        return false;
    }
    return perform(play::Drag { fromRow, fromColumn, toRow, toColumn });
}

std::optional<unsigned> Moves::rowToDrag() const
{
    const unsigned count = m_controller.lineCount();
    return count == 0 ? std::nullopt : std::optional(count - 1);
}

std::optional<std::vector<unsigned>> Moves::areasToTrack(unsigned row, unsigned column) const
{
    if (rowToDrag() != row || m_controller.lineCount() > play::kMostLinesForDrag) {
        return std::nullopt;
    }
    return play::targets(position(), column);
}

unsigned Moves::lengthOfRow(unsigned row) const
{
    return static_cast<unsigned>(m_controller.proof()->lines().at(row).theorem().size());
}

play::Position Moves::position() const
{
    static const std::vector<engine::Theorem> kNoLines;
    static const engine::Theorem kNoGoal;
    const auto& proof = m_controller.proof();
    return { .lines = proof ? proof->lines() : kNoLines,
        .goal = proof ? proof->goal() : kNoGoal,
        .open = m_game.currentGame.highestRule(),
        .lesson = m_controller.tutorial().lesson(),
        .phase = m_controller.flow().phase() };
}

bool Moves::perform(const play::Gesture& gesture)
{
    const auto decision = play::decide(position(), gesture);
    const auto* const action = std::get_if<play::Action>(&decision);
    if (action == nullptr) {
        playNoRuleApplied();
        m_controller.answers().refused(gesture, std::get<play::Refusal>(decision));
        m_controller.speaker().refused(std::get<play::Refusal>(decision));
        return false;
    }
    const auto& move = std::get<play::Move>(*action);
    auto choreography = board::choreographyOf(move, m_controller.proof()->lines().back().theorem());
    // Two neighbouring blues have no match of their own: another pair's chips fall. The board shows
    // the gesture all the same, and ends as the line reads.
    if (const auto* const drag = std::get_if<play::Drag>(&gesture);
        drag != nullptr && move.rule == progress::kDropBetweenBlues) {
        choreography.column = std::min(drag->from, drag->to);
        choreography.endingColumn = std::max(drag->from, drag->to);
    }
    make(move, choreography);
    return true;
}

void Moves::make(const play::Move& move)
{
    make(move, board::choreographyOf(move, m_controller.proof()->lines().back().theorem()));
}

void Moves::make(const play::Move& move, const board::Choreography& choreography)
{
    const std::string lineBefore = m_controller.proof()->lines().back().theorem();
    static_cast<void>(m_controller.flow().apply(move)); // decided, so it is granted
    m_controller.speaker().moveMade(move.rule);
    const unsigned newRow = m_controller.lineCount() - 1;
    show(choreography, lineBefore, newRow);
    m_controller.lines().checkProofComplete();
    m_controller.hints().resetHintMode();
}

void Moves::show(
    const board::Choreography& choreography, const std::string& lineBefore, unsigned row)
{
    board::perform(m_game.board.animations, choreography, lineBefore, row);
    settleAfter(choreography.ends, row);
    m_game.view.block().increaseDelay(m_game.tempo.delay(choreography.block));
    m_game.effects.play(platform::Effect::Marble);
}

// Whatever was shown, the row ends as the line reads.
void Moves::settleAfter(double seconds, unsigned row)
{
    m_game.pacedLoop.performAfterDelay(
        seconds, [this, row, begun = m_abandoned, proof = std::weak_ptr(m_controller.proof())] {
            const auto inPlay = m_controller.proof();
            if (begun == m_abandoned && inPlay && inPlay == proof.lock()
                && row < inPlay->lines().size()) {
                m_game.board.lines.settleRow(inPlay->lines()[row].theorem(), row);
            }
        });
}

void Moves::playNoRuleApplied() const
{
    m_game.effects.play(platform::Effect::No);
}

} // namespace veyrand::controller
