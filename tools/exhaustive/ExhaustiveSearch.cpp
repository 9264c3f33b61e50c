#include "exhaustive/ExhaustiveSearch.h"

#include <utility>

namespace veyrand::exhaustive {

namespace {

constexpr std::size_t kMostChips = 12;

void keep(std::vector<std::string>& lines, std::string line)
{
    if (line.size() <= kMostChips) {
        lines.push_back(std::move(line));
    }
}

// Wherever `before` stands in the line, `after` takes its place.
void replaceEach(std::vector<std::string>& lines, const std::string& line,
    const std::string& before, const std::string& after)
{
    for (std::size_t at = line.find(before); at != std::string::npos;
         at = line.find(before, at + 1)) {
        keep(lines, line.substr(0, at) + after + line.substr(at + before.size()));
    }
}

void moveYellow(std::vector<std::string>& lines, const std::string& line)
{
    for (std::size_t at = line.find('Y'); at != std::string::npos; at = line.find('Y', at + 1)) {
        keep(lines, line + line.substr(at + 1));
        if (at + 2 < line.size()) {
            std::string jumped = line;
            std::swap(jumped[at], jumped[at + 2]);
            keep(lines, jumped);
        }
    }
}

void dropBetweenBlues(std::vector<std::string>& lines, const std::string& line)
{
    for (std::size_t left = line.find('B'); left != std::string::npos;
         left = line.find('B', left + 1)) {
        const std::size_t right = line.find('B', left + 1);
        if (right != std::string::npos && right > left + 1) {
            keep(lines, line.substr(0, left + 1) + line.substr(right));
        }
    }
}

} // namespace

std::vector<std::string> linesAfter(const std::string& line)
{
    std::vector<std::string> lines;
    if (!line.empty() && line.back() == 'R') {
        keep(lines, line + 'G');
    }
    moveYellow(lines, line);
    replaceEach(lines, line, "RRR", "G");
    replaceEach(lines, line, "GG", "");
    replaceEach(lines, line, "GG", "GBG");
    dropBetweenBlues(lines, line);
    return lines;
}

ExhaustiveSearch::ExhaustiveSearch(const std::string& root)
    : m_distances { { root, 0 } }
    , m_furthest { root }
{
}

std::optional<unsigned> ExhaustiveSearch::distanceTo(const std::string& goal, unsigned most)
{
    while (!m_distances.contains(goal) && m_distance < most && !m_furthest.empty()) {
        goOneFurther();
    }
    const auto found = m_distances.find(goal);
    return found != m_distances.end() && found->second <= most ? std::optional(found->second)
                                                               : std::nullopt;
}

void ExhaustiveSearch::goOneFurther()
{
    ++m_distance;
    std::vector<std::string> next;
    for (const std::string& line : m_furthest) {
        for (std::string& child : linesAfter(line)) {
            if (m_distances.emplace(child, m_distance).second) {
                next.push_back(std::move(child));
            }
        }
    }
    m_furthest.swap(next);
}

} // namespace veyrand::exhaustive
