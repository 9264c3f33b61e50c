#include "controller/PageFlow.h"
#include "headless/EvenLetters.h"

#include <gmock/gmock.h>
#include <limits>

namespace veyrand::controller {

namespace {

Page pageOf(const std::string& text, double size, double chip)
{
    Page page;
    page.blocks.push_back({ .lines = { { .text = text, .size = size } },
        .pictures = { { .image = "RedChip", .width = chip, .height = chip } } });
    return page;
}

Page translated(const Page& page, const std::string& english, const std::string& words)
{
    const headless::EvenLetters letters;
    return flowed(
        page, { english }, { words }, [](const std::string& /*mark*/) { return ""; }, letters);
}

} // namespace

// They came from a file of lessons, and the gaps for chips were as long as memory is large.
TEST(HostilePages, NumbersOfNonsenseMakeNoEndlessGaps)
{
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    constexpr double kEndless = std::numeric_limits<double>::infinity();
    for (const double size : { 60.0, 0.0, -60.0, 1e-300, 1e300, kNone, kEndless }) {
        for (const double chip : { 0.075, 0.0, -0.075, 1e300, kNone, kEndless }) {
            SCOPED_TRACE(std::to_string(size) + ", " + std::to_string(chip));
            const Page page
                = translated(pageOf("Three reds", size, chip), "Three reds", "Drei {RRR}");
            ASSERT_EQ(page.blocks.size(), 1U);
            for (const PageLine& line : page.blocks.front().lines) {
                EXPECT_LT(line.text.size(), 300U);
            }
        }
    }
}

TEST(HostilePages, ATextOfNothingIsRefused)
{
    const Page page = pageOf("Three reds", 60.0, 0.075);
    for (const char* const text : { "", "   ", "{rank}" }) { // no rank has a name here
        EXPECT_THROW(static_cast<void>(translated(page, "Three reds", text)), std::invalid_argument)
            << text;
    }
    EXPECT_THROW(static_cast<void>(translated(page, "", "Drei")), std::invalid_argument);
}

TEST(HostilePages, TextsThatAreNotThoseOfThePageAreRefusedWithTheReason)
{
    struct Mismatch {
        language::PageWords english;
        language::PageWords words;
        const char* reason;
    };
    const std::vector<Mismatch> mismatches {
        { { "Three reds" }, { "Drei", "rote" }, "another number of texts than English" },
        { { "Three reds", "more" }, { "Drei", "rote" }, "fewer texts than its paragraphs" },
        { { "Three", "reds" }, { "Drei", "rote" }, "is not what its page says" },
        { { "Three greens" }, { "Drei" }, "\"Three greens\" is not what its page says" },
        { {}, {}, "more texts than its paragraphs" },
    };
    for (const Mismatch& mismatch : mismatches) {
        SCOPED_TRACE(mismatch.reason);
        const headless::EvenLetters letters;
        try {
            static_cast<void>(flowed(
                pageOf("Three reds", 60.0, 0.075), mismatch.english, mismatch.words,
                [](const std::string& /*mark*/) { return ""; }, letters));
            FAIL() << "it was taken";
        } catch (const std::invalid_argument& fault) {
            EXPECT_THAT(fault.what(), ::testing::HasSubstr(mismatch.reason));
        }
    }
}

} // namespace veyrand::controller
