#include "play/Session.h"

#include "engine/HintHelper.h"
#include "play/Steps.h"
#include "progress/RuleSets.h"

#include <algorithm>

namespace veyrand::play {

namespace {

Replay begun(const Puzzle& puzzle)
{
    Replay replay;
    static_cast<void>(replay.apply(puzzle)); // a puzzle is always granted
    return replay;
}

std::shared_ptr<engine::Proof> proofOf(const Puzzle& puzzle)
{
    return std::make_shared<engine::Proof>(engine::Theorem(puzzle.root),
        engine::Theorem(puzzle.goal),
        std::make_shared<const engine::Rules>(progress::advancedRules()));
}

// Why an action that the replay refuses is none.
Reason reasonFor(const Action& action)
{
    switch (action.index()) {
    case 1:
        return Reason::NoMoveHere;
    case 2:
        return Reason::NoSuchRow;
    case 3:
        return Reason::NothingToHint;
    case 4:
        return Reason::NothingToUndo;
    case 5:
        return Reason::NothingToRedo;
    default:
        return Reason::Busy;
    }
}

// How many lines stand once those have gone from the end that lead nowhere.
unsigned linesLeft(const engine::Proof& proof)
{
    for (std::size_t count = proof.lines().size() - 1; count > 1; --count) {
        const auto shorter
            = std::make_shared<engine::Proof>(proof.lines()[0], proof.goal(), proof.sharedRules());
        for (std::size_t row = 1; row < count; ++row) {
            shorter->appendLine(proof.lines()[row]);
        }
        if (engine::HintHelper(shorter).nextTheorem()) {
            return static_cast<unsigned>(count);
        }
    }
    return 1;
}

// The search goes by moves, so there is one.
Move moveTo(const engine::Theorem& line, const engine::Theorem& next)
{
    const auto from = engine::PackedLine::pack(line.theorem());
    const auto to = engine::PackedLine::pack(next.theorem());
    return from && to ? moveBetween(*from, *to, kAllMoves).value_or(Move {}) : Move {};
}

} // namespace

Session::Session(Replay settled, std::shared_ptr<engine::Proof> proof)
    : m_settled(std::move(settled))
    , m_proof(std::move(proof))
    , m_balance(m_settled.balance())
{
    settleLines();
    m_phase = m_settled.leftFor() ? Phase::Leaving : m_phase;
}

Session::Session(const Puzzle& puzzle, std::shared_ptr<engine::Proof> proof)
    : Session(begun(puzzle), std::move(proof))
{
}

Session::Session(const Puzzle& puzzle)
    : Session(puzzle, proofOf(puzzle))
{
}

HintStage Session::hintStage() const
{
    // The mark comes when the walk is over.
    return m_phase == Phase::WalkingBack ? HintStage::None
                                         : static_cast<HintStage>(m_settled.hintStage());
}

std::variant<Outcome, Refusal> Session::apply(const Action& action)
{
    if (const auto* const puzzle = std::get_if<Puzzle>(&action)) {
        *this = Session(*puzzle);
        return Outcome {};
    }
    if (!isPlaying()) {
        return Refusal { Reason::Busy };
    }
    if (!m_settled.apply(action).empty()) {
        return Refusal { reasonFor(action) };
    }
    const auto* const hint = std::get_if<Hint>(&action);
    if (hint != nullptr && hint->kind == Hint::Kind::Line) {
        // The line itself, and what it earns, come when the pieces have landed.
        m_phase = Phase::HintFlying;
        return earned({}, -kHintPrice);
    }
    if (hint != nullptr && hint->kind == Hint::Kind::Back) {
        m_phase = Phase::WalkingBack;
        return earned(takeLines(lines().size() - 1), -kHintPrice);
    }
    if (std::holds_alternative<Leave>(action)) {
        m_phase = Phase::Leaving; // the board empties later
        return Outcome {};
    }
    return settleLines();
}

Outcome Session::landed()
{
    return settleLines();
}

Outcome Session::stepBack()
{
    if (lines().size() > m_settled.lines().size()) {
        return takeLines(lines().size() - 1);
    }
    m_phase = Phase::Playing;
    return {};
}

Outcome Session::emptied()
{
    return takeLines(0);
}

void Session::settle()
{
    while (m_phase == Phase::HintFlying || m_phase == Phase::WalkingBack) {
        static_cast<void>(m_phase == Phase::HintFlying ? landed() : stepBack());
    }
}

Outcome Session::takeLines(std::size_t count)
{
    Outcome outcome;
    outcome.row = static_cast<unsigned>(count);
    outcome.gone.assign(lines().begin() + static_cast<std::ptrdiff_t>(count), lines().end());
    while (lines().size() > count) {
        m_proof->removeLine(static_cast<unsigned>(lines().size() - 1));
    }
    return outcome;
}

Outcome Session::settleLines()
{
    const std::vector<Replay::Line>& settled = m_settled.lines();
    std::size_t row = 0;
    while (row < std::min(settled.size(), lines().size())
        && settled[row].chips == lines()[row].theorem()) {
        ++row;
    }
    Outcome outcome = takeLines(row);
    for (; row < settled.size(); ++row) {
        m_proof->appendLine(engine::Theorem(settled[row].chips));
        outcome.come.push_back(lines().back());
        outcome.moves.push_back(settled[row].move);
    }
    outcome.solved = m_settled.isSolved();
    m_phase = outcome.solved ? Phase::Celebrating : Phase::Playing;
    return earned(std::move(outcome), m_settled.balance() - m_balance);
}

Outcome Session::earned(Outcome outcome, std::int64_t points)
{
    outcome.points = points;
    m_balance += points;
    return outcome;
}

std::variant<Hint, Refusal> decideHint(
    const std::shared_ptr<const engine::Proof>& proof, HintStage stage, std::int64_t purse)
{
    if (purse < kHintPrice) {
        return Refusal { Reason::TooFewPoints };
    }
    if (proof->lines().empty()) {
        return Refusal { Reason::NothingToHint };
    }
    const auto next = engine::HintHelper(proof).nextTheorem();
    const bool isStart = proof->lines().size() == 1;
    if (stage == HintStage::None && !isStart) {
        return next ? Hint { Hint::Kind::Good } : Hint { Hint::Kind::Back, linesLeft(*proof), {} };
    }
    if (!next) {
        return Hint { Hint::Kind::Nothing };
    }
    // The start line is always good, so its first hint is already the second stage.
    if (stage != HintStage::Pieces) {
        return Hint { Hint::Kind::Pieces };
    }
    return Hint { Hint::Kind::Line, 0, moveTo(proof->lines().back(), *next) };
}

} // namespace veyrand::play
