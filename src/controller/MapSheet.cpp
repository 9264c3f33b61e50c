#include "controller/MapSheet.h"

#include "controller/GameController.h"
#include "controller/StatisticsSheet.h"
#include "progress/Settings.h"

namespace veyrand::controller {

using present::SheetDrawing;
using progress::Place;
using Ink = SheetDrawing::Ink;
using Align = SheetDrawing::Align;

namespace {

// The board's own rows; the first place of a level stands over the board's second column.
constexpr double kFirstStone = 734.0;
constexpr double kApart = 74.0;
constexpr double kStone = 72.0;
constexpr double kRing = 88.0;

double rowY(int row)
{
    return 1000.0 * (1.0 - board::yPositionForRow(static_cast<unsigned>(row)));
}

double stoneX(int stage)
{
    return kFirstStone + kApart * (stage - 1);
}

std::string keyOf(const Place& place)
{
    return "puzzle-" + play::nameOf(place);
}

// What has been solved stays open when a new game has begun.
bool isOpen(const Practice& practice, const Place& place, const Place& standing)
{
    return Practice::isReached(place, standing) || practice.isSolved(place, standing);
}

std::optional<Place> placeOf(const std::string& key)
{
    for (int level = 1; level <= progress::kLastLevel; ++level) {
        for (int stage = 1; stage <= progress::kLastStage; ++stage) {
            if (keyOf({ level, stage }) == key) {
                return Place { level, stage };
            }
        }
    }
    return std::nullopt;
}

} // namespace

struct MapSheet::Known {
    Place standing;
    play::Statistics statistics;
};

MapSheet::MapSheet(GameController& controller)
    : m_controller(controller)
    , m_chosen(controller.practice().lastPlace().value_or(controller.practice().standing()))
{
}

std::string MapSheet::firstFocus() const
{
    return keyOf(m_chosen);
}

void MapSheet::focused(const std::string& key)
{
    if (const auto place = placeOf(key)) {
        m_chosen = *place;
    }
}

// The way from a stone to the panel leads over others.
bool MapSheet::isChosenByRest(const std::string& key) const
{
    return placeOf(key).has_value();
}

// All stones are one stop, at the chosen one.
std::string MapSheet::tabStopOf(const std::string& key) const
{
    return placeOf(key) ? keyOf(m_chosen) : key;
}

void MapSheet::press(const std::string& key)
{
    if (placeOf(key) || key == "play") {
        m_controller.practice().choose(m_chosen);
    } else if (key == "replay") {
        m_controller.sheets().openReplay(play::nameOf(m_chosen));
    } else if (key == "copy-code") {
        if (m_controller.context().clipboard != nullptr && !codeOfChosen().empty()) {
            m_controller.context().clipboard->setText(codeOfChosen());
        }
    } else if (key == "daily") {
        m_controller.practice().openToday();
    } else if (key == "paste-code") {
        pasteCode();
    } else if (key == "editor") {
        m_controller.sheets().openEditor();
    } else if (key == "statistics") {
        m_controller.sheets().openStatistics();
    } else if (key == "menu") {
        m_controller.sheets().close();
    }
}

std::string MapSheet::codeOfChosen() const
{
    const auto* const entry = m_controller.practice().entryAt(m_chosen);
    return entry != nullptr && m_controller.practice().isReached(m_chosen)
        ? play::codeOf(entry->root, entry->goal).value_or(std::string())
        : std::string();
}

std::string MapSheet::text(const char* id, language::Arguments arguments) const
{
    return m_controller.context().texts.text(std::string("practice.") + id, arguments);
}

void MapSheet::pasteCode()
{
    m_controller.sheets().paste(
        [this](const std::string& text) { m_controller.practice().openOrTell(text); });
}

bool MapSheet::takeKey(std::string_view keys)
{
    if (keys == "Ctrl+V") {
        pasteCode();
    } else if (keys == "Ctrl+C") {
        press("copy-code");
    } else {
        return false;
    }
    return true;
}

std::string MapSheet::told() const
{
    const play::Statistics statistics = m_controller.book().statistics();
    return text("solvedOf", { { "solved", std::to_string(statistics.solved) } }) + ", "
        + text("countAtPar", { { "stars", std::to_string(statistics.atPar) } });
}

// As a screen reader says it.
std::string MapSheet::nameForPeople(const Place& place, const Place& standing) const
{
    const Practice& practice = m_controller.practice();
    const std::string name = play::nameOf(place);
    if (!isOpen(practice, place, standing)) {
        return text("saidClosed", { { "name", name } });
    }
    if (const play::Result* const result = m_controller.book().results().of(name)) {
        return text("saidSolvedIn",
            { { "name", name }, { "moves", std::to_string(result->moves.size()) },
                { "par", std::to_string(result->par) } });
    }
    return text(
        practice.isSolved(place, standing) ? "saidSolved" : "saidReached", { { "name", name } });
}

void MapSheet::draw(SheetDrawing& drawing) const
{
    const Known known { m_controller.practice().standing(), m_controller.book().statistics() };
    for (int stage = 1; stage <= progress::kLastStage; ++stage) {
        drawing.words(std::to_string(stage), stoneX(stage), 52, 36, Ink::Gold);
    }
    for (int level = 1; level <= progress::kLastLevel; ++level) {
        drawLevel(drawing, known, level);
    }
    drawLegend(drawing);
    drawPanel(drawing, known);
}

void MapSheet::drawLevel(SheetDrawing& drawing, const Known& known, int level) const
{
    const double y = rowY(level);
    const auto& statistics = known.statistics.levels.at(static_cast<std::size_t>(level - 1));
    drawing.words(std::to_string(level), 612, y, 34, Ink::Gold);
    const bool isDone = statistics.solved == progress::kLastStage;
    drawing.picture("Medal-" + std::to_string(level), 662, y + 3, 88.6, 60, isDone ? 1.0 : 0.22);
    for (int stage = 1; stage <= progress::kLastStage; ++stage) {
        drawStone(drawing, known, level, stage);
    }
    if (statistics.solved > 0) {
        drawing.words(
            std::to_string(statistics.solved) + "/10", 1522, y, 27, Ink::Ivory, Align::Right);
        drawing.picture("PuzzleStar", 1546, y, 24, 24);
        drawing.words(std::to_string(statistics.atPar), 1562, y, 27, Ink::Ivory, Align::Left);
    } else if (!isOpen(m_controller.practice(), { level, 1 }, known.standing)) {
        drawing.words(text("closed"), 1510, y, 25, Ink::Pale, Align::Middle, 130);
    }
}

void MapSheet::drawStone(SheetDrawing& drawing, const Known& known, int level, int stage) const
{
    const Place place { level, stage };
    const std::string name = play::nameOf(place);
    const double x = stoneX(place.stage);
    const double y = rowY(place.level);
    const Practice& practice = m_controller.practice();
    const auto* const entry = practice.entryAt(place);
    const play::Result* const result = m_controller.book().results().of(name);
    const std::string par = entry != nullptr ? std::to_string(entry->par - 1) : std::string();
    if (!isOpen(practice, place, known.standing)) {
        drawing.picture("PuzzleClosed", x, y, kStone, kStone);
    } else if (result != nullptr && result->over() == 0) {
        drawing.picture("PuzzleAtPar", x, y, kStone, kStone);
        drawing.words(par, x, y + 11, 27, Ink::Dark);
    } else if (practice.isSolved(place, known.standing)) {
        drawing.picture("PuzzleSolved", x, y, kStone, kStone);
        if (result != nullptr) {
            drawing.words(std::to_string(result->moves.size()) + '/' + par, x, y, 27, Ink::Ivory,
                Align::Middle, 44);
        } else {
            drawing.picture("Checkmark", x, y, 34, 34); // in how many moves, nobody noted
        }
    } else {
        drawing.picture("PuzzleReached", x, y, kStone, kStone);
    }
    const std::string key = keyOf(place);
    if (drawing.isFocused(key)) {
        drawing.picture("PuzzleChosen", x, y, kRing, kRing);
    }
    drawing.place(key, nameForPeople(place, known.standing), x, y, kApart, kApart);
}

void MapSheet::drawLegend(SheetDrawing& drawing) const
{
    constexpr double kSmall = 58.0;
    constexpr double kEm = 27.0;
    constexpr double kToWords = 36.0;
    constexpr double kToNext = 62.0;
    const double y = rowY(12);
    double x = 640.0;
    const auto entry = [&](const char* picture, const char* id) {
        drawing.picture(picture, x, y, kSmall, kSmall);
        drawing.words(text(id), x + kToWords, y, kEm, Ink::Pale, Align::Left);
        x += kToWords + drawing.widthOf(text(id), kEm) + kToNext;
    };
    entry("PuzzleClosed", "closed");
    entry("PuzzleReached", "reached");
    entry("PuzzleSolved", "solved");
    entry("PuzzleAtPar", "par");
}

void MapSheet::drawPanel(SheetDrawing& drawing, const Known& known) const
{
    const play::Statistics& statistics = known.statistics;
    drawing.title(text("puzzles"));
    drawing.words(text("solvedOf", { { "solved", std::to_string(statistics.solved) } }),
        SheetDrawing::kPanelMiddle, 152, 38, Ink::Ivory, Align::Middle, 480);
    drawing.words(text("countAtPar", { { "stars", std::to_string(statistics.atPar) } }),
        SheetDrawing::kPanelMiddle, 200, 34, Ink::Gold);
    drawCard(drawing);
    const bool isReached = m_controller.practice().isReached(m_chosen);
    if (isReached) {
        drawing.button("play", text("play"), SheetDrawing::kFirstColumn, 690, 232, 74,
            SheetDrawing::Button::Main);
    }
    if (m_controller.practice().isSolved(m_chosen)) {
        drawing.button("replay", text("replay"), SheetDrawing::kSecondColumn, 690, 232, 74);
    }
    drawing.button("daily", text("daily"), SheetDrawing::kFirstColumn, 768, 232, 66);
    drawing.button("editor", m_controller.context().texts.text("editor.title"),
        SheetDrawing::kSecondColumn, 768, 232, 66);
    if (isReached) {
        drawing.button("copy-code", text("copyCode"), SheetDrawing::kFirstColumn, 842, 232, 66);
    }
    drawing.button("paste-code", text("pasteCode"), SheetDrawing::kSecondColumn, 842, 232, 66);
    drawing.button("statistics", m_controller.context().texts.text("statistics.title"),
        SheetDrawing::kFirstColumn, 916, 232, 66);
    drawing.button("menu", text("menu"), SheetDrawing::kSecondColumn, 916, 232, 66);
}

// Where the player wants to know it, and it is known.
std::string MapSheet::timeOfChosen() const
{
    const GameContext& game = m_controller.context();
    const play::Result* const result = m_controller.book().results().of(play::nameOf(m_chosen));
    return result != nullptr && result->seconds > 0
            && progress::readSettings(game.preferences).timePuzzles
        ? durationWords(game.texts, result->seconds)
        : std::string();
}

void MapSheet::drawCard(SheetDrawing& drawing) const
{
    const Practice& practice = m_controller.practice();
    drawing.card(SheetDrawing::kPanelMiddle, 440, 474, 388);
    drawing.words(text("puzzle", { { "name", play::nameOf(m_chosen) } }),
        SheetDrawing::kPanelMiddle, 292, 42, Ink::Dark, Align::Middle, 420);
    const auto* const entry = practice.entryAt(m_chosen);
    if (entry == nullptr || !practice.isReached(m_chosen)) {
        drawing.words(text("notReached"), SheetDrawing::kPanelMiddle, 440, 32, Ink::Dark);
        return;
    }
    constexpr double kPitch = 34.0; // twelve fit
    drawing.words(text("from"), 98, 344, 29, Ink::Dark, Align::Left);
    if (const std::string time = timeOfChosen(); !time.empty()) {
        drawing.words(time, 504, 344, 27, Ink::Dark, Align::Right, 240);
    }
    drawing.chips(entry->root, 96, 386, kPitch);
    drawing.words(text("to"), 98, 432, 29, Ink::Dark, Align::Left);
    drawing.chips(entry->goal, 96, 474, kPitch);
    const std::int64_t par = entry->par - 1;
    const play::Result* const result = m_controller.book().results().of(play::nameOf(m_chosen));
    const std::string state = result != nullptr
        ? text("parNeeded",
            { { "moves", static_cast<std::int64_t>(result->moves.size()) },
                { "par", std::to_string(par) } })
        : text(practice.isSolved(m_chosen) ? "parSolved" : "parYours",
            { { "par", std::to_string(par) } });
    drawing.words(state, SheetDrawing::kPanelMiddle, 546, 32, Ink::Dark, Align::Middle, 420);
    drawing.words(text("code", { { "code", codeOfChosen() } }), SheetDrawing::kPanelMiddle, 594, 29,
        Ink::Dark, Align::Middle, 420);
}

} // namespace veyrand::controller
