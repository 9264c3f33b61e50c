#include "catalogue/Reach.h"

#include "progress/RuleSets.h"

#include <algorithm>

namespace veyrand::catalogue {

namespace {

constexpr std::size_t kFirstSize = 1U << 12U;

} // namespace

LineNumbers::LineNumbers()
    : m_table(kFirstSize)
{
}

void LineNumbers::clear()
{
    std::fill(m_table.begin(), m_table.end(), Place {});
    m_count = 0;
}

std::size_t LineNumbers::placeOf(engine::PackedLine line) const
{
    constexpr std::uint64_t kGoldenRatio = 0x9E3779B97F4A7C15U;
    constexpr unsigned kHigh = 32;
    const std::size_t mask = m_table.size() - 1;
    std::size_t place = (line.word() * kGoldenRatio >> kHigh) & mask;
    while (m_table[place].line != engine::PackedLine() && m_table[place].line != line) {
        place = (place + 1) & mask;
    }
    return place;
}

std::uint32_t LineNumbers::numberOf(engine::PackedLine line, std::uint32_t next)
{
    Place& place = m_table[placeOf(line)];
    if (place.line == line) {
        return place.number;
    }
    place = { line, next };
    if (++m_count > m_table.size() / 2) {
        grow();
    }
    return next;
}

std::optional<std::uint32_t> LineNumbers::find(engine::PackedLine line) const
{
    const Place& place = m_table[placeOf(line)];
    return place.line == line ? std::optional(place.number) : std::nullopt;
}

void LineNumbers::grow()
{
    std::vector<Place> old(m_table.size() * 2);
    old.swap(m_table);
    for (const Place& place : old) {
        if (place.line != engine::PackedLine()) {
            m_table[placeOf(place.line)] = place;
        }
    }
}

void Reach::explore(engine::PackedLine root, unsigned mostMoves)
{
    m_lines.assign(1, root);
    m_distances.assign(1, 0);
    m_firsts.assign(1, 0);
    m_edges.clear();
    m_numbers.clear();
    m_numbers.numberOf(root, 0);
    for (unsigned distance = 0; distance < mostMoves; ++distance) {
        const std::size_t end = m_lines.size();
        for (std::size_t i = m_firsts.back(); i < end; ++i) {
            addEdgesFrom(static_cast<std::uint32_t>(i));
        }
        m_firsts.push_back(end);
    }
    m_firsts.push_back(m_lines.size());
    sortEdges();
}

void Reach::addEdgesFrom(std::uint32_t index)
{
    const std::size_t firstEdge = m_edges.size();
    const engine::PackedLine line = m_lines[index];
    const unsigned distance = m_distances[index] + 1U;
    for (unsigned rule = 0; rule < progress::kMoveCount; ++rule) {
        forEachMatch(rule, line, [&](engine::PackedLine child) {
            if (child.length() > kMostChips) {
                return true;
            }
            const auto next = static_cast<std::uint32_t>(m_lines.size());
            const std::uint32_t number = m_numbers.numberOf(child, next);
            if (number == next) {
                m_lines.push_back(child);
                m_distances.push_back(static_cast<std::uint8_t>(distance));
            } else if (m_distances[number] != distance) {
                return true;
            }
            const auto known
                = std::find_if(m_edges.begin() + static_cast<std::ptrdiff_t>(firstEdge),
                    m_edges.end(), [number](const Edge& edge) { return edge.to == number; });
            if (known == m_edges.end()) {
                m_edges.push_back({ index, number, only(rule) });
            } else {
                known->moves |= only(rule);
            }
            return true;
        });
    }
}

void Reach::sortEdges()
{
    m_starts.assign(m_lines.size() + 1, 0);
    for (const Edge& edge : m_edges) {
        ++m_starts[edge.to + 1];
    }
    for (std::size_t i = 1; i < m_starts.size(); ++i) {
        m_starts[i] += m_starts[i - 1];
    }
    m_origins.resize(m_edges.size());
    std::vector<std::uint32_t> next = m_starts;
    for (const Edge& edge : m_edges) {
        m_origins[next[edge.to]++] = { edge.from, edge.moves };
    }
}

std::optional<std::size_t> Reach::find(engine::PackedLine line) const
{
    return m_numbers.find(line);
}

Reach::Span Reach::atDistance(unsigned moves) const
{
    return moves + 1 < m_firsts.size() ? Span { m_firsts[moves], m_firsts[moves + 1] } : Span {};
}

} // namespace veyrand::catalogue
