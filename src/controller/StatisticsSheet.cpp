#include "controller/StatisticsSheet.h"

#include "controller/GameController.h"
#include "controller/MenuTable.h"
#include "progress/Settings.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace veyrand::controller {

using play::Statistics;
using present::SheetDrawing;
using Ink = SheetDrawing::Ink;
using Align = SheetDrawing::Align;

namespace {

constexpr double kLeft = 672.0;
constexpr double kFirstBar = 750.0;
constexpr double kBarsApart = 74.5;
constexpr double kBarWidth = 48.0;
constexpr double kChartFoot = 616.0;
constexpr double kPuzzle = 25.0; // its share of a bar

double barX(int level)
{
    return kFirstBar + kBarsApart * (level - 1);
}

} // namespace

std::string withTenths(const language::Texts& texts, double number)
{
    const auto tenths = std::llround(number * 10.0);
    return texts.text("statistics.tenths",
        { { "whole", std::to_string(tenths / 10) }, { "tenth", std::to_string(tenths % 10) } });
}

std::string durationWords(const language::Texts& texts, std::uint64_t seconds)
{
    constexpr std::uint64_t kMinute = 60;
    constexpr std::uint64_t kHour = 60 * kMinute;
    const std::string rest = std::to_string(seconds % kMinute);
    const std::string minutes = std::to_string(seconds % kHour / kMinute);
    return seconds >= kHour ? texts.text("statistics.hours",
               { { "hours", std::to_string(seconds / kHour) }, { "minutes", minutes } })
        : seconds >= kMinute
        ? texts.text("statistics.minutes", { { "minutes", minutes }, { "seconds", rest } })
        : texts.text("statistics.seconds", { { "seconds", rest } });
}

std::string StatisticsSheet::text(const char* id, language::Arguments arguments) const
{
    return m_controller.context().texts.text(std::string("statistics.") + id, arguments);
}

std::string StatisticsSheet::title() const
{
    return text("title");
}

std::string StatisticsSheet::told() const
{
    const Statistics figures = m_controller.book().statistics();
    const auto figure = [this](const char* id, unsigned number) {
        return text(id, { { "number", std::int64_t { number } } });
    };
    return figure("saidSolved", figures.solved) + ' ' + figure("saidAtPar", figures.atPar) + ' '
        + figure("saidOver", figures.over) + ' ' + figure("saidHints", figures.hints) + ' '
        + figure("saidDaily", figures.daily)
        + (time(figures).empty() ? "" : ' ' + text("saidTime", { { "time", time(figures) } }));
}

void StatisticsSheet::press(const std::string& key)
{
    if (key == "puzzles") {
        m_controller.sheets().openMap();
    } else if (key == "export") {
        m_controller.transfer().exportGame();
    } else if (key == "menu") {
        m_controller.sheets().close();
    }
}

int StatisticsSheet::levelsDone() const
{
    const Practice& practice = m_controller.practice();
    const progress::Place last { progress::kLastLevel, progress::kLastStage };
    return practice.isSolved(last) ? progress::kLastLevel : practice.standing().level - 1;
}

std::string StatisticsSheet::rankAfter(int levels) const
{
    const auto& context = m_controller.context();
    const auto& ranks = context.script.ranks;
    const auto index = static_cast<std::size_t>(levels - 1);
    return levels >= 1 && index < ranks.size() ? context.texts.localized("ranks", ranks[index])
                                               : std::string();
}

std::string StatisticsSheet::average(const Statistics& figures) const
{
    const unsigned counted = std::accumulate(figures.byOver.begin(), figures.byOver.end(), 0U);
    const double average
        = counted == 0 ? 0.0 : static_cast<double>(figures.over) / static_cast<double>(counted);
    return withTenths(m_controller.context().texts, average);
}

std::string StatisticsSheet::time(const Statistics& figures) const
{
    const auto& context = m_controller.context();
    return progress::readSettings(context.preferences).timePuzzles
        ? durationWords(context.texts, figures.seconds)
        : std::string();
}

void StatisticsSheet::draw(SheetDrawing& drawing) const
{
    const Statistics figures = m_controller.book().statistics();
    drawing.pane(1092, 500, 968, 916);
    drawFigures(drawing, figures);
    drawLegend(drawing);
    drawLevels(drawing, figures);
    drawOver(drawing, figures);
    drawPanel(drawing);
}

void StatisticsSheet::drawFigures(SheetDrawing& drawing, const Statistics& figures) const
{
    struct Figure {
        const char* id;
        unsigned number;
    };
    const std::array<Figure, 5> all { { { "solved", figures.solved }, { "atPar", figures.atPar },
        { "over", figures.over }, { "hints", figures.hints }, { "daily", figures.daily } } };
    double x = 734.0;
    for (const Figure& figure : all) {
        drawing.card(x, 160, 154, 126);
        drawing.words(std::to_string(figure.number), x, 144, 54, Ink::Dark, Align::Middle, 130);
        drawing.words(text(figure.id), x, 194, 27, Ink::Dark, Align::Middle, 134);
        x += 179.0;
    }
}

void StatisticsSheet::drawLegend(SheetDrawing& drawing) const
{
    drawing.words(text("byLevel"), kLeft, 282, 35, Ink::Gold, Align::Left, 260);
    constexpr double kEm = 28.0;
    double end = 1519.0; // with the last bar
    const auto entry = [&](const char* picture, const char* id) {
        drawing.words(text(id), end, 282, kEm, Ink::Ivory, Align::Right);
        end -= drawing.widthOf(text(id), kEm) + 24.0;
        drawing.picture(picture, end, 283, 24, 24);
        end -= 48.0;
    };
    entry("BarOpen", "open");
    entry("BarPale", "moreMoves");
    entry("BarGold", "atPar");
}

void StatisticsSheet::drawLevels(SheetDrawing& drawing, const Statistics& figures) const
{
    constexpr double kHeight = kPuzzle * progress::kLastStage;
    for (const int puzzles : { 0, 5, 10 }) {
        const double y = kChartFoot - kPuzzle * puzzles;
        drawing.words(std::to_string(puzzles), kLeft + 18, y, 25, Ink::Ivory, Align::Right);
        drawing.picture("BarPlain", 1116, y, 832, 1.6, 0.4);
    }
    const int done = levelsDone();
    for (int level = 1; level <= progress::kLastLevel; ++level) {
        const double x = barX(level);
        const auto& counts = figures.levels.at(static_cast<std::size_t>(level - 1));
        const double gold = kPuzzle * counts.atPar;
        drawing.picture("BarOpen", x, kChartFoot - kHeight / 2, kBarWidth, kHeight);
        if (counts.atPar > 0) {
            drawing.picture("BarGold", x, kChartFoot - gold / 2, kBarWidth, gold);
        }
        for (unsigned puzzle = counts.atPar; puzzle < counts.solved; ++puzzle) {
            drawing.picture(
                "BarPale", x, kChartFoot - kPuzzle * (puzzle + 0.5), kBarWidth, kPuzzle);
        }
        drawing.words(std::to_string(level), x, 644, 27, Ink::Ivory);
        drawing.picture(
            "Medal-" + std::to_string(level), x, 690, 70.9, 48, level <= done ? 1 : 0.25);
    }
}

void StatisticsSheet::drawOver(SheetDrawing& drawing, const Statistics& figures) const
{
    constexpr double kLongest = 320.0;
    constexpr double kFirst = 1000.0;
    drawing.words(text("overPar"), kLeft, 776, 33, Ink::Gold, Align::Left, 250);
    drawing.words(text("average", { { "number", average(figures) } }), kLeft, 832, 28, Ink::Ivory,
        Align::Left, 250);
    if (const std::string taken = time(figures); !taken.empty()) {
        drawing.words(
            text("time", { { "time", taken } }), kLeft, 878, 28, Ink::Ivory, Align::Left, 250);
    }
    const unsigned most
        = std::max(1U, *std::max_element(figures.byOver.begin(), figures.byOver.end()));
    for (std::size_t over = 0; over < figures.byOver.size(); ++over) {
        const double y = 764.0 + 33.0 * static_cast<double>(over);
        const unsigned count = figures.byOver.at(over);
        const double length = kLongest * count / most;
        const bool isLast = over + 1 == figures.byOver.size();
        drawing.words(std::to_string(over) + (isLast ? "+" : ""), kFirst - 18, y, 25, Ink::Ivory,
            Align::Right);
        if (count > 0) {
            drawing.picture(over == 0 ? "BarGold" : "BarPlain", kFirst + length / 2, y, length, 21);
        }
        drawing.words(std::to_string(count), kFirst + length + 14, y, 25, Ink::Ivory, Align::Left);
    }
}

void StatisticsSheet::drawPanel(SheetDrawing& drawing) const
{
    drawing.title(title());
    const int done = levelsDone();
    drawing.picture("Medal-" + std::to_string(std::max(done, 1)), SheetDrawing::kPanelMiddle, 380,
        443, 300, done > 0 ? 1.0 : 0.25);
    drawing.words(
        rankAfter(done), SheetDrawing::kPanelMiddle, 572, 50, Ink::Ivory, Align::Middle, 470);
    if (done < progress::kLastLevel) {
        const progress::Place end { done + 1, progress::kLastStage };
        drawing.words(
            text("rankNext", { { "rank", rankAfter(done + 1) }, { "place", play::nameOf(end) } }),
            SheetDrawing::kPanelMiddle, done > 0 ? 626 : 572, 31, Ink::Gold, Align::Middle, 470);
    }
    if (m_controller.transfer().canExport()) {
        const char* const item = menuItem(MenuItemId::Export).text;
        drawing.button("export",
            plainMenuText(m_controller.context().texts.localized("GameMenu", item)),
            SheetDrawing::kPanelMiddle, 806, 474, 70);
    }
    drawing.button("puzzles", text("puzzles"), SheetDrawing::kFirstColumn, 892, 232, 66);
    drawing.button("menu", text("menu"), SheetDrawing::kSecondColumn, 892, 232, 66);
}

} // namespace veyrand::controller
