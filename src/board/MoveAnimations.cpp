#include "board/MoveAnimations.h"

#include "board/Times.h"

namespace veyrand::board {

namespace {

constexpr const char* kTemporaryGreen = "temporaryGreen";

GameObjectPtr newChip(std::string_view image, double x, double y, double opacity)
{
    return std::make_shared<GameObject>(
        std::string(image), x, y, kChipSize, kChipSize, opacity, true);
}

} // namespace

void MoveAnimations::start(const std::string& line, unsigned row, unsigned column,
    unsigned endingColumn, const std::vector<TimedPhase>& phases)
{
    const auto move = std::make_shared<const Move>(
        Move { m_lines.introduceNewTheorem(line, row), line, row, column, endingColumn });
    for (const auto& [delay, phase] : phases) {
        m_runLoop.performAfterDelay(delay, [this, move, phase = phase, begun = m_abandoned] {
            if (begun == m_abandoned) {
                (this->*phase)(*move);
            }
        });
    }
}

void MoveAnimations::abandonAll()
{
    ++m_abandoned;
    m_gameData.gameObjects().removeGameObjectForKey(kTemporaryGreen);
}

void MoveAnimations::addGreenToEnd(const std::string& line, unsigned row)
{
    start(line, row, 0, 0, { { times::kSlideEnd, &MoveAnimations::addGreenToEnd2 } });
}

void MoveAnimations::addGreenToEnd2(const Move& move)
{
    if (move.chips.empty()) {
        return;
    }
    const GameObjectPtr& last = move.chips.back();
    m_gameData.gameObjects().addGameObject(newChip("GreenChip", last->x(), last->y(), 1.0),
        generateKeyChipKey(move.length(), move.row));
    slideToColumn(move.length(), move.length(), move.row);
}

void MoveAnimations::doubleAllAfterColumn(const std::string& line, unsigned row, unsigned column)
{
    start(line, row, column, 0, { { times::kSlideEnd, &MoveAnimations::doubleAllAfterColumn2 } });
}

void MoveAnimations::doubleAllAfterColumn2(const Move& move)
{
    const std::string tail = move.line.substr(move.column + 1);
    const unsigned firstNew = move.length();
    for (unsigned i = 0; i < tail.size(); ++i) {
        auto copy = LineDrawing::createChip(tail[i], firstNew + i, move.row);
        copy->setX(xPositionForColumn(move.column + 1 + i)); // on top of the chip it copies
        m_gameData.gameObjects().addGameObject(copy, generateKeyChipKey(firstNew + i, move.row));
    }
    for (unsigned i = 0; i < tail.size(); ++i) {
        slideToColumn(firstNew + i, firstNew + i, move.row);
    }
}

void MoveAnimations::threeRedsToOneGreen(const std::string& line, unsigned row, unsigned column)
{
    start(line, row, column, 0,
        { { times::kSlideEnd, &MoveAnimations::threeRedsToOneGreen2 },
            { times::kMergeEnd, &MoveAnimations::threeRedsToOneGreen3 },
            { times::kMergeEnd, &MoveAnimations::threeRedsToOneGreen4 } });
}

void MoveAnimations::threeRedsToOneGreen2(const Move& move)
{
    slideToColumn(move.column, move.column + 1, move.row);
    slideToColumn(move.column + 2, move.column + 1, move.row);
}

void MoveAnimations::threeRedsToOneGreen3(const Move& move)
{
    m_gameData.gameObjects().addGameObject(
        newChip("GreenChip", xPositionForColumn(move.column + 1), yPositionForRow(move.row), 1.0),
        kTemporaryGreen);
    for (unsigned column = move.column; column < move.column + 3; ++column) {
        removeChip(column, move.row);
    }
}

void MoveAnimations::threeRedsToOneGreen4(const Move& move)
{
    rekey(kTemporaryGreen, move.column, move.row);
    for (unsigned column = move.column + 3; column < move.length(); ++column) {
        rekey(column, column - 2, move.row);
    }
}

void MoveAnimations::twoGreensDisappear(const std::string& line, unsigned row, unsigned column)
{
    start(line, row, column, 0,
        { { times::kSlideEnd, &MoveAnimations::twoGreensDisappear2 },
            { times::kVanishEnd, &MoveAnimations::twoGreensDisappear3 } });
}

void MoveAnimations::twoGreensDisappear2(const Move& move)
{
    dropChip(move.column, move.row);
    dropChip(move.column + 1, move.row);
}

void MoveAnimations::twoGreensDisappear3(const Move& move)
{
    removeChip(move.column, move.row);
    removeChip(move.column + 1, move.row);
    for (unsigned column = move.column + 2; column < move.length(); ++column) {
        rekey(column, column - 2, move.row);
    }
}

void MoveAnimations::flipFirstAndThird(const std::string& line, unsigned row, unsigned column)
{
    start(line, row, column, 0, { { times::kSlideEnd, &MoveAnimations::flipFirstAndThird2 } });
}

void MoveAnimations::flipFirstAndThird2(const Move& move)
{
    ObjectTable& table = m_gameData.gameObjects();
    const std::string firstKey = generateKeyChipKey(move.column, move.row);
    const std::string thirdKey = generateKeyChipKey(move.column + 2, move.row);
    const GameObjectPtr first = table.objectForKey(firstKey);
    const GameObjectPtr third = table.objectForKey(thirdKey);
    table.removeEntry(firstKey);
    table.removeEntry(thirdKey);
    if (first) {
        table.addGameObject(first, thirdKey);
    }
    if (third) {
        table.addGameObject(third, firstKey);
    }
    slideToColumn(move.column + 2, move.column + 2, move.row);
    slideToColumn(move.column, move.column, move.row);
}

void MoveAnimations::splitGreensWithBlue(const std::string& line, unsigned row, unsigned column)
{
    start(line, row, column, 0,
        { { times::kSlideEnd, &MoveAnimations::splitGreensWithBlue2 },
            { times::kMergeEnd, &MoveAnimations::splitGreensWithBlue3 } });
}

void MoveAnimations::splitGreensWithBlue2(const Move& move)
{
    // From the end backwards, so that no key is taken twice.
    for (unsigned column = move.length() - 1; column > move.column; --column) {
        rekey(column, column + 1, move.row);
    }
}

void MoveAnimations::splitGreensWithBlue3(const Move& move)
{
    m_gameData.fadeInImage("BlueChip", xPositionForColumn(move.column + 1),
        yPositionForRow(move.row), kChipSize, kChipSize, 1.0,
        generateKeyChipKey(move.column + 1, move.row));
}

void MoveAnimations::dropBetweenBlues(
    const std::string& line, unsigned row, unsigned column, unsigned endingColumn)
{
    start(line, row, column, endingColumn,
        { { times::kSlideEnd, &MoveAnimations::dropBetweenBlues2 },
            { times::kVanishEnd, &MoveAnimations::dropBetweenBlues3 } });
}

void MoveAnimations::dropBetweenBlues2(const Move& move)
{
    for (unsigned column = move.column + 1; column < move.endingColumn; ++column) {
        dropChip(column, move.row);
    }
}

void MoveAnimations::dropBetweenBlues3(const Move& move)
{
    for (unsigned column = move.column + 1; column < move.endingColumn; ++column) {
        removeChip(column, move.row);
    }
    const unsigned closedUp = move.endingColumn - move.column - 1;
    for (unsigned column = move.endingColumn; column < move.length(); ++column) {
        rekey(column, column - closedUp, move.row);
    }
}

void MoveAnimations::rekey(const std::string& from, unsigned toColumn, unsigned row)
{
    const GameObjectPtr chip = m_gameData.gameObjects().objectForKey(from);
    if (!chip) {
        return;
    }
    m_gameData.gameObjects().removeEntry(from);
    m_gameData.gameObjects().addGameObject(chip, generateKeyChipKey(toColumn, row));
    slideToColumn(toColumn, toColumn, row);
}

void MoveAnimations::rekey(unsigned fromColumn, unsigned toColumn, unsigned row)
{
    rekey(generateKeyChipKey(fromColumn, row), toColumn, row);
}

void MoveAnimations::slideToColumn(unsigned chipColumn, unsigned column, unsigned row)
{
    m_gameData.gameObjects().change(generateKeyChipKey(chipColumn, row),
        [column](GameObject& chip) { chip.setX(xPositionForColumn(column)); });
}

void MoveAnimations::dropChip(unsigned column, unsigned row)
{
    m_gameData.gameObjects().change(
        generateKeyChipKey(column, row), [](GameObject& chip) { chip.setY(kBelowTheBoard); });
}

void MoveAnimations::removeChip(unsigned column, unsigned row)
{
    m_gameData.gameObjects().removeEntry(generateKeyChipKey(column, row));
}

} // namespace veyrand::board
