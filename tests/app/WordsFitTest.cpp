#include "desktop/qt/GameFont.h"
#include "language/Choice.h"
#include "language/Texts.h"
#include "present/ExtraPictures.h"
#include "support/FolderResources.h"
#include "support/QtEnvironment.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <sstream>

namespace veyrand::app {

namespace {

using present::Extra;
using present::ExtraRect;

constexpr double kHairOfBoard = 0.0005; // game heights
constexpr std::array kSizes { 1.0, 1.5, 2.0 };

// Where tips come: at both ends of the board's rows, at the panel and at a delete button.
const std::array kThings { ExtraRect { .x = 0.72, .y = 0.86, .width = 0.066, .height = 0.066 },
    ExtraRect { .x = 1.53, .y = 0.06, .width = 0.066, .height = 0.066 },
    ExtraRect { .x = 0.3, .y = 0.5, .width = 0.2, .height = 0.06 },
    ExtraRect { .x = 0.65, .y = 0.5, .width = 0.05, .height = 0.05 } };

bool isWithin(const ExtraRect& inner, const ExtraRect& outer)
{
    return std::abs(inner.x - outer.x) + inner.width / 2.0 <= outer.width / 2.0 + kHairOfBoard
        && std::abs(inner.y - outer.y) + inner.height / 2.0 <= outer.height / 2.0 + kHairOfBoard;
}

// The words as they are set, with one blank where a line ends.
std::string wordsOn(const Extra& extra)
{
    std::string words;
    for (const present::ExtraPiece& piece : extra.pieces) {
        if (const auto* const text = std::get_if<present::TextContent>(&piece.content)) {
            words += (words.empty() ? "" : " ") + text->text;
        }
    }
    return words;
}

std::string withSingleBlanks(const std::string& text)
{
    std::istringstream stream(text);
    std::string words;
    for (std::string word; stream >> word;) {
        words += (words.empty() ? "" : " ") + word;
    }
    return words;
}

// Nothing is cut off, and every line lies on its plate and on the board.
void expectFits(const Extra& extra, const std::string& text)
{
    constexpr ExtraRect kBoard { .x = 0.8, .y = 0.5, .width = 1.6, .height = 1.0 };
    EXPECT_EQ(wordsOn(extra), withSingleBlanks(text));
    EXPECT_TRUE(isWithin(extra.rect, kBoard)) << text;
    for (const present::ExtraPiece& piece : extra.pieces) {
        if (std::holds_alternative<present::TextContent>(piece.content)) {
            ExtraRect line = piece.rect;
            line.height = 0.0; // with what reaches up and down, it is looked at by eye
            EXPECT_TRUE(isWithin(line, extra.rect)) << text;
        }
    }
}

class FittingWords : public testing::TestWithParam<std::string> {
protected:
    FittingWords() { m_texts.choose(GetParam()); }

    [[nodiscard]] std::vector<std::string> textsOf(const std::vector<std::string>& sections) const
    {
        std::vector<std::string> found;
        m_texts.forEachId([&](const std::string& id) {
            for (const std::string& section : sections) {
                if (id.starts_with(section + '.')) {
                    found.push_back(filled(id));
                }
            }
        });
        return found;
    }
    [[nodiscard]] std::string filled(const std::string& id) const
    {
        return m_texts.text(id,
            { { "lines", 12 }, { "moves", 12 }, { "made", 12 }, { "points", 16500 }, { "par", 12 },
                { "place", "11-10" }, { "stage", 11 }, { "puzzle", 10 }, { "all", 10 },
                { "move", 7 }, { "code", "MMMMMMMMMMMMMMMM" } });
    }
    [[nodiscard]] const platform::TextMetrics& metrics() const { return m_font; }

private:
    desktop::qt::GameFont m_font;
    language::Texts m_texts { test::gameResources() };
};

} // namespace

TEST_P(FittingWords, OfTipsAreAllOnTheirPlates)
{
    std::vector<std::string> texts = textsOf({ "tips", "refusals", "advice" });
    for (const auto& [click, drag] : { std::pair("clickYellow", "DragYellow"),
             std::pair("clickGreen", "DragGreens"), std::pair("clickRed", "DragReds") }) {
        texts.push_back(
            filled(std::string("tips.") + click) + ' ' + filled(std::string("refusals.") + drag));
    }
    EXPECT_GT(texts.size(), 30U);
    for (const std::string& text : texts) {
        for (const ExtraRect& thing : kThings) {
            for (const double size : kSizes) {
                expectFits(present::tipFor("chip-0-0", thing, text, metrics(), size), text);
            }
        }
    }
}

TEST_P(FittingWords, OfWhispersAreAllOnTheirPlates)
{
    std::vector<std::string> texts = textsOf({ "refusals" });
    texts.push_back(filled("practice.codeCopied"));
    for (const std::string& text : texts) {
        for (const double size : kSizes) {
            const Extra whisper = present::whisper(text, metrics(), size);
            expectFits(whisper, text);
            EXPECT_LT(whisper.rect.x + whisper.rect.width / 2.0, 0.6) << "beside the rows";
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, FittingWords, testing::ValuesIn(language::knownCodes()));

} // namespace veyrand::app
