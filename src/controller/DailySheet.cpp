#include "controller/DailySheet.h"

#include "controller/GameController.h"
#include "language/Words.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace veyrand::controller {

using play::CalendarDay;
using present::SheetDrawing;
using progress::CalendarDate;
using Ink = SheetDrawing::Ink;
using Align = SheetDrawing::Align;

namespace {

constexpr int kDaysOfWeek = 7;
constexpr double kPaneX = 1092.0;
constexpr double kFirstDayX = 700.0;
constexpr double kFirstDayY = 282.0;
constexpr double kDaysApart = 131.0;
constexpr double kWeeksApart = 87.0;
constexpr double kDay = 80.0;
constexpr std::string_view kDayKey = "day-";

std::string wordOf(const std::string& words, int index)
{
    const std::vector<std::string> all = language::wordsIn(words);
    return all.empty() ? std::string()
                       : all[std::min(all.size() - 1, static_cast<std::size_t>(index))];
}

} // namespace

std::string shortDate(const language::Texts& texts, const CalendarDate& date)
{
    return texts.text("practice.day",
        { { "day", std::to_string(date.day) },
            { "month", wordOf(texts.text("practice.months"), date.month - 1) } });
}

std::string shareLine(const language::Texts& texts, const CalendarDate& date,
    const play::Result* result, unsigned par)
{
    const std::string day = shortDate(texts, date);
    if (result == nullptr) {
        return texts.text("daily.shareOpen", { { "day", day }, { "par", std::to_string(par) } });
    }
    const char* const id = result->hints == 0 ? "daily.shareNoHints"
        : result->hints == 1                  ? "daily.shareOneHint"
                                              : "daily.shareHints";
    return texts.text(id,
        { { "moves", static_cast<std::int64_t>(result->moves.size()) }, { "day", day },
            { "par", std::to_string(result->par) }, { "hints", std::to_string(result->hints) } });
}

DailySheet::DailySheet(GameController& controller)
    : m_controller(controller)
    , m_chosen(controller.book().today())
    , m_month(play::monthOf(m_chosen))
{
}

std::string DailySheet::text(const char* id, language::Arguments arguments) const
{
    return m_controller.context().texts.text(std::string("daily.") + id, arguments);
}

std::string DailySheet::title() const
{
    return text("title");
}

std::string DailySheet::firstFocus() const
{
    return std::string(kDayKey) + progress::textOf(m_chosen);
}

const play::Result* DailySheet::resultOf(const CalendarDate& date) const
{
    return m_controller.book().results().of(progress::textOf(date));
}

unsigned DailySheet::par() const
{
    if (const play::Result* const result = resultOf(m_chosen)) {
        return result->par;
    }
    const auto known = m_pars.find(m_chosen);
    if (known != m_pars.end()) {
        return known->second;
    }
    unsigned par = 0;
    if (const auto* const puzzle = m_controller.practice().daily().on(m_chosen)) {
        const auto ways = m_search.find(engine::PackedLine::pack(puzzle->root).value(),
            engine::PackedLine::pack(puzzle->goal).value());
        par = ways ? ways->moves() : 0;
    }
    m_pars.emplace(m_chosen, par);
    return par;
}

std::string DailySheet::code() const
{
    const auto* const puzzle = m_controller.practice().daily().on(m_chosen);
    return puzzle != nullptr ? play::codeOf(puzzle->root, puzzle->goal).value_or(std::string())
                             : std::string();
}

bool DailySheet::mayTurn(int months) const
{
    const CalendarDate today = m_controller.book().today();
    const play::Month first
        = play::monthOf(std::min(today, m_controller.practice().daily().firstDay()));
    const play::Month wanted = play::monthsAfter(m_month, months);
    return first <= wanted && wanted <= play::monthOf(today);
}

void DailySheet::turn(int months)
{
    if (mayTurn(months)) {
        m_month = play::monthsAfter(m_month, months);
    }
}

void DailySheet::choose(const CalendarDate& date)
{
    m_chosen = date;
    m_month = play::monthOf(date);
    m_isCopied = false;
}

void DailySheet::play()
{
    const std::string fault = m_controller.practice().openDaily(m_chosen);
    if (!fault.empty()) {
        m_controller.practice().tell(fault);
    }
}

void DailySheet::copy()
{
    if (auto* const clipboard = m_controller.context().clipboard) {
        clipboard->setText(
            shareLine(m_controller.context().texts, m_chosen, resultOf(m_chosen), par()) + '\n'
            + code());
        m_isCopied = true;
    }
}

void DailySheet::press(const std::string& key)
{
    const CalendarDate today = m_controller.book().today();
    if (key.starts_with(kDayKey)) {
        const auto date = progress::dateIn(key.substr(kDayKey.size()));
        if (!date || *date > today) {
            return;
        }
        if (*date == m_chosen) {
            play();
        } else {
            choose(*date);
        }
    } else if (key == "play") {
        play();
    } else if (key == "replay") {
        m_controller.sheets().openReplay(progress::textOf(m_chosen));
    } else if (key == "copy") {
        copy();
    } else if (key == "today") {
        choose(today);
        m_controller.sheets().focusOn(firstFocus()); // the button has gone
    } else if (key == "month-before" || key == "month-after") {
        turn(key == "month-before" ? -1 : 1);
    } else if (key == "puzzles") {
        m_controller.sheets().openMap();
    } else if (key == "menu") {
        m_controller.sheets().close();
    }
}

bool DailySheet::takeKey(std::string_view keys)
{
    if (keys == "Ctrl+C") {
        copy();
    } else if (keys == "PgUp" || keys == "PgDown") {
        turn(keys == "PgUp" ? -1 : 1);
    } else {
        return false;
    }
    return true;
}

std::string DailySheet::state() const
{
    if (const play::Result* const result = resultOf(m_chosen)) {
        return text(result->over() == 0 ? "atPar" : "overPar",
            { { "moves", static_cast<std::int64_t>(result->moves.size()) },
                { "par", std::to_string(result->par) } });
    }
    return text("par", { { "par", std::to_string(par()) } });
}

// The day that is chosen, and the days in a row; on a page without it, the month.
std::string DailySheet::told() const
{
    const auto& streak = m_controller.book().statistics().streak;
    std::string said = text("date",
        { { "weekday", wordOf(text("longWeekdays"), progress::weekdayOf(m_chosen)) },
            { "day", std::to_string(m_chosen.day) },
            { "month", wordOf(text("months"), m_chosen.month - 1) } });
    said += ". " + state() + ". " + std::to_string(streak.current) + ' '
        + text("streak",
            { { "days", std::int64_t { streak.current } },
                { "best", std::to_string(streak.best) } });
    said += ". "
        + text("month",
            { { "month", wordOf(text("months"), m_month.month - 1) },
                { "year", std::to_string(m_month.year) } });
    return said + (m_isCopied ? ". " + text("copied") : "");
}

std::string DailySheet::nameForPeople(const CalendarDay& day) const
{
    const std::string date = text("date",
        { { "weekday", wordOf(text("longWeekdays"), day.column) },
            { "day", std::to_string(day.date.day) },
            { "month", wordOf(text("months"), day.date.month - 1) } });
    const char* const id = day.state == CalendarDay::State::Coming ? "saidComing"
        : day.state == CalendarDay::State::Open                    ? "saidOpen"
        : day.state == CalendarDay::State::AtPar                   ? "saidAtPar"
                                                                   : "saidOver";
    return text(id, { { "over", std::int64_t { day.over } }, { "date", date } });
}

void DailySheet::draw(SheetDrawing& drawing) const
{
    drawMonth(drawing);
    drawShare(drawing);
    drawPanel(drawing);
}

void DailySheet::drawMonth(SheetDrawing& drawing) const
{
    drawing.pane(kPaneX, 420, 968, 760);
    drawing.words(text("month",
                      { { "month", wordOf(text("months"), m_month.month - 1) },
                          { "year", std::to_string(m_month.year) } }),
        kPaneX, 108, 46, Ink::Ivory, Align::Middle, 600);
    drawing.picture("HorizontalLine", kPaneX, 150, 860, 3);
    const auto arrow = [&](const char* key, const char* picture, double x, int months) {
        if (mayTurn(months)) {
            drawing.picture("PuzzleChosen", x, 106, 62, 62, drawing.isFocused(key) ? 1.0 : 0.0);
            drawing.picture(picture, x, 106, 34, 34);
            drawing.place(key, text(months < 0 ? "monthBefore" : "monthAfter"), x, 106, 80, 70);
        }
    };
    arrow("month-before", "BackGold", kFirstDayX, -1);
    arrow("month-after", "OnGold", kFirstDayX + 6 * kDaysApart, 1);
    drawWeekdays(drawing);
    for (const CalendarDay& day :
        play::daysOf(m_month, m_controller.book().results(), m_controller.book().today())) {
        drawDay(drawing, day);
    }
    // In the corner that no month comes to.
    const CalendarDate today = m_controller.book().today();
    if (m_chosen != today || m_month != play::monthOf(today)) {
        drawing.button("today", text("today"), 1450, 742, 190, 60);
    }
}

// Under each the bars that tell how hard it is.
void DailySheet::drawWeekdays(SheetDrawing& drawing) const
{
    constexpr double kBarsApart = 10.8;
    const std::string weekdays = text("weekdays");
    for (int column = 0; column < kDaysOfWeek; ++column) {
        const double x = kFirstDayX + kDaysApart * column;
        drawing.words(wordOf(weekdays, column), x, 186, 31, Ink::Ivory, Align::Middle, 110);
        for (int bar = 0; bar < kDaysOfWeek; ++bar) {
            drawing.picture(
                bar <= column ? "BarGold" : "BarOpen", x + kBarsApart * (bar - 3), 218, 8.6, 11);
        }
    }
}

void DailySheet::drawDay(SheetDrawing& drawing, const CalendarDay& day) const
{
    const double x = kFirstDayX + kDaysApart * day.column;
    const double y = kFirstDayY + kWeeksApart * day.row;
    const bool isComing = day.state == CalendarDay::State::Coming;
    const char* const picture = isComing         ? "DayComing"
        : day.state == CalendarDay::State::Open  ? "DayOpen"
        : day.state == CalendarDay::State::AtPar ? "DayAtPar"
                                                 : "DayOver";
    const std::string key = std::string(kDayKey) + progress::textOf(day.date);
    if (day.date == m_chosen) {
        drawing.picture("BarGold", x, y + 45, 52, 5);
    }
    if (drawing.isFocused(key)) {
        drawing.picture("PuzzleChosen", x, y, 94, 94); // under the star
    }
    drawing.picture(picture, x, y, kDay, kDay);
    drawing.words(std::to_string(day.date.day), x, y, isComing ? 26 : 30,
        day.state == CalendarDay::State::AtPar ? Ink::Dark
            : isComing                         ? Ink::Pale
                                               : Ink::Ivory);
    if (day.state == CalendarDay::State::Over) {
        drawing.words(
            '+' + std::to_string(day.over), x + 23, y - 21, 19, Ink::Ivory, Align::Middle, 25);
    }
    drawing.place(key, nameForPeople(day), x, y, 84, 84);
}

void DailySheet::drawShare(SheetDrawing& drawing) const
{
    drawing.card(kPaneX, 894, 968, 112);
    drawing.words(shareLine(m_controller.context().texts, m_chosen, resultOf(m_chosen), par()), 640,
        876, 31, Ink::Dark, Align::Left, 690);
    drawing.words(m_controller.context().texts.text("practice.code", { { "code", code() } }), 640,
        916, 27, Ink::Dark, Align::Left, 690);
    drawing.button("copy", text(m_isCopied ? "copied" : "copy"), 1450, 894, 190, 60);
}

void DailySheet::drawPanel(SheetDrawing& drawing) const
{
    drawing.title(title());
    drawing.words(text("date",
                      { { "weekday", wordOf(text("longWeekdays"), progress::weekdayOf(m_chosen)) },
                          { "day", std::to_string(m_chosen.day) },
                          { "month", wordOf(text("months"), m_chosen.month - 1) } }),
        SheetDrawing::kPanelMiddle, 148, 33, Ink::Ivory, Align::Middle, 480);
    drawCard(drawing);
    drawing.button(
        "play", text("play"), SheetDrawing::kFirstColumn, 530, 232, 74, SheetDrawing::Button::Main);
    if (m_controller.book().toReplay(progress::textOf(m_chosen)) != nullptr) {
        drawing.button("replay", m_controller.context().texts.text("practice.replay"),
            SheetDrawing::kSecondColumn, 530, 232, 74);
    }
    drawStreak(drawing);
    drawing.button("puzzles", text("puzzles"), SheetDrawing::kFirstColumn, 892, 232, 66);
    drawing.button("menu", text("menu"), SheetDrawing::kSecondColumn, 892, 232, 66);
}

void DailySheet::drawCard(SheetDrawing& drawing) const
{
    constexpr double kPitch = 34.0; // twelve fit
    drawing.card(SheetDrawing::kPanelMiddle, 332, 474, 282);
    const auto* const puzzle = m_controller.practice().daily().on(m_chosen);
    if (puzzle == nullptr) {
        return;
    }
    const auto& texts = m_controller.context().texts;
    drawing.words(texts.text("practice.from"), 98, 230, 27, Ink::Dark, Align::Left);
    drawing.chips(puzzle->root, 96, 269, kPitch);
    drawing.words(texts.text("practice.to"), 98, 318, 27, Ink::Dark, Align::Left);
    drawing.chips(puzzle->goal, 96, 357, kPitch);
    drawing.words(state(), SheetDrawing::kPanelMiddle, 424, 33, Ink::Dark, Align::Middle, 420);
}

void DailySheet::drawStreak(SheetDrawing& drawing) const
{
    constexpr double kX = SheetDrawing::kPanelMiddle;
    constexpr double kY = 704.0;
    constexpr int kMostStars = 10;
    constexpr double kStarsApart = 16.0; // degrees
    constexpr double kFromMiddle = 98.0;
    const auto& streak = m_controller.book().statistics().streak;
    drawing.picture("BrassDisc", kX, kY, 166, 166);
    drawing.words(std::to_string(streak.current), kX, kY - 2, 76, Ink::Dark, Align::Middle, 110);
    const int stars = std::min(streak.current, kMostStars);
    for (int star = 0; star < stars; ++star) {
        const double turn = kStarsApart * (star - (stars - 1) / 2.0) * std::numbers::pi / 180.0;
        drawing.picture("PuzzleStar", kX + kFromMiddle * std::sin(turn),
            kY - kFromMiddle * std::cos(turn), 24, 24);
    }
    drawing.words(text("streak",
                      { { "days", std::int64_t { streak.current } },
                          { "best", std::to_string(streak.best) } }),
        kX, 814, 31, Ink::Ivory, Align::Middle, 470);
}

} // namespace veyrand::controller
