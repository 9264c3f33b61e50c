#include "progress/PlayerKeys.h"
#include "robot/Robot.h"
#include "support/Places.h"
#include "support/QtEnvironment.h"

#include <array>
#include <gtest/gtest.h>
#include <random>

namespace veyrand::test {

namespace {

// What the press that closes a page opens, for every page a player can see. The rank's page and the
// first list of moves lead on only at some places.
std::vector<std::string> successorsOf(const std::string& page, const progress::CurrentGame& game)
{
    static const std::map<std::string, std::string> kChains {
        { "howToPlayMessageWindow", "stage1MessageWindow" },
        { "stage1MessageWindow", "stage1Help" },
        { "stage6MessageWindow", "stage6IntermediateMessageWindow" },
        { "stage6IntermediateMessageWindow", "stage6IntermediateMessageWindow2" },
        { "firstHintClickMessageWindow", "firstHint" },
        { "firstHint", "secondHint" },
        { "secondHint", "thirdHint" },
    };
    static const std::array kIntroductions { "", "", "stage11MessageWindow", "stage21MessageWindow",
        "stage31MessageWindow", "stage41MessageWindow" };
    if (page == "showSuccessMessage") {
        const auto level = static_cast<std::size_t>(game.level());
        return { level < kIntroductions.size() ? kIntroductions.at(level) : "" };
    }
    if (page == "movesMessageWindow") {
        return { game.highestRule() > 4 ? "moves2MessageWindow" : "" };
    }
    const auto next = kChains.find(page);
    return { next != kChains.end() ? next->second : "" };
}

// Presses whatever comes along, at any time.
class RandomPlayer {
public:
    RandomPlayer(std::uint32_t seed, int level, int stage)
        : m_engine(seed)
        , m_game({ .seed = seed,
              .preferences = saved(level, stage),
              .dataFolder = QString::fromStdString(test::dataFolder()) })
        , m_robot(m_game)
    {
        m_game.launch();
    }

    void act()
    {
        if (pick(40) == 0) {
            m_game.menu().trigger(pick(2) == 0 ? "Classic Game" : "Endless Game");
        }
        const auto& messages = m_game.controller().messages();
        const std::string page = messages.page();
        const auto expected = successorsOf(page, m_game.currentGame());
        const bool answers = !m_game.game().view().block().blockClick();
        const platform::Point place = anywhere();
        m_game.press(place);
        m_robot.checkAlways();
        if (!page.empty()) {
            EXPECT_EQ(messages.page(), answers ? expected.front() : page) << "after " << page;
        }
        m_game.release(pick(3) == 0 ? anywhere() : place);
        m_robot.checkAlways();
        m_game.wait(static_cast<double>(pick(30)) / 10.0);
        m_robot.checkAlways();
    }

    [[nodiscard]] const std::string& page() { return m_game.controller().messages().page(); }

private:
    static platform::Preferences::Contents saved(int level, int stage)
    {
        return { .values = { { std::string(progress::kEndlessGameUnlockedKey), level > 5 } },
            .records = { { progress::playerRecordKey(progress::kDefaultPlayerName),
                { { std::string(progress::kLevelKey), std::int64_t { level } },
                    { std::string(progress::kStageKey), std::int64_t { stage } },
                    { std::string(progress::kScoreKey), std::int64_t { 400 } } } } } };
    }

    unsigned pick(unsigned count) { return static_cast<unsigned>(m_engine() % count); }

    // An element's centre, mostly; the menu button seldom, or no game would last.
    platform::Point anywhere()
    {
        const auto keys = m_game.gameData().gameObjects().keys();
        const std::string& key = keys.at(pick(static_cast<unsigned>(keys.size())));
        if (key.rfind("button-menubutton", 0) == 0 && pick(20) != 0) {
            return { .x = 0.8, .y = 0.5 };
        }
        return *m_game.centreOf(key);
    }

    std::mt19937 m_engine;
    app::VirtualGame m_game;
    Robot m_robot;
};

} // namespace

TEST(RandomPlayer, OpensNoPageThatDoesNotBelong)
{
    std::set<std::string> seen;
    std::uint32_t seed = 1;
    for (const auto& [level, stage] : { std::pair { 1, 1 }, { 1, 2 }, { 1, 6 }, { 2, 1 }, { 3, 1 },
             { 5, 5 }, { 7, 1 }, { 11, 10 } }) {
        RandomPlayer player(seed++, level, stage);
        for (int step = 0; step < 600 && !::testing::Test::HasFailure(); ++step) {
            player.act();
            seen.insert(player.page());
        }
    }
    EXPECT_GT(seen.size(), 15U) << "too few pages were met for the test to mean anything";
}

} // namespace veyrand::test
