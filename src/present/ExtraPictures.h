#pragma once

#include "platform/TextMetrics.h"
#include "present/Extra.h"

#include <string>
#include <vector>

namespace veyrand::present {

// What each kind of extra looks like: which pictures lie where, which things of the board it
// touches, how it comes and goes. Values only; when they are shown is another's business.

inline constexpr double kShadowRoom = 0.010; // round every plate

// The key of what lies over a whole row.
[[nodiscard]] std::string rowKey(unsigned row);

// The line that is played on is lit, at a share of its strength; the lines above it rest.
[[nodiscard]] Extra rowInPlay(unsigned row, double share = 1.0);
[[nodiscard]] Extra restingRow(unsigned row, unsigned length);
// The pointer is over a stone from which there is a move, or over a delete button.
[[nodiscard]] Extra lightUnder(const std::string& key, const ExtraRect& thing);
[[nodiscard]] Extra heldDown(const std::string& key, const ExtraRect& thing);
[[nodiscard]] Extra targetRing(unsigned column, unsigned row);
// The rows from the one given on would go. The lengths are those of all lines.
[[nodiscard]] Extra doomedRows(const std::vector<unsigned>& lengths, unsigned first);

// Refusals.
[[nodiscard]] Extra shakenHead(const std::string& key, const ExtraRect& thing);
[[nodiscard]] Extra limitOfLine(unsigned row);
[[nodiscard]] Extra limitOfBoard();
[[nodiscard]] Extra lastLineShown(unsigned row);
[[nodiscard]] Extra blink(const std::string& key, const ExtraRect& thing);

// A tip beside the thing it explains, never over it, and a whisper at the foot of the panel; so
// many times as large as usual. What would not fit is made no larger than it can be.
[[nodiscard]] Extra tipFor(const std::string& key, const ExtraRect& thing, const std::string& text,
    const platform::TextMetrics& metrics, double size = 1.0);
// The same to the right of the stone that ends its line, where a note lies below it; where that is
// too near to the board's edge, as it was.
[[nodiscard]] Extra tipBeside(Extra tip, const ExtraRect& stone, double size = 1.0);
[[nodiscard]] Extra whisper(
    const std::string& text, const platform::TextMetrics& metrics, double size = 1.0);

// The chip's place by column and row.
[[nodiscard]] ExtraRect placeOfChip(unsigned column, unsigned row);

// Every picture that an extra may ask for.
[[nodiscard]] std::vector<std::string> extraPictureNames();

} // namespace veyrand::present
