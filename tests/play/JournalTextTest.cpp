#include "play/JournalText.h"

#include "play/ActionGenerators.h"
#include "play/Fnv.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace veyrand::play {

using progress::Mode;
using State = JournalText::State;

namespace {

std::string written(std::string_view player, const std::vector<JournalEntry>& entries)
{
    JournalWriter writer;
    std::string text = writer.head(player) + '\n';
    for (const JournalEntry& entry : entries) {
        text += writer.line(entry) + '\n';
    }
    return text;
}

std::vector<JournalEntry> someEntries()
{
    return {
        { Puzzle { Mode::Classic, { 5, 4 }, "YGBRB", "BBYBB", 6, 470, 0 }, {} },
        { Move { 1, 0 }, "YGBRBGBRB" },
        { Remove { 1 }, "YGBRB" },
        { Hint { Hint::Kind::Pieces }, "YGBRB" },
        { Hint { Hint::Kind::Line, 0, { 6, 0 } }, "YGBB" },
        { Undo {}, "YGBRB" },
        { Redo {}, "YGBB" },
    };
}

} // namespace

TEST(Fnv, SumsAsItAlwaysDid)
{
    // The figures that its authors publish.
    EXPECT_EQ(fnv1a(""), 0xcbf29ce484222325U);
    EXPECT_EQ(fnv1a("a"), 0xaf63dc4c8601ec8cU);
    EXPECT_EQ(fnv1a("foobar"), 0x85944171f73967e8U);
    EXPECT_EQ(fnv1a("bar", fnv1a("foo")), fnv1a("foobar"));
}

// Journals of today are read by every version to come.
TEST(JournalText, ReadsAsItAlwaysDid)
{
    EXPECT_EQ(written("New", someEntries()),
        "veyrand-actions 1 New #4b9b3b0f\n"
        "puzzle 5-4 YGBRB BBYBB 6 470 0 #7c826051\n"
        "move 1 0 = YGBRBGBRB #316cc927\n"
        "remove 1 = YGBRB #e81506cf\n"
        "hint pieces = YGBRB #345673a0\n"
        "hint line 6 0 = YGBB #6d3efe50\n"
        "undo = YGBRB #19202702\n"
        "redo = YGBB #4ef8b481\n");
}

TEST(JournalText, AnyNameOfAPlayerMakesAName)
{
    EXPECT_EQ(journalName("New", Mode::Classic), "New-classic.txt");
    EXPECT_EQ(journalName("Zoë 2", Mode::Endless), "Zo%C3%AB%202-endless.txt");
    EXPECT_EQ(journalName("../a\n%", Mode::Classic), "%2E%2E%2Fa%0A%25-classic.txt");
}

RC_GTEST_PROP(JournalText, WhatIsWrittenIsRead, ())
{
    const auto player = *rc::gen::arbitrary<std::string>();
    const auto actions = *rc::gen::container<std::vector<Action>>(anyAction());
    std::vector<JournalEntry> entries;
    for (const Action& action : actions) {
        entries.push_back({ action, *rc::gen::oneOf(anyChips(), rc::gen::just(std::string())) });
    }
    const JournalText found = readJournal(written(player, entries), player);
    RC_ASSERT((found.state == State::Whole));
    RC_ASSERT((found.entries == entries));
    RC_ASSERT(found.checks.size() == entries.size() + 1);
}

TEST(JournalText, AWriterGoesOnWhereAnotherEnded)
{
    const auto entries = someEntries();
    const std::vector<JournalEntry> first(entries.begin(), entries.begin() + 3);
    std::string text = written("New", first);
    JournalWriter writer(readJournal(text, "New").checks.back());
    for (std::size_t i = first.size(); i < entries.size(); ++i) {
        text += writer.line(entries[i]) + '\n';
    }
    EXPECT_EQ(text, written("New", entries));
}

TEST(JournalText, ALineThatWasNeverEndedIsNobodysLoss)
{
    const auto entries = someEntries();
    const std::string text = written("New", entries);
    for (std::size_t size = 0; size < text.size(); ++size) {
        const JournalText found = readJournal(text.substr(0, size), "New");
        ASSERT_EQ(found.state, State::Whole) << size;
        const auto lines = static_cast<std::size_t>(
            std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(size), '\n'));
        ASSERT_EQ(found.entries.size(), lines == 0 ? 0 : lines - 1);
    }
}

TEST(JournalText, NoByteChangesUnseen)
{
    const auto entries = someEntries();
    const std::string text = written("New", entries);
    std::size_t line = 1;
    for (std::size_t at = 0; at < text.size(); ++at) {
        for (unsigned bit = 0; bit < 8; ++bit) {
            std::string changed = text;
            changed[at] = static_cast<char>(static_cast<unsigned char>(text[at]) ^ (1U << bit));
            const JournalText found = readJournal(changed, "New");
            if (at + 1 == text.size()) { // the last line was never ended
                ASSERT_EQ(found.state, State::Whole);
                ASSERT_EQ(found.entries.size(), entries.size() - 1);
            } else if (found.state != State::Newer) { // which a digit of the head can make it
                ASSERT_EQ(found.state, State::Damaged) << "byte " << at << ", bit " << bit;
                ASSERT_EQ(found.damagedLine, line) << "byte " << at << ", bit " << bit;
                ASSERT_EQ(found.entries.size(), line < 2 ? 0 : line - 2);
            } else {
                ASSERT_EQ(line, 1U);
            }
        }
        line += text[at] == '\n' ? 1 : 0;
    }
}

// The check goes on from line to line, so that none can be left out, doubled or exchanged.
TEST(JournalText, NoLineGoesOrMovesUnseen)
{
    JournalWriter writer;
    const std::string head = writer.head("New") + '\n';
    const std::string one = writer.line({ Move { 1, 0 }, "YGG" }) + '\n';
    const std::string two = writer.line({ Move { 1, 0 }, "YGGGG" }) + '\n';
    EXPECT_EQ(readJournal(head + one + two, "New").state, State::Whole);
    EXPECT_EQ(readJournal(head + two, "New").damagedLine, 2U);
    EXPECT_EQ(readJournal(head + one + one, "New").damagedLine, 3U);
    EXPECT_EQ(readJournal(head + two + one, "New").damagedLine, 2U);
    EXPECT_EQ(readJournal(one + two, "New").damagedLine, 1U);
}

TEST(JournalText, KnowsWhoseItIs)
{
    const std::string text = written("Zoë", someEntries());
    EXPECT_EQ(readJournal(text, "Zoë").state, State::Whole);
    EXPECT_EQ(readJournal(text, "New").state, State::Foreign);
    EXPECT_EQ(readJournal(text).state, State::Whole);
    EXPECT_EQ(readJournal(text).entries, someEntries());
}

TEST(JournalText, KnowsThatItWillOneDayBeWrittenOtherwise)
{
    EXPECT_EQ(readJournal("veyrand-actions 2 New\nanything\n", "New").state, State::Newer);
    EXPECT_EQ(readJournal("veyrand-actions 17 New #00000000\n", "New").state, State::Newer);
    EXPECT_EQ(readJournal("veyrand-actions 0 New #00000000\n", "New").state, State::Damaged);
    EXPECT_EQ(readJournal("veyrand-actions x New\n", "New").state, State::Damaged);
    EXPECT_EQ(readJournal("something else\n", "New").state, State::Damaged);
    EXPECT_EQ(readJournal("", "New").state, State::Whole);
}

// Nothing that the game writes, though each line's check is right.
TEST(JournalText, ALineOfSomethingElseIsDamaged)
{
    for (const char* line : { "dance", "", "move 1", "move 1 0 0", "puzzle", "remove", "hint",
             "hint line 1", "hint back", "hint nothing at all", "undo 1", "leave", "leave x",
             "puzzle 54 YR YB 2 0 0", "puzzle 5-4 YR YB 2 0", "puzzle 5-4 YR YB x 0 0",
             "puzzle 5-4 YR YB 2 x 0", "puzzle 5-4 YR YB 2 0 x" }) {
        JournalWriter writer;
        std::string text = writer.head("New") + '\n';
        text += writer.checked(line) + '\n';
        text += writer.line({ Undo {}, "YR" }) + '\n';
        const JournalText read = readJournal(text, "New");
        EXPECT_EQ(read.state, State::Damaged) << line;
        EXPECT_EQ(read.damagedLine, 2U) << line;
        EXPECT_TRUE(read.entries.empty()) << line;
    }
    JournalWriter writer;
    const std::string head = writer.head("New") + '\n';
    for (const char* line : { "x\n", "\n", " #\n", "#4b9b3b0f\n" }) {
        EXPECT_EQ(readJournal(head + line, "New").damagedLine, 2U) << line;
    }
}

} // namespace veyrand::play
