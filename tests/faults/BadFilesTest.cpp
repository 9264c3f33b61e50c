#include "desktop/qt/DataFolder.h"
#include "desktop/qt/PreferencesText.h"
#include "faults/Home.h"
#include "faults/Share.h"
#include "faults/Visit.h"
#include "platform/fakes/SeededRandom.h"
#include "play/JournalText.h"
#include "play/Recovery.h"
#include "progress/Catalogue.h"
#include "progress/CurrentGame.h"
#include "progress/PlayerKeys.h"
#include "support/ScratchFolder.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <iostream>

namespace veyrand::test {

namespace {

namespace fs = std::filesystem;

std::string replacedIn(std::string text, const std::string& from, const std::string& to)
{
    for (std::size_t at = text.find(from); at != std::string::npos;
         at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

// Each letter as two bytes.
std::string wide(const std::string& text)
{
    std::string bytes = "\xff\xfe";
    for (const char letter : text) {
        bytes += letter;
        bytes += '\0';
    }
    return bytes;
}

struct Damage {
    std::string name;
    std::string bytes;
};

// What may happen to any text.
std::vector<Damage> damagesTo(const std::string& text)
{
    std::string flipped = text;
    flipped[text.size() / 2] = static_cast<char>(flipped[text.size() / 2] ^ 0x20);
    return { { "empty", "" }, { "a line feed", "\n" }, { "a byte of zero", std::string(1, '\0') },
        { "zeros", std::string(text.size(), '\0') },
        { "other line ends", replacedIn(text, "\n", "\r\n") },
        { "old line ends", replacedIn(text, "\n", "\r") },
        { "a mark of byte order", "\xef\xbb\xbf" + text }, { "two bytes a letter", wide(text) },
        { "no text",
            "\x7f"
            "ELF\x02\x01\x01" },
        { "a foreign letter", text + "\xe9\n" }, { "a letter changed", flipped },
        { "twice", text + text }, { "a line more", text + "more\n" },
        { "the end before the beginning",
            text.substr(text.size() / 2) + text.substr(0, text.size() / 2) },
        { "another's text", "<html><body>404 Not Found</body></html>\n" },
        { "very long", std::string(3U << 20U, 'Y') },
        { "no letters of ours", "\xd0\xaf\xe2\x98\x83\n" } };
}

class BadFiles : public ::testing::Test {
protected:
    BadFiles() { Home::prepare(home()); }

    [[nodiscard]] std::string home() const { return m_scratch.at("home"); }
    [[nodiscard]] std::string preferences() const { return home() + "/config/preferences.json"; }
    [[nodiscard]] std::string journal() const { return home() + "/state/New-classic.txt"; }

    void write(const std::string& file, const std::string& bytes)
    {
        fs::remove_all(file);
        ScratchFolder::write(file, bytes);
    }
    // Whether what was there is still there, under whatever name.
    [[nodiscard]] static bool isKept(const std::string& file, const std::string& bytes)
    {
        for (const auto& entry : fs::directory_iterator(fs::path(file).parent_path())) {
            if (entry.is_regular_file()
                && ScratchFolder::read(entry.path().string()).substr(0, bytes.size()) == bytes) {
                return true;
            }
        }
        return false;
    }

    ScratchFolder m_scratch;
};

} // namespace

TEST_F(BadFiles, ACatalogueIsReadWholeOrRefusedWithAReason)
{
    const std::string whole = progress::catalogueBytes("YR\nYRG\n1\nYRRRR\nYR\n3\nYBGRB\nBBYBB\n5");
    const std::size_t entries = progress::parseCatalogue(whole).entries.size();
    ASSERT_EQ(entries, 3U);
    int cases = 0;
    const auto expectJudged = [&](const Damage& damage) {
        SCOPED_TRACE(damage.name);
        const auto found = progress::parseCatalogue(damage.bytes);
        const auto lacking
            = progress::catalogueFault(found.entries, progress::CatalogueKind::Classic);
        EXPECT_NE(found.error.empty(), found.entries.empty());
        ASSERT_TRUE(lacking.has_value());
        EXPECT_FALSE(lacking->empty());
        ++cases;
    };
    for (std::size_t size = 0; size < whole.size(); ++size) {
        expectJudged({ "cut after " + std::to_string(size), whole.substr(0, size) });
        std::string changed = whole;
        changed[size] = static_cast<char>(changed[size] ^ 0x81);
        expectJudged({ "changed at " + std::to_string(size), changed });
    }
    for (const Damage& damage : damagesTo(whole)) {
        expectJudged(damage);
    }
    EXPECT_GE(cases, 150);
}

// The folder of the data may be anybody's, too.
TEST_F(BadFiles, WhatBearsACataloguesNameAndIsNoFileIsNeitherWaitedForNorRead)
{
    for (const NoFile& thing : noFiles()) {
        SCOPED_TRACE(thing.name);
        const std::string folder = m_scratch.at("data");
        fs::remove_all(folder);
        fs::create_directories(folder);
        thing.put(folder + "/Theorems.txt");
        platform::MemoryPreferences preferences;
        platform::SeededRandom random(1);
        const desktop::qt::FileResources resources(QString::fromStdString(folder), {});
        const progress::CurrentGame game(preferences, random, resources);
        EXPECT_TRUE(game.catalogueOf(progress::Mode::Classic).empty());
        EXPECT_NE(game.catalogueErrors().find("Theorems.txt: cannot be read"), std::string::npos);
    }
}

// A whole file, cut after each byte: what was in it is still there, and the game goes on with the
// copy before, or anew.
TEST_F(BadFiles, PreferencesAreKeptAndTold)
{
    const std::string whole = ScratchFolder::read(preferences());
    std::vector<Damage> damages = damagesTo(whole);
    const std::size_t apart = isAskedForAll() ? 1 : 2;
    for (std::size_t size = 0; size + 2 < whole.size(); size += apart) {
        damages.push_back({ "cut after " + std::to_string(size), whole.substr(0, size) });
    }
    for (const char* text : { "[]", "3", "null", "\"text\"", "{", "{\"a\":}", "{\"a\":1,}",
             "{'a':1}", "{\"a\":1}}", "{\"a\":nan}", "{\"a\":\"\xff\"}" }) {
        damages.push_back({ text, text });
    }
    for (const Damage& damage : damages) {
        SCOPED_TRACE(damage.name);
        Home::prepare(home());
        write(preferences(), damage.bytes);
        desktop::qt::FilePreferences read(QString::fromStdString(preferences()));
        std::vector<std::string> told;
        read.setReporter([&](const QString& text) { told.push_back(text.toStdString()); });
        read.setValue("Name", std::string("Ada"));
        EXPECT_TRUE(isKept(preferences(), damage.bytes.substr(0, 100'000)));
        EXPECT_EQ(read.value("Name"), platform::PreferenceValue(std::string("Ada")));
        // Other line ends and a mark of byte order are no damage to such a text.
        const bool isUnderstood
            = desktop::qt::readPreferencesText(QByteArray::fromStdString(damage.bytes))
                  .document.has_value();
        EXPECT_NE(told.empty(), !isUnderstood);
        if (!told.empty()) {
            EXPECT_NE(told.front().find(preferences()), std::string::npos) << told.front();
        }
    }
    std::cout << damages.size() << " damaged preferences\n";
}

// A file of the right form that says what cannot be: it is played with what can.
TEST_F(BadFiles, ARecordOfNonsenseIsPlayedAsFarAsItGoes)
{
    const std::vector<std::string> values { "-1", "0", "12", "1e300", "-9223372036854775808",
        "9223372036854775807", "0.5", "true", "\"5\"", "null", "[1]", "{}", "4294967297" };
    int cases = 0;
    for (const char* key : { "TRNLevelKey", "TRNStageKey", "TRNScoreKey", "TRNEndlessParKey",
             "TRNEndlessScoreKey", "TRNFirstHintClickKey" }) {
        for (const std::string& value : values) {
            SCOPED_TRACE(key + (" " + value));
            Home::prepare(home());
            const std::string bytes = "{\"Player-New\": {\"TRNLevelKey\": 2, \"TRNStageKey\": 4, \""
                + std::string(key) + "\": " + value + "}}";
            write(preferences(), bytes);
            Visit visit(home());
            visit.step(0);
            EXPECT_TRUE(visit.game().controller().proof() != nullptr);
            ++cases;
        }
    }
    EXPECT_GE(cases, 70);
}

TEST_F(BadFiles, AJournalIsGoneOnWithAsFarAsItIsWhole)
{
    const std::string whole = Home::journalOfFewMoves(home());
    // What stands when so many lines are whole.
    std::vector<std::uint64_t> hashes { 0 };
    const auto text = play::readJournal(whole, "New");
    play::Replay replay;
    for (const play::JournalEntry& entry : text.entries) {
        ASSERT_EQ(replay.apply(entry.action), "");
        hashes.push_back(replay.hash());
    }
    ASSERT_GT(hashes.size(), 4U);
    std::size_t lines = 0; // whole ones, the head included
    for (std::size_t size = 0; size < whole.size(); ++size) {
        SCOPED_TRACE("cut after " + std::to_string(size));
        lines += size > 0 && whole[size - 1] == '\n' ? 1U : 0U;
        if (!isAskedForAll() && size % 3 != 0 && whole[size] != '\n'
            && (size == 0 || whole[size - 1] != '\n')) {
            continue; // the middle of a line is like its neighbours
        }
        Home::prepare(home());
        write(journal(), whole.substr(0, size));
        Visit visit(home());
        EXPECT_EQ(visit.hash(), lines == 0 ? 0 : hashes.at(lines - 1));
        EXPECT_TRUE(visit.told().empty()) << "an end in a line's middle is nobody's loss";
    }
}

TEST_F(BadFiles, ADamagedJournalIsKeptAndTold)
{
    const std::string whole = Home::journalOfFewMoves(home());
    std::vector<Damage> damages = damagesTo(whole);
    for (std::size_t at = 0; at + 1 < whole.size(); at += 5) {
        std::string changed = whole;
        changed[at] = static_cast<char>(changed[at] ^ 0x11);
        damages.push_back({ "changed at " + std::to_string(at), changed });
    }
    for (const Damage& damage : damages) {
        SCOPED_TRACE(damage.name);
        Home::prepare(home());
        write(journal(), damage.bytes);
        Visit visit(home());
        visit.step(0); // the puzzle in play is one that stood in the journal, or the place's own
        EXPECT_TRUE(visit.game().controller().proof() != nullptr);
        // What has not one whole line was never begun.
        const bool wasBegun = damage.bytes.find('\n') != std::string::npos
            || damage.bytes.size() > platform::Journal::kMostBytes;
        if (wasBegun) {
            EXPECT_FALSE(visit.told().empty());
            EXPECT_TRUE(isKept(journal(), damage.bytes));
        }
    }
    std::cout << damages.size() << " damaged journals\n";
}

// What is no file, or not ours, or in a place where nothing can be written.
TEST_F(BadFiles, WhateverBearsTheNameTheGameIsPlayed)
{
    const std::vector<HomeFault> faults = homeFaults();
    for (const HomeFault& fault : faults) {
        SCOPED_TRACE(fault.name);
        Home::prepare(home());
        const Home::Unprivileged nobody(home());
        fault.make(home());
        std::vector<std::string> told;
        std::uint64_t left = 0;
        {
            Visit visit(home());
            for (int step = 0; step < 3; ++step) {
                visit.step(step);
            }
            fault.meanwhile(home());
            visit.step(3);
            visit.step(4);
            visit.game().preferences().setValue("Name", std::string("Ada"));
            visit.end();
            EXPECT_EQ(visit.game().controller().lineCount(), 1U) << "play goes on";
            told = visit.told();
            left = visit.hash();
        }
        if (told.empty()) {
            Visit next(home());
            told = next.told(); // what was done behind the game's back, it finds later
            EXPECT_TRUE(!told.empty() || next.hash() == left) << "lost, and nobody was told";
        }
        EXPECT_EQ(told.empty(), fault.isSilent) << (told.empty() ? "" : told.front());
        fault.unmake(home());
    }
    std::cout << faults.size() << " bad places\n";
}

} // namespace veyrand::test
