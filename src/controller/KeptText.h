#pragma once

#include "controller/GameContext.h"
#include "controller/InTheWay.h"

#include <string>
#include <vector>

namespace veyrand::controller {

class GameController;

// A small file of the player's beside the unfinished puzzles, read once and written whole. What is
// wrong with it is told, and a file that cannot be understood is kept aside before another takes
// its place. Without a journal there is none.
class KeptText {
public:
    // "results": the end of the file's name, and what the player is told of.
    KeptText(GameController& controller, std::string what);

    // Empty when there is none.
    [[nodiscard]] std::string read();
    // So many lines were not understood, or the file could not be read at all. True when it has
    // been put aside, and must be written again.
    [[nodiscard]] bool putAside(std::size_t damagedLines);
    // A fault is told once, until a write succeeds.
    void write(const std::vector<std::string>& lines);

private:
    [[nodiscard]] std::string fileName() const;

    GameController& m_controller;
    GameContext& m_game;
    std::string m_what;
    InTheWay m_inTheWay;
    std::string m_fault; // of the last reading
    bool m_mayWrite = true;
};

} // namespace veyrand::controller
