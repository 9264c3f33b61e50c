#include "web/WebPorts.h"

#include "language/Json.h"
#include "web/Host.h"

#include <utility>

namespace veyrand::web {

std::uint32_t WebRandom::next()
{
    return veyrand_host_random();
}

void WebLog::write(std::string_view line)
{
    veyrand_host_log(std::string(line).c_str());
}

void WebQuit::terminate()
{
    veyrand_host_quit();
}

std::int64_t WebCalendar::today() const
{
    return static_cast<std::int64_t>(veyrand_host_today());
}

void WebClipboard::setText(const std::string& text)
{
    m_text = text;
    veyrand_host_copy(text.c_str());
}

void WebClipboard::askForText(std::function<void(const std::string& text)> use)
{
    m_use = std::move(use);
    veyrand_host_paste();
}

void WebClipboard::pasted(const std::string& text)
{
    m_text = text;
    if (const auto use = std::exchange(m_use, {})) {
        use(text);
    }
}

void WebMotionWish::set(bool wantsLess)
{
    if (std::exchange(m_wantsLess, wantsLess) != wantsLess && m_listener) {
        m_listener();
    }
}

platform::Size WebTextMetrics::preferredFrameSize(std::string_view text) const
{
    // Of most texts there are few; a score that goes on rising must not fill the memory.
    constexpr std::size_t kMostWidths = 1000;
    auto found = m_widths.find(text);
    if (found == m_widths.end()) {
        if (m_widths.size() >= kMostWidths) {
            m_widths.clear();
        }
        const std::string line(text);
        found = m_widths.emplace(line, veyrand_host_text_width(line.c_str())).first;
    }
    return { .width = found->second, .height = veyrand_host_line_height() };
}

std::optional<std::string> WebResources::dataNamed(
    std::string_view name, std::string_view type) const
{
    const auto found = m_files.find(std::string(name) + '.' + std::string(type));
    return found != m_files.end() ? std::optional(found->second) : std::nullopt;
}

void WebSounds::play(std::string_view name)
{
    veyrand_host_play(std::string(name).c_str());
}

void WebSounds::startLoop(std::string_view name, double volume)
{
    veyrand_host_start_loop(std::string(name).c_str(), volume);
}

void WebSounds::setLoopVolume(double volume)
{
    veyrand_host_loop_volume(volume);
}

void WebSounds::stopLoop()
{
    veyrand_host_stop_loop();
}

void WebSounds::setVolume(platform::SoundKind kind, int percent)
{
    veyrand_host_volume(kind == platform::SoundKind::Music ? 1 : 0, percent);
}

void WebOverlayWindow::open(const platform::RectF& /*frame*/, std::string_view imageName)
{
    veyrand_host_log(("There is no window for " + std::string(imageName)).c_str());
}

void WebWindow::set(bool on)
{
    if (std::exchange(m_fullScreen, on) != on) {
        veyrand_host_full_screen(on ? 1 : 0);
    }
}

void WebAlerts::show(const platform::Alert& alert, Answered answered)
{
    m_waiting.push_back({ alert, std::move(answered) });
    if (m_waiting.size() == 1) {
        showFirst();
    }
}

void WebAlerts::answer(const platform::AlertAnswer& given)
{
    using platform::AlertAnswer;
    if (m_waiting.empty()) {
        return;
    }
    AlertAnswer answer = given;
    if (given.button == AlertAnswer::Button::Alternate
        && m_waiting.front().alert.alternateButton.empty()) {
        answer.button = AlertAnswer::Button::Default; // there is no other
    }
    const Answered answered = std::move(m_waiting.front().answered);
    m_waiting.pop_front();
    if (!m_waiting.empty()) {
        showFirst();
    }
    answered(answer);
}

void WebAlerts::showFirst() const
{
    const platform::Alert& alert = m_waiting.front().alert;
    const language::Json shown { { "message", alert.message }, { "text", alert.informativeText },
        { "default", alert.defaultButton }, { "alternate", alert.alternateButton },
        { "other", alert.otherButton },
        { "box", alert.suppressionBox == platform::Alert::SuppressionBox::Shown } };
    veyrand_host_alert(shown.dump().c_str());
}

} // namespace veyrand::web
