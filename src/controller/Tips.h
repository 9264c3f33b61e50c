#pragma once

#include "controller/GameContext.h"

#include <string>

namespace veyrand::controller {

class GameController;

// What a tip says about a thing under the pointer, by its key: what a stone does now or why it does
// nothing, what the panel's numbers mean, what the title page's signs stand for. Nothing where
// there is nothing to say. Reads the game and changes nothing.
class Tips {
public:
    explicit Tips(GameController& controller);

    [[nodiscard]] std::string textFor(const std::string& key) const;

private:
    [[nodiscard]] std::string forClick(char letter) const;
    [[nodiscard]] std::string forDrag(char letter) const;
    [[nodiscard]] std::string forChip(unsigned row, unsigned column) const;
    [[nodiscard]] std::string forDelete(unsigned row) const;
    [[nodiscard]] std::string forPar() const;
    [[nodiscard]] std::string forPoints() const;
    [[nodiscard]] std::string forStage() const;
    [[nodiscard]] std::string forHint() const;
    [[nodiscard]] std::string forPar(int par) const;
    [[nodiscard]] std::string forMedal(bool endless) const;

    GameController& m_controller;
    GameContext& m_game;
};

} // namespace veyrand::controller
