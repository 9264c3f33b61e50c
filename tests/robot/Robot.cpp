#include "robot/Robot.h"

#include "engine/HintHelper.h"
#include "play/Decide.h"
#include "support/BoardRows.h"

#include <gtest/gtest.h>

namespace veyrand::test {

namespace {

// Beside every button and chip, so that a press there only closes pages.
constexpr platform::Point kNowhere { .x = 1.59, .y = 0.5 };
constexpr double kPoll = 0.25;
constexpr double kAnimationsEnd = 2.0;

} // namespace

bool Robot::solvePuzzle()
{
    const auto proof = m_game.controller().proof();
    while (proof && proof == m_game.controller().proof()) {
        readPages();
        if (proof != m_game.controller().proof()) {
            break; // the celebration is over
        }
        checkAtRest();
        const auto next = engine::HintHelper(proof).nextTheorem();
        const auto gesture = next ? gestureFor(*next) : std::nullopt;
        const std::size_t before = proof->lines().size();
        if (!gesture) {
            ADD_FAILURE() << "no way from " << proof->lines().back().theorem() << " to "
                          << proof->goal().theorem();
            return false;
        }
        perform(*gesture);
        if (proof->lines().size() != before + 1 || proof->lines().back() != *next) {
            ADD_FAILURE() << "the move to " << next->theorem() << " was refused";
            return false;
        }
        waitUntilUnblocked();
        m_game.wait(kAnimationsEnd);
        checkAlways();
    }
    return true;
}

void Robot::readPages()
{
    waitUntilUnblocked();
    while (!m_game.controller().messages().page().empty()) {
        m_pagesRead.push_back(m_game.controller().messages().page());
        press(kNowhere);
        release(kNowhere);
        waitUntilUnblocked();
    }
    EXPECT_EQ(m_game.controller().messages().displayMessageWindowOnClick(), 0)
        << "no page is left, but a code is";
}

void Robot::click(const std::string& key)
{
    const auto place = m_game.centreOf(key);
    ASSERT_TRUE(place.has_value()) << key;
    press(*place);
    release(*place);
    waitUntilUnblocked();
}

void Robot::waitUntilUnblocked()
{
    while (m_game.game().view().block().blockClick()) {
        m_game.wait(kPoll);
        checkAlways();
    }
}

std::optional<play::Gesture> Robot::gestureFor(const engine::Theorem& next) const
{
    const engine::Proof& proof = *m_game.controller().proof();
    return play::gestureFor({ .lines = proof.lines(),
                                .goal = proof.goal(),
                                .open = m_game.currentGame().highestRule() },
        next.theorem());
}

void Robot::perform(const play::Gesture& gesture)
{
    const auto place = [](unsigned row, unsigned column) {
        return platform::Point { .x = board::xPositionForColumn(column),
            .y = board::yPositionForRow(row) };
    };
    if (const auto* const drag = std::get_if<play::Drag>(&gesture)) {
        press(place(drag->fromRow, drag->from));
        release(place(drag->toRow, drag->to));
    } else {
        const auto& click = std::get<play::Click>(gesture);
        press(place(click.row, click.column));
        release(place(click.row, click.column));
    }
}

void Robot::press(platform::Point place)
{
    m_game.press(place);
    ++m_eventsSent;
    checkAlways();
}

void Robot::release(platform::Point place)
{
    m_game.release(place);
    ++m_eventsSent;
    checkAlways();
}

void Robot::checkAlways()
{
    const board::ObjectTable& table = m_game.gameData().gameObjects();
    for (const std::string& key : table.keys()) {
        EXPECT_EQ(table.objectForKey(key)->keyInGameData(), key);
        EXPECT_NE(m_game.game().layers().layerForKey(key), nullptr) << key;
    }
    const auto& view = m_game.game().view();
    const bool pageOpen = !m_game.controller().messages().page().empty();
    EXPECT_EQ(pageOpen, view.messageWindow() || view.tutorialWindow());
    EXPECT_EQ(pageOpen || m_game.controller().dialogueState() != 0, table.contains("fullScreen"));
    if (const auto& proof = m_game.controller().proof()) {
        EXPECT_LE(proof->lines().size(), engine::kMostLines);
        for (const engine::Theorem& line : proof->lines()) {
            EXPECT_LE(line.theorem().size(), 12U);
        }
    }
}

void Robot::checkAtRest()
{
    const board::ObjectTable& table = m_game.gameData().gameObjects();
    const engine::Proof& proof = *m_game.controller().proof();
    std::size_t chips = 0;
    for (unsigned row = 0; row < proof.lines().size(); ++row) {
        EXPECT_EQ(rowText(table, row), proof.lines()[row].theorem());
        EXPECT_EQ(table.contains(board::deleteButtonKey(row)), row > 0);
        chips += proof.lines()[row].theorem().size();
    }
    EXPECT_EQ(keysFrom(table, "chip").size(), chips) << "stray chips";
    EXPECT_EQ(rowText(table, board::kGoalRow, "goal"), proof.goal().theorem());
}

} // namespace veyrand::test
