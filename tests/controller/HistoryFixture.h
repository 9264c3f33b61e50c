#pragma once

#include "play/Gesture.h"
#include "progress/PlayerKeys.h"
#include "support/HeadlessPlay.h"

namespace veyrand::controller {

inline headless::HeadlessGame::Options richPlayer()
{
    headless::HeadlessGame::Options options;
    options.preferences.records[progress::playerRecordKey(progress::kDefaultPlayerName)]
        = { { std::string(progress::kLevelKey), std::int64_t { 5 } },
              { std::string(progress::kStageKey), std::int64_t { 1 } },
              { std::string(progress::kScoreKey), std::int64_t { 1000 } },
              { std::string(progress::kFirstHintClickKey), true } };
    return options;
}

// A game with points for hints, and its history at hand.
class HistoryTest : public test::HeadlessPlay {
protected:
    HistoryTest()
        : HeadlessPlay(richPlayer())
    {
    }

    void undo() { game().key("Ctrl+Z"); }
    void redo() { game().key("Ctrl+Shift+Z"); }
    void hint()
    {
        click("button-lightbulboff");
        settle();
    }
    void make(const play::Gesture& gesture)
    {
        if (const auto* const chip = std::get_if<play::Click>(&gesture)) {
            clickIfThere(board::generateKeyChipKey(chip->column, chip->row));
        } else if (const auto* const two = std::get_if<play::Drag>(&gesture)) {
            const std::string from = board::generateKeyChipKey(two->from, two->fromRow);
            const std::string to = board::generateKeyChipKey(two->to, two->toRow);
            if (table().contains(from) && table().contains(to)) {
                drag(from, to);
            }
        }
    }
    // A chip that is still to come cannot be clicked.
    void clickIfThere(const std::string& key)
    {
        if (table().contains(key)) {
            click(key);
        }
    }
    [[nodiscard]] History& history() { return game().controller().history(); }

    // Every row reads as its line, each but the first has its button, and there is no chip more.
    void expectBoardShowsTheLines()
    {
        std::size_t chips = 0;
        unsigned number = 0;
        for (const std::string& line : lines()) {
            EXPECT_EQ(row(number), line) << number;
            EXPECT_EQ(table().contains(board::deleteButtonKey(number)), number > 0) << number;
            chips += line.size();
            ++number;
        }
        EXPECT_EQ(test::keysFrom(table(), "chip-").size(), chips);
        EXPECT_EQ(test::keysFrom(table(), "delete-").size(), lines().size() - 1);
        EXPECT_FALSE(table().contains("temporaryGreen"));
    }
};

} // namespace veyrand::controller
