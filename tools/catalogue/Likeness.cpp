#include "catalogue/Likeness.h"

#include "catalogue/Metrics.h"
#include "progress/RuleSets.h"

#include <algorithm>

namespace veyrand::catalogue {

namespace {

// The cheapest way to make one list of the other, by adding and dropping entries at a cost of one
// and replacing them at a cost that the entries have.
template <class List, class Cost> double distance(const List& a, const List& b, const Cost& cost)
{
    std::vector<double> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j) {
        row[j] = static_cast<double>(j);
    }
    for (std::size_t i = 0; i < a.size(); ++i) {
        double diagonal = row[0];
        row[0] += 1;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const double replaced = diagonal + cost(a[i], b[j]);
            diagonal = row[j + 1];
            row[j + 1] = std::min({ replaced, diagonal + 1, row[j] + 1 });
        }
    }
    return row.back();
}

double share(double part, std::size_t a, std::size_t b)
{
    return 1 - part / static_cast<double>(std::max<std::size_t>({ a, b, 1 }));
}

} // namespace

Way wayOf(const ShortestWays& ways, MoveSet open)
{
    Way way;
    const std::vector<std::size_t>& solution = ways.firstSolution();
    for (std::size_t i = 0; i < solution.size(); ++i) {
        const engine::PackedLine line = ways.lines()[solution[i]].line;
        if (i > 0) {
            const auto move = moveBetween(ways.lines()[solution[i - 1]].line, line, open);
            way.moves += labelOf(move.value_or(Move {}).rule);
        }
        way.lines.push_back(line.text());
    }
    return way;
}

double likeness(const Way& a, const Way& b)
{
    const double moves
        = distance(a.moves, b.moves, [](char one, char other) { return one == other ? 0.0 : 1.0; });
    const double lines
        = distance(a.lines, b.lines, [](const std::string& one, const std::string& other) {
              return static_cast<double>(difference(one, other))
                  / static_cast<double>(std::max(one.size(), other.size()));
          });
    return (share(moves, a.moves.size(), b.moves.size())
               + share(lines, a.lines.size(), b.lines.size()))
        / 2;
}

} // namespace veyrand::catalogue
