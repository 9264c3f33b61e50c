#pragma once

#include "platform/Window.h"

#include <gtest/gtest.h>

namespace veyrand::platform {

// What every window promises. A program checks its own with
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(Memory, WindowContract, MemoryWindowHarness);
//
// where the harness begins with a window of its own size and offers
//
//     Window& window();
//     void settle(); // returns once the desktop has done what it was asked
template <class Harness> class WindowContract : public ::testing::Test {
protected:
    Window& window() { return m_harness.window(); }
    // At once, and as it stays.
    void expectModes(bool zoomed, bool fullScreen)
    {
        EXPECT_EQ(window().isZoomed(), zoomed);
        EXPECT_EQ(window().isInFullScreenMode(), fullScreen);
        m_harness.settle();
        EXPECT_EQ(window().isZoomed(), zoomed);
        EXPECT_EQ(window().isInFullScreenMode(), fullScreen);
    }

private:
    Harness m_harness;
};

TYPED_TEST_SUITE_P(WindowContract);

TYPED_TEST_P(WindowContract, ANewWindowHasItsOwnSize)
{
    this->expectModes(false, false);
}

TYPED_TEST_P(WindowContract, ZoomingTwiceGivesItsOwnSizeBack)
{
    this->window().zoom();
    this->expectModes(true, false);
    this->window().zoom();
    this->expectModes(false, false);
}

TYPED_TEST_P(WindowContract, BeingZoomedOutlastsFullScreenMode)
{
    this->window().zoom();
    this->window().enterFullScreenMode();
    this->expectModes(true, true);
    this->window().exitFullScreenMode();
    this->expectModes(true, false);
}

TYPED_TEST_P(WindowContract, FullScreenModeAloneDoesNotZoom)
{
    this->window().enterFullScreenMode();
    this->expectModes(false, true);
    this->window().exitFullScreenMode();
    this->expectModes(false, false);
}

TYPED_TEST_P(WindowContract, ModesChangedInOneGoAllCount)
{
    this->window().zoom();
    this->window().enterFullScreenMode();
    this->expectModes(true, true);
    this->window().exitFullScreenMode();
    this->window().zoom();
    this->expectModes(false, false);
}

TYPED_TEST_P(WindowContract, EnteringTwiceIsEnteringOnce)
{
    this->window().exitFullScreenMode();
    this->expectModes(false, false);
    this->window().enterFullScreenMode();
    this->window().enterFullScreenMode();
    this->expectModes(false, true);
    this->window().exitFullScreenMode();
    this->expectModes(false, false);
}

REGISTER_TYPED_TEST_SUITE_P(WindowContract, ANewWindowHasItsOwnSize,
    ZoomingTwiceGivesItsOwnSizeBack, BeingZoomedOutlastsFullScreenMode,
    FullScreenModeAloneDoesNotZoom, ModesChangedInOneGoAllCount, EnteringTwiceIsEnteringOnce);

} // namespace veyrand::platform
