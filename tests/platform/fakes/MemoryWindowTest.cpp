#include "platform/fakes/MemoryWindow.h"

#include "platform/WindowContract.h"

namespace veyrand::platform {

namespace {

class MemoryWindowHarness {
public:
    Window& window() { return m_window; }
    void settle() { }

private:
    MemoryWindow m_window;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, WindowContract, MemoryWindowHarness);

TEST(MemoryWindow, TellsOfEveryChangeAndOfNothingElse)
{
    MemoryWindow window;
    int changes = 0;
    window.setModeListener([&changes] { ++changes; });
    window.exitFullScreenMode();
    EXPECT_EQ(changes, 0);
    window.zoom();
    window.enterFullScreenMode();
    window.enterFullScreenMode();
    EXPECT_EQ(changes, 2);
}

} // namespace veyrand::platform
