#pragma once

#include "board/GameData.h"

#include <vector>

namespace veyrand::present {

// One message drawn on the board: a veil over everything, a background picture, centred lines of
// text and small pictures, all of them ordinary records of the object table that fade in. Not a
// layer itself: like all game logic it writes records, and their layers follow. Its keys begin with
// "fullScreen", so that it lies in front of the board. When it goes, so do its records, at once.
//
// The keys are the same for every message. One that opens over another takes the other's keys, and
// the other, when it goes, leaves alone whatever is no longer its own.
class InfoLayer {
public:
    // Lengths in game heights, the origin at the board's lower left.
    struct Background {
        std::string imageName; // none: no picture
        double x = 0.8;
        double y = 0.5;
        double width = 1.066667;
        double height = 0.66667;
        double opacity = 1.0; // it fades from here to 1
    };
    struct Style {
        Background background {};
        // An invisible veil lets presses through to the board.
        bool visible = true;
        std::string key = "fullScreen"; // of the veil
        float verticalOffset = 0.1F; // lowers the block of text
        float veil = 0.25F; // the opacity the veil fades to
    };

    InfoLayer(board::GameData& gameData, const Style& style);
    InfoLayer(const InfoLayer&) = delete;
    InfoLayer& operator=(const InfoLayer&) = delete;
    ~InfoLayer();

    // Scales the font and the distance between lines; set it before adding lines.
    [[nodiscard]] float fontMultiplier() const { return m_fontMultiplier; }
    void setFontMultiplier(float multiplier) { m_fontMultiplier = multiplier; }

    // Each line stands below the one before it; the offsets move it from there, up and to the
    // right.
    struct Offsets {
        double horizontal = 0.0;
        double vertical = 0.0;
    };
    void addText(const std::string& text);
    void addText(const std::string& text, Offsets offsets, const board::Color& color = {},
        double size = kUsualSize);

    void fadeInText(const board::TextStyle& style, double x, double y, const std::string& key);
    void fadeInImage(std::string_view imageName, double x, double y, double width, double height,
        double opacity); // from the opacity to 1
    void fadeInImage(std::string_view imageName, double x, double y, double width, double height,
        double fromOpacity, double toOpacity);

    // Takes away the veil alone.
    void removeLayer();

    // The message's records become the board's: they stay when it goes.
    void leaveEverything();

    [[nodiscard]] const std::vector<board::GameObjectPtr>& text() const { return m_text; }
    [[nodiscard]] const std::vector<board::GameObjectPtr>& images() const { return m_images; }
    [[nodiscard]] const board::GameObjectPtr& gameObject() const { return m_veil; }

private:
    static constexpr double kUsualSize = 60.0;

    void setOpacity(const std::string& key, double opacity);
    void remove(const board::GameObjectPtr& record);

    board::GameData& m_gameData;
    board::GameObjectPtr m_veil;
    std::vector<board::GameObjectPtr> m_text;
    std::vector<board::GameObjectPtr> m_images;
    float m_verticalOffset;
    float m_fontMultiplier = 1.0F;
};

} // namespace veyrand::present
