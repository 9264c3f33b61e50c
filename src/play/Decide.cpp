#include "play/Decide.h"

#include "engine/Rule.h"
#include "progress/RuleSets.h"

#include <algorithm>
#include <string_view>

namespace veyrand::play {

namespace {

using Answer = std::variant<Move, Refusal>;

// How many moves must be open for each. The drop between blues shares its threshold with the split,
// though its label is one more.
constexpr int kOpensGreenToEnd = 2;
constexpr int kOpensThreeReds = 3;
constexpr int kOpensTwoGreens = 4;
constexpr int kOpensFlip = 5;
constexpr int kOpensSplit = 6;
constexpr int kOpensDrop = 6;

const engine::Rule& ruleAt(unsigned rule)
{
    static const engine::Rules kRules = progress::advancedRules();
    return kRules.at(rule);
}

std::vector<engine::Range> matchesOf(const engine::Theorem& line, unsigned rule)
{
    return line.matchesWithRule(ruleAt(rule)).value_or(std::vector<engine::Range> {});
}

bool holdsAt(std::string_view line, std::size_t column, std::string_view chips)
{
    return column <= line.size() && line.substr(column, chips.size()) == chips;
}

// The last match that starts at the column; the first match of all when none does.
Answer moveAt(const engine::Theorem& line, unsigned rule, unsigned column)
{
    const auto matches = matchesOf(line, rule);
    Move move { rule, 0 };
    for (unsigned index = 0; index < matches.size(); ++index) {
        if (matches[index].location == column) {
            move.match = index;
        }
    }
    return move;
}

Answer openMove(int open, int opens, const engine::Theorem& line, unsigned rule, unsigned column)
{
    if (open < opens) {
        return Refusal { Reason::NotOpen, labelOf(rule) };
    }
    return moveAt(line, rule, column);
}

Answer clickOnYellow(const engine::Theorem& line, unsigned column)
{
    if (column + 1 == line.theorem().size()) {
        return Refusal { Reason::YellowLast };
    }
    return moveAt(line, progress::kDoubling, column);
}

Answer clickOnRed(const engine::Theorem& line, unsigned column, int open)
{
    if (column + 1 != line.theorem().size()) {
        return Refusal { Reason::RedNotLast };
    }
    return openMove(open, kOpensGreenToEnd, line, progress::kGreenToEnd, column);
}

Answer clickOnGreen(const engine::Theorem& line, unsigned column, int open)
{
    if (!holdsAt(line.theorem(), column, "GG")) {
        return Refusal { Reason::LoneGreen };
    }
    return openMove(open, kOpensSplit, line, progress::kSplitGreens, column);
}

Answer moveOfClick(const engine::Theorem& line, unsigned column, int open)
{
    const std::string& chips = line.theorem();
    switch (column < chips.size() ? chips[column] : '\0') {
    case 'Y':
        return clickOnYellow(line, column);
    case 'R':
        return clickOnRed(line, column, open);
    case 'G':
        return clickOnGreen(line, column, open);
    default:
        return Refusal { Reason::NoMoveHere };
    }
}

// The start of a run of equal chips that reaches from one column to the other, dragged either way.
std::optional<unsigned> runBetween(
    std::string_view line, unsigned from, unsigned to, std::string_view run)
{
    const unsigned start = std::min(from, to);
    const bool spansRun = std::max(from, to) - start == run.size() - 1;
    return spansRun && holdsAt(line, start, run) ? std::optional(start) : std::nullopt;
}

Answer dropOfRun(const engine::Theorem& line, const Drag& drag, int open)
{
    const std::string& chips = line.theorem();
    if (chips[drag.from] == 'R') {
        const auto start = runBetween(chips, drag.from, drag.to, "RRR");
        return start ? openMove(open, kOpensThreeReds, line, progress::kThreeReds, *start)
                     : Answer(Refusal { Reason::DragReds });
    }
    const auto start = runBetween(chips, drag.from, drag.to, "GG");
    return start ? openMove(open, kOpensTwoGreens, line, progress::kTwoGreens, *start)
                 : Answer(Refusal { Reason::DragGreens });
}

Answer dropOfBlue(const engine::Theorem& line, const Drag& drag, int open)
{
    const std::string& chips = line.theorem();
    const unsigned low = std::min(drag.from, drag.to);
    const unsigned high = std::max(drag.from, drag.to);
    if (chips[drag.to] != 'B') {
        return Refusal { Reason::DragBlues };
    }
    if (chips.substr(low + 1, high - low - 1).find('B') != std::string::npos) {
        return Refusal { Reason::BlueBetween };
    }
    // Neighbours have nothing between them; another pair's chips fall then, if there are any.
    if (high == low + 1 && matchesOf(line, progress::kDropBetweenBlues).empty()) {
        return Refusal { Reason::BluesTouch };
    }
    return openMove(open, kOpensDrop, line, progress::kDropBetweenBlues, low);
}

Answer moveOfDrag(const engine::Theorem& line, const Drag& drag, int open)
{
    switch (line.theorem()[drag.from]) {
    case 'R':
    case 'G':
        return dropOfRun(line, drag, open);
    case 'Y':
        return drag.to == drag.from + 2
            ? openMove(open, kOpensFlip, line, progress::kFlip, drag.from)
            : Answer(Refusal { Reason::DragYellow });
    case 'B':
        return dropOfBlue(line, drag, open);
    default:
        return Refusal { Reason::NoMoveHere };
    }
}

// The last line that the board has room for must be the goal.
bool hasRoomFor(const Position& position, const engine::Theorem& line)
{
    return position.lines.size() + 1 < kMostLines || line == position.goal;
}

std::optional<Refusal> refusalOfClick(const Position& position, const Click& click)
{
    const std::size_t count = position.lines.size();
    if (!accepts(position.lesson, click)) {
        return Refusal { Reason::Lesson };
    }
    if (count == 0) {
        return Refusal { Reason::NoLine };
    }
    if (click.row + 1 != count) {
        return Refusal { Reason::NotLastLine };
    }
    return count >= kMostLines ? std::optional(Refusal { Reason::BoardFull }) : std::nullopt;
}

// A drag is refused where it starts, then where it ends, and only then by a lesson.
std::optional<Refusal> refusalOfDrag(const Position& position, const Drag& drag)
{
    const std::size_t count = position.lines.size();
    if (count == 0) {
        return Refusal { Reason::NoLine };
    }
    if (drag.fromRow + 1 != count) {
        return Refusal { Reason::NotLastLine, 0, Heard::Silent };
    }
    if (count > kMostLinesForDrag) {
        return Refusal { Reason::NoDragNow };
    }
    if (drag.toRow != drag.fromRow) {
        return Refusal { Reason::OtherRow };
    }
    if (drag.from == drag.to) {
        return Refusal { Reason::SameChip };
    }
    if (std::max(drag.from, drag.to) >= position.lines.back().theorem().size()) {
        return Refusal { Reason::NoChip };
    }
    return accepts(position.lesson, drag) ? std::nullopt
                                          : std::optional(Refusal { Reason::Lesson });
}

std::variant<Action, Refusal> decideClick(const Position& position, const Click& click)
{
    if (const auto refusal = refusalOfClick(position, click)) {
        return *refusal;
    }
    const engine::Theorem& last = position.lines.back();
    const Answer answer = moveOfClick(last, click.column, position.open);
    if (const auto* const refusal = std::get_if<Refusal>(&answer)) {
        return *refusal;
    }
    const Move move = std::get<Move>(answer);
    const auto line = lineAfter(last, move);
    if (!line) {
        return Refusal { Reason::NoMoveHere };
    }
    if (line->theorem().size() > kMostChips) {
        return Refusal { Reason::TooLong };
    }
    if (!hasRoomFor(position, *line)) {
        return Refusal { Reason::LastMustBeGoal };
    }
    return Action(move);
}

// A drag never lengthens a line, and finds no targets where only the goal would fit.
std::variant<Action, Refusal> decideDrag(const Position& position, const Drag& drag)
{
    if (const auto refusal = refusalOfDrag(position, drag)) {
        return *refusal;
    }
    const Answer answer = moveOfDrag(position.lines.back(), drag, position.open);
    if (const auto* const refusal = std::get_if<Refusal>(&answer)) {
        return *refusal;
    }
    return Action(std::get<Move>(answer));
}

void addTargetsOfBlue(std::string_view chips, unsigned column, std::vector<unsigned>& targets)
{
    // Adjacent blues have nothing between them to drop.
    const std::size_t left
        = column == 0 ? std::string_view::npos : chips.rfind('B', std::size_t { column } - 1);
    if (left != std::string_view::npos && left + 1 != column) {
        targets.push_back(static_cast<unsigned>(left));
    }
    const std::size_t right = chips.find('B', std::size_t { column } + 1);
    if (right != std::string_view::npos && right != column + 1) {
        targets.push_back(static_cast<unsigned>(right));
    }
}

} // namespace

std::variant<Action, Refusal> decide(const Position& position, const Gesture& gesture)
{
    if (position.phase != Phase::Playing) {
        return Refusal { Reason::Busy };
    }
    if (const auto* const click = std::get_if<Click>(&gesture)) {
        return decideClick(position, *click);
    }
    if (const auto* const drag = std::get_if<Drag>(&gesture)) {
        return decideDrag(position, *drag);
    }
    const auto& remove = std::get<Remove>(gesture);
    if (remove.row == 0 || remove.row >= position.lines.size()) {
        return Refusal { Reason::NoSuchRow };
    }
    return Action(remove);
}

bool accepts(const std::optional<Lesson>& lesson, const Gesture& gesture)
{
    if (!lesson) {
        return true;
    }
    if (const auto* const click = std::get_if<Click>(&gesture)) {
        return !lesson->drag && lesson->click == *click;
    }
    const auto* const drag = std::get_if<Drag>(&gesture);
    return drag == nullptr || !lesson->drag || lesson->drag == *drag;
}

std::vector<unsigned> targets(const Position& position, unsigned column)
{
    std::vector<unsigned> found;
    if (position.lines.empty() || position.lines.size() > kMostLinesForDrag) {
        return found;
    }
    const std::string& chips = position.lines.back().theorem();
    if (column > 1 && holdsAt(chips, column - 2, "RRR")) {
        found.push_back(column - 2);
    }
    if (holdsAt(chips, column, "RRR")) {
        found.push_back(column + 2);
    }
    if (column != 0 && holdsAt(chips, column - 1, "GG")) {
        found.push_back(column - 1);
    }
    if (holdsAt(chips, column, "GG")) {
        found.push_back(column + 1);
    }
    if (column + 2 < chips.size() && holdsAt(chips, column, "Y")) {
        found.push_back(column + 2);
    }
    if (holdsAt(chips, column, "B")) {
        addTargetsOfBlue(chips, column, found);
    }
    return found;
}

std::vector<Gesture> actions(const Position& position)
{
    std::vector<Gesture> found;
    if (position.lines.empty()) {
        return found;
    }
    const auto row = static_cast<unsigned>(position.lines.size() - 1);
    const auto add = [&](const Gesture& gesture) {
        if (std::holds_alternative<Action>(decide(position, gesture))) {
            found.push_back(gesture);
        }
    };
    for (unsigned column = 0; column < position.lines.back().theorem().size(); ++column) {
        add(Click { row, column });
        for (const unsigned target : targets(position, column)) {
            add(Drag { row, column, row, target });
        }
    }
    return found;
}

std::optional<Gesture> gestureFor(const Position& position, const std::string& line)
{
    for (const Gesture& gesture : actions(position)) {
        const auto action = std::get<Action>(decide(position, gesture));
        if (lineAfter(position.lines.back(), std::get<Move>(action))->theorem() == line) {
            return gesture;
        }
    }
    return std::nullopt;
}

std::optional<engine::Theorem> lineAfter(const engine::Theorem& line, const Move& move)
{
    return matchOf(line, move) ? line.applyRule(ruleAt(move.rule), move.match) : std::nullopt;
}

std::optional<engine::Range> matchOf(const engine::Theorem& line, const Move& move)
{
    if (move.rule >= static_cast<unsigned>(progress::kMoveCount)) {
        return std::nullopt;
    }
    const auto matches = matchesOf(line, move.rule);
    return move.match < matches.size() ? std::optional(matches[move.match]) : std::nullopt;
}

} // namespace veyrand::play
