#include "controller/Tutorial.h"

#include "controller/GameController.h"

namespace veyrand::controller {

namespace {

Gate::Cell cell(unsigned row, unsigned column)
{
    return { static_cast<int>(row), static_cast<int>(column) };
}

} // namespace

Tutorial::Tutorial(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
{
}

const Gate* Tutorial::gate() const
{
    if (!m_running || m_game.currentGame.endlessGame()) {
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

bool Tutorial::checkTutorialClick(unsigned row, unsigned column)
{
    const Gate* const gate = this->gate();
    if (gate == nullptr) {
        return true;
    }
    if (gate->drag) {
        // A click is no drag, whatever it hits.
        constexpr Gate::Cell kNowhere { -1, -1 };
        return checkDrag(*gate, { kNowhere, kNowhere });
    }
    if (gate->click != cell(row, column)) {
        m_controller.pages().show(gate->otherwise);
        return false;
    }
    if (!gate->then.empty()) {
        m_controller.flow().performWithThisProof(
            gate->after, [this, note = gate->then] { m_controller.pages().show(note); });
    }
    return true;
}

bool Tutorial::checkTutorialDrag(
    unsigned fromRow, unsigned fromColumn, unsigned toRow, unsigned toColumn)
{
    const Gate* const gate = this->gate();
    return gate == nullptr || !gate->drag
        || checkDrag(*gate, { cell(fromRow, fromColumn), cell(toRow, toColumn) });
}

bool Tutorial::checkDrag(const Gate& gate, const Gate::Cells& drag)
{
    if (gate.drag == drag) {
        return true;
    }
    m_controller.pages().show(gate.otherwise);
    return false;
}

} // namespace veyrand::controller
