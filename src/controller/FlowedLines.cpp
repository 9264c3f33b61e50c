#include "controller/FlowedLines.h"

#include <algorithm>
#include <cmath>

namespace veyrand::controller {

using language::Piece;

LineBreaker::LineBreaker(const platform::TextMetrics& metrics, double chip)
    : m_metrics(metrics)
    , m_chip(chip)
    , m_blank(widthOf("x x") - widthOf("xx"))
{
}

double LineBreaker::widthOf(const std::string& text) const
{
    return m_metrics.preferredFrameSize(text).width;
}

std::vector<LineBreaker::Unit> LineBreaker::unitsOf(const std::vector<Piece>& text)
{
    std::vector<Unit> units;
    bool parted = true;
    const auto add = [&](const Piece& piece) {
        if (parted) {
            units.emplace_back();
        }
        units.back().push_back(piece);
        parted = false;
    };
    for (const Piece& piece : text) {
        if (piece.kind != Piece::Kind::Words) {
            add(piece);
            continue;
        }
        std::size_t at = 0;
        while (at < piece.text.size()) {
            const std::size_t blank = std::min(piece.text.find(' ', at), piece.text.size());
            if (blank > at) {
                add({ .text = piece.text.substr(at, blank - at) });
            }
            parted = parted || blank < piece.text.size();
            at = blank + 1;
        }
    }
    return units;
}

// So many that the gap is wider. Sizes of nonsense (none, less than none, a chip as wide as the
// board's letters are small) are no reason to fill the memory with blanks.
std::size_t LineBreaker::blanksFor(double width)
{
    constexpr double kMost = 200.0;
    return width > 0.0 ? static_cast<std::size_t>(std::floor(std::min(width, kMost))) + 1 : 1;
}

// The gap parts the chips from the words on either side of it.
void LineBreaker::append(FlowedLine& line, const Unit& unit) const
{
    const bool afterWords = !line.text.empty() && line.text.back() != ' ';
    if (afterWords && unit.front().kind == Piece::Kind::Words) {
        line.text += ' ';
    }
    for (const Piece& piece : unit) {
        if (piece.kind == Piece::Kind::Words) {
            line.text += piece.text;
            continue;
        }
        const double chips = m_chip * static_cast<double>(piece.text.size());
        const std::size_t blanks = blanksFor(chips / m_blank);
        const double start = widthOf(line.text);
        line.text.append(blanks, ' ');
        line.chips.push_back({ .letters = piece.text,
            .gesture = piece.gesture,
            .start = start,
            .width = widthOf(line.text) - start });
    }
}

FlowedLine LineBreaker::line(const Unit* first, const Unit* end) const
{
    FlowedLine line;
    for (; first != end; ++first) {
        append(line, *first);
    }
    line.width = widthOf(line.text);
    return line;
}

std::vector<FlowedLine> LineBreaker::filled(const std::vector<Unit>& units, double width) const
{
    std::vector<FlowedLine> lines;
    const Unit* first = units.data();
    const Unit* const end = first + units.size();
    while (first != end) {
        const Unit* last = first + 1;
        FlowedLine fits = line(first, last);
        while (last != end) {
            FlowedLine longer = line(first, last + 1);
            if (longer.width > width) {
                break;
            }
            fits = std::move(longer);
            ++last;
        }
        lines.push_back(std::move(fits));
        first = last;
    }
    return lines;
}

std::vector<FlowedLine> LineBreaker::broken(const std::vector<Piece>& text, double width) const
{
    const std::vector<Unit> units = unitsOf(text);
    std::vector<FlowedLine> best = filled(units, width);
    constexpr int kSteps = 8;
    double tooNarrow = 0.0;
    double enough = width;
    for (int step = 0; step < kSteps; ++step) {
        const double middle = (tooNarrow + enough) / 2.0;
        std::vector<FlowedLine> lines = filled(units, middle);
        const bool fits = std::all_of(lines.begin(), lines.end(),
            [middle](const FlowedLine& line) { return line.width <= middle; });
        if (fits && lines.size() == best.size()) {
            best = std::move(lines);
            enough = middle;
        } else {
            tooNarrow = middle;
        }
    }
    return best;
}

} // namespace veyrand::controller
