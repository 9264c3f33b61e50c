#include "play/Ways.h"

#include "play/Refusal.h"
#include "progress/RuleSets.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace veyrand::play {

namespace {

using engine::PackedLine;

// The moves that are made by a click: the others are drags.
constexpr MoveSet kClicks
    = only(progress::kGreenToEnd) | only(progress::kDoubling) | only(progress::kSplitGreens);

// What no move makes where there is none: a goal that has it needs a line that has it.
bool lacksForEver(PackedLine from, PackedLine goal)
{
    const std::string have = from.text();
    const std::string want = goal.text();
    const auto lacks = [&](char chip) {
        return want.find(chip) != std::string::npos && have.find(chip) == std::string::npos;
    };
    return lacks('Y') || lacks('R');
}

// Calls visit(child) for each line one such move away, in the order of all searches, until one is
// answered with true; whether one was. One that is too long is no line.
template <class Visit> bool anyChild(PackedLine line, MoveSet moves, const Visit& visit)
{
    engine::PackedMoves::Children children;
    if (moves == kAllMoves) {
        gameMoves().childrenOf(line, kMostChips, children);
        return std::any_of(children.begin(), children.end(), visit);
    }
    for (unsigned rule = 0; rule < progress::kMoveCount; ++rule) {
        if ((moves & only(rule)) != 0) {
            gameMoves().childrenByRule(rule, line, kMostChips, children);
            if (std::any_of(children.begin(), children.end(), visit)) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

MoveSet movesWith(unsigned standing)
{
    return standing <= kMostLinesForDrag ? kAllMoves : kClicks;
}

MoveSet openMoves(int count)
{
    constexpr unsigned kOpenTogether = 6; // and the seventh
    MoveSet moves = 0;
    for (unsigned rule = 0; rule < progress::kMoveCount; ++rule) {
        const unsigned opens = std::min(labelOf(rule), kOpenTogether);
        moves |= static_cast<int>(opens) <= count ? only(rule) : 0;
    }
    return moves;
}

bool hasOneYellowAtMost(PackedLine line)
{
    const std::string text = line.text();
    return std::count(text.begin(), text.end(), 'Y') <= 1;
}

std::vector<PackedLine> Ways::way(std::uint64_t number) const
{
    std::vector<PackedLine> lines { m_lines.back().line };
    std::size_t at = m_lines.size() - 1;
    while (m_lines[at].distance > 0) {
        for (const std::size_t before : m_lines[at].from) {
            if (number < m_lines[before].count) {
                at = before;
                break;
            }
            number -= m_lines[before].count;
        }
        lines.push_back(m_lines[at].line);
    }
    std::reverse(lines.begin(), lines.end());
    return lines;
}

bool Ways::leadsThrough(MoveSet moves) const
{
    std::vector<bool> leads(m_lines.size(), false);
    leads.back() = true;
    for (std::size_t i = m_lines.size() - 1; i-- > 0;) {
        leads[i] = std::any_of(m_lines[i].on.begin(), m_lines[i].on.end(),
            [&](const Way& way) { return (way.moves & moves) != 0 && leads[way.to]; });
    }
    return leads.front();
}

MoveSet Ways::needed() const
{
    MoveSet needed = 0;
    for (unsigned move = 0; move < progress::kMoveCount; ++move) {
        needed |= leadsThrough(kAllMoves & ~only(move)) ? 0 : only(move);
    }
    return needed;
}

double Ways::bits() const
{
    double bits = 0;
    std::size_t at = m_lines.size() - 1;
    while (m_lines[at].distance > 0) {
        at = m_lines[at].from.front();
        const unsigned standing = m_standing + m_lines[at].distance;
        if (standing + 1 < kMostLines) { // the last line is the goal or none
            const auto steps = stepsFrom(m_lines[at].line, movesWith(standing) & m_open);
            bits += std::log2(
                static_cast<double>(steps.size()) / static_cast<double>(m_lines[at].on.size()));
        }
    }
    return bits;
}

WaySearch::WaySearch()
    : m_seen(kMostChips)
{
}

std::optional<Ways> WaySearch::find(
    PackedLine from, PackedLine goal, unsigned standing, MoveSet open)
{
    if (standing >= kMostLines || goal.length() > kMostChips || from.length() > kMostChips
        || !hasOneYellowAtMost(goal) || lacksForEver(from, goal)) {
        return std::nullopt;
    }
    m_seen.clear();
    m_seen.insert(from);
    m_lines.assign(1, from);
    m_firsts.assign(1, 0);
    const std::optional<unsigned> moves = search(goal, standing, kMostLines - standing, open);
    return moves ? std::optional(trace(goal, standing, *moves, open)) : std::nullopt;
}

// How many moves away the goal is. All lines that are nearer have been found then.
std::optional<unsigned> WaySearch::search(
    PackedLine goal, unsigned standing, unsigned most, MoveSet open)
{
    for (unsigned moves = 1; moves <= most; ++moves) {
        const MoveSet now = movesWith(standing + moves - 1) & open;
        const std::size_t first = m_firsts.back();
        const std::size_t end = m_lines.size();
        m_firsts.push_back(end);
        for (std::size_t i = first; i < end; ++i) {
            const PackedLine line = m_lines[i]; // the list grows meanwhile
            const bool isMet = anyChild(line, now, [&](PackedLine child) {
                if (child != goal && moves < most && child != PackedLine()
                    && m_seen.insert(child)) {
                    m_lines.push_back(child);
                }
                return child == goal && child != line; // what changes nothing is no move
            });
            if (isMet) {
                return moves;
            }
        }
    }
    return std::nullopt;
}

// Backwards from the goal, distance by distance: a line is on a way when one of the next is.
Ways WaySearch::trace(PackedLine goal, unsigned standing, unsigned moves, MoveSet open) const
{
    struct Found {
        PackedLine line;
        std::vector<Step> on;
    };
    std::vector<std::vector<Found>> layers(moves + 1);
    layers.back().push_back({ goal, {} });
    std::unordered_map<std::uint64_t, bool> wanted { { goal.word(), true } };
    for (unsigned distance = moves; distance-- > 0;) {
        const std::size_t end = m_firsts[distance + 1];
        engine::PackedMoves::Children children;
        for (std::size_t i = m_firsts[distance]; i < end; ++i) {
            gameMoves().childrenOf(m_lines[i], kMostChips, children);
            if (std::none_of(children.begin(), children.end(),
                    [&](PackedLine child) { return wanted.contains(child.word()); })) {
                continue;
            }
            std::vector<Step> on = stepsFrom(m_lines[i], movesWith(standing + distance) & open);
            on.erase(std::remove_if(on.begin(), on.end(),
                         [&](const Step& step) { return !wanted.contains(step.line.word()); }),
                on.end());
            if (!on.empty()) {
                layers[distance].push_back({ m_lines[i], std::move(on) });
            }
        }
        wanted.clear();
        for (const Found& found : layers[distance]) {
            wanted.emplace(found.line.word(), true);
        }
    }

    Ways ways;
    ways.m_standing = standing;
    ways.m_open = open;
    std::vector<std::unordered_map<std::uint64_t, std::size_t>> places(moves + 1);
    for (unsigned distance = 0; distance <= moves; ++distance) {
        for (const Found& found : layers[distance]) {
            places[distance].emplace(found.line.word(), ways.m_lines.size());
            ways.m_lines.push_back({ .line = found.line, .distance = distance });
        }
    }
    ways.m_lines.front().count = 1;
    std::size_t index = 0;
    for (unsigned distance = 0; distance < moves; ++distance) {
        for (const Found& found : layers[distance]) {
            for (const Step& step : found.on) {
                const std::size_t to = places[distance + 1].at(step.line.word());
                ways.m_lines[index].on.push_back({ to, step.moves });
                ways.m_lines[to].from.push_back(index);
                ways.m_lines[to].count += ways.m_lines[index].count;
            }
            ++index;
        }
    }
    return ways;
}

} // namespace veyrand::play
