#pragma once

#include "board/BoardGeometry.h"
#include "board/ButtonTracking.h"
#include "board/ObjectTable.h"
#include "platform/Geometry.h"

namespace veyrand::board {

// The board of one game: the object table, the size of the game area, and the elements made of text
// or faded in. The drawing of particular things stands on it (LineDrawing, PanelDrawing and so on).
// It knows records only; hit areas are asked for through ButtonTracking.
class GameData {
public:
    // The size of the main screen, in points.
    explicit GameData(platform::Size screen)
        : m_gameSize(gameSizeForScreen(screen))
    {
    }

    // The application's one board, made on the first call from that call's screen. Everything but
    // the application's entry is handed a reference instead.
    static GameData& sharedGameData(platform::Size screen);

    ObjectTable& gameObjects() { return m_gameObjects; }
    [[nodiscard]] const ObjectTable& gameObjects() const { return m_gameObjects; }

    // Points; kept, whatever becomes of the screen.
    [[nodiscard]] double gameWidth() const { return m_gameSize.width; }
    [[nodiscard]] double gameHeight() const { return m_gameSize.height; }

    void setButtonTracking(ButtonTracking& tracking) { m_buttonTracking = &tracking; }
    [[nodiscard]] ButtonTracking* buttonTracking() const { return m_buttonTracking; }

    GameObjectPtr createGameObjectWithText(const TextStyle& style, double x, double y, double width,
        double height, double opacity, const std::string& key);

    // Adds an image record at opacity 0 and announces the given opacity, so that it fades in.
    GameObjectPtr fadeInImage(std::string_view imageName, double x, double y, double width,
        double height, double opacity, const std::string& key);

    void fadeInCounter(const std::string& text, double x, double y, double width, double height,
        const std::string& key);
    void fadeInLabel(std::string_view imageName, double x, double y, double width, double height,
        const std::string& key);

    // A changed text shows at once, without a fade, under the same key. Nothing happens when the
    // text is the one shown.
    void changeText(const std::string& text, const GameObjectPtr& record);

    // Kept for callers that ask for it; every element renews itself.
    static void renewAllObjects() { }

private:
    platform::Size m_gameSize;
    ObjectTable m_gameObjects;
    ButtonTracking* m_buttonTracking = nullptr;
};

} // namespace veyrand::board
