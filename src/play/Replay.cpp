#include "play/Replay.h"

#include "engine/Theorem.h"
#include "play/ActionText.h"
#include "play/Fnv.h"
#include "play/Scoring.h"
#include "progress/RuleSets.h"

#include <algorithm>
#include <stdexcept>

namespace veyrand::play {

namespace {

engine::SharedRules sevenRules()
{
    static const auto kRules = std::make_shared<const engine::Rules>(progress::advancedRules());
    return kRules;
}

const Hint* asHint(const Action& action)
{
    return std::get_if<Hint>(&action);
}

std::int64_t priceOf(const std::vector<Action>& actions)
{
    return kHintPrice * std::count_if(actions.begin(), actions.end(), [](const Action& action) {
        return asHint(action) != nullptr;
    });
}

} // namespace

bool Replay::Step::isRemoval() const
{
    const Hint* const hint = asHint(action);
    return std::holds_alternative<Remove>(action)
        || (hint != nullptr && hint->kind == Hint::Kind::Back);
}

Replay::Replay()
    : m_rules(sevenRules())
{
}

std::string Replay::apply(const Action& action)
{
    std::string wrong = fault(action);
    if (wrong.empty()) {
        std::visit([this](const auto& kind) { carryOut(kind); }, action);
    }
    return wrong;
}

std::string Replay::lastLine() const
{
    return m_lines.empty() ? std::string() : m_lines.back().chips;
}

std::int64_t Replay::purse() const
{
    return m_puzzle ? m_puzzle->saved - m_puzzle->spent + m_balance : 0;
}

std::int64_t Replay::earned() const
{
    return m_solved ? pointsForSolving(m_puzzle->mode == progress::Mode::Endless, m_puzzle->par,
               static_cast<unsigned>(m_lines.size()))
                    : 0;
}

std::string Replay::fault(const Action& action) const
{
    if (std::holds_alternative<Puzzle>(action)) {
        return {};
    }
    if (!m_puzzle) {
        return "no puzzle has been begun";
    }
    if (isOver()) {
        return "the puzzle is over";
    }
    if (const auto* const move = std::get_if<Move>(&action)) {
        return faultOf(*move);
    }
    if (const Hint* const hint = asHint(action)) {
        return faultOf(*hint);
    }
    if (const auto* const removal = std::get_if<Remove>(&action)) {
        return removal->row >= 1 && removal->row < m_lines.size() ? "" : "there is no such row";
    }
    if (std::holds_alternative<Undo>(action)) {
        return m_cursor > 0 ? "" : "nothing can be undone";
    }
    if (std::holds_alternative<Redo>(action)) {
        return m_cursor < m_steps.size() ? "" : "nothing can be done again";
    }
    return m_puzzle->mode == progress::Mode::Endless ? "" : "only an Endless puzzle can be left";
}

std::optional<std::string> Replay::resultOf(const Move& move) const
{
    if (move.rule >= m_rules->size()) {
        return std::nullopt;
    }
    const engine::Theorem last(m_lines.back().chips);
    const engine::Rule& rule = (*m_rules)[move.rule];
    if (move.match >= last.numberOfMatchesWithRule(rule)) {
        return std::nullopt;
    }
    return last.applyRule(rule, move.match)->theorem();
}

std::string Replay::faultOf(const Move& move) const
{
    const auto result = resultOf(move);
    if (!result) {
        return "the last line has no such move";
    }
    if (result->size() > kMostChips && result->size() > m_lines.back().chips.size()) {
        return "the line would be too long";
    }
    return hasRoomFor(*result) ? "" : "the board is full";
}

bool Replay::hasRoomFor(const std::string& line) const
{
    const std::size_t lines = m_lines.size() + 1;
    return lines < kMostLines || (lines == kMostLines && line == m_puzzle->goal);
}

std::string Replay::faultOf(const Hint& hint) const
{
    if (purse() < kHintPrice) {
        return "there are too few points for a hint";
    }
    // Not the stage it was clicked in: a shortened list has lost the clicks that led there.
    bool isPossible = true;
    if (hint.kind == Hint::Kind::Back) {
        isPossible = hint.left >= 1 && hint.left < m_lines.size();
    } else if (hint.kind == Hint::Kind::Line) {
        const auto line = resultOf(hint.move);
        isPossible = line && hasRoomFor(*line);
    }
    return isPossible ? "" : "this is not what a hint would come to";
}

void Replay::carryOut(const Puzzle& puzzle)
{
    *this = Replay();
    m_puzzle = puzzle;
    m_lines.push_back({ puzzle.root, {} });
}

void Replay::carryOut(const Move& move)
{
    makeLine(move, move);
    endHint();
}

void Replay::carryOut(const Remove& removal)
{
    takeBack(removal, removal.row);
    endHint();
}

void Replay::carryOut(const Hint& hint)
{
    m_balance -= kHintPrice;
    switch (hint.kind) {
    case Hint::Kind::Good:
        m_hintStage = 1;
        m_marked = true;
        break;
    case Hint::Kind::Back:
        takeBack(hint, hint.left);
        hintOf(m_steps.back());
        break;
    case Hint::Kind::Pieces:
        m_hintStage = 2;
        m_marked = false;
        break;
    case Hint::Kind::Line:
        makeLine(hint, hint.move);
        hintOf(m_steps.back());
        break;
    case Hint::Kind::Nothing:
        m_hintStage = std::max(m_hintStage, 1);
        break;
    }
}

void Replay::carryOut(const Undo& /*undo*/)
{
    const Step& step = m_steps[--m_cursor];
    if (step.isRemoval()) {
        m_lines.insert(m_lines.end(), step.lines.begin(), step.lines.end());
    } else {
        m_lines.pop_back();
    }
    endHint();
}

void Replay::carryOut(const Redo& /*redo*/)
{
    const Step& step = m_steps[m_cursor++];
    if (step.isRemoval()) {
        m_lines.resize(step.row);
    } else {
        m_lines.push_back(step.lines.front());
    }
    hintOf(step);
}

void Replay::carryOut(const Leave& leave)
{
    m_leftFor = leave.par;
    m_lines.clear();
    endHint();
}

void Replay::makeLine(const Action& action, const Move& move)
{
    const Line line { *resultOf(move), move };
    add({ action, m_lines.size(), { line } });
    m_lines.push_back(line);
    if (line.chips == m_puzzle->goal) {
        m_solved = true;
        m_balance += earned();
    }
}

void Replay::takeBack(const Action& action, std::size_t row)
{
    const auto first = m_lines.begin() + static_cast<std::ptrdiff_t>(row);
    add({ action, row, { first, m_lines.end() } });
    m_lines.resize(row);
}

void Replay::add(Step step)
{
    m_steps.resize(m_cursor);
    m_steps.push_back(std::move(step));
    if (m_steps.size() > kMostSteps) {
        foldOldSteps();
    }
    m_cursor = m_steps.size();
}

// The older half becomes the moves that made the lines standing at its end.
void Replay::foldOldSteps()
{
    const auto end = m_steps.begin() + static_cast<std::ptrdiff_t>(kMostSteps / 2);
    std::vector<Step> folded;
    for (auto step = m_steps.begin(); step != end; ++step) {
        if (step->isRemoval()) {
            folded.resize(step->row - 1); // the start line is nobody's step
        } else {
            folded.push_back({ step->lines.front().move, step->row, step->lines });
        }
    }
    folded.insert(folded.end(), end, m_steps.end());
    m_steps = std::move(folded);
}

void Replay::endHint()
{
    m_hintStage = 0;
    m_marked = false;
}

void Replay::hintOf(const Step& step)
{
    m_hintStage = asHint(step.action) != nullptr ? 1 : 0;
    m_marked = m_hintStage == 1 && step.isRemoval();
}

std::optional<Replay::StepKind> Replay::undoes() const
{
    return canUndo() ? std::optional(m_steps[m_cursor - 1].kind()) : std::nullopt;
}

std::optional<Replay::StepKind> Replay::redoes() const
{
    return canRedo() ? std::optional(m_steps[m_cursor].kind()) : std::nullopt;
}

// The steps as they can be done anew, then so many undone, then the hint's clicks; what else has
// been paid for is spent beforehand.
std::vector<Action> Replay::listOf(std::size_t undos, std::size_t redos, const Clicks& clicks) const
{
    std::vector<Action> actions { *m_puzzle };
    for (const Step& step : m_steps) {
        actions.push_back(step.action);
    }
    actions.insert(actions.end(), undos, Undo {});
    actions.insert(actions.end(), redos, Redo {});
    for (const Hint::Kind kind : clicks) {
        actions.emplace_back(Hint { kind, 0, {} });
    }
    if (m_leftFor) {
        actions.emplace_back(Leave { *m_leftFor });
    }
    std::get<Puzzle>(actions.front()).spent
        = m_puzzle->saved - purse() + earned() - priceOf(actions);
    return actions;
}

bool Replay::isMadeBy(const std::vector<Action>& actions) const
{
    Replay other;
    for (const Action& action : actions) {
        if (!other.apply(action).empty()) {
            return false;
        }
    }
    return other.hash() == hash();
}

std::vector<Action> Replay::compact() const
{
    using Kind = Hint::Kind;
    static const std::vector<Clicks> kClicks { {}, { Kind::Good }, { Kind::Pieces },
        { Kind::Good, Kind::Pieces }, { Kind::Nothing } };
    const std::size_t undos = m_steps.size() - m_cursor;
    for (const Clicks& clicks : kClicks) {
        for (const std::size_t redos : { std::size_t { 0 }, std::size_t { 1 } }) {
            if (undos + redos <= m_steps.size()) {
                std::vector<Action> actions = listOf(undos + redos, redos, clicks);
                if (isMadeBy(actions)) {
                    return actions;
                }
            }
        }
    }
    throw std::logic_error("a hint's stage that no click leads to");
}

std::uint64_t Replay::hash() const
{
    if (!m_puzzle) {
        return fnv1a("");
    }
    Puzzle puzzle = *m_puzzle;
    puzzle.saved = purse();
    puzzle.spent = 0;
    std::string text = print(puzzle) + '\n';
    for (const Step& step : m_steps) {
        text += print(step.action) + '\n';
    }
    text += "done " + std::to_string(m_cursor) + "\nstage " + std::to_string(m_hintStage)
        + (m_marked ? " marked\n" : "\n");
    if (isOver()) {
        text += m_solved ? "solved\n" : print(Leave { *m_leftFor }) + '\n';
    }
    return fnv1a(text);
}

} // namespace veyrand::play
