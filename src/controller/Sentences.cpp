#include "controller/Sentences.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace veyrand::controller::sentences {

namespace {

// Small numbers are words: read aloud, "3" is now three, now third.
std::string inWords(std::size_t number)
{
    constexpr std::array<const char*, 14> kWords { "no", "one", "two", "three", "four", "five",
        "six", "seven", "eight", "nine", "ten", "eleven", "twelve", "thirteen" };
    return number < kWords.size() ? kWords.at(number) : std::to_string(number);
}

std::string counted(std::size_t number, const char* one, const char* many)
{
    return inWords(number) + ' ' + (number == 1 ? one : many);
}

std::string capital(std::string text)
{
    if (!text.empty() && text[0] >= 'a' && text[0] <= 'z') {
        text[0] = static_cast<char>(text[0] - 'a' + 'A');
    }
    return text;
}

std::string listed(const std::vector<std::string>& parts)
{
    std::string text;
    for (const std::string& part : parts) {
        text += (text.empty() ? "" : ", ") + part;
    }
    return text;
}

std::string place(unsigned column)
{
    return "place " + std::to_string(column + 1);
}

} // namespace

std::string chip(char letter)
{
    switch (letter) {
    case 'Y':
        return "yellow";
    case 'R':
        return "red";
    case 'G':
        return "green";
    case 'B':
        return "blue";
    default:
        return "any chip";
    }
}

std::string chips(const std::string& line)
{
    std::vector<std::string> runs;
    for (std::size_t begin = 0; begin < line.size();) {
        const std::size_t end = std::min(line.find_first_not_of(line[begin], begin), line.size());
        const std::string name = chip(line[begin]);
        runs.push_back(end - begin == 1 ? name : inWords(end - begin) + ' ' + name + 's');
        begin = end;
    }
    return listed(runs);
}

std::string lineName(unsigned row)
{
    return row == 0 ? "start line" : "line " + std::to_string(row);
}

std::string line(unsigned row, const std::string& line)
{
    return lineName(row) + ": " + chips(line);
}

std::string goal(const std::string& line)
{
    return "goal: " + chips(line);
}

std::string chipInLine(char letter, unsigned row, unsigned column)
{
    return chip(letter) + ", " + lineName(row) + ", " + place(column);
}

std::string chipInGoal(char letter, unsigned column)
{
    return chip(letter) + ", goal, " + place(column);
}

std::string removal(unsigned row)
{
    return "delete " + lineName(row);
}

std::string hintPieces(const std::vector<std::string>& pieces)
{
    return "The next line is made of: " + listed(pieces) + '.';
}

std::string question()
{
    return "Continue the game or start a new one?";
}

std::string message(const std::string& title, const std::string& body)
{
    const bool isClosed = title.empty() || title.find_last_of(".!?)") + 1 == title.size();
    return title + (isClosed ? "" : ".") + (title.empty() || body.empty() ? "" : " ") + body;
}

std::string titlePage()
{
    return "Title page.";
}

std::string clickAction(char letter)
{
    switch (letter) {
    case 'Y':
        return "click: doubles what follows";
    case 'R':
        return "click: adds a green at the end";
    case 'G':
        return "click: puts a blue between the two greens";
    default:
        return "click";
    }
}

std::string liftAction()
{
    return "lift";
}

std::string dropAction(char letter)
{
    switch (letter) {
    case 'R':
        return "drop: makes a green of the three reds";
    case 'G':
        return "drop: takes both greens away";
    case 'B':
        return "drop: takes away what lies between the two blues";
    default:
        return "drop: jumps over two chips, which swap places";
    }
}

std::string putBackAction()
{
    return "put back";
}

std::string pressAction()
{
    return "press";
}

std::string removeAction(unsigned lines)
{
    return "press: takes " + counted(lines, "line", "lines") + " back";
}

std::string closeAction()
{
    return "close";
}

std::string moveMade(unsigned label)
{
    return "Move " + std::to_string(label) + '.';
}

std::string newLine(unsigned row, const std::string& line)
{
    return capital(sentences::line(row, line)) + '.';
}

std::string toPar(int moves)
{
    if (moves == 0) {
        return "Par is used up.";
    }
    const auto count = static_cast<std::size_t>(std::abs(moves));
    return capital(counted(count, "move", "moves")) + (moves > 0 ? " to go to par." : " over par.");
}

std::string solved(std::int64_t points, int over)
{
    const auto count = static_cast<std::size_t>(std::abs(over));
    const std::string how = over == 0 ? "at par"
        : over > 0                    ? counted(count, "move", "moves") + " over par"
                                      : counted(count, "move", "moves") + " under par";
    return "Solved " + how + ": " + std::to_string(points) + " points.";
}

std::string removed(unsigned lines)
{
    return capital(counted(lines, "line", "lines")) + " taken back.";
}

std::string lastLineIs(unsigned row, const std::string& line)
{
    return "The last is " + sentences::line(row, line) + '.';
}

std::string undone()
{
    return "Undone.";
}

std::string redone()
{
    return "Redone.";
}

std::string goodSoFar()
{
    return "Good so far.";
}

std::string nothingToHint()
{
    return "There is nothing to hint at.";
}

std::string linePlaced()
{
    return "The hint makes the line.";
}

std::string classicPuzzle(int level, int stage)
{
    return "Puzzle " + std::to_string(level) + '-' + std::to_string(stage) + '.';
}

std::string endlessPuzzle()
{
    return "Endless puzzle.";
}

std::string puzzle(const std::string& goal, const std::string& start, int par)
{
    return capital(sentences::goal(goal)) + ". " + capital(line(0, start)) + ". Par is "
        + counted(static_cast<std::size_t>(std::max(par, 0)), "move", "moves") + '.';
}

std::string lifted(char letter, const std::vector<unsigned>& columns)
{
    std::vector<std::string> places;
    for (const unsigned column : columns) {
        places.push_back(place(column));
    }
    return capital(chip(letter)) + " is lifted. It can be dropped on " + listed(places) + '.';
}

std::string cannotBeLifted()
{
    return "It cannot be lifted now.";
}

std::string hasBeenPutBack()
{
    return "Put back.";
}

std::string difference(const std::string& line, const std::string& goal)
{
    if (line == goal) {
        return "The line is the goal.";
    }
    const std::size_t shorter = std::min(line.size(), goal.size());
    std::size_t same = 0;
    while (same < shorter && line[same] == goal[same]) {
        ++same;
    }
    std::string text = same == 0 ? "The first chips differ."
                                 : "The first " + (same == 1 ? std::string() : inWords(same) + ' ')
            + (same == 1 ? "chip is" : "chips are") + " the same.";
    const auto rest = [same](const std::string& chipsOfIt) {
        return same < chipsOfIt.size() ? chips(chipsOfIt.substr(same))
                                       : std::string("nothing more");
    };
    text += " Then the line has " + rest(line) + "; the goal has " + rest(goal) + '.';
    return text;
}

std::string points(std::int64_t points, int par, int moves)
{
    return std::to_string(points) + (points == 1 ? " point. " : " points. ") + "Par is "
        + counted(static_cast<std::size_t>(std::max(par, 0)), "move", "moves") + "; you have made "
        + (moves <= 0 ? "none" : inWords(static_cast<std::size_t>(moves))) + '.';
}

std::string noPuzzle()
{
    return "No puzzle is in play.";
}

std::string nothingSaid()
{
    return "Nothing has been said yet.";
}

std::string choices(const std::vector<std::string>& names)
{
    return "Here can be activated: " + listed(names) + '.';
}

std::string noChoices()
{
    return "Nothing can be activated here now.";
}

} // namespace veyrand::controller::sentences
