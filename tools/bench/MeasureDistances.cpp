#include "Measure.h"
#include "Measurements.h"
#include "engine/Distances.h"
#include "progress/RuleSets.h"

#include <atomic>
#include <iomanip>
#include <iostream>
#include <numeric>
#include <thread>
#include <vector>

namespace veyrand::bench {

namespace {

using engine::Distances;
using engine::PackedLine;
using engine::PackedMoves;

constexpr unsigned kMostChips = 12;

std::uint64_t sum(const std::vector<std::uint64_t>& counts)
{
    return std::accumulate(counts.begin(), counts.end(), std::uint64_t { 0 });
}

// A yellow chip and one to six others, red, green or blue.
std::vector<PackedLine> allRoots()
{
    std::vector<std::string> shorter { "Y" };
    std::vector<PackedLine> roots;
    for (int chips = 1; chips <= 6; ++chips) {
        std::vector<std::string> longer;
        for (const std::string& root : shorter) {
            for (const char chip : { 'R', 'G', 'B' }) {
                longer.push_back(root + chip);
                roots.push_back(*PackedLine::pack(longer.back()));
            }
        }
        shorter = std::move(longer);
    }
    return roots;
}

std::uint64_t linesFromAllRoots(const PackedMoves& moves, const std::vector<PackedLine>& roots)
{
    std::atomic<std::size_t> next { 0 };
    std::atomic<std::uint64_t> lines { 0 };
    const auto work = [&] {
        Distances distances(moves, kMostChips);
        for (std::size_t i = next++; i < roots.size(); i = next++) {
            lines += sum(distances.countsFrom(roots[i]));
        }
    };
    std::thread other(work);
    work();
    other.join();
    return lines;
}

} // namespace

void measureDistances(Results& results)
{
    const PackedMoves moves = *PackedMoves::derive(progress::advancedRules());
    Results::heading("Exact distances (12 chips, nothing else limited)");
    Distances distances(moves, kMostChips);
    std::vector<std::uint64_t> counts;
    constexpr int kRuns = 10;
    const double yr
        = leastSeconds(kRuns, [&] { counts = distances.countsFrom(*PackedLine::pack("YR")); });
    results.add("distances.yr.lines", static_cast<double>(sum(counts)), "");
    results.add("distances.yr.ms", yr * 1e3, "ms");

    const std::vector<PackedLine> roots = allRoots();
    const double start = wallSeconds();
    const std::uint64_t lines = linesFromAllRoots(moves, roots);
    const double all = wallSeconds() - start;
    results.add("distances.all_roots.roots", static_cast<double>(roots.size()), "");
    results.add("distances.all_roots.lines", static_cast<double>(lines), "");
    results.add("distances.all_roots.s", all, "s", "on two threads");
}

void measureGrowth(Results& results)
{
    const PackedMoves moves = *PackedMoves::derive(progress::advancedRules());
    constexpr unsigned kLongest = 16;
    Results::heading("Growth with the length of the lines, from YR");
    double before = 0;
    for (unsigned chips = kMostChips; chips <= kLongest; ++chips) {
        Distances distances(moves, chips);
        std::vector<std::uint64_t> counts;
        const double seconds
            = leastSeconds(1, [&] { counts = distances.countsFrom(*PackedLine::pack("YR")); });
        const auto lines = static_cast<double>(sum(counts));
        const std::string name = "growth." + std::to_string(chips);
        results.add(name + ".lines", lines, "",
            before > 0 ? "times " + std::to_string(lines / before).substr(0, 4) : "");
        results.add(name + ".distance", static_cast<double>(counts.size() - 1), "moves",
            "to the farthest line");
        results.add(name + ".ms", seconds * 1e3, "ms");
        results.add(name + ".mb", static_cast<double>(distances.bytes()) / 1e6, "MB");
        before = lines;
    }
}

} // namespace veyrand::bench
