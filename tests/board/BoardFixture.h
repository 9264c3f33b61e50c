#pragma once

#include "board/Board.h"
#include "platform/MemoryPreferences.h"
#include "platform/fakes/SeededRandom.h"
#include "platform/fakes/VirtualRunLoop.h"
#include "progress/PlayerKeys.h"
#include "support/BoardFakes.h"
#include "support/BoardRows.h"
#include "support/MemoryResources.h"

#include <gtest/gtest.h>

namespace veyrand::board {

// A board without layers or input, in virtual time.
class BoardTest : public ::testing::Test {
protected:
    BoardTest()
        : m_currentGame(m_preferences, m_random, m_resources)
        , m_gameData({ .width = 1440, .height = 900 })
        , m_board(m_gameData, m_currentGame, m_runLoop)
    {
        m_preferences.registerDefaults(progress::registeredDefaults());
        m_gameData.setButtonTracking(m_tracking);
    }

    void place(int level, int stage, int par,
        progress::CurrentGame::Mode mode = progress::CurrentGame::Mode::Classic)
    {
        m_currentGame.loadPlayer("New", mode);
        m_currentGame.placePuzzle({ .root = "YR",
            .goal = "YRG",
            .par = par,
            .level = level,
            .stage = stage,
            .mode = mode });
    }

    [[nodiscard]] Board& board() { return m_board; }
    [[nodiscard]] GameData& gameData() { return m_gameData; }
    [[nodiscard]] ObjectTable& table() { return m_gameData.gameObjects(); }
    [[nodiscard]] progress::CurrentGame& currentGame() { return m_currentGame; }
    // What the element says; empty when it is no text, or not there.
    [[nodiscard]] std::string text(const std::string& key)
    {
        const GameObjectPtr record = object(key);
        return record && record->text() ? record->text()->text : std::string();
    }
    [[nodiscard]] const test::CountedTracking& tracking() const { return m_tracking; }

    // Null when there is none.
    [[nodiscard]] GameObjectPtr object(const std::string& key) { return table().objectForKey(key); }
    [[nodiscard]] std::string row(unsigned number) { return test::rowText(table(), number); }
    void wait(double seconds) { m_runLoop.advance(seconds); }

private:
    test::MemoryResources m_resources;
    platform::MemoryPreferences m_preferences;
    platform::SeededRandom m_random { 1 };
    test::CountedTracking m_tracking;
    platform::VirtualRunLoop m_runLoop;
    progress::CurrentGame m_currentGame;
    GameData m_gameData;
    Board m_board;
};

// Where and how a record stands, for comparing all of it at once.
struct Look {
    std::string image;
    double x;
    double y;
    double width;
    double height;
    double opacity;
    friend bool operator==(const Look&, const Look&) = default;
    friend void PrintTo(const Look& look, std::ostream* out)
    {
        *out << look.image << " at (" << look.x << ", " << look.y << "), " << look.width << " x "
             << look.height << ", opacity " << look.opacity;
    }
};

inline Look lookOf(const GameObject& record)
{
    return { record.imageName(), record.x(), record.y(), record.width(), record.height(),
        record.opacity() };
}

} // namespace veyrand::board
