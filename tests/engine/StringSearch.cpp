#include "StringSearch.h"

namespace veyrand::engine {

namespace {

std::string replaced(
    const std::string& line, std::size_t at, std::size_t removed, const std::string& replacement)
{
    return line.substr(0, at) + replacement + line.substr(at + removed);
}

void replaceEach(std::vector<std::string>& result, const std::string& line,
    const std::string& pattern, const std::string& replacement)
{
    for (std::size_t at = line.find(pattern); at != std::string::npos;
         at = line.find(pattern, at + 1)) {
        result.push_back(replaced(line, at, pattern.size(), replacement));
    }
}

} // namespace

std::vector<std::string> neighboursByHand(const std::string& line)
{
    std::vector<std::string> result;
    if (!line.empty() && line.back() == 'R') {
        result.push_back(line + 'G');
    }
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == 'Y') {
            result.push_back(line + line.substr(i + 1));
        }
    }
    replaceEach(result, line, "RRR", "G");
    replaceEach(result, line, "GG", "");
    for (std::size_t i = 0; i + 2 < line.size(); ++i) {
        if (line[i] == 'Y') {
            result.push_back(replaced(line, i, 3, { line[i + 2], line[i + 1], 'Y' }));
        }
    }
    replaceEach(result, line, "GG", "GBG");
    for (std::size_t i = line.find('B'); i != std::string::npos; i = line.find('B', i + 1)) {
        const std::size_t next = line.find('B', i + 1);
        if (next != std::string::npos && next > i + 1) {
            result.push_back(replaced(line, i, next - i, "B"));
        }
    }
    return result;
}

DistanceByLine distancesByHand(const std::string& root, unsigned mostMoves, std::size_t mostChips)
{
    DistanceByLine distances;
    std::vector<std::string> lines { root };
    for (unsigned moves = 1; moves <= mostMoves && !lines.empty(); ++moves) {
        std::vector<std::string> next;
        for (const std::string& line : lines) {
            for (const std::string& neighbour : neighboursByHand(line)) {
                if (neighbour.size() <= mostChips && distances.emplace(neighbour, moves).second) {
                    next.push_back(neighbour);
                }
            }
        }
        lines = std::move(next);
    }
    return distances;
}

DistanceByLine solutionsByHand(const std::string& root)
{
    constexpr std::size_t kMostChips = 12;
    constexpr unsigned kMostChildren = 15000;
    constexpr unsigned kMostLinesOfAPath = 13;
    DistanceByLine distances;
    std::vector<std::pair<std::string, unsigned>> queue { { root, 0 } };
    unsigned examined = 0;
    for (std::size_t i = 0; i < queue.size(); ++i) {
        const auto [line, moves] = queue[i];
        const std::vector<std::string> neighbours = neighboursByHand(line);
        for (const std::string& neighbour : neighbours) {
            if (examined++ == kMostChildren) {
                return distances;
            }
            if (neighbour.size() <= kMostChips && distances.emplace(neighbour, moves + 1).second) {
                queue.emplace_back(neighbour, moves + 1);
            }
        }
        if (i % 100 == 0 && !neighbours.empty() && moves + 1 > kMostLinesOfAPath) {
            return distances;
        }
    }
    return distances;
}

} // namespace veyrand::engine
