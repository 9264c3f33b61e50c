#include "desktop/posix/FileJournal.h"
#include "desktop/posix/PosixDisk.h"
#include "desktop/qt/FilePreferences.h"
#include "play/Decide.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "robot/Robot.h"
#include "support/FolderResources.h"
#include "support/KilledChild.h"
#include "support/QtEnvironment.h"

#include <QTemporaryDir>

#include <array>
#include <cstdlib>
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

// What outlasts a process: preferences and journals in a folder.
struct OnDisk {
    explicit OnDisk(const QString& folder)
        : preferences(folder + QStringLiteral("/preferences.json"))
        , journal(disk, folder.toStdString())
    {
        preferences.registerDefaults(progress::registeredDefaults());
    }

    desktop::posix::PosixDisk disk;
    desktop::qt::FilePreferences preferences;
    desktop::posix::FileJournal journal;
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
        OnDisk& onDisk, Mode mode, std::uint32_t seed, const KilledChild<Report>::Tell& tell)
        : m_random(seed)
        , m_game({ .seed = seed,
              .store = &onDisk.preferences,
              .resources = &dataAtTheStart(),
              .journal = &onDisk.journal })
        , m_robot(m_game)
        , m_tell(tell)
    {
        m_game.controller().kept().setReporter([](const std::string& trouble) {
            std::cerr << trouble << '\n';
            ::_exit(3); // nothing may be damaged
        });
        m_game.launch();
        if (mode == Mode::Endless) {
            m_game.currentGame().newPlayer(
                std::string(progress::kDefaultPlayerName), Mode::Endless);
            m_game.controller().flow().startEndlessGame();
        } else {
            m_game.controller().flow().startClassicGame();
        }
        report();
    }

    [[noreturn]] void play()
    {
        for (;;) {
            m_robot.readPages();
            const std::uint64_t before = session().hash();
            act();
            if (m_game.controller().flow().session() == nullptr) {
                ::_exit(4); // the game came to its end, which is too far away to be reached
            }
            if (session().hash() != before) {
                report();
            }
            if (pick(3) != 0 || session().settled().isOver()) {
                m_robot.waitUntilUnblocked();
            }
        }
    }

private:
    unsigned pick(unsigned count) { return static_cast<unsigned>(m_random() % count); }
    play::Session& session() { return *m_game.controller().flow().session(); }

    void report()
    {
        const play::Replay& settled = session().settled();
        m_tell({ settled.hash(), settled.purse(), settled.isOver() });
    }

    void act()
    {
        switch (pick(10)) {
        case 0:
            return m_game.controller().history().undo();
        case 1:
            return m_game.controller().history().redo();
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
        if (const auto place = m_game.centreOf(key)) {
            m_game.click(*place);
        }
    }

    void move()
    {
        const auto all = play::actions(m_game.controller().moves().position());
        if (all.empty()) {
            return;
        }
        const play::Gesture& gesture = all[pick(static_cast<unsigned>(all.size()))];
        if (const auto* const click = std::get_if<play::Click>(&gesture)) {
            return press(board::generateKeyChipKey(click->column, click->row));
        }
        const auto& drag = std::get<play::Drag>(gesture);
        const auto from = m_game.centreOf(board::generateKeyChipKey(drag.from, drag.fromRow));
        const auto to = m_game.centreOf(board::generateKeyChipKey(drag.to, drag.toRow));
        if (from && to) {
            m_game.press(*from);
            m_game.release(*to);
        }
    }

    std::mt19937 m_random;
    headless::HeadlessGame m_game;
    Robot m_robot;
    KilledChild<Report>::Tell m_tell;
};

using PlayingProcess = KilledChild<Report>;

PlayingProcess playingProcess(const QString& folder, Mode mode, std::uint32_t seed)
{
    return PlayingProcess([&folder, mode, seed](const PlayingProcess::Tell& tell) {
        OnDisk onDisk(folder);
        RestlessPlayer(onDisk, mode, seed, tell).play();
    });
}

// What the journal comes to, and what it came to one action before.
struct Written {
    play::Replay now;
    play::Replay before;
};

Written writtenIn(const QString& folder, Mode mode)
{
    const OnDisk onDisk(folder);
    const auto text = onDisk.journal.read(play::journalName(progress::kDefaultPlayerName, mode));
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

int killsWanted()
{
    const char* const wanted = std::getenv("VEYRAND_KILLS");
    return wanted != nullptr ? std::atoi(wanted) : kUsualKills;
}

} // namespace

TEST(KeptPuzzle, IsFoundAgainAtWhateverMomentTheGameIsKilled)
{
    // Read here, before the others come of this process.
    headless::HeadlessGame({ .resources = &dataAtTheStart() }).launch();
    QTemporaryDir folder(killedChildsFolder());
    {
        OnDisk onDisk(folder.path());
        progress::updatePlayerRecord(onDisk.preferences, progress::kDefaultPlayerName,
            { .level = 1,
                .stage = 2,
                .score = kFullPurse,
                .firstHintClick = true,
                .endlessScore = kFullPurse,
                .endlessPar = 4 });
        progress::setEndlessGameUnlocked(onDisk.preferences, true);
    }
    std::mt19937 random(11);
    int actions = 0;
    int finished = 0;
    std::array<std::optional<Written>, 2> left;
    const int kills = killsWanted();
    for (int kill = 0; kill < kills; ++kill) {
        SCOPED_TRACE("kill " + std::to_string(kill));
        const Mode mode = kill % 2 == 0 ? Mode::Classic : Mode::Endless;
        const QString path = folder.path();
        auto player = playingProcess(path, mode, static_cast<std::uint32_t>(kill + 1));
        auto last = player.next();
        ASSERT_TRUE(last.has_value()) << "it could not play";
        auto& before = left.at(static_cast<std::size_t>(kill % 2));
        if (before) {
            compareResumed(*last, *before);
        }
        if (::testing::Test::HasFailure()) {
            folder.setAutoRemove(false);
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
        compare(*last, *before);
        ASSERT_FALSE(::testing::Test::HasFailure());
    }
    EXPECT_GT(actions, kills * 3) << "too little was played to mean anything";
    std::cout << kills << " kills, " << actions << " actions, " << finished
              << " kills between two puzzles; all found again\n";
}

} // namespace veyrand::test
