#include "controller/PageFlow.h"

#include "board/BoardGeometry.h"
#include "controller/FlowedLines.h"
#include "language/Words.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace veyrand::controller {

namespace {

using language::Piece;
using Gesture = Piece::Gesture;

// As present::InfoLayer sets lines.
constexpr double kCentreX = 0.8;
constexpr double kFirstLineY = 0.75;
constexpr double kLinePitch = 0.075;
constexpr double kHeights = 900.0; // in which sizes are counted

constexpr double kUsualChip = 0.075;
constexpr double kFrameX = 0.07; // of a pane, with some air
constexpr double kFrameY = 0.06;
constexpr double kHalfLine = 0.42; // ems above and below a line's centre that its letters take
constexpr double kSmallest = 0.5;
constexpr double kStep = 0.02;

bool isChip(const PagePicture& picture)
{
    return picture.image.ends_with("Chip");
}

bool isArrow(const PagePicture& picture)
{
    return picture.image == "Arrow" || picture.image == "ShortArrow"
        || picture.image == "PointerArrow";
}

std::string pictureOf(char letter)
{
    return letter == '?' ? "GreyChip" : std::string(board::imageForLetter(letter));
}

// How pictures lie in a block's lines, in chips: taken from English's.
struct PictureMeasures {
    double chip = kUsualChip; // in game heights
    double arrowHeight = 0.8;
    double arrowUp = 0.43;
};

PictureMeasures measuresOf(const PageBlock& block)
{
    PictureMeasures measures;
    const auto chip = std::find_if(block.pictures.begin(), block.pictures.end(), isChip);
    if (chip == block.pictures.end()) {
        return measures;
    }
    measures.chip = chip->width;
    const auto arrow = std::find_if(block.pictures.begin(), block.pictures.end(), isArrow);
    if (arrow != block.pictures.end()) {
        measures.arrowHeight = arrow->height / chip->width;
        measures.arrowUp = (arrow->y - chip->y) / chip->width;
    }
    return measures;
}

// A line as English has put it.
struct Placed {
    const PageLine* line;
    double x;
    double y;
};

bool isBlank(const std::string& text)
{
    return text.find_first_not_of(' ') == std::string::npos;
}

// The words of a paragraph without its chips.
std::vector<std::string> wordsOfMarked(const std::string& text)
{
    std::string plain;
    for (const Piece& piece : language::piecesOf(text)) {
        plain += piece.kind == Piece::Kind::Words ? piece.text
            : piece.kind == Piece::Kind::Value    ? '{' + piece.text + '}'
                                                  : std::string(" ");
    }
    return language::wordsIn(plain);
}

// A text and the English lines whose place it takes.
struct Paragraph {
    std::vector<Piece> text;
    std::vector<Placed> english;
};

// Paragraphs that stand below one another in one room.
struct Column {
    std::vector<Paragraph> paragraphs;
    PageRoom room;
};

class Flow {
public:
    Flow(const Page& english, const language::PageWords& englishWords,
        const language::PageWords& words, const PageValues& values,
        const platform::TextMetrics& metrics)
        : m_english(english)
        , m_englishWords(englishWords)
        , m_words(words)
        , m_values(values)
        , m_metrics(metrics)
        , m_page(english)
        , m_multiplier(static_cast<double>(english.fontMultiplier))
    {
    }

    Page page()
    {
        if (m_words.size() != m_englishWords.size()) {
            throw std::invalid_argument("has another number of texts than English");
        }
        for (std::size_t i = 0; i < m_english.blocks.size(); ++i) {
            layOut(m_english.blocks[i], m_page.blocks[i]);
        }
        if (m_next != m_words.size()) {
            throw std::invalid_argument("English's page has fewer texts than its paragraphs");
        }
        return std::move(m_page);
    }

private:
    struct Set { // lines of one paragraph, at the size that was tried
        std::vector<FlowedLine> lines;
        double em = 0.0; // in game heights
    };

    void layOut(const PageBlock& english, PageBlock& block)
    {
        m_measures = measuresOf(english);
        block.lines.clear();
        std::erase_if(block.pictures,
            [](const PagePicture& picture) { return isChip(picture) || isArrow(picture); });
        for (const Column& column : columnsOf(english)) {
            layOut(column, block);
        }
    }

    std::vector<Column> columnsOf(const PageBlock& block)
    {
        std::vector<Column> columns;
        auto line = block.lines.begin();
        while (line != block.lines.end()) {
            if (isBlank(line->text)) {
                ++line;
                ++m_number;
                continue;
            }
            if (line->room || columns.empty()) {
                columns.push_back({ {}, line->room.value_or(usualRoom()) });
            }
            columns.back().paragraphs.push_back(takeParagraph(line, block.lines.end()));
        }
        return columns;
    }

    // The next text, and the lines from here on whose words are those of English's.
    Paragraph takeParagraph(
        std::vector<PageLine>::const_iterator& line, std::vector<PageLine>::const_iterator end)
    {
        if (m_next == m_words.size()) {
            throw std::invalid_argument("English's page has more texts than its paragraphs");
        }
        Paragraph paragraph { .text = withValues(language::piecesOf(m_words[m_next])),
            .english = {} };
        const std::vector<std::string> wanted = wordsOfMarked(m_englishWords[m_next++]);
        std::vector<std::string> found;
        while (line != end && found.size() < wanted.size()) {
            for (std::string& word : language::wordsIn(line->text)) {
                found.push_back(std::move(word));
            }
            if (!isBlank(line->text)) {
                paragraph.english.push_back(
                    { &*line, kCentreX + line->horizontal, usualY(m_number) + line->vertical });
            }
            ++line;
            ++m_number;
        }
        if (!saysSomething(paragraph.text) || paragraph.english.empty()) {
            throw std::invalid_argument("has an empty text");
        }
        if (found != wanted) {
            throw std::invalid_argument(
                "English's text \"" + m_englishWords[m_next - 1] + "\" is not what its page says");
        }
        return paragraph;
    }

    static bool saysSomething(const std::vector<Piece>& text)
    {
        return std::any_of(text.begin(), text.end(), [](const Piece& piece) {
            return piece.kind == Piece::Kind::Chips || !isBlank(piece.text);
        });
    }

    std::vector<Piece> withValues(std::vector<Piece> text) const
    {
        for (Piece& piece : text) {
            if (piece.kind == Piece::Kind::Value) {
                piece = { .text = m_values(piece.text) };
            }
        }
        return text;
    }

    [[nodiscard]] PageRoom usualRoom() const
    {
        const PagePicture& pane = m_english.background;
        return { .left = pane.x - pane.width / 2.0 + kFrameX,
            .bottom = pane.y - pane.height / 2.0 + kFrameY,
            .right = pane.x + pane.width / 2.0 - kFrameX,
            .top = pane.y + pane.height / 2.0 - kFrameY };
    }

    [[nodiscard]] double usualY(std::size_t number) const
    {
        return kFirstLineY - static_cast<double>(m_english.verticalOffset)
            - kLinePitch * static_cast<double>(number) * m_multiplier;
    }

    void layOut(const Column& column, PageBlock& block)
    {
        std::vector<Set> sets;
        double share = 1.0;
        while (share > kSmallest) {
            sets = setAt(column, share);
            if (fits(column, sets, share)) {
                break;
            }
            share -= kStep;
        }
        place(column, sets, share, block);
    }

    std::vector<Set> setAt(const Column& column, double share) const
    {
        std::vector<Set> sets;
        for (const Paragraph& paragraph : column.paragraphs) {
            const double em
                = paragraph.english.front().line->size * m_multiplier / kHeights * share;
            const LineBreaker breaker(m_metrics, m_measures.chip * share / em);
            sets.push_back(
                { breaker.broken(paragraph.text, (column.room.right - column.room.left) / em),
                    em });
        }
        return sets;
    }

    // The distance from the line before, in game heights at the full size; what is drawn over chips
    // wants more.
    [[nodiscard]] double stepTo(
        const Column& column, const std::vector<Set>& sets, std::size_t set, std::size_t line) const
    {
        if (set == 0 && line == 0) {
            return 0.0;
        }
        const double lead = hasGesture(sets[set].lines[line])
            ? m_measures.chip * (m_measures.arrowUp + m_measures.arrowHeight / 2.0 - 0.45)
            : 0.0;
        if (line > 0) {
            return pitchOf(column) + lead;
        }
        const double gap = column.paragraphs[set - 1].english.back().y
            - column.paragraphs[set].english.front().y;
        return std::max(gap, pitchOf(column) + lead);
    }

    [[nodiscard]] double pitchOf(const Column& column) const
    {
        double pitch = kLinePitch * m_multiplier;
        bool known = false;
        for (const Paragraph& paragraph : column.paragraphs) {
            for (std::size_t i = 1; i < paragraph.english.size(); ++i) {
                const double step = paragraph.english[i - 1].y - paragraph.english[i].y;
                pitch = known ? std::min(pitch, step) : step;
                known = true;
            }
        }
        return pitch;
    }

    static bool hasGesture(const FlowedLine& line)
    {
        return std::any_of(line.chips.begin(), line.chips.end(),
            [](const ChipsInLine& chips) { return chips.gesture != Gesture::None; });
    }

    // How far a line reaches above or below its centre, in game heights.
    [[nodiscard]] double reachUp(const Set& set, const FlowedLine& line, double share) const
    {
        const double chip = m_measures.chip * share;
        return hasGesture(line) ? chip * (m_measures.arrowUp + m_measures.arrowHeight / 2.0)
                                : reachDown(set, line, share);
    }

    [[nodiscard]] double reachDown(const Set& set, const FlowedLine& line, double share) const
    {
        const double letters = set.em * kHalfLine;
        return line.chips.empty() ? letters : std::max(letters, m_measures.chip * share / 2.0);
    }

    // From the first line's centre to the last one's.
    [[nodiscard]] double depthOf(
        const Column& column, const std::vector<Set>& sets, double share) const
    {
        double depth = 0.0;
        for (std::size_t set = 0; set < sets.size(); ++set) {
            for (std::size_t line = 0; line < sets[set].lines.size(); ++line) {
                depth += stepTo(column, sets, set, line) * share;
            }
        }
        return depth;
    }

    [[nodiscard]] bool fits(const Column& column, const std::vector<Set>& sets, double share) const
    {
        const double width = column.room.right - column.room.left;
        for (const Set& set : sets) {
            for (const FlowedLine& line : set.lines) {
                if (line.width * set.em > width) {
                    return false;
                }
            }
        }
        const double height = reachUp(sets.front(), sets.front().lines.front(), share)
            + depthOf(column, sets, share)
            + reachDown(sets.back(), sets.back().lines.back(), share);
        return height <= column.room.top - column.room.bottom;
    }

    void place(const Column& column, const std::vector<Set>& sets, double share, PageBlock& block)
    {
        const double widest = widestOf(sets);
        const double depth = depthOf(column, sets, share);
        const double middle = (column.paragraphs.front().english.front().y
                                  + column.paragraphs.back().english.back().y)
            / 2.0;
        const double top
            = column.room.top - reachUp(sets.front(), sets.front().lines.front(), share);
        const double bottom
            = column.room.bottom + reachDown(sets.back(), sets.back().lines.back(), share) + depth;
        double y = std::clamp(middle + depth / 2.0, std::min(bottom, top), top);
        const double x = centreOf(column, widest);
        for (std::size_t set = 0; set < sets.size(); ++set) {
            for (std::size_t line = 0; line < sets[set].lines.size(); ++line) {
                y -= stepTo(column, sets, set, line) * share;
                add(sets[set].lines[line], *column.paragraphs[set].english.front().line, share, x,
                    y, block);
            }
        }
    }

    static double widestOf(const std::vector<Set>& sets)
    {
        double widest = 0.0;
        for (const Set& set : sets) {
            for (const FlowedLine& line : set.lines) {
                widest = std::max(widest, line.width * set.em);
            }
        }
        return widest;
    }

    // English's own centre, or so far to one side that the column stays in its room. A small step
    // aside on a pane is how English centres a line together with the pictures at its end.
    [[nodiscard]] double centreOf(const Column& column, double widest) const
    {
        constexpr double kSmallStep = 0.15;
        const PageRoom& room = column.room;
        if (room.align == PageRoom::Align::Left) {
            return room.left + widest / 2.0;
        }
        const double english = column.paragraphs.front().english.front().x;
        const bool isCorrected
            = m_english.kind == Page::Kind::Window && std::abs(english - kCentreX) < kSmallStep;
        const double wanted = isCorrected ? kCentreX : english;
        const double least = room.left + widest / 2.0;
        return std::clamp(wanted, least, std::max(least, room.right - widest / 2.0));
    }

    void add(const FlowedLine& line, const PageLine& english, double share, double x, double y,
        PageBlock& block)
    {
        const double size = english.size * share;
        const double em = size * m_multiplier / kHeights;
        block.lines.push_back({ .text = line.text,
            .horizontal = x - kCentreX,
            .vertical = y - usualY(m_placed),
            .size = size,
            .color = english.color });
        ++m_placed;
        for (const ChipsInLine& chips : line.chips) {
            const double centre = x + (chips.start + chips.width / 2.0 - line.width / 2.0) * em;
            addChips(chips, m_measures.chip * share, centre, y, block);
        }
    }

    void addChips(
        const ChipsInLine& chips, double chip, double centre, double y, PageBlock& block) const
    {
        const auto count = static_cast<double>(chips.letters.size());
        double x = centre - chip * (count - 1.0) / 2.0;
        const double first = x;
        for (const char letter : chips.letters) {
            block.pictures.push_back(
                { .image = pictureOf(letter), .x = x, .y = y, .width = chip, .height = chip });
            x += chip;
        }
        const double up = y + m_measures.arrowUp * chip;
        if (chips.gesture == Gesture::Drag) {
            const bool isShort = chips.letters.size() < 3;
            block.pictures.push_back({ .image = isShort ? "ShortArrow" : "Arrow",
                .x = centre + 0.04 * chip,
                .y = up,
                .width = (isShort ? 1.4 : 2.36) * chip,
                .height = m_measures.arrowHeight * chip });
        } else if (chips.gesture == Gesture::Click) {
            // Smaller than English's, which has more room before it, with its tip in the same
            // place.
            const double size = 0.85 * chip;
            block.pictures.push_back({ .image = "PointerArrow",
                .x = first + 0.32 * chip - size / 2.0,
                .y = y - 0.08 * chip + size / 2.0,
                .width = size,
                .height = size });
        }
    }

    const Page& m_english;
    const language::PageWords& m_englishWords;
    const language::PageWords& m_words;
    const PageValues& m_values;
    const platform::TextMetrics& m_metrics;
    Page m_page;
    double m_multiplier;
    PictureMeasures m_measures;
    std::size_t m_next = 0; // the paragraph
    std::size_t m_number = 0; // of the English line
    std::size_t m_placed = 0; // lines of the new page
};

} // namespace

Page flowed(const Page& english, const language::PageWords& englishWords,
    const language::PageWords& words, const PageValues& values,
    const platform::TextMetrics& metrics)
{
    return Flow(english, englishWords, words, values, metrics).page();
}

} // namespace veyrand::controller
