#include "platform/fakes/NotedAlerts.h"

#include "platform/AlertsContract.h"

namespace veyrand::platform {

namespace {

class NotedAlertsHarness {
public:
    Alerts& alerts() { return m_alerts; }
    void tickBox() { m_ticked = true; }
    void press(AlertAnswer::Button button)
    {
        m_alerts.answer({ .button = button, .suppressed = m_ticked });
    }
    void close() { m_alerts.close(); }

private:
    NotedAlerts m_alerts;
    bool m_ticked = false;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Noted, AlertsContract, NotedAlertsHarness);

TEST(NotedAlerts, ShowsWhatIsOpen)
{
    NotedAlerts alerts;
    EXPECT_FALSE(alerts.isOpen());
    alerts.show({ .message = "Hello", .informativeText = "", .defaultButton = "OK" },
        [](const AlertAnswer&) {});
    ASSERT_TRUE(alerts.isOpen());
    EXPECT_EQ(alerts.alert().message, "Hello");
    alerts.close();
    EXPECT_FALSE(alerts.isOpen());
}

} // namespace veyrand::platform
