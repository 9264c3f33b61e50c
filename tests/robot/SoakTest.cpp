#include "app/VirtualGame.h"
#include "desktop/posix/FileJournal.h"
#include "desktop/posix/PosixDisk.h"
#include "desktop/qt/FilePreferences.h"
#include "play/Decide.h"
#include "progress/PlayerKeys.h"
#include "robot/MemoryUse.h"
#include "robot/Robot.h"
#include "support/Places.h"
#include "support/QtEnvironment.h"

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
        : m_random(seed)
    {
        m_game.launch();
        m_game.wait(1.0);
        m_robot.click("button-endlessbuttonon");
    }

    // Plays until so many hours of the visit are over, and rests.
    Holdings after(double hours)
    {
        while (m_game.runLoop().now() < hours * kHour && !testing::Test::HasFailure()) {
            playOne();
            std::uniform_real_distribution<double> pause(0.0, 30.0);
            m_game.wait(pause(m_random));
        }
        // What is painted for one size may be kept until there is another.
        for (const QSize size : { kOtherSize, kUsualSize }) {
            resize(size);
            m_game.wait(60.0);
            static_cast<void>(m_game.picture());
        }
        return { memoryUse(), openDescriptors(), m_game.runLoop().callsWaiting() };
    }

    [[nodiscard]] int solved() const { return m_solved; }
    [[nodiscard]] unsigned long eventsSent() const { return m_robot.eventsSent(); }

private:
    void playOne()
    {
        m_robot.readPages();
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
        m_robot.readPages();
        ASSERT_TRUE(m_robot.solvePuzzle());
        ++m_solved;
        static_cast<void>(m_game.picture()); // what is seen is painted
        m_game.wait(0.3);
        static_cast<void>(m_game.picture());
        m_robot.waitUntilUnblocked();
        static_cast<void>(m_game.sounds().takePlayed());
    }

    void resize(QSize size)
    {
        m_size = size;
        m_game.resize(size);
    }

    void press(const std::string& button)
    {
        if (const auto place = m_game.centreOf(button)) {
            m_game.click(*place);
            m_robot.waitUntilUnblocked();
        }
    }

    void key(const char* keys)
    {
        m_game.key(QString::fromLatin1(keys));
        m_game.wait(1.5); // a page stays for a second
        static_cast<void>(m_game.picture());
        m_robot.waitUntilUnblocked();
    }

    // Some move, wherever it leads.
    void move()
    {
        const auto all = play::actions(m_game.controller().moves().position());
        for (const play::Gesture& gesture : all) {
            if (const auto* const click = std::get_if<play::Click>(&gesture)) {
                return press(board::generateKeyChipKey(click->column, click->row));
            }
        }
    }

    QTemporaryDir m_folder;
    desktop::posix::PosixDisk m_disk;
    desktop::qt::FilePreferences m_preferences { m_folder.filePath(
        QStringLiteral("preferences.json")) };
    desktop::posix::FileJournal m_journal { m_disk, m_folder.path().toStdString() };
    std::mt19937 m_random;
    app::VirtualGame m_game { { .seed = 5,
        .preferences = { .values = { { std::string(progress::kEndlessGameUnlockedKey), true } },
            .records = { { progress::playerRecordKey(progress::kDefaultPlayerName),
                { { std::string(progress::kEndlessParKey), 3 } } } } },
        .store = &m_preferences,
        .journal = &m_journal,
        .dataFolder = QString::fromStdString(dataFolder()) } };
    Robot m_robot { m_game.headless() };
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
    LongVisit visit(static_cast<std::uint32_t>(numberOf("VEYRAND_SOAK_SEED", 1)));
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
