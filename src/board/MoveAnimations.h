#pragma once

#include "board/LineDrawing.h"

namespace veyrand::board {

// The choreography of the seven moves. A new line is first shown as a copy of the line before the
// move; then, in phases, its chips slide, drop, merge or fade in until the copy reads as the new
// line. Every phase is scheduled at the start and runs unless the animation is abandoned; it works
// on whatever the table holds under the keys it computes, and a chip that has gone is passed over.
// Arguments: the line before the move, the new line's row, and the columns named in each operation.
class MoveAnimations {
public:
    MoveAnimations(GameData& gameData, LineDrawing& lines, platform::RunLoop& runLoop)
        : m_gameData(gameData)
        , m_lines(lines)
        , m_runLoop(runLoop)
    {
    }

    // A green slides out from under the last chip to the new end.
    void addGreenToEnd(const std::string& line, unsigned row);
    // The chips after the yellow one in the column are copied, and the copy slides out to the
    // right.
    void doubleAllAfterColumn(const std::string& line, unsigned row, unsigned column);
    // The outer two of three reds slide onto the middle one, which becomes a green.
    void threeRedsToOneGreen(const std::string& line, unsigned row, unsigned column);
    // Two greens drop off the board and the rest closes up.
    void twoGreensDisappear(const std::string& line, unsigned row, unsigned column);
    // The chip in the column and the one two places to its right cross over.
    void flipFirstAndThird(const std::string& line, unsigned row, unsigned column);
    // The part after the first of two greens steps right and a blue fades in in the gap.
    void splitGreensWithBlue(const std::string& line, unsigned row, unsigned column);
    // Everything between the blues in the two columns drops off the board and the rest closes up.
    void dropBetweenBlues(
        const std::string& line, unsigned row, unsigned column, unsigned endingColumn);

    // The phases still to come of every animation under way do nothing: for whoever draws the rows
    // anew in the middle of one.
    void abandonAll();

private:
    // What the phases of one move share: the columns' meaning is the animation's.
    struct Move {
        Chips chips;
        std::string line;
        unsigned row;
        unsigned column;
        unsigned endingColumn;

        [[nodiscard]] unsigned length() const { return static_cast<unsigned>(line.size()); }
    };
    using Phase = void (MoveAnimations::*)(const Move&);
    struct TimedPhase {
        double delay;
        Phase phase;
    };

    void start(const std::string& line, unsigned row, unsigned column, unsigned endingColumn,
        const std::vector<TimedPhase>& phases);

    void addGreenToEnd2(const Move& move);
    void doubleAllAfterColumn2(const Move& move);
    void threeRedsToOneGreen2(const Move& move);
    void threeRedsToOneGreen3(const Move& move);
    void threeRedsToOneGreen4(const Move& move);
    void twoGreensDisappear2(const Move& move);
    void twoGreensDisappear3(const Move& move);
    void flipFirstAndThird2(const Move& move);
    void splitGreensWithBlue2(const Move& move);
    void splitGreensWithBlue3(const Move& move);
    void dropBetweenBlues2(const Move& move);
    void dropBetweenBlues3(const Move& move);

    // The chip under one key takes another and slides to its column.
    void rekey(const std::string& from, unsigned toColumn, unsigned row);
    void rekey(unsigned fromColumn, unsigned toColumn, unsigned row);
    void slideToColumn(unsigned chipColumn, unsigned column, unsigned row);
    void dropChip(unsigned column, unsigned row);
    void removeChip(unsigned column, unsigned row);

    GameData& m_gameData;
    LineDrawing& m_lines;
    platform::RunLoop& m_runLoop;
    unsigned m_abandoned = 0; // how often; a phase begun before the last time no longer counts
};

} // namespace veyrand::board
