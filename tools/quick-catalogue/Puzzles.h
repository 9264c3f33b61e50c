#pragma once

#include "engine/Analysis.h"
#include "engine/Tree.h"
#include "platform/SeededRandom.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// What the makers of both catalogues share.

namespace veyrand::quick_catalogue {

// One puzzle as the catalogues write it.
struct Puzzle {
    std::string root;
    std::string goal;
    unsigned moves = 0; // of a shortest solution
};

using Puzzles = std::vector<Puzzle>;

// Told how far a catalogue has come.
using Progress = std::function<void(std::size_t done, std::size_t all)>;

// Everything the game's search finds from one line, by the number of moves it takes. The search
// meets the lines in the same order whatever its goal, so this one tree knows the par of every
// puzzle that starts here.
class Derivations {
public:
    Derivations(const std::string& root, engine::SharedRules rules);

    [[nodiscard]] const std::string& root() const { return m_tree->root().theorem(); }

    // The lines that take this many moves, the root apart: it can come up again, but a puzzle that
    // starts solved is none.
    [[nodiscard]] const engine::Nodes& goals(unsigned moves) const;

    // The index of the rule each move of the node's derivation uses, one digit a move.
    [[nodiscard]] std::string ruleSequence(const engine::NodePtr& node) const;

    // How interesting the node's derivation is.
    [[nodiscard]] int score(const engine::NodePtr& node) const;

private:
    std::shared_ptr<const engine::Tree> m_tree;
    engine::Analysis m_analysis;
    std::vector<engine::Nodes> m_goals; // by moves
};

// The moves of a shortest solution under these rules; 0 when the game's search finds none.
[[nodiscard]] unsigned shortestSolution(
    const std::string& root, const std::string& goal, engine::SharedRules rules);

// Every line of a yellow and `fewest` to `most` chips of the given letters.
[[nodiscard]] std::vector<std::string> roots(
    std::string_view letters, std::size_t fewest, std::size_t most);

template <class T> void shuffle(std::vector<T>& items, platform::Random& random)
{
    for (std::size_t left = items.size(); left > 1; --left) {
        std::swap(items[left - 1], items[random.next() % left]);
    }
}

// Three lines a puzzle, no line feed at the end.
[[nodiscard]] std::string text(const Puzzles& puzzles);

} // namespace veyrand::quick_catalogue
