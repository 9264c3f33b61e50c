#pragma once

#include "engine/Rule.h"
#include "play/Action.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace veyrand::play {

// What a hint costs, and how many there must be to pay for one.
inline constexpr std::int64_t kHintPrice = 50;

// Older steps become the moves that made the lines then standing.
inline constexpr std::size_t kMostSteps = 500;

// What a list of actions has come to, once all that they began is at rest: the lines, the hint's
// stage, the points, and the steps that can be undone and done again. It plays nothing out in time,
// searches for nothing and draws no lot. Journals are read with it, and what is played is held
// against it.
class Replay {
public:
    struct Line {
        std::string chips;
        Move move {}; // that made it; says nothing of the start line
        friend bool operator==(const Line&, const Line&) = default;
    };

    Replay();

    // What is wrong with the action, in words, and then nothing has changed; empty when it is done.
    [[nodiscard]] std::string apply(const Action& action);

    // None until the first action, which must be one.
    [[nodiscard]] const std::optional<Puzzle>& puzzle() const { return m_puzzle; }
    [[nodiscard]] const std::vector<Line>& lines() const { return m_lines; }
    // The last line; empty once the puzzle has been left.
    [[nodiscard]] std::string lastLine() const;

    // 0 none given on this line, 1 the last line is known to be good, 2 the next line's pieces are
    // shown; and whether the mark that it is good is drawn.
    [[nodiscard]] int hintStage() const { return m_hintStage; }
    [[nodiscard]] bool isMarked() const { return m_marked; }

    // Points since the puzzle's first action: those that solving brought less those that hints
    // cost.
    [[nodiscard]] std::int64_t balance() const { return m_balance; }
    // Of those, what solving has brought.
    [[nodiscard]] std::int64_t earned() const;
    // What there is to pay with.
    [[nodiscard]] std::int64_t purse() const;
    [[nodiscard]] bool isSolved() const { return m_solved; }
    // The par for which it was left.
    [[nodiscard]] const std::optional<int>& leftFor() const { return m_leftFor; }
    [[nodiscard]] bool isOver() const { return m_solved || m_leftFor; }

    [[nodiscard]] bool canUndo() const { return m_cursor > 0 && !isOver(); }
    [[nodiscard]] bool canRedo() const { return m_cursor < m_steps.size() && !isOver(); }

    // What would be undone, or done again; nothing when nothing can be.
    enum class StepKind { Move, Removal };
    [[nodiscard]] std::optional<StepKind> undoes() const;
    [[nodiscard]] std::optional<StepKind> redoes() const;

    // A shorter list that comes to the same.
    [[nodiscard]] std::vector<Action> compact() const;

    // The same for two replays that differ in nothing that can be seen, earned, undone or done
    // again; points count as what there is to pay with, however it came about.
    [[nodiscard]] std::uint64_t hash() const;

private:
    // What can be undone: lines that were made or taken back, from a row on.
    struct Step {
        Action action;
        std::size_t row = 0;
        std::vector<Line> lines; // one that was made; all that were taken back
        [[nodiscard]] bool isRemoval() const;
        [[nodiscard]] StepKind kind() const
        {
            return isRemoval() ? StepKind::Removal : StepKind::Move;
        }
    };

    [[nodiscard]] std::string fault(const Action& action) const;
    [[nodiscard]] std::string faultOf(const Move& move) const;
    [[nodiscard]] std::string faultOf(const Hint& hint) const;
    [[nodiscard]] std::optional<std::string> resultOf(const Move& move) const;
    [[nodiscard]] bool hasRoomFor(const std::string& line) const;

    void carryOut(const Puzzle& puzzle);
    void carryOut(const Move& move);
    void carryOut(const Remove& removal);
    void carryOut(const Hint& hint);
    void carryOut(const Undo& undo);
    void carryOut(const Redo& redo);
    void carryOut(const Leave& leave);

    void makeLine(const Action& action, const Move& move);
    void takeBack(const Action& action, std::size_t row);
    void add(Step step);
    void endHint();
    // What a step leaves behind of the hint that it was.
    void hintOf(const Step& step);
    void foldOldSteps();
    using Clicks = std::vector<Hint::Kind>;
    [[nodiscard]] std::vector<Action> listOf(
        std::size_t undos, std::size_t redos, const Clicks& clicks) const;
    [[nodiscard]] bool isMadeBy(const std::vector<Action>& actions) const;

    engine::SharedRules m_rules;
    std::optional<Puzzle> m_puzzle;
    std::vector<Line> m_lines;
    std::vector<Step> m_steps;
    std::size_t m_cursor = 0; // steps that are done
    int m_hintStage = 0;
    bool m_marked = false;
    std::int64_t m_balance = 0;
    bool m_solved = false;
    std::optional<int> m_leftFor;
};

} // namespace veyrand::play
