#include "controller/Sheets.h"

#include "board/Buttons.h"
#include "board/Times.h"
#include "controller/DailySheet.h"
#include "controller/EditorSheet.h"
#include "controller/GameController.h"
#include "controller/MapSheet.h"
#include "controller/MineSheet.h"
#include "controller/ReplaySheet.h"
#include "controller/StatisticsSheet.h"

#include <algorithm>
#include <cmath>

namespace veyrand::controller {

using present::SheetPlace;

namespace {

constexpr std::string_view kButton = "button-puzzles";

bool holds(const present::ExtraRect& rect, platform::Point place)
{
    return std::abs(place.x - rect.x) <= rect.width / 2.0
        && std::abs(place.y - rect.y) <= rect.height / 2.0;
}

bool isNear(platform::Point one, platform::Point other)
{
    constexpr double kUnsteadyHand = 0.01;
    return std::hypot(one.x - other.x, one.y - other.y) <= kUnsteadyHand;
}

} // namespace

Sheets::Sheets(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
{
    m_game.view.setForeground(this);
}

Sheets::~Sheets()
{
    m_game.view.setForeground(nullptr);
}

bool Sheets::canOpen() const
{
    return isOpen() || m_controller.canOpenPage();
}

void Sheets::open(std::unique_ptr<Sheet> sheet)
{
    if (m_sheet) {
        endSheet();
    } else {
        m_controller.focus().hide();
    }
    m_sheet = std::move(sheet);
    endTurn();
    m_turn = std::make_shared<const Turn>();
    m_focus = m_sheet->firstFocus();
    m_controller.speaker().tell(title());
    m_controller.speaker().tell(nameOfPlace(m_focus));
    changed();
}

void Sheets::openMap()
{
    open(std::make_unique<MapSheet>(m_controller));
}

void Sheets::openDaily()
{
    open(std::make_unique<DailySheet>(m_controller));
}

void Sheets::openStatistics()
{
    open(std::make_unique<StatisticsSheet>(m_controller));
}

void Sheets::openEditor()
{
    open(std::make_unique<EditorSheet>(m_controller));
}

void Sheets::openMine()
{
    open(std::make_unique<MineSheet>(m_controller));
}

void Sheets::openReplay(const std::string& name)
{
    if (auto subject = replaySubject(m_controller, name)) {
        m_under = std::move(m_sheet);
        open(std::make_unique<ReplaySheet>(m_controller, *std::move(subject)));
    }
}

void Sheets::leaveReplay()
{
    if (m_under) {
        open(std::move(m_under));
    } else {
        openMap();
    }
}

void Sheets::close()
{
    if (m_sheet) {
        endSheet();
        endTurn();
        changed();
    }
}

void Sheets::endSheet()
{
    m_sheet->end();
    m_closed.push_back(std::move(m_sheet));
}

void Sheets::endTurn()
{
    m_turn.reset();
    m_hovered.clear();
    m_held.clear();
    m_rest.reset();
}

void Sheets::paste(const std::function<void(const std::string& text)>& use)
{
    if (m_game.clipboard != nullptr) {
        m_game.clipboard->askForText(
            [this, use, turn = std::weak_ptr(m_turn)](const std::string& text) {
                if (!turn.expired()) {
                    use(text);
                    changed();
                }
            });
    }
}

void Sheets::makeWay()
{
    m_left = std::move(m_sheet);
    endTurn();
    changed();
}

void Sheets::comeBack()
{
    if (m_left) {
        open(std::move(m_left));
    } else {
        openMap();
    }
}

std::string Sheets::title() const
{
    return m_sheet ? m_sheet->title() : std::string();
}

std::string Sheets::told() const
{
    return m_sheet ? m_sheet->told() : std::string();
}

std::vector<SheetPlace> Sheets::places() const
{
    return m_sheet ? drawing().places() : std::vector<SheetPlace>();
}

void Sheets::choose(const std::string& key)
{
    focusOn(key);
    act(key);
}

std::string Sheets::name() const
{
    return m_sheet ? std::string(m_sheet->name()) : std::string();
}

void Sheets::changed()
{
    ++m_revision;
    m_controller.answers().handsChanged();
    m_game.layers.scene().setNeedsDisplay();
}

void Sheets::focusOn(const std::string& key)
{
    if (m_sheet && key != m_focus) {
        m_focus = key;
        m_sheet->focused(key);
        changed();
    }
}

bool Sheets::showsButton() const
{
    const auto& button = board::buttonFor(board::ButtonAction::ClassicGame);
    return !m_sheet && m_game.view.overlay() == input::Overlay::None
        && m_game.board.gameData.gameObjects().contains(std::string(button.key))
        && progress::readSettings(m_game.preferences).answers;
}

unsigned Sheets::revision() const
{
    constexpr unsigned kLit = 2; // a sheet's numbers are beyond: each follows upon a lit button
    if (m_sheet) {
        return kLit + m_revision;
    }
    return showsButton() ? (m_hovered == kButton ? kLit : 1) : 0;
}

present::SheetDrawing Sheets::drawing() const
{
    present::SheetDrawing drawing(m_game.layers.textMetrics(), m_focus);
    drawing.wood();
    m_sheet->draw(drawing);
    return drawing;
}

void Sheets::addTo(std::vector<present::Extra>& wanted) const
{
    if (showsButton()) {
        wanted.push_back(present::puzzlesButton(m_game.texts.text("practice.puzzles"),
            m_hovered == kButton, m_game.layers.textMetrics()));
    }
    if (!m_sheet) {
        return;
    }
    const present::SheetDrawing drawn = drawing();
    m_places = drawn.places();
    wanted.push_back({ .kind = present::ExtraKind::Sheet,
        .key = std::string(m_sheet->name()),
        .text = {},
        .rect = { .x = 0.8, .y = 0.5, .width = 1.6, .height = 1.0 },
        .band = present::ExtraBand::OverMessages,
        .pieces = drawn.pieces(),
        .slot = "sheet",
        .fade = { .in = 0.15, .out = 0.15 } });
    // Places have no look of their own, but a name and a place for whoever reads the screen.
    for (const SheetPlace& place : drawn.places()) {
        wanted.push_back({ .kind = present::ExtraKind::Place,
            .key = place.key,
            .text = place.text,
            .rect = place.rect,
            .band = present::ExtraBand::OverMessages });
    }
}

std::vector<SheetPlace> Sheets::buttons() const
{
    std::vector<SheetPlace> buttons;
    if (m_sheet) {
        return buttons;
    }
    if (showsButton()) {
        buttons.push_back({ std::string(kButton), m_game.texts.text("practice.puzzles"),
            present::puzzlesButtonPlace() });
    }
    if (m_controller.guide().showsButton()) {
        buttons.push_back(m_controller.guide().button());
    }
    return buttons;
}

std::string Sheets::placeAt(platform::Point place) const
{
    const std::vector<SheetPlace> all = m_sheet ? m_places : buttons();
    const auto found = std::find_if(all.begin(), all.end(),
        [place](const SheetPlace& each) { return holds(each.rect, place); });
    return found != all.end() ? found->key : std::string();
}

bool Sheets::covers(platform::Point place) const
{
    return m_sheet || !placeAt(place).empty();
}

bool Sheets::pressed(platform::Point place)
{
    m_rest.reset();
    m_held = placeAt(place);
    if (m_sheet && !m_held.empty()) {
        focusOn(m_held); // chosen even where it is let go elsewhere
    }
    return m_sheet || !m_held.empty();
}

void Sheets::released(platform::Point place)
{
    const std::string held = std::exchange(m_held, {});
    if (!held.empty() && held == placeAt(place)) {
        focusOn(held);
        act(held);
    }
}

bool Sheets::hovered(platform::Point place)
{
    if (!m_sheet && m_hovered.empty() && buttons().empty()) {
        return false;
    }
    const std::string now = placeAt(place);
    if (m_sheet) {
        follow(now, place);
    }
    if (now != m_hovered) {
        m_hovered = now;
        m_controller.answers().pointerMoved();
        m_game.layers.scene().setNeedsDisplay();
    }
    return m_sheet || !m_hovered.empty();
}

void Sheets::follow(const std::string& key, platform::Point place)
{
    const bool hasCome = key != m_hovered;
    if (!key.empty() && m_sheet->isChosenByRest(key)) {
        if (hasCome || (m_rest && !isNear(m_rest->place, place))) {
            restBegins(key, place);
        }
    } else if (hasCome) {
        m_rest.reset();
        if (!key.empty()) {
            focusOn(key);
        }
    }
}

void Sheets::restBegins(const std::string& key, platform::Point place)
{
    m_rest = std::make_shared<const Rest>(Rest { key, place });
    m_game.runLoop.performAfterDelay(
        board::times::kRestChooses, [this, rest = std::weak_ptr(m_rest)] {
            if (!rest.expired()) {
                focusOn(std::exchange(m_rest, nullptr)->key);
            }
        });
}

void Sheets::act(const std::string& key)
{
    if (key == kButton) {
        openMap();
    } else if (key == kGuideButton) {
        m_controller.guide().ask();
    } else if (m_sheet) {
        m_sheet->press(key);
        changed();
        if (!m_sheet) {
            m_controller.speaker().sheetClosed();
        }
    }
    m_closed.clear();
}

bool Sheets::escape()
{
    if (!m_sheet) {
        return false;
    }
    if (!m_sheet->goBack()) {
        close();
        m_controller.speaker().sheetClosed();
    }
    m_closed.clear();
    return true;
}

std::string Sheets::nameOfPlace(const std::string& key) const
{
    const auto all = places();
    const auto found = std::find_if(
        all.begin(), all.end(), [&key](const SheetPlace& place) { return place.key == key; });
    return found != all.end() ? found->text : std::string();
}

// What has come of it is told: where the keys are now, and what the sheet says that it did not.
bool Sheets::key(std::string_view keys)
{
    if (!m_sheet) {
        return false;
    }
    m_rest.reset();
    m_controller.speaker().gestureBegins();
    const Sheet* const sheet = m_sheet.get();
    const std::string where = nameOfPlace(m_focus);
    const std::string what = told();
    performKey(keys);
    if (m_sheet.get() == sheet) {
        const std::string now = nameOfPlace(m_focus);
        m_controller.speaker().tell(now != where ? now : std::string());
        m_controller.speaker().tell(told() != what ? told() : std::string());
    }
    return true; // nothing below is played on meanwhile
}

void Sheets::performKey(std::string_view keys)
{
    if (m_sheet->takeKey(keys)) {
        changed();
        m_closed.clear();
    } else if (keys == "Left" || keys == "Right") {
        walk(keys == "Left" ? -1 : 1, 0);
    } else if (keys == "Up" || keys == "Down") {
        walk(0, keys == "Down" ? -1 : 1);
    } else if (keys == "Tab" || keys == "Shift+Tab" || keys == "Shift+Backtab") {
        step(keys == "Tab" ? 1 : -1);
    } else if (keys == "Return" || keys == "Enter" || keys == "Space") {
        act(m_focus);
    } else if (keys == "Esc" || keys == "Escape") {
        escape();
    }
}

// To the nearest that lies more that way than aside.
void Sheets::walk(int x, int y)
{
    const present::SheetDrawing drawn = drawing();
    const auto& places = drawn.places();
    const auto here = std::find_if(places.begin(), places.end(),
        [this](const SheetPlace& place) { return place.key == m_focus; });
    if (here == places.end()) {
        return focusOn(m_sheet->firstFocus());
    }
    constexpr double kAsideCounts = 3.0;
    const SheetPlace* best = nullptr;
    double least = 0.0;
    for (const SheetPlace& place : places) {
        const double dx = place.rect.x - here->rect.x;
        const double dy = place.rect.y - here->rect.y;
        const double ahead = dx * x + dy * y;
        const double aside = std::abs(dx * y) + std::abs(dy * x);
        const double cost = ahead + kAsideCounts * aside;
        if (ahead > 0.01 && (best == nullptr || cost < least)) {
            best = &place;
            least = cost;
        }
    }
    if (best != nullptr) {
        focusOn(best->key);
    }
}

void Sheets::step(int by)
{
    std::vector<SheetPlace> places = this->places();
    const auto isNoStop
        = [this](const SheetPlace& place) { return m_sheet->tabStopOf(place.key) != place.key; };
    places.erase(std::remove_if(places.begin(), places.end(), isNoStop), places.end());
    const std::string stop = m_sheet->tabStopOf(m_focus);
    const auto here = std::find_if(places.begin(), places.end(),
        [&stop](const SheetPlace& place) { return place.key == stop; });
    if (places.empty()) {
        return;
    }
    const auto count = static_cast<std::ptrdiff_t>(places.size());
    const auto at = here == places.end() ? 0 : here - places.begin() + by;
    focusOn(places[static_cast<std::size_t>((at % count + count) % count)].key);
}

} // namespace veyrand::controller
