#include "desktop/posix/FileJournal.h"
#include "desktop/posix/PosixDisk.h"
#include "support/ScratchFolder.h"

#include <atomic>
#include <cstdlib>
#include <random>

namespace veyrand::desktop::posix {

namespace {

int roundsWanted()
{
    const char* const wanted = std::getenv("VEYRAND_THREAD_ROUNDS");
    return wanted != nullptr ? std::atoi(wanted) : 20;
}

// A disk whose every fifth sync fails, as one does that is taken away.
class WornDisk final : public platform::Disk {
public:
    [[nodiscard]] std::string makeFolder(const std::string& path) override
    {
        return m_disk.makeFolder(path);
    }
    [[nodiscard]] Contents read(const std::string& path, std::size_t mostBytes) const override
    {
        return m_disk.read(path, mostBytes);
    }
    [[nodiscard]] bool exists(const std::string& path) const override
    {
        return m_disk.exists(path);
    }
    [[nodiscard]] std::string write(const std::string& path, std::string_view bytes) override
    {
        return m_disk.write(path, bytes);
    }
    [[nodiscard]] std::string append(const std::string& path, std::string_view bytes) override
    {
        return m_disk.append(path, bytes);
    }
    [[nodiscard]] std::string rename(const std::string& from, const std::string& to) override
    {
        return m_disk.rename(from, to);
    }
    [[nodiscard]] std::string remove(const std::string& path) override
    {
        return m_disk.remove(path);
    }
    [[nodiscard]] std::string syncFile(const std::string& path) override
    {
        std::string fault = m_disk.syncFile(path); // it takes its time to fail
        return ++m_syncs % 5 == 0 ? "the sync failed" : fault;
    }
    [[nodiscard]] std::string syncFolder(const std::string& path) override
    {
        return m_disk.syncFolder(path);
    }

private:
    PosixDisk m_disk;
    std::atomic<int> m_syncs = 0; // those of a beginning are made in the caller's thread
};

} // namespace

// tools/evidence threads runs it under the thread sanitizer, which sees what one run does not.
TEST(AJournalsThread, SyncsWhileTheGameGoesOnAndLosesNothing)
{
    std::mt19937 random(7);
    int told = 0; // of the faults, those that came from the thread
    for (int round = 0; round < roundsWanted(); ++round) {
        const test::ScratchFolder folder;
        WornDisk disk;
        std::string expected;
        {
            FileJournal journal(disk, folder.at("state"));
            const auto note = [&](const std::string& fault) { told += fault.empty() ? 0 : 1; };
            for (unsigned step = 0; step < 20 + random() % 20; ++step) {
                switch (expected.empty() ? 0 : random() % 12) {
                case 0: {
                    // A beginning whose own sync fails leaves what stood there.
                    const std::string fault = journal.begin("a.txt", { "head" });
                    const auto found = journal.read("a.txt").contents.value_or("");
                    EXPECT_TRUE(found == "head\n" || (!fault.empty() && found == expected))
                        << found;
                    expected = found;
                    break;
                }
                case 1:
                    note(journal.drain());
                    break;
                case 2:
                    EXPECT_TRUE(journal.keepAside("a.txt", "misfit").has_value());
                    expected.clear();
                    break;
                case 3:
                    EXPECT_TRUE(journal.remove("a.txt"));
                    expected.clear();
                    break;
                default:
                    note(journal.append("a.txt", "line " + std::to_string(step)));
                    expected += "line " + std::to_string(step) + '\n';
                    break;
                }
            }
            note(journal.drain());
        }
        EXPECT_EQ(
            FileJournal(disk, folder.at("state")).read("a.txt").contents.value_or(""), expected);
    }
    EXPECT_GT(told, 0) << "nobody was told of a sync that failed";
}

} // namespace veyrand::desktop::posix
