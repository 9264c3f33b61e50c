#include "board/GoalDrawing.h"

#include "board/Times.h"

namespace veyrand::board {

void GoalDrawing::drawGoal(const std::string& goal)
{
    m_goalLine = m_lines.createChipsForTheorem(goal, kGoalRow, "goal", Adding::KeepApart);
    for (const GameObjectPtr& chip : m_goalLine) {
        chip->setY(yPositionForRow(1));
        chip->setOpacity(0.0);
        m_gameData.gameObjects().addGameObject(chip, *chip->keyInGameData());
    }
    sendGoalTo(kGoalRow, 0.7F);
}

void GoalDrawing::goalMetAtRow(unsigned row)
{
    sendGoalTo(row, 0.1F);
    m_runLoop.performAfterDelay(times::kGoalGoes, [this] { goalMet2(); });
}

void GoalDrawing::sendGoalTo(unsigned row, float opacity)
{
    for (const GameObjectPtr& chip : m_goalLine) {
        m_gameData.gameObjects().change(
            chip->keyInGameData().value_or(std::string()), [row, opacity](GameObject& object) {
                object.setY(yPositionForRow(row));
                object.setOpacity(static_cast<double>(opacity));
            });
    }
}

void GoalDrawing::goalMet2()
{
    // Whatever goal is held by now, even one drawn since.
    for (const GameObjectPtr& chip : m_goalLine) {
        m_gameData.gameObjects().removeEntry(chip->keyInGameData().value_or(std::string()));
    }
    m_goalLine.clear();
}

} // namespace veyrand::board
