#include "app/UncaughtGuard.h"

#include <cstdlib>
#include <exception>

namespace veyrand::app {

bool deliverGuarded(const std::function<bool()>& deliver, std::optional<std::string>& failure)
{
    std::string reason;
    try {
        return deliver();
    } catch (const std::exception& error) {
        reason = error.what();
    } catch (...) {
        reason = "an error without a name";
    }
    failure = failure.value_or(reason);
    return false;
}

bool GuardedApplication::notify(QObject* receiver, QEvent* event)
{
    const bool delivered
        = deliverGuarded([&] { return QApplication::notify(receiver, event); }, m_failure);
    if (m_failure) {
        exit(EXIT_FAILURE);
    }
    return delivered;
}

std::optional<std::string> GuardedApplication::failure()
{
    const auto* const application = dynamic_cast<GuardedApplication*>(instance());
    return application != nullptr ? application->m_failure : std::nullopt;
}

} // namespace veyrand::app
