#include "catalogue/Evidence.h"

#include "catalogue/HintPlayer.h"
#include "catalogue/HumanSolver.h"
#include "catalogue/Steps.h"
#include "platform/fakes/SeededRandom.h"
#include "progress/RuleSets.h"

#include <optional>

namespace veyrand::catalogue {

namespace {

// Looks at one puzzle after the other, with memory shared between them.
class Witness {
public:
    Witness(Game game, Faults* faults)
        : m_game(game)
        , m_faults(faults)
    {
    }

    Evidence look(std::size_t entry, const Puzzle& puzzle)
    {
        const bool isPlayed = m_game == Game::Endless || entry > 0;
        const int highestRule = isPlayed ? highestRuleOf(m_game, entry) : progress::kMoveCount;
        m_name = nameOf(m_game, entry, puzzle);
        m_reach.explore(packed(puzzle.root), kMostMoves);
        const auto ways = ShortestWays::find(m_reach, packed(puzzle.goal));
        if (!ways) {
            fault("has no solution of " + std::to_string(kMostMoves) + " moves or fewer");
            return { puzzle };
        }
        Evidence evidence { puzzle, measure(*ways, openMoves(highestRule)) };
        evidence.way = wayOf(*ways, openMoves(highestRule));
        evidence.steps
            = HumanSolver(packed(puzzle.root), packed(puzzle.goal), openMoves(highestRule))
                  .medianSteps();
        if (m_game == Game::Classic) {
            describe(*ways, openMoves(highestRule), evidence);
        }
        const auto& solution = ways->firstSolution();
        for (std::size_t i = 1; i < solution.size(); ++i) {
            const auto move = moveBetween(ways->lines()[solution[i - 1]].line,
                ways->lines()[solution[i]].line, openMoves(highestRule));
            evidence.solution.push_back(move.value_or(Move {}));
        }
        if (m_faults != nullptr) {
            expect(ways->moves() == puzzle.moves,
                "takes " + std::to_string(ways->moves()) + " moves, not "
                    + std::to_string(puzzle.moves));
            if (isPlayed) {
                judge(entry, puzzle, *ways, highestRule);
            }
        }
        return evidence;
    }

private:
    void describe(const ShortestWays& ways, MoveSet open, Evidence& evidence)
    {
        const engine::PackedLine root = ways.lines().front().line;
        const engine::PackedLine goal = ways.lines().back().line;
        evidence.ideas = ideasOf(ways);
        m_board.explore(root, open);
        evidence.kindness = m_board.kindnessTo(goal);
    }

    void judge(std::size_t entry, const Puzzle& puzzle, const ShortestWays& ways, int highestRule)
    {
        expect(ways.highestRule() <= highestRule, "has a shortest solution with a move not open");
        expect(m_hints.leadsAllTheWay(ways), "has a shortest solution that the hints leave");
        const auto& solution = ways.firstSolution();
        for (std::size_t i = 1; i < solution.size(); ++i) {
            const bool isMade = hasGesture(ways.lines()[solution[i - 1]].line,
                ways.lines()[solution[i]].line, ways.lines().back().line, highestRule, i);
            expect(isMade, "has a step that no gesture makes");
        }
        HintPlayer player(m_hints, highestRule);
        const HintPlayer::Game straight = player.play(puzzle);
        expect(straight.solved && straight.lines.size() == puzzle.moves + 1,
            "is not solved at par by its hints");
        // Another detour for each puzzle, and the same in every run.
        platform::SeededRandom random(static_cast<std::uint32_t>(entry));
        expect(player.playWithDetour(puzzle, random).solved,
            "is not solved by its hints after a detour");
    }

    void expect(bool holds, const std::string& otherwise)
    {
        if (!holds) {
            fault(otherwise);
        }
    }

    void fault(const std::string& what)
    {
        if (m_faults != nullptr) {
            m_faults->push_back(m_name + ' ' + what);
        }
    }

    Game m_game;
    Faults* m_faults;
    std::string m_name;
    Reach m_reach;
    HintSearch m_hints;
    Board m_board;
};

std::vector<Evidence> lookAtAll(
    Game game, const Puzzles& puzzles, Faults* faults, const Progress& progress)
{
    Witness witness(game, faults);
    std::vector<Evidence> all;
    for (std::size_t entry = 0; entry < puzzles.size(); ++entry) {
        all.push_back(witness.look(entry, puzzles[entry]));
        progress(entry + 1, puzzles.size());
    }
    return all;
}

} // namespace

std::string nameOf(Game game, std::size_t entry, const Puzzle& puzzle)
{
    const std::string place
        = game == Game::Classic && entry > 0 ? nameOf(placeOfEntry(entry)) : std::to_string(entry);
    return place + ' ' + puzzle.root + ' ' + puzzle.goal;
}

std::vector<Evidence> gatherEvidence(
    Game game, const Puzzles& puzzles, Faults& faults, const Progress& progress)
{
    return lookAtAll(game, puzzles, &faults, progress);
}

std::vector<Evidence> measureAll(Game game, const Puzzles& puzzles, const Progress& progress)
{
    return lookAtAll(game, puzzles, nullptr, progress);
}

} // namespace veyrand::catalogue
