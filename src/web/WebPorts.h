#pragma once

#include "platform/Alerts.h"
#include "platform/Calendar.h"
#include "platform/Clipboard.h"
#include "platform/Log.h"
#include "platform/MotionWish.h"
#include "platform/OverlayWindow.h"
#include "platform/Quit.h"
#include "platform/Random.h"
#include "platform/Resources.h"
#include "platform/Sounds.h"
#include "platform/TextMetrics.h"
#include "platform/Window.h"

#include <deque>
#include <map>

namespace veyrand::web {

// The ports that the page answers in a call or two.

class WebRandom final : public platform::Random {
public:
    std::uint32_t next() override;
};

class WebLog final : public platform::Log {
public:
    void write(std::string_view line) override;
};

class WebQuit final : public platform::Quit {
public:
    void terminate() override;
};

class WebCalendar final : public platform::Calendar {
public:
    [[nodiscard]] std::int64_t today() const override;
};

// What the browser lets a page know of what was copied, it lets it know later, if the player
// agrees.
class WebClipboard final : public platform::Clipboard {
public:
    [[nodiscard]] std::string text() const override { return m_text; }
    void setText(const std::string& text) override;
    void askForText(std::function<void(const std::string& text)> use) override;
    // To be called with what the page was given.
    void pasted(const std::string& text);

private:
    std::string m_text;
    std::function<void(const std::string& text)> m_use; // null: nobody waits
};

class WebMotionWish final : public platform::MotionWish {
public:
    [[nodiscard]] bool wantsLess() const override { return m_wantsLess; }
    void setListener(std::function<void()> listener) override { m_listener = std::move(listener); }
    // To be called with what the browser says, at first and whenever it says something else.
    void set(bool wantsLess);

private:
    bool m_wantsLess = false;
    std::function<void()> m_listener;
};

// Letters as the page's canvas draws them.
class WebTextMetrics final : public platform::TextMetrics {
public:
    [[nodiscard]] platform::Size preferredFrameSize(std::string_view text) const override;

private:
    mutable std::map<std::string, double, std::less<>> m_widths; // in ems
};

// What the page has fetched before the game began.
class WebResources final : public platform::Resources {
public:
    void add(std::string name, std::string bytes) { m_files[std::move(name)] = std::move(bytes); }
    [[nodiscard]] std::optional<std::string> dataNamed(
        std::string_view name, std::string_view type) const override;

private:
    std::map<std::string, std::string, std::less<>> m_files;
};

class WebSounds final : public platform::Sounds {
public:
    void play(std::string_view name) override;
    void startLoop(std::string_view name, double volume) override;
    void setLoopVolume(double volume) override;
    void stopLoop() override;
    void setVolume(platform::SoundKind kind, int percent) override;
};

// Nothing in the game opens a second window.
class WebOverlayWindow final : public platform::OverlayWindow {
public:
    void open(const platform::RectF& frame, std::string_view imageName) override;
};

// The page fills its window; only full screen means anything. A page may be refused it, and leaves
// it without being asked.
class WebWindow final : public platform::Window {
public:
    [[nodiscard]] bool isZoomed() const override { return m_zoomed; }
    void zoom() override { m_zoomed = !m_zoomed; }
    [[nodiscard]] bool isInFullScreenMode() const override { return m_fullScreen; }
    void enterFullScreenMode() override { set(true); }
    void exitFullScreenMode() override { set(false); }

private:
    void set(bool on);

    bool m_zoomed = false;
    bool m_fullScreen = false;
};

// Shows one alert after the other.
class WebAlerts final : public platform::Alerts {
public:
    void show(const platform::Alert& alert, Answered answered) override;
    // To be called when the alert on show has been answered.
    void answer(const platform::AlertAnswer& given);

private:
    struct Waiting {
        platform::Alert alert;
        Answered answered;
    };
    void showFirst() const;

    std::deque<Waiting> m_waiting; // the first is on show
};

} // namespace veyrand::web
