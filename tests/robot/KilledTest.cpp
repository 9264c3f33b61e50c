#include "desktop/qt/FilePreferences.h"
#include "progress/PlayerKeys.h"
#include "robot/Robot.h"
#include "support/FolderResources.h"
#include "support/KilledChild.h"
#include "support/QtEnvironment.h"

#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <chrono>
#include <gtest/gtest.h>
#include <random>

namespace veyrand::test {

namespace {

constexpr int kPuzzles = 110;
constexpr int kStagesOfALevel = 10;

// What the program that will be killed has saved, as it tells through the pipe: the score counts
// the puzzles, so it says which of them all was saved last.
using Score = std::int64_t;

struct PreparedGame {
    Redirected preferences;
    headless::HeadlessGame game { { .store = &preferences, .resources = &gameResources() } };
};

using Player = KilledChild<Score>;
using Play = void (*)(headless::HeadlessGame& game, const Player::Tell& saved);

// Plays on the preferences in the file from where they stand, and reports each score once it has
// been saved.
Player player(PreparedGame& prepared, const QString& file, Play play)
{
    return Player([&prepared, &file, play](const Player::Tell& saved) {
        desktop::qt::FilePreferences preferences(file);
        if (!preferences.isHeldElsewhere()) {
            preferences.registerDefaults(progress::registeredDefaults());
            prepared.preferences.redirectTo(preferences);
            play(prepared.game, saved);
        }
    });
}

Score savedScore(const platform::Preferences& preferences)
{
    const auto record = preferences.record(progress::playerRecordKey(progress::kDefaultPlayerName));
    return record ? platform::integerForKey(*record, progress::kScoreKey) : -1;
}

// The puzzles as the flow brings them, as fast as it can: each is saved on its arrival.
void hurry(headless::HeadlessGame& game, const Player::Tell& saved)
{
    auto& current = game.currentGame();
    auto& flow = game.controller().flow();
    flow.startClassicGame();
    saved(current.score());
    for (;;) {
        if (current.score() % kPuzzles == kPuzzles - 1) {
            flow.setStageAndLevelAndScore(1, 1, current.score() + 1);
            flow.startClassicGame();
        } else {
            current.addToScore(1);
            flow.nextLevel();
        }
        saved(current.score());
    }
}

// As a player does, with the mouse. The game itself awards 150 points a puzzle.
void playWithTheMouse(headless::HeadlessGame& game, const Player::Tell& saved)
{
    Robot robot(game);
    game.controller().flow().startClassicGame();
    saved(game.currentGame().score());
    while (robot.solvePuzzle()) {
        saved(game.currentGame().score());
    }
}

// Spends so long without giving the processor away.
void spin(std::chrono::microseconds time)
{
    const auto end = std::chrono::steady_clock::now() + time;
    while (std::chrono::steady_clock::now() < end) { }
}

struct Trial {
    Play play;
    int kills;
    int mostReports; // that are waited for after the first
    std::chrono::microseconds longest; // from the last of those to the kill
    Score points; // of one puzzle
};

void killAgainAndAgain(const Trial& trial)
{
    const QTemporaryDir folder(killedChildsFolder());
    const QString file = folder.filePath("preferences.json");
    PreparedGame prepared;
    std::mt19937 random(20);
    std::uniform_int_distribution<std::int64_t> moment(0, trial.longest.count());
    std::uniform_int_distribution<int> count(0, trial.mostReports);
    Score last = 0;
    for (int kill = 0; kill < trial.kills; ++kill) {
        SCOPED_TRACE("kill " + std::to_string(kill));
        Player child = player(prepared, file, trial.play);
        const auto begun = child.next();
        ASSERT_TRUE(begun.has_value()) << "it could not play";
        ASSERT_EQ(*begun, last) << "it did not begin where the one before was killed";
        for (int more = count(random); more > 0; --more) {
            last = child.next().value_or(last);
        }
        spin(std::chrono::microseconds(moment(random)));
        ASSERT_TRUE(child.kill()) << "it ended by itself";
        while (const auto report = child.next()) {
            last = *report;
        }
        // What it had reported, or what it was about to report.
        QFile written(file);
        ASSERT_TRUE(written.open(QIODevice::ReadOnly) || kill == 0);
        ASSERT_TRUE(kill == 0 || QJsonDocument::fromJson(written.readAll()).isObject());
        const desktop::qt::FilePreferences preferences(file);
        const Score found = savedScore(preferences);
        ASSERT_TRUE(found == last || found == last + trial.points || (found == -1 && last == 0))
            << found << " was found and " << last << " reported";
        last = std::max<Score>(found, 0);
        const auto record
            = preferences.record(progress::playerRecordKey(progress::kDefaultPlayerName));
        if (record && trial.points != 0) {
            const auto puzzle = static_cast<int>(last / trial.points % kPuzzles);
            ASSERT_EQ(platform::integerForKey(*record, progress::kLevelKey),
                puzzle / kStagesOfALevel + 1);
            ASSERT_EQ(platform::integerForKey(*record, progress::kStageKey),
                puzzle % kStagesOfALevel + 1);
        }
    }
    EXPECT_GT(last, trial.kills * trial.mostReports / 4 * trial.points)
        << "too little was played to mean anything";
}

} // namespace

TEST(Killed, AtAThousandMomentsTheLastSavedPuzzleIsThere)
{
    using namespace std::chrono_literals;
    killAgainAndAgain(
        { .play = hurry, .kills = 1000, .mostReports = 3, .longest = 1ms, .points = 1 });
}

TEST(Killed, WhileThePuzzlesAreSolvedWithTheMouseTheLastSavedOneIsThere)
{
    using namespace std::chrono_literals;
    killAgainAndAgain({ .play = playWithTheMouse,
        .kills = 30,
        .mostReports = 2,
        .longest = 40ms,
        .points = 150 });
}

} // namespace veyrand::test
