#include "board/LineDrawing.h"

#include "board/Times.h"

namespace veyrand::board {

Chips LineDrawing::chipsForTheorem(const std::string& line, unsigned row)
{
    Chips chips;
    chips.reserve(line.size());
    for (const char letter : line) {
        chips.push_back(createChip(letter, static_cast<unsigned>(chips.size()), row));
    }
    return chips;
}

GameObjectPtr LineDrawing::createChip(char letter, unsigned column, unsigned row)
{
    return std::make_shared<GameObject>(std::string(imageForLetter(letter)),
        xPositionForColumn(column), yPositionForRow(row), kChipSize, kChipSize, 1.0, true);
}

Chips LineDrawing::createChipsForTheorem(
    const std::string& line, unsigned row, std::string_view prefix, Adding adding)
{
    Chips chips = chipsForTheorem(line, row);
    for (unsigned column = 0; column < chips.size(); ++column) {
        const std::string key = chipKey(prefix, column, row);
        chips[column]->setKeyInGameData(key);
        if (adding == Adding::AddToTable) {
            m_gameData.gameObjects().addGameObject(chips[column], key);
        }
    }
    return chips;
}

Chips LineDrawing::createChipsForTheorem(const std::string& line, unsigned row)
{
    return createChipsForTheorem(line, row, "chip", Adding::AddToTable);
}

void LineDrawing::setRow(unsigned row, const Chips& chips)
{
    for (const GameObjectPtr& chip : chips) {
        m_gameData.gameObjects().change(chip->keyInGameData().value_or(std::string()),
            [row](GameObject& object) { object.setY(yPositionForRow(row)); });
    }
}

void LineDrawing::setVisibile(bool visible, const Chips& chips)
{
    for (const GameObjectPtr& chip : chips) {
        m_gameData.gameObjects().change(chip->keyInGameData().value_or(std::string()),
            [visible](GameObject& object) { object.setVisible(visible); });
    }
}

Chips LineDrawing::introduceNewTheorem(const std::string& line, unsigned row)
{
    Chips chips = createChipsForTheorem(line, row);
    // A change restarts a layer from the value last set, so sending the chips up and at once back
    // down shows as a slide from the line above.
    setRow(row - 1, chips);
    setRow(row, chips);
    m_runLoop.performAfterDelay(times::kDeleteButtonComes, [this, row, begun = m_abandoned] {
        if (begun == m_abandoned) {
            createDeleteButton(row);
        }
    });
    return chips;
}

void LineDrawing::dropTheorem(const std::string& line, unsigned row)
{
    for (unsigned column = 0; column < line.size(); ++column) {
        const std::string key = generateKeyChipKey(column, row);
        m_gameData.gameObjects().change(key, [](GameObject& object) {
            object.setWidth(0.0);
            object.setHeight(0.0);
        });
        const std::weak_ptr<GameObject> dropped = m_gameData.gameObjects().objectForKey(key);
        m_runLoop.performAfterDelay(
            times::kDroppedLineGoes, [this, key, dropped] { dropTheorem2(key, dropped); });
    }
}

void LineDrawing::dropTheorem2(const std::string& key, const std::weak_ptr<GameObject>& dropped)
{
    // The player may have made a new line in the same row meanwhile: its chips stay.
    const GameObjectPtr record = m_gameData.gameObjects().objectForKey(key);
    if (record && record == dropped.lock()) {
        m_gameData.gameObjects().removeEntry(key);
    }
}

void LineDrawing::createDeleteButton(unsigned row)
{
    constexpr double kSize = 0.0495;
    m_gameData
        .fadeInImage("Delete", xPositionForColumn(0) - kChipSize, yPositionForRow(row), kSize,
            kSize, 1.0, deleteButtonKey(row))
        ->setName("delete line " + std::to_string(row));
}

void LineDrawing::settleRow(const std::string& line, unsigned row)
{
    ObjectTable& table = m_gameData.gameObjects();
    bool reads = true;
    unsigned column = 0;
    for (; column < line.size(); ++column) {
        const GameObjectPtr chip = table.objectForKey(generateKeyChipKey(column, row));
        reads = reads && chip && chip->imageName() == imageForLetter(line[column]);
    }
    // Chips stand without gaps, so the first free column ends the row.
    while (table.contains(generateKeyChipKey(column, row))) {
        table.removeGameObjectForKey(generateKeyChipKey(column, row));
        ++column;
    }
    if (!reads) {
        createChipsForTheorem(line, row);
    }
}

void LineDrawing::redrawRow(const std::string& line, unsigned row)
{
    clearRow(row);
    createChipsForTheorem(line, row);
}

void LineDrawing::clearRow(unsigned row)
{
    const std::string_view prefix = "chip-";
    const std::string suffix = '-' + std::to_string(row);
    for (const std::string& key : m_gameData.gameObjects().keys()) {
        if (key.compare(0, prefix.size(), prefix) == 0
            && key.compare(key.size() - suffix.size(), suffix.size(), suffix) == 0) {
            m_gameData.gameObjects().removeGameObjectForKey(key);
        }
    }
}

} // namespace veyrand::board
