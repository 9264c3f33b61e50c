#include "controller/PageFlow.h"

#include "controller/FlowedLines.h"
#include "controller/MessageWords.h"
#include "headless/EvenLetters.h"
#include "present/InfoLayer.h"
#include "support/FolderResources.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace veyrand::controller {

namespace {

constexpr double kPaneWidth = 1.066667;
constexpr double kPaneHeight = 0.66667;
constexpr double kAir = 0.05; // a pane's frame is wider

// As one line of a page is seen, in game heights.
struct SeenLine {
    std::string text;
    double x = 0.0;
    double y = 0.0;
    double width = 0.0;
    double em = 0.0;
};

// One line in the middle of a pane, and what becomes of it in other words.
class FlowedPage : public testing::Test {
protected:
    static Page page(double multiplier)
    {
        Page page;
        page.fontMultiplier = static_cast<float>(multiplier);
        page.background = { .image = "MessageBackground",
            .x = 0.8,
            .y = 0.5,
            .width = kPaneWidth,
            .height = kPaneHeight };
        page.blocks.push_back(
            { .lines = { { .text = kEnglish, .vertical = -0.25 } }, .pictures = {} });
        return page;
    }
    // On a board, where lines stand below one another by themselves.
    std::vector<SeenLine> shown(const Page& page)
    {
        m_window.reset();
        m_window.emplace(
            m_board, present::InfoLayer::Style { .verticalOffset = page.verticalOffset });
        m_window->setFontMultiplier(page.fontMultiplier);
        std::vector<SeenLine> lines;
        for (const PageLine& line : page.blocks.front().lines) {
            m_window->addText(line.text,
                { .horizontal = line.horizontal, .vertical = line.vertical }, line.color,
                line.size);
            const board::GameObject& record = *m_window->text().back();
            const double em = record.text()->fontSize / 900.0;
            const double width = m_letters.preferredFrameSize(line.text).width * em;
            lines.push_back({ line.text, record.x(), record.y(), width, em });
        }
        return lines;
    }
    std::vector<SeenLine> inOtherWords(const std::string& words, double multiplier = 1.0)
    {
        return shown(flowed(
            page(multiplier), { kEnglish }, { words },
            [](const std::string& /*mark*/) { return ""; }, m_letters));
    }
    static std::string manyWords(int count)
    {
        std::string words = "word";
        for (int number = 1; number < count; ++number) {
            words += " word";
        }
        return words;
    }

    static inline const std::string kEnglish = "English";

private:
    headless::EvenLetters m_letters;
    board::GameData m_board { { .width = 1440, .height = 900 } };
    std::optional<present::InfoLayer> m_window;
};

// Words with gaps for pictures, as a page shows them.
class ReadPage : public testing::Test {
protected:
    std::string read(const std::string& text, const std::vector<std::size_t>& gaps)
    {
        constexpr double kSize = 60.0;
        constexpr double kLetter = kSize / 900.0 / 2.0;
        board::GameData board { { .width = 1440, .height = 900 } };
        present::InfoLayer window(board, {});
        window.addText(text);
        const double y = window.text().front()->y();
        const double left = 0.8 - kLetter * static_cast<double>(text.size()) / 2.0;
        for (const std::size_t gap : gaps) {
            const double x = left + kLetter * (static_cast<double>(gap) + 2.5);
            window.fadeInImage("YellowChip", x, y, 0.05, 0.05, 1.0);
        }
        return wordsOf(window, m_letters, SpokenNames(m_texts)).title;
    }

private:
    headless::EvenLetters m_letters;
    language::Texts m_texts { test::gameResources() };
};

} // namespace

TEST_F(FlowedPage, WhatFitsIsAsLargeAsInEnglish)
{
    for (const double multiplier : { 0.5, 0.9, 1.0 }) {
        SCOPED_TRACE(multiplier);
        for (const int words : { 1, 3, 9 }) {
            for (const SeenLine& line : inOtherWords(manyWords(words), multiplier)) {
                EXPECT_NEAR(line.em, 60.0 * multiplier / 900.0, 1e-6);
            }
        }
    }
}

TEST_F(FlowedPage, LinesTakeTheWidthOfThePaneAndNoMore)
{
    for (const double multiplier : { 0.5, 0.9, 1.0 }) {
        SCOPED_TRACE(multiplier);
        const auto lines = inOtherWords(manyWords(12), multiplier);
        double all = 0.0;
        for (const SeenLine& line : lines) {
            EXPECT_GE(line.x - line.width / 2.0, 0.8 - kPaneWidth / 2.0 + kAir);
            EXPECT_LE(line.x + line.width / 2.0, 0.8 + kPaneWidth / 2.0 - kAir);
            all += line.width;
        }
        // As few as can be: what is left free is less than a line and a word at each end.
        const double room = kPaneWidth - 3.0 * kAir;
        const double word = 5.0 * lines.front().em / 2.0;
        EXPECT_LT(static_cast<double>(lines.size() - 1) * (room - word), all);
    }
}

TEST_F(FlowedPage, MoreLinesThanInEnglishKeepTheMiddleWhereItIs)
{
    const double middle = shown(page(1.0)).front().y;
    ASSERT_NEAR(middle, 0.5, 1e-6);
    for (const int words : { 1, 6, 12, 18 }) {
        SCOPED_TRACE(words);
        const auto lines = inOtherWords(manyWords(words));
        EXPECT_NEAR((lines.front().y + lines.back().y) / 2.0, middle, 1e-6);
        EXPECT_TRUE(std::is_sorted(lines.begin(), lines.end(),
            [](const SeenLine& one, const SeenLine& other) { return one.y > other.y; }));
    }
}

TEST_F(FlowedPage, WhatDoesNotFitIsSmallerAndStaysOnThePane)
{
    const auto lines = inOtherWords(manyWords(60));
    EXPECT_LT(lines.front().em, 60.0 / 900.0);
    EXPECT_LT(lines.front().y + lines.front().em / 2.0, 0.5 + kPaneHeight / 2.0 - kAir);
    EXPECT_GT(lines.back().y - lines.back().em / 2.0, 0.5 - kPaneHeight / 2.0 + kAir);
}

TEST(FlowedLines, AGapIsWiderThanTheChipsInItWhateverTheirSize)
{
    const headless::EvenLetters letters;
    for (const double chip : { 0.25, 0.5, 0.75, 1.0, 1.5, 2.0 }) { // a blank is half an em
        const LineBreaker breaker(letters, chip);
        for (const char* const text : { "{Y}", "{RG}", "{YRGB} and {B}" }) {
            const auto lines = breaker.broken(language::piecesOf(text), 100.0);
            ASSERT_EQ(lines.size(), 1U);
            for (const ChipsInLine& chips : lines.front().chips) {
                EXPECT_GT(chips.width, chip * static_cast<double>(chips.letters.size()))
                    << text << " with chips of " << chip;
            }
        }
    }
}

TEST_F(ReadPage, NamesEveryPictureWhereItStandsBetweenTheWords)
{
    EXPECT_EQ(read("Click on     twice", { 8 }), "Click on yellow twice");
    EXPECT_EQ(read("Click on     and then on     twice", { 8, 24 }),
        "Click on yellow and then on yellow twice");
    EXPECT_EQ(read("From     by     and     home", { 4, 11, 19 }),
        "From yellow by yellow and yellow home");
}

} // namespace veyrand::controller
