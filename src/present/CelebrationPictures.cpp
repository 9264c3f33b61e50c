#include "present/CelebrationPictures.h"

#include "board/BoardGeometry.h"
#include "present/ExtraPictures.h"

#include <algorithm>
#include <cmath>

namespace veyrand::present {

using namespace extras;

namespace {

constexpr double kPlateX = 1.095;
constexpr double kPlateY = 0.455;
constexpr double kPlateWidth = 0.560;
constexpr double kPlateHeight = 0.156;
constexpr double kHeadlineEm = 0.060;
constexpr double kHeadlineUp = 0.024;
constexpr double kBelowEm = 0.032;
constexpr double kBelowDown = 0.040;
constexpr double kHighestPlate = 0.72; // over the first lines, when the last ones fill the board
constexpr board::Color kEngraved { .red = 0.231, .green = 0.133, .blue = 0.063, .alpha = 1.0 };

// Heading plates are drawn in steps of width, in thousandths of the game's height.
constexpr int kHeadingNarrowest = 240;
constexpr int kHeadingWidest = 900;
constexpr int kHeadingStep = 60;
constexpr double kHeadingHeight = 0.079;
constexpr double kHeadingPadding = 0.06;

ExtraPiece words(const std::string& text, double x, double y, double em, double widest,
    const platform::TextMetrics& metrics)
{
    const platform::Size size = metrics.preferredFrameSize(text);
    const double fitting = std::min(em, widest / std::max(size.width, 1.0));
    return { .content = TextContent { text, kEngraved },
        .rect
        = { .x = x, .y = y, .width = size.width * fitting, .height = size.height * fitting } };
}

double turnOf(unsigned column)
{
    return kDustColumn * static_cast<double>(column);
}

} // namespace

std::string dustNameOf(const std::string& stone)
{
    return stone.substr(0, stone.size() - std::string_view("Chip").size()) + "Dust";
}

Extra litLine(unsigned row, unsigned length)
{
    // Beyond the outer stones; the light is soft over a share of its length.
    const double reach = 0.03 + 0.006 * length;
    const double width = board::kChipSize * length + 2.0 * reach;
    const ExtraRect rect { .x
        = board::xPositionForColumn(0) - board::kChipSize / 2.0 - reach + width / 2.0,
        .y = board::yPositionForRow(row),
        .width = width,
        .height = 0.11 };
    return { .kind = ExtraKind::Light,
        .key = rowKey(row),
        .text = {},
        .rect = rect,
        .band = ExtraBand::OnWood,
        .pieces = { { .content = ImageContent { "LineGlow" }, .rect = rect } },
        .fade = { .in = kLightRuns / 2.0, .out = 0.6 },
        .duration = kLightStays };
}

Extra runningLight(unsigned row, unsigned length)
{
    const ExtraRect rect { .x = board::xPositionForColumn(0),
        .y = board::yPositionForRow(row),
        .width = 0.13,
        .height = 0.13 };
    return { .kind = ExtraKind::Light,
        .key = rowKey(row),
        .text = {},
        .rect = rect,
        .pieces = { { .content = ImageContent { "Spark" }, .rect = rect } },
        .fade = { .in = 0.15, .out = 0.3 },
        .motion = ExtraMotion::Travel,
        .duration = kLightRuns,
        .wayX = board::kChipSize * (length - 1.0) };
}

Extra brassPlate(unsigned row, const std::string& headline, const std::string& below,
    const platform::TextMetrics& metrics)
{
    const double line = board::yPositionForRow(row);
    const double goal = board::yPositionForRow(board::kGoalRow);
    const bool hasRoomBelow = line - goal > kPlateHeight + 2.0 * board::kChipSize;
    const double y = hasRoomBelow ? std::min(kPlateY, (line + goal) / 2.0) : kHighestPlate;
    const ExtraRect body { .x = kPlateX, .y = y, .width = kPlateWidth, .height = kPlateHeight };
    const double room = kPlateWidth - 0.09;
    return { .kind = ExtraKind::Plate,
        .key = "plate",
        .text = headline,
        .rect = body,
        .pieces = { { .content = ImageContent { "BrassPlate" },
                        .rect = { .x = body.x,
                            .y = body.y,
                            .width = body.width + 2.0 * kShadowRoom,
                            .height = body.height + 2.0 * kShadowRoom } },
            words(headline, body.x, body.y + kHeadlineUp, kHeadlineEm, room, metrics),
            words(below, body.x, body.y - kBelowDown, kBelowEm, room, metrics) },
        .slot = "plate",
        .fade = kPlateFade,
        .wayY = kPlateRises };
}

Extra vanishingStone(char letter, unsigned column, unsigned row)
{
    const ExtraRect place = placeOfChip(column, row);
    return { .kind = ExtraKind::Dust,
        .key = board::generateKeyChipKey(column, row),
        .text = {},
        .rect = place,
        .pieces = { { .content = ImageContent { std::string(board::imageForLetter(letter)) },
            .rect = place } },
        .fade = { .out = kDustBegins },
        .duration = turnOf(column) + kDustBegins,
        .isCompanion = true };
}

Extra dustOf(char letter, unsigned column, unsigned row)
{
    ExtraRect rect = placeOfChip(column, row);
    rect.width = kDustSize;
    rect.height = kDustSize;
    return { .kind = ExtraKind::Dust,
        .key = board::generateKeyChipKey(column, row),
        .text = {},
        .rect = rect,
        .pieces
        = { { .content = ImageContent { dustNameOf(std::string(board::imageForLetter(letter))) },
            .rect = rect } },
        .fade = { .in = 0.05, .out = kDust * 0.7 },
        .motion = ExtraMotion::Burst,
        .duration = kDust,
        .delay = turnOf(column),
        .wayX = 0.045,
        .wayY = 0.075,
        .growth = 1.5 };
}

Extra headingPlate(const std::string& key, const ExtraRect& heading)
{
    const int thousandths = static_cast<int>(std::ceil((heading.width + kHeadingPadding) * 1000.0));
    const int steps
        = std::max(0, (thousandths - kHeadingNarrowest + kHeadingStep - 1) / kHeadingStep);
    const int width = std::min(kHeadingNarrowest + steps * kHeadingStep, kHeadingWidest);
    const ExtraRect body {
        .x = heading.x, .y = heading.y, .width = width / 1000.0, .height = kHeadingHeight
    };
    return { .kind = ExtraKind::Plate,
        .key = key,
        .text = {},
        .rect = body,
        .band = ExtraBand::UnderWords,
        .pieces = { { .content = ImageContent { "HeadingPlate-" + std::to_string(width) },
            .rect = { .x = body.x,
                .y = body.y,
                .width = body.width + 2.0 * kShadowRoom,
                .height = body.height + 2.0 * kShadowRoom } } },
        .fade = { .in = 0.5, .out = 0.0 } };
}

Extra medalFor(int rank)
{
    const ExtraRect rect { .x = 0.8, .y = 0.815, .width = 0.31, .height = 0.21 };
    const std::string name = "Medal-" + std::to_string(std::clamp(rank, 1, kMedals));
    return { .kind = ExtraKind::Plate,
        .key = "medal",
        .text = {},
        .rect = rect,
        .band = ExtraBand::OverMessages,
        .pieces = { { .content = ImageContent { name }, .rect = rect } },
        .fade = kMedalFade,
        .wayY = -kMedalDrops };
}

std::vector<std::string> celebrationPictureNames()
{
    std::vector<std::string> names { "LineGlow", "Spark", "BrassPlate" };
    for (const char letter : { 'Y', 'R', 'G', 'B' }) {
        names.push_back(dustNameOf(std::string(board::imageForLetter(letter))));
    }
    for (int width = kHeadingNarrowest; width <= kHeadingWidest; width += kHeadingStep) {
        names.push_back("HeadingPlate-" + std::to_string(width));
    }
    for (int medal = 1; medal <= kMedals; ++medal) {
        names.push_back("Medal-" + std::to_string(medal));
    }
    return names;
}

} // namespace veyrand::present
