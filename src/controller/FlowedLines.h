#pragma once

#include "language/Marks.h"
#include "platform/TextMetrics.h"

#include <string>
#include <vector>

namespace veyrand::controller {

// Chips in a line, and how far their gap lies from its beginning.
struct ChipsInLine {
    std::string letters;
    language::Piece::Gesture gesture = language::Piece::Gesture::None;
    double start = 0.0; // ems
    double width = 0.0; // of the gap, ems
};

// A line as it is shown: chips lie in gaps of blanks.
struct FlowedLine {
    std::string text;
    std::vector<ChipsInLine> chips;
    double width = 0.0; // ems
};

// Breaks one text into lines.
class LineBreaker {
public:
    // The size of a chip in ems of the text.
    LineBreaker(const platform::TextMetrics& metrics, double chip);

    // As few lines as fit the width (ems), of nearly equal length. A word or a mark that is wider
    // stands alone and is wider still.
    [[nodiscard]] std::vector<FlowedLine> broken(
        const std::vector<language::Piece>& text, double width) const;

private:
    using Unit = std::vector<language::Piece>; // what no blank parts

    [[nodiscard]] static std::vector<Unit> unitsOf(const std::vector<language::Piece>& text);
    [[nodiscard]] std::vector<FlowedLine> filled(
        const std::vector<Unit>& units, double width) const;
    [[nodiscard]] FlowedLine line(const Unit* first, const Unit* end) const;
    [[nodiscard]] static std::size_t blanksFor(double width);
    void append(FlowedLine& line, const Unit& unit) const;
    [[nodiscard]] double widthOf(const std::string& text) const;

    const platform::TextMetrics& m_metrics;
    double m_chip;
    double m_blank;
};

} // namespace veyrand::controller
