#include "controller/GameFlow.h"

#include "board/Times.h"
#include "controller/GameController.h"
#include "play/ActionText.h"
#include "progress/PlayerRecord.h"

#include <algorithm>
#include <stdexcept>

namespace veyrand::controller {

using progress::CurrentGame;
namespace times = board::times;

namespace {

constexpr int kLastLevel = 11;
constexpr int kLastStage = 10;

bool isOnePlaceOfTheGame(int level, int stage)
{
    return level >= 1 && level <= kLastLevel && stage >= 1 && stage <= kLastStage;
}

} // namespace

GameFlow::GameFlow(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
{
}

const std::shared_ptr<engine::Proof>& GameFlow::proof() const
{
    static const std::shared_ptr<engine::Proof> kNone;
    return m_session ? m_session->proof() : kNone;
}

play::Phase GameFlow::phase() const
{
    return m_session ? m_session->phase() : play::Phase::None;
}

std::variant<play::Outcome, play::Refusal> GameFlow::apply(const play::Action& action)
{
    if (!m_session) {
        return play::Refusal { play::Reason::Busy };
    }
#ifndef NDEBUG
    if (play::parse(play::print(action)) != action) {
        throw std::logic_error("an action is not what its text says: " + play::print(action));
    }
#endif
    auto answer = m_session->apply(action);
    if (std::holds_alternative<play::Outcome>(answer)) {
        m_controller.kept().add(action);
        m_controller.book().timer().acted();
    }
    return answer;
}

play::Puzzle GameFlow::puzzleInPlay() const
{
    const CurrentGame& game = m_game.currentGame;
    const bool isEndless = game.endlessGame();
    return { .mode = isEndless ? progress::Mode::Endless : progress::Mode::Classic,
        .place = isEndless ? progress::Place {} : progress::Place { game.level(), game.stage() },
        .root = game.proof()->root().theorem(),
        .goal = game.proof()->goal().theorem(),
        .par = game.par(),
        .saved = game.practice() ? game.practice()->purse
            : isEndless          ? game.endlessScore()
                                 : game.score(),
        .spent = 0 };
}

std::string GameFlow::playerName() const
{
    return progress::currentPlayer(m_game.preferences);
}

void GameFlow::newClassicGame()
{
    // The menu can ask while a question or message is still open.
    m_controller.messages().dismiss();
    m_controller.dialogues().dismiss();
    repairPosition();
    if (m_game.currentGame.level() == 1 && m_game.currentGame.stage() == 1) {
        startClassicGame();
    } else {
        m_game.view.hover().turnOffTitlePageButtons();
        m_controller.dialogues().showDialogue(
            "ContinueGame", "StartNewGame", Dialogues::Question::ClassicGame);
    }
}

void GameFlow::newEndlessGame()
{
    m_controller.messages().dismiss();
    m_controller.dialogues().dismiss();
    if (!progress::isEndlessGameUnlocked(m_game.preferences)) {
        m_game.view.hover().turnOffTitlePageButtons();
        m_controller.pages().show("endlessGameLockedMessage");
        return;
    }
    m_game.currentGame.newPlayer(playerName(), CurrentGame::Mode::Endless);
    if (m_game.currentGame.endlessScore() != 0) {
        m_game.view.hover().turnOffTitlePageButtons();
        m_controller.dialogues().showDialogue(
            "ContinueGame", "StartNewGame", Dialogues::Question::EndlessGame);
    } else {
        startEndlessGame();
    }
}

void GameFlow::newGame()
{
    startClassicGame(Pages::Arrival::Solving);
}

void GameFlow::startClassicGame()
{
    startClassicGame(Pages::Arrival::Resuming);
}

void GameFlow::startClassicGame(Pages::Arrival arrival)
{
    loadClassicPuzzle();
    if (m_game.currentGame.level() == 1 && m_game.currentGame.stage() == 1) {
        m_controller.pages().show("howToPlayMessageWindow");
    } else {
        m_controller.pages().showMessageForNewGame(
            m_controller.kept().takeSolvedAtLaunch() ? Pages::Arrival::Solving : arrival);
    }
}

void GameFlow::startEndlessGame()
{
    if (!m_game.currentGame.endlessGame()) {
        m_game.currentGame.newPlayer(playerName(), CurrentGame::Mode::Endless);
    }
    layOutKeptOrNewPuzzle();
    startMusic();
}

void GameFlow::loadClassicPuzzle()
{
    repairPosition();
    m_game.currentGame.newPlayer(playerName());
    layOutKeptOrNewPuzzle();
    startMusic();
}

// No puzzle can be built for a place outside the game, so the record is looked at first. A new
// player's record has none at all.
void GameFlow::repairPosition()
{
    m_game.currentGame.loadPlayer(playerName(), CurrentGame::Mode::Classic);
    const int level = m_game.currentGame.level();
    const int stage = m_game.currentGame.stage();
    if (isOnePlaceOfTheGame(level, stage)) {
        return;
    }
    m_game.log.write("The saved place " + std::to_string(level) + '-' + std::to_string(stage)
        + " is not in the game; starting from 1-1");
    const bool nothingSaved = level == 0 && stage == 0;
    setStageAndLevelAndScore(1, 1, nothingSaved ? 0 : m_game.currentGame.score());
    m_game.currentGame.loadPlayer(playerName(), CurrentGame::Mode::Classic);
}

void GameFlow::layOutKeptOrNewPuzzle()
{
    const auto mode
        = m_game.currentGame.endlessGame() ? progress::Mode::Endless : progress::Mode::Classic;
    if (auto kept = m_controller.kept().take(mode)) {
        resume(*std::move(kept));
    } else {
        layOutPuzzle();
        m_controller.kept().begin();
    }
}

// The puzzle as it was left, without a sound: what it shows has been heard.
void GameFlow::resume(play::Replay kept)
{
    CurrentGame& game = m_game.currentGame;
    const play::Puzzle& puzzle = *kept.puzzle();
    game.placePuzzle({ .root = puzzle.root,
        .goal = puzzle.goal,
        .par = puzzle.par,
        .level = game.level(),
        .stage = game.stage(),
        .mode = puzzle.mode });
    game.addToScore(kept.purse() - puzzle.saved);
    layOutPuzzle();
    m_controller.book().timer().resume();
    m_session.emplace(std::move(kept), game.proof());
    for (unsigned row = 1; row < m_session->lines().size(); ++row) {
        m_game.board.lines.createChipsForTheorem(m_session->lines()[row].theorem(), row);
        m_game.board.lines.createDeleteButton(row);
    }
    m_controller.hints().drawAsLeft();
    m_controller.answers().puzzleLaidOut();
    m_controller.speaker().puzzleResumed();
}

void GameFlow::layOutPuzzle()
{
    // Whatever was open goes with the board it lay on.
    m_controller.sheets().close();
    m_controller.messages().dismiss();
    m_controller.dialogues().dismiss();
    m_controller.hints().resetHintMode();
    const play::Puzzle puzzle = puzzleInPlay();
    m_session.emplace(puzzle, m_game.currentGame.proof());
    m_controller.book().timer().begin(puzzle.root + '>' + puzzle.goal);
    m_game.board.newGame(proof()->root().theorem(), proof()->goal().theorem());
    m_game.board.panel.drawCounters();
    m_controller.answers().puzzleLaidOut();
    m_controller.speaker().puzzleLaidOut();
}

void GameFlow::startMusic()
{
    // It plays even when muted, so that turning it on finds it where it would be.
    m_game.sounds.startLoop(platform::kMusic, m_controller.musicVolume());
}

void GameFlow::puzzleFinished()
{
    if (m_successor) {
        return m_successor();
    }
    const CurrentGame& game = m_game.currentGame;
    if (game.practice()) {
        m_controller.practice().finished();
    } else if (!game.endlessGame() && game.level() == kLastLevel && game.stage() == kLastStage) {
        finishClassicGame();
    } else {
        nextLevel();
    }
}

void GameFlow::nextLevel()
{
    CurrentGame& game = m_game.currentGame;
    if (game.endlessGame()) {
        game.generateEndlessProofForPar(game.endlessPar());
        layOutPuzzle();
        saveEndlessScore();
        m_controller.kept().begin();
    } else {
        game.nextLevel();
        layOutPuzzle();
        setStageAndLevelAndScore(game.stage(), game.level(), game.score());
        m_controller.kept().begin();
        m_controller.pages().showMessageForNewGame(Pages::Arrival::Solving);
    }
}

// The last puzzle is over and none follows. Its points are saved as after every puzzle.
void GameFlow::finishClassicGame()
{
    const CurrentGame& game = m_game.currentGame;
    m_controller.hints().resetHintMode();
    m_session.reset();
    setStageAndLevelAndScore(game.stage(), game.level(), game.score());
    m_controller.kept().forget(progress::Mode::Classic);
    m_game.board.panel.drawCounters();
    m_controller.pages().show("classicGameFinished");
}

void GameFlow::returnToMenu()
{
    const bool wasPractice = m_game.currentGame.practice() && m_session;
    m_controller.kept().close();
    m_controller.book().timer().leave();
    m_controller.messages().dismiss();
    m_controller.hints().resetHintMode();
    m_game.sounds.stopLoop();
    m_session.reset();
    m_game.board.gameData.gameObjects().removeAllEntries();
    m_game.effects.play(platform::Effect::GlockE2);
    m_controller.titlePage().createTitleAndStartButtons();
    m_controller.speaker().titleShown();
    if (wasPractice) {
        m_controller.sheets().comeBack();
    }
}

void GameFlow::easierButtonClick()
{
    cleanUpProofForPar(m_game.currentGame.par() - 1);
}

void GameFlow::harderButtonClick()
{
    cleanUpProofForPar(m_game.currentGame.par() + 1);
}

void GameFlow::cleanUpProofForPar(int par)
{
    const int newPar = std::clamp(par, kEasiestPar, kHardestPar);
    // A par that is chosen while the puzzle ends by itself, or has been left already, is none: were
    // it saved, the record would no longer fit what is kept of the puzzle.
    if (!std::holds_alternative<play::Outcome>(apply(play::Leave { newPar }))) {
        return;
    }
    m_controller.hints().clearHint();
    m_controller.hints().resetHintMode();
    m_game.effects.play(platform::Effect::Marble);
    m_game.view.block().startBlockClick(m_game.tempo.delay(times::kLeavingBlock));
    performWithThisProof(
        times::kLeftBoardEmpties, [this] { m_controller.lines().removeAllDeleteButtons(); });
    performWithThisProof(times::kLeftBoardEmpties, [this] { m_controller.lines().clearProof(); });
    performWithThisProof(times::kLeftBoardEmpties,
        [this, row = m_controller.lineCount() - 1] { m_game.board.goal.goalMetAtRow(row); });
    updateRecord({ .endlessPar = newPar });
    m_game.currentGame.setEndlessPar(newPar);
    performWithThisProof(
        times::kLeftForNextPuzzle, [this] { m_successor ? m_successor() : nextLevel(); });
}

void GameFlow::regenerateBoard()
{
    if (!m_session) {
        return;
    }
    m_game.board.animations.abandonAll();
    for (unsigned row = 0; row < m_session->lines().size(); ++row) {
        m_game.board.lines.redrawRow(m_session->lines()[row].theorem(), row);
    }
}

void GameFlow::performWithThisProof(double delay, std::function<void()> call)
{
    m_game.pacedLoop.performAfterDelay(
        delay, [this, call = std::move(call), begun = std::weak_ptr(proof())] {
            if (proof() && proof() == begun.lock()) {
                call();
            }
        });
}

void GameFlow::setStageAndLevelAndScore(int stage, int level, std::int64_t score, HintStatus hints)
{
    progress::PlayerRecordChange change { .level = level, .stage = stage, .score = score };
    if (hints == HintStatus::Reset) {
        change.firstHintClick = false;
    }
    updateRecord(change);
}

void GameFlow::resetEndlessScore()
{
    m_game.currentGame.setEndlessScore(0);
    saveEndlessScore();
}

void GameFlow::saveEndlessScore()
{
    updateRecord({ .endlessScore = m_game.currentGame.endlessScore() });
}

void GameFlow::updateRecord(const progress::PlayerRecordChange& change)
{
    progress::updatePlayerRecord(m_game.preferences, playerName(), change);
}

} // namespace veyrand::controller
