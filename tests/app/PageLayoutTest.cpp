#include "desktop/qt/GameFont.h"
#include "language/Choice.h"
#include "support/PlayedGame.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <regex>

namespace veyrand::app {

namespace {

// Lengths in game heights.
constexpr double kHair = 0.004;
constexpr double kDiscOfChip = 0.915; // of its square
constexpr double kBaselineBelowCentre = 0.324; // ems

struct Box {
    double left = 0.0;
    double right = 0.0;
    double bottom = 0.0;
    double top = 0.0;

    [[nodiscard]] double width() const { return right - left; }
    [[nodiscard]] double centre() const { return (left + right) / 2.0; }
    // How deep the two lie in one another; negative when apart.
    [[nodiscard]] double overlapWith(const Box& other) const
    {
        return std::min(std::min(right, other.right) - std::max(left, other.left),
            std::min(top, other.top) - std::max(bottom, other.bottom));
    }
};

struct Picture {
    std::string image;
    Box box;
    double y = 0.0;
};

struct Line {
    std::string text;
    double y = 0.0;
    Box box;
    std::vector<Box> words;
    std::vector<Box> gaps; // three blanks and more
};

bool isChip(const Picture& picture)
{
    return picture.image.find("Chip") != std::string::npos;
}

} // namespace

// Measures the pages as they stand on the board against the font's own widths.
class PageLayout : public test::PlayedGame {
protected:
    void open(const std::string& page)
    {
        // Late enough for every move to be in force.
        play({ .root = "YR", .goal = "YRG", .par = 2, .level = 6, .stage = 2 });
        ASSERT_TRUE(game().controller().pages().show(page));
        m_lines.clear();
        m_pictures.clear();
        const auto* const window = game().controller().messages().messageWindow();
        if (window == nullptr) {
            return;
        }
        for (const board::GameObjectPtr& record : window->text()) {
            m_lines.push_back(measured(*record));
        }
        for (const board::GameObjectPtr& record : window->images()) {
            m_pictures.push_back(measuredPicture(*record));
        }
    }

    [[nodiscard]] const std::vector<Line>& textLines() const { return m_lines; }
    [[nodiscard]] const std::vector<Picture>& pictures() const { return m_pictures; }

    // The chips that stand in a stretch of a line.
    [[nodiscard]] Box chipsIn(const Line& line, double left, double right) const
    {
        Box chips;
        for (const Picture& picture : m_pictures) {
            if (isChip(picture) && std::abs(picture.y - line.y) < kHair
                && picture.box.centre() > left && picture.box.centre() < right) {
                chips.left = chips.width() == 0.0 ? picture.box.left
                                                  : std::min(chips.left, picture.box.left);
                chips.right = std::max(chips.right, picture.box.right);
            }
        }
        return chips;
    }

    // Calls the function for every page in every language, with what was measured on it.
    void forEveryPage(const std::function<void()>& function)
    {
        for (const MeasuredPage& page : everyPage()) {
            SCOPED_TRACE(page.language + ' ' + page.name);
            m_lines = page.lines;
            m_pictures = page.pictures;
            function();
        }
    }

    void speak(const std::string& language)
    {
        game().preferences().setRecord(progress::kSettingsKey, { { "Language", language } });
        game().game().settingsChanged();
        ASSERT_EQ(game().game().texts().code(), language);
    }

    [[nodiscard]] std::vector<std::string> allPages()
    {
        std::vector<std::string> names;
        for (const auto& [name, page] : game().game().script().pages) {
            names.push_back(name);
        }
        return names;
    }

private:
    struct MeasuredPage {
        std::string language;
        std::string name;
        std::vector<Line> lines;
        std::vector<Picture> pictures;
    };

    // Measured once for all tests: drawing several hundred pages is most of what they take.
    const std::vector<MeasuredPage>& everyPage()
    {
        static std::vector<MeasuredPage> pages;
        if (!pages.empty()) {
            return pages;
        }
        for (const std::string& language : language::knownCodes()) {
            speak(language);
            EXPECT_EQ(game().game().texts().faults(), "");
            for (const std::string& name : allPages()) {
                open(name);
                pages.push_back({ language, name, m_lines, m_pictures });
            }
            EXPECT_EQ(game().game().texts().faults(), "");
        }
        return pages;
    }

    Line measured(const board::GameObject& record)
    {
        const auto* const layer = game().game().layers().gameLayerForGameObject(record);
        const present::TextLayer& text = *present::BoardLayers::textOn(*layer);
        Line line { .text = text.string(), .y = record.y(), .box = {}, .words = {}, .gaps = {} };
        const double em = text.fontSize() / 900.0;
        const double width = widthOf(line.text) * em;
        const double left = record.x() - width / 2.0;
        line.box = boxOf(left, width, line.text, record.y(), em);
        static const std::regex kWordOrGap("[^ ]+| {3,}");
        for (std::sregex_iterator match(line.text.begin(), line.text.end(), kWordOrGap), end;
             match != end; ++match) {
            const double start = left
                + widthOf(line.text.substr(0, static_cast<std::size_t>(match->position()))) * em;
            const Box box = boxOf(start, widthOf(match->str()) * em, match->str(), record.y(), em);
            (match->str().front() == ' ' ? line.gaps : line.words).push_back(box);
        }
        return line;
    }

    Box boxOf(double left, double width, const std::string& text, double y, double em)
    {
        const QRectF ink
            = QFontMetricsF(m_font.font()).tightBoundingRect(QString::fromStdString(text));
        const double baseline = y - kBaselineBelowCentre * em;
        return { .left = left,
            .right = left + width,
            .bottom = baseline - ink.bottom() / desktop::qt::GameFont::kMeasuringSize * em,
            .top = baseline - ink.top() / desktop::qt::GameFont::kMeasuringSize * em };
    }

    static Picture measuredPicture(const board::GameObject& record)
    {
        const bool chip = record.imageName().find("Chip") != std::string::npos;
        const double share = (chip ? kDiscOfChip : 1.0) / 2.0;
        return { .image = record.imageName(),
            .box = { .left = record.x() - record.width() * share,
                .right = record.x() + record.width() * share,
                .bottom = record.y() - record.height() * share,
                .top = record.y() + record.height() * share },
            .y = record.y() };
    }

    double widthOf(const std::string& text) { return m_font.preferredFrameSize(text).width; }

    desktop::qt::GameFont m_font;
    std::vector<Line> m_lines;
    std::vector<Picture> m_pictures;
};

TEST_F(PageLayout, FillsEveryGapOfATextWithItsPictures)
{
    forEveryPage([this] {
        for (const Line& line : textLines()) {
            for (const Box& gap : line.gaps) {
                SCOPED_TRACE(line.text);
                const Box chips = chipsIn(line, gap.left, gap.right);
                EXPECT_GT(chips.width(), gap.width() / 2.0);
                EXPECT_NEAR(chips.centre(), gap.centre(), kHair);
            }
        }
    });
}

TEST_F(PageLayout, KeepsPicturesOffTheWords)
{
    forEveryPage([this] {
        for (const Picture& picture : pictures()) {
            if (picture.box.width() > 0.6) {
                continue; // a background, or a rule between two blocks
            }
            for (const Line& line : textLines()) {
                for (const Box& word : line.words) {
                    EXPECT_LT(picture.box.overlapWith(word), kHair)
                        << picture.image << " lies on a word of \"" << line.text << '"';
                }
            }
        }
    });
}

TEST_F(PageLayout, SetsPicturesThatEndALineOneBlankFromItsLastWord)
{
    for (const std::string& page : allPages()) {
        SCOPED_TRACE(page);
        open(page);
        for (const Line& line : textLines()) {
            SCOPED_TRACE(line.text);
            const Box chips = chipsIn(line, line.box.right, 1.6);
            if (chips.width() > 0.0) {
                EXPECT_NEAR(chips.left - line.box.right, 0.02, 0.01);
                // Words and pictures are centred together.
                EXPECT_NEAR((line.box.left + chips.right) / 2.0, 0.8, 0.01);
            }
        }
    }
}

TEST_F(PageLayout, KeepsEveryLineInsideThePane)
{
    forEveryPage([this] {
        constexpr double kFrame = 0.04;
        if (pictures().empty() || pictures().front().image != "MessageBackground") {
            return;
        }
        const Box& pane = pictures().front().box;
        for (const Line& line : textLines()) {
            EXPECT_GT(line.box.left, pane.left + kFrame) << line.text;
            EXPECT_LT(line.box.right, pane.right - kFrame) << line.text;
            EXPECT_GT(line.box.bottom, pane.bottom + kFrame) << line.text;
            EXPECT_LT(line.box.top, pane.top - kFrame) << line.text;
        }
    });
}

TEST_F(PageLayout, KeepsLinesApartAndOnTheBoard)
{
    forEveryPage([this] {
        constexpr double kBoardLeft = 0.58;
        for (const Line& line : textLines()) {
            SCOPED_TRACE(line.text);
            if (pictures().empty() || pictures().front().image != "MessageBackground") {
                EXPECT_GT(line.box.left, kBoardLeft);
            }
            EXPECT_LT(line.box.right, 1.6);
            EXPECT_GT(line.box.bottom, 0.0);
            for (const Line& other : textLines()) {
                EXPECT_TRUE(&line == &other || line.text == other.text
                    || line.box.overlapWith(other.box) < kHair)
                    << other.text;
            }
        }
    });
}

} // namespace veyrand::app
