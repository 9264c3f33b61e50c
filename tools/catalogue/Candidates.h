#pragma once

#include "catalogue/HintSearch.h"
#include "catalogue/Metrics.h"

#include <optional>
#include <string>
#include <vector>

namespace veyrand::platform {
class Random;
}

namespace veyrand::catalogue {

// A puzzle that could be taken, with what is known of it.
struct Candidate {
    Puzzle puzzle;
    Metrics metrics;
    int highestRule = 0; // moves that must be open for every shortest solution
    double interest = 0;
};

using Candidates = std::vector<Candidate>;

// Makes candidates of the lines that can be reached from a root, the only place where puzzles come
// from: so each has a solution, and its par is exact by construction.
class CandidateSource {
public:
    explicit CandidateSource(platform::Random& random)
        : m_random(random)
    {
    }

    void explore(const std::string& root);

    // A few lines at a distance from the root, drawn at random without drawing any twice; each
    // measured for a player with these moves open, who must be able to make every step. None that
    // is a single forced line, or a line of one chip.
    [[nodiscard]] Candidates draw(unsigned moves, std::size_t most, int highestRule);

private:
    [[nodiscard]] std::optional<Candidate> candidate(std::size_t line, int highestRule) const;

    platform::Random& m_random;
    std::string m_root;
    Reach m_reach;
};

// Whether the game's hints lead along every shortest solution of the puzzle: the dearest question
// of all, asked only of those that are about to be taken.
class HintGate {
public:
    [[nodiscard]] bool passes(const Puzzle& puzzle);

private:
    Reach m_reach;
    HintSearch m_hints;
};

// A number below `end`, and a list in random order. The library's own shuffle may differ from one
// library to the next; this one does not.
[[nodiscard]] std::size_t below(std::size_t end, platform::Random& random);
template <class List> void shuffle(List& list, platform::Random& random)
{
    for (std::size_t i = list.size(); i > 1; --i) {
        std::swap(list[i - 1], list[below(i, random)]);
    }
}

} // namespace veyrand::catalogue
