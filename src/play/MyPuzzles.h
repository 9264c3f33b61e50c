#pragma once

#include "play/PuzzleCode.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace veyrand::play {

// A puzzle that a player has made or met, and what he calls it.
struct MyPuzzle {
    std::string code;
    std::string name;
    friend bool operator==(const MyPuzzle&, const MyPuzzle&) = default;
};

// The puzzles that a player has saved, in the order in which he did, each once. They are no part of
// a record, and have no results of their own: those go by the code.
class MyPuzzles {
public:
    static constexpr std::size_t kMost = 1000;
    static constexpr std::size_t kLongestName = 32; // letters

    enum class Saving { Saved, Known, Full, NoCode };
    // An empty name stands for the code.
    Saving add(std::string_view code, std::string_view name);
    bool rename(std::string_view code, std::string_view name); // false when there is none
    bool remove(std::string_view code);
    // Both united, as far as there is room: ours first, under our names. One
    // of theirs that only has a number for a name gets the next that is free.
    void join(const MyPuzzles& others);

    [[nodiscard]] const std::vector<MyPuzzle>& all() const { return m_puzzles; }
    [[nodiscard]] const MyPuzzle* of(std::string_view code) const; // null when there is none

    // As a text, a line each, and back. Lines that are not ours, or damaged, are left out, and
    // counted.
    [[nodiscard]] std::vector<std::string> lines() const;
    struct Read;
    [[nodiscard]] static Read read(std::string_view text);

    friend bool operator==(const MyPuzzles&, const MyPuzzles&) = default;

private:
    [[nodiscard]] std::size_t indexOf(std::string_view code) const; // their number for none

    std::vector<MyPuzzle> m_puzzles;
};

struct MyPuzzles::Read {
    MyPuzzles puzzles;
    std::size_t damaged = 0; // lines
};

// The name as it is kept: on one line, without blanks at its ends, and not longer than it may be.
[[nodiscard]] std::string keptName(std::string_view name);

} // namespace veyrand::play
