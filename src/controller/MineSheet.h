#pragma once

#include "controller/Sheet.h"
#include "language/Texts.h"
#include "play/MyPuzzles.h"

#include <optional>
#include <string>

namespace veyrand::controller {

class GameController;

// The puzzles that the player has saved: a press chooses one, and another plays it. A name is
// written by keys, or letter by letter on the page, where there are none.
class MineSheet final : public Sheet {
public:
    explicit MineSheet(GameController& controller);

    [[nodiscard]] std::string_view name() const override { return "mine"; }
    [[nodiscard]] std::string title() const override { return text("title"); }
    [[nodiscard]] std::string told() const override;
    void draw(present::SheetDrawing& drawing) const override;
    void press(const std::string& key) override;
    [[nodiscard]] bool takeKey(std::string_view keys) override;
    [[nodiscard]] std::string firstFocus() const override;
    bool goBack() override; // from a name that is being written

private:
    [[nodiscard]] const play::MyPuzzle* chosen() const;
    [[nodiscard]] std::size_t indexOfChosen() const;
    void choose(const std::string& code);
    void pressRow(const std::string& code);
    void turn(int pages);
    void play();
    void edit();
    void remove();
    void copy();
    void paste();
    void pasted(const std::string& text);
    void beginName();
    void endName();
    void write(std::string_view letter);
    void rubOut();
    bool takeKeyForName(std::string_view keys);

    void drawPanel(present::SheetDrawing& drawing) const;
    void drawCard(present::SheetDrawing& drawing) const;
    void drawRows(present::SheetDrawing& drawing) const;
    void drawRow(present::SheetDrawing& drawing, const play::MyPuzzle& puzzle, double y) const;
    void drawLetters(present::SheetDrawing& drawing) const;
    [[nodiscard]] std::string text(const char* id, language::Arguments arguments = {}) const;
    [[nodiscard]] std::string stateOf(const play::MyPuzzle& puzzle) const;

    GameController& m_controller;
    std::string m_chosen; // its code
    std::size_t m_page = 0;
    std::optional<std::string> m_newName; // while it is being written
};

} // namespace veyrand::controller
