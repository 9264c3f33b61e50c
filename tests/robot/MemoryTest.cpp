#include "app/VirtualGame.h"
#include "progress/PlayerKeys.h"
#include "progress/Settings.h"
#include "robot/MemoryUse.h"
#include "robot/Robot.h"
#include "support/Places.h"
#include "support/QtEnvironment.h"

#include <gtest/gtest.h>
#include <iostream>

namespace veyrand::test {

namespace {

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

TEST(Memory, StaysWhatItWasHoweverManyPuzzlesAreSolved)
{
    if (!kMemoryIsCounted) {
        GTEST_SKIP();
    }
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
