#pragma once

#include <limits>

namespace veyrand::engine {

// What a build answers when it ends without meeting the goal: all bits one.
inline constexpr unsigned kGoalNotFound = std::numeric_limits<unsigned>::max();

// The bounds of one build.
struct TreeLimits {
    unsigned children = 0; // examined children, kept or dropped
    unsigned theoremLength = 0; // chips a kept line may have
    unsigned path = 100; // elements a path may have; tested at every hundredth node only
};

} // namespace veyrand::engine
