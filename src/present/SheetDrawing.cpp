#include "present/SheetDrawing.h"

#include "board/BoardGeometry.h"
#include "present/ExtraWords.h"

#include <algorithm>
#include <array>
#include <utility>

namespace veyrand::present {

namespace {

constexpr double kThousand = 1000.0;
constexpr double kPlateShadow = 10.0; // round every plate

ExtraRect rectAt(double x, double y, double width, double height)
{
    return { .x = x / kThousand,
        .y = 1.0 - y / kThousand,
        .width = width / kThousand,
        .height = height / kThousand };
}

board::Color colourOf(SheetDrawing::Ink ink)
{
    switch (ink) {
    case SheetDrawing::Ink::Ivory:
        return { .red = 1.0, .green = 0.973, .blue = 0.902, .alpha = 1.0 };
    case SheetDrawing::Ink::Gold:
        return { .red = 1.0, .green = 0.914, .blue = 0.69, .alpha = 1.0 };
    case SheetDrawing::Ink::Pale:
        return { .red = 0.953, .green = 0.886, .blue = 0.737, .alpha = 1.0 };
    case SheetDrawing::Ink::Dark:
        return { .red = 0.20, .green = 0.125, .blue = 0.06, .alpha = 1.0 };
    case SheetDrawing::Ink::Shade:
        return { .red = 0.10, .green = 0.05, .blue = 0.016, .alpha = 1.0 };
    case SheetDrawing::Ink::Carved:
        break;
    }
    return { .red = 0.29, .green = 0.173, .blue = 0.082, .alpha = 1.0 };
}

using Size = std::pair<int, int>;
constexpr std::array kButtons { Size { 474, 70 }, Size { 400, 74 }, Size { 232, 74 },
    Size { 232, 66 }, Size { 190, 60 }, Size { 84, 70 }, Size { 66, 58 } };
constexpr std::array kCards { Size { 474, 388 }, Size { 474, 282 }, Size { 968, 112 },
    Size { 230, 118 }, Size { 154, 126 } };
constexpr std::array kPanes { Size { 968, 916 }, Size { 968, 760 }, Size { 950, 566 },
    Size { 490, 262 } };

std::string sized(std::string_view name, int width, int height)
{
    return std::string(name) + '-' + std::to_string(width) + '-' + std::to_string(height);
}

} // namespace

void SheetDrawing::wood()
{
    m_pieces.push_back({ .content = ImageContent { "WoodBackground" },
        .rect = { .x = 0.8, .y = 0.5, .width = 1.6, .height = 1.0 } });
}

void SheetDrawing::picture(
    std::string_view name, double x, double y, double width, double height, double opacity)
{
    m_pieces.push_back({ .content = ImageContent { std::string(name) },
        .rect = rectAt(x, y, width, height),
        .opacity = opacity });
}

void SheetDrawing::words(
    const std::string& text, double x, double y, double em, Ink ink, Align align, double room)
{
    const platform::Size size = m_metrics.preferredFrameSize(text);
    const double fitting = room > 0.0 ? std::min(em, room / std::max(size.width, 1.0)) : em;
    const double width = size.width * fitting;
    const double middle = align == Align::Left ? x + width / 2.0
        : align == Align::Right                ? x - width / 2.0
                                               : x;
    m_pieces.push_back({ .content = TextContent { text, colourOf(ink) },
        .rect = rectAt(middle, y, width, size.height * fitting) });
}

void SheetDrawing::title(const std::string& text)
{
    words(text, kPanelMiddle, 74, 58, Ink::Gold);
    picture("HorizontalLine", kPanelMiddle, 112, 380, 3);
}

void SheetDrawing::paragraph(
    const std::string& text, double x, double y, double em, Ink ink, double room)
{
    constexpr double kPitch = 1.28; // ems
    const std::vector<std::string> lines = broken(text, room / em, m_metrics);
    double at = y - (static_cast<double>(lines.size()) - 1.0) / 2.0 * kPitch * em;
    for (const std::string& line : lines) {
        words(line, x, at, em, ink, Align::Middle, room);
        at += kPitch * em;
    }
}

void SheetDrawing::bar(double x, double y, double width, double height, Ink ink, double opacity)
{
    m_pieces.push_back({ .content = SolidContent { colourOf(ink) },
        .rect = rectAt(x, y, width, height),
        .opacity = opacity });
}

// Whether it is lit.
bool SheetDrawing::plate(
    const std::string& key, double x, double y, int width, int height, Button look)
{
    const bool isLit = look == Button::Main || isFocused(key);
    picture(sized("SheetButton", width, height) + (isLit ? "-Lit" : ""), x, y,
        width + 2.0 * kPlateShadow, height + 2.0 * kPlateShadow);
    if (look == Button::Chosen || (look == Button::Main && isFocused(key))) {
        picture("HorizontalLine", x, y + height / 2.0 - 13.0, width * 0.7, 3);
    }
    return isLit;
}

void SheetDrawing::signButton(const std::string& key, const std::string& text,
    std::string_view sign, double x, double y, int width, int height, Button look)
{
    constexpr double kShare = 0.6; // of the plate's height
    const bool isLit = plate(key, x, y, width, height, look);
    picture(std::string(sign) + (isLit ? "-Lit" : ""), x, y, kShare * height, kShare * height);
    place(key, text, x, y, width, height);
}

void SheetDrawing::button(const std::string& key, const std::string& text, double x, double y,
    int width, int height, Button look)
{
    const bool isLit = plate(key, x, y, width, height, look);
    constexpr double kSideRoom = 36.0;
    words(text, x, y - 1.0, std::min(34.0, height * 0.47), isLit ? Ink::Ivory : Ink::Carved,
        Align::Middle, width - kSideRoom);
    place(key, text, x, y, width, height);
}

void SheetDrawing::card(double x, double y, int width, int height)
{
    picture(sized("SheetCard", width, height), x, y, width + 2.0 * kPlateShadow,
        height + 2.0 * kPlateShadow);
}

void SheetDrawing::pane(double x, double y, int width, int height)
{
    picture(sized("SheetPane", width, height), x, y, width + 2.0 * kPlateShadow,
        height + 2.0 * kPlateShadow);
}

void SheetDrawing::chips(
    const std::string& letters, double x, double y, double pitch, double opacity)
{
    double middle = x + pitch / 2.0;
    for (const char letter : letters) {
        picture(board::imageForLetter(letter), middle, y, pitch, pitch, opacity);
        middle += pitch;
    }
}

void SheetDrawing::place(const std::string& key, const std::string& text, double x, double y,
    double width, double height)
{
    m_places.push_back({ key, text, rectAt(x, y, width, height) });
}

ExtraRect puzzlesButtonPlace()
{
    return rectAt(1060, 832, 220, 84);
}

Extra puzzlesButton(const std::string& text, bool isLit, const platform::TextMetrics& metrics)
{
    SheetDrawing drawing(metrics, {});
    drawing.picture("PuzzlesButton", 1060, 832, 240, 104);
    drawing.words(text, 1060, 830, isLit ? 42 : 40, SheetDrawing::Ink::Dark);
    return { .kind = ExtraKind::Sheet,
        .key = "button-puzzles",
        .text = text,
        .rect = puzzlesButtonPlace(),
        .pieces = drawing.pieces(),
        .fade = { .in = 0.25, .out = 0.12 } };
}

std::vector<std::string> sheetPictureNames()
{
    std::vector<std::string> names { "PuzzleClosed", "PuzzleReached", "PuzzleSolved", "PuzzleAtPar",
        "PuzzleChosen", "PuzzleStar", "PuzzlesButton", "MoveTag", "MoveTagLeft", "LeftRibbon",
        "EmptySeat", "DayComing", "DayOpen", "DayAtPar", "DayOver", "BrassDisc", "NotReachable",
        "BackGold", "OnGold", "BackDark", "OnDark", "BarGold", "BarPale", "BarPlain", "BarOpen",
        "BarTrack" };
    for (const char* const sign :
        { "StepFirst", "StepBack", "StepRun", "StepPause", "StepOn", "StepLast" }) {
        names.emplace_back(sign);
        names.push_back(names.back() + "-Lit");
    }
    for (const auto& [width, height] : kButtons) {
        names.push_back(sized("SheetButton", width, height));
        names.push_back(names.back() + "-Lit");
    }
    for (const auto& [width, height] : kCards) {
        names.push_back(sized("SheetCard", width, height));
    }
    for (const auto& [width, height] : kPanes) {
        names.push_back(sized("SheetPane", width, height));
    }
    return names;
}

} // namespace veyrand::present
