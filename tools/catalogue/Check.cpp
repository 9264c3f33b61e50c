#include "catalogue/Check.h"

#include "catalogue/Criteria.h"
#include "exhaustive/ExhaustiveSearch.h"

#include <map>

namespace veyrand::catalogue {

Verdict check(Game game, const Puzzles& puzzles, const Progress& progress)
{
    Verdict verdict;
    verdict.evidence = gatherEvidence(game, puzzles, verdict.faults, progress);
    const Faults ofAll
        = game == Game::Classic ? classicFaults(verdict.evidence) : endlessFaults(verdict.evidence);
    const Faults ofPars = parFaults(game, puzzles, progress);
    verdict.faults.insert(verdict.faults.end(), ofAll.begin(), ofAll.end());
    verdict.faults.insert(verdict.faults.end(), ofPars.begin(), ofPars.end());
    return verdict;
}

Faults parFaults(Game game, const Puzzles& puzzles, const Progress& progress)
{
    // One search serves every puzzle of a root.
    std::map<std::string, std::vector<std::size_t>> entriesOf;
    for (std::size_t entry = 0; entry < puzzles.size(); ++entry) {
        entriesOf[puzzles[entry].root].push_back(entry);
    }
    Faults faults;
    std::size_t done = 0;
    for (const auto& [root, entries] : entriesOf) {
        exhaustive::ExhaustiveSearch search(root);
        for (const std::size_t entry : entries) {
            const Puzzle& puzzle = puzzles[entry];
            const auto distance = search.distanceTo(puzzle.goal, puzzle.moves);
            if (distance != puzzle.moves) {
                faults.push_back(nameOf(game, entry, puzzle) + " is not exactly "
                    + std::to_string(puzzle.moves) + " moves away");
            }
            progress(++done, puzzles.size());
        }
    }
    return faults;
}

} // namespace veyrand::catalogue
