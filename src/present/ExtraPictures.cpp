#include "present/ExtraPictures.h"

#include "board/BoardGeometry.h"
#include "present/CelebrationPictures.h"
#include "present/ExtraWords.h"
#include "present/FinalePictures.h"
#include "present/FocusPictures.h"
#include "present/SheetDrawing.h"

#include <array>

namespace veyrand::present {

using namespace extras;

namespace {

// The field right of the panel.
constexpr double kFieldLeft = 0.592;
constexpr double kFieldRight = 1.6;
constexpr double kFieldWidth = kFieldRight - kFieldLeft;
constexpr double kFieldX = (kFieldLeft + kFieldRight) / 2.0;

// The last place of a line, and what stands for the board's edge beside it.
constexpr unsigned kLastColumn = 11;
constexpr double kEdgeX = 1.584;

ExtraRect rowRect(unsigned row)
{
    return { .x = kFieldX,
        .y = board::yPositionForRow(row),
        .width = kFieldWidth,
        .height = board::kChipSize };
}

ExtraPiece veil(unsigned row, double strength)
{
    return { .content
        = SolidContent { { .red = 0.0706, .green = 0.0314, .blue = 0.0078, .alpha = 1.0 } },
        .rect = rowRect(row),
        .opacity = strength };
}

ExtraPiece picture(const char* name, const ExtraRect& rect, double opacity = 1.0)
{
    return { .content = ImageContent { name }, .rect = rect, .opacity = opacity };
}

ExtraRect squareAt(const ExtraRect& place, double side)
{
    return { .x = place.x, .y = place.y, .width = side, .height = side };
}

void touchRow(Extra& extra, unsigned row, unsigned length, double opacity)
{
    for (unsigned column = 0; column < length; ++column) {
        extra.touches.push_back(
            { .key = board::generateKeyChipKey(column, row), .opacity = opacity });
    }
}

} // namespace

std::string rowKey(unsigned row)
{
    return "row-" + std::to_string(row);
}

ExtraRect placeOfChip(unsigned column, unsigned row)
{
    return { .x = board::xPositionForColumn(column),
        .y = board::yPositionForRow(row),
        .width = board::kChipSize,
        .height = board::kChipSize };
}

Extra rowInPlay(unsigned row, double share)
{
    const ExtraRect rect = rowRect(row);
    return { .kind = ExtraKind::Row,
        .key = rowKey(row),
        .text = {},
        .rect = rect,
        .band = ExtraBand::OnWood,
        .pieces = { picture("RowLight", rect, share) },
        .slot = "row in play",
        .fade = kRowFade };
}

Extra restingRow(unsigned row, unsigned length)
{
    Extra extra { .kind = ExtraKind::Row,
        .key = rowKey(row),
        .text = {},
        .rect = rowRect(row),
        .band = ExtraBand::OnWood,
        .slot = "rest " + rowKey(row),
        .fade = kRowFade,
        .isCompanion = true };
    extra.pieces.push_back(veil(row, kRestingVeil));
    touchRow(extra, row, length, kRestingChip);
    return extra;
}

Extra lightUnder(const std::string& key, const ExtraRect& thing)
{
    const double side = kHalo / board::kChipSize * thing.width;
    const double shine = thing.width * kHoverScale;
    return { .kind = ExtraKind::Light,
        .key = key,
        .text = {},
        .rect = squareAt(thing, side),
        .pieces
        = { picture("Halo", squareAt(thing, side)), picture("Shine", squareAt(thing, shine)) },
        .touches = { { .key = key, .scale = kHoverScale } },
        .slot = "light " + key,
        .fade = kHoverFade };
}

Extra heldDown(const std::string& key, const ExtraRect& thing)
{
    return { .kind = ExtraKind::Light,
        .key = key,
        .text = {},
        .rect = thing,
        .touches = { { .key = key, .scale = kHeldScale } },
        .slot = "held " + key,
        .fade = kHeldFade };
}

Extra targetRing(unsigned column, unsigned row)
{
    const ExtraRect rect = squareAt(placeOfChip(column, row), kRing);
    return { .kind = ExtraKind::Ring,
        .key = board::generateKeyChipKey(column, row),
        .text = {},
        .rect = rect,
        .pieces = { picture("Ring", rect) },
        .fade = kRingFade };
}

Extra doomedRows(const std::vector<unsigned>& lengths, unsigned first)
{
    const auto count = static_cast<unsigned>(lengths.size());
    ExtraRect rect = rowRect(first);
    rect.y = (board::yPositionForRow(first) + board::yPositionForRow(count - 1)) / 2.0;
    rect.height = board::kChipSize * (count - first);
    Extra extra { .kind = ExtraKind::Row,
        .key = rowKey(first),
        .text = {},
        .rect = rect,
        .band = ExtraBand::OnWood,
        .slot = "doomed " + rowKey(first),
        .fade = kDoomedFade,
        .isCompanion = true };
    for (unsigned row = first; row < count; ++row) {
        extra.pieces.push_back(veil(row, kDoomedVeil));
        touchRow(extra, row, lengths[row], kDoomedChip);
        if (row > first) {
            extra.touches.push_back({ .key = board::deleteButtonKey(row), .opacity = kDoomedChip });
        }
    }
    return extra;
}

Extra shakenHead(const std::string& key, const ExtraRect& thing)
{
    return { .kind = ExtraKind::Shake,
        .key = key,
        .text = {},
        .rect = thing,
        .touches = { { .key = key } },
        .motion = ExtraMotion::Swing,
        .duration = kShake };
}

Extra limitOfLine(unsigned row)
{
    const ExtraRect place = placeOfChip(kLastColumn, row);
    const ExtraRect edge { .x = kEdgeX, .y = place.y, .width = 0.06, .height = 0.13 };
    return { .kind = ExtraKind::Limit,
        .key = rowKey(row),
        .text = {},
        .rect = edge,
        .pieces = { picture("LimitEdge", edge), picture("LimitRing", place) },
        .motion = ExtraMotion::Pulse,
        .duration = kLimit };
}

Extra limitOfBoard()
{
    const ExtraRect rect = rowRect(board::kGoalRow);
    return { .kind = ExtraKind::Limit,
        .key = rowKey(board::kGoalRow),
        .text = {},
        .rect = rect,
        .band = ExtraBand::OnWood,
        .pieces = { picture("LimitRow", rect) },
        .motion = ExtraMotion::Pulse,
        .duration = kLimit };
}

Extra lastLineShown(unsigned row)
{
    const ExtraRect rect = rowRect(row);
    return { .kind = ExtraKind::Light,
        .key = rowKey(row),
        .text = {},
        .rect = rect,
        .band = ExtraBand::OnWood,
        .pieces = { picture("RowFlash", rect) },
        .motion = ExtraMotion::Flash,
        .duration = kLastLine };
}

Extra blink(const std::string& key, const ExtraRect& thing)
{
    return { .kind = ExtraKind::Light,
        .key = key,
        .text = {},
        .rect = thing,
        .pieces = { picture("Shine", thing) },
        .motion = ExtraMotion::Flash,
        .duration = kBlink };
}

std::vector<std::string> extraPictureNames()
{
    std::vector<std::string> names { "RowLight", "RowFlash", "Halo", "Shine", "Ring", "LimitEdge",
        "LimitRing", "LimitRow" };
    for (const auto& others : { wordPictureNames(), celebrationPictureNames(), finalePictureNames(),
             focusPictureNames(), sheetPictureNames() }) {
        names.insert(names.end(), others.begin(), others.end());
    }
    return names;
}

} // namespace veyrand::present
