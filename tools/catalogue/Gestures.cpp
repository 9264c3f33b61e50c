#include "catalogue/Gestures.h"

#include "controller/MoveDecision.h"
#include "engine/HintHelper.h"
#include "progress/RuleSets.h"

namespace veyrand::catalogue {

namespace {

constexpr std::size_t kMostLinesForDrag = 11;

const engine::Rules& rules()
{
    static const engine::Rules kRules = progress::advancedRules();
    return kRules;
}

// Whether the decision makes that line.
bool makes(const std::optional<controller::MoveDecision>& decision, engine::PackedLine from,
    engine::PackedLine to)
{
    unsigned match = 0;
    return decision && !forEachMatch(decision->rule, from, [&](engine::PackedLine child) {
        return match++ != decision->match || child != to;
    });
}

} // namespace

std::optional<Gesture> gestureFor(engine::PackedLine from, engine::PackedLine to,
    engine::PackedLine goal, int highestRule, std::size_t standing)
{
    const bool isLastLine = standing + 1 == engine::kMostLines;
    if (standing >= engine::kMostLines || (isLastLine && to != goal) || to.length() > kMostChips) {
        return std::nullopt;
    }
    const engine::Theorem line(from.text());
    for (unsigned column = 0; column < from.length(); ++column) {
        if (makes(controller::decideClick(line, rules(), column, highestRule), from, to)) {
            return Gesture { Gesture::Kind::Click, column, 0 };
        }
        if (standing > kMostLinesForDrag) {
            continue;
        }
        for (const unsigned target : controller::dropTargets(line, column)) {
            if (makes(
                    controller::decideDrag(line, rules(), column, target, highestRule), from, to)) {
                return Gesture { Gesture::Kind::Drag, column, target };
            }
        }
    }
    return std::nullopt;
}

} // namespace veyrand::catalogue
