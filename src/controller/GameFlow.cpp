#include "controller/GameFlow.h"

#include "controller/GameController.h"
#include "controller/PlayerRecord.h"
#include "progress/PlayerKeys.h"

namespace veyrand::controller {

using platform::PreferenceRecord;
using platform::PreferenceValue;

GameFlow::GameFlow(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
{
}

std::string GameFlow::playerName() const
{
    return m_game.preferences.stringForKey(progress::kPlayerNameKey);
}

void GameFlow::newClassicGame()
{
    startClassicGame();
}

void GameFlow::newEndlessGame()
{
    if (m_game.preferences.boolForKey(progress::kEndlessGameUnlockedKey)) {
        m_game.currentGame.newPlayer(playerName(), progress::CurrentGame::Mode::Endless);
        startEndlessGame();
    }
}

void GameFlow::startClassicGame()
{
    m_game.currentGame.newPlayer(playerName());
    layOutPuzzle();
    startMusic();
}

void GameFlow::startEndlessGame()
{
    layOutPuzzle();
    startMusic();
}

void GameFlow::layOutPuzzle()
{
    m_controller.hints().resetHintMode();
    m_proof = m_game.currentGame.proof();
    m_game.board.newGame(m_proof->root().theorem(), m_proof->goal().theorem());
    m_game.board.panel.drawCounters();
}

void GameFlow::startMusic()
{
    // It plays even when muted, so that turning it on finds it where it would be.
    m_game.sounds.startLoop("Along the Seabed", m_game.menu.musicOn() ? 1.0 : 0.0);
}

void GameFlow::puzzleFinished()
{
    nextLevel();
}

void GameFlow::nextLevel()
{
    if (m_game.currentGame.endlessGame()) {
        m_game.currentGame.generateEndlessProofForPar(m_game.currentGame.endlessPar());
        layOutPuzzle();
        saveEndlessScore();
    } else {
        m_game.currentGame.nextLevel();
        layOutPuzzle();
        saveClassicPosition();
    }
}

void GameFlow::saveClassicPosition()
{
    const progress::CurrentGame& game = m_game.currentGame;
    updatePlayerRecord(m_game.preferences, playerName(), [&game](PreferenceRecord& record) {
        record[std::string(progress::kStageKey)] = PreferenceValue(std::int64_t { game.stage() });
        record[std::string(progress::kLevelKey)] = PreferenceValue(std::int64_t { game.level() });
        record[std::string(progress::kScoreKey)] = PreferenceValue(std::int64_t { game.score() });
    });
}

void GameFlow::saveEndlessScore()
{
    const std::int64_t score = m_game.currentGame.endlessScore();
    updatePlayerRecord(m_game.preferences, playerName(), [score](PreferenceRecord& record) {
        record[std::string(progress::kEndlessScoreKey)] = PreferenceValue(score);
    });
}

void GameFlow::returnToMenu()
{
    m_controller.hints().resetHintMode();
    m_game.sounds.stopLoop();
    m_proof.reset();
    m_game.board.gameData.gameObjects().removeAllEntries();
    m_game.effects.play("GlockE2");
    m_controller.titlePage().createTitleAndStartButtons();
}

} // namespace veyrand::controller
