#include "catalogue/Plot.h"

#include "catalogue/Figures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <string_view>
#include <utility>

namespace veyrand::catalogue {

namespace {

constexpr const char* kParColour = "#c9a227"; // the yellow chip's
constexpr const char* kCurveColour = "#2f5d8a";
constexpr double kMostTens = 4.6; // the highest steps, as a power of ten

// Numbers of the picture, in its own units, with one digit behind the point.
std::string text(double value)
{
    std::array<char, 32> buffer {};
    const int length = std::snprintf(buffer.data(), buffer.size(), "%.1f", value);
    return { buffer.data(), static_cast<std::size_t>(length) };
}

using Attributes = std::vector<std::pair<std::string, std::string>>;

std::string element(
    const std::string& name, const Attributes& attributes, std::string_view content = {})
{
    std::string svg = '<' + name;
    for (const auto& [key, value] : attributes) {
        svg.append(" ").append(key).append(R"(=")").append(value).append(R"(")");
    }
    return svg + '>' + std::string(content) + "</" + name + ">\n";
}

// One diagram: a box, a scale from 0 upwards at its left, and what is drawn into it. Columns are
// counted from 0 and stand side by side over the whole width.
class Panel {
public:
    struct Box {
        double left = 0;
        double top = 0;
        double width = 0;
        double height = 0;
    };

    Panel(Box box, double columns, double highest, std::string_view title)
        : m_box(box)
        , m_column(box.width / columns)
        , m_highest(highest)
    {
        label(box.left, box.top - 10, "start", title);
        line(box.left, box.top + box.height, box.left + box.width, box.top + box.height, "#444", 1);
    }

    [[nodiscard]] const std::string& svg() const { return m_svg; }
    [[nodiscard]] double middleOf(std::size_t column) const
    {
        return m_box.left + m_column * (static_cast<double>(column) + 0.5);
    }
    [[nodiscard]] double heightOf(double value) const
    {
        return m_box.top + m_box.height * (1 - value / m_highest);
    }

    void scale(double step)
    {
        const int steps = static_cast<int>(m_highest / step);
        for (int i = 0; i <= steps; ++i) {
            const double value = i * step;
            const double y = heightOf(value);
            line(m_box.left, y, m_box.left + m_box.width, y, "#ddd", 0.5);
            label(m_box.left - 6, y + 4, "end", text(value).substr(0, text(value).find('.')));
        }
    }

    // For values that are powers of ten.
    void scaleOfTens()
    {
        std::string words = "1";
        for (int tens = 0; tens <= static_cast<int>(m_highest); ++tens) {
            const double y = heightOf(tens);
            line(m_box.left, y, m_box.left + m_box.width, y, "#ddd", 0.5);
            label(m_box.left - 6, y + 4, "end", words);
            words += '0';
        }
    }

    void bar(std::size_t column, double value)
    {
        constexpr double kFilled = 0.8;
        m_svg += element("rect",
            { { "x", text(middleOf(column) - m_column * kFilled / 2) },
                { "y", text(heightOf(value)) }, { "width", text(m_column * kFilled) },
                { "height", text(m_box.top + m_box.height - heightOf(value)) },
                { "fill", kParColour } });
    }

    void dot(std::size_t column, double value)
    {
        m_svg += element("circle",
            { { "cx", text(middleOf(column)) }, { "cy", text(heightOf(value)) }, { "r", "2.5" },
                { "fill", kCurveColour } });
    }

    void curve(std::size_t column, double value, std::size_t nextColumn, double nextValue)
    {
        line(middleOf(column), heightOf(value), middleOf(nextColumn), heightOf(nextValue),
            kCurveColour, 1.2);
    }

    void underColumn(std::size_t column, std::string_view words)
    {
        label(middleOf(column), m_box.top + m_box.height + 16, "middle", words);
    }

    void label(double x, double y, const char* anchor, std::string_view words)
    {
        m_svg += element(
            "text", { { "x", text(x) }, { "y", text(y) }, { "text-anchor", anchor } }, words);
    }

private:
    void line(double x1, double y1, double x2, double y2, const char* colour, double width)
    {
        m_svg += element("line",
            { { "x1", text(x1) }, { "y1", text(y1) }, { "x2", text(x2) }, { "y2", text(y2) },
                { "stroke", colour }, { "stroke-width", text(width) } });
    }

    Box m_box;
    double m_column;
    double m_highest;
    std::string m_svg;
};

double tensOf(const Evidence& evidence)
{
    return std::log10(stepsOf(evidence));
}

double bitsOf(const Evidence& evidence)
{
    return evidence.metrics.bits;
}

// One measure of every puzzle, a curve for each level.
template <class Value>
void drawLevels(Panel& panel, const std::vector<Evidence>& classic, const Value& value)
{
    for (std::size_t i = 0; i + 1 < classic.size(); ++i) {
        if (i % progress::kLastStage != 0) {
            panel.curve(i - 1, value(classic[i]), i, value(classic[i + 1]));
        }
        panel.dot(i, value(classic[i + 1]));
        if (i % progress::kLastStage == progress::kLastStage / 2) {
            panel.underColumn(i, "level " + std::to_string(i / progress::kLastStage + 1));
        }
    }
}

std::string classicPanels(const std::vector<Evidence>& classic)
{
    const std::size_t puzzles = classic.size() - 1;
    Panel bits({ 40, 40, 880, 260 }, static_cast<double>(puzzles), 26,
        "Classic, 1-1 to 11-10: par in moves (bars) and bits (line)");
    bits.scale(5);
    for (std::size_t i = 0; i < puzzles; ++i) {
        bits.bar(i, classic[i + 1].puzzle.moves);
    }
    drawLevels(bits, classic, bitsOf);
    Panel steps({ 40, 370, 880, 200 }, static_cast<double>(puzzles), kMostTens,
        "Classic: steps of the human-like solver, each line ten times the one below");
    steps.scaleOfTens();
    drawLevels(steps, classic, tensOf);
    return bits.svg() + steps.svg();
}

double quantile(const std::vector<double>& sorted, double part)
{
    return sorted.at(static_cast<std::size_t>(part * static_cast<double>(sorted.size() - 1)));
}

// The middle eight tenths of one measure of each par, and the median.
template <class Value>
void drawSpread(Panel& panel, const std::vector<Evidence>& endless, const Value& value)
{
    std::array<std::vector<double>, kMostMoves + 1> values;
    for (const Evidence& evidence : endless) {
        values.at(evidence.puzzle.moves).push_back(value(evidence));
    }
    for (std::size_t moves = 1; moves <= kMostMoves; ++moves) {
        std::vector<double>& sorted = values.at(moves);
        const std::size_t column = moves - 1;
        panel.underColumn(column, std::to_string(moves));
        if (!sorted.empty()) {
            std::sort(sorted.begin(), sorted.end());
            panel.curve(column, quantile(sorted, 0.1), column, quantile(sorted, 0.9));
            panel.dot(column, quantile(sorted, 0.5));
        }
    }
}

std::string endlessPanels(const std::vector<Evidence>& endless)
{
    std::array<std::size_t, kMostMoves + 1> ofMoves {};
    for (const Evidence& evidence : endless) {
        ++ofMoves.at(evidence.puzzle.moves);
    }
    Panel counts({ 40, 640, 260, 200 }, kMostMoves, 300, "Endless: puzzles of each par");
    counts.scale(50);
    for (std::size_t moves = 1; moves <= kMostMoves; ++moves) {
        counts.bar(moves - 1, static_cast<double>(ofMoves.at(moves)));
        counts.underColumn(moves - 1, std::to_string(moves));
    }
    Panel bits({ 350, 640, 260, 200 }, kMostMoves, 30, "Endless: bits, middle 80 % and median");
    bits.scale(5);
    drawSpread(bits, endless, bitsOf);
    Panel steps({ 660, 640, 260, 200 }, kMostMoves, kMostTens, "Endless: steps, likewise");
    steps.scaleOfTens();
    drawSpread(steps, endless, tensOf);
    return counts.svg() + bits.svg() + steps.svg();
}

} // namespace

std::string plot(const std::vector<Evidence>& classic, const std::vector<Evidence>& endless)
{
    return R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 960 880" )"
           R"(font-family="sans-serif" font-size="12">)"
        + ('\n' + element("rect", { { "width", "960" }, { "height", "880" }, { "fill", "#fff" } }))
        + classicPanels(classic) + endlessPanels(endless) + "</svg>\n";
}

} // namespace veyrand::catalogue
