#include "controller/ReplaySheet.h"

#include "board/BoardGeometry.h"
#include "controller/DailySheet.h"
#include "controller/GameController.h"
#include "controller/SpokenNames.h"
#include "play/Refusal.h"
#include "progress/RuleSets.h"

#include <algorithm>
#include <array>

namespace veyrand::controller {

using present::SheetDrawing;
using Ink = SheetDrawing::Ink;
using Align = SheetDrawing::Align;

namespace {

constexpr double kBetweenSteps = 0.9; // s

// Thousandths of the game's height.
constexpr double kChip = 1000.0 * board::kChipSize;
constexpr double kTagX = 645.0;
constexpr double kFieldX = 1096.0;
constexpr double kFieldWidth = 1008.0;

double rowAt(std::size_t row)
{
    return 1000.0 * (1.0 - board::yPositionForRow(static_cast<unsigned>(row)));
}

double columnAt(unsigned column)
{
    return 1000.0 * board::xPositionForColumn(column);
}

std::optional<progress::Place> placeNamed(const std::string& name)
{
    for (int level = 1; level <= progress::kLastLevel; ++level) {
        for (int stage = 1; stage <= progress::kLastStage; ++stage) {
            if (play::nameOf(progress::Place { level, stage }) == name) {
                return progress::Place { level, stage };
            }
        }
    }
    return std::nullopt;
}

std::int64_t asNumber(std::uint64_t value)
{
    return static_cast<std::int64_t>(value);
}

} // namespace

std::optional<ReplaySubject> replaySubject(GameController& controller, const std::string& name)
{
    const Practice& practice = controller.practice();
    const play::Result* const result = controller.book().toReplay(name);
    ReplaySubject subject { .name = name };
    if (const auto place = placeNamed(name)) {
        const auto* const entry = practice.entryAt(*place);
        if (entry == nullptr || !practice.isSolved(*place)) {
            return std::nullopt;
        }
        subject.puzzle = { entry->root, entry->goal };
        subject.par = static_cast<unsigned>(entry->par - 1);
        subject.open = play::openMoves(progress::highestRuleAt(place->level, place->stage));
    } else if (result != nullptr) {
        subject.puzzle = result->puzzle;
        subject.par = result->par;
        subject.mayTell = practice.mayTellOf(result->puzzle);
    } else {
        return std::nullopt;
    }
    // One that was kept of another puzzle, which stood in this place once, is none.
    if (result != nullptr && result->puzzle == subject.puzzle) {
        subject.yours = play::trailOf(result->puzzle, result->moves);
        if (subject.yours.back().line != subject.puzzle.goal) {
            subject.yours.clear();
        }
    }
    return subject;
}

ReplaySheet::ReplaySheet(GameController& controller, ReplaySubject subject)
    : m_controller(controller)
    , m_subject(std::move(subject))
{
    if (m_subject.mayTell) {
        play::WaySearch search;
        const auto root = engine::PackedLine::pack(m_subject.puzzle.root);
        const auto goal = engine::PackedLine::pack(m_subject.puzzle.goal);
        m_ways = root && goal ? search.find(*root, *goal, 1, m_subject.open) : std::nullopt;
        if (m_ways && !m_subject.yours.empty()) {
            play::markWhereItLeaves(m_subject.yours, search, m_subject.open);
        }
    }
    m_isYours = !m_subject.yours.empty() || !m_ways;
    if (m_ways) {
        m_shortest = play::trailOf(*m_ways, m_way, m_subject.open);
    }
    if (m_subject.yours.empty()) {
        m_subject.yours = { { .line = m_subject.puzzle.root } };
    }
}

const std::vector<play::TrailStep>& ReplaySheet::trail() const
{
    return m_isYours ? m_subject.yours : m_shortest;
}

// --- Words

std::string ReplaySheet::text(const char* id, language::Arguments arguments) const
{
    return m_controller.context().texts.text(std::string("replay.") + id, arguments);
}

std::string ReplaySheet::headline() const
{
    const std::string par = std::to_string(m_subject.par);
    if (const auto date = progress::dateIn(m_subject.name)) {
        return text(
            "daily", { { "day", shortDate(m_controller.context().texts, *date) }, { "par", par } });
    }
    return text(placeNamed(m_subject.name) ? "puzzle" : "code",
        { { "name", m_subject.name }, { "par", par } });
}

std::string ReplaySheet::whose() const
{
    return m_isYours ? text("yoursIn", { { "moves", asNumber(trail().size() - 1) } })
                     : text("wayOf",
                         { { "number", std::to_string(m_way + 1) },
                             { "count", std::to_string(m_ways->count()) } });
}

// What the move did, from one fixed table.
std::string ReplaySheet::deed() const
{
    if (m_step == 0) {
        return text("toGoal", { { "moves", asNumber(trail().size() - 1) } });
    }
    const play::TrailStep& step = trail()[m_step];
    const std::size_t before = trail()[m_step - 1].line.size();
    switch (step.move.rule) {
    case progress::kDoubling:
        return text("did1");
    case progress::kGreenToEnd:
        return text("did2");
    case progress::kThreeReds:
        return text("did3");
    case progress::kTwoGreens:
        return text("did4");
    case progress::kFlip:
        return text("did5");
    case progress::kSplitGreens:
        return text("did6");
    default:
        return text("did7", { { "chips", asNumber(before - step.line.size()) } });
    }
}

std::string ReplaySheet::caption() const
{
    return m_step == 0 ? text("start")
                       : text("caption",
                           { { "move", std::to_string(play::labelOf(trail()[m_step].move.rule)) },
                               { "deed", deed() } });
}

std::string ReplaySheet::note() const
{
    const play::TrailStep& step = trail()[m_step];
    if (m_isYours && step.more > 0) {
        std::string moves;
        for (unsigned label = 1; label <= progress::kMoveCount; ++label) {
            for (unsigned rule = 0; rule < progress::kMoveCount; ++rule) {
                if (play::labelOf(rule) == label && (step.instead & play::only(rule)) != 0) {
                    moves += moves.empty() ? "" : ", ";
                    moves += text(rule == step.move.rule ? "elsewhere" : "numbered",
                        { { "move", std::to_string(label) } });
                }
            }
        }
        return text("left", { { "moves", moves } });
    }
    return m_step + 1 == trail().size() && m_step > 0 ? text("goalReached") : std::string();
}

std::string ReplaySheet::position() const
{
    return text("position",
        { { "move", std::to_string(m_step) }, { "all", std::to_string(trail().size() - 1) } });
}

std::string ReplaySheet::countOfWays() const
{
    return m_ways ? text("count", { { "count", asNumber(m_ways->count()) } }) : std::string();
}

std::string ReplaySheet::told() const
{
    std::string words = headline() + ", " + whose() + ". " + position() + ". " + caption() + ". ";
    if (const std::string note = this->note(); !note.empty()) {
        words += note + ". ";
    }
    return words
        + SpokenNames(m_controller.context().texts)
              .line(static_cast<unsigned>(m_step), trail()[m_step].line);
}

ReplaySheet::State ReplaySheet::state() const
{
    State state { .isYours = m_isYours,
        .way = m_isYours ? 0 : m_way + 1,
        .ways = m_ways ? m_ways->count() : 0,
        .step = m_step,
        .isRunning = m_isRunning,
        .caption = caption(),
        .note = note() };
    for (std::size_t row = 0; row < trail().size(); ++row) {
        state.lines.push_back(trail()[row].line);
        if (m_isYours && trail()[row].more > 0) {
            state.leftAt.push_back(row);
        }
    }
    return state;
}

// --- The drawing

void ReplaySheet::draw(SheetDrawing& drawing) const
{
    drawRows(drawing);
    drawPanel(drawing);
    drawSteps(drawing);
    drawChoice(drawing);
}

void ReplaySheet::drawRows(SheetDrawing& drawing) const
{
    constexpr double kPassed = 0.86;
    constexpr double kToCome = 0.28;
    constexpr double kRingOfStep = 83.0;
    const auto chips = [&](const std::string& letters, double y, double opacity) {
        drawing.chips(letters, columnAt(0) - kChip / 2.0, y, kChip, opacity);
    };
    drawing.picture("RowLight", kFieldX, rowAt(m_step), kFieldWidth, kChip);
    for (std::size_t row = 0; row < trail().size(); ++row) {
        chips(trail()[row].line, rowAt(row),
            row == m_step      ? 1.0
                : row < m_step ? kPassed
                               : kToCome);
        if (row > 0 && row <= m_step) {
            drawTag(drawing, row);
        }
    }
    if (m_step > 0) {
        const std::string& before = trail()[m_step - 1].line;
        if (const auto stones = play::stonesOf(before, trail()[m_step].move)) {
            for (unsigned i = 0; i < stones->length; ++i) {
                drawing.picture("Ring", columnAt(stones->location + i), rowAt(m_step - 1),
                    kRingOfStep, kRingOfStep);
            }
        }
    }
    chips(m_subject.puzzle.goal, rowAt(board::kGoalRow), 1.0);
}

// The move's number, and a ribbon where it cost more than it had to.
void ReplaySheet::drawTag(SheetDrawing& drawing, std::size_t row) const
{
    constexpr double kTag = 60.0;
    const play::TrailStep& step = trail()[row];
    const bool isLeft = m_isYours && step.more > 0;
    const double y = rowAt(row);
    drawing.picture(isLeft ? "MoveTagLeft" : "MoveTag", kTagX, y, kTag, kTag);
    drawing.words('#' + std::to_string(play::labelOf(step.move.rule)), kTagX, y, 27,
        isLeft ? Ink::Ivory : Ink::Dark);
    constexpr std::size_t kLongestBeside = 9; // chips; behind more there is no room
    if (isLeft && step.line.size() <= kLongestBeside) {
        constexpr double kRibbonX = 1500.0;
        constexpr double kRibbonWidth = 180.0;
        drawing.picture("LeftRibbon", kRibbonX, y, kRibbonWidth, 56);
        drawing.words(text("more", { { "moves", std::int64_t { step.more } } }), kRibbonX + 9, y,
            27, Ink::Ivory, Align::Middle, 140);
    }
}

void ReplaySheet::drawPanel(SheetDrawing& drawing) const
{
    constexpr double kRoom = 430.0;
    drawing.title(text("title"));
    drawing.words(headline(), SheetDrawing::kPanelMiddle, 148, 35, Ink::Ivory, Align::Middle, 480);
    drawing.words(whose(), SheetDrawing::kPanelMiddle, 192, 31, Ink::Gold, Align::Middle, 480);
    drawing.pane(SheetDrawing::kPanelMiddle, 353, 490, 262);
    const std::string note = this->note();
    const double lift = note.empty() ? 34.0 : 0.0;
    const std::string head = m_step == 0
        ? text("start")
        : text("move", { { "move", std::to_string(play::labelOf(trail()[m_step].move.rule)) } });
    drawing.words(
        head, SheetDrawing::kPanelMiddle, 262 + lift, 44, Ink::Gold, Align::Middle, kRoom);
    drawing.paragraph(deed(), SheetDrawing::kPanelMiddle, 327 + lift, 31, Ink::Ivory, kRoom);
    if (!note.empty()) {
        drawing.picture("HorizontalLine", SheetDrawing::kPanelMiddle, 374, 370, 2);
        drawing.paragraph(note, SheetDrawing::kPanelMiddle, 421, 28, Ink::Ivory, kRoom);
    }
}

void ReplaySheet::drawSteps(SheetDrawing& drawing) const
{
    constexpr double kY = 548.0;
    drawing.signButton("first", text("first"), "StepFirst", 101, kY, 84, 70);
    drawing.signButton("back", text("back"), "StepBack", 201, kY, 84, 70);
    drawing.signButton("run", text(m_isRunning ? "pause" : "run"),
        m_isRunning ? "StepPause" : "StepRun", SheetDrawing::kPanelMiddle, kY, 84, 70,
        m_isRunning ? SheetDrawing::Button::Main : SheetDrawing::Button::Plain);
    drawing.signButton("on", text("on"), "StepOn", 401, kY, 84, 70);
    drawing.signButton("last", text("last"), "StepLast", 501, kY, 84, 70);

    constexpr double kLeft = 68.0;
    constexpr double kWay = 466.0;
    constexpr double kBarY = 626.0;
    const auto moves = static_cast<double>(std::max<std::size_t>(trail().size() - 1, 1));
    const auto at
        = [&](std::size_t step) { return kLeft + kWay * static_cast<double>(step) / moves; };
    drawing.bar(kLeft + kWay / 2.0, kBarY, kWay + 6.0, 8, Ink::Shade);
    drawing.bar((kLeft + at(m_step)) / 2.0, kBarY, at(m_step) - kLeft, 4, Ink::Gold);
    for (std::size_t step = 0; step < trail().size(); ++step) {
        const double size = step == m_step ? 34.0 : 20.0;
        const bool isLeft = m_isYours && trail()[step].more > 0;
        drawing.picture(isLeft   ? "MoveTagLeft"
                : step <= m_step ? "MoveTag"
                                 : "EmptySeat",
            at(step), kBarY, size, size);
    }
    drawing.words(position(), SheetDrawing::kPanelMiddle, 674, 29, Ink::Ivory, Align::Middle, 480);
}

void ReplaySheet::drawChoice(SheetDrawing& drawing) const
{
    using Button = SheetDrawing::Button;
    constexpr double kY = 744.0;
    constexpr double kBrowseY = 818.0;
    if (m_subject.yours.size() > 1) {
        drawing.button("yours", text("yours"), SheetDrawing::kFirstColumn, kY, 232, 66,
            m_isYours ? Button::Main : Button::Plain);
    }
    if (m_ways) {
        drawing.button("shortest", text("shortest"), SheetDrawing::kSecondColumn, kY, 232, 66,
            m_isYours ? Button::Plain : Button::Main);
        drawing.words(
            countOfWays(), SheetDrawing::kPanelMiddle, kBrowseY, 29, Ink::Pale, Align::Middle, 300);
        if (m_ways->count() > 1) {
            drawing.signButton("way-before", text("wayBefore"), "StepBack", 97, kBrowseY, 66, 58);
            drawing.signButton("way-after", text("wayAfter"), "StepOn", 505, kBrowseY, 66, 58);
        }
    }
    drawing.button("play", text("play"), SheetDrawing::kFirstColumn, 892, 232, 66);
    drawing.button("puzzles", text("puzzles"), SheetDrawing::kSecondColumn, 892, 232, 66);
}

// --- What is pressed

void ReplaySheet::press(const std::string& key)
{
    const std::size_t last = trail().size() - 1;
    if (key == "run") {
        runOrPause();
    } else if (key == "first" || key == "last") {
        goTo(key == "first" ? 0 : last);
    } else if (key == "back" || key == "on") {
        goTo(key == "on" ? std::min(m_step + 1, last) : m_step - std::min<std::size_t>(m_step, 1));
    } else if (key == "yours" && m_subject.yours.size() > 1) {
        showYours();
    } else if (key == "shortest" && m_ways) {
        showWay(m_way);
    } else if ((key == "way-after" || key == "way-before") && m_ways) {
        const std::uint64_t count = m_ways->count();
        showWay(m_isYours ? m_way : (m_way + (key == "way-after" ? 1 : count - 1)) % count);
    } else if (key == "play") {
        playIt();
    } else if (key == "puzzles") {
        m_controller.sheets().openMap();
    }
}

bool ReplaySheet::takeKey(std::string_view keys)
{
    struct Binding {
        std::string_view keys;
        const char* place;
    };
    constexpr std::array kBindings { Binding { "Left", "back" }, Binding { "Right", "on" },
        Binding { "Home", "first" }, Binding { "End", "last" }, Binding { "PgUp", "way-before" },
        Binding { "PgDown", "way-after" } };
    const auto* const found = std::find_if(kBindings.begin(), kBindings.end(),
        [keys](const Binding& binding) { return binding.keys == keys; });
    if (found == kBindings.end()) {
        return false;
    }
    press(found->place);
    return true;
}

bool ReplaySheet::goBack()
{
    m_controller.sheets().leaveReplay();
    return true;
}

void ReplaySheet::showYours()
{
    m_isYours = true;
    m_isRunning = false;
    goTo(0);
}

void ReplaySheet::showWay(std::uint64_t number)
{
    m_way = number;
    m_shortest = play::trailOf(*m_ways, m_way, m_subject.open);
    m_isYours = false;
    m_isRunning = false;
    m_step = 0;
}

// By hand, which ends a run, or step by step in one.
void ReplaySheet::goTo(std::size_t step)
{
    m_isRunning = false;
    if (step > m_step) {
        m_controller.context().effects.play(platform::Effect::Marble);
    }
    m_step = step;
}

void ReplaySheet::runOrPause()
{
    if (m_isRunning) {
        m_isRunning = false;
        m_run.reset();
        return;
    }
    if (trail().size() == 1) {
        return; // nobody noted a move, and none may be told
    }
    if (m_step + 1 == trail().size()) {
        m_step = 0;
    }
    m_isRunning = true;
    m_run = std::make_shared<int>();
    runOn();
}

void ReplaySheet::runOn()
{
    m_controller.context().runLoop.performAfterDelay(
        kBetweenSteps, [this, run = std::weak_ptr(m_run)] {
            if (run.expired() || !m_isRunning || !m_controller.sheets().isShowing(*this)) {
                return;
            }
            goTo(m_step + 1);
            if (m_step + 1 < trail().size()) {
                m_isRunning = true;
                runOn();
            }
            m_controller.speaker().gestureBegins();
            m_controller.speaker().tell(told());
            m_controller.sheets().changed();
        });
}

void ReplaySheet::playIt()
{
    Practice& practice = m_controller.practice();
    m_controller.sheets().openMap(); // what is shown here will not be the last word
    if (const auto place = placeNamed(m_subject.name)) {
        practice.choose(*place);
    } else if (const auto date = progress::dateIn(m_subject.name)) {
        practice.openDayOrTell(*date);
    } else {
        practice.openOrTell(
            play::codeOf(m_subject.puzzle.root, m_subject.puzzle.goal).value_or(std::string()));
    }
}

} // namespace veyrand::controller
