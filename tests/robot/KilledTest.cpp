#include "desktop/qt/FilePreferences.h"
#include "platform/MemoryPreferences.h"
#include "progress/PlayerKeys.h"
#include "robot/Robot.h"
#include "support/Places.h"
#include "support/QtEnvironment.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <chrono>
#include <csignal>
#include <gtest/gtest.h>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace veyrand::test {

namespace {

constexpr int kPuzzles = 110;
constexpr int kStagesOfALevel = 10;

// What the program that will be killed has saved, as it tells through the pipe: the score counts
// the puzzles, so it says which of them all was saved last.
using Score = std::int64_t;

// Hands everything on to preferences that may be changed for others: the game is put together once,
// which takes longer than many saves, and each process gives its copy a file.
class Redirected final : public platform::Preferences {
public:
    void redirectTo(platform::Preferences& target) { m_target = &target; }

    void registerDefaults(Contents defaults) override
    {
        m_target->registerDefaults(std::move(defaults));
    }
    [[nodiscard]] std::optional<platform::PreferenceValue> value(
        std::string_view key) const override
    {
        return m_target->value(key);
    }
    void setValue(std::string_view key, platform::PreferenceValue value) override
    {
        m_target->setValue(key, std::move(value));
    }
    [[nodiscard]] std::optional<platform::PreferenceRecord> record(
        std::string_view key) const override
    {
        return m_target->record(key);
    }
    void setRecord(std::string_view key, platform::PreferenceRecord record) override
    {
        m_target->setRecord(key, std::move(record));
    }

private:
    platform::MemoryPreferences m_none;
    platform::Preferences* m_target = &m_none;
};

struct PreparedGame {
    Redirected preferences;
    app::VirtualGame game { { .store = &preferences,
        .dataFolder = QString::fromStdString(test::dataFolder()) } };
};

// Another process that plays on the preferences in the file from where they stand, and reports each
// score once it has been saved. It ends only by being killed.
class Player {
public:
    using Play = void (*)(app::VirtualGame& game, const std::function<void(Score)>& saved);

    Player(PreparedGame& prepared, const QString& file, Play play)
    {
        std::array<int, 2> ends {};
        if (::pipe(ends.data()) != 0) {
            throw std::runtime_error("no pipe");
        }
        m_child = ::fork();
        if (m_child == 0) {
            ::close(ends[0]);
            run(prepared, file, play, ends[1]);
            ::_exit(1); // it should not have come to an end
        }
        ::close(ends[1]);
        m_reports = ends[0];
    }
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;
    ~Player()
    {
        kill();
        ::close(m_reports);
    }

    // Waits for the next report. Nothing once the process has gone.
    std::optional<Score> nextReport()
    {
        Score score = 0;
        return ::read(m_reports, &score, sizeof score) == sizeof score ? std::optional(score)
                                                                       : std::nullopt;
    }

    // True when it was this that ended it.
    bool kill()
    {
        if (m_child <= 0) {
            return false;
        }
        ::kill(m_child, SIGKILL);
        int status = 0;
        ::waitpid(std::exchange(m_child, 0), &status, 0);
        return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    }

private:
    static void run(PreparedGame& prepared, const QString& file, Play play, int reports)
    {
        desktop::qt::FilePreferences preferences(file);
        if (preferences.isHeldElsewhere()) {
            return;
        }
        preferences.registerDefaults(progress::registeredDefaults());
        prepared.preferences.redirectTo(preferences);
        play(prepared.game, [reports](Score score) {
            // Shorter than what a pipe takes in one piece.
            if (::write(reports, &score, sizeof score) != sizeof score) {
                ::_exit(2);
            }
        });
    }

    pid_t m_child = 0;
    int m_reports = -1;
};

Score savedScore(const platform::Preferences& preferences)
{
    const auto record = preferences.record(progress::playerRecordKey(progress::kDefaultPlayerName));
    return record ? platform::integerForKey(*record, progress::kScoreKey) : -1;
}

// The puzzles as the flow brings them, as fast as it can: each is saved on its arrival.
void hurry(app::VirtualGame& game, const std::function<void(Score)>& saved)
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
void playWithTheMouse(app::VirtualGame& game, const std::function<void(Score)>& saved)
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

// A folder in memory where there is one: what a killed program wrote is there all the same, and a
// disk that others keep busy would take most of the time.
QString templateOfFolder()
{
    const QString memory = QStringLiteral("/dev/shm");
    return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath())
        + QStringLiteral("/veyrand-killed-XXXXXX");
}

struct Trial {
    Player::Play play;
    int kills;
    int mostReports; // that are waited for after the first
    std::chrono::microseconds longest; // from the last of those to the kill
    Score points; // of one puzzle
};

void killAgainAndAgain(const Trial& trial)
{
    const QTemporaryDir folder(templateOfFolder());
    const QString file = folder.filePath("preferences.json");
    PreparedGame prepared;
    std::mt19937 random(20);
    std::uniform_int_distribution<std::int64_t> moment(0, trial.longest.count());
    std::uniform_int_distribution<int> count(0, trial.mostReports);
    Score last = 0;
    for (int kill = 0; kill < trial.kills; ++kill) {
        SCOPED_TRACE("kill " + std::to_string(kill));
        Player player(prepared, file, trial.play);
        const auto begun = player.nextReport();
        ASSERT_TRUE(begun.has_value()) << "it could not play";
        ASSERT_EQ(*begun, last) << "it did not begin where the one before was killed";
        for (int more = count(random); more > 0; --more) {
            last = player.nextReport().value_or(last);
        }
        spin(std::chrono::microseconds(moment(random)));
        ASSERT_TRUE(player.kill()) << "it ended by itself";
        while (const auto report = player.nextReport()) {
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
