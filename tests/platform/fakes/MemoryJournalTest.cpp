#include "platform/fakes/MemoryJournal.h"

#include "platform/JournalContract.h"

namespace veyrand::platform {

namespace {

class MemoryJournalHarness {
public:
    Journal& journal() { return m_journal; }
    void reopen() { } // a killed game leaves the object behind
    void write(const std::string& name, const std::string& text) { m_journal.write(name, text); }

private:
    MemoryJournal m_journal;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, JournalContract, MemoryJournalHarness);

TEST(MemoryJournal, FailsWhenItIsTold)
{
    MemoryJournal journal;
    ASSERT_EQ(journal.begin("a.txt", { "one" }), "");
    journal.failWith("the disk is full");
    EXPECT_EQ(journal.append("a.txt", "two"), "the disk is full");
    EXPECT_EQ(journal.begin("a.txt", { "two" }), "the disk is full");
    EXPECT_EQ(journal.drain(), "the disk is full");
    journal.failWith("");
    EXPECT_EQ(journal.read("a.txt").contents, "one\n");
}

TEST(MemoryJournal, TellsOnceOfWhatWentWrongLater)
{
    MemoryJournal journal;
    ASSERT_EQ(journal.begin("a.txt", { "one" }), "");
    journal.failLateWith("the disk has gone");
    EXPECT_EQ(journal.drain(), "the disk has gone");
    EXPECT_EQ(journal.drain(), "");
    journal.failLateWith("the disk has gone");
    EXPECT_EQ(journal.append("a.txt", "two"), "the disk has gone");
    EXPECT_EQ(journal.append("a.txt", "three"), "");
    EXPECT_EQ(journal.read("a.txt").contents, "one\ntwo\nthree\n");
}

} // namespace veyrand::platform
