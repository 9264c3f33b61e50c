#include "controller/Hints.h"

#include "controller/GameController.h"
#include "progress/PlayerRecord.h"

namespace veyrand::controller {

namespace {

constexpr int kPrice = 50;
constexpr unsigned kMostHintChips = 12;
constexpr double kPiecesFly = 0.75; // seconds until the pieces have become a line
constexpr double kWalkBackStep = 0.5; // seconds a bad line

} // namespace

Hints::Hints(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
{
}

void Hints::lightBulbClick()
{
    const progress::CurrentGame& game = m_game.currentGame;
    if ((game.endlessGame() ? game.endlessScore() : game.score()) < kPrice) {
        if (m_controller.proof()) {
            m_controller.pages().show("stopHintClick");
        } else {
            hintClick(); // nothing is left to be hinted at, and that is said for nothing
        }
        return;
    }
    m_game.currentGame.addToScore(-kPrice);
    hintClick();
    m_game.board.panel.drawCounters();
}

void Hints::hintClick()
{
    const auto& proof = m_controller.proof();
    if (!proof || proof->lines().empty()) {
        m_controller.pages().show("classicGameFinished");
        return;
    }
    if (isFirstHintOfPlayer()) {
        // It only explains, and gives the price back.
        m_controller.pages().show("firstHintClickMessageWindow");
        m_game.currentGame.addToScore(kPrice);
        return;
    }
    if (!m_hintHelper) {
        m_hintHelper.emplace(proof);
    }
    if (proof->lines().size() == 1 && m_hintMode == 0) {
        m_hintMode = 1; // the start line is always good
    }
    const bool hasNext = m_hintHelper->nextTheorem().has_value();
    if (m_hintMode == 0) {
        markLastLine(hasNext);
    } else if (hasNext && m_hintMode == 1) {
        showPieces(*m_hintHelper);
    } else if (hasNext) {
        placePieces(*m_hintHelper);
    }
}

bool Hints::isFirstHintOfPlayer()
{
    const std::string player = m_controller.flow().playerName();
    if (progress::readPlayerRecord(m_game.preferences, player).firstHintClick) {
        return false;
    }
    progress::updatePlayerRecord(m_game.preferences, player, { .firstHintClick = true });
    return true;
}

void Hints::markLastLine(bool isGood)
{
    if (isGood) {
        m_game.effects.play("GlockE2");
        m_hintMode = 1;
        m_game.board.hints.drawProofGoodSoFar();
    } else {
        findLastGood();
    }
}

void Hints::showPieces(const engine::HintHelper& helper)
{
    m_game.effects.play("Chimes");
    m_game.board.hints.clearProofGoodSoFar();
    m_game.board.hints.drawHintMatrix(helper.nextTheoremAsMatrix().value());
    m_hintMode = 2;
}

void Hints::placePieces(const engine::HintHelper& helper)
{
    m_game.effects.play("Chimes");
    const engine::Theorem next = helper.nextTheorem().value();
    m_game.board.hints.drawHint(
        next.theorem(), helper.nextTheoremAsMatrix().value(), m_controller.lineCount());
    m_hintMode = 1;
    // Asked for before the block's own call, so that the line stands when the block ends.
    m_controller.flow().performWithThisProof(kPiecesFly, [this, next] { completeHint(next); });
    m_game.view.block().blockAtLeast(kPiecesFly);
}

void Hints::completeHint(const engine::Theorem& line)
{
    const unsigned row = m_controller.lineCount();
    m_game.board.lines.createChipsForTheorem(line.theorem(), row);
    if (line.theorem() != m_controller.proof()->goal().theorem()) {
        m_game.board.lines.createDeleteButton(row);
    }
    m_controller.proof()->appendLine(line);
    clearHint();
    m_hintHelper.reset();
    m_controller.lines().checkProofComplete();
}

void Hints::findLastGood()
{
    m_hintHelper.reset();
    const engine::HintHelper helper(m_controller.proof());
    const unsigned count = m_controller.lineCount();
    if (helper.nextTheorem() || count < 2) {
        lastGoodFound();
        return;
    }
    m_controller.flow().performWithThisProof(kWalkBackStep, [this] { findLastGood(); });
    m_game.view.block().blockAtLeast(kWalkBackStep);
    m_game.effects.play("Triangle");
    m_controller.lines().clearProof(count - 1, 1, ProofLines::DeleteButtons::Remove);
}

void Hints::lastGoodFound()
{
    m_game.effects.play("GlockE2");
    m_hintMode = 1;
    m_game.board.hints.drawProofGoodSoFar();
}

void Hints::resetHintMode()
{
    if (m_hintMode == 2) {
        clearHint();
    }
    m_hintMode = 0;
    m_game.board.hints.clearProofGoodSoFar();
    m_hintHelper.reset();
}

void Hints::clearHint()
{
    board::ObjectTable& table = m_game.board.gameData.gameObjects();
    for (unsigned i = 0; i < kMostHintChips; ++i) {
        const std::string key = board::chipKey("hint", i, board::kHintRow);
        if (!table.contains(key)) {
            // A line shorter than the board's width leaves the mark alone; resetting clears it
            // anyway.
            return;
        }
        table.removeGameObjectForKey(key);
    }
    m_game.board.hints.clearProofGoodSoFar();
}

} // namespace veyrand::controller
