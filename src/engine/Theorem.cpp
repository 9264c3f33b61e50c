#include "engine/Theorem.h"

#include "engine/Regex.h"
#include "engine/Rule.h"

namespace veyrand::engine {

const std::string& Theorem::theorem() const
{
    static const std::string kNoText;
    return m_theorem ? *m_theorem : kNoText;
}

std::optional<std::vector<Range>> Theorem::matchesWithRule(const Rule& rule) const
{
    if (!m_theorem) {
        return std::nullopt;
    }
    const auto length = static_cast<unsigned>(m_theorem->size());
    std::vector<Range> matches;
    unsigned start = 0;
    do {
        const Range match
            = rangeOfRegex(*m_theorem, rule.antecedent(), Range { start, length - start });
        if (match.location == kNotFound) {
            break;
        }
        matches.push_back(match);
        start = match.location + 1; // not behind the match: matches may overlap
    } while (start < length);
    return matches;
}

unsigned Theorem::numberOfMatchesWithRule(const Rule& rule) const
{
    const std::optional<std::vector<Range>> matches = matchesWithRule(rule);
    return matches ? static_cast<unsigned>(matches->size()) : 0;
}

std::optional<Theorem> Theorem::applyRule(const Rule& rule, unsigned matchIndex) const
{
    const std::optional<std::vector<Range>> matches = matchesWithRule(rule);
    if (!matches) {
        return std::nullopt;
    }
    const Range range = matches->at(matchIndex);

    // The matched chips are rewritten as a text of their own, so that `$` in a pattern means their
    // end, not the line's.
    const std::string rewritten = stringByReplacingOccurrencesOfRegex(
        m_theorem->substr(range.location, range.length), rule.antecedent(), rule.consequent());
    std::string result = *m_theorem;
    result.replace(range.location, range.length, rewritten);
    return Theorem(std::move(result));
}

} // namespace veyrand::engine
