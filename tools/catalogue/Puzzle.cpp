#include "catalogue/Puzzle.h"

#include "progress/Catalogue.h"
#include "progress/RuleSets.h"

#include <stdexcept>

namespace veyrand::catalogue {

std::string nameOf(Place place)
{
    return std::to_string(place.level) + '-' + std::to_string(place.stage);
}

Place placeOfEntry(std::size_t entry)
{
    const int number = static_cast<int>(entry) - 1;
    return { number / progress::kLastStage + 1, number % progress::kLastStage + 1 };
}

int highestRuleOf(Game game, std::size_t entry)
{
    if (game == Game::Endless) {
        return progress::kMoveCount;
    }
    const Place place = placeOfEntry(entry);
    return progress::highestRuleAt(place.level, place.stage);
}

MoveSet openMoves(int highestRule)
{
    // Doubling is learned first, before the move of index 0.
    return highestRule == 1 ? only(progress::kDoubling) : (1U << highestRule) - 1;
}

std::string textOf(const Puzzles& puzzles)
{
    std::string all;
    for (const Puzzle& puzzle : puzzles) {
        all += all.empty() ? "" : "\n";
        all += puzzle.root + '\n' + puzzle.goal + '\n' + std::to_string(puzzle.moves);
    }
    return all;
}

Puzzles puzzlesIn(std::string_view text)
{
    const progress::ParsedCatalogue parsed = progress::parseCatalogueText(text);
    if (!parsed.error.empty()) {
        throw std::runtime_error(parsed.error);
    }
    Puzzles puzzles;
    for (const progress::CatalogueEntry& entry : parsed.entries) {
        puzzles.push_back({ entry.root, entry.goal, static_cast<unsigned>(entry.par - 1) });
    }
    return puzzles;
}

std::vector<std::string> roots(std::string_view letters, std::size_t fewest, std::size_t most)
{
    std::vector<std::string> all;
    std::vector<std::string> ofOneLength { "Y" };
    for (std::size_t chips = 1; chips <= most; ++chips) {
        std::vector<std::string> longer;
        for (const std::string& line : ofOneLength) {
            for (const char letter : letters) {
                longer.push_back(line + letter);
            }
        }
        ofOneLength = std::move(longer);
        if (chips >= fewest) {
            all.insert(all.end(), ofOneLength.begin(), ofOneLength.end());
        }
    }
    return all;
}

} // namespace veyrand::catalogue
