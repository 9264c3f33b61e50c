#include "catalogue/Steps.h"
#include "exhaustive/ExhaustiveSearch.h"
#include "platform/fakes/SeededRandom.h"
#include "play/DailyPuzzles.h"
#include "play/Ways.h"
#include "support/Places.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iostream>
#include <iterator>
#include <set>
#include <unordered_map>

// What the editor says of two lines, and what the days' puzzles promise, against the checker that
// shares nothing with the game.

namespace veyrand::catalogue {
namespace {

constexpr unsigned kMostMovesOfBoard = 12;

// How many moves away each line is that the board has room for, and by how many ways it is reached,
// from plain strings and moves written out by hand.
class Exhaustive {
public:
    explicit Exhaustive(const std::string& root)
    {
        m_found[root] = { 0, 1 };
        std::vector<std::string> lines { root };
        for (unsigned moves = 1; moves < kMostMovesOfBoard; ++moves) {
            std::vector<std::string> next;
            for (const std::string& line : lines) {
                const std::uint64_t ways = m_found[line].ways;
                const auto after = exhaustive::linesAfter(line);
                for (const std::string& child : std::set<std::string>(after.begin(), after.end())) {
                    const auto [place, isNew] = m_found.try_emplace(child, Found { moves, 0 });
                    if (isNew) {
                        next.push_back(child);
                    }
                    place->second.ways += place->second.moves == moves ? ways : 0;
                }
            }
            lines.swap(next);
            m_all.insert(m_all.end(), lines.begin(), lines.end());
        }
    }

    struct Found {
        unsigned moves = 0;
        std::uint64_t ways = 0; // none when the goal cannot be reached
    };
    [[nodiscard]] Found to(const std::string& goal) const
    {
        if (const auto found = m_found.find(goal); found != m_found.end()) {
            return found->second;
        }
        // The twelfth move is a click: what it is made of is one of these.
        std::set<std::string> before;
        if (goal.size() > 1 && goal.substr(goal.size() - 2) == "RG") {
            before.insert(goal.substr(0, goal.size() - 1));
        }
        for (std::size_t at = goal.find("GBG"); at != std::string::npos;
             at = goal.find("GBG", at + 1)) {
            before.insert(goal.substr(0, at + 1) + goal.substr(at + 2));
        }
        if (const std::size_t yellow = goal.find('Y'); yellow != std::string::npos) {
            const std::string tail = goal.substr(yellow + 1);
            const std::string half = tail.substr(0, tail.size() / 2);
            if (!half.empty() && tail == half + half) {
                before.insert(goal.substr(0, yellow + 1) + half);
            }
        }
        Found sum { kMostMovesOfBoard, 0 };
        for (const std::string& line : before) {
            const auto found = m_found.find(line);
            const bool isLast
                = found != m_found.end() && found->second.moves + 1 == kMostMovesOfBoard;
            sum.ways += isLast ? found->second.ways : 0;
        }
        return sum;
    }

    [[nodiscard]] const std::vector<std::string>& all() const { return m_all; }

private:
    std::unordered_map<std::string, Found> m_found;
    std::vector<std::string> m_all;
};

std::string anyChips(platform::SeededRandom& random, const std::string& letters, std::size_t count)
{
    std::string chips;
    while (chips.size() < count) {
        chips += letters[random.next() % letters.size()];
    }
    return chips;
}

play::DailyPuzzles dailyPuzzlesOfTheGame()
{
    std::ifstream file(
        test::sourceFolder() + "/assets/catalogues/DailyPuzzles.txt", std::ios::binary);
    return play::DailyPuzzles(std::string(std::istreambuf_iterator<char>(file), {}));
}

} // namespace

// VEYRAND_PAIRS says how many pairs of lines; a third of the goals are any chips, the others can be
// reached, or can but for one chip.
TEST(TheVerdict, IsThatOfTheExhaustiveChecker)
{
    const char* const wanted = std::getenv("VEYRAND_PAIRS");
    const std::size_t pairs = wanted != nullptr ? std::strtoul(wanted, nullptr, 10) : 200;
    constexpr std::size_t kGoalsOfRoot = 50;
    platform::SeededRandom random(20261121);
    play::WaySearch search;
    std::size_t reached = 0;
    for (std::size_t i = 0; i < pairs; i += kGoalsOfRoot) {
        const std::string root = 'Y' + anyChips(random, "RGB", 1 + random.next() % 11);
        const Exhaustive exhaustive(root);
        for (std::size_t j = 0; j < kGoalsOfRoot; ++j) {
            std::string goal = anyChips(random, "YRGB", 1 + random.next() % 12);
            if (j % 3 != 0 && !exhaustive.all().empty()) {
                goal = exhaustive.all()[random.next() % exhaustive.all().size()];
                goal.back() = j % 3 == 1 ? goal.back() : "RGB"[random.next() % 3];
            }
            const auto expected = exhaustive.to(goal);
            const auto ways = search.find(packed(root), packed(goal));
            if (goal == root) {
                continue; // it would be made again
            }
            ASSERT_EQ(ways.has_value(), expected.ways > 0) << root << ' ' << goal;
            if (ways) {
                ++reached;
                ASSERT_EQ(ways->moves(), expected.moves) << root << ' ' << goal;
                ASSERT_EQ(ways->count(), expected.ways) << root << ' ' << goal;
            }
        }
    }
    std::cout << "verdicts: " << pairs << " pairs, " << reached << " of them reached\n";
    EXPECT_GT(reached, pairs / 4);
}

TEST(TheDailyPuzzles, AreAsFarAsTheExhaustiveCheckerSays)
{
    const play::DailyPuzzles days = dailyPuzzlesOfTheGame();
    ASSERT_EQ(days.fault(), "");
    play::WaySearch search;
    for (const play::CodedPuzzle& puzzle : days.puzzles()) {
        const auto ways = search.find(packed(puzzle.root), packed(puzzle.goal));
        ASSERT_TRUE(ways) << puzzle.root << ' ' << puzzle.goal;
        EXPECT_EQ(
            exhaustive::ExhaustiveSearch(puzzle.root).distanceTo(puzzle.goal, 12), ways->moves())
            << puzzle.root << ' ' << puzzle.goal;
    }
}

TEST(TheDailyPuzzles, GoFromEasyOnMondayToHardOnSunday)
{
    const play::DailyPuzzles days = dailyPuzzlesOfTheGame();
    play::WaySearch search;
    double last = 0;
    std::set<std::string> goals;
    for (std::size_t i = 0; i < days.puzzles().size(); ++i) {
        const play::CodedPuzzle& puzzle = days.puzzles()[i];
        const double bits = search.find(packed(puzzle.root), packed(puzzle.goal))->bits();
        EXPECT_TRUE(i % 7 == 0 || bits > last) << "day " << i << ' ' << puzzle.goal;
        last = bits;
        EXPECT_TRUE(goals.insert(puzzle.goal).second) << puzzle.goal;
        EXPECT_EQ(puzzle.root.front(), 'Y');
    }
}

} // namespace veyrand::catalogue
