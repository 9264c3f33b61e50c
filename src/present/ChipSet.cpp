#include "present/ChipSet.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace veyrand::present {

namespace {

constexpr std::array<std::string_view, 7> kShowStones { "YellowChip", "RedChip", "GreenChip",
    "BlueChip", "GreyChip", "MultiChip", "HintStage2" };
constexpr std::array kOthers { std::pair(ChipSet::Contrast, "-contrast"),
    std::pair(ChipSet::Letters, "-letters"), std::pair(ChipSet::Patterns, "-patterns") };

} // namespace

std::string pictureIn(ChipSet set, const std::string& name)
{
    const auto* const other = std::find_if(
        kOthers.begin(), kOthers.end(), [set](const auto& kind) { return kind.first == set; });
    const bool showsStones
        = std::find(kShowStones.begin(), kShowStones.end(), name) != kShowStones.end();
    return showsStones && other != kOthers.end() ? name + other->second : name;
}

std::vector<std::string> chipSetPictureNames()
{
    std::vector<std::string> names;
    for (const auto& [set, ending] : kOthers) {
        for (const std::string_view name : kShowStones) {
            names.push_back(std::string(name) + ending);
        }
    }
    return names;
}

} // namespace veyrand::present
