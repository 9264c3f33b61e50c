#pragma once

#include "board/TextStyle.h"
#include "platform/TextMetrics.h"
#include "present/Layer.h"

namespace veyrand::present {

// One centred line of text, as large as the text. It rides on a record's layer, and a press on it
// hits it, not the record's layer.
class TextLayer final : public Layer {
public:
    // The game height (points) gives the font size its scale.
    TextLayer(Scene& scene, board::TextStyle style, const platform::TextMetrics& metrics,
        double gameHeight);

    [[nodiscard]] const std::string& string() const { return m_style.text; }
    [[nodiscard]] double fontSize() const { return m_style.fontSize; }
    [[nodiscard]] const board::Color& color() const { return m_style.color; }

protected:
    [[nodiscard]] std::optional<Content> content() const override;

private:
    board::TextStyle m_style;
};

// A layer of one colour.
class SolidLayer final : public Layer {
public:
    SolidLayer(Scene& scene, const board::Color& color)
        : Layer(scene)
        , m_color(color)
    {
    }

protected:
    [[nodiscard]] std::optional<Content> content() const override
    {
        return SolidContent { m_color };
    }

private:
    board::Color m_color;
};

} // namespace veyrand::present
