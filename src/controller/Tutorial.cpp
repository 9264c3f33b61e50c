#include "controller/Tutorial.h"

#include "controller/GameController.h"
#include "play/Decide.h"

namespace veyrand::controller {

namespace {

play::Click clickOf(const Gate::Cell& cell)
{
    return { static_cast<unsigned>(cell.row), static_cast<unsigned>(cell.column) };
}

play::Drag dragOf(const Gate::Cells& cells)
{
    const auto [fromRow, from] = clickOf(cells.from);
    const auto [toRow, to] = clickOf(cells.to);
    return { fromRow, from, toRow, to };
}

} // namespace

Tutorial::Tutorial(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
{
}

const Gate* Tutorial::gate() const
{
    if (!m_running || m_game.currentGame.endlessGame() || m_game.currentGame.practice()) {
        return nullptr;
    }
    for (const Gate& gate : m_game.script.gates) {
        if (gate.level == m_game.currentGame.level() && gate.stage == m_game.currentGame.stage()
            && gate.lines.value_or(m_controller.lineCount()) == m_controller.lineCount()) {
            return &gate;
        }
    }
    return nullptr;
}

std::optional<play::Lesson> Tutorial::lesson() const
{
    const Gate* const gate = this->gate();
    if (gate == nullptr) {
        return std::nullopt;
    }
    play::Lesson lesson;
    if (gate->click) {
        lesson.click = clickOf(*gate->click);
    }
    if (gate->drag) {
        lesson.drag = dragOf(*gate->drag);
    }
    return lesson;
}

bool Tutorial::checkTutorialClick(unsigned row, unsigned column)
{
    const Gate* const gate = this->gate();
    if (!isAccepted(play::Click { row, column })) {
        return false;
    }
    if (gate != nullptr && !gate->then.empty()) {
        m_controller.flow().performWithThisProof(
            gate->after, [this, note = gate->then] { m_controller.pages().show(note); });
    }
    return true;
}

bool Tutorial::checkTutorialDrag(
    unsigned fromRow, unsigned fromColumn, unsigned toRow, unsigned toColumn)
{
    return isAccepted(play::Drag { fromRow, fromColumn, toRow, toColumn });
}

bool Tutorial::isAccepted(const play::Gesture& gesture)
{
    const Gate* const gate = this->gate();
    if (play::accepts(lesson(), gesture)) {
        return true;
    }
    m_controller.pages().show(gate->otherwise);
    return false;
}

} // namespace veyrand::controller
