#pragma once

#include <string>

namespace veyrand::input {

// Hears of what the game itself does not answer, or answers with a sound alone, so that it can be
// answered for the eye. Keys name elements of the board and are empty where there is none. Nothing
// the onlooker does may change the game.
class Onlooker {
public:
    Onlooker() = default;
    Onlooker(const Onlooker&) = delete;
    Onlooker& operator=(const Onlooker&) = delete;
    virtual ~Onlooker() = default;

    // Anywhere in the view or out of it, with the button held or not.
    virtual void pointerMoved() = 0;
    // A press of any kind, before anything is made of it.
    virtual void pressBegins() = 0;
    // The button went down or up, a drag began or ended, or a block is over.
    virtual void handsChanged() = 0;
    // A press that fell into a block and is not answered.
    virtual void pressLost(const std::string& key) = 0;
    // A press on a chip went on as a drag that may not start.
    virtual void dragRefused(const std::string& key) = 0;
    // A dragged chip was let go where no drop counts, and flies back.
    virtual void dropMissed(const std::string& from, const std::string& to) = 0;
    // The same, over the chip itself: a click, had the pointer not moved.
    virtual void clickMissed(const std::string& key) = 0;
    // A click, a right click or a long press has put a chip into the hand, where it stays; and one
    // that was in the hand without a button held has gone back to its place.
    virtual void chipLifted(const std::string& key) = 0;
    virtual void chipPutBack() = 0;
};

} // namespace veyrand::input
