#include "controller/Hints.h"

#include "board/Times.h"
#include "controller/GameController.h"
#include "engine/HintHelper.h"
#include "progress/PlayerRecord.h"

namespace veyrand::controller {

namespace times = board::times;

namespace {

constexpr std::int64_t kPrice = play::kHintPrice;
constexpr unsigned kMostHintChips = 12;

} // namespace

Hints::Hints(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
{
}

void Hints::lightBulbClick()
{
    const progress::CurrentGame& game = m_game.currentGame;
    if (m_controller.practice().isOn()) {
        return practiceClick();
    }
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
    giveHint();
}

// Free, and nothing has to be explained first: the record must not hear of it.
void Hints::practiceClick()
{
    if (m_controller.practice().givesHints()) {
        giveHint();
    } else {
        m_controller.pages().show("hintsInClassicMessageWindow");
    }
}

void Hints::giveHint()
{
    const auto& proof = m_controller.proof();
    const auto decision = play::decideHint(proof, stage(), kPrice);
    if (const auto* const hint = std::get_if<play::Hint>(&decision)) {
        apply(*hint);
    }
}

void Hints::give(const play::Hint& hint)
{
    m_game.currentGame.addToScore(-kPrice);
    apply(hint);
    m_game.board.panel.drawCounters();
}

void Hints::apply(const play::Hint& hint)
{
    const auto answer = m_controller.flow().apply(hint);
    if (const auto* const outcome = std::get_if<play::Outcome>(&answer)) {
        show(hint.kind, *outcome);
        m_controller.speaker().hintGiven(hint.kind);
    } else {
        m_game.currentGame.addToScore(kPrice); // asked for while the last one is on its way
    }
}

play::HintStage Hints::stage() const
{
    const play::Session* const session = m_controller.flow().session();
    return session != nullptr ? session->hintStage() : play::HintStage::None;
}

void Hints::show(play::Hint::Kind kind, const play::Outcome& outcome)
{
    switch (kind) {
    case play::Hint::Kind::Good:
        return lastGoodFound();
    case play::Hint::Kind::Back:
        return walkBack(outcome);
    case play::Hint::Kind::Pieces:
        return showPieces();
    case play::Hint::Kind::Line:
        return placePieces();
    case play::Hint::Kind::Nothing:
        return;
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

void Hints::showPieces()
{
    m_game.effects.play(platform::Effect::Chimes);
    m_game.board.hints.clearProofGoodSoFar();
    drawPieces();
}

void Hints::placePieces()
{
    m_game.effects.play(platform::Effect::Chimes);
    const engine::HintHelper helper(m_controller.proof());
    // A game that is shown again may say so where there are none.
    if (const auto next = helper.nextTheorem()) {
        m_game.board.hints.drawHint(
            next->theorem(), helper.nextTheoremAsMatrix().value(), m_controller.lineCount());
    }
    // Asked for before the block's own call, so that the line stands when the block ends.
    m_controller.flow().performWithThisProof(times::kPiecesFly, [this] { completeHint(); });
    m_game.view.block().blockAtLeast(m_game.tempo.delay(times::kPiecesFly));
}

void Hints::completeHint()
{
    const play::Outcome outcome = m_controller.flow().session()->landed();
    const std::string& line = outcome.come.back().theorem();
    m_game.board.lines.createChipsForTheorem(line, outcome.row);
    if (!outcome.solved) {
        m_game.board.lines.createDeleteButton(outcome.row);
    }
    clearHint();
    m_controller.speaker().hintLanded();
    m_controller.lines().checkProofComplete();
}

void Hints::findLastGood()
{
    play::Session& session = *m_controller.flow().session();
    const play::Outcome outcome = session.stepBack();
    if (session.phase() == play::Phase::WalkingBack) {
        walkBack(outcome);
    } else {
        lastGoodFound();
        m_controller.speaker().hintGiven(play::Hint::Kind::Good);
    }
}

void Hints::walkBack(const play::Outcome& outcome)
{
    m_controller.flow().performWithThisProof(times::kWalkBackStep, [this] { findLastGood(); });
    m_game.view.block().blockAtLeast(m_game.tempo.delay(times::kWalkBackStep));
    m_game.effects.play(platform::Effect::Triangle);
    m_controller.lines().clearRows(outcome.row, outcome.gone, ProofLines::DeleteButtons::Remove);
    m_controller.speaker().linesTaken(outcome);
}

void Hints::lastGoodFound()
{
    m_game.effects.play(platform::Effect::GlockE2);
    m_game.board.hints.drawProofGoodSoFar();
}

void Hints::resetHintMode()
{
    clearHint();
    m_game.board.hints.clearProofGoodSoFar();
}

void Hints::drawAsLeft()
{
    const play::Session& session = *m_controller.flow().session();
    if (session.isMarked()) {
        m_game.board.hints.drawProofGoodSoFar();
    } else if (session.hintStage() == play::HintStage::Pieces) {
        drawPieces();
    }
}

void Hints::drawPieces()
{
    // A kept game may say so where there are none.
    if (const auto matrix = engine::HintHelper(m_controller.proof()).nextTheoremAsMatrix()) {
        m_game.board.hints.drawHintMatrix(*matrix);
    }
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
