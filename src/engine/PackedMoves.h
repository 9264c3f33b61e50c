#pragma once

#include "engine/PackedLine.h"
#include "engine/Rule.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace veyrand::engine {

// The moves on packed lines. Each is derived from a rule, which stays the one definition of what
// the move does: a rule whose pattern is understood gets matchers made of a few word operations,
// and a list with any other rule has no fast form at all. A test holds every fast form against its
// rule.
//
// Matches come in the order of Theorem::matchesWithRule, so searches over packed lines meet their
// nodes in the same order as searches over texts.
class PackedMoves {
public:
    using Line = PackedLine;

    static constexpr std::size_t kMostRules = 16;

    // The lines one move away from some line. One that would have too many chips is there too, as
    // no line: its place counts.
    class Children {
    public:
        [[nodiscard]] std::size_t size() const { return m_count; }
        [[nodiscard]] const PackedLine* begin() const { return m_lines.data(); }
        [[nodiscard]] const PackedLine* end() const { return m_lines.data() + m_count; }

    private:
        friend class PackedMoves;

        void endAt(const PackedLine* end)
        {
            m_count = static_cast<std::size_t>(end - m_lines.data());
        }

        // A line has no more matches of a rule than it has chips.
        std::array<PackedLine, kMostRules * PackedLine::kMostChips> m_lines;
        std::size_t m_count = 0;
    };

    // Nothing when some rule has no fast form, or there are too many.
    [[nodiscard]] static std::optional<PackedMoves> derive(const Rules& rules);

    // Finds every line one move away: rule by rule, and within a rule match by match. The limit is
    // in chips, at most PackedLine::kMostChips.
    void childrenOf(PackedLine line, unsigned longest, Children& children) const;

    // The same for one rule alone.
    void childrenByRule(
        std::size_t rule, PackedLine line, unsigned longest, Children& children) const;

    // Whether a line with one yellow chip at most only ever leads to such lines.
    [[nodiscard]] bool addNoYellow() const { return m_addNoYellow; }

private:
    enum class Kind { Literal, LiteralAtEnd, DoubleAfterYellow, FlipOverTwo, DropBetweenBlues };

    // What a rule comes down to. Kinds other than the literal ones need no more than their name.
    struct Move {
        Kind kind = Kind::Literal;
        PackedLine pattern;
        PackedLine replacement;
        friend bool operator==(const Move&, const Move&) = default;
    };

    // The game's own seven moves.
    static const std::array<Move, 7> kGameMoves;

    struct Planes;

    [[nodiscard]] static std::optional<Move> fastFormOf(const Rule& rule);

    std::vector<Move> m_moves;
    bool m_areTheGames = false;
    bool m_addNoYellow = true; // doubling repeats what follows a yellow: no other yellow, then
};

} // namespace veyrand::engine
