#pragma once

#include "controller/GameContext.h"

#include <memory>

namespace veyrand::present {
class InfoLayer;
}

namespace veyrand::controller {

class GameController;

// Opens the pages and notes of the tutorial script by the names of their operations, and greets
// each puzzle with its own.
class Pages {
public:
    explicit Pages(GameController& controller);

    // False, with nothing shown, when there is no such page.
    bool show(const std::string& name);

    // The page on show in the language as it is now.
    void showInNewWords();

    // Greets the puzzle on the board.
    enum class Arrival { Solving, Resuming };
    void showMessageForNewGame(Arrival arrival);

private:
    [[nodiscard]] bool isInForce(int aboveRule) const;
    bool unlockEndlessGame(); // false when it was open already
    [[nodiscard]] Page inWords(const std::string& name) const;
    [[nodiscard]] std::unique_ptr<present::InfoLayer> build(const std::string& name) const;
    [[nodiscard]] std::string filledIn(std::string text) const;
    [[nodiscard]] std::string valueOf(const std::string& mark) const;
    [[nodiscard]] std::string rank() const;

    GameController& m_controller;
    GameContext& m_game;
};

} // namespace veyrand::controller
