#include "catalogue/HumanSolver.h"

#include "catalogue/Candidates.h"
#include "platform/fakes/SeededRandom.h"
#include "progress/RuleSets.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>

namespace veyrand::catalogue {

namespace {

constexpr int kUnreachable = -1'000'000; // the goal wants a yellow, and there is none
constexpr int kSolved = 1'000'000;

// What weighs how much. A chip in its place at one of the ends is the unit.
constexpr int kPlace = 20;
constexpr int kColour = 35; // a chip of a colour too many or too few
constexpr int kYellow = 8; // a place by which the yellow is off
constexpr int kBefore = 50; // one move before the goal is not quite the goal
constexpr int kDoubt = 200; // any worth may be taken for that much more than it is

constexpr std::size_t kTargetsBefore = 4;
constexpr std::size_t kRemembered = 14;

int countOf(const std::string& line, char chip)
{
    return static_cast<int>(std::count(line.begin(), line.end(), chip));
}

int worthAgainst(const std::string& line, const std::string& target)
{
    const std::size_t shorter = std::min(line.size(), target.size());
    std::size_t atStart = 0;
    while (atStart < shorter && line[atStart] == target[atStart]) {
        ++atStart;
    }
    std::size_t atEnd = 0;
    while (atEnd < shorter - atStart
        && line[line.size() - 1 - atEnd] == target[target.size() - 1 - atEnd]) {
        ++atEnd;
    }
    int worth = kPlace * static_cast<int>(atStart + atEnd);
    for (const char chip : { 'R', 'G', 'B' }) {
        worth -= kColour * std::abs(countOf(line, chip) - countOf(target, chip));
    }
    const std::size_t yellow = line.find('Y');
    const std::size_t wanted = target.find('Y');
    if (yellow != std::string::npos && wanted != std::string::npos) {
        worth -= kYellow * std::abs(static_cast<int>(yellow) - static_cast<int>(wanted));
    } else if (yellow != wanted) {
        worth -= wanted == std::string::npos ? kColour : -kUnreachable;
    }
    return worth;
}

} // namespace

std::vector<engine::PackedLine> linesBefore(engine::PackedLine goal, MoveSet open)
{
    const std::string text = goal.text();
    std::vector<std::string> guesses;
    if (text.back() == 'G') {
        guesses.push_back(text.substr(0, text.size() - 1));
    }
    const std::size_t yellow = text.find('Y');
    if (yellow != std::string::npos) {
        const std::size_t half = (text.size() - yellow - 1) / 2;
        guesses.push_back(text.substr(0, yellow + 1 + half));
        if (yellow >= 2) {
            guesses.push_back(text.substr(0, yellow - 2) + 'Y' + text[yellow - 1] + text[yellow - 2]
                + text.substr(yellow + 1));
        }
    }
    for (std::size_t i = 0; i <= text.size(); ++i) {
        guesses.push_back(text.substr(0, i) + "GG" + text.substr(i));
        if (i == text.size()) {
            break;
        }
        if (text[i] == 'G') {
            guesses.push_back(text.substr(0, i) + "RRR" + text.substr(i + 1));
        }
        if (text.compare(i, 3, "GBG") == 0) {
            guesses.push_back(text.substr(0, i + 1) + text.substr(i + 2));
        }
        if (text.compare(i, 2, "BB") == 0) {
            for (const char between : yellow == std::string::npos ? std::string("YRG") : "RG") {
                guesses.push_back(text.substr(0, i + 1) + between + text.substr(i + 1));
            }
        }
    }
    std::vector<engine::PackedLine> lines;
    for (const std::string& guess : guesses) {
        if (guess.empty() || guess.size() > kMostChips) {
            continue;
        }
        const engine::PackedLine line = packed(guess);
        if (line != goal && moveBetween(line, goal, open)
            && std::find(lines.begin(), lines.end(), line) == lines.end()) {
            lines.push_back(line);
        }
    }
    return lines;
}

HumanSolver::HumanSolver(engine::PackedLine root, engine::PackedLine goal, MoveSet open)
    : m_open(open)
    , m_goal(goal)
{
    m_targets = linesBefore(goal, open);
    platform::SeededRandom random(0);
    shuffle(m_targets, random);
    if (m_targets.size() > kTargetsBefore) {
        m_targets.resize(kTargetsBefore);
    }
    m_targets.insert(m_targets.begin(), goal);
    nodeOf(root);
}

int HumanSolver::worthOf(engine::PackedLine line) const
{
    if (line == m_goal) {
        return kSolved;
    }
    const std::string text = line.text();
    int best = worthAgainst(text, m_goal.text());
    for (std::size_t i = 1; i < m_targets.size(); ++i) {
        best = std::max(best, worthAgainst(text, m_targets[i].text()) - kBefore);
    }
    return best;
}

std::uint32_t HumanSolver::nodeOf(engine::PackedLine line)
{
    const auto next = static_cast<std::uint32_t>(m_nodes.size());
    const auto [known, isNew] = m_numbers.try_emplace(line.word(), next);
    if (isNew) {
        m_nodes.push_back({ line, worthOf(line), 0, false, {} });
    }
    return known->second;
}

const HumanSolver::Node& HumanSolver::opened(std::uint32_t index)
{
    if (!m_nodes[index].isOpened) {
        std::vector<std::uint32_t> next;
        int best = kUnreachable;
        for (const Step& step : stepsFrom(m_nodes[index].line, m_open)) {
            next.push_back(nodeOf(step.line));
            best = std::max(best, m_nodes[next.back()].worth);
        }
        m_nodes[index].next = std::move(next);
        m_nodes[index].bestNext = best;
        m_nodes[index].isOpened = true;
    }
    return m_nodes[index];
}

// One person at one sitting.
class HumanSolver::Try {
public:
    Try(HumanSolver& known, std::uint32_t seed)
        : m_known(known)
        , m_random(seed)
    {
        m_memory.fill(kNothing);
        begin(0);
    }

    unsigned solve(unsigned most)
    {
        unsigned steps = 0;
        while (steps < most) {
            const std::uint32_t next = m_proof.size() < kMostLines ? choice() : kNothing;
            if (next == kNothing) {
                if (++m_times > kHopeless) {
                    return most;
                }
                if (m_times > kMostTimes) {
                    m_memory.fill(kNothing); // nothing is left but what was tried
                }
                goBack();
                continue;
            }
            m_times = 0;
            ++steps;
            if (m_known.m_nodes[next].line == m_known.m_goal) {
                return steps;
            }
            m_proof.push_back(next);
            m_memory.at(m_nextMemory++ % kRemembered) = next;
            if (m_known.m_nodes[next].worth > m_best) {
                m_best = m_known.m_nodes[next].worth;
                m_vain = 0;
            } else if (++m_vain >= m_patience) {
                goBack();
            }
        }
        return most;
    }

private:
    static constexpr std::uint32_t kNothing = std::numeric_limits<std::uint32_t>::max();
    static constexpr std::size_t kMostLines = 13;
    static constexpr unsigned kMostTimes = 3;
    static constexpr unsigned kHopeless = 30;

    [[nodiscard]] bool isRemembered(std::uint32_t node) const
    {
        return std::find(m_memory.begin(), m_memory.end(), node) != m_memory.end()
            || std::find(m_proof.begin(), m_proof.end(), node) != m_proof.end();
    }

    // The line to make next: of the two that seem best, the one that can be followed by a better.
    std::uint32_t choice()
    {
        const std::vector<std::uint32_t>& next = m_known.opened(m_proof.back()).next;
        std::array<std::uint32_t, 2> best { kNothing, kNothing };
        std::array<int, 2> worths { kUnreachable * 2, kUnreachable * 2 };
        for (const std::uint32_t node : next) {
            const int worth = m_known.m_nodes[node].worth;
            if (worth == kSolved) {
                return node;
            }
            const int felt = worth + static_cast<int>(below(kDoubt, m_random));
            if (worth <= kUnreachable / 2 || isRemembered(node)) {
                continue;
            }
            if (felt > worths[0]) {
                best = { node, best[0] };
                worths = { felt, worths[0] };
            } else if (felt > worths[1]) {
                best[1] = node;
                worths[1] = felt;
            }
        }
        if (best[1] == kNothing) {
            return best[0];
        }
        const int first = (worths[0] + m_known.opened(best[0]).bestNext) / 2;
        const int second = (worths[1] + m_known.opened(best[1]).bestNext) / 2;
        return second > first ? best[1] : best[0];
    }

    // To the start, or to some line that still stands.
    void goBack()
    {
        const std::size_t rows = below(2, m_random) == 0 ? 1 : 1 + below(m_proof.size(), m_random);
        m_proof.resize(std::min(rows, m_proof.size()));
        begin(m_proof.back());
    }

    void begin(std::uint32_t node)
    {
        constexpr std::size_t kLeastPatience = 5;
        constexpr std::size_t kPatiences = 3;
        if (m_proof.empty()) {
            m_proof.push_back(node);
        }
        m_best = m_known.m_nodes[node].worth;
        m_vain = 0;
        m_patience = static_cast<unsigned>(kLeastPatience + below(kPatiences, m_random));
    }

    HumanSolver& m_known;
    platform::SeededRandom m_random;
    std::vector<std::uint32_t> m_proof;
    std::array<std::uint32_t, kRemembered> m_memory {};
    std::size_t m_nextMemory = 0;
    unsigned m_times = 0; // gone back in a row, with nothing to do
    int m_best = 0; // of the lines since it last went back
    unsigned m_vain = 0; // lines since then that were no better
    unsigned m_patience = 0;
};

unsigned HumanSolver::solve(std::uint32_t seed, unsigned most)
{
    return Try(*this, seed).solve(most);
}

unsigned HumanSolver::medianSteps(unsigned tries, unsigned most)
{
    // Impatient at first: half of the tries need not be waited for.
    constexpr unsigned kFirstPatience = 1000;
    constexpr unsigned kMorePatience = 8;
    const auto middle = tries / 2;
    for (unsigned patience = std::min(kFirstPatience, most);; patience *= kMorePatience) {
        patience = std::min(patience, most);
        std::vector<unsigned> steps;
        for (std::uint32_t seed = 1; seed <= tries; ++seed) {
            steps.push_back(solve(seed, patience));
        }
        std::nth_element(steps.begin(), steps.begin() + middle, steps.end());
        if (steps[middle] < patience || patience == most) {
            return steps[middle];
        }
    }
}

} // namespace veyrand::catalogue
