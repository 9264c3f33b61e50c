#pragma once

#include "headless/HeadlessGame.h"
#include "play/Gesture.h"

#include <optional>

namespace veyrand::test {

// Plays the game as a diligent player would: reads every page and clicks it away, asks the search
// behind the hints (not the paid button) for the next line, and makes it with the mouse. After each
// event it checks what must hold at any moment, and between moves that the board shows the proof.
class Robot {
public:
    explicit Robot(headless::HeadlessGame& game)
        : m_game(game)
    {
    }

    // Plays until another puzzle is in play, or none. False when it does not know how to go on.
    bool solvePuzzle();

    // Clicks the element, then waits until the game answers presses again.
    void click(const std::string& key);
    void readPages();
    void waitUntilUnblocked();

    // What holds after every event: each record has its key and its layer, a page's flags agree
    // with what is shown, and no line is too long.
    void checkAlways();

    [[nodiscard]] const std::vector<std::string>& pagesRead() const { return m_pagesRead; }
    [[nodiscard]] unsigned long eventsSent() const { return m_eventsSent; }

private:
    [[nodiscard]] std::optional<play::Gesture> gestureFor(const engine::Theorem& next) const;
    void perform(const play::Gesture& gesture);
    void press(platform::Point place);
    void release(platform::Point place);
    void checkAtRest();

    headless::HeadlessGame& m_game;
    std::vector<std::string> m_pagesRead;
    unsigned long m_eventsSent = 0;
};

} // namespace veyrand::test
