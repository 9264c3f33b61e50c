#include "engine/Regex.h"

#include <unicode/uregex.h>

#include <map>
#include <memory>
#include <utility>

namespace veyrand::engine {

namespace {

struct CloseRegex {
    void operator()(URegularExpression* regex) const { uregex_close(regex); }
};
using CompiledRegex = std::unique_ptr<URegularExpression, CloseRegex>;

// One letter a byte becomes one UTF-16 unit, so that ICU's positions are letters.
std::u16string widen(const std::string& text)
{
    std::u16string wide;
    wide.reserve(text.size());
    for (const char letter : text) {
        wide.push_back(static_cast<char16_t>(static_cast<unsigned char>(letter)));
    }
    return wide;
}

std::string narrow(const std::u16string& wide)
{
    std::string text;
    text.reserve(wide.size());
    for (const char16_t unit : wide) {
        text.push_back(static_cast<char>(unit));
    }
    return text;
}

CompiledRegex compile(const std::string& pattern)
{
    const std::u16string wide = widen(pattern);
    UErrorCode status = U_ZERO_ERROR;
    CompiledRegex regex(
        uregex_open(wide.data(), static_cast<int32_t>(wide.size()), 0, nullptr, &status));
    return U_SUCCESS(status) != 0 ? std::move(regex) : nullptr;
}

// The game has about twenty patterns in all, so nothing is ever evicted. Null for an invalid
// pattern.
URegularExpression* compiled(const std::string& pattern)
{
    static std::map<std::string, CompiledRegex> cache;
    const auto found = cache.find(pattern);
    return found != cache.end() ? found->second.get()
                                : cache.emplace(pattern, compile(pattern)).first->second.get();
}

// A compiled pattern set to a text for the length of one operation.
class Search {
public:
    Search(const std::string& text, const std::string& pattern)
        : m_text(widen(text))
        , m_regex(compiled(pattern))
    {
        if (m_regex != nullptr) {
            uregex_setText(m_regex, m_text.data(), static_cast<int32_t>(m_text.size()), &m_status);
        }
    }

    Range first()
    {
        if (m_regex == nullptr || uregex_find(m_regex, 0, &m_status) == 0) {
            return { .location = kNotFound, .length = 0 };
        }
        const auto start = static_cast<unsigned>(uregex_start(m_regex, 0, &m_status));
        const auto end = static_cast<unsigned>(uregex_end(m_regex, 0, &m_status));
        return { .location = start, .length = end - start };
    }

    std::u16string replaceAll(const std::u16string& replacement)
    {
        if (m_regex == nullptr) {
            return m_text;
        }
        const auto replacementLength = static_cast<int32_t>(replacement.size());
        const int32_t length = uregex_replaceAll(
            m_regex, replacement.data(), replacementLength, nullptr, 0, &m_status);
        m_status = U_ZERO_ERROR; // the call without a buffer reports an overflow with the length
        std::u16string result(static_cast<std::size_t>(length), u'\0');
        uregex_replaceAll(
            m_regex, replacement.data(), replacementLength, result.data(), length, &m_status);
        return result;
    }

private:
    std::u16string m_text;
    URegularExpression* m_regex;
    UErrorCode m_status = U_ZERO_ERROR;
};

} // namespace

bool isRegexValid(const std::string& pattern)
{
    return compiled(pattern) != nullptr;
}

Range rangeOfRegex(const std::string& text, const std::string& pattern)
{
    return Search(text, pattern).first();
}

Range rangeOfRegex(const std::string& text, const std::string& pattern, Range range)
{
    Range match = Search(text.substr(range.location, range.length), pattern).first();
    if (match.location != kNotFound) {
        match.location += range.location;
    }
    return match;
}

std::string stringByReplacingOccurrencesOfRegex(
    const std::string& text, const std::string& pattern, const std::string& replacement)
{
    return narrow(Search(text, pattern).replaceAll(widen(replacement)));
}

bool isMatchedByRegex(const std::string& text, const std::string& pattern)
{
    return rangeOfRegex(text, pattern).location != kNotFound;
}

} // namespace veyrand::engine
