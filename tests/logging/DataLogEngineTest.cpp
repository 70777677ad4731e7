#include <gtest/gtest.h>

#include "logging/DataLogEngine.h"

namespace corvex::test {
namespace {

constexpr std::uint8_t kReply[] = {1, 2, 3};

TEST(DataLogEngineTest, BeginsClosed) {
    const DataLogEngine log;
    EXPECT_EQ(kLogClosed, log.State());
    EXPECT_FALSE(log.IsPlaying());
    EXPECT_EQ(0U, log.CurrentTime());
    EXPECT_EQ(1.0F, log.speed);
}

TEST(DataLogEngineTest, SampleNeedsARecording) {
    DataLogEngine log;
    for (const std::uint32_t state : {kLogClosed, kLogReady, kLogOpenedForWrite, kLogPlaying, kLogStopRequested}) {
        log.state = state;
        EXPECT_EQ(3U, log.AddSample(1, kReply, 3));
        EXPECT_EQ(3U, log.StopRecording());
    }
}

TEST(DataLogEngineTest, StopIsRequestedWithoutWaiting) {
    DataLogEngine log;
    log.state = kLogPlaying;
    log.threadId = 1;
    EXPECT_EQ(0U, log.RequestStop());
    EXPECT_EQ(kLogStopRequested, log.State());
    EXPECT_TRUE(log.IsPlaying());
}

}  // namespace
}  // namespace corvex::test
