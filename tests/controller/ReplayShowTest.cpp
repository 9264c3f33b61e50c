#include "controller/ReplayShow.h"

#include "play/ActionText.h"
#include "play/Recording.h"
#include "support/HeadlessPlay.h"
#include "support/Places.h"

#include <fstream>
#include <gmock/gmock.h>

namespace veyrand::controller {

using ::testing::ElementsAre;

namespace {

// A game of its own, on which a list is shown.
class ReplayShowTest : public test::HeadlessPlay {
protected:
    void show(std::vector<play::Action> actions)
    {
        m_show.emplace(game().controller(), std::move(actions));
        m_show->start();
    }
    void show(std::initializer_list<const char*> actions)
    {
        std::vector<play::Action> list;
        for (const char* const action : actions) {
            list.push_back(*play::parse(action));
        }
        show(std::move(list));
    }
    // What the board shows of the rows.
    [[nodiscard]] std::vector<std::string> rows()
    {
        std::vector<std::string> rows;
        while (!row(static_cast<unsigned>(rows.size())).empty()) {
            rows.push_back(row(static_cast<unsigned>(rows.size())));
        }
        return rows;
    }
    [[nodiscard]] const play::Session& session() { return *game().controller().flow().session(); }

    std::optional<ReplayShow> m_show;
};

std::vector<play::Action> recordedIn(const std::string& name)
{
    std::ifstream file(test::sourceFolder() + "/tests/recorded/format-1/" + name);
    const std::string text { std::istreambuf_iterator<char>(file), {} };
    std::vector<play::Action> actions;
    for (const play::JournalEntry& entry : play::readRecording(text).entries) {
        actions.push_back(entry.action);
    }
    return actions;
}

} // namespace

TEST_F(ReplayShowTest, ShowsOneActionAfterAnother)
{
    show({ "puzzle 2-1 YRRR YGGGG 9 320 50", "move 2 0", "move 1 0", "remove 2", "undo" });
    EXPECT_THAT(rows(), ElementsAre("YRRR"));
    EXPECT_EQ(game().currentGame().score(), 270);
    wait(2.0);
    EXPECT_EQ(lines().back(), "YG") << "on its way";
    EXPECT_FALSE(m_show->isOver());
    wait(60.0);
    EXPECT_TRUE(m_show->isOver());
    EXPECT_THAT(rows(), ElementsAre("YRRR", "YG", "YGG"));
    EXPECT_EQ(session().hash(), m_show->shown().hash());
}

TEST_F(ReplayShowTest, ASolvedPuzzleIsCelebratedAndThenStandsAsItWasLeft)
{
    show({ "puzzle 2-1 YRRR YGG 3 320 0", "move 2 0", "move 1 0" });
    wait(6.0);
    EXPECT_THAT(sounds(), ::testing::Contains("CymbalRoll"));
    wait(60.0);
    EXPECT_TRUE(m_show->isOver());
    EXPECT_THAT(rows(), ElementsAre("YRRR", "YG", "YGG"));
    EXPECT_EQ(session().hash(), m_show->shown().hash());
}

TEST_F(ReplayShowTest, OnePuzzleMayFollowAnother)
{
    show({ "puzzle 2-1 YRRR YG 2 320 0", "move 2 0", "puzzle endless YR YRRRR 5 100 0", "move 1 0",
        "leave 4", "puzzle endless YRR YRRRRRRRR 4 100 0", "move 1 0" });
    wait(100.0);
    EXPECT_TRUE(m_show->isOver());
    EXPECT_TRUE(game().currentGame().endlessGame());
    EXPECT_THAT(rows(), ElementsAre("YRR", "YRRRR"));
}

// Every kind of action as it was really played.
TEST_F(ReplayShowTest, RecordedGamesComeToTheirEnd)
{
    for (const char* const name : { "1.txt", "2.txt", "3.txt", "10.txt", "103.txt" }) {
        SCOPED_TRACE(name);
        const auto actions = recordedIn(name);
        ASSERT_FALSE(actions.empty());
        show(actions);
        for (int patience = 0; patience < 2000 && !m_show->isOver(); ++patience) {
            wait(1.0);
            if (!m_show->shown().isOver() && session().phase() == play::Phase::Playing) {
                ASSERT_EQ(session().hash(), m_show->shown().hash());
            }
        }
        EXPECT_TRUE(m_show->isOver());
        wait(10.0);
        EXPECT_EQ(rows(), lines());
    }
}

} // namespace veyrand::controller
