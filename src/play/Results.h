#pragma once

#include "play/Move.h"
#include "play/PuzzleCode.h"
#include "progress/CalendarDate.h"
#include "progress/Place.h"

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace veyrand::play {

// A puzzle solved: the best that was made of it, and when that was.
struct Result {
    CodedPuzzle puzzle;
    unsigned par = 0; // in moves
    std::vector<Move> moves;
    unsigned hints = 0; // clicks
    progress::CalendarDate solvedOn {};
    std::uint64_t seconds = 0; // that it took; 0: nobody looked at the clock

    [[nodiscard]] unsigned over() const // moves more than par
    {
        const auto count = static_cast<unsigned>(moves.size());
        return count > par ? count - par : 0;
    }
    friend bool operator==(const Result&, const Result&) = default;
};

// Whether the one is better: fewer moves, or as many with fewer hints.
[[nodiscard]] bool isBetter(const Result& a, const Result& b);

// What has been solved, by name: "5-4" for a place of the Classic game, "2026-11-21" for a day's
// puzzle, and a code for any other. Of each the best result is kept. It has nothing to do with the
// player's record, and nothing of it ever comes to points.
class Results {
public:
    // True when it is the first, or better than what was there.
    bool add(const std::string& name, const Result& result);
    // The better of each, of both.
    void join(const Results& others);

    [[nodiscard]] const Result* of(const std::string& name) const; // null when there is none
    [[nodiscard]] const std::map<std::string, Result>& all() const { return m_results; }
    // The days whose puzzle was solved in time.
    [[nodiscard]] std::set<progress::CalendarDate> daysInTime() const;

    // What the player has been told once and need not be told again.
    [[nodiscard]] bool knowsAllMoves() const { return m_knowsAllMoves; }
    void setKnowsAllMoves() { m_knowsAllMoves = true; }

    // As a text, a line each, and back. Lines that are not ours, or damaged, are left out, and
    // counted.
    [[nodiscard]] std::vector<std::string> lines() const;
    struct Read;
    [[nodiscard]] static Read read(std::string_view text);

    friend bool operator==(const Results&, const Results&) = default;

private:
    std::map<std::string, Result> m_results;
    // A day may be solved better later: in time it was all the same.
    std::set<progress::CalendarDate> m_days;
    bool m_knowsAllMoves = false;
};

struct Results::Read {
    Results results;
    std::size_t damaged = 0; // lines
};

// "5-4".
[[nodiscard]] std::string nameOf(const progress::Place& place);

// What the results come to. Puzzles of the Classic game count as solved where it has gone past
// them, whether or not there is a result.
struct Statistics {
    struct Level {
        unsigned solved = 0;
        unsigned atPar = 0;
        friend bool operator==(const Level&, const Level&) = default;
    };
    unsigned solved = 0; // of the Classic game
    unsigned atPar = 0;
    unsigned over = 0; // moves
    unsigned hints = 0;
    std::uint64_t seconds = 0; // of all that were timed
    unsigned daily = 0;
    unsigned others = 0; // own puzzles and codes
    progress::Streak streak {};
    std::array<Level, progress::kLastLevel> levels {};
    std::array<unsigned, 5> byOver {}; // Classic puzzles solved at par, one over, ... four or more
};
[[nodiscard]] Statistics statisticsOf(
    const Results& results, const progress::Place& standing, const progress::CalendarDate& today);

} // namespace veyrand::play
