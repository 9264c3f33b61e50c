#pragma once

#include "controller/Sheet.h"
#include "language/Texts.h"
#include "play/PuzzleMaker.h"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace veyrand::controller {

class GameController;

// A start line and a goal, put together from chips, and beside them what is proven of the two: it
// is worked out anew after every change, as soon as the run loop comes round. Also makes puzzles by
// chance, a little at a time.
class EditorSheet final : public Sheet {
public:
    explicit EditorSheet(GameController& controller);

    [[nodiscard]] std::string_view name() const override { return "editor"; }
    [[nodiscard]] std::string title() const override { return text("title"); }
    [[nodiscard]] std::string told() const override;
    void draw(present::SheetDrawing& drawing) const override;
    void press(const std::string& key) override;
    void focused(const std::string& key) override;
    [[nodiscard]] bool takeKey(std::string_view keys) override;
    [[nodiscard]] std::string firstFocus() const override;
    void end() override { m_self.reset(); }

private:
    // What is proven of the two lines.
    struct Verdict {
        bool isReachable = false;
        unsigned par = 0; // in moves
        std::uint64_t ways = 0;
        std::vector<unsigned> needed {}; // moves, by the numbers that players know
        double bits = 0;
    };
    enum class Line { Start, Goal };
    struct Seat {
        Line line = Line::Start;
        std::size_t column = 0;
    };

    [[nodiscard]] static std::string keyOf(const Seat& seat);
    [[nodiscard]] static std::optional<Seat> seatOf(const std::string& key);
    [[nodiscard]] std::string& chipsOf(Line line);
    [[nodiscard]] const std::string& chipsOf(Line line) const;

    void put(const Seat& seat, char chip);
    void take(const Seat& seat);
    void pressSeat(const Seat& seat);
    void typed(char chip);
    void refuse(const char* why);
    void changed();
    void setLines(const play::CodedPuzzle& puzzle);
    void lookAtLines();
    void turnNumber(const std::string& key);
    void make();
    void lookForOne();

    void play();
    void save();
    void copy();
    void paste();
    void pasted(const std::string& text);
    [[nodiscard]] std::string code() const;

    void drawPanel(present::SheetDrawing& drawing) const;
    void drawPalette(present::SheetDrawing& drawing) const;
    void drawNumber(present::SheetDrawing& drawing, const char* what, unsigned number, double y,
        const std::string& key) const;
    void drawLine(present::SheetDrawing& drawing, Line line, double y) const;
    void drawVerdict(present::SheetDrawing& drawing) const;
    void drawFigures(present::SheetDrawing& drawing) const;
    void drawNeeded(present::SheetDrawing& drawing) const;
    [[nodiscard]] std::string text(const char* id, language::Arguments arguments = {}) const;
    [[nodiscard]] std::string colourOf(char chip) const;
    [[nodiscard]] std::string nameOf(const Seat& seat) const;

    GameController& m_controller;
    std::string m_start;
    std::string m_goal;
    char m_chip = 'G';
    Line m_line = Line::Start; // that was worked on last
    std::optional<Verdict> m_verdict;
    std::string m_note; // what came of the last press
    bool m_isCopied = false;
    play::WaySearch m_search;
    play::PuzzleMaker m_maker;
    play::PuzzleMaker::Wish m_wish { 6, 12 };
    bool m_isMaking = false;
    // For calls that come when the sheet may have gone.
    std::shared_ptr<const EditorSheet*> m_self = std::make_shared<const EditorSheet*>(this);
};

} // namespace veyrand::controller
