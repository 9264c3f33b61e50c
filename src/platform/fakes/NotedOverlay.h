#pragma once

#include "platform/OverlayWindow.h"

#include <optional>
#include <string>

namespace veyrand::platform {

class NotedOverlay final : public OverlayWindow {
public:
    struct Opened {
        RectF frame;
        std::string imageName;
    };

    void open(const RectF& frame, std::string_view imageName) override
    {
        m_opened = Opened { frame, std::string(imageName) };
    }
    [[nodiscard]] const std::optional<Opened>& opened() const { return m_opened; }

private:
    std::optional<Opened> m_opened;
};

} // namespace veyrand::platform
