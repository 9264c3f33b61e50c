#include "desktop/posix/FileJournal.h"

#include "desktop/posix/PosixDisk.h"
#include "platform/JournalContract.h"
#include "platform/fakes/PowerCutDisk.h"
#include "support/ScratchFolder.h"

#include <algorithm>
#include <functional>
#include <memory>

namespace veyrand::desktop::posix {

using platform::PowerCutDisk;
using Lines = std::vector<std::string>;

namespace {

const std::string kFolder = "/state/veyrand";

class OnDiskHarness {
public:
    platform::Journal& journal() { return *m_journal; }
    void reopen()
    {
        m_journal.reset();
        m_journal = opened();
    }
    void write(const std::string& name, const std::string& text)
    {
        test::ScratchFolder::write(m_folder.at("state/" + name), text);
    }

private:
    std::unique_ptr<FileJournal> opened()
    {
        return std::make_unique<FileJournal>(m_disk, m_folder.at("state"));
    }

    test::ScratchFolder m_folder;
    PosixDisk m_disk;
    std::unique_ptr<FileJournal> m_journal = opened();
};

class InMemoryHarness {
public:
    platform::Journal& journal() { return *m_journal; }
    void reopen() { m_journal = opened(); }
    void write(const std::string& name, const std::string& text)
    {
        EXPECT_EQ(m_disk.makeFolder(kFolder), "");
        EXPECT_EQ(m_disk.write(kFolder + '/' + name, text), "");
    }

private:
    std::unique_ptr<FileJournal> opened()
    {
        return std::make_unique<FileJournal>(m_disk, kFolder, FileJournal::Syncing::WhenDrained);
    }

    PowerCutDisk m_disk;
    std::unique_ptr<FileJournal> m_journal = opened();
};

// The lines up to the first that was torn; what is whole ends with a full stop here.
Lines wholeLinesOf(const PowerCutDisk::State& state)
{
    const auto file = state.find(kFolder + "/a.txt");
    Lines lines;
    std::string text = file == state.end() ? std::string() : file->second;
    for (std::size_t end = text.find(".\n"); end != std::string::npos; end = text.find(".\n")) {
        lines.push_back(text.substr(0, end + 1));
        if (lines.back().find('\0') != std::string::npos) {
            lines.pop_back();
            return lines;
        }
        text.erase(0, end + 2);
    }
    return lines;
}

// Goes through the life of a journal, and after each step through every disk that the end of the
// power could leave: what was drained must be there, or something later. Returns how many disks
// held something older, or what never was.
class PowerCuts {
public:
    explicit PowerCuts(PowerCutDisk::Syncs syncs)
        : m_disk(syncs)
    {
    }

    void begin(const Lines& lines)
    {
        EXPECT_EQ(m_journal.begin("a.txt", lines), "");
        look(lines);
    }
    void append(const std::string& line)
    {
        EXPECT_EQ(m_journal.append("a.txt", line), "");
        Lines lines = m_versions.back();
        lines.push_back(line);
        look(std::move(lines));
    }
    void keepAside()
    {
        EXPECT_TRUE(m_journal.keepAside("a.txt", "aside").has_value());
        look({});
    }
    void remove()
    {
        EXPECT_TRUE(m_journal.remove("a.txt"));
        look({});
    }
    void drain()
    {
        EXPECT_EQ(m_journal.drain(), "");
        m_drained = m_versions.size() - 1;
        look(m_versions.back());
    }

    [[nodiscard]] std::size_t disks() const { return m_disks; }
    [[nodiscard]] std::size_t losses() const { return m_losses; }

private:
    void look(Lines lines)
    {
        m_versions.push_back(std::move(lines));
        const auto oldest = m_versions.begin() + static_cast<std::ptrdiff_t>(m_drained);
        for (const PowerCutDisk::State& state : m_disk.statesAfterPowerCut()) {
            ++m_disks;
            m_losses += std::find(oldest, m_versions.end(), wholeLinesOf(state)) == m_versions.end()
                ? 1
                : 0;
        }
    }

    PowerCutDisk m_disk;
    FileJournal m_journal { m_disk, kFolder, FileJournal::Syncing::WhenDrained };
    std::vector<Lines> m_versions { {} };
    std::size_t m_drained = 0;
    std::size_t m_disks = 0;
    std::size_t m_losses = 0;
};

void liveThrough(PowerCuts& cuts)
{
    cuts.begin({ "head 1.", "puzzle 1." });
    cuts.drain();
    cuts.append("move 1.");
    cuts.append("move 2.");
    cuts.drain();
    cuts.append("move 3.");
    cuts.begin({ "head 2.", "puzzle 2." });
    cuts.append("move 4.");
    cuts.drain();
    cuts.begin({ "head 3.", "moves 1 to 4 as one." });
    cuts.append("move 5.");
    cuts.append("move 6.");
    cuts.drain();
    cuts.keepAside();
    cuts.drain();
    cuts.begin({ "head 4." });
    cuts.append("move 7.");
    cuts.drain();
    cuts.remove();
    cuts.drain();
}

} // namespace

} // namespace veyrand::desktop::posix

namespace veyrand::platform {
INSTANTIATE_TYPED_TEST_SUITE_P(OnDisk, JournalContract, desktop::posix::OnDiskHarness);
INSTANTIATE_TYPED_TEST_SUITE_P(InMemory, JournalContract, desktop::posix::InMemoryHarness);
} // namespace veyrand::platform

namespace veyrand::desktop::posix {

TEST(FileJournal, LosesNothingToAPowerCutThatItHasDrained)
{
    PowerCuts cuts(PowerCutDisk::Syncs::Work);
    liveThrough(cuts);
    EXPECT_EQ(cuts.losses(), 0U);
    EXPECT_GT(cuts.disks(), 100U) << "too few disks for the test to mean anything";
}

TEST(FileJournal, WouldLoseWithoutItsSyncs)
{
    PowerCuts cuts(PowerCutDisk::Syncs::DoNothing);
    cuts.begin({ "head 1." });
    cuts.drain();
    cuts.append("move 1.");
    cuts.append("move 2.");
    cuts.drain();
    EXPECT_GT(cuts.losses(), 20U);
}

TEST(FileJournal, LeavesTheOldTextWhereTheNewOneFindsNoRoom)
{
    PowerCutDisk disk;
    FileJournal journal(disk, kFolder);
    ASSERT_EQ(journal.begin("a.txt", { "old" }), "");
    disk.leaveRoomFor(2);
    EXPECT_EQ(journal.begin("a.txt", { "new" }), "No space left on device");
    EXPECT_EQ(journal.append("a.txt", "line"), "No space left on device");
    EXPECT_EQ(journal.read("a.txt").contents, "old\n");
}

TEST(FileJournal, TellsWhenASyncHasFailed)
{
    class FailingSync final : public platform::Disk {
    public:
        std::string makeFolder(const std::string&) override { return {}; }
        [[nodiscard]] Contents read(const std::string&, std::size_t) const override { return {}; }
        [[nodiscard]] bool exists(const std::string&) const override { return false; }
        std::string write(const std::string&, std::string_view) override { return {}; }
        std::string append(const std::string&, std::string_view) override { return {}; }
        std::string rename(const std::string&, const std::string&) override { return {}; }
        std::string remove(const std::string&) override { return {}; }
        std::string syncFile(const std::string&) override { return "Input/output error"; }
        std::string syncFolder(const std::string&) override { return {}; }
    };
    FailingSync disk;
    FileJournal journal(disk, kFolder);
    EXPECT_EQ(journal.append("a.txt", "line"), "") << "nobody waits for the sync";
    EXPECT_EQ(journal.drain(), "Input/output error");
    EXPECT_EQ(journal.drain(), "") << "it has been told";
}

} // namespace veyrand::desktop::posix
