#pragma once

#include "controller/KeptText.h"
#include "play/MyPuzzles.h"

namespace veyrand::controller {

// Keeps the puzzles that the player has saved, in a file of their own beside the results.
class PuzzleShelf {
public:
    explicit PuzzleShelf(GameController& controller);

    // Before anything is shown.
    void load();

    [[nodiscard]] const play::MyPuzzles& puzzles() const { return m_puzzles; }
    // Under a name that says which one it is: "Puzzle 3".
    play::MyPuzzles::Saving add(const std::string& code);
    void rename(const std::string& code, const std::string& name);
    void remove(const std::string& code);
    void replace(const play::MyPuzzles& others);

    // What the editor holds, for as long as the game runs.
    [[nodiscard]] const play::CodedPuzzle& draft() const { return m_draft; }
    void setDraft(const play::CodedPuzzle& draft) { m_draft = draft; }

private:
    void save();

    GameContext& m_game;
    KeptText m_file;
    play::MyPuzzles m_puzzles;
    play::CodedPuzzle m_draft;
};

} // namespace veyrand::controller
