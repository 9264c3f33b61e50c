#include "engine/PackedMoves.h"

#include <algorithm>
#include <string_view>

namespace veyrand::engine {

namespace {

constexpr std::string_view kLetters = "YRGB";

// The moves that need a matcher of their own.
const Rule& doubleAfterYellow()
{
    static const Rule kRule("Y(.*)", "Y$1$1");
    return kRule;
}

const Rule& flipOverTwo()
{
    static const Rule kRule("Y(.)(.)", "$2$1Y");
    return kRule;
}

const Rule& dropBetweenBlues()
{
    static const Rule kRule("B[YGR]+B", "BB");
    return kRule;
}

bool lettersOnly(std::string_view text)
{
    return text.find_first_not_of(kLetters) == std::string_view::npos;
}

} // namespace

std::optional<PackedMoves> PackedMoves::derive(const Rules& rules)
{
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
    return moves;
}

// Patterns of letters alone match themselves and nothing else, whatever the letters; the three
// other moves are known by their very texts. A template of letters alone stands for itself.
std::optional<PackedMoves::Move> PackedMoves::fastFormOf(const Rule& rule)
{
    Move move;
    if (rule == doubleAfterYellow()) {
        move.kind = Kind::DoubleAfterYellow;
        return move;
    }
    if (rule == flipOverTwo()) {
        move.kind = Kind::FlipOverTwo;
        return move;
    }
    if (rule == dropBetweenBlues()) {
        move.kind = Kind::DropBetweenBlues;
        return move;
    }
    std::string_view pattern = rule.antecedent();
    if (!pattern.empty() && pattern.back() == '$') {
        move.kind = Kind::LiteralAtEnd;
        pattern.remove_suffix(1);
    }
    const std::optional<PackedLine> replacement = PackedLine::pack(rule.consequent());
    if (pattern.empty() || pattern.size() > move.pattern.size() || !lettersOnly(pattern)
        || !replacement) {
        return std::nullopt;
    }
    move.patternLength = static_cast<unsigned>(pattern.size());
    std::transform(pattern.begin(), pattern.end(), move.pattern.begin(),
        [](char letter) { return static_cast<std::uint8_t>(kLetters.find(letter)); });
    move.replacementLength = replacement->length();
    move.replacement = replacement->word() & bitsBelow(move.replacementLength);
    return move;
}

} // namespace veyrand::engine
