#include "Scenario.h"

#include "web/EffectNumbers.h"
#include "web/Host.h"
#include "web/WebPorts.h"
#include "web/WebView.h"

#include <emscripten/emscripten.h>
#include <exception>
#include <memory>

extern "C" void scenario_picture(const char* name); // what has just been painted

// The scenarios' game on a page: the game without a toolkit, with the page's letters and data.

namespace {

using namespace veyrand;
using scenario::Json;
using scenario::Scenario;
using scenario::ScenarioStage;

web::WebResources& resources()
{
    static web::WebResources all;
    return all;
}

class PageStage final : public ScenarioStage {
public:
    explicit PageStage(const Launch& launch)
        : m_game({ .seed = launch.seed,
            .preferences = launch.preferences,
            .store = launch.store,
            .resources = &resources(),
            .textMetrics = &m_letters,
            .journal = launch.journal })
    {
    }

    [[nodiscard]] headless::HeadlessGame& game() override { return m_game; }
    void launch() override { m_game.launch(); }
    void move(platform::Point place) override { m_game.move(place); }
    void press(platform::Point place, const std::vector<std::string>& modifiers) override
    {
        using Modifier = headless::HeadlessGame::Modifier;
        m_game.press(place, modifiers.empty() ? Modifier::None : Modifier::Held);
    }
    void release(platform::Point place) override { m_game.release(place); }
    void touch(platform::Point place) override { m_game.touch(place); }
    void touchDrag(platform::Point from, platform::Point to) override
    {
        m_game.touchDrag(from, to);
    }
    void longPress(platform::Point place) override { m_game.longPress(place); }
    void rightClick(platform::Point place) override { m_game.rightClick(place); }
    void key(const std::string& keys) override { m_game.key(keys); }
    void resize(int width, int height) override
    {
        m_game.resize(
            { .width = static_cast<double>(width), .height = static_cast<double>(height) });
    }
    bool chooseMenuItem(const std::string& text) override { return m_game.menu().trigger(text); }
    // Painted as a page paints it, for whoever compares it with the desktop's.
    [[nodiscard]] std::string screenshot(const std::string& name) override
    {
        platform::Pointer nobody;
        web::WebView view(m_game.game(), nobody);
        view.resize(m_game.viewSize());
        veyrand_host_language(m_game.game().texts().code().c_str());
        view.showFrame();
        scenario_picture(name.c_str());
        return {};
    }

private:
    web::WebTextMetrics m_letters;
    headless::HeadlessGame m_game;
};

std::unique_ptr<Scenario>& current()
{
    static std::unique_ptr<Scenario> scenario;
    return scenario;
}

std::string& answer()
{
    static std::string text;
    return text;
}

} // namespace

extern "C" {

EMSCRIPTEN_KEEPALIVE void scenario_add_resource(const char* name, const char* bytes, int size)
{
    resources().add(name, std::string(bytes, static_cast<std::size_t>(size)));
}

// A fresh game for the next script.
EMSCRIPTEN_KEEPALIVE void scenario_begin()
{
    current() = std::make_unique<Scenario>(
        [](const ScenarioStage::Launch& launch) { return std::make_unique<PageStage>(launch); });
}

EMSCRIPTEN_KEEPALIVE const char* scenario_operations()
{
    answer() = Json(Scenario::operations()).dump();
    return answer().c_str();
}

EMSCRIPTEN_KEEPALIVE const char* scenario_call(int operation, const char* arguments)
{
    Json told;
    try {
        told["value"]
            = current()->call(static_cast<std::size_t>(operation), Json::parse(arguments));
    } catch (const std::exception& error) {
        told["error"] = error.what();
    }
    answer() = told.dump();
    return answer().c_str();
}

EMSCRIPTEN_KEEPALIVE const char* scenario_effects()
{
    answer() = web::effectNumbers();
    return answer().c_str();
}
}
