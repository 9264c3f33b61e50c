#pragma once

#include "platform/Quit.h"

namespace veyrand::platform {

class NotedQuit final : public Quit {
public:
    void terminate() override { m_terminated = true; }
    [[nodiscard]] bool terminated() const { return m_terminated; }

private:
    bool m_terminated = false;
};

} // namespace veyrand::platform
