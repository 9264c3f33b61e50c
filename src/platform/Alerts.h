#pragma once

#include <functional>
#include <string>

namespace veyrand::platform {

// A message to the player with one button, two or three.
struct Alert {
    enum class SuppressionBox { Hidden, Shown };

    std::string message;
    std::string informativeText;
    std::string defaultButton;
    std::string alternateButton {}; // empty: there is only the default button
    std::string otherButton {}; // empty: there is none; only beside an alternate button
    SuppressionBox suppressionBox = SuppressionBox::Hidden; // "do not ask me again"
};

struct AlertAnswer {
    // Closing the alert without a button is the alternate button, where there is one.
    enum class Button { Default, Alternate, Other };

    Button button = Button::Default;
    bool suppressed = false; // the box was on
};

// Opens alerts. The game never waits inside a call: the answer comes back through a continuation,
// which runs exactly once, after show has returned.
class Alerts {
public:
    using Answered = std::function<void(const AlertAnswer&)>;

    Alerts() = default;
    Alerts(const Alerts&) = delete;
    Alerts& operator=(const Alerts&) = delete;
    virtual ~Alerts() = default;

    virtual void show(const Alert& alert, Answered answered) = 0;
};

} // namespace veyrand::platform
