#pragma once

#include "controller/Sheet.h"
#include "language/Texts.h"
#include "play/Results.h"

namespace veyrand::controller {

class GameController;

// What the results come to, in figures and as a chart. It is all on this machine.
class StatisticsSheet final : public Sheet {
public:
    explicit StatisticsSheet(GameController& controller)
        : m_controller(controller)
    {
    }

    [[nodiscard]] std::string_view name() const override { return "statistics"; }
    [[nodiscard]] std::string title() const override;
    [[nodiscard]] std::string told() const override;
    void draw(present::SheetDrawing& drawing) const override;
    void press(const std::string& key) override;
    [[nodiscard]] std::string firstFocus() const override { return "puzzles"; }

private:
    void drawPanel(present::SheetDrawing& drawing) const;
    void drawFigures(present::SheetDrawing& drawing, const play::Statistics& figures) const;
    void drawLevels(present::SheetDrawing& drawing, const play::Statistics& figures) const;
    void drawLegend(present::SheetDrawing& drawing) const;
    void drawOver(present::SheetDrawing& drawing, const play::Statistics& figures) const;
    [[nodiscard]] std::string text(const char* id, language::Arguments arguments = {}) const;
    [[nodiscard]] std::string rankAfter(int levels) const;
    [[nodiscard]] int levelsDone() const;
    [[nodiscard]] std::string time(const play::Statistics& figures) const; // empty: not wanted
    [[nodiscard]] std::string average(const play::Statistics& figures) const;

    GameController& m_controller;
};

// "0.4", as the language writes it.
[[nodiscard]] std::string withTenths(const language::Texts& texts, double number);

// "9 h 40 min", "2 min 5 s" or "7 s".
[[nodiscard]] std::string durationWords(const language::Texts& texts, std::uint64_t seconds);

} // namespace veyrand::controller
