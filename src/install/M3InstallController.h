#pragma once

#include "install/Installation.h"

#include <functional>

namespace veyrand::install {

// Offers, at quit, to copy the application from the disk image it runs from into the Applications
// folder; the offer can be declined for good. It asks through a continuation and returns at once,
// so it has to live until `done` has been called; it knows nothing of the game.
class M3InstallController {
public:
    static constexpr std::string_view kDontAskAgainKey = "M3DontAskInstallAgain";
    static constexpr std::string_view kSystemFolder = "/Applications";

    // Prepares the alert.
    explicit M3InstallController(const Installation& installation);

    // Asks if there is reason to, and installs if that is the answer. `done` is called exactly
    // once, when nothing is left to ask or to say: perhaps before this returns.
    void displayInstaller(std::function<void()> done);
    // Copies the application and tells how that went. An existing copy is replaced without asking,
    // and only by a complete new one: what fails half-way leaves it alone. Where something else
    // stands in its place, the next folder is tried.
    void installApp(const std::function<void()>& done);

    [[nodiscard]] const platform::Alert& alert() const { return m_alert; }

private:
    [[nodiscard]] bool hasReasonToAsk() const;
    [[nodiscard]] bool copyInto(const std::string& folder) const;
    [[nodiscard]] bool copyTo(const std::string& path) const;
    void report(const std::string& message, const std::string& informativeText,
        const std::function<void()>& done) const;
    [[nodiscard]] std::string localized(const char* text) const;

    const Installation& m_installation;
    platform::Alert m_alert;
};

} // namespace veyrand::install
