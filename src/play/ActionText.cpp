#include "play/ActionText.h"

#include <charconv>
#include <vector>

namespace veyrand::play {

namespace {

constexpr std::string_view kChips = "YRGB";

// The words of a line. Whatever is not as print writes it (two blanks, a sign, leading zeros) is
// found out by printing what was understood.
std::vector<std::string_view> wordsOf(std::string_view text)
{
    std::vector<std::string_view> words;
    for (;;) {
        const std::size_t end = text.find(' ');
        words.push_back(text.substr(0, end));
        if (end == std::string_view::npos) {
            return words;
        }
        text.remove_prefix(end + 1);
    }
}

template <class Number> bool read(std::string_view word, Number& number)
{
    const char* const end = word.data() + word.size();
    const auto [stop, fault] = std::from_chars(word.data(), end, number);
    return fault == std::errc() && stop == end;
}

bool readChips(std::string_view word, std::string& chips)
{
    chips = word;
    return !word.empty() && word.find_first_not_of(kChips) == std::string_view::npos;
}

// "5-4", or "endless".
bool readPlace(std::string_view word, Puzzle& puzzle)
{
    if (word == "endless") {
        puzzle.mode = progress::Mode::Endless;
        return true;
    }
    const std::size_t dash = word.find('-', 1); // a first one would be a sign
    return dash != std::string_view::npos && read(word.substr(0, dash), puzzle.place.level)
        && read(word.substr(dash + 1), puzzle.place.stage);
}

std::optional<Action> puzzleOf(const std::vector<std::string_view>& words)
{
    Puzzle puzzle;
    const bool whole = words.size() == 7 && readPlace(words[1], puzzle)
        && readChips(words[2], puzzle.root) && readChips(words[3], puzzle.goal)
        && read(words[4], puzzle.par) && read(words[5], puzzle.saved)
        && read(words[6], puzzle.spent);
    return whole ? std::optional<Action>(std::move(puzzle)) : std::nullopt;
}

std::optional<Action> hintOf(const std::vector<std::string_view>& words)
{
    const std::string_view kind = words.size() > 1 ? words[1] : std::string_view();
    Hint hint;
    if (kind == "good" && words.size() == 2) {
        hint.kind = Hint::Kind::Good;
    } else if (kind == "pieces" && words.size() == 2) {
        hint.kind = Hint::Kind::Pieces;
    } else if (kind == "nothing" && words.size() == 2) {
        hint.kind = Hint::Kind::Nothing;
    } else if (kind == "back" && words.size() == 3 && read(words[2], hint.left)) {
        hint.kind = Hint::Kind::Back;
    } else if (kind == "line" && words.size() == 4 && read(words[2], hint.move.rule)
        && read(words[3], hint.move.match)) {
        hint.kind = Hint::Kind::Line;
    } else {
        return std::nullopt;
    }
    return hint;
}

std::optional<Action> actionOf(const std::vector<std::string_view>& words)
{
    const std::string_view name = words.front();
    if (name == "puzzle") {
        return puzzleOf(words);
    }
    if (name == "hint") {
        return hintOf(words);
    }
    if (name == "undo" && words.size() == 1) {
        return Undo {};
    }
    if (name == "redo" && words.size() == 1) {
        return Redo {};
    }
    if (Move move; name == "move" && words.size() == 3 && read(words[1], move.rule)
        && read(words[2], move.match)) {
        return move;
    }
    if (Remove removal; name == "remove" && words.size() == 2 && read(words[1], removal.row)) {
        return removal;
    }
    if (Leave leave; name == "leave" && words.size() == 2 && read(words[1], leave.par)) {
        return leave;
    }
    return std::nullopt;
}

// Writes one action of each kind.
struct Printer {
    std::string operator()(const Puzzle& puzzle) const
    {
        const std::string place = puzzle.mode == progress::Mode::Endless
            ? "endless"
            : std::to_string(puzzle.place.level) + '-' + std::to_string(puzzle.place.stage);
        return "puzzle " + place + ' ' + puzzle.root + ' ' + puzzle.goal + ' '
            + std::to_string(puzzle.par) + ' ' + std::to_string(puzzle.saved) + ' '
            + std::to_string(puzzle.spent);
    }
    std::string operator()(const Move& move) const { return "move " + numbersOf(move); }
    std::string operator()(const Remove& removal) const
    {
        return "remove " + std::to_string(removal.row);
    }
    std::string operator()(const Hint& hint) const
    {
        switch (hint.kind) {
        case Hint::Kind::Good:
            return "hint good";
        case Hint::Kind::Back:
            return "hint back " + std::to_string(hint.left);
        case Hint::Kind::Pieces:
            return "hint pieces";
        case Hint::Kind::Line:
            return "hint line " + numbersOf(hint.move);
        case Hint::Kind::Nothing:
            break;
        }
        return "hint nothing";
    }
    std::string operator()(const Undo& /*undo*/) const { return "undo"; }
    std::string operator()(const Redo& /*redo*/) const { return "redo"; }
    std::string operator()(const Leave& leave) const
    {
        return "leave " + std::to_string(leave.par);
    }

private:
    static std::string numbersOf(const Move& move)
    {
        return std::to_string(move.rule) + ' ' + std::to_string(move.match);
    }
};

} // namespace

std::string print(const Action& action)
{
    return std::visit(Printer(), action);
}

std::optional<Action> parse(std::string_view text)
{
    std::optional<Action> action = actionOf(wordsOf(text));
    return action && print(*action) == text ? action : std::nullopt;
}

} // namespace veyrand::play
