#include "present/FinalePictures.h"

#include "board/BoardGeometry.h"
#include "present/CelebrationPictures.h"

#include <array>
#include <cmath>
#include <numbers>

namespace veyrand::present {

using namespace extras;

namespace {

// Where a page has its medal: on the middle of the pane's upper edge.
constexpr double kCrestX = 0.8;
constexpr double kCrestY = 0.815;

constexpr std::array kLetters { 'Y', 'R', 'G', 'B' };

// Few sizes, so that each is drawn once and kept. In game heights; most stones are far away.
constexpr std::array kStoneSizes { 0.016, 0.016, 0.026, 0.026, 0.036, 0.036, 0.046, 0.056, 0.066 };
constexpr double kSlowest = 11.0; // s over the board
constexpr double kFastest = 6.0;
constexpr double kTrailLength = 2.2; // stones
constexpr double kTrailWidth = 0.5;

constexpr int kLastRankOnTheWay = kMedals - 1;
constexpr double kMedalsY = 0.338;
constexpr double kMedalPitch = 0.077;
constexpr double kWordsY = 0.252;
constexpr double kWordsEm = 0.036;
constexpr board::Color kWords { .red = 1.0, .green = 0.973, .blue = 0.902, .alpha = 1.0 };

// Evenly spread over 0 to 1 however many there are, and never in an order that shows.
double spread(unsigned number, double ratio)
{
    const double product = number * ratio;
    return product - std::floor(product);
}

std::string numbered(const char* what, unsigned number)
{
    return std::string(what) + '-' + std::to_string(number);
}

} // namespace

Extra rays()
{
    const ExtraRect rect { .x = kCrestX, .y = kCrestY, .width = 1.0, .height = 1.0 };
    return { .kind = ExtraKind::Light,
        .key = "rays",
        .text = {},
        .rect = rect,
        .band = ExtraBand::OnWood,
        .pieces = { { .content = ImageContent { "Rays" }, .rect = rect } },
        .fade = { .in = 0.9, .out = 0.5 } };
}

Extra moveSeal()
{
    const ExtraRect rect { .x = kCrestX, .y = kCrestY, .width = 0.19, .height = 0.19 };
    return { .kind = ExtraKind::Plate,
        .key = "seal",
        .text = {},
        .rect = rect,
        .band = ExtraBand::OverMessages,
        .pieces = { { .content = ImageContent { "MoveSeal" }, .rect = rect } },
        .fade = kMedalFade,
        .wayY = -kMedalDrops };
}

Extra sealDust(unsigned grain)
{
    const double angle = 2.0 * std::numbers::pi * grain / kSealGrains;
    constexpr double kNear = 0.06; // from the seal's middle
    constexpr double kFar = 0.11;
    const ExtraRect rect { .x = kCrestX + kNear * std::sin(angle),
        .y = kCrestY + kNear * std::cos(angle),
        .width = kSealDust,
        .height = kSealDust };
    const std::string stone(board::imageForLetter(kLetters.at(grain % kLetters.size())));
    return { .kind = ExtraKind::Dust,
        .key = numbered("seal", grain),
        .text = {},
        .rect = rect,
        .band = ExtraBand::OverMessages,
        .pieces = { { .content = ImageContent { dustNameOf(stone) }, .rect = rect } },
        .fade = { .in = 0.05, .out = kDust * 0.7 },
        .motion = ExtraMotion::Burst,
        .duration = kDust,
        .delay = kMedalFade.travel * 0.6,
        .wayX = kFar * std::sin(angle),
        .wayY = kFar * std::cos(angle),
        .growth = 1.5 };
}

Extra risingStone(unsigned number)
{
    // Three ratios that have nothing to do with one another.
    const double x = 0.02 + 1.56 * spread(number, 0.6180339887);
    const double phase = spread(number, 0.7548776662);
    const auto step = static_cast<std::size_t>(
        spread(number, 0.5698402910) * static_cast<double>(kStoneSizes.size()));
    const double size = kStoneSizes.at(step);
    const double nearness = static_cast<double>(step) / static_cast<double>(kStoneSizes.size() - 1);
    const double below = size * (kTrailLength + 1.0);

    const ExtraRect rect { .x = x, .y = -size, .width = size, .height = size };
    const double length = size * kTrailLength;
    const ExtraRect trail {
        .x = x, .y = rect.y - length / 2.0, .width = size * kTrailWidth, .height = length
    };
    const std::string stone(board::imageForLetter(kLetters.at(number % kLetters.size())));
    return { .kind = ExtraKind::Dust,
        .key = numbered("rising", number),
        .text = {},
        .rect = rect,
        .band = ExtraBand::OnWood,
        .pieces = { { .content = ImageContent { "Trail" }, .rect = trail },
            { .content = ImageContent { stone }, .rect = rect, .opacity = 0.7 + 0.3 * nearness } },
        .fade = { .in = 0.4, .out = 1.2 },
        .motion = ExtraMotion::Recur,
        .wayY = 1.0 + below,
        .period = kSlowest - (kSlowest - kFastest) * nearness,
        .phase = phase };
}

Extra achievedMedal(int rank)
{
    const ExtraRect rect { .x = kCrestX + kMedalPitch * (rank - (kLastRankOnTheWay + 1) / 2.0),
        .y = kMedalsY,
        .width = 0.1033,
        .height = 0.07 };
    return { .kind = ExtraKind::Plate,
        .key = numbered("medal", static_cast<unsigned>(rank)),
        .text = {},
        .rect = rect,
        .band = ExtraBand::OverMessages,
        .pieces = { { .content = ImageContent { numbered("Medal", static_cast<unsigned>(rank)) },
            .rect = rect } },
        .fade = { .in = 0.3, .out = 0.0 },
        .delay = 0.8 + kMedalAfterMedal * rank };
}

Extra finaleWords(const std::string& words, const platform::TextMetrics& metrics)
{
    const platform::Size size = metrics.preferredFrameSize(words);
    const ExtraRect rect {
        .x = kCrestX, .y = kWordsY, .width = size.width * kWordsEm, .height = size.height * kWordsEm
    };
    return { .kind = ExtraKind::Plate,
        .key = "finale",
        .text = words,
        .rect = rect,
        .band = ExtraBand::OverMessages,
        .pieces = { { .content = TextContent { words, kWords }, .rect = rect } },
        .fade = { .in = 0.5, .out = 0.0 },
        .delay = 0.8 + kMedalAfterMedal * (kLastRankOnTheWay + 2) };
}

std::vector<std::string> finalePictureNames()
{
    return { "Rays", "MoveSeal", "Trail" };
}

} // namespace veyrand::present
