#include "present/Extras.h"

#include "LayeredBoard.h"
#include "present/ExtraPictures.h"

#include <gmock/gmock.h>

namespace veyrand::present {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace {

constexpr double kChip = 0.075;

// A board of 1440 x 900 points with one stone on it.
class ExtrasTest : public LayeredBoard {
protected:
    ExtrasTest()
    {
        layers().fitTo({ .width = 1440, .height = 900 });
        add("chip-0-0", 0.72, 0.95);
    }

    void add(const std::string& key, double x, double y)
    {
        LayeredBoard::add("RedChip", key, x, y, kChip);
    }
    [[nodiscard]] DisplayItem itemOf(const std::string& picture)
    {
        for (DisplayItem& item : layers().displayList()) {
            if (item.content == Content(ImageContent { picture })) {
                return item;
            }
        }
        ADD_FAILURE() << picture << " is not shown";
        return {};
    }
    Extras& extras() { return layers().extras(); }
    static ExtraRect stone() { return placeOfChip(0, 0); }
};

} // namespace

TEST_F(ExtrasTest, WhatIsWantedComesAndWhatIsNotGoesSoftly)
{
    extras().want({ targetRing(0, 0) });
    ASSERT_THAT(extras().shown(), SizeIs(1));
    EXPECT_EQ(extras().shown().front().kind, ExtraKind::Ring);
    EXPECT_EQ(extras().shown().front().key, "chip-0-0");
    wait(0.06);
    const double half = extras().shown().front().opacity;
    EXPECT_GT(half, 0.0);
    EXPECT_LT(half, 1.0);
    wait(0.06);
    EXPECT_EQ(extras().shown().front().opacity, 1.0);

    extras().want({});
    EXPECT_THAT(extras().shown(), IsEmpty()) << "what is on its way out is no more";
    EXPECT_THAT(pictures(), ElementsAre("WoodBackground", "RedChip", "Ring")) << "but is seen";
    wait(0.12);
    EXPECT_THAT(pictures(), ElementsAre("WoodBackground", "RedChip"));
}

TEST_F(ExtrasTest, WhatAnswersAHandIsSeenInTheFirstFrame)
{
    extras().want({ heldDown("chip-0-0", stone()), lightUnder("delete-1", stone()) });
    for (const auto& shown : extras().shown()) {
        EXPECT_GT(shown.opacity, 0.3) << shown.key;
    }
    EXPECT_LT(itemOf("RedChip").rect.width, 0.075F * 900.0F);
}

TEST_F(ExtrasTest, LightLiesOnTheWoodRingsBeforeTheStonesAndBothBehindMessages)
{
    add("fullScreen", 0.8, 0.5);
    extras().want({ targetRing(0, 0), rowInPlay(0) });
    EXPECT_THAT(
        pictures(), ElementsAre("WoodBackground", "RowLight", "RedChip", "Ring", "RedChip"));
}

TEST_F(ExtrasTest, NothingOfItIsEverUnderThePointer)
{
    const platform::PointF place { .x = 0.72F * 900.0F, .y = 0.95F * 900.0F };
    const Layer* const before = layers().contentLayer().hitTest(place);
    extras().want({ targetRing(0, 0), lightUnder("chip-0-0", stone()) });
    EXPECT_EQ(layers().contentLayer().hitTest(place), before);
}

TEST_F(ExtrasTest, AShakenHeadStaysWithinASixthOfTheStoneAndComesToRest)
{
    const float home = itemOf("RedChip").rect.x;
    extras().start(shakenHead("chip-0-0", stone()));
    float left = 0.0F;
    float right = 0.0F;
    int turns = 0;
    float last = 0.0F;
    for (int frame = 0; frame < 30; ++frame) {
        wait(0.01);
        const float away = itemOf("RedChip").rect.x - home;
        turns += away * last < 0.0F ? 1 : 0;
        last = away != 0.0F ? away : last;
        left = std::min(left, away);
        right = std::max(right, away);
    }
    EXPECT_EQ(turns, 2) << "three swings";
    EXPECT_LT(left, -0.008F * 900.0F);
    EXPECT_GT(right, 0.006F * 900.0F);
    EXPECT_LE(std::max(right, -left), 0.075F * 900.0F / 6.0F);
    EXPECT_EQ(itemOf("RedChip").rect.x, home);
    EXPECT_THAT(extras().shown(), IsEmpty());
}

TEST_F(ExtrasTest, WhereMotionIsReducedLightTellsInstead)
{
    layers().scene().setMotionTaste(MotionTaste::Reduced);
    const DisplayItem before = itemOf("RedChip");
    extras().start(shakenHead("chip-0-0", stone()));
    wait(0.05);
    const DisplayItem shaken = itemOf("RedChip");
    EXPECT_EQ(shaken.rect, before.rect);
    EXPECT_GT(shaken.glow, 0.0F);

    extras().want({ rowInPlay(0) });
    wait(1.0);
    const float y = itemOf("RowLight").rect.y;
    extras().want({ rowInPlay(1) });
    EXPECT_FLOAT_EQ(itemOf("RowLight").rect.y, y - 0.075F * 900.0F) << "at once";
}

TEST_F(ExtrasTest, TheLightOfTheRowGoesTheWayToTheNext)
{
    extras().want({ rowInPlay(0) });
    wait(1.0);
    const float y = itemOf("RowLight").rect.y;
    extras().want({ rowInPlay(1) });
    EXPECT_FLOAT_EQ(itemOf("RowLight").rect.y, y);
    wait(0.08);
    EXPECT_LT(itemOf("RowLight").rect.y, y);
    EXPECT_GT(itemOf("RowLight").rect.y, y - 0.075F * 900.0F);
    wait(0.08);
    EXPECT_FLOAT_EQ(itemOf("RowLight").rect.y, y - 0.075F * 900.0F);
}

TEST_F(ExtrasTest, ALimitLightsUpTwiceAndNoFasterThanTheEyeCanBear)
{
    extras().start(limitOfLine(0));
    int crests = 0;
    double before = 0.0;
    double last = 0.0;
    for (int frame = 0; frame < 45; ++frame) {
        wait(0.01);
        const auto shown = extras().shown();
        const double now = shown.empty() ? 0.0 : shown.front().opacity;
        crests += last > before && last > now ? 1 : 0;
        before = last;
        last = now;
    }
    EXPECT_EQ(crests, 2);
    EXPECT_THAT(extras().shown(), IsEmpty());
}

TEST_F(ExtrasTest, ATipLiesBesideWhatItExplainsAndOnTheBoard)
{
    const test::SquareLetters metrics;
    for (const auto& thing : { placeOfChip(0, 0), placeOfChip(11, 3), placeOfChip(5, 11),
             ExtraRect { .x = 0.645, .y = 0.5, .width = 0.0495, .height = 0.0495 },
             ExtraRect { .x = 0.3, .y = 0.4, .width = 0.05, .height = 0.06 },
             ExtraRect { .x = 1.4, .y = 0.5, .width = 0.15, .height = 0.15 } }) {
        for (const double size : { 1.0, 1.5, 2.0 }) {
            const Extra tip = tipFor("thing", thing, "10 less for every move more", metrics, size);
            const bool apart
                = std::abs(tip.rect.x - thing.x) >= (tip.rect.width + thing.width) / 2.0
                || std::abs(tip.rect.y - thing.y) >= (tip.rect.height + thing.height) / 2.0;
            EXPECT_TRUE(apart) << thing.x << ' ' << thing.y << ", size " << size;
            EXPECT_GT(tip.rect.x - tip.rect.width / 2.0, 0.0);
            EXPECT_LT(tip.rect.x + tip.rect.width / 2.0, 1.6);
            EXPECT_GT(tip.rect.y - tip.rect.height / 2.0, 0.0);
            EXPECT_LT(tip.rect.y + tip.rect.height / 2.0, 1.0);
        }
    }
}

TEST_F(ExtrasTest, ATipLiesBehindTheEndOfItsLineWhereANoteLiesBelow)
{
    const test::SquareLetters metrics;
    const Extra usual = tipFor("thing", placeOfChip(0, 0), "doubles it", metrics);
    const ExtraRect end = placeOfChip(2, 0);
    const Extra tip = tipBeside(usual, end);
    EXPECT_GT(tip.rect.x - tip.rect.width / 2.0, end.x + end.width / 2.0);
    EXPECT_LT(tip.rect.x + tip.rect.width / 2.0, 1.6);
    EXPECT_LT(std::abs(tip.rect.y - end.y), end.height) << "on its row";
    EXPECT_LT(tip.rect.y + tip.rect.height / 2.0, 1.0);
    EXPECT_EQ(tip.pieces.size(), usual.pieces.size());
    EXPECT_EQ(tipBeside(usual, placeOfChip(11, 0)).rect.x, usual.rect.x) << "no room";
}

namespace {

double heightOfLetters(const Extra& extra)
{
    double height = 0.0;
    for (const ExtraPiece& piece : extra.pieces) {
        if (std::holds_alternative<TextContent>(piece.content)) {
            height = std::max(height, piece.rect.height);
            EXPECT_LE(piece.rect.width, extra.rect.width) << extra.text;
            EXPECT_LE(std::abs(piece.rect.y - extra.rect.y) + piece.rect.height / 2.0,
                extra.rect.height / 2.0 + 0.02)
                << extra.text;
        }
    }
    return height;
}

} // namespace

TEST_F(ExtrasTest, TheWordsOfTipsAreAsLargeAsWished)
{
    const test::SquareLetters metrics;
    const double usual = heightOfLetters(tipFor("thing", stone(), "takes 2 back", metrics));
    for (const double size : { 1.5, 2.0 }) {
        EXPECT_NEAR(heightOfLetters(tipFor("thing", stone(), "takes 2 back", metrics, size)),
            usual * size, 1e-9);
    }
}

TEST_F(ExtrasTest, ATipThatWouldNotFitIsAsLargeAsItCanBe)
{
    const test::SquareLetters metrics;
    const std::string text = "Drop it on the chip right beside it, or on the next but one.";
    const ExtraRect counter { .x = 0.5, .y = 0.4, .width = 0.05, .height = 0.06 };
    const Extra usual = tipFor("thing", counter, text, metrics);
    const Extra large = tipFor("thing", counter, text, metrics, 2.0);
    EXPECT_LT(large.rect.x + large.rect.width / 2.0, 1.6);
    EXPECT_GT(heightOfLetters(large), heightOfLetters(usual));
    EXPECT_LT(heightOfLetters(large), heightOfLetters(usual) * 2.0);
    std::string words;
    for (const ExtraPiece& piece : large.pieces) {
        if (const auto* const line = std::get_if<TextContent>(&piece.content)) {
            words += (words.empty() ? "" : " ") + line->text;
        }
    }
    EXPECT_EQ(words, text) << "and no word is lost";
}

TEST_F(ExtrasTest, ALargeWhisperStaysInThePanelWithEveryWord)
{
    const test::SquareLetters metrics;
    const std::string text = "A line holds 12 chips.";
    const Extra usual = whisper(text, metrics);
    for (const double size : { 1.5, 2.0 }) {
        const Extra large = whisper(text, metrics, size);
        EXPECT_NEAR(heightOfLetters(large), heightOfLetters(usual) * size, 1e-9) << size;
        EXPECT_LT(large.rect.x + large.rect.width / 2.0, 0.59);
        EXPECT_GT(large.rect.y - large.rect.height / 2.0, 0.0);
        EXPECT_LT(large.rect.y + large.rect.height / 2.0, 0.26);
    }
}

TEST_F(ExtrasTest, TheTipOfADeleteButtonLiesOverNoStone)
{
    const test::SquareLetters metrics;
    const ExtraRect button { .x = 0.645, .y = 0.875, .width = 0.0495, .height = 0.0495 };
    const Extra tip = tipFor("delete-1", button, "takes 2 lines back", metrics);
    EXPECT_LT(tip.rect.x + tip.rect.width / 2.0, button.x - button.width / 2.0);
}

} // namespace veyrand::present
