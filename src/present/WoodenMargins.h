#pragma once

#include "present/DisplayList.h"
#include "present/Scene.h"

#include <vector>

namespace veyrand::present {

// What lies beside the board in a window of another shape: black, unless the player wants wood to
// the edges. It is the board's own wood, turned over at its edge so that the grain goes on, in the
// shade, and parted from the board by a line of brass. The board stays where it is, and nothing of
// this is ever hit.
class WoodenMargins {
public:
    explicit WoodenMargins(Scene& scene)
        : m_scene(scene)
    {
    }

    void setOn(bool on);
    // Puts the wood behind the board, which begins with the list's second item.
    void addTo(DisplayList& list, const platform::RectF& view, const platform::RectF& board);

private:
    struct Side;
    void addSide(DisplayList& list, const platform::RectF& board, const Side& side);
    void add(DisplayList& list, DisplayItem item);

    Scene& m_scene;
    std::vector<std::uint64_t> m_numbers {}; // of the pieces, the same in every list
    std::size_t m_added = 0;
    bool m_isOn = false;
};

} // namespace veyrand::present
