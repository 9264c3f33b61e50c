#include "headless/HeadlessGame.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "support/FolderResources.h"
#include "support/SimulatedDisk.h"
#include "support/Simulator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::controller {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

// A visit to 2-4 (YRRRR to YR) on a disk that fills up meanwhile.
class FullDisk : public ::testing::Test {
protected:
    FullDisk()
    {
        progress::updatePlayerRecord(m_disk.preferences(), progress::kDefaultPlayerName,
            { .level = 2, .stage = 4, .score = 310, .firstHintClick = true });
        start();
    }

    void start()
    {
        m_told.clear();
        m_simulator.launch([this](headless::HeadlessGame& game) {
            game.controller().kept().setReporter(
                [this](const std::string& message) { m_told.push_back(message); });
        });
        game().controller().flow().startClassicGame();
    }
    void mergeReds()
    {
        game().controller().moves().mouseDrag(0, 1, 0, 3);
        game().wait(3.0);
    }
    // Doubles what follows the yellow of the last line.
    void playOneMove()
    {
        game().controller().moves().mouseClick(game().controller().lineCount() - 1, 0);
        game().wait(3.0);
    }
    void buyHint()
    {
        game().controller().hints().lightBulbClick();
        game().wait(3.0);
    }
    [[nodiscard]] std::uint64_t hash() { return game().controller().flow().session()->hash(); }

    // Quits, starts, and looks whether all is as it was, and nothing was put aside.
    void expectAllIsFoundAgain()
    {
        EXPECT_EQ(game().controller().kept().lastWords(), "");
        const std::uint64_t before = hash();
        const auto score = game().currentGame().score();
        EXPECT_EQ(score, 260) << "the hint was not paid for";
        start();
        EXPECT_EQ(hash(), before);
        EXPECT_EQ(game().currentGame().score(), score);
        EXPECT_THAT(m_told, IsEmpty());
        std::vector<std::string> names;
        for (const auto& [name, text] : m_disk.journal().texts()) {
            names.push_back(name);
        }
        EXPECT_THAT(names, ElementsAre("New-classic.txt"));
    }

    [[nodiscard]] headless::HeadlessGame& game() { return m_simulator.game(); }

    std::vector<std::string> m_told;
    test::MemoryDisk m_disk;
    test::Simulator<headless::HeadlessGame> m_simulator { 1, m_disk,
        { .resources = &test::gameResources() } };
};

} // namespace

TEST_F(FullDisk, LosesNoHintWhenAMoveIsTakenBackOnceThereIsRoomAgain)
{
    mergeReds();
    m_disk.journal().failWith("No space left on device");
    buyHint();
    playOneMove();
    m_disk.journal().failWith("");
    const std::uint64_t before = hash();
    game().controller().history().undo();
    game().wait(3.0);
    ASSERT_NE(hash(), before);
    expectAllIsFoundAgain();
}

TEST_F(FullDisk, LosesNoHintWhenTheGameEndsOnceThereIsRoomAgain)
{
    mergeReds();
    m_disk.journal().failWith("No space left on device");
    buyHint();
    playOneMove();
    m_disk.journal().failWith("");
    expectAllIsFoundAgain();
}

} // namespace veyrand::controller
