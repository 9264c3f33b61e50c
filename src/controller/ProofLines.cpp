#include "controller/ProofLines.h"

#include "board/Times.h"
#include "controller/GameController.h"
#include "play/Scoring.h"

namespace veyrand::controller {

namespace times = board::times;

ProofLines::ProofLines(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
{
}

bool ProofLines::checkProofComplete()
{
    if (!m_controller.proof()->checkSolved()) {
        return true;
    }
    const board::Tempo& tempo = m_game.tempo;
    m_game.view.block().startBlockClick(tempo.delay(tempo.celebration(times::kCelebrationBlock)));
    m_game.effects.play(platform::Effect::CymbalRoll);
    GameFlow& flow = m_controller.flow();
    flow.performWithThisProof(
        tempo.celebration(times::kDeleteButtonsGo), [this] { removeAllDeleteButtons(); });
    flow.performWithThisProof(tempo.celebration(times::kBoardEmpties), [this] {
        m_controller.answers().boardEmpties();
        clearProof();
    });
    flow.performWithThisProof(tempo.celebration(times::kGoalFlies),
        [this, row = m_controller.lineCount() - 1] { m_game.board.goal.goalMetAtRow(row); });
    calculateScore();
    flow.performWithThisProof(
        tempo.celebration(times::kNextPuzzle), [&flow] { flow.puzzleFinished(); });
    return true;
}

void ProofLines::calculateScore()
{
    const progress::CurrentGame& game = m_game.currentGame;
    const auto points
        = play::pointsForSolving(game.endlessGame(), game.par(), m_controller.lineCount());
    m_controller.book().solved(m_controller.book().nameOfPuzzleInPlay());
    m_controller.answers().solved(points);
    m_controller.speaker().solved(points);
    m_game.currentGame.addToScore(points);
}

void ProofLines::clearProof(unsigned firstRow, unsigned count, DeleteButtons buttons)
{
    engine::Proof& proof = *m_controller.proof();
    const auto first = proof.lines().begin() + static_cast<std::ptrdiff_t>(firstRow);
    const std::vector<engine::Theorem> lines(first, first + static_cast<std::ptrdiff_t>(count));
    for (unsigned i = 0; i < count; ++i) {
        proof.removeLine(firstRow);
    }
    clearRows(firstRow, lines, buttons);
}

void ProofLines::clearProof()
{
    const play::Outcome outcome = m_controller.flow().session()->emptied();
    clearRows(outcome.row, outcome.gone, DeleteButtons::Remove);
}

void ProofLines::clearRows(
    unsigned firstRow, const std::vector<engine::Theorem>& lines, DeleteButtons buttons)
{
    board::ObjectTable& table = m_game.board.gameData.gameObjects();
    unsigned row = firstRow;
    for (const engine::Theorem& line : lines) {
        for (unsigned column = 0; column < line.theorem().size(); ++column) {
            table.removeGameObjectForKey(board::generateKeyChipKey(column, row));
        }
        ++row;
    }
    if (buttons == DeleteButtons::Remove) {
        removeDeleteButtons(firstRow, static_cast<unsigned>(lines.size()));
    }
}

void ProofLines::deleteClick(unsigned row)
{
    const auto answer = m_controller.flow().apply(play::Remove { row });
    if (const auto* const outcome = std::get_if<play::Outcome>(&answer)) {
        m_game.effects.play(platform::Effect::DeleteDing);
        dropRows(*outcome);
        m_controller.hints().resetHintMode();
        m_controller.speaker().linesTaken(*outcome);
    }
}

void ProofLines::dropRows(const play::Outcome& outcome)
{
    unsigned row = outcome.row;
    for (const engine::Theorem& line : outcome.gone) {
        m_game.board.gameData.gameObjects().removeGameObjectForKey(board::deleteButtonKey(row));
        m_game.board.lines.dropTheorem(line.theorem(), row);
        ++row;
    }
}

void ProofLines::removeDeleteButtons(unsigned firstRow, unsigned count)
{
    for (unsigned row = firstRow; row < firstRow + count; ++row) {
        m_game.board.gameData.gameObjects().removeGameObjectForKey(board::deleteButtonKey(row));
    }
}

void ProofLines::removeAllDeleteButtons()
{
    const unsigned count = m_controller.lineCount();
    if (count > 1) {
        removeDeleteButtons(1, count - 1);
    }
}

} // namespace veyrand::controller
