#include "controller/EditorSheet.h"

#include "controller/GameController.h"
#include "controller/StatisticsSheet.h"
#include "play/Refusal.h"
#include "progress/RuleSets.h"

#include <algorithm>

namespace veyrand::controller {

namespace {

constexpr std::string_view kStartKey = "start-";
constexpr std::string_view kGoalKey = "goal-";
constexpr std::string_view kChipKey = "chip-";
constexpr std::string_view kChips = "YRGB";
constexpr unsigned kMostBits = 30;
constexpr double kSlice = 0.008; // s: half a frame
constexpr unsigned kLooksInSlice = 200; // where the clock is coarse, as browsers' are

std::uint32_t seedAt(double now)
{
    return static_cast<std::uint32_t>(
        static_cast<std::uint64_t>(platform::toNanoseconds(now)) & 0xFFFFFFFFU);
}

} // namespace

EditorSheet::EditorSheet(GameController& controller)
    : m_controller(controller)
    , m_maker(seedAt(controller.context().runLoop.now()))
{
    setLines(controller.shelf().draft());
}

std::string EditorSheet::text(const char* id, language::Arguments arguments) const
{
    return m_controller.context().texts.text(std::string("editor.") + id, arguments);
}

std::string EditorSheet::keyOf(const Seat& seat)
{
    return std::string(seat.line == Line::Start ? kStartKey : kGoalKey)
        + std::to_string(seat.column);
}

std::optional<EditorSheet::Seat> EditorSheet::seatOf(const std::string& key)
{
    for (const Line line : { Line::Start, Line::Goal }) {
        for (std::size_t column = 0; column < play::kMostChips; ++column) {
            if (key == keyOf({ line, column })) {
                return Seat { line, column };
            }
        }
    }
    return std::nullopt;
}

std::string& EditorSheet::chipsOf(Line line)
{
    return line == Line::Start ? m_start : m_goal;
}

const std::string& EditorSheet::chipsOf(Line line) const
{
    return line == Line::Start ? m_start : m_goal;
}

std::string EditorSheet::firstFocus() const
{
    const auto end = std::min<std::size_t>(chipsOf(m_line).size(), play::kMostChips - 1);
    return keyOf({ m_line, end });
}

void EditorSheet::focused(const std::string& key)
{
    if (const auto seat = seatOf(key)) {
        m_line = seat->line;
    }
}

void EditorSheet::setLines(const play::CodedPuzzle& puzzle)
{
    m_start = puzzle.root.empty() ? "Y" : puzzle.root;
    m_goal = puzzle.goal;
    changed();
}

void EditorSheet::changed()
{
    m_note.clear();
    m_isCopied = false;
    m_controller.shelf().setDraft({ m_start, m_goal });
    if (m_goal.empty()) {
        m_verdict.reset();
        return;
    }
    m_controller.context().runLoop.performAfterDelay(
        0.0, [this, lines = m_start + '>' + m_goal, self = std::weak_ptr(m_self)] {
            // Of several changes in one go the last is looked at.
            if (!self.expired() && lines == m_start + '>' + m_goal) {
                lookAtLines();
                m_controller.sheets().changed();
            }
        });
}

void EditorSheet::lookAtLines()
{
    const auto start = engine::PackedLine::pack(m_start);
    const auto goal = engine::PackedLine::pack(m_goal);
    const auto ways = start && goal ? m_search.find(*start, *goal) : std::nullopt;
    m_verdict = Verdict { .isReachable = ways.has_value() };
    if (!ways) {
        return;
    }
    m_verdict->par = ways->moves();
    m_verdict->ways = ways->count();
    m_verdict->bits = ways->bits();
    const play::MoveSet needed = ways->needed();
    for (unsigned rule = 0; rule < progress::kMoveCount; ++rule) {
        if ((needed & play::only(rule)) != 0) {
            m_verdict->needed.push_back(play::labelOf(rule));
        }
    }
    std::sort(m_verdict->needed.begin(), m_verdict->needed.end());
}

void EditorSheet::refuse(const char* why)
{
    m_note = text(why);
    m_controller.context().effects.play(platform::Effect::No);
}

void EditorSheet::put(const Seat& seat, char chip)
{
    std::string& chips = chipsOf(seat.line);
    if (seat.line == Line::Start && (seat.column == 0 || chip == 'Y')) {
        return refuse("oneYellow");
    }
    if (seat.column < chips.size()) {
        chips[seat.column] = chip;
    } else if (chips.size() < play::kMostChips) {
        chips += chip;
    } else {
        return refuse("full");
    }
    m_controller.context().effects.play(platform::Effect::Click);
    changed();
}

void EditorSheet::take(const Seat& seat)
{
    std::string& chips = chipsOf(seat.line);
    const std::size_t least = seat.line == Line::Start ? 1 : 0;
    if (chips.size() <= least || (seat.line == Line::Start && seat.column == 0)) {
        return refuse(seat.line == Line::Start ? "oneYellow" : "build");
    }
    chips.erase(std::min(seat.column, chips.size() - 1), 1);
    m_controller.context().effects.play(platform::Effect::Click);
    changed();
}

// On what it would put there a press takes away.
void EditorSheet::pressSeat(const Seat& seat)
{
    m_line = seat.line;
    const std::string& chips = chipsOf(seat.line);
    if (seat.column > 0 || seat.line == Line::Goal) {
        if (seat.column < chips.size() && chips[seat.column] == m_chip) {
            return take(seat);
        }
    }
    put(seat, m_chip);
}

// Where the keys are, which go on to the next place.
void EditorSheet::typed(char chip)
{
    m_chip = chip;
    const auto seat = seatOf(m_controller.sheets().focus());
    const std::size_t before = chipsOf(m_line).size();
    const Seat at = seat.value_or(Seat { m_line, before });
    const bool isFixed = at.line == Line::Start && at.column == 0;
    if (isFixed && chip == 'Y') {
        return m_controller.sheets().focusOn(keyOf({ at.line, 1 }));
    }
    put(isFixed ? Seat { at.line, 1 } : at, chip);
    if (m_note.empty() && seat) {
        const std::size_t next = std::min(isFixed ? 1 : at.column, chipsOf(at.line).size() - 1) + 1;
        m_controller.sheets().focusOn(
            keyOf({ at.line, std::min<std::size_t>(next, play::kMostChips - 1) }));
    }
}

void EditorSheet::press(const std::string& key)
{
    m_isCopied = false;
    if (const auto seat = seatOf(key)) {
        pressSeat(*seat);
    } else if (key.starts_with(kChipKey)) {
        m_chip = key.back();
        m_note.clear();
    } else if (key == "take-back") {
        take({ m_line, play::kMostChips });
    } else if (key == "make") {
        make();
    } else if (key == "play") {
        play();
    } else if (key == "save") {
        save();
    } else if (key == "copy") {
        copy();
    } else if (key == "mine") {
        m_controller.sheets().openMine();
    } else if (key == "puzzles") {
        m_controller.sheets().openMap();
    } else {
        turnNumber(key);
    }
}

bool EditorSheet::takeKey(std::string_view keys)
{
    if (keys.size() == 1 && kChips.find(keys.front()) != std::string_view::npos) {
        typed(keys.front());
    } else if (keys == "Backspace" || keys == "Del") {
        const auto seat = seatOf(m_controller.sheets().focus());
        const std::size_t count = chipsOf(seat ? seat->line : m_line).size();
        take(seat && seat->column < count ? *seat : Seat { m_line, play::kMostChips });
        if (m_note.empty() && seat && seat->column > 0 && keys == "Backspace") {
            m_controller.sheets().focusOn(keyOf({ seat->line, std::min(seat->column, count) - 1 }));
        }
    } else if (keys == "Ctrl+C") {
        copy();
    } else if (keys == "Ctrl+V") {
        paste();
    } else {
        return false;
    }
    return true;
}

void EditorSheet::turnNumber(const std::string& key)
{
    const unsigned by = key.ends_with("-more") ? 1U : static_cast<unsigned>(-1);
    if (key.starts_with("par-")) {
        m_wish.par = std::clamp(m_wish.par + by, 1U, play::PuzzleMaker::kHardestPar);
    } else if (key.starts_with("bits-")) {
        m_wish.bits = std::clamp(m_wish.bits + by, 1U, kMostBits);
    }
}

void EditorSheet::make()
{
    m_isMaking = !m_isMaking;
    m_note.clear();
    if (m_isMaking) {
        m_maker.begin(m_wish);
        m_controller.context().runLoop.performAfterDelay(0.0, [this, self = std::weak_ptr(m_self)] {
            if (!self.expired()) {
                lookForOne();
            }
        });
    }
}

// Less than a frame at a time.
void EditorSheet::lookForOne()
{
    if (!m_controller.sheets().isShowing(*this)) {
        m_isMaking = false; // its puzzle is played, perhaps under another editor
        return;
    }
    const platform::RunLoop& clock = m_controller.context().runLoop;
    const double until = clock.now() + kSlice;
    bool goesOn = m_isMaking;
    for (unsigned looks = 0; goesOn && looks < kLooksInSlice && clock.now() < until; ++looks) {
        goesOn = m_maker.look();
    }
    if (goesOn) {
        m_controller.context().runLoop.performAfterDelay(0.0, [this, self = std::weak_ptr(m_self)] {
            if (!self.expired()) {
                lookForOne();
            }
        });
        return;
    }
    if (std::exchange(m_isMaking, false)) {
        const bool isExact = m_maker.isExact();
        if (const auto& best = m_maker.best()) {
            setLines(best->puzzle);
        }
        m_note = !m_maker.best() ? text("none") : isExact ? std::string() : text("nearest");
    }
    m_controller.sheets().changed();
}

std::string EditorSheet::code() const
{
    return play::codeOf(m_start, m_goal).value_or(std::string());
}

void EditorSheet::play()
{
    if (!m_verdict || !m_verdict->isReachable) {
        return refuse("notYet");
    }
    m_controller.practice().openOrTell(code());
}

void EditorSheet::save()
{
    using Saving = play::MyPuzzles::Saving;
    if (!m_verdict || !m_verdict->isReachable) {
        return refuse("notYet");
    }
    const Saving saving = m_controller.shelf().add(code());
    if (saving == Saving::Full) {
        return refuse("shelfFull");
    }
    if (const auto* const saved = m_controller.shelf().puzzles().of(code())) {
        m_note = text(saving == Saving::Saved ? "saved" : "known", { { "name", saved->name } });
    }
}

void EditorSheet::copy()
{
    auto* const clipboard = m_controller.context().clipboard;
    if (clipboard != nullptr && !code().empty()) {
        clipboard->setText(code());
        m_isCopied = true;
    }
}

void EditorSheet::paste()
{
    m_controller.sheets().paste([this](const std::string& text) { pasted(text); });
}

// A code becomes its lines.
void EditorSheet::pasted(const std::string& text)
{
    const auto read = play::readCode(play::codeInLink(text));
    if (const auto* const fault = std::get_if<play::CodeFault>(&read)) {
        return m_controller.practice().tell(m_controller.practice().wordsOf(*fault));
    }
    const auto& puzzle = std::get<play::CodedPuzzle>(read);
    if (puzzle.root.front() != 'Y'
        || std::count(puzzle.root.begin(), puzzle.root.end(), 'Y') != 1) {
        return refuse("oneYellow");
    }
    setLines(puzzle);
}

std::string EditorSheet::told() const
{
    const auto note
        = [this](const std::string& said) { return m_note.empty() ? said : m_note + ". " + said; };
    if (!m_verdict) {
        return note(text("build"));
    }
    if (!m_verdict->isReachable) {
        return note(text("unreachable"));
    }
    std::string needed;
    for (const unsigned move : m_verdict->needed) {
        needed += (needed.empty() ? "#" : ", #") + std::to_string(move);
    }
    return note(text("reachable")) + ". " + text("cardPar") + ' ' + std::to_string(m_verdict->par)
        + ", " + text("ways", { { "number", static_cast<std::int64_t>(m_verdict->ways) } }) + ", "
        + text(
            "inBits", { { "number", withTenths(m_controller.context().texts, m_verdict->bits) } })
        + ". " + (needed.empty() ? text("saidNoNeeds") : text("saidNeeds", { { "moves", needed } }))
        + (m_isCopied ? ' ' + text("copied") : "");
}

} // namespace veyrand::controller
