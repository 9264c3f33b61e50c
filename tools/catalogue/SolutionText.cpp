#include "catalogue/SolutionText.h"

#include "catalogue/Certificate.h"
#include "catalogue/Figures.h"

#include <algorithm>
#include <stdexcept>

namespace veyrand::catalogue {

namespace {

constexpr std::size_t kMostSolutionsShown = 12;

// Walks every solution from a line on, until enough have been written.
void write(const ShortestWays& ways, std::size_t at, const std::string& before,
    std::vector<std::string>& solutions)
{
    const auto& line = ways.lines()[at];
    if (line.ways.empty()) {
        solutions.push_back(before);
        return;
    }
    for (const ShortestWays::Way& way : line.ways) {
        if (solutions.size() == kMostSolutionsShown) {
            return;
        }
        const auto rule = static_cast<unsigned>(__builtin_ctz(way.moves));
        write(ways, way.to, before + "  #" + labelOf(rule) + ' ' + ways.lines()[way.to].line.text(),
            solutions);
    }
}

std::string drawn(const std::string& line)
{
    std::string chips;
    for (const char chip : line) {
        chips += chips.empty() ? "" : " ";
        chips += chip;
    }
    return chips;
}

std::string joined(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : ", ") + word;
    }
    return text.empty() ? "-" : text;
}

// What its level promises, and what it keeps of that and of other levels' promises.
void describePromises(Place place, const Evidence& evidence, Description& all)
{
    if (place.level < kFirstLevelOfPromise) {
        return;
    }
    const bool isKept = keepsPromiseOf(place.level, evidence.puzzle, evidence.metrics.needed);
    all.emplace_back("promise of the level", nameOf(promiseOf(place.level)));
    all.emplace_back("kept", isKept ? "yes" : "no");
    std::vector<std::string> relations;
    for (const Promise promise : kPromises) {
        if (keeps(evidence.puzzle, evidence.metrics.needed, promise)) {
            relations.push_back(nameOf(promise));
        }
    }
    all.emplace_back("start and goal", joined(relations));
}

void describeKin(const std::vector<Evidence>& evidence, std::size_t entry, Description& all)
{
    constexpr std::size_t kMostKin = 3;
    std::vector<std::string> kin;
    for (const std::size_t other : kinOf(evidence, entry, kMostKin)) {
        kin.push_back(nameOf(placeOfEntry(other)) + ' '
            + textOfBits(likeness(evidence[entry].way, evidence[other].way)));
    }
    all.emplace_back("kin", joined(kin));
}

} // namespace

Description description(std::size_t entry, const Puzzles& puzzles)
{
    const Puzzle& puzzle = puzzles.at(entry);
    Reach reach;
    reach.explore(packed(puzzle.root), kMostMoves);
    const auto ways = ShortestWays::find(reach, packed(puzzle.goal));
    if (!ways) {
        throw std::runtime_error(puzzle.root + " never becomes " + puzzle.goal);
    }
    const std::vector<Evidence> evidence
        = measureAll(Game::Classic, puzzles, [](std::size_t, std::size_t) {});
    const Evidence& its = evidence.at(entry);
    const Metrics& metrics = its.metrics;
    Description all { { "place", nameOf(placeOfEntry(entry)) }, { "start", drawn(puzzle.root) },
        { "goal", drawn(puzzle.goal) }, { "par in moves", std::to_string(ways->moves()) } };
    describePromises(placeOfEntry(entry), its, all);
    all.insert(all.end(),
        { { "ideas", joined(namesOf(its.ideas)) }, { "bits", textOfBits(metrics.bits) },
            { "steps of the solver", std::to_string(its.steps) },
            { "shortest solutions", std::to_string(metrics.solutions) },
            { "solutions of one more move", std::to_string(its.kindness.oneMore) },
            { "solutions of two more moves", std::to_string(its.kindness.twoMore) },
            { "wrong steps that are dead",
                std::to_string(its.kindness.deadSteps) + " of "
                    + std::to_string(its.kindness.wrongSteps) },
            { "rules needed", textOf(metrics.needed) }, { "traps", std::to_string(metrics.traps) },
            { "detour in chips", std::to_string(metrics.detour) },
            { "changes of move", std::to_string(metrics.changes) },
            { "different moves", std::to_string(metrics.variety) },
            { "interest", textOfBits(interest(*ways, metrics)) } });
    describeKin(evidence, entry, all);
    std::vector<std::string> solutions;
    write(*ways, 0, puzzle.root, solutions);
    for (std::size_t i = 0; i < solutions.size(); ++i) {
        all.emplace_back("solution " + std::to_string(i + 1), solutions[i]);
    }
    return all;
}

} // namespace veyrand::catalogue
