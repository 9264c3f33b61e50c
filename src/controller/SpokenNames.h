#pragma once

#include "language/Texts.h"

#include <string>
#include <string_view>
#include <vector>

namespace veyrand::controller {

// What things on the board are called for whoever does not see them, and what can be done with
// them, in the language chosen. Rows count from 0 as on the board; in words the start line has no
// number and moves are counted from 1. Outlived by the texts.
class SpokenNames {
public:
    explicit SpokenNames(const language::Texts& texts)
        : m_texts(texts)
    {
    }

    [[nodiscard]] std::string chip(char letter) const; // "yellow"
    [[nodiscard]] std::string chips(const std::string& line) const; // "yellow, three reds"
    [[nodiscard]] std::string line(unsigned row, const std::string& line) const;
    [[nodiscard]] std::string goal(const std::string& line) const; // "goal: yellow, red"
    [[nodiscard]] std::string chipInLine(char letter, unsigned row, unsigned column) const;
    [[nodiscard]] std::string chipInGoal(char letter, unsigned column) const;
    [[nodiscard]] std::string removal(unsigned row) const; // "delete line 2"
    [[nodiscard]] std::string hintPieces(const std::vector<std::string>& pieces) const;
    [[nodiscard]] std::string question() const;
    // What a record on the board is called; its own words where it has no name in the texts.
    [[nodiscard]] std::string thing(const std::string& english) const;
    [[nodiscard]] std::string listed(const std::vector<std::string>& parts) const;
    // A small number as a word: read aloud, "3" is now three, now third.
    [[nodiscard]] std::string inWords(std::int64_t number) const;

    // What actions do. The word before a colon is the action's own name.
    [[nodiscard]] std::string clickAction(char letter) const;
    [[nodiscard]] std::string liftAction() const;
    [[nodiscard]] std::string dropAction(char letter) const;
    [[nodiscard]] std::string putBackAction() const;
    [[nodiscard]] std::string pressAction() const;
    [[nodiscard]] std::string removeAction(unsigned lines) const;
    [[nodiscard]] std::string closeAction() const;

private:
    [[nodiscard]] std::string text(std::string_view id, language::Arguments arguments = {}) const;

    const language::Texts& m_texts;
};

} // namespace veyrand::controller
