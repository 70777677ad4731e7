#include <gtest/gtest.h>

#include "session/ScanPolicy.h"
#include "tests/support/Listed.h"

namespace corvex::test {
namespace {

constexpr auto kRefused = static_cast<std::int32_t>(0x80004005);

TEST(ScanPolicyTest, OnlyNegativeResultsAreFailures) {
    for (const std::int32_t result : {kRefused, 0, 1})
        EXPECT_EQ(result == kRefused, IsFailure(result));
}

TEST(ScanPolicyTest, MonitorRunsWhileWantedAndNotRefusedAndThenDisconnects) {
    EXPECT_TRUE(KeepsMonitoring(1, 0));
    EXPECT_FALSE(KeepsMonitoring(0, 0));
    EXPECT_FALSE(KeepsMonitoring(1, kRefused));
    EXPECT_TRUE(RunsDisconnect(true, 0));
    EXPECT_FALSE(RunsDisconnect(true, 1));
    EXPECT_FALSE(RunsDisconnect(false, 0));
}

TEST(ScanPolicyTest, GoodReplyConnectsOnlyWhileConnecting) {
    EXPECT_TRUE(BecomesConnected(1, kConnecting));
    EXPECT_FALSE(BecomesConnected(0, kConnecting));
    for (const std::uint32_t state : {kConnected, kNotConnected, kLogPaused})
        EXPECT_FALSE(BecomesConnected(1, state));
}

TEST(ScanPolicyTest, RecordingTakesSamplesOfAConnectedLine) {
    EXPECT_TRUE(TakesSamples(kLogRecording, 1, kConnected));
    EXPECT_TRUE(TakesSamples(kLogRecording, 0, kConnected));   // the disconnect command's replies too
    EXPECT_TRUE(TakesSamples(kLogRecording, 1, kConnecting));  // the reply that connects
    EXPECT_FALSE(TakesSamples(kLogRecording, 0, kConnecting));
    EXPECT_FALSE(TakesSamples(kLogRecording, 1, kLogPaused));
    EXPECT_FALSE(TakesSamples(kLogPlaying, 1, kConnected));
    EXPECT_FALSE(TakesSamples(kLogOpenedForWrite, 1, kConnected));
}

TEST(ScanPolicyTest, NumbersOfTheStatesAreFixed) {
    EXPECT_EQ("0 1 2 3", Listed(kConnected, kConnecting, kNotConnected, kLogPaused));
}

}  // namespace
}  // namespace corvex::test
