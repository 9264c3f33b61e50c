#include "board/PictureNames.h"

#include "board/Buttons.h"

#include <algorithm>
#include <array>

namespace veyrand::board {

namespace {

struct Picture {
    std::string_view image;
    std::string_view name;
};

constexpr std::array kPictures {
    Picture { "YellowChip", "yellow" },
    Picture { "RedChip", "red" },
    Picture { "GreenChip", "green" },
    Picture { "BlueChip", "blue" },
    Picture { "GreyChip", "any chip" },
    Picture { "MultiChip", "any chips" },
    Picture { "Delete", "delete line" },
    Picture { "Checkmark", "good so far" },
    Picture { "Points", "points" },
    Picture { "Stage", "stage" },
    Picture { "Par", "par" },
    Picture { "Veyrand Title", "Veyrand" },
    Picture { "Lock", "locked" },
    Picture { "SaveGameBadge", "saved game" },
};

} // namespace

std::string nameOfPicture(std::string_view image)
{
    const auto* const picture = std::find_if(kPictures.begin(), kPictures.end(),
        [image](const Picture& candidate) { return candidate.image == image; });
    if (picture != kPictures.end()) {
        return std::string(picture->name);
    }
    const auto* const button
        = std::find_if(kButtons.begin(), kButtons.end(), [image](const Button& candidate) {
              return candidate.picture == image || uncolouredPicture(candidate) == image;
          });
    return button != kButtons.end() ? std::string(button->name) : std::string();
}

} // namespace veyrand::board
