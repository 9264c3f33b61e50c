#include "desktop/linux/PortalMotionWish.h"

#include "platform/MotionWishContract.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>
#include <QEventLoop>
#include <QProcess>

#include <array>
#include <map>
#include <memory>

namespace veyrand::desktop::linux {

namespace {

using Groups = QMap<QString, QVariantMap>;

// Calls over a bus need an event loop, and that an application. It outlives every test.
void startApplication()
{
    static int count = 1;
    static std::array<char, 6> name { "tests" };
    static std::array<char*, 2> arguments { name.data(), nullptr };
    if (QCoreApplication::instance() == nullptr) {
        static const QCoreApplication kApplication(count, arguments.data());
    }
}

// A bus of its own, on which nobody else is.
class PrivateBus {
public:
    PrivateBus()
    {
        startApplication();
        m_daemon.start(QStringLiteral("dbus-daemon"),
            { QStringLiteral("--session"), QStringLiteral("--nofork"),
                QStringLiteral("--print-address") });
        EXPECT_TRUE(m_daemon.waitForReadyRead()) << "dbus-daemon does not start";
        m_address = QString::fromLatin1(m_daemon.readLine()).trimmed();
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;
    ~PrivateBus()
    {
        for (const QString& name : m_names) {
            QDBusConnection::disconnectFromBus(name);
        }
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    QDBusConnection connect(const char* who)
    {
        static int number = 0;
        const QString name = QString::fromLatin1(who) + QString::number(++number);
        m_names.append(name);
        return QDBusConnection::connectToBus(m_address, name);
    }

private:
    QProcess m_daemon;
    QString m_address;
    QStringList m_names;
};

// Answers as the desktop's portal does.
class Portal final : public QDBusVirtualObject {
public:
    explicit Portal(const QDBusConnection& bus)
        : m_bus(bus)
    {
        qDBusRegisterMetaType<Groups>();
        EXPECT_TRUE(m_bus.registerVirtualObject(kPath, this));
        EXPECT_TRUE(m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    }

    // Known, but not told to those who do not ask.
    void know(const QString& group, const QString& name, const QVariant& value)
    {
        m_groups[group][name] = value;
    }
    void change(const QString& group, const QString& name, const QVariant& value)
    {
        know(group, name, value);
        QDBusMessage signal
            = QDBusMessage::createSignal(kPath, kSettings, QStringLiteral("SettingChanged"));
        signal.setArguments({ group, name, QVariant::fromValue(QDBusVariant(value)) });
        m_bus.send(signal);
    }

    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        if (message.interface() != kSettings || message.member() != QStringLiteral("ReadAll")) {
            return false;
        }
        Groups wanted;
        for (const QString& group : message.arguments().at(0).toStringList()) {
            if (m_groups.contains(group)) {
                wanted.insert(group, m_groups.value(group));
            }
        }
        return connection.send(message.createReply(QVariant::fromValue(wanted)));
    }

private:
    inline static const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
    inline static const QString kSettings = QStringLiteral("org.freedesktop.portal.Settings");

    QDBusConnection m_bus;
    Groups m_groups;
};

const QString kAppearance = QStringLiteral("org.freedesktop.appearance");
const QString kReducedMotion = QStringLiteral("reduced-motion");
const QString kInterface = QStringLiteral("org.gnome.desktop.interface");
const QString kAnimations = QStringLiteral("enable-animations");

class Desk {
public:
    Portal& openPortal()
    {
        m_portal = std::make_unique<Portal>(m_bus.connect("portal"));
        return *m_portal;
    }
    PortalMotionWish& openGame()
    {
        m_wish = std::make_unique<PortalMotionWish>(m_game);
        settle();
        return *m_wish;
    }
    // Messages keep their order: whoever has the answer to a call has seen what came before it.
    void settle()
    {
        if (m_portal) {
            // There and back by way of the portal, which is served by this thread's loop.
            roundTrip(QStringLiteral("org.freedesktop.portal.Desktop"),
                QStringLiteral("/org/freedesktop/portal/desktop"),
                QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("ReadAll"));
        }
        roundTrip(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("ListNames"));
        QCoreApplication::processEvents();
    }

private:
    void roundTrip(const QString& service, const QString& path, const QString& interface,
        const QString& member)
    {
        QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, member);
        if (member == QStringLiteral("ReadAll")) {
            call.setArguments({ QStringList() });
        }
        const QDBusMessage reply = m_game.call(call, QDBus::BlockWithGui);
        EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage) << reply.errorMessage().toStdString();
    }

    PrivateBus m_bus;
    QDBusConnection m_game { m_bus.connect("game") };
    std::unique_ptr<Portal> m_portal;
    std::unique_ptr<PortalMotionWish> m_wish;
};

} // namespace

TEST(PortalMotionWish, NobodyWantsLessWhereThereIsNoPortal)
{
    Desk desk;
    EXPECT_FALSE(desk.openGame().wantsLess());
}

TEST(PortalMotionWish, AsksForWhatTheDesktopWishedBeforeTheGameBegan)
{
    for (const bool less : { true, false }) {
        Desk desk;
        desk.openPortal().know(kAppearance, kReducedMotion, less ? 1U : 0U);
        EXPECT_EQ(desk.openGame().wantsLess(), less);
    }
}

TEST(PortalMotionWish, TakesNoAnimationsForLessMotionOnDesktopsThatKnowNothingNewer)
{
    for (const bool animations : { true, false }) {
        Desk desk;
        desk.openPortal().know(kInterface, kAnimations, animations);
        EXPECT_EQ(desk.openGame().wantsLess(), !animations);
    }
}

TEST(PortalMotionWish, BelievesTheSettingForMotionBeforeTheOneForAnimations)
{
    Desk desk;
    Portal& portal = desk.openPortal();
    portal.know(kAppearance, kReducedMotion, 0U);
    portal.know(kInterface, kAnimations, false);
    PortalMotionWish& wish = desk.openGame();
    EXPECT_FALSE(wish.wantsLess());
    portal.change(kAppearance, kReducedMotion, 1U);
    desk.settle();
    EXPECT_TRUE(wish.wantsLess());
}

TEST(PortalMotionWish, AValueOfAnotherKindSaysNothing)
{
    Desk desk;
    Portal& portal = desk.openPortal();
    portal.know(kAppearance, kReducedMotion, QStringLiteral("yes"));
    portal.know(kInterface, kAnimations, 0);
    portal.know(kInterface, QStringLiteral("clock-format"), QStringLiteral("24h"));
    EXPECT_FALSE(desk.openGame().wantsLess());
}

} // namespace veyrand::desktop::linux

namespace veyrand::platform {

namespace {

class PortalHarness {
public:
    PortalHarness()
        : m_portal(m_desk.openPortal())
        , m_wish(m_desk.openGame())
    {
    }
    MotionWish& motionWish() { return m_wish; }
    void wish(bool less)
    {
        m_portal.change(QStringLiteral("org.gnome.desktop.interface"),
            QStringLiteral("enable-animations"), !less);
        m_desk.settle();
    }

private:
    desktop::linux::Desk m_desk;
    desktop::linux::Portal& m_portal;
    desktop::linux::PortalMotionWish& m_wish;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Portal, MotionWishContract, PortalHarness);

} // namespace veyrand::platform
