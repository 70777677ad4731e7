#include <gtest/gtest.h>

#include "tests/session/window/main/ViewsHelper.h"

namespace corvex::test {
namespace {

using ViewsLiveTest = ViewsTest;

TEST_F(ViewsLiveTest, AScanMovesTheGaugesOnShow) {
    serial.Answer({0xA0}, {123, 45}, 5);
    StartShown();
    Select(kDashTab);
    Command(IDM_SCAN);
    ASSERT_TRUE(Pumps([&] { return Needle(0) == 123; }));
    EXPECT_EQ(45.0F, Digits(1));
    EXPECT_EQ(0.0F, Digits(3)) << "of a command that never ran";
    ASSERT_TRUE(Pumps([&] { return session.connectionState == kConnected; }));
    Command(IDM_SCAN);
    ASSERT_TRUE(Pumps([&] { return desktop.IsQuiet(); }));
}

TEST_F(ViewsLiveTest, APlaybackMovesThemTheSameWay) {
    StartShown();
    Select(kDashTab);
    session.settings.SetLastLog(PutLog("some.xdl", {0, 10, 20, 30, 40, 50}));
    Command(IDM_PLAY);
    ASSERT_TRUE(Pumps([&] { return Needle(0) == 5; }));
    EXPECT_EQ(238.0F, Digits(1));
    ASSERT_TRUE(Pumps([&] { return Monitors().Charts().at(0).timeAxis->marker == 0.05F; })) << "the cursor";
    ASSERT_TRUE(Rests(kLogClosed));
    EXPECT_EQ(6U, session.currentHistogram->GetTotalSampleCount());
    EXPECT_EQ("5.00", Cell(1, 1));
}

}  // namespace
}  // namespace corvex::test
