#pragma once

#include <QApplication>

#include <functional>
#include <optional>
#include <string>

namespace veyrand::app {

// Delivers, and keeps what an exception says that comes of it; of several, what the first says. The
// toolkit's loops must not be left by one.
bool deliverGuarded(const std::function<bool()>& deliver, std::optional<std::string>& failure);

// The application, which ends at the first exception that reaches it from an event: nobody knows
// how things stand after one. What the player did until then has been saved.
class GuardedApplication final : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;

    // Why it has ended, if so.
    [[nodiscard]] static std::optional<std::string> failure();

private:
    std::optional<std::string> m_failure;
};

} // namespace veyrand::app
