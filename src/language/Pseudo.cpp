#include "language/Pseudo.h"

#include <algorithm>
#include <array>
#include <utility>

namespace veyrand::language {

namespace {

constexpr std::array<std::pair<char, std::string_view>, 22> kAccents { { { 'a', "á" }, { 'c', "ç" },
    { 'd', "ď" }, { 'e', "é" }, { 'g', "ğ" }, { 'i', "í" }, { 'l', "ł" }, { 'n', "ñ" },
    { 'o', "ö" }, { 'r', "ř" }, { 's', "š" }, { 't', "ť" }, { 'u', "ü" }, { 'y', "ý" },
    { 'z', "ž" }, { 'A', "Ä" }, { 'C', "Ç" }, { 'E', "É" }, { 'N', "Ñ" }, { 'O', "Ö" },
    { 'S', "Š" }, { 'U', "Ü" } } };
constexpr std::string_view kVowels = "aeiouy";

std::string_view accented(const char& letter)
{
    const auto* const found = std::find_if(kAccents.begin(), kAccents.end(),
        [letter](const auto& pair) { return pair.first == letter; });
    return found != kAccents.end() ? found->second : std::string_view(&letter, 1);
}

// How much of the text's beginning is to stay as it is.
std::size_t untouched(std::string_view text)
{
    const auto upTo = [text](char end) {
        const std::size_t at = text.find(end);
        return at == std::string_view::npos ? text.size() : at + 1;
    };
    switch (text.front()) {
    case '{':
        return upTo('}');
    case '<':
        return upTo('>');
    case '&':
    case '%':
        return std::min<std::size_t>(2, text.size());
    default:
        return 0;
    }
}

} // namespace

std::string pseudo(std::string_view english)
{
    if (english.empty() || english.find_first_not_of(' ') == std::string_view::npos) {
        return std::string(english);
    }
    std::string text = "[";
    int missing = 0; // letters by which the text is still to grow, in tenths
    while (!english.empty()) {
        if (const std::size_t kept = untouched(english); kept > 0) {
            text += english.substr(0, kept);
            english.remove_prefix(kept);
            continue;
        }
        const std::string_view letter = accented(english.front());
        text += letter;
        missing += 4;
        if (kVowels.find(english.front()) != std::string_view::npos) {
            text += letter;
            missing -= 10;
        }
        english.remove_prefix(1);
    }
    for (bool first = true; missing >= 10; missing -= 10) {
        text += first ? " ñ" : "ñ";
        first = false;
    }
    return text + ']';
}

} // namespace veyrand::language
