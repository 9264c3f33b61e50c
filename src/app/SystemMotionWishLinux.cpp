#include "app/SystemMotionWish.h"
#include "desktop/linux/PortalMotionWish.h"

#include <QFileInfo>
#include <QtGlobal>

namespace veyrand::app {

namespace {

// Asked for a bus where there is none, the library starts one of its own, and nobody would ever
// speak on that.
bool hasSessionBus()
{
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")
        || (!qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")
            && QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus")));
}

} // namespace

std::unique_ptr<platform::MotionWish> systemMotionWish()
{
    if (!hasSessionBus()) {
        return nullptr;
    }
    return std::make_unique<desktop::linux::PortalMotionWish>(QDBusConnection::sessionBus());
}

} // namespace veyrand::app
