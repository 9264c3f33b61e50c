#include "present/ExtraWords.h"

#include "language/Words.h"
#include "present/ExtraPictures.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace veyrand::present {

using namespace extras;

namespace {

// Plates are drawn in steps of width, so that their corners keep their shape. Thousandths of the
// game's height.
constexpr int kTipNarrowest = 180;
constexpr int kTipWidest = 660;
constexpr int kTipStep = 60;
constexpr int kWhisperNarrowest = 240;
constexpr int kWhisperWidest = 560;
constexpr int kWhisperStep = 40;
constexpr int kWhisperLowest = 80; // of several lines
constexpr int kWhisperTallest = 230;
constexpr int kWhisperStepUp = 30;
constexpr std::array kTipHeights { 56, 92, 128 };

constexpr double kTipEm = 0.028;
constexpr double kTipPitch = 0.036;
constexpr double kTipPadding = 0.044; // of both sides together
constexpr double kTipGap = 0.016; // from the thing to the plate; the nose lies there
constexpr double kNoseLength = 0.020;
constexpr double kNoseWidth = 0.030;
constexpr double kBoardMargin = 0.012;

constexpr double kWhisperX = 0.3;
constexpr double kWhisperY = 0.044;
constexpr double kWhisperHeight = 0.05;
constexpr double kWhisperEm = 0.031;
constexpr double kWhisperSmallest = 0.024;
constexpr double kWhisperPadding = 0.05;

constexpr board::Color kTipInk { .red = 0.20, .green = 0.125, .blue = 0.06, .alpha = 1.0 };
constexpr board::Color kWhisperInk { .red = 1.0, .green = 0.953, .blue = 0.84, .alpha = 1.0 };

int stepFor(double width, int narrowest, int widest, int step)
{
    const int thousandths = static_cast<int>(std::ceil(width * 1000.0));
    const int steps = std::max(0, (thousandths - narrowest + step - 1) / step);
    return std::min(narrowest + steps * step, widest);
}

ExtraPiece line(const std::string& text, double x, double y, double em, const board::Color& color,
    const platform::TextMetrics& metrics)
{
    const platform::Size size = metrics.preferredFrameSize(text);
    return { .content = TextContent { text, color },
        .rect = { .x = x, .y = y, .width = size.width * em, .height = size.height * em } };
}

ExtraPiece plate(const std::string& name, const ExtraRect& body, double size)
{
    return { .content = ImageContent { name },
        .rect = { .x = body.x,
            .y = body.y,
            .width = body.width + 2.0 * kShadowRoom * size,
            .height = body.height + 2.0 * kShadowRoom * size } };
}

enum class Side { Left, Right, Above, Below };

// Things of the panel are explained to their right, the delete buttons to their left, where no
// stone lies, all others below or above them: beside a stone lie others, and beside a medal lies
// its button.
Side sideFor(const ExtraRect& thing)
{
    if (thing.x < 0.62) {
        return Side::Right;
    }
    if (thing.x < 0.67) {
        return Side::Left;
    }
    return thing.y > 0.5 ? Side::Below : Side::Above;
}

struct Layout {
    ExtraRect body;
    ExtraPiece nose;
};

Layout layOut(const ExtraRect& thing, double width, double height, double size)
{
    Side side = sideFor(thing);
    const double roomOnTheLeft = thing.x - thing.width / 2.0 - kTipGap * size - kBoardMargin;
    if (side == Side::Left && width > roomOnTheLeft) {
        side = thing.y > 0.5 ? Side::Below : Side::Above; // large letters
    }
    const bool beside = side == Side::Right || side == Side::Left;
    const double away
        = kTipGap * size + (beside ? thing.width + width : thing.height + height) / 2.0;
    const double sign = side == Side::Right || side == Side::Above ? 1.0 : -1.0;
    const auto inside = [](double centre, double length, double end) {
        return std::clamp(centre, kBoardMargin + length / 2.0, end - kBoardMargin - length / 2.0);
    };
    Layout layout { .body = { .x = inside(thing.x + (beside ? sign * away : 0.0), width, 1.6),
                        .y = inside(thing.y + (beside ? 0.0 : sign * away), height, 1.0),
                        .width = width,
                        .height = height },
        .nose = {} };
    const char* const name = side == Side::Right ? "TipNoseLeft"
        : side == Side::Left                     ? "TipNoseRight"
        : side == Side::Above                    ? "TipNoseDown"
                                                 : "TipNoseUp";
    const double toNose = (beside ? width : height) / 2.0 + (kNoseLength / 2.0 - 0.0045) * size;
    layout.nose = { .content = ImageContent { name },
        .rect = { .x = beside ? layout.body.x - sign * toNose : thing.x,
            .y = beside ? thing.y : layout.body.y - sign * toNose,
            .width = (beside ? kNoseLength : kNoseWidth) * size,
            .height = (beside ? kNoseWidth : kNoseLength) * size } };
    return layout;
}

// A text in lines, how many times the usual size it can have, and how large its letters are on a
// plate of that size: smaller than usual only where the largest plate would not hold them.
struct Fitted {
    std::vector<std::string> lines;
    double size = 1.0;
    double em = kTipEm;
};

Fitted fitted(const std::string& text, const ExtraRect& thing, double size,
    const platform::TextMetrics& metrics)
{
    constexpr double kLongestLine = 0.42;
    constexpr double kStep = 0.125;
    constexpr double kSmaller = 0.95;
    const double room = sideFor(thing) == Side::Right
        ? 1.6 - kBoardMargin - (thing.x + thing.width / 2.0 + kTipGap * size)
        : 1.6 - 2.0 * kBoardMargin;
    for (;; size -= kStep) {
        const double widest = std::min(kTipWidest / 1000.0, room / size) - kTipPadding;
        std::vector<std::string> lines
            = broken(text, std::min(kLongestLine, widest) / kTipEm, metrics);
        if (lines.size() > kTipHeights.size()) {
            lines = broken(text, widest / kTipEm, metrics);
        }
        double em = kTipEm;
        while (size <= 1.0 && lines.size() > kTipHeights.size()) {
            em *= kSmaller;
            lines = broken(text, widest / em, metrics);
        }
        if (lines.size() <= kTipHeights.size()) {
            return { std::move(lines), size, em };
        }
    }
}

Extra whisperOn(const ExtraRect& body, const std::string& text, std::vector<ExtraPiece> pieces)
{
    return { .kind = ExtraKind::Whisper,
        .key = "whisper",
        .text = text,
        .rect = body,
        .pieces = std::move(pieces),
        .slot = "whisper",
        .fade = kWhisperFade };
}

// In several lines on a plate that grows upwards: below it lies the board's edge, beside it the
// goal.
Extra largeWhisper(const std::string& text, const platform::TextMetrics& metrics, double em)
{
    constexpr double kRoom = kWhisperWidest / 1000.0 - kWhisperPadding;
    constexpr double kPitch = 1.25; // ems
    constexpr double kRim = 0.03; // of both sides together
    constexpr double kBottom = kWhisperY - kWhisperHeight / 2.0;
    constexpr double kStep = 0.95;
    std::vector<std::string> lines = broken(text, kRoom / em, metrics);
    const auto tall = [&] { return static_cast<double>(lines.size()) * kPitch * em + kRim; };
    const auto isTooWide = [&](const std::string& words) { // of one word, which is not broken
        return metrics.preferredFrameSize(words).width * em > kRoom;
    };
    while (
        tall() > kWhisperTallest / 1000.0 || std::any_of(lines.begin(), lines.end(), isTooWide)) {
        em *= kStep;
        lines = broken(text, kRoom / em, metrics);
    }
    const int height = stepFor(tall(), kWhisperLowest, kWhisperTallest, kWhisperStepUp);
    const ExtraRect body { .x = kWhisperX,
        .y = kBottom + height / 2000.0,
        .width = kWhisperWidest / 1000.0,
        .height = height / 1000.0 };
    std::vector<ExtraPiece> pieces { plate(
        "WhisperPlate-" + std::to_string(kWhisperWidest) + '-' + std::to_string(height), body,
        1.0) };
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const double fromMiddle
            = (static_cast<double>(lines.size()) - 1.0) / 2.0 - static_cast<double>(i);
        pieces.push_back(
            line(lines[i], kWhisperX, body.y + fromMiddle * kPitch * em, em, kWhisperInk, metrics));
    }
    return whisperOn(body, text, std::move(pieces));
}

} // namespace

std::vector<std::string> broken(
    const std::string& text, double width, const platform::TextMetrics& metrics)
{
    const auto lengthOf
        = [&metrics](const std::string& words) { return metrics.preferredFrameSize(words).width; };
    const double whole = lengthOf(text);
    const double count = std::max(1.0, std::ceil(whole / width));
    // A little longer than an equal share, so that the last line is not the longest.
    const double share = count > 1.0 ? std::min(width, whole / count * 1.12) : width;
    std::vector<std::string> lines;
    for (const std::string& word : language::wordsIn(text)) {
        if (!lines.empty() && lengthOf(lines.back() + ' ' + word) <= share) {
            lines.back() += ' ' + word;
        } else {
            lines.push_back(word);
        }
    }
    return lines;
}

Extra tipFor(const std::string& key, const ExtraRect& thing, const std::string& text,
    const platform::TextMetrics& metrics, double size)
{
    const auto [lines, times, em] = fitted(text, thing, size, metrics);
    double longest = 0.0;
    for (const std::string& words : lines) {
        longest = std::max(longest, metrics.preferredFrameSize(words).width * em);
    }
    const int width = stepFor(longest + kTipPadding, kTipNarrowest, kTipWidest, kTipStep);
    const Layout layout = layOut(
        thing, times * width / 1000.0, times * kTipHeights.at(lines.size() - 1) / 1000.0, times);
    Extra extra { .kind = ExtraKind::Tip,
        .key = key,
        .text = text,
        .rect = layout.body,
        .band = ExtraBand::OverMessages,
        .slot = "tip " + key,
        .fade = kTipFade };
    extra.pieces.push_back(
        plate("TipPlate-" + std::to_string(width) + '-' + std::to_string(lines.size()), layout.body,
            times));
    extra.pieces.push_back(layout.nose);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const double fromMiddle
            = (static_cast<double>(lines.size()) - 1.0) / 2.0 - static_cast<double>(i);
        extra.pieces.push_back(line(lines[i], layout.body.x,
            layout.body.y + fromMiddle * kTipPitch * times, em * times, kTipInk, metrics));
    }
    return extra;
}

Extra tipBeside(Extra tip, const ExtraRect& stone, double size)
{
    const ExtraRect body = tip.rect;
    const double left = stone.x + stone.width / 2.0 + kTipGap * size;
    if (left + body.width + kBoardMargin > 1.6) {
        return tip;
    }
    const double right = left + body.width / 2.0 - body.x;
    const double up = std::min(stone.y, 1.0 - kBoardMargin - body.height / 2.0) - body.y;
    tip.rect.x += right;
    tip.rect.y += up;
    for (ExtraPiece& piece : tip.pieces) {
        piece.rect.x += right;
        piece.rect.y += up;
    }
    tip.pieces[1] = { .content = ImageContent { "TipNoseLeft" },
        .rect = { .x = left - (kNoseLength / 2.0 - 0.0045) * size,
            .y = stone.y,
            .width = kNoseLength * size,
            .height = kNoseWidth * size } };
    return tip;
}

Extra whisper(const std::string& text, const platform::TextMetrics& metrics, double size)
{
    const double ems = metrics.preferredFrameSize(text).width;
    constexpr double kRoom = kWhisperWidest / 1000.0 - kWhisperPadding;
    const double em = std::clamp(kRoom / std::max(ems, 1.0), kWhisperSmallest, kWhisperEm);
    if (size > 1.0 || ems * em > kRoom) {
        return largeWhisper(text, metrics, em * size);
    }
    const int width
        = stepFor(ems * em + kWhisperPadding, kWhisperNarrowest, kWhisperWidest, kWhisperStep);
    const ExtraRect body {
        .x = kWhisperX, .y = kWhisperY, .width = width / 1000.0, .height = kWhisperHeight
    };
    return whisperOn(body, text,
        { plate("WhisperPlate-" + std::to_string(width), body, 1.0),
            line(text, kWhisperX, kWhisperY, em, kWhisperInk, metrics) });
}

std::vector<std::string> wordPictureNames()
{
    std::vector<std::string> names { "TipNoseUp", "TipNoseRight", "TipNoseDown", "TipNoseLeft" };
    for (int width = kTipNarrowest; width <= kTipWidest; width += kTipStep) {
        for (std::size_t lines = 1; lines <= kTipHeights.size(); ++lines) {
            names.push_back("TipPlate-" + std::to_string(width) + '-' + std::to_string(lines));
        }
    }
    for (int width = kWhisperNarrowest; width <= kWhisperWidest; width += kWhisperStep) {
        names.push_back("WhisperPlate-" + std::to_string(width));
    }
    for (int height = kWhisperLowest; height <= kWhisperTallest; height += kWhisperStepUp) {
        names.push_back(
            "WhisperPlate-" + std::to_string(kWhisperWidest) + '-' + std::to_string(height));
    }
    return names;
}

} // namespace veyrand::present
