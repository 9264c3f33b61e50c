#pragma once

#include "engine/PackedLine.h"
#include "engine/Rule.h"

#include <array>
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

    // Nothing when some rule has no fast form.
    [[nodiscard]] static std::optional<PackedMoves> derive(const Rules& rules);

    // Calls visit(child) for each line one move away: rule by rule, and within a rule match by
    // match. A child of more than `longest` chips (31 at the most) is announced by a line that is
    // none: its length is known before it is made. Ends early, answering false, as soon as visit
    // does.
    template <class Visit>
    bool forEachChild(PackedLine line, unsigned longest, const Visit& visit) const
    {
        const Planes planes(line);
        for (const Move& move : m_moves) {
            if (!visitMatches(move, planes, longest, visit)) {
                return false;
            }
        }
        return true;
    }

    // The same for one rule alone.
    template <class Visit>
    bool forEachChildByRule(
        std::size_t rule, PackedLine line, unsigned longest, const Visit& visit) const
    {
        return visitMatches(m_moves.at(rule), Planes(line), longest, visit);
    }

    // Whether a line with one yellow chip at most only ever leads to such lines.
    [[nodiscard]] bool addNoYellow() const { return m_addNoYellow; }

private:
    enum class Kind { Literal, LiteralAtEnd, DoubleAfterYellow, FlipOverTwo, DropBetweenBlues };

    // What a rule comes down to. Kinds other than the literal ones need no more than their name.
    struct Move {
        Kind kind = Kind::Literal;
        std::array<std::uint8_t, PackedLine::kMostChips> pattern {};
        unsigned patternLength = 0;
        std::uint64_t replacement = 0; // chips only, without the bit that ends a line
        unsigned replacementLength = 0;
    };

    // A line and, for each colour, one bit for each chip of that colour, at the chip's lower bit.
    struct Planes {
        explicit Planes(PackedLine packed)
            : line(packed.word())
            , length(packed.length())
        {
            constexpr std::uint64_t kLowerBits = 0x5555555555555555U;
            const std::uint64_t chips = kLowerBits & (bitsBelow(length));
            const std::uint64_t low = line & chips;
            const std::uint64_t high = line >> 1 & chips;
            of = { chips & ~(low | high), low & ~high, high & ~low, low & high };
        }
        std::uint64_t line;
        unsigned length;
        std::array<std::uint64_t, 4> of;
    };

    static std::uint64_t bitsBelow(unsigned column)
    {
        return (std::uint64_t { 1 } << (PackedLine::kBitsPerChip * column)) - 1;
    }

    [[nodiscard]] static std::optional<Move> fastFormOf(const Rule& rule);

    // The line with `removed` chips from a column on replaced by others.
    static PackedLine spliced(std::uint64_t line, unsigned column, unsigned removed,
        std::uint64_t replacement, unsigned added)
    {
        const unsigned shift = PackedLine::kBitsPerChip * column;
        const std::uint64_t before = line & bitsBelow(column);
        const std::uint64_t after = line >> (shift + PackedLine::kBitsPerChip * removed);
        return PackedLine(
            before | replacement << shift | after << (shift + PackedLine::kBitsPerChip * added));
    }

    // Calls one(column) for each bit of a plane, leftmost chip first.
    template <class One> static bool forEachColumn(std::uint64_t bits, const One& one)
    {
        for (; bits != 0; bits &= bits - 1) {
            if (!one(static_cast<unsigned>(__builtin_ctzll(bits)) / PackedLine::kBitsPerChip)) {
                return false;
            }
        }
        return true;
    }

    template <class Visit>
    static bool visitMatches(
        const Move& move, const Planes& planes, unsigned longest, const Visit& visit)
    {
        switch (move.kind) {
        case Kind::Literal:
        case Kind::LiteralAtEnd:
            return visitLiteral(move, planes, longest, visit);
        case Kind::DoubleAfterYellow:
            return visitDoubling(planes, longest, visit);
        case Kind::FlipOverTwo:
            return visitFlip(planes, longest, visit);
        case Kind::DropBetweenBlues:
            break;
        }
        return visitDrop(planes, longest, visit);
    }

    template <class Visit>
    static bool visitLiteral(
        const Move& move, const Planes& planes, unsigned longest, const Visit& visit)
    {
        std::uint64_t found = planes.of[move.pattern[0]];
        for (unsigned i = 1; i < move.patternLength; ++i) {
            found &= planes.of[move.pattern[i]] >> (PackedLine::kBitsPerChip * i);
        }
        if (move.kind == Kind::LiteralAtEnd && found != 0) {
            found &= ~bitsBelow(planes.length - move.patternLength);
        }
        const bool fits = planes.length + move.replacementLength <= longest + move.patternLength;
        return forEachColumn(found, [&](unsigned column) {
            return visit(fits ? spliced(planes.line, column, move.patternLength, move.replacement,
                             move.replacementLength)
                              : PackedLine());
        });
    }

    template <class Visit>
    static bool visitDoubling(const Planes& planes, unsigned longest, const Visit& visit)
    {
        return forEachColumn(planes.of[PackedLine::Yellow], [&](unsigned column) {
            const unsigned doubled = planes.length - column - 1;
            if (planes.length + doubled > longest) {
                return visit(PackedLine());
            }
            const unsigned end = PackedLine::kBitsPerChip * planes.length;
            const std::uint64_t tail
                = planes.line >> (PackedLine::kBitsPerChip * (column + 1)); // with the end bit
            return visit(PackedLine((planes.line & bitsBelow(planes.length)) | tail << end));
        });
    }

    // Yellow and the two chips behind it: the outer two change places.
    template <class Visit>
    static bool visitFlip(const Planes& planes, unsigned longest, const Visit& visit)
    {
        constexpr unsigned kChips = 3;
        if (planes.length < kChips) {
            return true;
        }
        const std::uint64_t found
            = planes.of[PackedLine::Yellow] & bitsBelow(planes.length - kChips + 1);
        return forEachColumn(found, [&](unsigned column) {
            constexpr unsigned kTwoChips = 2 * PackedLine::kBitsPerChip;
            const unsigned shift = PackedLine::kBitsPerChip * column;
            const std::uint64_t third = planes.line >> (shift + kTwoChips) & PackedLine::Blue;
            // Yellow is two zero bits, so moving the third chip to its place and yellow to the
            // third's is setting the one and clearing the other.
            const std::uint64_t both = third << shift | third << (shift + kTwoChips);
            return visit(PackedLine(planes.length <= longest ? planes.line ^ both : 0));
        });
    }

    // What lies between two neighbouring blues, if anything does.
    template <class Visit>
    static bool visitDrop(const Planes& planes, unsigned longest, const Visit& visit)
    {
        const std::uint64_t blues = planes.of[PackedLine::Blue];
        return forEachColumn(blues, [&](unsigned column) {
            const std::uint64_t later = blues & ~bitsBelow(column + 1);
            if (later == 0) {
                return true;
            }
            const unsigned dropped
                = static_cast<unsigned>(__builtin_ctzll(later)) / PackedLine::kBitsPerChip - column
                - 1;
            if (dropped == 0) {
                return true;
            }
            return visit(planes.length - dropped <= longest
                    ? spliced(planes.line, column + 1, dropped, 0, 0)
                    : PackedLine());
        });
    }

    std::vector<Move> m_moves;
    bool m_addNoYellow = true; // doubling repeats what follows a yellow: no other yellow, then
};

} // namespace veyrand::engine
