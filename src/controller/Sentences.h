#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Every sentence that is spoken to whoever does not see the board, and every name a reader gives to
// what lies on it: one function each, and nothing of them is put together anywhere else. Rows count
// from 0 as on the board; in words the start line has no number and moves are counted from 1.
namespace veyrand::controller::sentences {

// --- Names

[[nodiscard]] std::string chip(char letter); // "yellow"
[[nodiscard]] std::string chips(const std::string& line); // "yellow, three reds"
[[nodiscard]] std::string lineName(unsigned row); // "start line", "line 3"
[[nodiscard]] std::string line(unsigned row, const std::string& line); // "line 3: yellow, red"
[[nodiscard]] std::string goal(const std::string& line); // "goal: yellow, red"
[[nodiscard]] std::string chipInLine(char letter, unsigned row, unsigned column);
[[nodiscard]] std::string chipInGoal(char letter, unsigned column);
[[nodiscard]] std::string removal(unsigned row); // "delete line 2"
[[nodiscard]] std::string hintPieces(const std::vector<std::string>& pieces);
[[nodiscard]] std::string question();
[[nodiscard]] std::string message(const std::string& title, const std::string& body);
[[nodiscard]] std::string titlePage();

// --- Actions. The word before a colon is the action's own name.

[[nodiscard]] std::string clickAction(char letter);
[[nodiscard]] std::string liftAction();
[[nodiscard]] std::string dropAction(char letter);
[[nodiscard]] std::string putBackAction();
[[nodiscard]] std::string pressAction();
[[nodiscard]] std::string removeAction(unsigned lines);
[[nodiscard]] std::string closeAction();

// --- What has happened

[[nodiscard]] std::string moveMade(unsigned label);
[[nodiscard]] std::string newLine(unsigned row, const std::string& line);
[[nodiscard]] std::string toPar(int moves); // below 0: so many over par
[[nodiscard]] std::string solved(std::int64_t points, int over);
[[nodiscard]] std::string removed(unsigned lines);
[[nodiscard]] std::string lastLineIs(unsigned row, const std::string& line);
[[nodiscard]] std::string undone();
[[nodiscard]] std::string redone();
[[nodiscard]] std::string goodSoFar();
[[nodiscard]] std::string nothingToHint();
[[nodiscard]] std::string linePlaced();
[[nodiscard]] std::string classicPuzzle(int level, int stage);
[[nodiscard]] std::string endlessPuzzle();
[[nodiscard]] std::string puzzle(const std::string& goal, const std::string& start, int par);
[[nodiscard]] std::string lifted(char letter, const std::vector<unsigned>& columns);
[[nodiscard]] std::string cannotBeLifted();
[[nodiscard]] std::string hasBeenPutBack();

// --- Answers to a key

[[nodiscard]] std::string difference(const std::string& line, const std::string& goal);
[[nodiscard]] std::string points(std::int64_t points, int par, int moves);
[[nodiscard]] std::string noPuzzle();
[[nodiscard]] std::string nothingSaid();
[[nodiscard]] std::string choices(const std::vector<std::string>& names);
[[nodiscard]] std::string noChoices();

} // namespace veyrand::controller::sentences
