#include "controller/EditorSheet.h"
#include "controller/GameController.h"
#include "controller/StatisticsSheet.h"
#include "progress/RuleSets.h"

#include <algorithm>
#include <array>

namespace veyrand::controller {

using present::SheetDrawing;
using Ink = SheetDrawing::Ink;
using Align = SheetDrawing::Align;

namespace {

constexpr double kFirstSeat = 719.0;
constexpr double kSeatsApart = 75.2;
constexpr double kSeat = 66.0;
constexpr double kStartY = 128.0;
constexpr double kGoalY = 270.0;
constexpr double kPaneLeft = 714.0;
constexpr double kHardestDay = 24.0; // bits of a Sunday, at most
constexpr std::array kPalette { 'Y', 'R', 'G', 'B' };

const char* wordFor(char chip)
{
    switch (chip) {
    case 'Y':
        return "yellow";
    case 'R':
        return "red";
    case 'G':
        return "green";
    default:
        return "blue";
    }
}

} // namespace

std::string EditorSheet::colourOf(char chip) const
{
    return m_controller.context().texts.localized("things", wordFor(chip));
}

// As a screen reader says it.
std::string EditorSheet::nameOf(const Seat& seat) const
{
    const std::string& chips = chipsOf(seat.line);
    const std::string line = text(seat.line == Line::Start ? "start" : "goal");
    const std::string place = std::to_string(seat.column + 1);
    return seat.column < chips.size() ? text("saidPlace",
               { { "line", line }, { "place", place }, { "colour", colourOf(chips[seat.column]) } })
                                      : text("saidEmpty", { { "line", line }, { "place", place } });
}

void EditorSheet::draw(SheetDrawing& drawing) const
{
    drawing.words(text("start"), 612, 60, 36, Ink::Gold, Align::Left, 130);
    drawing.words(m_note.empty() ? text("how") : m_note, 770, 60, 28,
        m_note.empty() ? Ink::Pale : Ink::Ivory, Align::Left, 790);
    drawLine(drawing, Line::Start, kStartY);
    drawing.words(text("goal"), 612, 204, 36, Ink::Gold, Align::Left, 130);
    drawLine(drawing, Line::Goal, kGoalY);
    drawVerdict(drawing);
    drawPanel(drawing);
}

void EditorSheet::drawLine(SheetDrawing& drawing, Line line, double y) const
{
    const std::string& chips = chipsOf(line);
    for (std::size_t column = 0; column < play::kMostChips; ++column) {
        const double x = kFirstSeat + kSeatsApart * static_cast<double>(column);
        const std::string key = keyOf({ line, column });
        if (column < chips.size()) {
            drawing.chips(std::string(1, chips[column]), x - kSeat / 2, y, kSeat);
        } else {
            drawing.picture("EmptySeat", x, y, kSeat, kSeat);
        }
        if (drawing.isFocused(key)) {
            drawing.picture("PuzzleChosen", x, y, 92, 92);
        }
        drawing.place(key, nameOf({ line, column }), x, y, kSeatsApart, 84);
    }
}

void EditorSheet::drawVerdict(SheetDrawing& drawing) const
{
    drawing.pane(1097, 613, 950, 566);
    if (!m_verdict) {
        drawing.words(text("build"), 1097, 613, 42, Ink::Ivory, Align::Middle, 780);
        return;
    }
    if (m_verdict->isReachable) {
        drawing.picture("Checkmark", 742, 404, 56, 56);
        drawing.words(text("reachable"), 790, 404, 42, Ink::Ivory, Align::Left, 690);
        drawing.picture("HorizontalLine", 1097, 448, 800, 3);
        drawFigures(drawing);
        drawNeeded(drawing);
    } else {
        drawing.picture("NotReachable", 1097, 512, 112, 112);
        drawing.words(text("unreachable"), 1097, 632, 42, Ink::Ivory, Align::Middle, 780);
    }
    drawing.words(m_controller.context().texts.text("practice.code", { { "code", code() } }),
        kPaneLeft, 822, 30, Ink::Gold, Align::Left, 540);
    drawing.button("copy", text(m_isCopied ? "copied" : "copy"), 1390, 822, 190, 60);
}

void EditorSheet::drawFigures(SheetDrawing& drawing) const
{
    const language::Texts& texts = m_controller.context().texts;
    const auto card = [&](double x, const char* label, const std::string& figure) {
        drawing.card(x, 524, 230, 118);
        drawing.words(text(label), x, 494, 27, Ink::Dark, Align::Middle, 200);
        drawing.words(figure, x, 542, 42, Ink::Dark, Align::Middle, 200);
    };
    card(830, "cardPar", text("moves", { { "number", std::int64_t { m_verdict->par } } }));
    card(1097, "cardWays",
        text("ways", { { "number", static_cast<std::int64_t>(m_verdict->ways) } }));
    card(1364, "cardBits", text("inBits", { { "number", withTenths(texts, m_verdict->bits) } }));
}

void EditorSheet::drawNeeded(SheetDrawing& drawing) const
{
    drawing.words(text("needs"), kPaneLeft, 640, 33, Ink::Ivory, Align::Left, 320);
    for (unsigned move = 1; move <= progress::kMoveCount; ++move) {
        const double x = 1082.0 + 63.0 * (move - 1);
        const bool isNeeded = std::find(m_verdict->needed.begin(), m_verdict->needed.end(), move)
            != m_verdict->needed.end();
        drawing.picture(
            isNeeded ? "MoveTag" : "DayComing", x, 640, isNeeded ? 56 : 62, isNeeded ? 56 : 62);
        drawing.words('#' + std::to_string(move), x, 639, isNeeded ? 27 : 24,
            isNeeded ? Ink::Dark : Ink::Pale);
    }
    constexpr double kLeft = 1054.0;
    constexpr double kWidth = 434.0;
    const double length = kWidth * std::min(m_verdict->bits, kHardestDay) / kHardestDay;
    drawing.words(text("howHard"), kPaneLeft, 716, 33, Ink::Ivory, Align::Left, 320);
    drawing.picture("BarTrack", kLeft + kWidth / 2, 714, kWidth + 6, 22);
    if (length > 0.0) {
        drawing.picture("BarGold", kLeft + length / 2, 714, length, 16);
    }
    for (int tick = 0; tick <= 4; ++tick) {
        drawing.picture("BarPlain", kLeft + kWidth * tick / 4.0, 734, 2, 10);
    }
    drawing.words(text("monday"), kLeft, 760, 25, Ink::Ivory, Align::Left, 200);
    drawing.words(text("sunday"), kLeft + kWidth, 760, 25, Ink::Ivory, Align::Right, 200);
}

void EditorSheet::drawPalette(SheetDrawing& drawing) const
{
    double x = 124.0;
    for (const char chip : kPalette) {
        const std::string key = std::string("chip-") + chip;
        const bool isChosen = chip == m_chip;
        if (isChosen) {
            drawing.picture("BarGold", x, 244, 62, 5);
        }
        drawing.chips(std::string(1, chip), x - (isChosen ? 47 : 41), 186, isChosen ? 94 : 82);
        if (drawing.isFocused(key)) {
            drawing.picture("PuzzleChosen", x, 186, 122, 122);
        }
        drawing.words(text(wordFor(chip)), x, 274, 30, Ink::Ivory);
        drawing.place(key,
            text(isChosen ? "saidChosen" : "saidChip",
                { { "colour", colourOf(chip) }, { "key", text(wordFor(chip)) } }),
            x, 200, 110, 130);
        x += 118.0;
    }
}

void EditorSheet::drawNumber(SheetDrawing& drawing, const char* what, unsigned number, double y,
    const std::string& key) const
{
    drawing.words(text(what), 90, y, 33, Ink::Ivory, Align::Left, 140);
    drawing.words(std::to_string(number), 366, y, 42, Ink::Ivory);
    const auto arrow = [&](const std::string& end, const char* picture, double x,
                           const char* said) {
        drawing.button(key + end, {}, x, y, 66, 58);
        drawing.picture(
            std::string(picture) + (drawing.isFocused(key + end) ? "Gold" : "Dark"), x, y, 28, 28);
        drawing.nameLastPlace(
            text(said, { { "what", text(what) }, { "number", std::to_string(number) } }));
    };
    arrow("-less", "Back", 268, "saidLess");
    arrow("-more", "On", 464, "saidMore");
}

void EditorSheet::drawPanel(SheetDrawing& drawing) const
{
    drawing.title(title());
    drawPalette(drawing);
    drawing.button("take-back", text("takeBack"), SheetDrawing::kPanelMiddle, 342, 474, 70);
    drawing.words(
        text("random"), SheetDrawing::kPanelMiddle, 422, 33, Ink::Gold, Align::Middle, 300);
    drawNumber(drawing, "par", m_wish.par, 486, "par");
    drawNumber(drawing, "bits", m_wish.bits, 560, "bits");
    drawing.button(
        "make", text(m_isMaking ? "stop" : "make"), SheetDrawing::kPanelMiddle, 646, 474, 70);
    drawing.button(
        "play", text("play"), SheetDrawing::kFirstColumn, 778, 232, 74, SheetDrawing::Button::Main);
    drawing.button("save", text("save"), SheetDrawing::kSecondColumn, 778, 232, 74);
    drawing.button("mine", text("mine"), SheetDrawing::kFirstColumn, 866, 232, 66);
    drawing.button("puzzles", text("puzzles"), SheetDrawing::kSecondColumn, 866, 232, 66);
}

} // namespace veyrand::controller
