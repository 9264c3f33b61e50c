#pragma once

#include "controller/Sheet.h"
#include "language/Texts.h"
#include "play/Trail.h"

#include <memory>
#include <optional>

namespace veyrand::controller {

class GameController;

// A solved puzzle, to be looked at again.
struct ReplaySubject {
    std::string name; // in the result book
    play::CodedPuzzle puzzle {};
    unsigned par = 0; // in moves
    play::MoveSet open = play::kAllMoves;
    std::vector<play::TrailStep> yours {}; // empty: nobody noted it
    bool mayTell = true; // of the shortest ways
};

// Nothing for a puzzle that is not solved.
[[nodiscard]] std::optional<ReplaySubject> replaySubject(
    GameController& controller, const std::string& name);

// Shows a solution line by line, at the player's pace or running, with a word for each move: the
// player's own, marked where it left the shortest ways, and each of those.
class ReplaySheet final : public Sheet {
public:
    ReplaySheet(GameController& controller, ReplaySubject subject);

    [[nodiscard]] std::string_view name() const override { return "replay"; }
    void draw(present::SheetDrawing& drawing) const override;
    [[nodiscard]] std::string title() const override { return text("title"); }
    [[nodiscard]] std::string told() const override;
    void press(const std::string& key) override;
    [[nodiscard]] bool takeKey(std::string_view keys) override;
    [[nodiscard]] std::string firstFocus() const override { return "run"; }
    bool goBack() override;

    // For whoever watches.
    struct State {
        bool isYours = true;
        std::uint64_t way = 0; // of the shortest, from 1; 0 for yours
        std::uint64_t ways = 0; // how many there are; 0 where they may not be told
        std::size_t step = 0; // moves made
        bool isRunning = false;
        std::string caption {};
        std::string note {}; // where the shortest ways were left
        std::vector<std::size_t> leftAt {}; // the steps, from 1, of yours
        std::vector<std::string> lines {}; // all of the solution
    };
    [[nodiscard]] State state() const;

private:
    [[nodiscard]] const std::vector<play::TrailStep>& trail() const;
    [[nodiscard]] std::string text(const char* id, language::Arguments arguments = {}) const;
    [[nodiscard]] std::string headline() const;
    [[nodiscard]] std::string whose() const;
    [[nodiscard]] std::string deed() const;
    [[nodiscard]] std::string caption() const;
    [[nodiscard]] std::string note() const;
    [[nodiscard]] std::string position() const;
    [[nodiscard]] std::string countOfWays() const;

    void drawRows(present::SheetDrawing& drawing) const;
    void drawTag(present::SheetDrawing& drawing, std::size_t row) const;
    void drawPanel(present::SheetDrawing& drawing) const;
    void drawSteps(present::SheetDrawing& drawing) const;
    void drawChoice(present::SheetDrawing& drawing) const;

    void showYours();
    void showWay(std::uint64_t number);
    void goTo(std::size_t step);
    void runOrPause();
    void runOn();
    void playIt();

    GameController& m_controller;
    ReplaySubject m_subject;
    std::optional<play::Ways> m_ways;
    std::vector<play::TrailStep> m_shortest; // the one chosen last
    std::uint64_t m_way = 0; // its number, from 0
    std::size_t m_step = 0;
    bool m_isYours = true;
    bool m_isRunning = false;
    std::shared_ptr<int> m_run; // a late call knows its own run by it
};

} // namespace veyrand::controller
