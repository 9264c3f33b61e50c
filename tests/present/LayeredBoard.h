#pragma once

#include "platform/fakes/VirtualRunLoop.h"
#include "present/BoardLayers.h"
#include "support/BoardFakes.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace veyrand::present {

// Layers over an empty board, in virtual time. The screen is 1440 x 900 points unless told
// otherwise.
class LayeredBoard : public ::testing::Test {
protected:
    explicit LayeredBoard(platform::Size screen = { .width = 1440, .height = 900 })
        : m_gameData(screen)
    {
    }

    BoardLayers& layers() { return m_layers; }
    board::GameData& gameData() { return m_gameData; }
    board::ObjectTable& table() { return m_gameData.gameObjects(); }
    Scene& scene() { return m_scene; }
    void wait(double seconds) { m_runLoop.advance(seconds); }

    // A square record; place and size in game heights.
    void add(const std::string& image, const std::string& key, double x, double y, double size,
        double opacity = 1.0, bool visible = true)
    {
        table().addGameObject(
            std::make_shared<board::GameObject>(image, x, y, size, size, opacity, visible), key);
    }

    // The names of the pictures on show, the deepest first.
    [[nodiscard]] std::vector<std::string> pictures()
    {
        std::vector<std::string> names;
        for (const DisplayItem& item : m_layers.displayList()) {
            if (const auto* const image = std::get_if<ImageContent>(&item.content)) {
                names.push_back(image->name);
            }
        }
        return names;
    }

private:
    test::SquareLetters m_metrics;
    platform::VirtualRunLoop m_runLoop;
    board::GameData m_gameData;
    Scene m_scene { m_runLoop };
    BoardLayers m_layers { m_scene, m_gameData, m_metrics };
};

} // namespace veyrand::present
