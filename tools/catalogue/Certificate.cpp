#include "catalogue/Certificate.h"

#include "progress/RuleSets.h"

#include <array>
#include <cstdio>

namespace veyrand::catalogue {

namespace {

constexpr const char* kHeading
    = "# The puzzles of both catalogues, as veyrand-workshop catalogue certify finds them.\n"
      "# place root goal | par in moves | a shortest solution, rule.match by rule.match, counted\n"
      "# from 0 | bits | shortest solutions | rules that each of them needs\n";

std::string lineOf(Game game, std::size_t entry, const Evidence& evidence)
{
    return nameOf(game, entry, evidence.puzzle) + " | " + std::to_string(evidence.puzzle.moves)
        + " | " + textOf(evidence.solution) + " | " + textOfBits(evidence.metrics.bits) + " | "
        + std::to_string(evidence.metrics.solutions) + " | " + textOf(evidence.metrics.needed)
        + '\n';
}

} // namespace

std::string certificate(const std::vector<Evidence>& classic, const std::vector<Evidence>& endless)
{
    std::string text = kHeading;
    text += "# Classic\n";
    for (std::size_t entry = 1; entry < classic.size(); ++entry) {
        text += lineOf(Game::Classic, entry, classic[entry]);
    }
    text += "# Endless\n";
    for (std::size_t entry = 0; entry < endless.size(); ++entry) {
        text += lineOf(Game::Endless, entry, endless[entry]);
    }
    return text;
}

std::string textOf(const std::vector<Move>& solution)
{
    std::string text;
    for (const Move& move : solution) {
        text += text.empty() ? "" : " ";
        text += std::to_string(move.rule) + '.' + std::to_string(move.match);
    }
    return text;
}

std::string textOf(MoveSet moves)
{
    std::string text;
    for (unsigned move = 0; move < progress::kMoveCount; ++move) {
        if ((moves & only(move)) != 0) {
            text += text.empty() ? "" : " ";
            text += std::to_string(move);
        }
    }
    return text.empty() ? "-" : text;
}

std::string textOfBits(double bits)
{
    std::array<char, 32> buffer {};
    const int length = std::snprintf(buffer.data(), buffer.size(), "%.2f", bits);
    return { buffer.data(), static_cast<std::size_t>(length) };
}

} // namespace veyrand::catalogue
