#include "engine/HintHelper.h"
#include "platform/fakes/MemoryJournal.h"
#include "play/Decide.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "support/KeptPlay.h"

#include <gmock/gmock.h>

namespace veyrand::controller {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

const std::string kKeptFile = "New-classic.txt";

// A player at 2-4 (YRRRR to YR) who leaves, and comes back to what he left.
class GoingOn : public test::KeptPlay {
protected:
    GoingOn() { launch(); }

    void mergeReds()
    {
        m_game->controller().moves().mouseDrag(0, 1, 0, 3);
        m_game->wait(3.0);
    }
    // All that is said on the way from the title page to the board.
    [[nodiscard]] std::string saidGoingOn()
    {
        m_game->controller().flow().returnToMenu();
        m_game->wait(1.0);
        static_cast<void>(m_game->takeAnnouncements());
        goOn();
        m_game->wait(1.0);
        std::string said;
        for (const std::string& sentence : m_game->takeAnnouncements()) {
            said += sentence + '\n';
        }
        return said;
    }
    // Along a shortest way, until it is celebrated.
    void solve()
    {
        const auto proof = m_game->controller().proof();
        while (!proof->checkSolved()) {
            m_game->controller().messages().dismiss();
            const auto gesture
                = play::gestureFor({ .lines = proof->lines(), .goal = proof->goal(), .open = 7 },
                    engine::HintHelper(proof).nextTheorem().value().theorem());
            if (const auto* const drag = std::get_if<play::Drag>(&gesture.value())) {
                m_game->controller().moves().mouseDrag(
                    drag->fromRow, drag->from, drag->toRow, drag->to);
            } else {
                const auto& click = std::get<play::Click>(*gesture);
                m_game->controller().moves().mouseClick(click.row, click.column);
            }
            m_game->wait(proof->checkSolved() ? 0.1 : 3.0);
        }
    }
};

} // namespace

TEST_F(GoingOn, TheLastLineIsSaidOnceThereIsOneMoreThanTheStart)
{
    m_game->listen();
    goOn();
    EXPECT_THAT(saidGoingOn(), Not(HasSubstr("The last is")));
    mergeReds();
    EXPECT_THAT(saidGoingOn(), HasSubstr("The last is line 1: yellow, green, red."));
}

// The sync after the last line has failed, and the line with it.
TEST_F(GoingOn, WhatWasLostAfterItWasWrittenIsWrittenAnewAtTheEnd)
{
    goOn();
    mergeReds();
    m_journal.remove(kKeptFile);
    m_journal.failLateWith("Input/output error");
    EXPECT_EQ(m_game->controller().kept().lastWords(), "");
    launch();
    goOn();
    EXPECT_THAT(lines(), ElementsAre("YRRRR", "YGR"));
}

TEST_F(GoingOn, WhatIsKeptIsLeftAloneAtTheEnd)
{
    goOn();
    mergeReds();
    m_journal.write(kKeptFile, "as it stands");
    EXPECT_EQ(m_game->controller().kept().lastWords(), "");
    EXPECT_EQ(m_journal.texts().at(kKeptFile), "as it stands");
}

TEST_F(GoingOn, AJournalThatHasBeenMadeGoodIsThereNoMore)
{
    goOn();
    solve();
    ASSERT_THAT(m_journal.texts(), Contains(::testing::Key(kKeptFile)));
    launch();
    EXPECT_THAT(m_journal.texts(), Not(Contains(::testing::Key(kKeptFile))));
    goOn();
    EXPECT_EQ(m_game->currentGame().stage(), 5);
}

} // namespace veyrand::controller
