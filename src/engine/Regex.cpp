#include "engine/Regex.h"

#include <unicode/uregex.h>

#include <cstddef>
#include <memory>
#include <unordered_map>

namespace veyrand::engine {

namespace {

struct CloseRegex {
    void operator()(URegularExpression* regex) const { uregex_close(regex); }
};
using CompiledRegex = std::unique_ptr<URegularExpression, CloseRegex>;

std::u16string widened(std::string_view text)
{
    std::u16string wide;
    wide.reserve(text.size());
    for (const char c : text) {
        wide.push_back(static_cast<unsigned char>(c));
    }
    return wide;
}

// What no byte can hold (a template may spell any character as an escape) becomes a question mark.
std::string narrowed(std::u16string_view wide)
{
    std::string text;
    text.reserve(wide.size());
    for (const char16_t c : wide) {
        text.push_back(c < 0x100 ? static_cast<char>(c) : '?');
    }
    return text;
}

std::int32_t length(const std::u16string& text)
{
    return static_cast<std::int32_t>(text.size());
}

CompiledRegex compiled(std::string_view pattern)
{
    const std::u16string wide = widened(pattern);
    UErrorCode status = U_ZERO_ERROR;
    CompiledRegex regex(uregex_open(wide.data(), length(wide), 0, nullptr, &status));
    if (U_FAILURE(status) != 0) {
        return nullptr;
    }
    return regex;
}

// The game knows a dozen patterns; the bound only keeps a designer's session from growing for ever.
constexpr std::size_t kMostCompiledPatterns = 256;

// Null for a pattern that does not compile. A compiled pattern carries the text it searches, hence
// one cache a thread.
URegularExpression* cachedRegex(std::string_view pattern)
{
    thread_local std::unordered_map<std::string, CompiledRegex> cache;
    const std::string key(pattern);
    if (const auto found = cache.find(key); found != cache.end()) {
        return found->second.get();
    }
    if (cache.size() >= kMostCompiledPatterns) {
        cache.clear();
    }
    return cache.emplace(key, compiled(pattern)).first->second.get();
}

// Points a compiled pattern at a text, which must outlive the search. That cannot fail.
void setText(URegularExpression* regex, const std::u16string& text)
{
    UErrorCode status = U_ZERO_ERROR;
    uregex_setText(regex, text.data(), length(text), &status);
}

// ICU calls a template malformed when it names a group that the pattern has not got; here such a
// group stands for nothing. Only the first digit after a `$` decides: further ones are taken into
// the number only as long as such a group exists.
std::string withoutAbsentGroups(std::string_view replacement, int groupCount)
{
    std::string result;
    for (std::size_t i = 0; i < replacement.size(); ++i) {
        const char c = replacement[i];
        const bool hasNext = i + 1 < replacement.size();
        if (c == '\\' && hasNext) {
            result += c;
            result += replacement[++i];
        } else if (c == '$' && hasNext && replacement[i + 1] >= '0' && replacement[i + 1] <= '9'
            && replacement[i + 1] - '0' > groupCount) {
            ++i;
        } else {
            result += c;
        }
    }
    return result;
}

} // namespace

bool isRegexValid(std::string_view pattern)
{
    return cachedRegex(pattern) != nullptr;
}

Range rangeOfRegex(std::string_view text, std::string_view pattern)
{
    return rangeOfRegex(text, pattern, Range { 0, static_cast<unsigned>(text.size()) });
}

Range rangeOfRegex(std::string_view text, std::string_view pattern, Range range)
{
    URegularExpression* regex = cachedRegex(pattern);
    if (regex == nullptr) {
        return { kNotFound, 0 };
    }
    const std::u16string wide = widened(text.substr(range.location, range.length));
    setText(regex, wide);
    UErrorCode status = U_ZERO_ERROR;
    // A search that needs more memory than ICU allows itself fails, and finds nothing either.
    if (uregex_find(regex, 0, &status) == 0) {
        return { kNotFound, 0 };
    }
    const std::int32_t start = uregex_start(regex, 0, &status);
    const std::int32_t end = uregex_end(regex, 0, &status);
    return Range { range.location + static_cast<unsigned>(start),
        static_cast<unsigned>(end - start) };
}

std::string stringByReplacingOccurrencesOfRegex(
    std::string_view text, std::string_view pattern, std::string_view replacement)
{
    URegularExpression* regex = cachedRegex(pattern);
    if (regex == nullptr) {
        return std::string(text);
    }
    const std::u16string wide = widened(text);
    setText(regex, wide);
    UErrorCode status = U_ZERO_ERROR;
    const std::int32_t groups = uregex_groupCount(regex, &status);
    const std::u16string wideReplacement = widened(withoutAbsentGroups(replacement, groups));

    // The first call only measures: it is expected to fail for want of room.
    const std::int32_t needed = uregex_replaceAll(
        regex, wideReplacement.data(), length(wideReplacement), nullptr, 0, &status);
    if (status != U_BUFFER_OVERFLOW_ERROR && U_FAILURE(status) != 0) {
        return std::string(text);
    }
    std::u16string result(static_cast<std::size_t>(needed) + 1, u'\0');
    status = U_ZERO_ERROR;
    uregex_replaceAll(regex, wideReplacement.data(), length(wideReplacement), result.data(),
        length(result), &status);
    result.pop_back();
    return narrowed(result);
}

bool isMatchedByRegex(std::string_view text, std::string_view pattern)
{
    return rangeOfRegex(text, pattern).location != kNotFound;
}

} // namespace veyrand::engine
