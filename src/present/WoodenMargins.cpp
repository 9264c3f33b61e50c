#include "present/WoodenMargins.h"

#include <iterator>
#include <tuple>
#include <utility>

namespace veyrand::present {

using platform::RectF;

namespace {

constexpr board::Color kShade { .red = 0.0706, .green = 0.0314, .blue = 0.0078, .alpha = 1.0 };
constexpr float kShadeStrength = 0.34F;
constexpr board::Color kBrass { .red = 0.78, .green = 0.604, .blue = 0.282, .alpha = 1.0 };
// In game heights.
constexpr float kBrassLine = 0.0024F;
constexpr float kGroove = 0.0056F; // the dark one in which the brass lies
constexpr float kGrooveStrength = 0.7F;

constexpr float kWorthFilling = 0.5F; // points; less is rounding

} // namespace

// One margin, and which way it lies from the board (in boards).
struct WoodenMargins::Side {
    RectF margin;
    float stepX = 0.0F;
    float stepY = 0.0F;
};

void WoodenMargins::setOn(bool on)
{
    if (on != m_isOn) {
        m_isOn = on;
        m_scene.setNeedsDisplay();
    }
}

void WoodenMargins::addTo(DisplayList& list, const RectF& view, const RectF& board)
{
    if (!m_isOn || list.empty() || board.isEmpty()) {
        return;
    }
    m_added = 0;
    DisplayList wood;
    const float beside = (view.width - board.width) / 2.0F;
    const float above = (view.height - board.height) / 2.0F;
    if (beside > kWorthFilling) {
        const float right = board.x + board.width;
        addSide(wood, board, { .margin = { view.x, view.y, beside, view.height }, .stepX = -1.0F });
        addSide(wood, board, { .margin = { right, view.y, beside, view.height }, .stepX = 1.0F });
    } else if (above > kWorthFilling) {
        const float top = board.y + board.height;
        addSide(wood, board, { .margin = { view.x, view.y, view.width, above }, .stepY = -1.0F });
        addSide(wood, board, { .margin = { view.x, top, view.width, above }, .stepY = 1.0F });
    }
    list.insert(list.begin() + 1, std::make_move_iterator(wood.begin()),
        std::make_move_iterator(wood.end()));
}

void WoodenMargins::addSide(DisplayList& list, const RectF& board, const Side& side)
{
    const bool across = side.stepX != 0.0F;
    const float length = across ? board.width : board.height;
    const float room = across ? side.margin.width : side.margin.height;
    // A very long window shows the board's wood more than once, turned over at every seam.
    bool turned = true;
    float covered = 0.0F;
    while (covered < room) {
        covered += length;
        add(list,
            { .content = ImageContent { .name = "WoodBackground",
                  .mirror = !turned ? Mirror::None
                      : across      ? Mirror::LeftAndRight
                                    : Mirror::TopAndBottom },
                .rect = { board.x + side.stepX * covered, board.y + side.stepY * covered,
                    board.width, board.height },
                .clip = side.margin });
        turned = !turned;
    }
    add(list,
        { .content = SolidContent { kShade },
            .rect = side.margin,
            .clip = side.margin,
            .opacity = kShadeStrength });
    for (const auto& [width, color, strength] :
        { std::tuple(kGroove, kShade, kGrooveStrength), std::tuple(kBrassLine, kBrass, 1.0F) }) {
        const float thick = width * board.height;
        RectF line = side.margin;
        if (across) {
            line.x = side.stepX < 0.0F ? board.x - thick : side.margin.x;
            line.width = thick;
        } else {
            line.y = side.stepY < 0.0F ? board.y - thick : side.margin.y;
            line.height = thick;
        }
        add(list,
            { .content = SolidContent { color },
                .rect = line,
                .clip = side.margin,
                .opacity = strength });
    }
}

void WoodenMargins::add(DisplayList& list, DisplayItem item)
{
    if (m_added == m_numbers.size()) {
        m_numbers.push_back(m_scene.nextLayerId());
    }
    item.layer = m_numbers[m_added++];
    list.push_back(std::move(item));
}

} // namespace veyrand::present
