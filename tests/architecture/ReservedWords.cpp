#include "architecture/ReservedWords.h"

#include <algorithm>
#include <cctype>
#include <optional>
#include <string>
#include <string_view>

namespace veyrand::architecture {

namespace {

// The words are put together here, so that this file passes its own check.
const std::string& shortName()
{
    static const std::string word = std::string("sp") + "ec";
    return word;
}

const std::string& longName()
{
    static const std::string word = shortName() + "ification";
    return word;
}

bool isUpper(char c)
{
    return std::isupper(static_cast<unsigned char>(c)) != 0;
}
bool isLower(char c)
{
    return std::islower(static_cast<unsigned char>(c)) != 0;
}
bool isLetter(char c)
{
    return std::isalpha(static_cast<unsigned char>(c)) != 0;
}
bool isDigit(char c)
{
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

std::string lowerCase(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
        [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return lower;
}

bool startsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

// A class name of the frameworks in question: two capitals in front of a capitalised word.
bool isFrameworkClass(std::string_view word)
{
    if (word.size() < 4 || !std::all_of(word.begin(), word.end(), isLetter)) {
        return false;
    }
    if (startsWith(word, "NS")) {
        return isUpper(word[2]) && isLower(word[3]);
    }
    return startsWith(word, "CA") && isUpper(word[2]) && endsWith(word, "Layer");
}

// "1.2", with whatever after it.
bool startsWithSectionNumber(std::string_view text)
{
    const std::size_t digits = std::min(text.find_first_not_of("0123456789"), text.size());
    return digits > 0 && text.size() > digits + 1 && text[digits] == '.'
        && isDigit(text[digits + 1]);
}

// What is wrong with the word, if anything, given what stands on its line before and after it.
std::optional<std::string> problem(
    std::string_view word, std::string_view before, std::string_view after)
{
    const std::string lower = lowerCase(word);
    if (lower.find(longName()) != std::string::npos) {
        return std::string(word);
    }
    if (lower == shortName()) {
        const std::string lead = lowerCase(before);
        if (endsWith(lead, "the ") || endsWith(lead, "this ") || startsWith(after, ".md")) {
            return std::string(word);
        }
    }
    if (word == "Part" && startsWith(after, " ") && startsWithSectionNumber(after.substr(1))) {
        return "a numbered part";
    }
    return std::nullopt;
}

Findings findingsInLine(
    std::string_view path, std::size_t number, std::string_view line, bool mayNameFrameworks)
{
    Findings findings;
    for (std::size_t start = 0; start < line.size();) {
        if (!isWordCharacter(line[start])) {
            ++start;
            continue;
        }
        std::size_t end = start;
        while (end < line.size() && isWordCharacter(line[end])) {
            ++end;
        }
        const std::string_view word = line.substr(start, end - start);
        if (const auto what = problem(word, line.substr(0, start), line.substr(end))) {
            findings.push_back(finding(path, number, "refers to an outside document: " + *what));
        }
        if (!mayNameFrameworks && isFrameworkClass(word)) {
            findings.push_back(
                finding(path, number, "names a framework class: " + std::string(word)));
        }
        start = end;
    }
    return findings;
}

} // namespace

Findings reservedWordFindings(const SourceFile& file)
{
    const bool mayNameFrameworks = isBelow(file.path, "src/desktop/macos");
    Findings findings = findingsInLine(file.path, 0, file.path, mayNameFrameworks);
    std::size_t number = 0;
    for (const std::string_view line : linesOf(file.text)) {
        const Findings more = findingsInLine(file.path, ++number, line, mayNameFrameworks);
        findings.insert(findings.end(), more.begin(), more.end());
    }
    return findings;
}

} // namespace veyrand::architecture
