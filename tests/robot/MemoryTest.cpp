#include "app/VirtualGame.h"
#include "progress/PlayerKeys.h"
#include "progress/Settings.h"
#include "robot/Robot.h"
#include "support/Places.h"
#include "support/QtEnvironment.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iostream>
#include <malloc.h>
#include <unistd.h>

namespace veyrand::test {

namespace {

constexpr double kMegabyte = 1024.0 * 1024.0;

struct MemoryUse {
    double inUse = 0.0; // megabytes that were asked for and not given back
    double resident = 0.0; // megabytes of the machine's that the process has
};

MemoryUse memoryUse()
{
    malloc_trim(0); // what has been given back is nobody's
    const auto info = ::mallinfo2();
    std::ifstream pages("/proc/self/statm");
    double all = 0.0;
    double resident = 0.0;
    pages >> all >> resident;
    return { .inUse = static_cast<double>(info.uordblks + info.hblkhd) / kMegabyte,
        .resident = resident * static_cast<double>(::sysconf(_SC_PAGESIZE)) / kMegabyte };
}

int numberOf(const char* variable, int usual)
{
    const char* const wanted = std::getenv(variable);
    return wanted != nullptr ? std::atoi(wanted) : usual;
}

// Short puzzles of the Endless game, painted as they begin, while a line slides and while they are
// celebrated.
class LongGame {
public:
    LongGame()
        : m_game({ .window = { 1920, 1080 },
            .preferences = { .values = { { std::string(progress::kEndlessGameUnlockedKey), true } },
                .records = { { progress::playerRecordKey(progress::kDefaultPlayerName),
                    { { std::string(progress::kEndlessParKey), 3 } } } } },
            .dataFolder = QString::fromStdString(test::dataFolder()) })
        , m_robot(m_game.headless())
    {
        m_game.launch();
        m_game.wait(1.0);
        m_robot.click("button-endlessbuttonon");
    }

    // At the beginning of a puzzle, after so many have been solved.
    MemoryUse after(int puzzles)
    {
        for (; m_solved < puzzles && m_robot.solvePuzzle(); ++m_solved) {
            static_cast<void>(m_game.picture());
            m_game.wait(0.3);
            static_cast<void>(m_game.picture());
            m_robot.waitUntilUnblocked();
            static_cast<void>(m_game.sounds().takePlayed()); // or the list would grow
        }
        EXPECT_EQ(m_solved, puzzles);
        return memoryUse();
    }

private:
    app::VirtualGame m_game;
    Robot m_robot;
    int m_solved = 0;
};

} // namespace

// The sanitizers bring an allocator of their own, which knows no such figures.
TEST(Memory, StaysWhatItWasHoweverManyPuzzlesAreSolved)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP();
#endif
    const int begin = numberOf("VEYRAND_FIRST_PUZZLES", 100);
    const int end = numberOf("VEYRAND_PUZZLES", 130);
    LongGame game;
    const MemoryUse first = game.after(begin);
    MemoryUse most = first;
    for (int puzzles = begin; puzzles < end;) {
        puzzles = std::min(puzzles + 100, end);
        const MemoryUse now = game.after(puzzles);
        most.inUse = std::max(most.inUse, now.inUse);
        most.resident = std::max(most.resident, now.resident);
        if (puzzles % 1000 == 0) {
            std::cout << puzzles << " puzzles: " << now.inUse << " MB in use, " << now.resident
                      << " MB resident" << std::endl;
        }
    }
    std::cout << "from puzzle " << begin << " to " << end << " at 1920x1080 at most "
              << most.inUse - first.inUse << " MB more in use (of " << first.inUse << "), "
              << most.resident - first.resident << " MB more resident (of " << first.resident
              << ")\n";
    EXPECT_LE(most.inUse - first.inUse, 1.0);
    EXPECT_LE(most.resident - first.resident, 4.0);
}

} // namespace veyrand::test
