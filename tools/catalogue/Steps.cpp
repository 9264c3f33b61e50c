#include "catalogue/Steps.h"

#include "play/Decide.h"

#include <stdexcept>

namespace veyrand::catalogue {

engine::PackedLine packed(const std::string& line)
{
    const std::optional<engine::PackedLine> word = engine::PackedLine::pack(line);
    if (!word) {
        throw std::runtime_error(line + ": not a line of chips");
    }
    return *word;
}

bool hasGesture(engine::PackedLine from, engine::PackedLine to, engine::PackedLine goal,
    int highestRule, std::size_t standing)
{
    const std::vector<engine::Theorem> lines(standing, engine::Theorem(from.text()));
    const engine::Theorem last(goal.text());
    return play::gestureFor({ .lines = lines, .goal = last, .open = highestRule }, to.text())
        .has_value();
}

} // namespace veyrand::catalogue
