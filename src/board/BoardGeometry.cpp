#include "board/BoardGeometry.h"

namespace veyrand::board {

std::string_view imageForLetter(char letter)
{
    switch (letter) {
    case 'Y':
        return "YellowChip";
    case 'R':
        return "RedChip";
    case 'G':
        return "GreenChip";
    case 'B':
        return "BlueChip";
    default:
        return "MultiChip";
    }
}

platform::Size gameSizeForScreen(platform::Size screen)
{
    constexpr double kAspect = 1.6;
    // The ratio is taken in single precision: 1440 x 900 then counts as a hair wider than 16:10,
    // and keeps its full width all the same, as 900 x 1.6 is exactly 1440.
    const auto ratio = static_cast<double>(static_cast<float>(screen.width / screen.height));
    return { .width = ratio > kAspect ? screen.height * kAspect : screen.width,
        .height = ratio < kAspect ? screen.width / kAspect : screen.height };
}

} // namespace veyrand::board
