#pragma once

#include "controller/Game.h"

#include <string>

namespace veyrand::web {

// The accessible tree for the page, which keeps elements of the same names, roles and actions
// beside the picture. The page is told when the tree has become another one, and what is spoken.
class WebReader {
public:
    WebReader(controller::Game& game, platform::RunLoop& runLoop);
    WebReader(const WebReader&) = delete;
    WebReader& operator=(const WebReader&) = delete;
    ~WebReader();

    // Something may have changed: a burst of changes is looked at once.
    void look();
    // What the page was told, done to the thing; places are in points from the upper left corner of
    // a view of the height.
    void act(const std::string& id, const std::string& action);
    void setViewHeight(double height) { m_height = height; }

private:
    void tell();

    controller::Game& m_game;
    platform::RunLoop& m_runLoop;
    std::string m_told; // JSON
    double m_height = 1.0;
    bool m_isDue = false;
};

} // namespace veyrand::web
