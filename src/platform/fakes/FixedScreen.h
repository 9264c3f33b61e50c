#pragma once

#include "platform/Screen.h"

namespace veyrand::platform {

class FixedScreen final : public Screen {
public:
    explicit FixedScreen(Size size)
        : m_size(size)
    {
    }
    [[nodiscard]] Size mainScreenSize() const override { return m_size; }

private:
    Size m_size;
};

} // namespace veyrand::platform
