#include "progress/Catalogue.h"

#include <array>
#include <charconv>

namespace veyrand::progress {

namespace {

constexpr std::size_t kLinesPerEntry = 3;
constexpr std::size_t kMostChips = 12;
constexpr int kSmallestPar = 2; // in lines
constexpr int kGreatestPar = 12;

std::vector<std::string_view> splitAtLineFeeds(std::string_view text)
{
    std::vector<std::string_view> lines;
    std::size_t start = 0;
    for (std::size_t end = text.find('\n'); end != std::string_view::npos;
         end = text.find('\n', start)) {
        lines.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    lines.push_back(text.substr(start));
    return lines;
}

std::optional<int> decimal(std::string_view text)
{
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    return whole ? std::optional(value) : std::nullopt;
}

// The text of a UTF-16 file whose letters all fit one byte; nothing for anything else.
std::optional<std::string> textOfUtf16(std::string_view bytes)
{
    const bool littleEndian = bytes.substr(0, 2) == "\xFF\xFE";
    if ((!littleEndian && bytes.substr(0, 2) != "\xFE\xFF") || bytes.size() % 2 != 0) {
        return std::nullopt;
    }
    std::string text;
    text.reserve(bytes.size() / 2);
    for (std::size_t i = 2; i < bytes.size(); i += 2) {
        const char low = littleEndian ? bytes[i] : bytes[i + 1];
        const char high = littleEndian ? bytes[i + 1] : bytes[i];
        if (high != '\0') {
            return std::nullopt;
        }
        text.push_back(low);
    }
    return text;
}

std::optional<std::string> lineFault(const std::string& line, std::size_t entry)
{
    if (line.empty() || line.size() > kMostChips
        || line.find_first_not_of("YRGB") != std::string::npos) {
        return "puzzle " + std::to_string(entry) + ": \"" + line
            + "\" is not a line of 1 to 12 chips Y, R, G, B";
    }
    return std::nullopt;
}

std::optional<std::string> missingPar(const Catalogue& catalogue)
{
    std::array<bool, kGreatestPar + 1> present {};
    for (std::size_t i = 0; i < kEndlessEntries; ++i) {
        present.at(static_cast<std::size_t>(catalogue[i].par)) = true;
    }
    for (int par = kSmallestPar; par <= kGreatestPar; ++par) {
        if (!present.at(static_cast<std::size_t>(par))) {
            return "no puzzle of par " + std::to_string(par - 1) + " among the first "
                + std::to_string(kEndlessEntries);
        }
    }
    return std::nullopt;
}

} // namespace

ParsedCatalogue parseCatalogue(std::string_view utf16Bytes)
{
    const auto text = textOfUtf16(utf16Bytes);
    if (!text) {
        return { {}, "not UTF-16 text of plain letters with a byte-order mark" };
    }
    return parseCatalogueText(*text);
}

ParsedCatalogue parseCatalogueText(std::string_view text)
{
    const auto lines = splitAtLineFeeds(text);
    if (lines.size() % kLinesPerEntry != 0) {
        return { {},
            std::to_string(lines.size())
                + " lines, not a multiple of three (a line feed at the end counts as a line)" };
    }
    ParsedCatalogue parsed;
    for (std::size_t i = 0; i < lines.size(); i += kLinesPerEntry) {
        const auto moves = decimal(lines[i + 2]);
        if (!moves) {
            return { {}, "line " + std::to_string(i + kLinesPerEntry) + " is not a number" };
        }
        parsed.entries.push_back({ std::string(lines[i]), std::string(lines[i + 1]), *moves + 1 });
    }
    return parsed;
}

std::string catalogueBytes(std::string_view text)
{
    std::string bytes = "\xFF\xFE";
    for (const char letter : text) {
        bytes.push_back(letter);
        bytes.push_back('\0');
    }
    return bytes;
}

std::optional<std::string> catalogueFault(const Catalogue& catalogue, CatalogueKind kind)
{
    const std::size_t needed = kind == CatalogueKind::Classic ? kClassicEntries : kEndlessEntries;
    if (catalogue.size() < needed) {
        return std::to_string(catalogue.size()) + " puzzles, at least " + std::to_string(needed)
            + " are needed";
    }
    for (std::size_t i = 0; i < catalogue.size(); ++i) {
        for (const std::string* line : { &catalogue[i].root, &catalogue[i].goal }) {
            if (auto fault = lineFault(*line, i)) {
                return fault;
            }
        }
        if (catalogue[i].par < kSmallestPar || catalogue[i].par > kGreatestPar) {
            return "puzzle " + std::to_string(i) + ": par " + std::to_string(catalogue[i].par - 1)
                + " is not 1 to 11";
        }
    }
    return kind == CatalogueKind::Endless ? missingPar(catalogue) : std::nullopt;
}

} // namespace veyrand::progress
