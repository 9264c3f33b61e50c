#include "play/Bundle.h"

#include "play/ActionText.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace veyrand::play {

using progress::Mode;

namespace {

// A puzzle in which so much has been done.
Bundle::Lines journalWith(std::size_t actions, const std::string& player)
{
    constexpr std::array kActions { "hint pieces", "move 2 0" };
    Replay replay;
    EXPECT_EQ(replay.apply(*parse("puzzle 2-1 YRRR YGG 3 320 0")), "");
    for (std::size_t i = 0; i < actions; ++i) {
        EXPECT_EQ(replay.apply(*parse(kActions.at(i))), "");
    }
    JournalWriter writer;
    return journalOf(replay, player, writer);
}

Result resultWith(unsigned hints, int day, bool isLong)
{
    return isLong
        ? Result { { "YRRRR", "YG" }, 2, { { 2, 0 }, { 4, 0 }, { 4, 0 } }, hints,
              { 2026, 11, day } }
        : Result { { "YR", "YRRG" }, 2, { { 1, 0 }, { 0, 0 } }, hints, { 2026, 11, day } };
}

rc::Gen<Results> anyResults()
{
    const auto any = rc::gen::tuple(rc::gen::element<std::string>("1-1", "1-4", "2026-11-20"),
        rc::gen::inRange(0U, 3U), rc::gen::inRange(1, 29), rc::gen::arbitrary<bool>());
    return rc::gen::map(
        rc::gen::container<std::vector<std::tuple<std::string, unsigned, int, bool>>>(any),
        [](const auto& all) {
            Results results;
            for (const auto& [name, hints, day, isLong] : all) {
                results.add(name, resultWith(hints, day, isLong));
            }
            return results;
        });
}

// Few values, so that two of them often agree.
rc::Gen<Bundle> anyBundle()
{
    const auto record = rc::gen::build<progress::PlayerRecord>(
        rc::gen::set(&progress::PlayerRecord::level, rc::gen::inRange(1, 3)),
        rc::gen::set(&progress::PlayerRecord::stage, rc::gen::inRange(1, 3)),
        rc::gen::set(&progress::PlayerRecord::score, rc::gen::element<std::int64_t>(0, 310)),
        rc::gen::set(&progress::PlayerRecord::firstHintClick),
        rc::gen::set(&progress::PlayerRecord::endlessScore, rc::gen::element<std::int64_t>(0, 40)),
        rc::gen::set(&progress::PlayerRecord::endlessPar, rc::gen::inRange(3, 5)));
    return rc::gen::build<Bundle>(rc::gen::set(&Bundle::player, rc::gen::just<std::string>("New")),
        rc::gen::set(&Bundle::record, record), rc::gen::set(&Bundle::endlessOpen),
        rc::gen::set(&Bundle::journals,
            rc::gen::map(rc::gen::pair(rc::gen::inRange(0U, 3U), rc::gen::inRange(0U, 3U)),
                [](const auto& moves) {
                    return std::array {
                        moves.first == 0 ? Bundle::Lines() : journalWith(moves.first - 1, "New"),
                        moves.second == 0 ? Bundle::Lines() : journalWith(moves.second - 1, "New")
                    };
                })),
        rc::gen::set(&Bundle::results, anyResults()));
}

Bundle standingAt(int level, int stage, std::int64_t score)
{
    Bundle bundle { .player = "New" };
    bundle.record = { .level = level, .stage = stage, .score = score };
    return bundle;
}

} // namespace

TEST(JoinedBundles, KeepTheFurtherPlaceWithItsScore)
{
    EXPECT_EQ(
        joined(standingAt(2, 1, 900), standingAt(3, 1, 100)).record, standingAt(3, 1, 100).record);
    EXPECT_EQ(
        joined(standingAt(3, 1, 100), standingAt(2, 1, 900)).record, standingAt(3, 1, 100).record);
    EXPECT_EQ(
        joined(standingAt(3, 1, 100), standingAt(3, 1, 120)).record, standingAt(3, 1, 120).record);
}

TEST(JoinedBundles, KeepTheModesApart)
{
    Bundle here = standingAt(2, 1, 900);
    here.record.endlessScore = 50;
    here.record.endlessPar = 4;
    here.journalOf(Mode::Endless) = journalWith(1, "New");
    Bundle other = standingAt(3, 1, 100);
    other.record.endlessScore = 40;
    other.record.endlessPar = 9;
    other.journalOf(Mode::Classic) = journalWith(2, "New");
    other.journalOf(Mode::Endless) = journalWith(2, "New");
    const Bundle both = joined(here, other);
    EXPECT_EQ(both.record.level, 3);
    EXPECT_EQ(both.record.endlessScore, 50);
    EXPECT_EQ(both.record.endlessPar, 4);
    EXPECT_EQ(both.journalOf(Mode::Classic), other.journalOf(Mode::Classic));
    EXPECT_EQ(both.journalOf(Mode::Endless), here.journalOf(Mode::Endless));
}

TEST(JoinedBundles, KeepTheSettingsOfThisPlace)
{
    Bundle here = standingAt(1, 1, 0);
    here.settings = { { "Tempo", std::string("fast") } };
    here.music = false;
    Bundle other = standingAt(9, 1, 0);
    other.settings = { { "Tempo", std::string("slow") } };
    EXPECT_EQ(joined(here, other).settings, here.settings);
    EXPECT_FALSE(joined(here, other).music);
}

TEST(JoinedBundles, PutAnUnfinishedPuzzleUnderThePlayerWhoJoins)
{
    Bundle other = standingAt(3, 1, 100);
    other.player = "Zoë";
    other.journalOf(Mode::Classic) = journalWith(2, "Zoë");
    EXPECT_EQ(joined(standingAt(1, 1, 0), other).journalOf(Mode::Classic), journalWith(2, "New"));
}

TEST(JoinedBundles, UniteOwnPuzzles)
{
    Bundle here = standingAt(1, 1, 0);
    here.puzzles.add(codeOf("YR", "YRRG").value(), "mine");
    Bundle other = standingAt(1, 1, 0);
    other.puzzles.add(codeOf("YR", "YRRG").value(), "other");
    other.puzzles.add(codeOf("YRRRR", "YG").value(), "more");
    const Bundle both = joined(here, other);
    ASSERT_EQ(both.puzzles.all().size(), 2U);
    EXPECT_EQ(both.puzzles.all()[0].name, "mine");
    EXPECT_EQ(both.puzzles.all()[1].name, "more");
    EXPECT_EQ(joined(both, other), both);
}

TEST(AJournalForAnotherPlayer, IsTheSameForTheSameOne)
{
    EXPECT_EQ(journalFor(journalWith(2, "New"), "New"), journalWith(2, "New"));
    EXPECT_EQ(journalFor({}, "New"), Bundle::Lines());
}

RC_GTEST_PROP(JoinedBundles, AreTheSameWhoeverJoinsWhom, ())
{
    const Bundle a = *anyBundle();
    const Bundle b = *anyBundle();
    RC_ASSERT(joined(a, b) == joined(b, a));
}

RC_GTEST_PROP(JoinedBundles, AreNotChangedByJoiningAgain, ())
{
    const Bundle a = *anyBundle();
    const Bundle b = *anyBundle();
    const Bundle once = joined(a, b);
    RC_ASSERT(joined(once, b) == once);
    RC_ASSERT(joined(once, a) == once);
    RC_ASSERT(joined(a, a) == a);
}

RC_GTEST_PROP(JoinedBundles, AreTheSameInWhateverOrderThreeAreJoined, ())
{
    const Bundle a = *anyBundle();
    const Bundle b = *anyBundle();
    const Bundle c = *anyBundle();
    RC_ASSERT(joined(joined(a, b), c) == joined(a, joined(b, c)));
}

} // namespace veyrand::play
