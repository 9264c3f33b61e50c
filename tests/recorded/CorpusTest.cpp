#include "play/JournalText.h"
#include "play/Session.h"
#include "recorded/RecordedGame.h"
#include "support/Places.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace veyrand::test {

namespace {

std::string textOf(const std::string& file)
{
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream.is_open()) << file;
    return { std::istreambuf_iterator<char>(stream), {} };
}

struct Recorded {
    std::string file;
    std::uint64_t hash = 0;
};

std::vector<Recorded> corpus(const std::string& folder)
{
    std::ifstream list(folder + "/hashes.txt");
    std::vector<Recorded> games;
    for (Recorded game; list >> game.file >> std::hex >> game.hash;) {
        games.push_back(game);
    }
    return games;
}

progress::Catalogue catalogueIn(const std::string& name)
{
    return progress::parseCatalogueText(textOf(sourceFolder() + "/assets/catalogues/" + name))
        .entries;
}

} // namespace

// What was recorded once is understood for ever, by every build, and comes to the same.
TEST(Corpus, EveryGameOfThePastComesToTheSame)
{
    const std::string folder = sourceFolder() + "/tests/recorded/format-1";
    const std::vector<Recorded> games = corpus(folder);
    EXPECT_GE(games.size(), 200U);
    for (const Recorded& game : games) {
        SCOPED_TRACE(game.file);
        const play::JournalText journal
            = play::readJournal(textOf(folder + '/' + game.file), "New");
        ASSERT_EQ(journal.state, play::JournalText::State::Whole);
        ASSERT_FALSE(journal.entries.empty());
        // Once with nothing but what the journal says, and once as it is played.
        play::Replay replay;
        const auto& puzzle = std::get<play::Puzzle>(journal.entries.front().action);
        play::Session session(puzzle);
        for (const play::JournalEntry& entry : journal.entries) {
            ASSERT_EQ(replay.apply(entry.action), "");
            ASSERT_EQ(replay.lastLine(), entry.lastLine);
            if (!std::holds_alternative<play::Puzzle>(entry.action)) {
                ASSERT_TRUE(std::holds_alternative<play::Outcome>(session.apply(entry.action)));
                session.settle();
            }
        }
        EXPECT_EQ(replay.hash(), game.hash);
        EXPECT_EQ(session.hash(), game.hash);
    }
}

TEST(Recorder, TheSameNumberMakesTheSameGame)
{
    const auto classic = catalogueIn("Theorems.txt");
    const auto endless = catalogueIn("EndlessTheorems.txt");
    EXPECT_EQ(recordGame(7, classic, endless).journal, recordGame(7, classic, endless).journal);
    EXPECT_NE(recordGame(7, classic, endless).journal, recordGame(9, classic, endless).journal);
}

// A corpus that never met something would say nothing of it.
TEST(Recorder, MeetsEverythingThatCanHappen)
{
    const auto classic = catalogueIn("Theorems.txt");
    const auto endless = catalogueIn("EndlessTheorems.txt");
    std::set<std::string> met;
    for (std::uint32_t number = 1; number <= 240; ++number) {
        met.merge(recordGame(number, classic, endless).met);
    }
    for (const char* const thing : { "puzzle", "remove", "undo", "redo", "leave", "solved",
             "hint good", "hint back", "hint pieces", "hint line", "hint nothing", "move 0",
             "move 1", "move 2", "move 3", "move 4", "move 5", "move 6" }) {
        EXPECT_TRUE(met.contains(thing)) << thing;
    }
    const auto refusals = std::count_if(met.begin(), met.end(),
        [](const std::string& thing) { return thing.rfind("refused ", 0) == 0; });
    EXPECT_GE(refusals, 16) << "of the reasons for a refusal";
}

} // namespace veyrand::test
