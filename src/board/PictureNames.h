#pragma once

#include <string>
#include <string_view>

namespace veyrand::board {

// What people call the thing in a picture: "yellow" for a yellow chip. Empty for what is there to
// be looked at only.
[[nodiscard]] std::string nameOfPicture(std::string_view image);

} // namespace veyrand::board
