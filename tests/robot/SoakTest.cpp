#include "app/VirtualGame.h"
#include "play/Decide.h"
#include "progress/PlayerKeys.h"
#include "robot/MemoryUse.h"
#include "robot/Robot.h"
#include "support/FolderDisk.h"
#include "support/Places.h"
#include "support/QtEnvironment.h"
#include "support/Replayed.h"
#include "support/Simulator.h"

#include <QTemporaryDir>

#include <filesystem>
#include <gtest/gtest.h>
#include <iostream>
#include <random>

namespace veyrand::test {

namespace {

constexpr double kHour = 3600.0;
constexpr QSize kUsualSize { 1440, 900 };
constexpr QSize kOtherSize { 960, 600 };

// What a process has that it may leak.
struct Holdings {
    MemoryUse memory;
    int descriptors = 0;
    std::size_t callsWaiting = 0; // at rest
};

int openDescriptors()
{
    const std::filesystem::directory_iterator all("/proc/self/fd");
    return static_cast<int>(std::distance(begin(all), end(all)));
}

// Somebody who leaves the game open for days: solves short puzzles, looks at the map and the Help
// pages, takes hints, takes moves back, makes the window larger and smaller, goes for a coffee, and
// comes back. What is kept goes to real files.
class LongVisit {
public:
    explicit LongVisit(std::uint32_t seed)
        : m_simulator(seed, m_disk, options())
    {
        m_simulator.launch();
        game().wait(1.0);
        m_robot.emplace(game().headless());
        m_robot->click("button-endlessbuttonon");
    }

    // Plays until so many hours of the visit are over, and rests.
    Holdings after(double hours)
    {
        while (game().runLoop().now() < hours * kHour && !testing::Test::HasFailure()) {
            playOne();
            std::uniform_real_distribution<double> pause(0.0, 30.0);
            game().wait(pause(m_simulator.dice()));
        }
        // What is painted for one size may be kept until there is another.
        for (const QSize size : { kOtherSize, kUsualSize }) {
            resize(size);
            game().wait(60.0);
            static_cast<void>(game().picture());
        }
        return { memoryUse(), openDescriptors(), game().runLoop().callsWaiting() };
    }

    [[nodiscard]] int solved() const { return m_solved; }
    [[nodiscard]] unsigned long eventsSent() const { return m_robot->eventsSent(); }

private:
    void playOne()
    {
        m_robot->readPages();
        switch (m_solved % 8) {
        case 1:
            press("button-lightbulbon");
            press("button-lightbulbon");
            break;
        case 3:
            move();
            key("Ctrl+Z");
            key("Ctrl+Shift+Z");
            key("Ctrl+Z");
            stepInHaste();
            break;
        case 4:
            key("Ctrl+P");
            key("Esc");
            break;
        case 5:
            key("F1");
            key("Esc");
            break;
        case 6:
            resize(m_size == kUsualSize ? kOtherSize : kUsualSize);
            break;
        default:
            break;
        }
        m_robot->readPages();
        ASSERT_TRUE(m_robot->solvePuzzle());
        ++m_solved;
        static_cast<void>(game().picture()); // what is seen is painted
        game().wait(0.3);
        static_cast<void>(game().picture());
        m_robot->waitUntilUnblocked();
        static_cast<void>(game().sounds().takePlayed());
    }

    void resize(QSize size)
    {
        m_size = size;
        game().resize(size);
    }

    void press(const std::string& button)
    {
        if (const auto place = game().centreOf(button)) {
            game().click(*place);
            m_robot->waitUntilUnblocked();
        }
    }

    void key(const char* keys)
    {
        game().key(QString::fromLatin1(keys));
        game().wait(1.5); // a page stays for a second
        static_cast<void>(game().picture());
        m_robot->waitUntilUnblocked();
    }

    // Every step while the one before is still shown.
    void stepInHaste()
    {
        constexpr double kAmidAStep = 0.1;
        move();
        move();
        for (const char* const keys :
            { "Ctrl+Z", "Ctrl+Z", "Ctrl+Shift+Z", "Ctrl+Shift+Z", "Ctrl+Z", "Ctrl+Z" }) {
            game().key(QString::fromLatin1(keys));
            game().wait(kAmidAStep);
            m_robot->checkAlways();
        }
        game().wait(1.5);
        m_robot->waitUntilUnblocked();
    }

    // Some move, wherever it leads.
    void move()
    {
        const auto all = play::actions(game().controller().moves().position());
        for (const play::Gesture& gesture : all) {
            if (const auto* const click = std::get_if<play::Click>(&gesture)) {
                return press(board::generateKeyChipKey(click->column, click->row));
            }
        }
    }

    [[nodiscard]] static app::VirtualGame::Options options()
    {
        return { .preferences
            = { .values = { { std::string(progress::kEndlessGameUnlockedKey), true } },
                .records = { { progress::playerRecordKey(progress::kDefaultPlayerName),
                    { { std::string(progress::kEndlessParKey), 3 } } } } },
            .dataFolder = QString::fromStdString(dataFolder()) };
    }
    [[nodiscard]] app::VirtualGame& game() { return m_simulator.game(); }

    QTemporaryDir m_folder;
    FolderDisk m_disk { m_folder.path() };
    Simulator<app::VirtualGame> m_simulator;
    std::optional<Robot> m_robot;
    int m_solved = 0;
    QSize m_size = kUsualSize;
};

} // namespace

TEST(Soak, DaysOfPlayLeaveNothingBehind)
{
    if (!kMemoryIsCounted) {
        GTEST_SKIP();
    }
    const int hours = numberOf("VEYRAND_SOAK_HOURS", 2);
    const auto seed = static_cast<std::uint32_t>(numberOf("VEYRAND_SOAK_SEED", 1));
    SCOPED_TRACE(howToReplay("soak", seed));
    LongVisit visit(seed);
    const Holdings first = visit.after(1.0);
    Holdings most = first;
    for (int hour = 2; hour <= hours && !HasFailure(); ++hour) {
        const Holdings now = visit.after(hour);
        if (hour <= 4 || hour % 12 == 0) {
            std::cout << hour << " hours: " << now.memory.inUse << " MB in use, "
                      << now.memory.resident << " MB resident\n";
        }
        most.memory.inUse = std::max(most.memory.inUse, now.memory.inUse);
        most.memory.resident = std::max(most.memory.resident, now.memory.resident);
        most.descriptors = std::max(most.descriptors, now.descriptors);
        most.callsWaiting = std::max(most.callsWaiting, now.callsWaiting);
    }
    std::cout << "in " << hours << " hours of play " << visit.solved() << " puzzles and "
              << visit.eventsSent() << " events; after the first hour at most "
              << most.memory.inUse - first.memory.inUse << " MB more in use (of "
              << first.memory.inUse << "), " << most.memory.resident - first.memory.resident
              << " MB more resident (of " << first.memory.resident << "), " << most.descriptors
              << " descriptors (" << first.descriptors << "), " << most.callsWaiting
              << " delayed calls waiting at rest (" << first.callsWaiting << ")\n";
    EXPECT_LT(most.memory.inUse - first.memory.inUse, 1.0);
    EXPECT_LT(most.memory.resident - first.memory.resident, 4.0);
    EXPECT_EQ(most.descriptors, first.descriptors);
    EXPECT_LE(most.callsWaiting, first.callsWaiting + 2);
}

} // namespace veyrand::test
