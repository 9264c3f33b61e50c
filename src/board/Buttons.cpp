#include "board/Buttons.h"

#include <algorithm>

namespace veyrand::board {

namespace {

template <class Test> const Button* find(const Test& test)
{
    const auto* const found = std::find_if(kButtons.begin(), kButtons.end(), test);
    return found != kButtons.end() ? found : nullptr;
}

} // namespace

const Button* buttonWithLitFace(std::string_view key)
{
    return find([key](const Button& button) { return button.litKey == key; });
}

const Button* buttonWithFace(std::string_view key)
{
    return find([key](const Button& button) { return button.key == key; });
}

} // namespace veyrand::board
