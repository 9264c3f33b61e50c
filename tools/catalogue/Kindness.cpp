#include "catalogue/Kindness.h"

#include "catalogue/Metrics.h"
#include "engine/HintHelper.h"

#include <algorithm>

namespace veyrand::catalogue {

namespace {

constexpr unsigned kMostSteps = engine::kMostLines - 1; // moves that the board has room for

} // namespace

void Board::explore(engine::PackedLine root, MoveSet open)
{
    m_numbers.clear();
    m_numbers.numberOf(root, 0);
    m_lines.assign(1, root);
    m_distances.assign(1, 0);
    m_next.clear();
    m_before.assign(1, {});
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        m_next.emplace_back();
        if (m_distances[i] == kMostSteps) {
            continue;
        }
        for (const Step& step : stepsFrom(m_lines[i], open)) {
            const auto next = static_cast<std::uint32_t>(m_lines.size());
            const std::uint32_t number = m_numbers.numberOf(step.line, next);
            if (number == next) {
                m_lines.push_back(step.line);
                m_distances.push_back(static_cast<std::uint8_t>(m_distances[i] + 1));
                m_before.emplace_back();
            }
            m_next[i].push_back(number);
            m_before[number].push_back(static_cast<std::uint32_t>(i));
        }
    }
    m_isOnWay.assign(m_lines.size(), false);
}

void Board::measureFrom(std::uint32_t goal)
{
    m_toGoal.assign(m_lines.size(), kFar);
    m_toGoal[goal] = 0;
    std::vector<std::uint32_t> found { goal };
    for (std::size_t i = 0; i < found.size(); ++i) {
        for (const std::uint32_t before : m_before[found[i]]) {
            if (m_toGoal[before] == kFar) {
                m_toGoal[before] = static_cast<std::uint8_t>(m_toGoal[found[i]] + 1);
                found.push_back(before);
            }
        }
    }
}

Kindness Board::kindnessTo(engine::PackedLine goal)
{
    Kindness kindness;
    const auto end = m_numbers.find(goal);
    if (!end) {
        return kindness;
    }
    measureFrom(*end);
    const unsigned par = m_toGoal[0];
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        if (i == *end || m_distances[i] + m_toGoal[i] != static_cast<int>(par)) {
            continue;
        }
        for (const std::uint32_t next : m_next[i]) {
            if (m_toGoal[next] + 1 != m_toGoal[i]) {
                ++kindness.wrongSteps;
                kindness.deadSteps += m_toGoal[next] == kFar ? 1 : 0;
            }
        }
    }
    if (par + 1 <= kMostSteps) {
        countSolutions(0, par + 1, kindness.oneMore);
    }
    if (par + 2 <= kMostSteps) {
        countSolutions(0, par + 2, kindness.twoMore);
    }
    return kindness;
}

void Board::countSolutions(std::uint32_t line, unsigned left, unsigned& count)
{
    if (m_toGoal[line] == 0) {
        count += left == 0 ? 1 : 0;
        return;
    }
    m_isOnWay[line] = true;
    for (const std::uint32_t next : m_next[line]) {
        if (count < Kindness::kMostCounted && m_toGoal[next] + 1U <= left && !m_isOnWay[next]) {
            countSolutions(next, left - 1, count);
        }
    }
    m_isOnWay[line] = false;
}

bool fallsToGreed(engine::PackedLine root, engine::PackedLine goal, MoveSet open)
{
    const std::string wanted = goal.text();
    std::vector<engine::PackedLine> lines { root };
    std::vector<engine::PackedLine> seen { root };
    for (unsigned step = 0; step < kMostSteps && !lines.empty(); ++step) {
        std::vector<engine::PackedLine> next;
        for (const engine::PackedLine line : lines) {
            unsigned nearest = kMostChips + 1;
            std::vector<engine::PackedLine> best;
            for (const Step& made : stepsFrom(line, open)) {
                const unsigned missing = difference(made.line.text(), wanted);
                if (missing < nearest) {
                    nearest = missing;
                    best.clear();
                }
                if (missing == nearest) {
                    best.push_back(made.line);
                }
            }
            for (const engine::PackedLine one : best) {
                if (std::find(seen.begin(), seen.end(), one) == seen.end()) {
                    seen.push_back(one);
                    next.push_back(one);
                }
            }
        }
        if (std::find(next.begin(), next.end(), goal) != next.end()) {
            return true;
        }
        lines = std::move(next);
    }
    return false;
}

} // namespace veyrand::catalogue
