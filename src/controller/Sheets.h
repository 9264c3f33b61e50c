#pragma once

#include "controller/GameContext.h"
#include "controller/Sheet.h"
#include "input/Foreground.h"
#include "present/Extra.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veyrand::controller {

class GameController;

// The sheet that lies over the board, if one does: takes its presses and keys before the board, and
// has it drawn as what the view adds. Under it the board stays as it is. Also the brass button on
// the title page that leads to the map, which is gone with Answers.
class Sheets final : public input::Foreground {
public:
    explicit Sheets(GameController& controller);
    Sheets(const Sheets&) = delete;
    Sheets& operator=(const Sheets&) = delete;
    ~Sheets() override;

    void open(std::unique_ptr<Sheet> sheet);
    void close();
    [[nodiscard]] bool isOpen() const { return m_sheet != nullptr; }
    [[nodiscard]] std::string name() const; // empty when none is open
    [[nodiscard]] const std::string& focus() const { return m_focus; }

    // A puzzle of the sheet's takes its place; Menu leads back to it, and to the map where none
    // was open.
    void makeWay();
    void comeBack();

    // For whoever does not see it: what the sheet says, what can be pressed on it, and a press.
    [[nodiscard]] std::string title() const;
    [[nodiscard]] std::string told() const;
    [[nodiscard]] std::vector<present::SheetPlace> places() const; // anew
    void choose(const std::string& key);

    // Whether one may be opened over what is on the screen now.
    [[nodiscard]] bool canOpen() const;
    void openMap();
    void openDaily();
    void openStatistics();
    void openEditor();
    void openMine();
    // A solved puzzle, by its name in the result book: nothing opens where it is not to be shown.
    void openReplay(const std::string& name);
    [[nodiscard]] bool isShowing(const Sheet& sheet) const { return m_sheet.get() == &sheet; }
    [[nodiscard]] const Sheet* shown() const { return m_sheet.get(); } // null when none is open

    // What the player has copied, here or elsewhere: the function is called with it, at once or as
    // soon as somebody has agreed, unless the sheet has gone by then.
    void paste(const std::function<void(const std::string& text)>& use);

    void leaveReplay(); // for the sheet from which it was opened

    // What can be pressed before the board while no sheet is open.
    [[nodiscard]] std::vector<present::SheetPlace> buttons() const;
    [[nodiscard]] const std::string& hovered() const { return m_hovered; }

    // What the sheet shows has changed.
    void changed();
    void focusOn(const std::string& key);
    bool key(std::string_view keys);
    bool escape(); // true when a sheet was open

    // For whoever directs the extras: a number that changes with what is to be seen, and what that
    // is.
    [[nodiscard]] unsigned revision() const;
    void addTo(std::vector<present::Extra>& wanted) const;
    // Over something that can be pressed.
    [[nodiscard]] bool isPointing() const { return !m_hovered.empty(); }

    [[nodiscard]] bool covers(platform::Point place) const override;
    bool pressed(platform::Point place) override;
    void released(platform::Point place) override;
    bool hovered(platform::Point place) override;

private:
    [[nodiscard]] present::SheetDrawing drawing() const;
    [[nodiscard]] std::string placeAt(platform::Point place) const;
    [[nodiscard]] bool showsButton() const;
    void follow(const std::string& key, platform::Point place);
    void restBegins(const std::string& key, platform::Point place);
    void endSheet();
    void endTurn();
    void walk(int x, int y);
    void step(int by);
    void act(const std::string& key);
    [[nodiscard]] std::string nameOfPlace(const std::string& key) const;
    void performKey(std::string_view keys);

    // Of the pointer, on a place that it may choose.
    struct Rest {
        std::string key;
        platform::Point place;
    };
    struct Turn { };

    GameController& m_controller;
    GameContext& m_game;
    std::unique_ptr<Sheet> m_sheet;
    std::unique_ptr<Sheet> m_left; // from which the puzzle in play came
    std::unique_ptr<Sheet> m_under; // from which a replay was opened
    std::shared_ptr<const Turn> m_turn; // of the sheet that is open; held weakly by late answers
    std::vector<std::unique_ptr<Sheet>> m_closed; // until whoever they called has returned
    std::string m_focus;
    std::string m_hovered;
    std::string m_held;
    // Held as well, weakly, by the call that ends it; nothing while the pointer is on its way.
    std::shared_ptr<const Rest> m_rest;
    unsigned m_revision = 1;
    // As drawn last, which is at every change: the pointer asks for them at every step.
    mutable std::vector<present::SheetPlace> m_places;
};

} // namespace veyrand::controller
