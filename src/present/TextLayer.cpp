#include "present/TextLayer.h"

#include <utility>

namespace veyrand::present {

namespace {

// Font sizes are given for a game area this many points high.
constexpr double kFontSizeHeight = 900.0;

} // namespace

TextLayer::TextLayer(
    Scene& scene, board::TextStyle style, const platform::TextMetrics& metrics, double gameHeight)
    : Layer(scene)
    , m_style(std::move(style))
{
    const double em = m_style.fontSize / kFontSizeHeight * gameHeight;
    const platform::Size frame = metrics.preferredFrameSize(m_style.text);
    setBounds({ .width = static_cast<float>(frame.width * em),
        .height = static_cast<float>(frame.height * em) });
    setPosition({ .x = 0.5F, .y = 0.5F });
}

std::optional<Content> TextLayer::content() const
{
    return TextContent { m_style.text, m_style.color };
}

} // namespace veyrand::present
