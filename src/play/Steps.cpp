#include "play/Steps.h"

#include "progress/RuleSets.h"

#include <algorithm>

namespace veyrand::play {

const engine::PackedMoves& gameMoves()
{
    static const engine::PackedMoves kMoves
        = engine::PackedMoves::derive(progress::advancedRules()).value();
    return kMoves;
}

std::vector<Step> stepsFrom(engine::PackedLine line, MoveSet open)
{
    std::vector<Step> steps;
    for (unsigned rule = 0; rule < progress::kMoveCount; ++rule) {
        if ((open & only(rule)) == 0) {
            continue;
        }
        forEachMatch(rule, line, [&](engine::PackedLine child) {
            if (child.length() > kMostChips || child == line) {
                return true;
            }
            const auto known = std::find_if(steps.begin(), steps.end(),
                [child](const Step& step) { return step.line == child; });
            if (known == steps.end()) {
                steps.push_back({ child, only(rule) });
            } else {
                known->moves |= only(rule);
            }
            return true;
        });
    }
    return steps;
}

std::optional<Move> moveBetween(engine::PackedLine from, engine::PackedLine to, MoveSet open)
{
    for (unsigned rule = 0; rule < progress::kMoveCount; ++rule) {
        unsigned match = 0;
        const auto isOther = [&](engine::PackedLine child) { return child != to && ++match != 0; };
        if ((open & only(rule)) != 0 && !forEachMatch(rule, from, isOther)) {
            return Move { rule, match };
        }
    }
    return std::nullopt;
}

} // namespace veyrand::play
