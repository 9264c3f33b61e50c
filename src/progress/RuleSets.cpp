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
    // It matches where two greens vanish as well: the gesture tells the two apart.
    rules.emplace_back("GG", "GBG");
    rules.emplace_back("B[YGR]+B", "BB");
    return rules;
}

int highestRuleAt(int level, int stage)
{
    constexpr int kFromThisLevelOnAll = 5;
    if (level == 1) {
        // Stage by stage. There is no stage above 10; it would begin again with one move.
        if (stage >= 3 && stage <= 7) {
            return 2;
        }
        return stage >= 8 && stage <= 10 ? 3 : 1;
    }
    if (level >= kFromThisLevelOnAll) {
        return kMoveCount;
    }
    return level <= 0 ? 1 : level + 2;
}

} // namespace veyrand::progress
