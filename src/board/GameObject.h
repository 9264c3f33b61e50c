#pragma once

#include "board/TextStyle.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace veyrand::board {

// One element of the board: a chip, a button, a counter, a caption. A plain record; it is drawn by
// whoever watches the table that holds it, and knows nothing of layers. Lengths are fractions of
// the game area's height, (x, y) is the element's centre, and y grows upwards.
class GameObject {
public:
    GameObject(std::string imageName, double x, double y, double width, double height,
        double opacity, bool visible)
        : m_imageName(std::move(imageName))
        , m_x(x)
        , m_y(y)
        , m_width(width)
        , m_height(height)
        , m_opacity(opacity)
        , m_visible(visible)
    {
    }

    // The key under which the record sits in the object table. The table writes it; an entry that
    // was taken out directly, or replaced, keeps its stale key.
    [[nodiscard]] const std::optional<std::string>& keyInGameData() const { return m_key; }
    void setKeyInGameData(std::optional<std::string> key) { m_key = std::move(key); }

    // Empty for a text element.
    [[nodiscard]] const std::string& imageName() const { return m_imageName; }
    void setImageName(std::string name) { m_imageName = std::move(name); }

    // One centred line, set before the record goes into the table. Most elements have none.
    [[nodiscard]] const std::optional<TextStyle>& text() const { return m_text; }
    void setText(TextStyle text) { m_text = std::move(text); }

    // For people: the one it was given, else what it says, else what its picture is called. Empty
    // for what only pleases the eye.
    [[nodiscard]] std::string name() const;
    void setName(std::string name) { m_name = std::move(name); }

    [[nodiscard]] double x() const { return m_x; }
    void setX(double x) { m_x = x; }
    [[nodiscard]] double y() const { return m_y; }
    void setY(double y) { m_y = y; }
    [[nodiscard]] double width() const { return m_width; }
    void setWidth(double width) { m_width = width; }
    [[nodiscard]] double height() const { return m_height; }
    void setHeight(double height) { m_height = height; }
    // 0 transparent to 1 opaque.
    [[nodiscard]] double opacity() const { return m_opacity; }
    void setOpacity(double opacity) { m_opacity = opacity; }
    [[nodiscard]] bool visible() const { return m_visible; }
    void setVisible(bool visible) { m_visible = visible; }

private:
    std::optional<std::string> m_key;
    std::string m_imageName;
    std::optional<TextStyle> m_text;
    std::string m_name;
    double m_x;
    double m_y;
    double m_width;
    double m_height;
    double m_opacity;
    bool m_visible;
};

// Records are shared between the table and the drawing operations that still work on them after
// they have left it (a goal line flying off, the chips of a move under way).
using GameObjectPtr = std::shared_ptr<GameObject>;

} // namespace veyrand::board
