#pragma once

#include "catalogue/ShortestWays.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace veyrand::catalogue {

// Things that happen to chips on the way from the start to the goal, by which one puzzle is told
// from another when both use the same moves. Every chip is followed from where it comes from (the
// start, a green put at the end, three reds, a split) through each doubling and jump to where it
// ends.
enum class Idea {
    CapDoubled, // a green put at the end is doubled
    CapSpent, // ... vanishes in a pair
    CapSplit, // ... holds one side of a blue
    CapKept, // ... stands in the goal
    TwoCaps,
    SeamPair, // two greens vanish that met where a doubling joined its halves
    SeamTriple, // three reds become a green there
    SeamSplit, // a blue comes to stand there
    SelfPair, // a green vanishes with its own copy
    SelfTriple, // three reds that all were one
    TripleSpent, // a green made of reds vanishes in a pair
    TripleDoubled,
    TripleSplit,
    TripleKept,
    TwoTriples,
    ClosedGap, // chips meet because those between them have vanished
    Parked, // a doubling passes over chips that the yellow has left behind
    JumpMeets, // chips meet because the yellow has turned them round
    JumpedTwice, // the yellow goes on and on
    JumpedFirst,
    JumpedLast,
    BlueDoubled,
    TwoSplits,
    SplitSpent, // a green that held a blue vanishes afterwards
    OwnDouble, // everything between a blue and its own copy is dropped
    MadeBluesMeet, // two blues meet that splits have made
    CopiesSwallowed, // a doubling's copies lie between
    GivenSwallowed, // chips of the start lie between
    MadeSwallowed, // greens lie between that were put there or made of reds
    YellowSwallowed,
    TwoDrops,
    TwoDoublings,
    ThreeDoublings,
    Detour, // a line outgrows both ends by four chips
    StartSpent, // of the start's chips only the yellow is left
    LineEmptied, // nothing is left behind the yellow for a while
};
inline constexpr unsigned kIdeas = 36;

// A set of them, a bit each.
using IdeaSet = std::uint64_t;

[[nodiscard]] inline constexpr IdeaSet only(Idea idea)
{
    return IdeaSet { 1 } << static_cast<unsigned>(idea);
}

// A few words: "a cap is doubled".
[[nodiscard]] std::string nameOf(Idea idea);
[[nodiscard]] std::vector<std::string> namesOf(IdeaSet ideas);

// The ideas without which no shortest solution does. Of a puzzle with thousands of ways to make its
// moves, the first thousands.
[[nodiscard]] IdeaSet ideasOf(const ShortestWays& ways);

} // namespace veyrand::catalogue
