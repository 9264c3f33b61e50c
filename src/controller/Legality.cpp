#include "controller/Legality.h"

#include "controller/GameController.h"
#include "play/Decide.h"

namespace veyrand::controller {

std::optional<play::Refusal> whyNoClick(
    const GameController& controller, unsigned row, unsigned column)
{
    const auto decision
        = play::decide(controller.moves().position(), play::Click { .row = row, .column = column });
    const auto* const refusal = std::get_if<play::Refusal>(&decision);
    return refusal != nullptr ? std::optional(*refusal) : std::nullopt;
}

std::vector<unsigned> dropsThatAreMoves(
    const GameController& controller, unsigned row, unsigned column)
{
    const play::Position position = controller.moves().position();
    std::vector<unsigned> columns;
    if (position.lines.empty() || row + 1 != position.lines.size()) {
        return columns;
    }
    for (const unsigned target : play::targets(position, column)) {
        const auto decision = play::decide(
            position, play::Drag { .fromRow = row, .from = column, .toRow = row, .to = target });
        if (std::holds_alternative<play::Action>(decision)) {
            columns.push_back(target);
        }
    }
    return columns;
}

} // namespace veyrand::controller
