#include <gtest/gtest.h>

#include "logging/DataLogEngine.h"
#include "session/ConnectionState.h"
#include "session/LogButtons.h"

namespace corvex::test {
namespace {

constexpr std::uint32_t kAllConnections[] = {kConnected, kConnecting, kNotConnected, kLogPaused};

// In the order of the bar: slider, play, record, stop, pause, load.
LogButtons Row(bool slider, bool play, bool record, bool stop, bool pause, bool load) {
    return {slider, play, record, stop, pause, load};
}

TEST(LogButtonsTest, PlayingCanBePausedStoppedAndJumpedIn) {
    for (const std::uint32_t connection : kAllConnections)
        EXPECT_EQ(Row(true, false, false, true, true, false), ButtonsFor(kLogPlaying, connection));
}

TEST(LogButtonsTest, PausedLogCanGoOnOrStop) {
    EXPECT_EQ(Row(true, true, false, true, false, false), ButtonsFor(kLogReady, kLogPaused));
}

TEST(LogButtonsTest, IdleLogRecordsOnlyWhenConnected) {
    for (const std::uint32_t log : {kLogReady, kLogClosed}) {
        EXPECT_EQ(Row(false, true, true, false, false, true), ButtonsFor(log, kConnected));
        for (const std::uint32_t connection : {kConnecting, kNotConnected})
            EXPECT_EQ(Row(false, true, false, false, false, true), ButtonsFor(log, connection));
    }
    EXPECT_EQ(Row(false, true, false, false, false, true), ButtonsFor(kLogClosed, kLogPaused));
}

TEST(LogButtonsTest, RecordingCanOnlyBeStopped) {
    for (const std::uint32_t connection : kAllConnections)
        EXPECT_EQ(Row(false, false, false, true, false, false), ButtonsFor(kLogRecording, connection));
}

TEST(LogButtonsTest, PlaybackThatIsEndingLeavesPlayAndLoad) {
    for (const std::uint32_t connection : kAllConnections)
        EXPECT_EQ(Row(false, true, false, false, false, true), ButtonsFor(kLogStopRequested, connection));
}

TEST(LogButtonsTest, NothingIsOfferedBetweenCreatingAndRecording) {
    for (const std::uint32_t connection : kAllConnections)
        EXPECT_EQ(LogButtons(), ButtonsFor(kLogOpenedForWrite, connection));
}

}  // namespace
}  // namespace corvex::test
