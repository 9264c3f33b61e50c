#pragma once

#include "controller/SpokenNames.h"

#include <cstdint>
#include <string>
#include <vector>

namespace veyrand::controller {

// Every sentence that is spoken to whoever does not see the board, in the language chosen: one
// function each, and nothing of them is put together anywhere else. Their words are texts under
// "spoken". Outlived by the texts.
class Sentences {
public:
    explicit Sentences(const language::Texts& texts)
        : m_texts(texts)
        , m_names(texts)
    {
    }

    [[nodiscard]] const SpokenNames& names() const { return m_names; }

    // What has happened.
    [[nodiscard]] std::string moveMade(unsigned label) const;
    [[nodiscard]] std::string newLine(unsigned row, const std::string& line) const;
    [[nodiscard]] std::string toPar(int moves) const; // below 0: so many over par
    [[nodiscard]] std::string solved(std::int64_t points, int over) const;
    [[nodiscard]] std::string solvedInPractice(int over) const;
    [[nodiscard]] std::string removed(unsigned lines) const;
    [[nodiscard]] std::string lastLineIs(unsigned row, const std::string& line) const;
    [[nodiscard]] std::string undone() const;
    [[nodiscard]] std::string redone() const;
    [[nodiscard]] std::string goodSoFar() const;
    [[nodiscard]] std::string nothingToHint() const;
    [[nodiscard]] std::string linePlaced() const;
    [[nodiscard]] std::string classicPuzzle(int level, int stage) const;
    [[nodiscard]] std::string endlessPuzzle() const;
    [[nodiscard]] std::string practicePuzzle(const std::string& caption) const;
    [[nodiscard]] std::string puzzle(
        const std::string& goal, const std::string& start, int par) const;
    [[nodiscard]] std::string lifted(char letter, const std::vector<unsigned>& columns) const;
    [[nodiscard]] std::string cannotBeLifted() const;
    [[nodiscard]] std::string hasBeenPutBack() const;
    [[nodiscard]] std::string message(const std::string& title, const std::string& body) const;
    [[nodiscard]] std::string titlePage() const;

    // Answers to a key.
    [[nodiscard]] std::string goalIs(const std::string& line) const;
    [[nodiscard]] std::string difference(const std::string& line, const std::string& goal) const;
    [[nodiscard]] std::string points(std::int64_t points) const;
    [[nodiscard]] std::string parAndMade(int par, int moves) const;
    [[nodiscard]] std::string noPuzzle() const;
    [[nodiscard]] std::string nothingSaid() const;
    [[nodiscard]] std::string choices(const std::vector<std::string>& names) const;
    [[nodiscard]] std::string noChoices() const;

private:
    [[nodiscard]] std::string text(std::string_view id, language::Arguments arguments = {}) const;
    // A text that counts: its form is chosen by the number, which it may say as a word.
    [[nodiscard]] std::string counting(std::string_view id, std::int64_t number) const;

    const language::Texts& m_texts;
    SpokenNames m_names;
};

} // namespace veyrand::controller
