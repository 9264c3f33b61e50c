#pragma once

#include "ScenarioStage.h"
#include "app/VirtualGame.h"

#include <QString>

namespace veyrand::scenario {

// A game in a real widget off the screen: presses, moves and keys are real events delivered to it.
class QtStage final : public ScenarioStage {
public:
    struct Settings {
        platform::Size screen { .width = 1440, .height = 900 };
        QSize window { 1440, 900 };
        QString outFolder;
        QString dataFolder;
    };
    QtStage(const Settings& settings, const Launch& launch);

    [[nodiscard]] headless::HeadlessGame& game() override { return m_game.headless(); }
    void launch() override { m_game.launch(); }
    void move(platform::Point place) override { m_game.move(place); }
    void press(platform::Point place, const std::vector<std::string>& modifiers) override;
    void release(platform::Point place) override { m_game.release(place); }
    void touch(platform::Point place) override { m_game.touch(place); }
    void touchDrag(platform::Point from, platform::Point to) override
    {
        m_game.touchDrag(from, to);
    }
    void longPress(platform::Point place) override { m_game.longPress(place); }
    void rightClick(platform::Point place) override { m_game.rightClick(place); }
    void key(const std::string& keys) override { m_game.key(QString::fromStdString(keys)); }
    void resize(int width, int height) override { m_game.resize({ width, height }); }
    bool chooseMenuItem(const std::string& text) override
    {
        return m_game.menu().trigger(QString::fromStdString(text));
    }
    [[nodiscard]] std::string screenshot(const std::string& name) override;

private:
    QString m_outFolder;
    app::VirtualGame m_game;
};

} // namespace veyrand::scenario
