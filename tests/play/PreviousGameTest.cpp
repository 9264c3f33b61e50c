#include "play/PreviousGame.h"

#include "play/ActionText.h"

#include <gtest/gtest.h>

namespace veyrand::play {

using progress::Mode;

namespace {

constexpr Standing kStanding { Mode::Classic, { 2, 1 }, 320, 0 };

progress::Catalogue catalogue()
{
    progress::Catalogue entries(progress::kClassicEntries, { "YR", "Y", 2 });
    entries[11] = { "YRRR", "YGG", 3 };
    return entries;
}

Replay played()
{
    Replay replay;
    for (const char* const text : { "puzzle 2-1 YRRR YGG 3 320 0", "hint pieces", "move 2 0" }) {
        EXPECT_EQ(replay.apply(*parse(text)), "");
    }
    return replay;
}

std::string textOf(const std::vector<PreviousGame>& games)
{
    std::string text;
    for (const PreviousGame& game : games) {
        for (const std::string& line : linesOf(game, "Zoë")) {
            text += line + '\n';
        }
    }
    return text;
}

std::vector<PreviousGame> readAgain(const std::string& text)
{
    return previousGamesIn(text, "Zoë", Mode::Classic, catalogue());
}

} // namespace

TEST(PreviousGame, IsReadAsItWasWritten)
{
    const std::string text = textOf({ { kStanding, true, played() } });
    const auto games = readAgain(text);
    ASSERT_EQ(games.size(), 1U);
    EXPECT_EQ(games[0].standing, kStanding);
    EXPECT_TRUE(games[0].knowsHints);
    ASSERT_TRUE(games[0].puzzle.has_value());
    EXPECT_EQ(games[0].puzzle->hash(), played().hash());
}

TEST(PreviousGame, StandsBehindAnother)
{
    const Standing other { Mode::Classic, { 1, 1 }, -20, 4 };
    for (const auto& first : { std::optional<Replay>(), std::optional(played()) }) {
        const auto games = readAgain(
            textOf({ { first ? kStanding : other, false, first }, { kStanding, true, played() } }));
        ASSERT_EQ(games.size(), 2U);
        EXPECT_EQ(games[0].standing, first ? kStanding : other);
        EXPECT_EQ(games[0].puzzle.has_value(), first.has_value());
        EXPECT_FALSE(games[0].knowsHints);
        EXPECT_EQ(games[1].standing, kStanding);
        EXPECT_TRUE(games[1].puzzle.has_value());
    }
}

TEST(PreviousGame, DamageOfTheRecordIsSeenAndThatOfThePuzzleCostsNoMore)
{
    const std::string text = textOf({ { kStanding, true, played() } });
    const std::size_t end = text.find('\n');
    for (std::size_t at = 0; at < text.size(); ++at) {
        std::string damaged = text;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x01);
        const auto games = readAgain(damaged);
        if (at < end) {
            ASSERT_TRUE(games.empty()) << at;
        } else if (at > end) {
            ASSERT_EQ(games.size(), 1U) << at;
            ASSERT_EQ(games[0].standing, kStanding);
        }
    }
}

TEST(PreviousGame, IsOfItsPlayerAndItsMode)
{
    const std::string text = textOf({ { kStanding, true, {} } });
    EXPECT_TRUE(previousGamesIn(text, "New", Mode::Classic, catalogue()).empty());
    EXPECT_TRUE(previousGamesIn(text, "Zoë", Mode::Endless, catalogue()).empty());
    EXPECT_EQ(previousName("New", Mode::Classic), "New-classic-previous.txt");
    EXPECT_TRUE(readAgain("").empty());
}

TEST(PreviousGame, HasANameForPeople)
{
    EXPECT_EQ(nameForPeople({ Mode::Classic, { 5, 3 }, 320, 0 }), "5-3, 320 points");
    EXPECT_EQ(nameForPeople({ Mode::Classic, { 5, 3 }, 1, 0 }), "5-3, 1 point");
    EXPECT_EQ(nameForPeople({ Mode::Endless, { 5, 3 }, 270, 4 }), "270 points");
}

} // namespace veyrand::play
