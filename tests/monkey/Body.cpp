#include "monkey/Body.h"

#include "support/CachedResources.h"

namespace veyrand::test {

namespace {

class WindowlessBody final : public Body {
public:
    explicit WindowlessBody(const Launch& launch)
        : m_game({ .seed = launch.seed,
            .store = launch.store,
            .resources = &cachedResources(),
            .journal = launch.journal })
    {
        m_game.launch();
    }

    [[nodiscard]] headless::HeadlessGame& game() override { return m_game; }

    void move(platform::Point place) override { m_game.move(place); }
    void press(platform::Point place) override { m_game.press(place); }
    void release(platform::Point place) override { m_game.release(place); }
    void rightClick(platform::Point place) override { m_game.rightClick(place); }
    void touch(platform::Point place) override { m_game.touch(place); }
    void touchDrag(platform::Point from, platform::Point to) override
    {
        m_game.touchDrag(from, to);
    }
    void longPress(platform::Point place) override { m_game.longPress(place); }
    void key(const std::string& keys) override { m_game.key(keys); }
    void menu(const std::string& item) override { m_game.menu().trigger(item); }
    void resize(platform::Size size) override { m_game.resize(size); }
    [[nodiscard]] std::string faultOfPicture() override { return {}; }

private:
    headless::HeadlessGame m_game;
};

} // namespace

std::unique_ptr<Body> bodyWithoutWindow(const Body::Launch& launch)
{
    return std::make_unique<WindowlessBody>(launch);
}

} // namespace veyrand::test
