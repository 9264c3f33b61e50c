#include "EngineSupport.h"
#include "StringSearch.h"
#include "engine/HintHelper.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <random>

namespace veyrand::engine {
namespace {

// Lines that proofs are made of, each with everything a search from it can find.
using Searches = std::map<std::string, DistanceByLine>;

Searches searchesAround(const std::string& root)
{
    Searches searches { { root, solutionsByHand(root) } };
    for (const std::string& line : neighboursByHand(root)) {
        searches.emplace(line, solutionsByHand(line));
        for (const std::string& next : neighboursByHand(line)) {
            searches.emplace(next, solutionsByHand(next));
        }
    }
    return searches;
}

bool reaches(const DistanceByLine& distances, const std::string& goal, std::size_t row)
{
    const auto found = distances.find(goal);
    return found != distances.end() && row + 1 + found->second <= kMostLines;
}

// The last row that is good: the last of all if it leads to the goal over new lines only, else the
// last one before it that leads to the goal at all, else the first.
unsigned lastGoodRowByHand(const Searches& searches, const Proof& proof, bool lastIsGood)
{
    const std::size_t last = proof.lines().size() - 1;
    if (lastIsGood) {
        return static_cast<unsigned>(last);
    }
    for (std::size_t row = last; row-- > 0;) {
        if (reaches(searches.at(proof.lines()[row].theorem()), proof.goal().theorem(), row)) {
            return static_cast<unsigned>(row);
        }
    }
    return 0;
}

// Whether the shortest way from the last line fits and meets none of the lines that stand. Which
// shortest way it is depends on the order of the moves, so the way is taken from the helper, and
// what it must be is checked here.
bool lastLineIsGood(const Searches& searches, const Proof& proof, const HintHelper& helper)
{
    const std::size_t last = proof.lines().size() - 1;
    const DistanceByLine& distances = searches.at(proof.lines()[last].theorem());
    const bool fits = reaches(distances, proof.goal().theorem(), last);
    EXPECT_EQ(helper.solution().has_value(), fits);
    if (!fits) {
        return false;
    }
    EXPECT_EQ(helper.solution()->size(), distances.at(proof.goal().theorem()) + 1);
    return std::none_of(
        helper.solution()->begin() + 1, helper.solution()->end(), [&](const NodePtr& node) {
            return std::count(proof.lines().begin(), proof.lines().end(), node->theorem()) > 0;
        });
}

std::string randomGoal(std::mt19937& random, const Searches& searches)
{
    if (random() % 8 == 0) {
        return "RGRG"; // as good as never to be reached
    }
    const DistanceByLine& distances
        = std::next(searches.begin(), static_cast<std::ptrdiff_t>(random() % searches.size()))
              ->second;
    return distances.empty()
        ? "B"
        : std::next(distances.begin(), static_cast<std::ptrdiff_t>(random() % distances.size()))
              ->first;
}

TEST(LastGoodRow, AgreesWithItsDefinitionOnTenThousandProofs)
{
    constexpr int kProofsAGoal = 200;
    constexpr int kGoalsARoot = 10;
    std::mt19937 random(13);
    int proofs = 0;
    std::map<unsigned, int> answers;
    for (const char* root : { "YR", "YG", "YGB", "YBG", "YBR" }) {
        const Searches searches = searchesAround(root);
        std::vector<std::string> lines;
        for (const auto& [line, distances] : searches) {
            lines.push_back(line);
        }
        for (int i = 0; i < kGoalsARoot; ++i) {
            // One proof whose lines come and go, so that it searches from each line only once.
            const auto proof = std::make_shared<Proof>(
                line(root), line(randomGoal(random, searches)), sevenMoves());
            for (int k = 0; k < kProofsAGoal; ++k, ++proofs) {
                while (proof->lines().size() > 1 + random() % 4) {
                    proof->removeLine(1);
                }
                const std::size_t count = 1 + random() % 15;
                while (proof->lines().size() < count) {
                    proof->appendLine(line(lines[random() % lines.size()]));
                }
                const HintHelper helper(proof);
                const bool lastIsGood = lastLineIsGood(searches, *proof, helper);
                ASSERT_EQ(helper.nextTheorem().has_value(), lastIsGood);
                const unsigned expected = lastGoodRowByHand(searches, *proof, lastIsGood);
                ASSERT_EQ(helper.lastGoodRow(), expected);
                ++answers[expected];
            }
        }
    }
    EXPECT_EQ(proofs, 10000);
    EXPECT_GT(answers.size(), 10U) << "the proofs are too much alike";
}

} // namespace
} // namespace veyrand::engine
