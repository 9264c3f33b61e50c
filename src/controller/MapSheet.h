#pragma once

#include "controller/Sheet.h"
#include "language/Texts.h"
#include "progress/Place.h"

#include <optional>

namespace veyrand::controller {

class GameController;

// The map of the Classic puzzles: what has been reached, solved, and solved at par. A press plays a
// puzzle, in practice or, where Classic stands, in Classic.
class MapSheet final : public Sheet {
public:
    explicit MapSheet(GameController& controller);

    [[nodiscard]] std::string_view name() const override { return "map"; }
    void draw(present::SheetDrawing& drawing) const override;
    void press(const std::string& key) override;
    [[nodiscard]] std::string title() const override { return text("puzzles"); }
    [[nodiscard]] std::string told() const override;
    void focused(const std::string& key) override;
    [[nodiscard]] bool isChosenByRest(const std::string& key) const override;
    [[nodiscard]] std::string tabStopOf(const std::string& key) const override;
    [[nodiscard]] bool takeKey(std::string_view keys) override;
    [[nodiscard]] std::string firstFocus() const override;

private:
    // What is asked of the game once for a whole map.
    struct Known;

    void drawPanel(present::SheetDrawing& drawing, const Known& known) const;
    void drawCard(present::SheetDrawing& drawing) const;
    void drawLevel(present::SheetDrawing& drawing, const Known& known, int level) const;
    void drawStone(present::SheetDrawing& drawing, const Known& known, int level, int stage) const;
    void drawLegend(present::SheetDrawing& drawing) const;
    [[nodiscard]] std::string text(const char* id, language::Arguments arguments = {}) const;
    [[nodiscard]] std::string nameForPeople(
        const progress::Place& place, const progress::Place& standing) const;
    [[nodiscard]] std::string codeOfChosen() const;
    [[nodiscard]] std::string timeOfChosen() const;
    void pasteCode();

    GameController& m_controller;
    progress::Place m_chosen;
};

} // namespace veyrand::controller
