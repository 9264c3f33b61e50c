#include "catalogue/Plot.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>
#include <utility>

namespace veyrand::catalogue {

namespace {

constexpr const char* kParColour = "#c9a227"; // the yellow chip's
constexpr const char* kBitsColour = "#2f5d8a";

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
                { "fill", kBitsColour } });
    }

    void curve(std::size_t column, double value, std::size_t nextColumn, double nextValue)
    {
        line(middleOf(column), heightOf(value), middleOf(nextColumn), heightOf(nextValue),
            kBitsColour, 1.2);
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

std::string classicPanel(const std::vector<Evidence>& classic)
{
    const std::size_t puzzles = classic.size() - 1;
    Panel panel({ 40, 40, 880, 260 }, static_cast<double>(puzzles), 26,
        "Classic, 1-1 to 11-10: par in moves (bars) and bits (line)");
    panel.scale(5);
    for (std::size_t i = 0; i < puzzles; ++i) {
        panel.bar(i, classic[i + 1].puzzle.moves);
    }
    for (std::size_t i = 0; i < puzzles; ++i) {
        const bool beginsLevel = i % progress::kLastStage == 0;
        if (!beginsLevel) {
            panel.curve(i - 1, classic[i].metrics.bits, i, classic[i + 1].metrics.bits);
        }
        panel.dot(i, classic[i + 1].metrics.bits);
        if (i % progress::kLastStage == progress::kLastStage / 2) {
            panel.underColumn(i, "level " + std::to_string(i / progress::kLastStage + 1));
        }
    }
    return panel.svg();
}

double quantile(const std::vector<double>& sorted, double part)
{
    return sorted.at(static_cast<std::size_t>(part * static_cast<double>(sorted.size() - 1)));
}

std::string endlessPanels(const std::vector<Evidence>& endless)
{
    std::array<std::vector<double>, kMostMoves + 1> bits;
    for (const Evidence& evidence : endless) {
        bits.at(evidence.puzzle.moves).push_back(evidence.metrics.bits);
    }
    Panel counts({ 40, 370, 400, 200 }, kMostMoves, 300, "Endless: puzzles of each par");
    counts.scale(50);
    Panel spread({ 500, 370, 420, 200 }, kMostMoves, 30,
        "Endless: bits by par, the middle eight tenths and the median");
    spread.scale(5);
    for (std::size_t moves = 1; moves <= kMostMoves; ++moves) {
        std::vector<double>& sorted = bits.at(moves);
        const std::size_t column = moves - 1;
        counts.bar(column, static_cast<double>(sorted.size()));
        counts.underColumn(column, std::to_string(moves));
        spread.underColumn(column, std::to_string(moves));
        if (!sorted.empty()) {
            std::sort(sorted.begin(), sorted.end());
            spread.curve(column, quantile(sorted, 0.1), column, quantile(sorted, 0.9));
            spread.dot(column, quantile(sorted, 0.5));
        }
    }
    return counts.svg() + spread.svg();
}

} // namespace

std::string plot(const std::vector<Evidence>& classic, const std::vector<Evidence>& endless)
{
    return R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 960 610" )"
           R"(font-family="sans-serif" font-size="12">)"
        + ('\n' + element("rect", { { "width", "960" }, { "height", "610" }, { "fill", "#fff" } }))
        + classicPanel(classic) + endlessPanels(endless) + "</svg>\n";
}

} // namespace veyrand::catalogue
