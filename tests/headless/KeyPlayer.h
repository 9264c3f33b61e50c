#pragma once

#include "headless/HeadlessGame.h"
#include "play/Gesture.h"

namespace veyrand::test {

// Plays with keys alone, as somebody without a mouse would: looks where the focus is, walks it to
// what it wants, and presses.
class KeyPlayer {
public:
    explicit KeyPlayer(headless::HeadlessGame& game)
        : m_game(game)
    {
    }

    // Until another puzzle is in play, or none. False when it does not know how to go on.
    bool solvePuzzle();
    // Walks to a stop. False when no key leads there.
    bool goTo(const std::string& stop);
    bool press(const std::string& stop);
    void readPages();
    void waitUntilUnblocked();

    [[nodiscard]] std::string focus();

private:
    bool walk(const std::string& stop, std::string_view keys);
    bool perform(const play::Gesture& gesture);

    headless::HeadlessGame& m_game;
};

} // namespace veyrand::test
