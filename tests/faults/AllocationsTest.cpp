#include "faults/Allocations.h"

#include "faults/Share.h"
#include "faults/Visit.h"
#include "support/ScratchFolder.h"

#include <array>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <sys/wait.h>
#include <unistd.h>

namespace veyrand::test {

namespace {

namespace fs = std::filesystem;

// Every file below a folder, and back.
class Snapshot {
public:
    explicit Snapshot(std::string folder)
        : m_folder(std::move(folder))
    {
        for (const auto& entry : fs::recursive_directory_iterator(m_folder)) {
            if (entry.is_regular_file()) {
                m_files[entry.path().string()] = ScratchFolder::read(entry.path().string());
            }
        }
    }

    // The lock stays, for it is held.
    void restore() const
    {
        std::vector<fs::path> found;
        for (const auto& entry : fs::recursive_directory_iterator(m_folder)) {
            if (entry.is_regular_file() && !m_files.contains(entry.path().string())) {
                found.push_back(entry.path());
            }
        }
        for (const fs::path& path : found) {
            fs::remove(path);
        }
        for (const auto& [path, text] : m_files) {
            if (ScratchFolder::read(path) != text) {
                fs::remove(path); // it may have another name by now, which is restored by itself
                ScratchFolder::write(path, text);
            }
        }
    }
    void copyTo(const std::string& folder) const
    {
        fs::remove_all(folder);
        for (const auto& [path, text] : m_files) {
            ScratchFolder::write(folder + path.substr(m_folder.size()), text);
        }
    }

private:
    std::string m_folder;
    std::map<std::string, std::string> m_files;
};

// Does it in another process, which may end as it likes: by itself, or by being ended.
void inAnotherProcess(const std::function<void()>& act)
{
    const pid_t child = ::fork();
    if (child == 0) {
        // What it says on its way is no news.
        static_cast<void>(std::freopen("/dev/null", "w", stderr));
        try {
            act();
        } catch (const std::bad_alloc&) { // as the game's own process would end by one
        }
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
}

class FailingAllocations : public ::testing::Test {
protected:
    // How many allocations the act makes, which is not done here.
    std::size_t allocationsOf(const std::function<void()>& act)
    {
        std::array<int, 2> ends {};
        EXPECT_EQ(::pipe(ends.data()), 0);
        inAnotherProcess([&] {
            allocations::failAt(allocations::kNone);
            act();
            const std::size_t count = allocations::stop();
            static_cast<void>(!::write(ends[1], &count, sizeof count));
        });
        std::size_t count = 0;
        EXPECT_EQ(::read(ends[0], &count, sizeof count), static_cast<ssize_t>(sizeof count));
        ::close(ends[0]);
        ::close(ends[1]);
        return count;
    }

    struct Found {
        std::string standing;
        std::uint64_t hash = 0;
        std::string told;
    };
    // What the next process would find.
    [[nodiscard]] Found findIn(const Snapshot& left)
    {
        left.copyTo(m_scratch.at("found"));
        Visit visit(m_scratch.at("found"));
        return { visit.standing(), visit.hash(), visit.told().empty() ? "" : visit.told().front() };
    }

    // The act runs in processes of their own, in each of which another allocation fails, at most so
    // many of them. The next process finds a record as it stood before or as it stands behind the
    // act, and the puzzle as it was at some moment of it.
    void expectSurvival(const char* name, const std::function<void()>& act, std::size_t most)
    {
        SCOPED_TRACE(name);
        const Snapshot before(home());
        const std::size_t all = allocationsOf(act);
        const Found early = findIn(before);
        const Found late = findIn(Snapshot(home()));
        before.restore();
        const std::size_t step = std::max<std::size_t>(1, all / std::max<std::size_t>(1, most));
        for (std::size_t number = 0; number < all && !HasFailure(); number += step) {
            SCOPED_TRACE("allocation " + std::to_string(number) + " of " + std::to_string(all));
            inAnotherProcess([&] {
                allocations::failAt(number);
                act();
            });
            const Found found = findIn(Snapshot(home()));
            EXPECT_TRUE(found.standing == early.standing || found.standing == late.standing)
                << found.standing;
            EXPECT_TRUE(found.hash != 0 || early.hash == 0 || found.standing != early.standing)
                << "no puzzle";
            EXPECT_EQ(found.told, "");
            before.restore();
            ++m_done;
        }
    }

    [[nodiscard]] std::string home() const { return m_scratch.at("home"); }

    ScratchFolder m_scratch;
    int m_done = 0;
};

} // namespace

TEST_F(FailingAllocations, NeverHarmTheRecord)
{
    // Of a launch and of each step.
    const std::size_t most = isAskedForAll() ? 200 : 5;
    Visit::prepare(home());
    expectSurvival(
        "launch", [&] { Visit visit(home()); }, most);
    Visit visit(home());
    for (int step = 0; step < Visit::kSteps && !HasFailure(); ++step) {
        expectSurvival(
            Visit::nameOf(step), [&] { visit.step(step); }, most);
        visit.step(step);
    }
    const int others = m_done;
    constexpr std::size_t kAll = 1'000'000;
    expectSurvival(
        "save", [&] { visit.game().preferences().setValue("Name", std::string(100, 'x')); },
        isAskedForAll() ? kAll : 40);
    visit.step(0);
    expectSurvival(
        "a line of the journal",
        [&] {
            static_cast<void>(visit.game().controller().flow().apply(play::Move { 1, 0 }));
        },
        isAskedForAll() ? kAll : 40);
    std::cout << m_done - others << " allocations of a save and " << others
              << " others of a visit failed\n";
}

} // namespace veyrand::test
