#include "controller/Moves.h"

#include "controller/GameController.h"

namespace veyrand::controller {

namespace {

// Numbers of lines count the start line.
constexpr unsigned kMostLines = 13;
constexpr unsigned kMostLinesForDrag = 11; // one fewer than a drop accepts, deliberately
constexpr unsigned kMostChips = 12;

double endOf(MoveAnimation animation)
{
    switch (animation) {
    case MoveAnimation::ThreeRedsToOneGreen:
    case MoveAnimation::SplitGreensWithBlue:
        return board::MoveAnimations::kMergeEnd;
    case MoveAnimation::TwoGreensDisappear:
    case MoveAnimation::DropBetweenBlues:
        return board::MoveAnimations::kVanishEnd;
    default:
        return board::MoveAnimations::kSlideEnd;
    }
}

} // namespace

Moves::Moves(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
{
}

void Moves::mouseClick(unsigned row, unsigned column)
{
    Tutorial& tutorial = m_controller.tutorial();
    if (tutorial.running() && !tutorial.checkTutorialClick(row, column)) {
        return;
    }
    const bool playable = canPlay() && rowToDrag() == row;
    if (playable
        && apply(decideClick(
            lastLine(), m_controller.proof()->rules(), column, m_game.currentGame.highestRule()))) {
        moveMade();
    } else {
        playNoRuleApplied();
    }
}

bool Moves::mouseDrag(unsigned fromRow, unsigned fromColumn, unsigned toRow, unsigned toColumn)
{
    Tutorial& tutorial = m_controller.tutorial();
    if (tutorial.running() && !tutorial.checkTutorialDrag(fromRow, fromColumn, toRow, toColumn)) {
        return false;
    }
    // The row itself is not tested: drags only start on the row that areasToTrack accepts.
    const bool playable = canPlay() && fromRow == toRow;
    const bool moved = playable
        && apply(decideDrag(lastLine(), m_controller.proof()->rules(), fromColumn, toColumn,
            m_game.currentGame.highestRule()));
    if (moved) {
        moveMade();
    } else {
        playNoRuleApplied();
    }
    return moved;
}

std::optional<unsigned> Moves::rowToDrag() const
{
    const unsigned count = m_controller.lineCount();
    return count == 0 ? std::nullopt : std::optional(count - 1);
}

std::optional<std::vector<unsigned>> Moves::areasToTrack(unsigned row, unsigned column) const
{
    if (rowToDrag() != row || m_controller.lineCount() > kMostLinesForDrag) {
        return std::nullopt;
    }
    return dropTargets(lastLine(), column);
}

unsigned Moves::lengthOfRow(unsigned row) const
{
    return static_cast<unsigned>(m_controller.proof()->lines().at(row).theorem().size());
}

bool Moves::canPlay() const
{
    const unsigned count = m_controller.lineCount();
    return count > 0 && count < kMostLines;
}

const engine::Theorem& Moves::lastLine() const
{
    return m_controller.proof()->lines().back();
}

bool Moves::checkTheoremLength() const
{
    return lastLine().theorem().size() <= kMostChips;
}

// The last line the board has room for must be the goal.
bool Moves::checkLastLine() const
{
    return m_controller.lineCount() < kMostLines || m_controller.proof()->checkSolved();
}

bool Moves::apply(const std::optional<MoveDecision>& move)
{
    engine::Proof& proof = *m_controller.proof();
    const std::string lineBefore = lastLine().theorem();
    if (!move || !proof.applyRule(move->rule, move->match)) {
        return false;
    }
    const unsigned newRow = m_controller.lineCount() - 1;
    const bool fits = move->lengthCheck == LengthCheck::NotNeeded || checkTheoremLength();
    if (!fits || !checkLastLine()) {
        proof.removeLine(newRow);
        return false;
    }
    animate(*move, lineBefore, newRow);
    settleWhenOver(move->animation, newRow);
    m_game.view.block().increaseDelay(move->delay);
    return true;
}

void Moves::animate(const MoveDecision& move, const std::string& lineBefore, unsigned row)
{
    board::MoveAnimations& animations = m_game.board.animations;
    switch (move.animation) {
    case MoveAnimation::AddGreenToEnd:
        return animations.addGreenToEnd(lineBefore, row);
    case MoveAnimation::DoubleAllAfterColumn:
        return animations.doubleAllAfterColumn(lineBefore, row, move.column);
    case MoveAnimation::ThreeRedsToOneGreen:
        return animations.threeRedsToOneGreen(lineBefore, row, move.column);
    case MoveAnimation::TwoGreensDisappear:
        return animations.twoGreensDisappear(lineBefore, row, move.column);
    case MoveAnimation::FlipFirstAndThird:
        return animations.flipFirstAndThird(lineBefore, row, move.column);
    case MoveAnimation::SplitGreensWithBlue:
        return animations.splitGreensWithBlue(lineBefore, row, move.column);
    case MoveAnimation::DropBetweenBlues:
        return animations.dropBetweenBlues(lineBefore, row, move.column, move.endingColumn);
    }
}

// The choreography shows the gesture, the proof holds what it did; the two differ when a blue was
// dropped on its neighbour and another pair's chips fell. Whatever was shown, the row ends as the
// line reads.
void Moves::settleWhenOver(MoveAnimation animation, unsigned row)
{
    m_game.runLoop.performAfterDelay(
        endOf(animation), [this, row, proof = std::weak_ptr(m_controller.proof())] {
            const auto inPlay = m_controller.proof();
            if (inPlay && inPlay == proof.lock() && row < inPlay->lines().size()) {
                m_game.board.lines.settleRow(inPlay->lines()[row].theorem(), row);
            }
        });
}

void Moves::moveMade()
{
    m_game.effects.play("Marble");
    m_controller.lines().checkProofComplete();
    m_controller.hints().resetHintMode();
}

void Moves::playNoRuleApplied() const
{
    m_game.effects.play("No");
}

} // namespace veyrand::controller
