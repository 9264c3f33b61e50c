#include "engine/Theorem.h"

#include "engine/Regex.h"

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
    std::vector<Range> matches;
    const auto length = static_cast<unsigned>(m_theorem->size());
    unsigned start = 0;
    do { // an empty line is searched once, too
        const Range match = rangeOfRegex(
            *m_theorem, rule.antecedent(), { .location = start, .length = length - start });
        if (match.location == kNotFound) {
            break;
        }
        matches.push_back(match);
        start = match.location + 1;
    } while (start < length);
    return matches;
}

unsigned Theorem::numberOfMatchesWithRule(const Rule& rule) const
{
    const auto matches = matchesWithRule(rule);
    return matches ? static_cast<unsigned>(matches->size()) : 0;
}

std::optional<Theorem> Theorem::applyRule(const Rule& rule, unsigned matchIndex) const
{
    const auto matches = matchesWithRule(rule);
    if (!matches) {
        return std::nullopt;
    }
    const Range match = matches->at(matchIndex);
    // The matched chips are rewritten as a text of their own, so anchors see its bounds.
    const std::string rewritten = stringByReplacingOccurrencesOfRegex(
        m_theorem->substr(match.location, match.length), rule.antecedent(), rule.consequent());
    std::string line = *m_theorem;
    line.replace(match.location, match.length, rewritten);
    return Theorem(std::move(line));
}

} // namespace veyrand::engine
