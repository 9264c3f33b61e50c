#pragma once

#include "controller/GameContext.h"
#include "controller/Pages.h"
#include "play/Session.h"
#include "progress/PlayerRecord.h"

#include <functional>

namespace veyrand::controller {

class GameController;

// The pars between which Easier and Harder go, in lines, the start line included.
inline constexpr int kEasiestPar = 3;
inline constexpr int kHardestPar = 12;

// Starts, continues and advances games, holds the puzzle in play, hands it every action, and saves
// progress to the player's record after every puzzle.
class GameFlow {
public:
    explicit GameFlow(GameController& controller);

    // The puzzle in play, null on the title page and after the last Classic puzzle.
    [[nodiscard]] play::Session* session() { return m_session ? &*m_session : nullptr; }
    [[nodiscard]] const std::shared_ptr<engine::Proof>& proof() const;
    [[nodiscard]] play::Phase phase() const;

    // The one door by which the player's actions reach the puzzle in play; without one all are
    // refused. Nothing is shown and no points are counted: that is for whoever asks.
    [[nodiscard]] std::variant<play::Outcome, play::Refusal> apply(const play::Action& action);

    // The title page's entries: they ask first where a saved game could be lost.
    void newClassicGame();
    void newEndlessGame();
    // The Classic game at once, greeted as after a solved puzzle.
    void newGame();
    // Kept for callers that ask for it; going on is the question's answer.
    static void continueGame() { }

    void startClassicGame();
    void startEndlessGame();
    // What follows a solved puzzle: the next one, or the end of the Classic game.
    void puzzleFinished();
    void nextLevel();
    void returnToMenu();

    // A new Endless puzzle, one move shorter or longer.
    void easierButtonClick();
    void harderButtonClick();

    // Puts the current game's puzzle on the board, without greeting or music.
    void layOutPuzzle();
    void startMusic();
    // Draws every chip of every line anew, at once in its place. A move that was still being shown
    // is over then.
    void regenerateBoard();

    // Runs the call later, unless another proof is in play by then.
    void performWithThisProof(double delay, std::function<void()> call);

    enum class HintStatus { Keep, Reset };
    void setStageAndLevelAndScore(
        int stage, int level, std::int64_t score, HintStatus hints = HintStatus::Keep);
    void resetEndlessScore();
    [[nodiscard]] std::string playerName() const;

    // The puzzle as the list of actions left it, without a sound; its record has been loaded.
    void resume(play::Replay kept);
    // Gives the Endless puzzle up for one of another par, in lines.
    void cleanUpProofForPar(int par);
    // Called where the next puzzle, or the game's end, would follow on one that is over.
    void setSuccessor(std::function<void()> successor) { m_successor = std::move(successor); }

private:
    [[nodiscard]] play::Puzzle puzzleInPlay() const;
    void startClassicGame(Pages::Arrival arrival);
    void loadClassicPuzzle();
    void layOutKeptOrNewPuzzle();
    void repairPosition();
    void finishClassicGame();
    void saveEndlessScore();
    void updateRecord(const progress::PlayerRecordChange& change);

    GameController& m_controller;
    GameContext& m_game;
    std::optional<play::Session> m_session;
    std::function<void()> m_successor; // none: what the game has next
};

} // namespace veyrand::controller
