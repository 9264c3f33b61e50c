#include "board/HintDrawing.h"

#include <algorithm>

namespace veyrand::board {

namespace {

constexpr double kHintColumnX = 0.5;

std::string hintKey(std::size_t index)
{
    return chipKey("hint", static_cast<unsigned>(index), kHintRow);
}

} // namespace

void HintDrawing::drawProofGoodSoFar()
{
    m_gameData.fadeInImage("Checkmark", 0.5, 0.285, kChipSize, kChipSize, 1.0, "checkmark");
}

void HintDrawing::clearProofGoodSoFar()
{
    m_gameData.gameObjects().removeGameObjectForKey("checkmark");
}

std::string HintDrawing::generateMatrixString(const HintMatrix& matrix)
{
    std::string letters;
    for (const char letter : std::string_view("YRGB")) {
        if (const auto count = matrix.find(letter); count != matrix.end()) {
            letters.append(count->second, letter);
        }
    }
    return letters;
}

void HintDrawing::drawHintMatrix(const HintMatrix& matrix)
{
    const std::string letters = generateMatrixString(matrix);
    for (std::size_t i = 0; i < letters.size(); ++i) {
        m_gameData.gameObjects().addGameObject(
            std::make_shared<GameObject>(std::string(imageForLetter(letters[i])), kHintColumnX,
                kBelowTheBoard, kChipSize, kChipSize, 0.0, true),
            hintKey(i));
    }
    // The column's middle stays at half height plus a little, however many chips it has.
    const double base = kChipSize * static_cast<double>(letters.size()) * -0.5 + 0.54;
    for (std::size_t i = 0; i < letters.size(); ++i) {
        m_gameData.gameObjects().change(hintKey(i), [base, i](GameObject& object) {
            object.setY(kChipSize * static_cast<double>(i) + base);
            object.setOpacity(1.0);
        });
    }
}

void HintDrawing::drawHint(const std::string& hintedLine, const HintMatrix& matrix, unsigned row)
{
    constexpr char kUsed = '-';
    std::string letters = generateMatrixString(matrix);
    for (std::size_t i = 0; i < hintedLine.size(); ++i) {
        // The search ends with the hinted line's length, not the matrix's; they differ only when
        // the matrix was made from another line.
        const std::size_t bound = std::min(hintedLine.size(), letters.size());
        const std::size_t j = letters.find(hintedLine[i]);
        if (j >= bound) {
            continue;
        }
        letters[j] = kUsed;
        m_gameData.gameObjects().change(hintKey(j), [i, row](GameObject& object) {
            object.setX(xPositionForColumn(static_cast<unsigned>(i)));
            object.setY(yPositionForRow(row));
        });
    }
}

} // namespace veyrand::board
