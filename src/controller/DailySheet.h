#pragma once

#include "controller/Sheet.h"
#include "language/Texts.h"
#include "play/DailyMonth.h"
#include "play/Ways.h"

#include <map>
#include <optional>
#include <string>

namespace veyrand::controller {

class GameController;

// A result of a day in words to send to somebody: "Veyrand 21 Nov, 7 moves, par 6, no hints". Null
// for a puzzle that is not solved.
[[nodiscard]] std::string shareLine(const language::Texts& texts,
    const progress::CalendarDate& date, const play::Result* result, unsigned par);

// "21 Nov".
[[nodiscard]] std::string shortDate(
    const language::Texts& texts, const progress::CalendarDate& date);

// The puzzle of each day, from a calendar. A press on a day chooses it, and another one plays it;
// days to come are closed.
class DailySheet final : public Sheet {
public:
    explicit DailySheet(GameController& controller);

    [[nodiscard]] std::string_view name() const override { return "daily"; }
    [[nodiscard]] std::string title() const override;
    [[nodiscard]] std::string told() const override;
    void draw(present::SheetDrawing& drawing) const override;
    void press(const std::string& key) override;
    [[nodiscard]] bool takeKey(std::string_view keys) override;
    [[nodiscard]] std::string firstFocus() const override;

private:
    void drawPanel(present::SheetDrawing& drawing) const;
    void drawCard(present::SheetDrawing& drawing) const;
    void drawStreak(present::SheetDrawing& drawing) const;
    void drawMonth(present::SheetDrawing& drawing) const;
    void drawWeekdays(present::SheetDrawing& drawing) const;
    void drawDay(present::SheetDrawing& drawing, const play::CalendarDay& day) const;
    void drawShare(present::SheetDrawing& drawing) const;
    [[nodiscard]] std::string text(const char* id, language::Arguments arguments = {}) const;
    [[nodiscard]] std::string state() const; // of the day that is chosen
    [[nodiscard]] std::string code() const;
    [[nodiscard]] std::string nameForPeople(const play::CalendarDay& day) const;
    [[nodiscard]] const play::Result* resultOf(const progress::CalendarDate& date) const;
    [[nodiscard]] unsigned par() const;
    [[nodiscard]] bool mayTurn(int months) const;
    void turn(int months);
    void choose(const progress::CalendarDate& date);
    void play();
    void copy();

    GameController& m_controller;
    progress::CalendarDate m_chosen;
    play::Month m_month;
    bool m_isCopied = false;
    mutable play::WaySearch m_search;
    mutable std::map<progress::CalendarDate, unsigned> m_pars; // of days that were looked at
};

} // namespace veyrand::controller
