#include "desktop/qt/QtRunLoop.h"

#include "platform/RunLoopContract.h"
#include "support/QtEnvironment.h"

#include <QEventLoop>

#include <gtest/gtest.h>

namespace veyrand::platform {

namespace {

// Time passes by waiting for the loop's own call, so nothing is guessed about the machine's speed.
class QtRunLoopHarness {
public:
    RunLoop& loop() { return m_loop; }

    void pass(double seconds)
    {
        QEventLoop waiting;
        m_loop.performAfterDelay(seconds, [&] { waiting.quit(); });
        waiting.exec();
    }

private:
    desktop::qt::QtRunLoop m_loop;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, RunLoopContract, QtRunLoopHarness);

TEST(QtRunLoop, SleepsWhenNothingWaits)
{
    desktop::qt::QtRunLoop loop;
    EXPECT_FALSE(loop.isWaiting());

    QEventLoop waiting;
    loop.performAfterDelay(0.001, [&] { waiting.quit(); });
    EXPECT_TRUE(loop.isWaiting());
    waiting.exec();
    EXPECT_FALSE(loop.isWaiting());
}

} // namespace veyrand::platform
