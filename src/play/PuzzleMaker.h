#pragma once

#include "play/PuzzleCode.h"
#include "play/Ways.h"

#include <cstdint>
#include <optional>
#include <random>

namespace veyrand::play {

// Makes puzzles of a wanted par and difficulty by chance: walks of so many moves from random start
// lines, each looked at exactly, until one is what was wanted. One look at a time, so that whoever
// asks may go on with something else between two.
class PuzzleMaker {
public:
    struct Wish {
        unsigned par = 0; // in moves
        unsigned bits = 0;
    };
    struct Made {
        CodedPuzzle puzzle;
        double bits = 0;
        friend bool operator==(const Made&, const Made&) = default;
    };
    static constexpr unsigned kHardestPar = 12;
    static constexpr unsigned kMostLooks = 1500;

    explicit PuzzleMaker(std::uint32_t seed)
        : m_random(seed)
    {
    }

    void begin(const Wish& wish);
    // Looks at one more. False when what was wanted has been found, or after kMostLooks.
    [[nodiscard]] bool look();
    // Of the wanted par, the nearest to the wanted bits; nothing when no walk came to that par.
    [[nodiscard]] const std::optional<Made>& best() const { return m_best; }
    // Whether it is what was wanted: its bits, rounded, are the ones.
    [[nodiscard]] bool isExact() const;

private:
    [[nodiscard]] std::size_t below(std::size_t count);
    [[nodiscard]] engine::PackedLine randomStart();
    [[nodiscard]] std::optional<engine::PackedLine> walkFrom(engine::PackedLine start);
    [[nodiscard]] double missedBy(double bits) const;

    std::mt19937 m_random;
    WaySearch m_search;
    Wish m_wish;
    std::optional<Made> m_best;
    unsigned m_looks = 0;
};

} // namespace veyrand::play
