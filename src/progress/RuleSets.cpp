#include "progress/RuleSets.h"

namespace veyrand::progress {

engine::Rules basicRules()
{
    return {
        { "R$", "RG" }, // a final red gains a green
        { "Y(.*)", "Y$1$1" }, // everything after a yellow is doubled
        { "RRR", "G" }, // three reds become one green
        { "GG", "" }, // two greens vanish
    };
}

engine::Rules intermediateRules()
{
    engine::Rules rules = basicRules();
    rules.emplace_back("Y(.)(.)", "$2$1Y"); // the yellow jumps over two chips, which swap places
    return rules;
}

engine::Rules advancedRules()
{
    engine::Rules rules = intermediateRules();
    rules.emplace_back("GG", "GBG"); // a blue goes between two greens
    rules.emplace_back("B[YGR]+B", "BB"); // everything between two blues is dropped
    return rules;
}

int highestRuleAt(int level, int stage)
{
    if (level <= 0) {
        return 1;
    }
    if (level == 1) {
        if (stage <= 2 || stage > 10) {
            return 1;
        }
        return stage <= 7 ? 2 : 3;
    }
    return level >= 5 ? kMoveCount : level + 2;
}

} // namespace veyrand::progress
