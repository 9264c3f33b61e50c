#include "play/Decide.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "robot/PlantedDisk.h"
#include "robot/Robot.h"
#include "support/FolderDisk.h"
#include "support/FolderResources.h"
#include "support/KilledChild.h"
#include "support/QtEnvironment.h"
#include "support/Replayed.h"
#include "support/Simulator.h"

#include <QTemporaryDir>

#include <array>
#include <cstdlib>
#include <functional>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <random>

namespace veyrand::test {

namespace {

using progress::Mode;

constexpr int kUsualKills = 20;
constexpr std::int64_t kFullPurse = 1'000'000;

// What the program that will be killed has done last, as it tells through a pipe, in one piece.
struct Report {
    std::uint64_t hash = 0; // of the state that the action led to
    std::int64_t purse = 0;
    bool isOver = false; // the puzzle
};

// The catalogues as they were when the first of them was read: a build beside a long run may put
// others in their place, and then nothing that was begun would be found again.
class DataAtTheStart final : public platform::Resources {
public:
    [[nodiscard]] std::optional<std::string> dataNamed(
        std::string_view name, std::string_view type) const override
    {
        const std::string file = std::string(name) + '.' + std::string(type);
        const auto found = m_read.find(file);
        return (found != m_read.end()
                ? found
                : m_read.emplace(file, gameResources().dataNamed(name, type)).first)
            ->second;
    }

private:
    mutable std::map<std::string, std::optional<std::string>> m_read;
};

const platform::Resources& dataAtTheStart()
{
    static const DataAtTheStart kData;
    return kData;
}

// Plays on what it finds: gestures, rows taken back, steps back and again, hints, other pars. Each
// action is reported when its animation has begun.
class RestlessPlayer {
public:
    RestlessPlayer(
        SimulatedDisk& disk, Mode mode, std::uint32_t seed, const KilledChild<Report>::Tell& tell)
        : m_simulator(seed, disk, { .resources = &dataAtTheStart() })
        , m_tell(tell)
    {
        m_simulator.launch([](headless::HeadlessGame& game) {
            game.controller().kept().setReporter([](const std::string& trouble) {
                std::cerr << trouble << '\n';
                ::_exit(3); // nothing may be damaged
            });
        });
        if (mode == Mode::Endless) {
            game().currentGame().newPlayer(
                std::string(progress::kDefaultPlayerName), Mode::Endless);
            game().controller().flow().startEndlessGame();
        } else {
            game().controller().flow().startClassicGame();
        }
        report();
    }

    [[noreturn]] void play()
    {
        for (;;) {
            Robot robot(game());
            robot.readPages();
            const std::uint64_t before = session().hash();
            act();
            if (game().controller().flow().session() == nullptr) {
                ::_exit(4); // the game came to its end, which is too far away to be reached
            }
            if (session().hash() != before) {
                report();
            }
            if (pick(3) != 0 || session().settled().isOver()) {
                robot.waitUntilUnblocked();
            }
        }
    }

private:
    [[nodiscard]] headless::HeadlessGame& game() { return m_simulator.game(); }
    unsigned pick(unsigned count) { return m_simulator.below(count); }
    play::Session& session() { return *game().controller().flow().session(); }

    void report()
    {
        const play::Replay& settled = session().settled();
        m_tell({ settled.hash(), settled.purse(), settled.isOver() });
    }

    void act()
    {
        switch (pick(10)) {
        case 0:
            return game().controller().history().undo();
        case 1:
            return game().controller().history().redo();
        case 2:
            return press("delete-" + std::to_string(1 + pick(3)));
        case 3:
        case 4:
        case 5:
            return press("button-lightbulbon");
        case 6:
            return pick(4) == 0
                ? press(pick(2) == 0 ? "button-harderbuttonon" : "button-easierbuttonon")
                : void();
        default:
            return move();
        }
    }

    void press(const std::string& key)
    {
        if (const auto place = game().centreOf(key)) {
            game().click(*place);
        }
    }

    void move()
    {
        const auto all = play::actions(game().controller().moves().position());
        if (all.empty()) {
            return;
        }
        const play::Gesture& gesture = all[pick(static_cast<unsigned>(all.size()))];
        if (const auto* const click = std::get_if<play::Click>(&gesture)) {
            return press(board::generateKeyChipKey(click->column, click->row));
        }
        const auto& drag = std::get<play::Drag>(gesture);
        const auto from = game().centreOf(board::generateKeyChipKey(drag.from, drag.fromRow));
        const auto to = game().centreOf(board::generateKeyChipKey(drag.to, drag.toRow));
        if (from && to) {
            game().press(*from);
            game().release(*to);
        }
    }

    Simulator<headless::HeadlessGame> m_simulator;
    KilledChild<Report>::Tell m_tell;
};

using PlayingProcess = KilledChild<Report>;

// The process plays on that disk, which may have a fault.
PlayingProcess playingProcess(
    const QString& folder, Mode mode, std::uint32_t seed, std::optional<PlantedFault> fault)
{
    return PlayingProcess([&folder, mode, seed, fault](const PlayingProcess::Tell& tell) {
        FolderDisk disk(folder);
        if (fault) {
            PlantedDisk planted(disk, *fault);
            RestlessPlayer(planted, mode, seed, tell).play();
        }
        RestlessPlayer(disk, mode, seed, tell).play();
    });
}

// What the journal comes to, and what it came to one action before.
struct Written {
    play::Replay now;
    play::Replay before;
};

Written writtenIn(const QString& folder, Mode mode)
{
    FolderDisk disk(folder);
    const auto text = disk.journal().read(play::journalName(progress::kDefaultPlayerName, mode));
    EXPECT_EQ(text.fault, "");
    const auto journal
        = play::readJournal(text.contents.value_or(""), progress::kDefaultPlayerName);
    EXPECT_EQ(journal.state, play::JournalText::State::Whole);
    Written written;
    for (const play::JournalEntry& entry : journal.entries) {
        written.before = written.now;
        EXPECT_EQ(written.now.apply(entry.action), "");
        EXPECT_EQ(written.now.lastLine(), entry.lastLine);
    }
    return written;
}

// Nothing is older than what was reported, and nothing is there that was not begun.
void compare(const Report& last, const Written& written)
{
    if (written.now.hash() == last.hash || written.before.hash() == last.hash) {
        return; // the last action, or one more whose report was never sent
    }
    // Where that one was the last of its puzzle, the next may have been begun, and there again one
    // action more.
    const play::Replay& begun = written.before.puzzle() ? written.before : written.now;
    EXPECT_TRUE(last.isOver);
    EXPECT_EQ(begun.lines().size(), 1U);
    EXPECT_EQ(begun.purse(), last.purse);
}

void compareResumed(const Report& resumed, const Written& written)
{
    EXPECT_EQ(resumed.purse, written.now.purse());
    if (!written.now.isOver()) {
        EXPECT_EQ(resumed.hash, written.now.hash());
    }
}

int numberIn(const char* variable, int usual)
{
    const char* const wanted = std::getenv(variable);
    return wanted != nullptr ? std::atoi(wanted) : usual;
}

struct Kills {
    int kills = 0;
    std::uint32_t seed = 11;
    std::optional<PlantedFault> fault {};
    std::function<bool()> hasFailed = [] { return ::testing::Test::HasFailure(); };
};

void prepare(const QString& folder)
{
    FolderDisk disk(folder);
    progress::updatePlayerRecord(disk.preferences(), progress::kDefaultPlayerName,
        { .level = 1,
            .stage = 2,
            .score = kFullPurse,
            .firstHintClick = true,
            .endlessScore = kFullPurse,
            .endlessPar = 4 });
    progress::setEndlessGameUnlocked(disk.preferences(), true);
}

void killRestlessPlayers(const Kills& trial)
{
    // Read here, before the others come of this process.
    headless::HeadlessGame({ .resources = &dataAtTheStart() }).launch();
    QTemporaryDir folder(killedChildsFolder());
    prepare(folder.path());
    SCOPED_TRACE(howToReplay("kill", trial.seed)); // the moments of the kills are the machine's own
    std::mt19937 random(trial.seed);
    int actions = 0;
    int finished = 0;
    std::array<std::optional<Written>, 2> left;
    for (int kill = 0; kill < trial.kills; ++kill) {
        SCOPED_TRACE("kill " + std::to_string(kill));
        const Mode mode = kill % 2 == 0 ? Mode::Classic : Mode::Endless;
        const QString path = folder.path();
        // Some have to write the whole journal anew, in which what was there one action before is
        // not to be told from the rest.
        const bool refuses = !trial.fault && kill % 8 >= 6;
        auto player = playingProcess(path, mode, trial.seed + static_cast<std::uint32_t>(kill),
            refuses ? PlantedFault::LinesAreRefused : trial.fault);
        auto last = player.next();
        ASSERT_TRUE(last.has_value()) << "it could not play";
        auto& before = left.at(static_cast<std::size_t>(kill % 2));
        if (before) {
            compareResumed(*last, *before);
        }
        if (trial.hasFailed()) {
            folder.setAutoRemove(trial.fault.has_value());
            FAIL() << "what is on the disk stays in " << folder.path().toStdString();
        }
        for (auto more = random() % 12; more > 0 && last; --more) {
            last = player.next();
            ++actions;
        }
        ASSERT_TRUE(last.has_value()) << "it ended by itself";
        ::usleep(static_cast<useconds_t>(random() % 3000));
        ASSERT_TRUE(player.kill()) << "it ended by itself";
        for (auto report = player.next(); report; report = player.next()) {
            last = report;
            ++actions;
        }
        finished += last->isOver ? 1 : 0;
        before = writtenIn(folder.path(), mode);
        if (!refuses) {
            compare(*last, *before);
        }
        ASSERT_FALSE(trial.hasFailed());
    }
    EXPECT_GT(actions, trial.kills * 3) << "too little was played to mean anything";
    std::cout << trial.kills << " kills, " << actions << " actions, " << finished
              << " kills between two puzzles; all found again\n";
}

} // namespace

TEST(KeptPuzzle, IsFoundAgainAtWhateverMomentTheGameIsKilled)
{
    killRestlessPlayers({ .kills = numberIn("VEYRAND_KILLS", kUsualKills),
        .seed = static_cast<std::uint32_t>(numberIn("VEYRAND_KILLS_SEED", 11)) });
}

// Faults that are planted, to see that they would be found.
TEST(KeptPuzzle, ThatADiskLosesOrChangesIsMissed)
{
    for (const PlantedFault fault : kPlantedFaults) {
        ::testing::TestPartResultArray found;
        {
            const ::testing::ScopedFakeTestPartResultReporter reporter(
                ::testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &found);
            killRestlessPlayers({ .kills = kUsualKills, .fault = fault, .hasFailed = [&found] {
                                     return found.size() > 0;
                                 } });
        }
        EXPECT_GT(found.size(), 0) << "planted fault " << static_cast<int>(fault);
    }
}

} // namespace veyrand::test
