#pragma once

#include "board/GameData.h"

#include <map>

namespace veyrand::board {

// How many chips of each colour letter a line holds; a missing letter counts as none.
using HintMatrix = std::map<char, unsigned>;

// Draws what a hint reveals: the mark that the proof is good so far, and the chips of the next
// line, first as a column beside the board and then flying into the line's places.
class HintDrawing {
public:
    explicit HintDrawing(GameData& gameData)
        : m_gameData(gameData)
    {
    }

    void drawProofGoodSoFar();
    void clearProofGoodSoFar();

    // The matrix's letters in the order Y, R, G, B, each as often as it counts.
    [[nodiscard]] static std::string generateMatrixString(const HintMatrix& matrix);

    // The chips rise from below the board into a column, the first letter lowest.
    void drawHintMatrix(const HintMatrix& matrix);

    // The column's chips fly to the places of the hinted line at the row, each chip used once.
    void drawHint(const std::string& hintedLine, const HintMatrix& matrix, unsigned row);

private:
    GameData& m_gameData;
};

} // namespace veyrand::board
