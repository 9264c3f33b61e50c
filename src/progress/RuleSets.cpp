#include "progress/RuleSets.h"

namespace veyrand::progress {

engine::Rules basicRules()
{
    return {
        { "R$", "RG" },
        { "Y(.*)", "Y$1$1" },
        { "RRR", "G" },
        { "GG", "" },
    };
}

engine::Rules intermediateRules()
{
    engine::Rules rules = basicRules();
    rules.emplace_back("Y(.)(.)", "$2$1Y");
    return rules;
}

engine::Rules advancedRules()
{
    engine::Rules rules = intermediateRules();
    rules.emplace_back("GG", "GBG"); // where two greens vanish as well: the gesture tells them apart
    rules.emplace_back("B[YGR]+B", "BB");
    return rules;
}

} // namespace veyrand::progress
