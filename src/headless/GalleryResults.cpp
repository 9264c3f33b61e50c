#include "headless/GalleryResults.h"

#include "play/Trail.h"
#include "progress/RuleSets.h"

#include <algorithm>

namespace veyrand::headless {

namespace {

using engine::PackedLine;
using play::MoveSet;
using progress::Place;

constexpr int kDays = 60;
constexpr int kBestRow = 21; // before the day that was missed
constexpr std::uint64_t kSecondsAMove = 23;

std::vector<play::Move> movesOf(const std::vector<PackedLine>& lines, MoveSet open)
{
    std::vector<play::Move> moves;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const MoveSet now = play::movesWith(static_cast<unsigned>(i)) & open;
        moves.push_back(play::moveBetween(lines[i - 1], lines[i], now).value_or(play::Move {}));
    }
    return moves;
}

// Solves puzzles as a player does, who takes a way round now and then.
class Solver {
public:
    enum class Way { Shortest, Round, Long };

    [[nodiscard]] play::Result solve(const play::CodedPuzzle& puzzle, MoveSet open, Way how)
    {
        const PackedLine goal = PackedLine::pack(puzzle.goal).value();
        const auto ways = m_search.find(PackedLine::pack(puzzle.root).value(), goal, 1, open);
        if (!ways) {
            return { .puzzle = puzzle, .moves = {} };
        }
        std::vector<PackedLine> way = ways->way(0);
        if (how == Way::Round) {
            goRound(way, goal, open);
        } else if (how == Way::Long) {
            wander(way, goal, open);
        }
        return { .puzzle = puzzle,
            .par = ways->moves(),
            .moves = movesOf(way, open),
            .seconds = way.size() * kSecondsAMove };
    }

private:
    // After the second move, where there is such a way.
    void goRound(std::vector<PackedLine>& way, PackedLine goal, MoveSet open)
    {
        constexpr std::size_t kKept = 2;
        if (way.size() <= kKept + 1) {
            return;
        }
        for (const play::Step& step : play::stepsFrom(way[kKept - 1], open)) {
            const auto on = m_search.find(step.line, goal, kKept + 1, open);
            if (on && on->moves() + kKept + 1 > way.size()) {
                way.resize(kKept);
                const auto rest = on->way(0);
                way.insert(way.end(), rest.begin(), rest.end());
                return;
            }
        }
    }

    // Away from the goal for as long as there is a way back to it.
    void wander(std::vector<PackedLine>& way, PackedLine goal, MoveSet open)
    {
        constexpr unsigned kLines = 12;
        way.resize(1);
        while (way.back() != goal && way.size() < kLines) {
            const auto standing = static_cast<unsigned>(way.size());
            PackedLine best = goal;
            unsigned farthest = 0;
            for (const play::Step& step :
                play::stepsFrom(way.back(), play::movesWith(standing) & open)) {
                const auto on = m_search.find(step.line, goal, standing + 1, open);
                const bool isNew = std::find(way.begin(), way.end(), step.line) == way.end();
                if (on && isNew && step.line != goal && on->moves() > farthest
                    && standing + 1 + on->moves() <= kLines) {
                    best = step.line;
                    farthest = on->moves();
                }
            }
            way.push_back(best);
        }
    }

    play::WaySearch m_search;
};

bool isNoted(std::int64_t index, const Career& career)
{
    return career.isOver || index % 11 != 9; // what was solved before results were kept is not
}

void addPlaces(play::Results& results, controller::GameController& game, const Career& career)
{
    Solver solver;
    const std::int64_t end = progress::catalogueIndex(career.standing) + (career.isOver ? 1 : 0);
    Place place {};
    for (std::int64_t index = progress::catalogueIndex(place); index < end;
         ++index, place = progress::nextPlace(place)) {
        const auto* const entry = game.practice().entryAt(place);
        if (entry != nullptr && isNoted(index, career)) {
            const bool goesRound = place == kRoundabout || index % 4 == 3;
            play::Result result = solver.solve({ entry->root, entry->goal },
                play::openMoves(progress::highestRuleAt(place.level, place.stage)),
                goesRound ? Solver::Way::Round : Solver::Way::Shortest);
            result.hints = index % 5 == 0 ? 1 : 0;
            results.add(play::nameOf(place), result);
        }
    }
}

void addDays(play::Results& results, controller::GameController& game, const Career& career)
{
    Solver solver;
    for (int back = 0; career.daysInARow > 0 && back < kDays; ++back) {
        const progress::CalendarDate date = progress::daysAfter(game.book().today(), -back);
        const auto* const puzzle = game.practice().daily().on(date);
        if (puzzle != nullptr && back != career.daysInARow
            && back != career.daysInARow + kBestRow) {
            play::Result result = solver.solve(*puzzle, play::kAllMoves,
                back % 5 == 3 ? Solver::Way::Round : Solver::Way::Shortest);
            result.solvedOn = date;
            results.add(progress::textOf(date), result);
        }
    }
}

} // namespace

play::Results resultsToShow(controller::GameController& game, const Career& career)
{
    play::Results results;
    addPlaces(results, game, career);
    addDays(results, game, career);
    return results;
}

play::Result longSolution(const play::CodedPuzzle& puzzle)
{
    return Solver().solve(puzzle, play::kAllMoves, Solver::Way::Long);
}

} // namespace veyrand::headless
