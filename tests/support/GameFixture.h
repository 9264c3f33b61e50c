#pragma once

#include "controller/Game.h"
#include "support/BoardRows.h"

#include <gtest/gtest.h>

namespace veyrand::test {

// A whole game in virtual time, played with the mouse.
template <class Game> class GameFixture : public ::testing::Test {
protected:
    using Puzzle = progress::CurrentGame::Puzzle;
    using Mode = progress::CurrentGame::Mode;

    explicit GameFixture(const typename Game::Options& options)
        : m_game(options)
    {
        m_game.launch();
    }

    // Puts a puzzle on the board, all seven moves open, and waits until it has come to rest.
    void play(const std::string& root, const std::string& goal) { play(at(5, 1, root, goal)); }
    void play(const Puzzle& puzzle)
    {
        m_game.play(puzzle);
        m_game.wait(1.0);
        m_game.sounds().takePlayed();
    }
    static Puzzle at(int level, int stage, const std::string& root, const std::string& goal)
    {
        return { .root = root,
            .goal = goal,
            .par = 2,
            .level = level,
            .stage = stage,
            .mode = Mode::Classic };
    }

    void click(const std::string& key) { m_game.click(centre(key)); }
    void press(const std::string& key) { m_game.press(centre(key)); }
    void release(const std::string& key) { m_game.release(centre(key)); }
    void move(const std::string& key) { m_game.move(centre(key)); }
    void drag(const std::string& from, const std::string& to)
    {
        press(from);
        release(to);
    }
    void wait(double seconds) { m_game.wait(seconds); }
    // Longer than any move's animation and block.
    void settle() { wait(3.0); }

    [[nodiscard]] Game& game() { return m_game; }
    [[nodiscard]] board::ObjectTable& table() { return m_game.gameData().gameObjects(); }
    [[nodiscard]] board::GameObjectPtr object(const std::string& key)
    {
        return table().objectForKey(key);
    }
    [[nodiscard]] present::GameObjectLayer* layer(const std::string& key)
    {
        return m_game.game().layers().layerForKey(key);
    }
    [[nodiscard]] std::string row(unsigned number) { return rowText(table(), number); }
    [[nodiscard]] std::vector<std::string> lines()
    {
        std::vector<std::string> lines;
        if (const auto& proof = m_game.controller().proof()) {
            for (const engine::Theorem& line : proof->lines()) {
                lines.push_back(line.theorem());
            }
        }
        return lines;
    }
    std::vector<std::string> sounds() { return m_game.sounds().takePlayed(); }
    [[nodiscard]] bool blocked() { return m_game.game().view().block().blockClick(); }
    // Images on the board that belong to no record: those that follow or followed the pointer.
    [[nodiscard]] std::vector<const present::Layer*> dragImages()
    {
        std::vector<const present::Layer*> images;
        for (const auto& layer : m_game.game().layers().backgroundLayer().sublayers()) {
            if (dynamic_cast<const present::GameObjectLayer*>(layer.get()) == nullptr) {
                images.push_back(layer.get());
            }
        }
        return images;
    }

private:
    platform::Point centre(const std::string& key)
    {
        const auto place = m_game.centreOf(key);
        EXPECT_TRUE(place.has_value()) << "nothing on the board has the key " << key;
        return place.value_or(platform::Point {});
    }

    Game m_game;
};

} // namespace veyrand::test
