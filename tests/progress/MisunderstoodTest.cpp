#include "progress/Misunderstood.h"

#include "progress/PlayerRecord.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::progress {

using platform::PreferenceRecord;
using platform::StoredGroup;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

namespace {

std::vector<std::string> inRecord(PreferenceRecord values)
{
    return misunderstood("Player-New", StoredGroup { .values = std::move(values) });
}

PreferenceRecord place(std::int64_t level, std::int64_t stage)
{
    return { { "TRNLevelKey", level }, { "TRNStageKey", stage } };
}

} // namespace

TEST(Misunderstood, IsNothingOfWhatTheGameWrites)
{
    EXPECT_THAT(inRecord(storedRecord({ .level = 11,
                    .stage = 10,
                    .score = kGreatestScore,
                    .firstHintClick = true,
                    .endlessScore = -kGreatestScore,
                    .endlessPar = 12 })),
        IsEmpty());
    EXPECT_THAT(
        misunderstood("",
            { .values = { { "TRNPlayerNameKey", std::string("New") }, { "TRNPlayMusicKey", true },
                  { "TRNPlayEffectsKey", std::int64_t { 0 } } },
                .groups = { "Player-New", "Settings", "Window" } }),
        IsEmpty());
    EXPECT_THAT(inRecord({}), IsEmpty());
}

TEST(Misunderstood, IsNothingThatIsNotTheGames)
{
    const StoredGroup strange {
        .values = { { "Volume", 0.25 } }, .groups = { "Colours" }, .others = { "FromALaterVersion" }
    };
    for (const char* group : { "", "Player-New", "Settings", "Window" }) {
        EXPECT_THAT(misunderstood(group, strange), IsEmpty()) << group;
    }
}

TEST(Misunderstood, IsWhatIsOfAnotherKind)
{
    EXPECT_THAT(misunderstood("",
                    { .values = { { "Player-Ada", std::string("3-4") }, { "Settings", true },
                          { "TRNPlayMusicKey", std::string("yes") },
                          { "TRNPlayerNameKey", std::int64_t { 7 } } },
                        .groups = { "TRNPlayEffectsKey" },
                        .others = { "Player-Bea", "TRNEndlessGameUnlockedKey" } }),
        UnorderedElementsAre("Player-Ada", "Settings", "TRNPlayMusicKey", "TRNPlayerNameKey",
            "TRNPlayEffectsKey", "Player-Bea", "TRNEndlessGameUnlockedKey"));
    EXPECT_THAT(inRecord({ { "TRNScoreKey", std::string("120") }, { "TRNEndlessParKey", 4.5 },
                    { "TRNFirstHintClickKey", std::string("true") } }),
        UnorderedElementsAre("TRNScoreKey", "TRNEndlessParKey", "TRNFirstHintClickKey"));
    EXPECT_THAT(
        misunderstood("Player-New", { .values = {}, .groups = {}, .others = { "TRNScoreKey" } }),
        ElementsAre("TRNScoreKey"));
}

TEST(Misunderstood, IsAPlaceOutsideTheGameAndNotOneThatWasNeverSaved)
{
    EXPECT_THAT(inRecord(place(0, 0)), IsEmpty());
    EXPECT_THAT(inRecord(place(1, 1)), IsEmpty());
    for (const auto& [level, stage] : std::vector<std::pair<std::int64_t, std::int64_t>> {
             { 12, 1 }, { 11, 11 }, { 0, 5 }, { 3, 0 }, { -1, 1 }, { (1LL << 32) + 1, 1 } }) {
        EXPECT_THAT(inRecord(place(level, stage)), ElementsAre("TRNLevelKey", "TRNStageKey"))
            << level << '-' << stage;
    }
    EXPECT_THAT(inRecord({ { "TRNLevelKey", std::int64_t { 3 } } }), ElementsAre("TRNLevelKey"));
}

TEST(Misunderstood, IsANumberThatIsTooLarge)
{
    EXPECT_THAT(inRecord({ { "TRNScoreKey", kGreatestScore + 1 },
                    { "TRNEndlessScoreKey", -kGreatestScore - 1 },
                    { "TRNEndlessParKey", std::int64_t { 13 } } }),
        UnorderedElementsAre("TRNScoreKey", "TRNEndlessScoreKey", "TRNEndlessParKey"));
    EXPECT_THAT(inRecord({ { "TRNScoreKey", 1e30 } }), ElementsAre("TRNScoreKey"));
}

} // namespace veyrand::progress
