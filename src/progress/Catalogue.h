#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veyrand::progress {

// One puzzle.
struct CatalogueEntry {
    std::string root;
    std::string goal;
    int par = 0; // lines of a shortest solution, the start line included: the file's number plus 1
    friend bool operator==(const CatalogueEntry&, const CatalogueEntry&) = default;
};

// The puzzles of one file, in order.
using Catalogue = std::vector<CatalogueEntry>;

struct ParsedCatalogue {
    Catalogue entries;
    std::string error; // empty when the whole text was understood; then the entries count
};

// How many entries the game may ask for.
inline constexpr std::size_t kClassicEntries = 111;
inline constexpr std::size_t kEndlessEntries = 2168;

// Pars (in lines) the game may ask of the Endless catalogue.
inline constexpr int kSmallestPar = 2;
inline constexpr int kGreatestPar = 12;

// Reads a catalogue of UTF-16 text with a byte-order mark: three lines a puzzle (start line, goal
// line, moves of a shortest solution), split at line feeds, with nothing trimmed and no line feed
// at the end. Never throws: a broken text yields no entries and an error that says what is wrong.
[[nodiscard]] ParsedCatalogue parseCatalogue(std::string_view utf16Bytes);

// The same from a text of one byte a letter, as it is kept in the sources.
[[nodiscard]] ParsedCatalogue parseCatalogueText(std::string_view text);

// The letters of UTF-16 text of either byte order, one byte each; nothing when it has no byte-order
// mark or holds anything but ASCII.
[[nodiscard]] std::optional<std::string> lettersOfUtf16(std::string_view bytes);

// The text as the game reads it: UTF-16, little-endian, with a byte-order mark.
[[nodiscard]] std::string catalogueBytes(std::string_view text);

enum class CatalogueKind { Classic, Endless };

// What would let the game fall out of range, or draw for ever, with these entries; nothing when all
// is well: too few puzzles, or an Endless par that none has.
[[nodiscard]] std::optional<std::string> insufficiency(
    const Catalogue& catalogue, CatalogueKind kind);

// The same, and what the game could not show: a par it cannot ask for, a line of foreign letters,
// one too long for the board.
[[nodiscard]] std::optional<std::string> catalogueFault(
    const Catalogue& catalogue, CatalogueKind kind);

} // namespace veyrand::progress
