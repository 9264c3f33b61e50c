#pragma once

#include "board/LineDrawing.h"
#include "input/GameView.h"
#include "platform/Pointer.h"
#include "platform/SoundEffects.h"
#include "platform/fakes/RecordedSounds.h"
#include "platform/fakes/VirtualRunLoop.h"
#include "support/BoardFakes.h"

#include <gtest/gtest.h>

namespace veyrand::input {

// A game that writes down what it is told and answers as the test wishes.
class FakeGame final : public GestureTarget {
public:
    void mouseClick(const MouseEvent& /*event*/, unsigned row, unsigned column) override
    {
        note("click " + std::to_string(row) + ' ' + std::to_string(column));
    }
    bool mouseDrag(const MouseEvent& /*event*/, unsigned fromRow, unsigned fromColumn,
        unsigned toRow, unsigned toColumn) override
    {
        note("drag " + std::to_string(fromRow) + ' ' + std::to_string(fromColumn) + " to "
            + std::to_string(toRow) + ' ' + std::to_string(toColumn));
        return acceptsDrags;
    }
    void deleteClick(unsigned row) override { note("delete " + std::to_string(row)); }
    void buttonClick(const std::string& key) override { note(key); }
    void messageWindowClick() override { note("message"); }
    [[nodiscard]] bool isMove(unsigned row, unsigned column) const override
    {
        return playableRow == row && column == moveColumn;
    }

    [[nodiscard]] std::vector<play::Gesture> actions() const override { return moves; }
    [[nodiscard]] std::optional<unsigned> rowToDrag() const override { return playableRow; }
    [[nodiscard]] std::optional<std::vector<unsigned>> areasToTrack(
        unsigned /*row*/, unsigned /*column*/) const override
    {
        return targets;
    }
    [[nodiscard]] unsigned lineCount() const override { return lines; }
    [[nodiscard]] unsigned lengthOfRow(unsigned /*row*/) const override { return 4; }
    [[nodiscard]] bool isEndlessGame() const override { return endless; }

    std::vector<std::string> take() { return std::exchange(m_heard, {}); }

    std::function<void()> whenAsked; // runs inside every call
    std::optional<unsigned> playableRow = 1;
    std::optional<std::vector<unsigned>> targets = std::vector<unsigned> { 1 };
    std::vector<play::Gesture> moves;
    unsigned lines = 2;
    unsigned moveColumn = 0;
    bool acceptsDrags = false;
    bool endless = false;

private:
    void note(const std::string& call)
    {
        m_heard.push_back(call);
        if (whenAsked) {
            whenAsked();
        }
    }
    std::vector<std::string> m_heard;
};

// The game view over a board of two lines, YRGR and YRGG, in a view of 1440 x 900 points: one chip
// is 67.5 points wide. The second line is the one that can be played.
class GameViewTest : public ::testing::Test {
protected:
    GameViewTest()
        : m_view({ .gameData = m_gameData,
            .layers = m_layers,
            .runLoop = m_runLoop,
            .pointer = m_pointer,
            .effects = m_effects })
    {
        m_view.setGestureTarget(m_target);
        m_layers.fitTo({ .width = 1440, .height = 900 });
        m_lines.createChipsForTheorem("YRGR", 0);
        m_lines.createChipsForTheorem("YRGG", 1);
    }

    void addImage(const std::string& key, double x, double y, double width, double opacity = 1.0)
    {
        m_gameData.gameObjects().addGameObject(
            std::make_shared<board::GameObject>("Delete", x, y, width, width, opacity, true), key);
    }
    // Both faces of a button, as the board has them.
    void addButton(const std::string& name, double y)
    {
        addImage(name + "on", 0.3, y, 0.07, 0.0);
        addImage(name + "off", 0.3, y, 0.07, 1.0);
    }

    [[nodiscard]] platform::Point centre(const std::string& key)
    {
        const auto record = m_gameData.gameObjects().objectForKey(key);
        EXPECT_NE(record, nullptr) << key;
        return { .x = record->x() * 900.0, .y = record->y() * 900.0 };
    }
    static platform::Point offset(platform::Point point, double x, double y)
    {
        return { .x = point.x + x, .y = point.y + y };
    }

    void press(platform::Point point, bool modified = false)
    {
        m_pointer.setPosition(point);
        m_view.mouseDown({ .location = point, .hasModifier = modified });
    }
    void dragTo(platform::Point point)
    {
        m_pointer.setPosition(point);
        m_view.mouseDragged({ .location = point });
    }
    void release(platform::Point point)
    {
        m_pointer.setPosition(point);
        m_view.mouseUp({ .location = point });
    }
    void moveTo(std::optional<platform::Point> point)
    {
        m_pointer.setPosition(point);
        m_view.mouseMoved();
    }
    void click(const std::string& key)
    {
        press(centre(key));
        release(centre(key));
    }
    // Pressed, moved in two steps and, if asked, let go.
    void startDrag(const std::string& from)
    {
        press(centre(from));
        dragTo(offset(centre(from), 4.0, 0.0));
    }
    void drag(const std::string& from, platform::Point to)
    {
        startDrag(from);
        dragTo(to);
        release(to);
    }
    void drag(const std::string& from, const std::string& to) { drag(from, centre(to)); }
    void wait(double seconds) { m_runLoop.advance(seconds); }

    [[nodiscard]] FakeGame& target() { return m_target; }
    void muteEffects() { m_effectsOn = false; }
    [[nodiscard]] GameView& view() { return m_view; }
    [[nodiscard]] present::BoardLayers& layers() { return m_layers; }
    [[nodiscard]] platform::Pointer& pointer() { return m_pointer; }
    [[nodiscard]] board::ObjectTable& table() { return m_gameData.gameObjects(); }
    [[nodiscard]] board::LineDrawing& lines() { return m_lines; }
    [[nodiscard]] bool blocked() { return m_view.block().blockClick(); }
    std::vector<std::string> sounds() { return m_sounds.takePlayed(); }
    [[nodiscard]] present::GameObjectLayer& layer(const std::string& key)
    {
        return *m_layers.layerForKey(key);
    }
    [[nodiscard]] double opacity(const std::string& key)
    {
        return m_gameData.gameObjects().objectForKey(key)->opacity();
    }
    [[nodiscard]] std::vector<const present::Layer*> dragImages() const
    {
        std::vector<const present::Layer*> images;
        for (const auto& layer : m_layers.backgroundLayer().sublayers()) {
            if (dynamic_cast<const present::DragImageLayer*>(layer.get()) != nullptr) {
                images.push_back(layer.get());
            }
        }
        return images;
    }

private:
    test::SquareLetters m_metrics;
    platform::VirtualRunLoop m_runLoop;
    platform::Pointer m_pointer;
    platform::RecordedSounds m_sounds;
    bool m_effectsOn = true;
    platform::SoundEffects m_effects { m_sounds, [this] { return m_effectsOn; } };
    board::GameData m_gameData { { .width = 1440, .height = 900 } };
    board::LineDrawing m_lines { m_gameData, m_runLoop };
    present::Scene m_scene { m_runLoop };
    present::BoardLayers m_layers { m_scene, m_gameData, m_metrics };
    FakeGame m_target;
    GameView m_view;
};

} // namespace veyrand::input
