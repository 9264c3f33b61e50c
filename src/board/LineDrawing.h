#pragma once

#include "board/GameData.h"
#include "platform/RunLoop.h"

#include <vector>

namespace veyrand::board {

using Chips = std::vector<GameObjectPtr>;

enum class Adding { AddToTable, KeepApart };

// Draws lines of chips: puts a line's chips into the table, slides a new line in, drops a removed
// one, and gives a line its delete button. A line is a string of colour letters, one chip each.
class LineDrawing {
public:
    LineDrawing(GameData& gameData, platform::RunLoop& runLoop)
        : m_gameData(gameData)
        , m_runLoop(runLoop)
    {
    }

    // New chips in the row's place, in no table and without keys.
    [[nodiscard]] static Chips chipsForTheorem(const std::string& line, unsigned row);
    [[nodiscard]] static GameObjectPtr createChip(char letter, unsigned column, unsigned row);

    // Chips keyed prefix-column-row. Added ones show at once, at full opacity.
    Chips createChipsForTheorem(
        const std::string& line, unsigned row, std::string_view prefix, Adding adding);
    Chips createChipsForTheorem(const std::string& line, unsigned row);

    void setRow(unsigned row, const Chips& chips);
    void setVisibile(bool visible, const Chips& chips);

    // Shows the line sliding down from the row above; its delete button follows.
    Chips introduceNewTheorem(const std::string& line, unsigned row);

    // Shrinks the line's chips to nothing and takes them out of the table a second later.
    void dropTheorem(const std::string& line, unsigned row);

    void createDeleteButton(unsigned row);
    // The delete buttons that were still to come stay away: for whoever draws them at once.
    void abandonDeleteButtons() { ++m_abandoned; }

    // Makes the row read as the line: nothing when it does, else its chips are drawn anew.
    void settleRow(const std::string& line, unsigned row);
    // Draws every chip of the row anew, whatever an animation had made of it.
    void redrawRow(const std::string& line, unsigned row);
    // Takes every chip of the row off the board, also those that are still shrinking.
    void clearRow(unsigned row);

private:
    void dropTheorem2(const std::string& key, const std::weak_ptr<GameObject>& dropped);

    GameData& m_gameData;
    platform::RunLoop& m_runLoop;
    unsigned m_abandoned = 0; // how often; a button promised before the last time no longer comes
};

} // namespace veyrand::board
