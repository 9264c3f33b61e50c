#include "controller/History.h"

#include "board/Choreography.h"
#include "board/Times.h"
#include "controller/GameController.h"

namespace veyrand::controller {

namespace times = board::times;

History::History(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
{
}

std::optional<History::Kind> History::undoes() const
{
    const play::Session* const session = m_controller.flow().session();
    return session != nullptr && session->canUndo() ? session->settled().undoes() : std::nullopt;
}

std::optional<History::Kind> History::redoes() const
{
    const play::Session* const session = m_controller.flow().session();
    return session != nullptr && session->canRedo() ? session->settled().redoes() : std::nullopt;
}

bool History::canUndo() const
{
    return undoes() && mayStep();
}

bool History::canRedo() const
{
    return redoes() && mayStep();
}

// Beside a note play goes on; a page or a question comes first.
bool History::mayStep() const
{
    return !m_controller.sheets().isOpen()
        && (m_game.view.overlay() == input::Overlay::None || m_game.view.tutorialWindow())
        && (!m_game.view.block().blockClick() || isOwnBlock());
}

bool History::isOwnBlock() const
{
    return m_steps > 0 && m_game.view.block().delayUntil() == m_delayUntil;
}

void History::undo()
{
    if (!canUndo() || !prepare()) {
        return;
    }
    const auto answer = m_controller.flow().apply(play::Undo {});
    if (const auto* const outcome = std::get_if<play::Outcome>(&answer)) {
        if (outcome->come.empty()) {
            showGone(*outcome);
        } else {
            showRemovalUndone(*outcome);
        }
        m_controller.speaker().undone();
    }
}

void History::redo()
{
    if (!canRedo() || !prepare()) {
        return;
    }
    const auto answer = m_controller.flow().apply(play::Redo {});
    if (const auto* const outcome = std::get_if<play::Outcome>(&answer)) {
        if (outcome->come.empty()) {
            showGone(*outcome);
        } else {
            showMoveAgain(*outcome);
        }
        m_controller.speaker().redone();
    }
}

// What the step would be in the way of goes first: the chip in the hand, a note, what still moves,
// and the hint. False when the note has made room for a page.
bool History::prepare()
{
    m_game.view.cancelGesture();
    if (m_game.view.tutorialWindow()) {
        m_controller.messageWindowClick();
        if (!mayStep()) {
            return false;
        }
    }
    if (m_game.view.block().blockClick()) {
        settleAll();
    }
    ++m_steps;
    m_controller.hints().resetHintMode();
    return true;
}

// Puts everything that the last step set in motion in its place.
void History::settleAll()
{
    board::Board& board = m_game.board;
    board.animations.abandonAll();
    board.lines.abandonDeleteButtons();
    m_controller.moves().abandonSettling();
    const std::vector<engine::Theorem>& lines = m_controller.proof()->lines();
    board::ObjectTable& table = board.gameData.gameObjects();
    for (unsigned row = m_firstRow; row < play::kMostLines; ++row) {
        const std::string button = board::deleteButtonKey(row);
        if (row >= lines.size()) {
            board.lines.clearRow(row);
            table.removeGameObjectForKey(button);
        } else {
            board.lines.redrawRow(lines[row].theorem(), row);
            if (row > 0 && !table.contains(button)) {
                board.lines.createDeleteButton(row);
            }
        }
    }
}

void History::showGone(const play::Outcome& outcome)
{
    m_firstRow = outcome.row;
    const double now = m_game.runLoop.now();
    if (!m_lastDing || now - *m_lastDing >= times::kNextDing) {
        m_lastDing = now;
        m_game.effects.play(platform::Effect::DeleteDing);
    }
    m_game.view.block().startBlockClick(m_game.tempo.delay(times::kDeleteBlock));
    m_controller.lines().dropRows(outcome);
    if (m_controller.flow().session()->isMarked()) {
        m_game.board.hints.drawProofGoodSoFar();
    }
    m_delayUntil = m_game.view.block().delayUntil();
}

void History::showRemovalUndone(const play::Outcome& outcome)
{
    m_firstRow = outcome.row;
    m_game.effects.play(platform::Effect::Marble);
    double delay = 0.0;
    unsigned row = outcome.row;
    for (const engine::Theorem& line : outcome.come) {
        const auto introduce = [this, line, row, step = m_steps] {
            if (step == m_steps) {
                m_game.board.lines.clearRow(row);
                m_game.board.lines.introduceNewTheorem(line.theorem(), row);
            }
        };
        if (row == outcome.row) {
            introduce();
        } else {
            delay += times::kNextLineComesBack;
            m_controller.flow().performWithThisProof(delay, introduce);
        }
        ++row;
    }
    m_game.view.block().startBlockClick(m_game.tempo.delay(times::kDeleteBlock + delay));
    m_delayUntil = m_game.view.block().delayUntil();
}

void History::showMoveAgain(const play::Outcome& outcome)
{
    m_firstRow = outcome.row;
    const std::string& lineBefore = m_controller.proof()->lines()[outcome.row - 1].theorem();
    m_game.view.block().startBlockClick(m_game.tempo.delay(times::kChipBlock));
    m_game.board.lines.clearRow(outcome.row);
    m_controller.moves().show(
        board::choreographyOf(outcome.moves.front(), lineBefore), lineBefore, outcome.row);
    m_delayUntil = m_game.view.block().delayUntil();
}

} // namespace veyrand::controller
