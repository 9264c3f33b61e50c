#include "Measure.h"
#include "Measurements.h"
#include "play/Ways.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace veyrand::bench {

namespace {

struct Pair {
    engine::PackedLine start;
    engine::PackedLine goal;
};

// Lines as a player of the editor puts them together: every second goal is one that some moves from
// the start lead to, the others are any lines.
std::vector<Pair> pairs(std::size_t count)
{
    std::mt19937 random(1);
    const auto below = [&random](std::size_t most) { return random() % most; };
    const auto chips = [&](std::size_t length) {
        std::string line;
        while (line.size() < length) {
            line += "RGB"[below(3)];
        }
        return line;
    };
    std::vector<Pair> all;
    while (all.size() < count) {
        const auto start = engine::PackedLine::pack("Y" + chips(2 + below(9))).value();
        auto goal = engine::PackedLine::pack(chips(1 + below(12))).value();
        if (all.size() % 2 == 0) {
            goal = start;
            for (std::size_t moves = 1 + below(12); moves > 0; --moves) {
                const auto steps = play::stepsFrom(goal, play::kAllMoves);
                goal = steps.empty() ? goal : steps[below(steps.size())].line;
            }
        }
        all.push_back({ start, goal });
    }
    return all;
}

} // namespace

void measureVerdict(Results& results)
{
    constexpr std::size_t kPairs = 500;
    constexpr int kRuns = 2;
    play::WaySearch search;
    std::vector<double> times;
    for (const Pair& pair : pairs(kPairs)) {
        times.push_back(leastSeconds(kRuns, [&] {
            if (const auto ways = search.find(pair.start, pair.goal)) {
                (void)ways->needed();
                (void)ways->bits();
            }
        }));
    }
    std::sort(times.begin(), times.end());
    Results::heading("The editor's verdict on two lines (500 pairs, half of them within reach)");
    results.add("verdict.median.ms", times[times.size() / 2] * 1e3, "ms", "wanted: under 50");
    results.add("verdict.p99.ms", times[times.size() * 99 / 100] * 1e3, "ms");
    results.add("verdict.worst.ms", times.back() * 1e3, "ms");
}

} // namespace veyrand::bench
