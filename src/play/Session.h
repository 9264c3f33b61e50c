#pragma once

#include "engine/Proof.h"
#include "play/Position.h"
#include "play/Refusal.h"
#include "play/Replay.h"

#include <memory>
#include <variant>
#include <vector>

namespace veyrand::play {

// What an action or an event came to, for whoever shows it.
struct Outcome {
    unsigned row = 0; // the first that changed
    std::vector<engine::Theorem> gone; // the lines that stood from there on,
    std::vector<engine::Theorem> come; // and those that now do
    std::vector<Move> moves; // that made these
    std::int64_t points = 0; // to add to the purse
    bool solved = false; // the goal has been made
};

// How far the help on the last line has come.
enum class HintStage { None, Known, Pieces };

// The puzzle in play: its proof, the move behind every line, the stage of the hint, the points,
// what can be undone, and whether the game is busy showing something. It is changed by actions;
// what an action leaves for later is done by the three events, which the owner's clock brings. It
// knows no time and no board.
//
// What has been decided and what stands are two things: while a hint's pieces fly its line is
// settled but not there yet. settled() is where everything that has begun comes to rest, and what
// is written down.
class Session {
public:
    // The proof is what is in play; its lines are made to read as the list left them.
    Session(Replay settled, std::shared_ptr<engine::Proof> proof);
    Session(const Puzzle& puzzle, std::shared_ptr<engine::Proof> proof);
    // With a proof of its own.
    explicit Session(const Puzzle& puzzle);

    // Refused, with nothing changed, while the game is busy, or when there is nothing to do it to.
    [[nodiscard]] std::variant<Outcome, Refusal> apply(const Action& action);

    // The pieces of a hint have landed.
    Outcome landed();
    // The next bad line goes; or, when none is left, the walk back is over.
    Outcome stepBack();
    // The board empties, before the next puzzle.
    Outcome emptied();
    // Brings the events that are still to come, but for the board's emptying.
    void settle();

    [[nodiscard]] const std::shared_ptr<engine::Proof>& proof() const { return m_proof; }
    [[nodiscard]] const std::vector<engine::Theorem>& lines() const { return m_proof->lines(); }
    [[nodiscard]] const Replay& settled() const { return m_settled; }
    [[nodiscard]] Phase phase() const { return m_phase; }
    [[nodiscard]] HintStage hintStage() const;

    // Whether the mark stands that the last line is a good one.
    [[nodiscard]] bool isMarked() const { return isPlaying() && m_settled.isMarked(); }

    [[nodiscard]] bool canUndo() const { return isPlaying() && m_settled.canUndo(); }
    [[nodiscard]] bool canRedo() const { return isPlaying() && m_settled.canRedo(); }

    // What two sessions share that differ in nothing that can be seen, earned or undone once they
    // are at rest.
    [[nodiscard]] std::uint64_t hash() const { return m_settled.hash(); }

private:
    [[nodiscard]] bool isPlaying() const { return m_phase == Phase::Playing; }
    Outcome takeLines(std::size_t count); // from the end, until so many stand
    Outcome settleLines();
    Outcome earned(Outcome outcome, std::int64_t points);

    Replay m_settled;
    std::shared_ptr<engine::Proof> m_proof;
    Phase m_phase = Phase::Playing;
    std::int64_t m_balance = 0; // points that outcomes have told of
};

// What a click on the light bulb comes to, with so many points to pay it from. It searches.
[[nodiscard]] std::variant<Hint, Refusal> decideHint(
    const std::shared_ptr<const engine::Proof>& proof, HintStage stage, std::int64_t purse);

} // namespace veyrand::play
