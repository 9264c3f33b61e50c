#include "Measure.h"
#include "Measurements.h"
#include "engine/HintHelper.h"
#include "progress/RuleSets.h"
#include "reference/ReferenceSearch.h"

#include <iostream>
#include <memory>

namespace veyrand::bench {

namespace {

using engine::Theorem;

constexpr double kFrameMs = 1000.0 / 60.0;

// A full board of different lines, each with a whole search before it, and a goal out of reach.
std::shared_ptr<engine::Proof> worstProof(const engine::SharedRules& rules)
{
    auto proof = std::make_shared<engine::Proof>(Theorem("YR"), Theorem("B"), rules);
    const engine::Tree tree(Theorem("YR"), rules, 2000, 12);
    for (std::size_t i = 1; proof->lines().size() < engine::kMostLines; ++i) {
        engine::Tree from(tree.lineAt(i), rules, 0, 0);
        from.makeTreeOfDepth(engine::kSolutionLimits, nullptr);
        if (from.examined() == engine::kSolutionLimits.children) {
            proof->appendLine(tree.lineAt(i));
        }
    }
    return proof;
}

std::shared_ptr<engine::Proof> freshCopy(const engine::Proof& proof)
{
    auto copy = std::make_shared<engine::Proof>(proof.root(), proof.goal(), proof.sharedRules());
    for (std::size_t i = 1; i < proof.lines().size(); ++i) {
        copy->appendLine(proof.lines()[i]);
    }
    return copy;
}

unsigned requestHint(const std::shared_ptr<const engine::Proof>& proof)
{
    return engine::HintHelper(proof).lastGoodRow();
}

} // namespace

void measureHint(Results& results)
{
    const auto rules = std::make_shared<const engine::Rules>(progress::advancedRules());
    const std::shared_ptr<engine::Proof> proof = worstProof(rules);
    constexpr int kFastRuns = 100;
    constexpr int kRepeatRuns = 1000;
    constexpr int kReferenceRuns = 2;

    Results::heading("A hint at its worst (13 lines, 13 searches that find nothing)");
    const double fast = leastSeconds(kFastRuns, [&] {
        // A new proof remembers no trees; making it costs next to nothing.
        requestHint(freshCopy(*proof));
    });
    requestHint(proof);
    const double again = leastSeconds(kRepeatRuns, [&] { requestHint(proof); });
    const double slow = leastSeconds(kReferenceRuns,
        [&] { (void)reference::lastGoodRow(proof->lines(), proof->goal(), *rules); });
    results.add("hint.reference.ms", slow * 1e3, "ms");
    results.add("hint.worst.ms", fast * 1e3, "ms");
    results.add("hint.worst.ratio", slow / fast, "times", "wanted: at least 100");
    results.add(
        "hint.worst.frame_share", fast * 1e3 / kFrameMs * 100, "%", "of a frame of 16.7 ms");
    results.add("hint.repeated.ms", again * 1e3, "ms", "the same board asked again");
}

} // namespace veyrand::bench
