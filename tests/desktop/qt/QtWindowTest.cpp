#include "desktop/qt/QtWindow.h"

#include "platform/WindowContract.h"
#include "support/QtEnvironment.h"

namespace veyrand::platform {

namespace {

class QtWindowHarness {
public:
    QtWindowHarness()
    {
        m_widget.show();
        m_window.setMainWindow(m_widget);
    }
    Window& window() { return m_window; }
    void settle() { QCoreApplication::processEvents(); }

private:
    QWidget m_widget;
    desktop::qt::QtWindow m_window;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, WindowContract, QtWindowHarness);

TEST(QtWindow, WithoutAWindowNothingHappens)
{
    desktop::qt::QtWindow window;
    window.zoom();
    window.enterFullScreenMode();
    EXPECT_FALSE(window.isZoomed());
    EXPECT_FALSE(window.isInFullScreenMode());
}

} // namespace veyrand::platform
