#pragma once

#include "platform/MotionWish.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <QVariantMap>

#include <optional>

namespace veyrand::desktop::linux {

// What the desktop's portal says, which every desktop and every sandbox offers under one name. It
// is asked without being waited for. A desktop that has the setting for reduced motion is believed;
// elsewhere the older one for animations counts. Where there is no portal nobody wants less.
class PortalMotionWish final : public QObject, public platform::MotionWish {
    Q_OBJECT

public:
    explicit PortalMotionWish(QDBusConnection bus);

    [[nodiscard]] bool wantsLess() const override;
    void setListener(std::function<void()> listener) override { m_listener = std::move(listener); }

private:
    Q_SLOT void settingChanged(
        const QString& group, const QString& name, const QDBusVariant& value);
    void ask();
    void note(const QString& group, const QString& name, const QVariant& value);

    QDBusConnection m_bus;
    std::function<void()> m_listener;
    std::optional<bool> m_reducedMotion;
    std::optional<bool> m_animations;
};

} // namespace veyrand::desktop::linux
