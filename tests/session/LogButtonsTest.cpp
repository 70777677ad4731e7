#include <gtest/gtest.h>

#include "logging/DataLogEngine.h"
#include "session/ConnectionState.h"
#include "session/LogButtons.h"

namespace corvex::test {
namespace {

TEST(LogButtonsTest, FollowLogAndLine) {
    constexpr std::uint32_t kAll[] = {kConnected, kConnecting, kNotConnected, kLogPaused};
    // In the order of the bar: slider, play, record, stop, pause, load.
    const LogButtons playing{true, false, false, true, true, false}, paused{true, true, false, true, false, false};
    const LogButtons recording{false, false, false, true, false, false}, none;
    const LogButtons idle{false, true, false, false, false, true}, connected{false, true, true, false, false, true};
    for (const std::uint32_t connection : kAll) {
        EXPECT_EQ(playing, ButtonsFor(kLogPlaying, connection));
        EXPECT_EQ(recording, ButtonsFor(kLogRecording, connection));
        EXPECT_EQ(idle, ButtonsFor(kLogStopRequested, connection));   // a playback that is ending
        EXPECT_EQ(none, ButtonsFor(kLogOpenedForWrite, connection));  // between creating and recording
    }
    EXPECT_EQ(paused, ButtonsFor(kLogReady, kLogPaused));
    EXPECT_EQ(idle, ButtonsFor(kLogClosed, kLogPaused));
    for (const std::uint32_t log : {kLogReady, kLogClosed}) {
        EXPECT_EQ(connected, ButtonsFor(log, kConnected));
        for (const std::uint32_t connection : {kConnecting, kNotConnected})
            EXPECT_EQ(idle, ButtonsFor(log, connection));
    }
}

}  // namespace
}  // namespace corvex::test
