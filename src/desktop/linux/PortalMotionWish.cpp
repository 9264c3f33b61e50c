#include "desktop/linux/PortalMotionWish.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace veyrand::desktop::linux {

namespace {

using Groups = QMap<QString, QVariantMap>;

const QString kPortal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kSettings = QStringLiteral("org.freedesktop.portal.Settings");

const QString kAppearance = QStringLiteral("org.freedesktop.appearance");
const QString kReducedMotion = QStringLiteral("reduced-motion"); // 1: less, else no wish
const QString kInterface = QStringLiteral("org.gnome.desktop.interface");
const QString kAnimations = QStringLiteral("enable-animations");

} // namespace

PortalMotionWish::PortalMotionWish(QDBusConnection bus)
    : m_bus(std::move(bus))
{
    qDBusRegisterMetaType<Groups>();
    // Listening first, so that no change falls between the answer and the listening.
    m_bus.connect(kPortal, kPath, kSettings, QStringLiteral("SettingChanged"), this,
        SLOT(settingChanged(QString, QString, QDBusVariant)));
    ask();
}

void PortalMotionWish::ask()
{
    QDBusMessage call
        = QDBusMessage::createMethodCall(kPortal, kPath, kSettings, QStringLiteral("ReadAll"));
    call.setArguments({ QStringList { kAppearance, kInterface } });
    auto* const answer = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<Groups> reply = *answer;
        if (reply.isError()) {
            return;
        }
        const Groups groups = reply.value();
        for (auto group = groups.begin(); group != groups.end(); ++group) {
            for (auto entry = group->begin(); entry != group->end(); ++entry) {
                note(group.key(), entry.key(), entry.value());
            }
        }
    });
}

bool PortalMotionWish::wantsLess() const
{
    return m_reducedMotion.value_or(!m_animations.value_or(true));
}

void PortalMotionWish::settingChanged(
    const QString& group, const QString& name, const QDBusVariant& value)
{
    note(group, name, value.variant());
}

// A value of a kind that was never promised says nothing.
void PortalMotionWish::note(const QString& group, const QString& name, const QVariant& value)
{
    const bool before = wantsLess();
    if (group == kAppearance && name == kReducedMotion && value.typeId() == QMetaType::UInt) {
        m_reducedMotion = value.toUInt() == 1;
    } else if (group == kInterface && name == kAnimations && value.typeId() == QMetaType::Bool) {
        m_animations = value.toBool();
    }
    if (wantsLess() != before && m_listener) {
        m_listener();
    }
}

} // namespace veyrand::desktop::linux
