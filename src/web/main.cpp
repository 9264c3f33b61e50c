#include "web/EffectNumbers.h"
#include "web/Host.h"
#include "web/WebGame.h"

#include <emscripten/emscripten.h>
#include <exception>
#include <string>

// What the page calls. Exceptions end here: they reach the page as words, and nothing more is
// trusted after one.

namespace {

using veyrand::platform::Point;
using veyrand::web::WebGame;
using veyrand::web::WebView;

WebGame& game()
{
    static WebGame only;
    return only;
}

std::string& answer()
{
    static std::string text;
    return text;
}

template <class Call> void guarded(const Call& call)
{
    try {
        call();
    } catch (const std::exception& error) {
        veyrand_host_give_up(error.what());
    } catch (...) {
        veyrand_host_give_up("an error without a name");
    }
}

// Nothing to tell a game that has not begun.
template <class Call> void withView(const Call& call)
{
    guarded([&] {
        if (WebView* const view = game().view()) {
            call(*view);
        }
    });
}

} // namespace

extern "C" {

EMSCRIPTEN_KEEPALIVE void veyrand_add_resource(const char* name, const char* bytes, int size)
{
    guarded(
        [&] { game().resources().add(name, std::string(bytes, static_cast<std::size_t>(size))); });
}

EMSCRIPTEN_KEEPALIVE void veyrand_load(const char* name, const char* text)
{
    guarded([&] { game().store().load(name, text); });
}

EMSCRIPTEN_KEEPALIVE void veyrand_add_language(const char* code)
{
    guarded([&] { game().addLanguage(code); });
}

EMSCRIPTEN_KEEPALIVE void veyrand_close_store()
{
    guarded([] { game().store().closeForWriting(); });
}

EMSCRIPTEN_KEEPALIVE void veyrand_store_failed(const char* words)
{
    guarded([&] { game().store().failed(words); });
}

// What keeps the game from being played, or "".
EMSCRIPTEN_KEEPALIVE const char* veyrand_start(
    double screenWidth, double screenHeight, double width, double height)
{
    guarded([&] {
        game().setScreen({ .width = screenWidth, .height = screenHeight });
        answer() = game().start({ .width = width, .height = height });
    });
    return answer().c_str();
}

EMSCRIPTEN_KEEPALIVE void veyrand_call_due()
{
    guarded([] { game().runLoop().runDueCalls(); });
}

EMSCRIPTEN_KEEPALIVE void veyrand_frame()
{
    withView([](WebView& view) { view.showFrame(); });
}

EMSCRIPTEN_KEEPALIVE void veyrand_repaint()
{
    withView([](WebView& view) { view.forgetPainted(); });
}

EMSCRIPTEN_KEEPALIVE void veyrand_resize(double width, double height)
{
    withView([&](WebView& view) { view.resize({ .width = width, .height = height }); });
}

EMSCRIPTEN_KEEPALIVE void veyrand_press(double x, double y, int hasModifier)
{
    withView([&](WebView& view) { view.press(Point { .x = x, .y = y }, hasModifier != 0); });
}

EMSCRIPTEN_KEEPALIVE void veyrand_move(double x, double y, int isHeld, int hasModifier)
{
    withView(
        [&](WebView& view) { view.move(Point { .x = x, .y = y }, isHeld != 0, hasModifier != 0); });
}

EMSCRIPTEN_KEEPALIVE void veyrand_release(double x, double y, int hasModifier)
{
    withView([&](WebView& view) { view.release(Point { .x = x, .y = y }, hasModifier != 0); });
}

EMSCRIPTEN_KEEPALIVE void veyrand_leave()
{
    withView([](WebView& view) { view.leave(); });
}

EMSCRIPTEN_KEEPALIVE void veyrand_cancel_gesture()
{
    withView([](WebView& view) { view.cancelGesture(); });
}

EMSCRIPTEN_KEEPALIVE void veyrand_right_press(double x, double y, int hasModifier)
{
    withView([&](WebView& view) { view.rightPress(Point { .x = x, .y = y }, hasModifier != 0); });
}

EMSCRIPTEN_KEEPALIVE void veyrand_touch_began(double x, double y)
{
    withView([&](WebView& view) { view.touchBegan(Point { .x = x, .y = y }); });
}

EMSCRIPTEN_KEEPALIVE void veyrand_touch_moved(double x, double y)
{
    withView([&](WebView& view) { view.touchMoved(Point { .x = x, .y = y }); });
}

EMSCRIPTEN_KEEPALIVE void veyrand_touch_ended(double x, double y)
{
    withView([&](WebView& view) { view.touchEnded(Point { .x = x, .y = y }); });
}

EMSCRIPTEN_KEEPALIVE void veyrand_touch_cancelled()
{
    withView([](WebView& view) { view.touchCancelled(); });
}

EMSCRIPTEN_KEEPALIVE int veyrand_key(const char* keys, int isRepeated)
{
    using Press = veyrand::controller::GameController::Press;
    bool isWanted = false;
    guarded([&] { isWanted = game().key(keys, isRepeated != 0 ? Press::Repeated : Press::First); });
    return isWanted ? 1 : 0;
}

EMSCRIPTEN_KEEPALIVE const char* veyrand_menu()
{
    guarded([] { answer() = game().menu(); });
    return answer().c_str();
}

EMSCRIPTEN_KEEPALIVE void veyrand_choose(int item)
{
    guarded([&] { game().choose(static_cast<std::size_t>(item)); });
}

// The settings as the panel shows them: JSON.
EMSCRIPTEN_KEEPALIVE const char* veyrand_settings()
{
    guarded([] { answer() = game().settings(); });
    return answer().c_str();
}

EMSCRIPTEN_KEEPALIVE void veyrand_set(int setting, int value)
{
    guarded([&] { game().set(static_cast<std::size_t>(setting), value); });
}

EMSCRIPTEN_KEEPALIVE void veyrand_reset_settings()
{
    guarded([] { game().resetSettings(); });
}

EMSCRIPTEN_KEEPALIVE void veyrand_open(const char* puzzleCode)
{
    guarded([&] { game().open(puzzleCode); });
}

EMSCRIPTEN_KEEPALIVE void veyrand_pasted(const char* text)
{
    guarded([&] { game().clipboard().pasted(text); });
}

EMSCRIPTEN_KEEPALIVE void veyrand_wish_less_motion(int isWished)
{
    guarded([&] { game().motionWish().set(isWished != 0); });
}

EMSCRIPTEN_KEEPALIVE const char* veyrand_effects()
{
    guarded([] { answer() = veyrand::web::effectNumbers(); });
    return answer().c_str();
}

// The page's place of the element under the key, and what stands on the board: JSON, for whoever
// looks at the game from outside.
EMSCRIPTEN_KEEPALIVE const char* veyrand_place_of(const char* key)
{
    guarded([&] { answer() = game().placeOf(key); });
    return answer().c_str();
}

EMSCRIPTEN_KEEPALIVE const char* veyrand_state()
{
    guarded([] { answer() = game().state(); });
    return answer().c_str();
}

// 0 is the default button, 1 the other one and anything else the alternate one.
EMSCRIPTEN_KEEPALIVE void veyrand_answer(int button, int isSuppressed)
{
    using Button = veyrand::platform::AlertAnswer::Button;
    guarded([&] {
        game().alerts().answer({ .button = button == 0 ? Button::Default
                : button == 1                          ? Button::Other
                                                       : Button::Alternate,
            .suppressed = isSuppressed != 0 });
    });
}

// 0 when the player has cancelled, 1 with a text and 2 with a fault.
EMSCRIPTEN_KEEPALIVE void veyrand_file_chosen(
    int kind, const char* name, const char* text, const char* fault)
{
    using Kind = veyrand::platform::FileExchange::Answer::Kind;
    guarded([&] {
        game().exchange().chosen({ .kind = kind == 0 ? Kind::Cancelled
                : kind == 1                          ? Kind::Done
                                                     : Kind::Failed,
            .name = name,
            .text = text,
            .fault = fault });
    });
}

// An action of a thing in the tree that the page has been told.
EMSCRIPTEN_KEEPALIVE void veyrand_act(const char* id, const char* action)
{
    guarded([&] {
        if (auto* const reader = game().reader()) {
            reader->act(id, action);
        }
    });
}

EMSCRIPTEN_KEEPALIVE void veyrand_full_screen_changed(int on)
{
    guarded([&] { game().fullScreenChanged(on != 0); });
}
}
