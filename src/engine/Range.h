#pragma once

namespace veyrand::engine {

// A stretch of a line: the column of its first chip and how many chips it holds.
struct Range {
    unsigned location = 0;
    unsigned length = 0;
    friend bool operator==(const Range&, const Range&) = default;
};

} // namespace veyrand::engine
