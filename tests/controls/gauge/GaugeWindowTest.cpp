#include <gtest/gtest.h>

#include "controls/gauge/GaugeWindow.h"
#include "tests/controls/window/ControlTestHelper.h"

namespace corvex {
namespace {

// The menu's road to the parent is proved with the gauges.
TEST(GaugeWindowTest, RepaintErasesAndPaintsAtOnce) {
    TestWindow parent(WS_POPUP | WS_VISIBLE);
    TestWindow gauge(WS_CHILD | WS_VISIBLE, parent.Window());
    ::UpdateWindow(gauge.Window());
    gauge.heard.clear();
    RepaintGauge(gauge.Window());
    EXPECT_EQ(gauge.Count(WM_PAINT), 1);
    EXPECT_EQ(gauge.Count(WM_ERASEBKGND), 1);
}

}  // namespace
}  // namespace corvex
