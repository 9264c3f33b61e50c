#include "progress/Catalogue.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>

namespace veyrand::progress {

namespace {

constexpr std::size_t kLinesPerPuzzle = 3;

constexpr std::size_t kMostChips = 12;
constexpr std::string_view kLittleEndianMark = "\xFF\xFE";
constexpr std::string_view kBigEndianMark = "\xFE\xFF";
constexpr unsigned kAsciiEnd = 0x80;

std::string atLine(std::size_t index, const std::string& reason)
{
    return "line " + std::to_string(index + 1) + ": " + reason;
}

std::vector<std::string_view> linesOf(std::string_view text)
{
    std::vector<std::string_view> lines;
    for (;;) {
        const std::size_t end = text.find('\n');
        lines.push_back(text.substr(0, end));
        if (end == std::string_view::npos) {
            return lines;
        }
        text.remove_prefix(end + 1);
    }
}

std::optional<int> wholeNumber(std::string_view text)
{
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, fault] = std::from_chars(text.data(), end, number);
    return fault == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

// Moves as lines of a solution. A number that has no next one is as absurd as a greater one.
std::optional<int> parOf(std::string_view moves)
{
    const std::optional<int> number = wholeNumber(moves);
    return number && *number < std::numeric_limits<int>::max() ? std::optional(*number + 1)
                                                               : std::nullopt;
}

std::string lineFault(const std::string& line)
{
    if (line.empty()) {
        return "a line of no chips";
    }
    if (line.size() > kMostChips) {
        return "more than 12 chips";
    }
    if (line.find_first_not_of("YRGB") != std::string::npos) {
        return "a letter other than Y, R, G and B";
    }
    return {};
}

std::string entryFault(const CatalogueEntry& entry, std::size_t firstLine)
{
    if (const std::string fault = lineFault(entry.root); !fault.empty()) {
        return atLine(firstLine, fault);
    }
    if (entry.root.front() != 'Y') {
        return atLine(firstLine, "a start line must begin with Y");
    }
    if (const std::string fault = lineFault(entry.goal); !fault.empty()) {
        return atLine(firstLine + 1, fault);
    }
    if (entry.par < kSmallestPar || entry.par > kGreatestPar) {
        return atLine(firstLine + 2, "the number of moves must be from 1 to 11");
    }
    return {};
}

} // namespace

std::optional<std::string> lettersOfUtf16(std::string_view bytes)
{
    const std::string_view mark = bytes.substr(0, 2);
    if (bytes.size() % 2 != 0 || (mark != kLittleEndianMark && mark != kBigEndianMark)) {
        return std::nullopt;
    }
    const std::size_t low = mark == kLittleEndianMark ? 0 : 1;
    std::string text;
    text.reserve(bytes.size() / 2);
    for (std::size_t i = 2; i < bytes.size(); i += 2) {
        const auto lowByte = static_cast<unsigned char>(bytes[i + low]);
        if (bytes[i + 1 - low] != '\0' || lowByte >= kAsciiEnd) {
            return std::nullopt;
        }
        text.push_back(static_cast<char>(lowByte));
    }
    return text;
}

ParsedCatalogue parseCatalogue(std::string_view utf16Bytes)
{
    const std::optional<std::string> text = lettersOfUtf16(utf16Bytes);
    if (!text) {
        return { {}, "no UTF-16 text of plain letters with a byte-order mark" };
    }
    return parseCatalogueText(*text);
}

ParsedCatalogue parseCatalogueText(std::string_view text)
{
    const std::vector<std::string_view> lines = linesOf(text);
    if (lines.size() > 1 && lines.back().empty()) {
        return { {}, atLine(lines.size() - 2, "a line feed after the last line") };
    }
    if (lines.size() % kLinesPerPuzzle != 0) {
        return { {},
            atLine(lines.size() - 1,
                "ends within a puzzle (each has three lines: start, goal, moves)") };
    }
    ParsedCatalogue result;
    for (std::size_t i = 0; i < lines.size(); i += kLinesPerPuzzle) {
        const std::optional<int> par = parOf(lines[i + 2]);
        if (!par) {
            return { {}, atLine(i + 2, "the number of moves is no whole number") };
        }
        result.entries.push_back({ std::string(lines[i]), std::string(lines[i + 1]), *par });
    }
    return result;
}

std::string catalogueBytes(std::string_view text)
{
    std::string bytes(kLittleEndianMark);
    for (const char c : text) {
        bytes.push_back(c);
        bytes.push_back('\0');
    }
    return bytes;
}

std::optional<std::string> catalogueFault(const Catalogue& catalogue, CatalogueKind kind)
{
    for (std::size_t i = 0; i < catalogue.size(); ++i) {
        if (std::string fault = entryFault(catalogue[i], i * kLinesPerPuzzle); !fault.empty()) {
            return fault;
        }
    }
    return insufficiency(catalogue, kind);
}

std::optional<std::string> insufficiency(const Catalogue& catalogue, CatalogueKind kind)
{
    const std::size_t needed = kind == CatalogueKind::Classic ? kClassicEntries : kEndlessEntries;
    if (catalogue.size() < needed) {
        return atLine(catalogue.size() * kLinesPerPuzzle - 1,
            "ends after " + std::to_string(catalogue.size()) + " puzzles; the game needs "
                + std::to_string(needed));
    }
    if (kind == CatalogueKind::Classic) {
        return std::nullopt;
    }
    for (int par = kSmallestPar; par <= kGreatestPar; ++par) {
        const bool present = std::any_of(catalogue.begin(), catalogue.begin() + kEndlessEntries,
            [&](const CatalogueEntry& entry) { return entry.par == par; });
        if (!present) {
            return atLine(kEndlessEntries * kLinesPerPuzzle - 1,
                "no puzzle of " + std::to_string(par - 1) + " moves among the first "
                    + std::to_string(kEndlessEntries));
        }
    }
    return std::nullopt;
}

} // namespace veyrand::progress
