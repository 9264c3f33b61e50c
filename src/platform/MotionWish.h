#pragma once

#include <functional>

namespace veyrand::platform {

// Whether this person has asked the desktop for less motion, as most desktops let them.
class MotionWish {
public:
    MotionWish() = default;
    MotionWish(const MotionWish&) = delete;
    MotionWish& operator=(const MotionWish&) = delete;
    virtual ~MotionWish() = default;

    // False until the desktop has said so, which may be some time after it was asked.
    [[nodiscard]] virtual bool wantsLess() const = 0;

    // Called whenever the answer has become another, until another listener is set.
    virtual void setListener(std::function<void()> listener) = 0;
};

} // namespace veyrand::platform
