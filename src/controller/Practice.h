#pragma once

#include "controller/GameContext.h"
#include "play/DailyPuzzles.h"
#include "play/PuzzleCode.h"
#include "play/Ways.h"
#include "progress/CalendarDate.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace veyrand::controller {

class GameController;

// Plays single puzzles beside Classic and Endless: on the same board and with the same hints, which
// are free, for no points. Neither the player's record nor the unfinished puzzles hear of it. What
// is solved is the result book's to keep.
class Practice {
public:
    explicit Practice(GameController& controller);

    // A place of the Classic game. The one where it stands is played in Classic until it is solved;
    // one that has not been reached is not played: false.
    bool play(const progress::Place& place);
    // The same, from the map: a puzzle of another game in play is left only when the player says
    // so.
    void choose(const progress::Place& place);
    // What is wrong with the code, in words; empty when its puzzle comes. One that is in play is
    // left only when the player says so.
    [[nodiscard]] std::string open(std::string_view code);
    // The same, and nothing is played.
    [[nodiscard]] std::string whyNot(std::string_view code);
    // The same, and what is wrong is told the player in a box: for links, pastes and the command
    // line.
    void openOrTell(std::string_view code);
    void openToday();
    void openDayOrTell(const progress::CalendarDate& date);
    // What keeps the puzzle of a day from being played, in words; empty when it comes.
    [[nodiscard]] std::string openDaily(const progress::CalendarDate& date);

    // In a box, where there is something to tell.
    void tell(const std::string& fault);
    [[nodiscard]] std::string wordsOf(const play::CodeFault& fault) const;

    // Where the Classic game stands, by the record.
    [[nodiscard]] progress::Place standing() const;
    [[nodiscard]] bool isReached(const progress::Place& place) const;
    [[nodiscard]] bool isSolved(const progress::Place& place) const;
    // The same for whoever asks of many places, and of the record once.
    [[nodiscard]] static bool isReached(
        const progress::Place& place, const progress::Place& standing);
    [[nodiscard]] bool isSolved(
        const progress::Place& place, const progress::Place& standing) const;

    // Null for what is no place of the game.
    [[nodiscard]] const progress::CatalogueEntry* entryAt(const progress::Place& place) const;

    // Of the puzzle that is practised now.
    [[nodiscard]] bool isOn() const;
    [[nodiscard]] bool givesHints() const;
    // Whether the ways of a puzzle may be told. What Classic asks next is no use of practice: it
    // would be solved there by what is free here.
    [[nodiscard]] bool mayTellOf(const play::CodedPuzzle& puzzle) const;
    [[nodiscard]] const std::string& nameInPlay() const { return m_name; } // as results are named

    // Of the Classic game, practised last.
    [[nodiscard]] const std::optional<progress::Place>& lastPlace() const { return m_place; }

    // The puzzle has been solved, and nothing follows it.
    void finished();

    [[nodiscard]] const play::DailyPuzzles& daily() const { return *m_daily; }

private:
    struct Wanted {
        play::CodedPuzzle puzzle;
        std::string name; // in the result book
        std::string caption; // on the panel
        progress::Place place { 0, 0 }; // none but for places of the Classic game
        unsigned par = 0; // in moves
        int open = 0; // moves
    };

    // The ways to solve it, or why it cannot be played, in words.
    [[nodiscard]] std::variant<play::Ways, std::string> waysOf(const play::CodedPuzzle& puzzle);
    void askFirst(std::function<void()> start);
    void start(const Wanted& wanted);
    [[nodiscard]] std::string openPuzzle(
        const play::CodedPuzzle& puzzle, std::string name, std::string caption);
    void tellOfAllMoves();

    GameController& m_controller;
    GameContext& m_game;
    std::shared_ptr<const play::DailyPuzzles> m_daily;
    play::WaySearch m_search;
    std::string m_name;
    std::optional<progress::Place> m_place;
};

} // namespace veyrand::controller
