#pragma once

namespace veyrand::platform {

// Ends the application. It returns: the end comes once the event in hand has been dealt with.
class Quit {
public:
    Quit() = default;
    Quit(const Quit&) = delete;
    Quit& operator=(const Quit&) = delete;
    virtual ~Quit() = default;

    virtual void terminate() = 0;
};

} // namespace veyrand::platform
