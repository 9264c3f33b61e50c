#include "engine/Rule.h"

#include "engine/Regex.h"

namespace veyrand::engine {

namespace {

std::string validOrEmpty(const std::string& pattern)
{
    return isRegexValid(pattern) ? pattern : std::string();
}

} // namespace

Rule::Rule(const std::string& antecedent, const std::string& consequent)
    : m_antecedent(validOrEmpty(antecedent))
    , m_consequent(validOrEmpty(consequent))
{
}

} // namespace veyrand::engine
