#pragma once

#include "catalogue/ShortestWays.h"
#include "engine/Derivation.h"
#include "engine/PackedLineSet.h"

#include <optional>
#include <vector>

namespace veyrand::catalogue {

// Answers what the game's hints would, many thousand times in a row: the same search with the same
// limits, ended as soon as the goal turns up. A test holds it against the game's own.
class HintSearch {
public:
    using Lines = std::vector<engine::PackedLine>;

    // The way on from the last of these lines, that line included; nothing when the search finds
    // none that fits on the board.
    [[nodiscard]] std::optional<Lines> solution(const Lines& proof, engine::PackedLine goal);

    // The line the game would hint at; nothing when it would ask to go back.
    [[nodiscard]] std::optional<engine::PackedLine> nextLine(
        const Lines& proof, engine::PackedLine goal);

    // Whether from every line of every shortest solution the hints go on along a shortest one.
    [[nodiscard]] bool leadsAllTheWay(const ShortestWays& ways);

private:
    engine::PackedLineSet m_seen;
    engine::Derivation<engine::PackedLine> m_kept;
};

} // namespace veyrand::catalogue
