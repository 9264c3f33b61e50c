#pragma once

#include "platform/Clipboard.h"

namespace veyrand::platform {

class MemoryClipboard final : public Clipboard {
public:
    [[nodiscard]] std::string text() const override { return m_text; }
    void setText(const std::string& text) override { m_text = text; }

private:
    std::string m_text;
};

} // namespace veyrand::platform
