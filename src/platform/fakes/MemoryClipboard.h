#pragma once

#include "platform/Clipboard.h"

#include <optional>
#include <utility>

namespace veyrand::platform {

class MemoryClipboard final : public Clipboard {
public:
    [[nodiscard]] std::string text() const override { return m_text; }
    void setText(const std::string& text) override { m_text = text; }
    // NOLINTNEXTLINE(performance-unnecessary-value-param)
    void askForText(std::function<void(const std::string& text)> use) override
    {
        if (m_elsewhere) {
            m_use = std::move(use);
        } else {
            use(m_text);
        }
    }

    // The text was copied elsewhere, and is to be had only when somebody agrees.
    void copyElsewhere(const std::string& text) { m_elsewhere = text; }
    void agree()
    {
        if (m_elsewhere) {
            m_text = *std::exchange(m_elsewhere, std::nullopt);
        }
        if (const auto use = std::exchange(m_use, {})) {
            use(m_text);
        }
    }

private:
    std::string m_text;
    std::optional<std::string> m_elsewhere; // until somebody agrees
    std::function<void(const std::string& text)> m_use; // until then too
};

} // namespace veyrand::platform
