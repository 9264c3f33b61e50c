#include "present/FocusPictures.h"

#include "board/Buttons.h"
#include "board/ElementKey.h"

#include <array>

namespace veyrand::present {

namespace {

using board::ButtonAction;
using board::ButtonScreen;

// A ring's picture, its size, and how far its middle lies above the thing's, whose shadow is part
// of it. In game heights, as the pictures are drawn.
struct Ring {
    const char* picture = nullptr;
    double width = 0.0;
    double height = 0.0;
    double rise = 0.0;
};

constexpr Ring kStone { "FocusStone", 0.101, 0.101 };
constexpr Ring kDelete { "FocusDelete", 0.076, 0.076 };
constexpr Ring kPanel { "FocusPanel", 0.179, 0.098, 0.001 };
constexpr Ring kTitle { "FocusTitle", 0.309, 0.149, 0.0015 };
constexpr Ring kAnswer { "FocusAnswer", 0.449, 0.145, 0.0015 };
constexpr Ring kHarder { "FocusHarder", 0.227, 0.116, 0.001 };
constexpr Ring kEasier { "FocusEasier", 0.227, 0.116, 0.001 };

const Ring* ringFor(const std::string& key)
{
    if (board::isChipKey(key)) {
        return &kStone;
    }
    if (board::isDeleteKey(key)) {
        return &kDelete;
    }
    const board::Button* const button = board::buttonWithLitFace(key);
    if (button == nullptr) {
        return nullptr;
    }
    if (button->action == ButtonAction::Harder) {
        return &kHarder;
    }
    if (button->action == ButtonAction::Easier) {
        return &kEasier;
    }
    return button->screen == ButtonScreen::Board   ? &kPanel
        : button->screen == ButtonScreen::Question ? &kAnswer
                                                   : &kTitle;
}

constexpr board::Color kDark { .red = 0.0706, .green = 0.0314, .blue = 0.0078, .alpha = 1.0 };
constexpr board::Color kLight { .red = 1.0, .green = 0.9725, .blue = 0.902, .alpha = 1.0 };

// The four sides of a frame along the inside of a rectangle.
void addFrame(
    Extra& extra, const ExtraRect& rect, double inset, double thick, const board::Color& color)
{
    const double width = rect.width - 2.0 * inset;
    const double height = rect.height - 2.0 * inset;
    for (const double side : { -1.0, 1.0 }) {
        extra.pieces.push_back({ .content = SolidContent { color },
            .rect = { .x = rect.x,
                .y = rect.y + side * (height - thick) / 2.0,
                .width = width,
                .height = thick } });
        extra.pieces.push_back({ .content = SolidContent { color },
            .rect = { .x = rect.x + side * (width - thick) / 2.0,
                .y = rect.y,
                .width = thick,
                .height = height } });
    }
}

} // namespace

Extra focusRing(const std::string& key, const ExtraRect& thing)
{
    const Ring* const ring = ringFor(key);
    const bool isOfMessage = ring == nullptr || ring == &kAnswer;
    Extra extra { .kind = ExtraKind::Focus,
        .key = key,
        .text = {},
        .rect = thing,
        .band = isOfMessage ? ExtraBand::OverMessages : ExtraBand::OnBoard,
        .slot = "focus" };
    if (ring != nullptr) {
        extra.rect.y += ring->rise;
        extra.rect.width = ring->width;
        extra.rect.height = ring->height;
        extra.pieces.push_back({ .content = ImageContent { ring->picture }, .rect = extra.rect });
        return extra;
    }
    constexpr double kLine = 0.0022;
    constexpr double kMargin = 0.006; // the shadow of a pane
    addFrame(extra, thing, kMargin, 4.0 * kLine, kDark);
    addFrame(extra, thing, kMargin + kLine, 2.0 * kLine, kLight);
    return extra;
}

std::vector<std::string> focusPictureNames()
{
    std::vector<std::string> names;
    for (const Ring* const ring :
        { &kStone, &kDelete, &kPanel, &kTitle, &kAnswer, &kHarder, &kEasier }) {
        names.emplace_back(ring->picture);
    }
    return names;
}

} // namespace veyrand::present
