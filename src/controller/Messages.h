#pragma once

#include "controller/GameContext.h"
#include "present/InfoLayer.h"

#include <functional>
#include <memory>

namespace veyrand::controller {

class GameController;

// The message on show, and what the click that closes it leads to. Holds at most one; what it says
// is its maker's business.
class Messages {
public:
    explicit Messages(GameController& controller);

    // A page: it takes every press, and nothing else on the board answers until it is clicked away.
    // The name is its operation's.
    void showMessageWindow(std::unique_ptr<present::InfoLayer> window, std::string page);
    // A note: play goes on beside it, and the press that dismisses it also plays.
    void showMessageInfo(std::unique_ptr<present::InfoLayer> window, std::string page);
    // A dialogue: its own buttons answer it.
    void showDialogue(std::unique_ptr<present::InfoLayer> window);

    // The message on show gives way to another of the same kind: it has other words for the same.
    void replaceWindow(const std::function<std::unique_ptr<present::InfoLayer>()>& make);

    // A press while a page or note is up: it goes, and what its code asks for follows.
    void messageWindowClick();

    // The message goes and nothing follows.
    void dismiss();

    [[nodiscard]] const present::InfoLayer* messageWindow() const { return m_window.get(); }
    // The operation's name of the page or note on show; empty for none.
    [[nodiscard]] const std::string& page() const { return m_page; }

    // Which page the next click opens: a key of the tutorial script's chains, 0 for none.
    [[nodiscard]] int displayMessageWindowOnClick() const { return m_onClick; }
    void setDisplayMessageWindowOnClick(int code) { m_onClick = code; }

    void playMessageWindowSound() const;

private:
    void hold(std::unique_ptr<present::InfoLayer> window, std::string page);
    void release();
    void blockForReading();
    void restoreInput();

    GameController& m_controller;
    GameContext& m_game;
    std::unique_ptr<present::InfoLayer> m_window;
    std::string m_page;
    int m_onClick = 0;
};

} // namespace veyrand::controller
