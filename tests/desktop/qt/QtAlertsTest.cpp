#include "desktop/qt/QtAlerts.h"

#include "platform/AlertsContract.h"
#include "support/QtEnvironment.h"

#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>

namespace veyrand::platform {

namespace {

QMessageBox* openBox()
{
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        auto* const box = qobject_cast<QMessageBox*>(widget);
        if (box != nullptr && box->isVisible()) {
            return box;
        }
    }
    return nullptr;
}

// What is closed is deleted when control returns to the event loop.
void serveEvents()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

class QtAlertsHarness {
public:
    Alerts& alerts() { return m_alerts; }
    static void press(AlertAnswer::Button button)
    {
        QMessageBox* const box = openBox();
        ASSERT_NE(box, nullptr);
        QAbstractButton* wanted
            = button == AlertAnswer::Button::Default ? box->defaultButton() : box->escapeButton();
        for (QAbstractButton* const each : box->buttons()) {
            const bool isOther = each != box->defaultButton() && each != box->escapeButton();
            wanted = button == AlertAnswer::Button::Other && isOther ? each : wanted;
        }
        wanted->click();
        serveEvents();
    }
    static void close()
    {
        QMessageBox* const box = openBox();
        ASSERT_NE(box, nullptr);
        box->close();
        serveEvents();
    }
    static void tickBox()
    {
        QMessageBox* const box = openBox();
        ASSERT_NE(box, nullptr);
        box->checkBox()->click();
    }

private:
    desktop::qt::QtAlerts m_alerts;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, AlertsContract, QtAlertsHarness);

TEST(QtAlerts, ShowsTheTextsAsTheyAre)
{
    desktop::qt::QtAlerts alerts;
    alerts.show({ .message = "<b>Fast</b>  & loose",
                    .informativeText = "Two  blanks.",
                    .defaultButton = "Install",
                    .alternateButton = "Cancel" },
        [](const AlertAnswer&) {});
    const QMessageBox* const box = openBox();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    EXPECT_EQ(box->text(), QStringLiteral("<b>Fast</b>  & loose"));
    EXPECT_EQ(box->informativeText(), QStringLiteral("Two  blanks."));
    EXPECT_EQ(box->defaultButton()->text(), QStringLiteral("Install"));
    EXPECT_EQ(box->buttons().size(), 2);
    EXPECT_EQ(box->checkBox(), nullptr);
    QtAlertsHarness::close();
    EXPECT_EQ(openBox(), nullptr);
}

} // namespace veyrand::platform
