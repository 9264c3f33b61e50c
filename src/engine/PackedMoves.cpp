#include "engine/PackedMoves.h"

#include <algorithm>
#include <string_view>

// The compiler does not judge these functions worth laying out in line on its own. Where branches
// are counted (tools/evidence coverage) each is to be there once, and this is set to nothing.
#ifndef VEYRAND_ALWAYS_INLINE
#define VEYRAND_ALWAYS_INLINE [[gnu::always_inline]] inline
#endif

namespace veyrand::engine {

namespace {

constexpr unsigned kBits = PackedLine::kBitsPerChip;

constexpr std::uint64_t bitsBelow(unsigned column)
{
    return (std::uint64_t { 1 } << (kBits * column)) - 1;
}

unsigned firstColumn(std::uint64_t bits)
{
    return static_cast<unsigned>(__builtin_ctzll(bits)) / kBits;
}

constexpr std::uint64_t chipsOf(PackedLine line)
{
    return line.word() & bitsBelow(line.length());
}

// The line with `removed` chips from a column on replaced by others.
std::uint64_t spliced(
    std::uint64_t line, unsigned column, unsigned removed, PackedLine replacement = PackedLine(1))
{
    const unsigned shift = kBits * column;
    const std::uint64_t before = line & bitsBelow(column);
    // A line of 31 chips has no room for one more: what would follow is pushed out, and a word
    // cannot be shifted by its whole width.
    constexpr unsigned kBitsInWord = 64;
    const unsigned from = shift + kBits * removed;
    const unsigned to = shift + kBits * replacement.length();
    const std::uint64_t after = to < kBitsInWord ? line >> from << to : 0;
    return before | chipsOf(replacement) << shift | after;
}

} // namespace

constexpr std::array<PackedMoves::Move, 7> PackedMoves::kGameMoves { {
    { Kind::LiteralAtEnd, *PackedLine::pack("R"), *PackedLine::pack("RG") },
    { Kind::DoubleAfterYellow, {}, {} },
    { Kind::Literal, *PackedLine::pack("RRR"), *PackedLine::pack("G") },
    { Kind::Literal, *PackedLine::pack("GG"), *PackedLine::pack("") },
    { Kind::FlipOverTwo, {}, {} },
    { Kind::Literal, *PackedLine::pack("GG"), *PackedLine::pack("GBG") },
    { Kind::DropBetweenBlues, {}, {} },
} };

// A line and, for each colour, one bit for each chip of that colour, at the chip's lower bit. Its
// functions each write the results of one move from `out` on and answer where they end.
struct PackedMoves::Planes {
    explicit Planes(PackedLine packed)
        : line(packed.word())
        , length(packed.length())
    {
        constexpr std::uint64_t kLowerBits = 0x5555555555555555U;
        const std::uint64_t chips = kLowerBits & bitsBelow(length);
        const std::uint64_t low = line & chips;
        const std::uint64_t high = line >> 1 & chips;
        of = { chips & ~(low | high), low & ~high, high & ~low, low & high };
    }

    VEYRAND_ALWAYS_INLINE PackedLine* writeLiteral(
        const Move& move, unsigned longest, PackedLine* out) const
    {
        const unsigned patternLength = move.pattern.length();
        std::uint64_t found = ~std::uint64_t { 0 };
        for (unsigned i = 0; i < patternLength; ++i) {
            found &= of[move.pattern.word() >> (kBits * i) & PackedLine::Blue] >> (kBits * i);
        }
        if (move.kind == Kind::LiteralAtEnd && found != 0) {
            found &= ~bitsBelow(length - patternLength);
        }
        const bool fits = length + move.replacement.length() <= longest + patternLength;
        for (; found != 0; found &= found - 1) {
            const std::uint64_t result
                = spliced(line, firstColumn(found), patternLength, move.replacement);
            *out++ = PackedLine(fits ? result : 0);
        }
        return out;
    }

    VEYRAND_ALWAYS_INLINE PackedLine* writeDoubled(unsigned longest, PackedLine* out) const
    {
        for (std::uint64_t left = of[PackedLine::Yellow]; left != 0; left &= left - 1) {
            const unsigned column = firstColumn(left);
            const unsigned doubled = length - column - 1;
            std::uint64_t result = 0;
            if (length + doubled <= longest) {
                const std::uint64_t tail = line >> (kBits * (column + 1)); // with the end's bit
                result = (line & bitsBelow(length)) | tail << (kBits * length);
            }
            *out++ = PackedLine(result);
        }
        return out;
    }

    // Yellow and the two chips behind it: the outer two change places.
    VEYRAND_ALWAYS_INLINE PackedLine* writeFlipped(unsigned longest, PackedLine* out) const
    {
        constexpr unsigned kChips = 3;
        std::uint64_t left
            = length < kChips ? 0 : of[PackedLine::Yellow] & bitsBelow(length - kChips + 1);
        for (; left != 0; left &= left - 1) {
            const unsigned first = kBits * firstColumn(left);
            const unsigned third = first + 2 * kBits;
            const std::uint64_t chip = line >> third & PackedLine::Blue;
            // Yellow is two zero bits, so moving the third chip to its place and yellow to the
            // third's is setting the one and clearing the other.
            *out++ = PackedLine(length <= longest ? line ^ (chip << first | chip << third) : 0);
        }
        return out;
    }

    // What lies between two neighbouring blues, if anything does.
    VEYRAND_ALWAYS_INLINE PackedLine* writeDropped(unsigned longest, PackedLine* out) const
    {
        std::uint64_t left = of[PackedLine::Blue];
        for (; (left & (left - 1)) != 0; left &= left - 1) {
            const unsigned column = firstColumn(left);
            const unsigned dropped = firstColumn(left & (left - 1)) - column - 1;
            if (dropped > 0) {
                *out++ = PackedLine(
                    length - dropped <= longest ? spliced(line, column + 1, dropped) : 0);
            }
        }
        return out;
    }

    VEYRAND_ALWAYS_INLINE PackedLine* write(
        const Move& move, unsigned longest, PackedLine* out) const
    {
        switch (move.kind) {
        case Kind::Literal:
        case Kind::LiteralAtEnd:
            return writeLiteral(move, longest, out);
        case Kind::DoubleAfterYellow:
            return writeDoubled(longest, out);
        case Kind::FlipOverTwo:
            return writeFlipped(longest, out);
        case Kind::DropBetweenBlues:
            break;
        }
        return writeDropped(longest, out);
    }

    std::uint64_t line;
    unsigned length;
    std::array<std::uint64_t, 4> of {};
};

void PackedMoves::childrenOf(PackedLine line, unsigned longest, Children& children) const
{
    const Planes planes(line);
    PackedLine* end = children.m_lines.data();
    if (m_areTheGames) {
        // The same as below, but with moves that the compiler knows: it lays the seven out one
        // behind the other and leaves the processor nothing to guess. Twice as fast.
        end = planes.write(kGameMoves[0], longest, end);
        end = planes.write(kGameMoves[1], longest, end);
        end = planes.write(kGameMoves[2], longest, end);
        end = planes.write(kGameMoves[3], longest, end);
        end = planes.write(kGameMoves[4], longest, end);
        end = planes.write(kGameMoves[5], longest, end);
        end = planes.write(kGameMoves[6], longest, end);
    } else {
        for (const Move& move : m_moves) {
            end = planes.write(move, longest, end);
        }
    }
    children.endAt(end);
}

void PackedMoves::childrenByRule(
    std::size_t rule, PackedLine line, unsigned longest, Children& children) const
{
    const Planes planes(line);
    children.endAt(planes.write(m_moves.at(rule), longest, children.m_lines.data()));
}

std::optional<PackedMoves> PackedMoves::derive(const Rules& rules)
{
    if (rules.size() > kMostRules) {
        return std::nullopt;
    }
    PackedMoves moves;
    for (const Rule& rule : rules) {
        const std::optional<Move> move = fastFormOf(rule);
        if (!move) {
            return std::nullopt;
        }
        moves.m_moves.push_back(*move);
        const bool literal = move->kind == Kind::Literal || move->kind == Kind::LiteralAtEnd;
        if (literal && rule.consequent().find('Y') != std::string::npos) {
            moves.m_addNoYellow = false;
        }
    }
    moves.m_areTheGames = std::equal(
        moves.m_moves.begin(), moves.m_moves.end(), kGameMoves.begin(), kGameMoves.end());
    return moves;
}

// Patterns of letters alone match themselves and nothing else, whatever the letters; the three
// other moves are known by their very texts. A template of letters alone stands for itself.
std::optional<PackedMoves::Move> PackedMoves::fastFormOf(const Rule& rule)
{
    const auto is = [&](std::string_view antecedent, std::string_view consequent) {
        return rule.antecedent() == antecedent && rule.consequent() == consequent;
    };
    if (is("Y(.*)", "Y$1$1")) {
        return Move { Kind::DoubleAfterYellow, {}, {} };
    }
    if (is("Y(.)(.)", "$2$1Y")) {
        return Move { Kind::FlipOverTwo, {}, {} };
    }
    if (is("B[YGR]+B", "BB")) {
        return Move { Kind::DropBetweenBlues, {}, {} };
    }
    std::string_view letters = rule.antecedent();
    const bool atEnd = !letters.empty() && letters.back() == '$';
    letters.remove_suffix(atEnd ? 1 : 0);
    const std::optional<PackedLine> pattern = PackedLine::pack(letters);
    const std::optional<PackedLine> replacement = PackedLine::pack(rule.consequent());
    if (letters.empty() || !pattern || !replacement) {
        return std::nullopt;
    }
    return Move { atEnd ? Kind::LiteralAtEnd : Kind::Literal, *pattern, *replacement };
}

} // namespace veyrand::engine
