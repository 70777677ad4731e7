#include <gtest/gtest.h>

#include "logging/DataLogEngine.h"
#include "session/ConnectionState.h"
#include "session/StatusText.h"

namespace corvex::test {
namespace {

void ExpectLeft(std::uint32_t log, std::uint32_t connection, const char* text, std::uint32_t front,
                std::uint32_t back) {
    const PanelText panel = LeftPanelText(log, connection);
    EXPECT_STREQ(text, panel.text);
    EXPECT_EQ(front, panel.textColour) << text;
    EXPECT_EQ(back, panel.backColour) << text;
}

TEST(StatusTextTest, LeftPanelFollowsTheLine) {
    for (const std::uint32_t log : {kLogClosed, kLogReady, kLogOpenedForWrite, kLogStopRequested}) {
        ExpectLeft(log, kNotConnected, "ALDL: Not Connected", 0x000000, 0x00FFFF);
        ExpectLeft(log, kConnecting, "ALDL: Connecting...", 0x000000, 0x82AAFF);
        ExpectLeft(log, kConnected, "ALDL: Connected", 0xFFFFFF, 0xFF0000);
        ExpectLeft(log, kLogPaused, "Log Paused", 0x000000, 0x2873FF);
    }
}

TEST(StatusTextTest, LeftPanelTellsOfTheLogFirst) {
    for (const std::uint32_t connection : {kConnected, kConnecting, kNotConnected, kLogPaused}) {
        ExpectLeft(kLogPlaying, connection, "Log Playing", 0xFFFFFF, 0xFF0000);
        ExpectLeft(kLogRecording, connection, "Log Recording", 0xFFFFFF, 0x787878);
    }
}

TEST(StatusTextTest, RightPanelShowsTheLineBeforeTheLog) {
    for (const std::uint32_t log : {kLogClosed, kLogPlaying, kLogRecording})
        EXPECT_EQ("12.05 Hz   Errors: 3", RightPanelText({log, kConnected, 12.049F, 3, 1000}));
}

TEST(StatusTextTest, RightPanelShowsTheLogsTime) {
    for (const std::uint32_t log : {kLogPlaying, kLogRecording}) {
        for (const std::uint32_t connection : {kConnecting, kNotConnected, kLogPaused})
            EXPECT_EQ("5.00 Hz  1:2:03:004", RightPanelText({log, connection, 5.0F, 9, 3723004}));
    }
    constexpr std::uint32_t kHour = 3600000;  // they come round after sixty
    EXPECT_EQ("0.00 Hz  59:0:00:000", RightPanelText({kLogPlaying, kNotConnected, 0.0F, 0, 59 * kHour}));
    EXPECT_EQ("0.00 Hz  1:0:00:000", RightPanelText({kLogPlaying, kNotConnected, 0.0F, 0, 61 * kHour}));
}

TEST(StatusTextTest, RightPanelIsEmptiedOnlyWhenNothingRuns) {
    EXPECT_EQ("", RightPanelText({kLogClosed, kNotConnected, 1.0F, 1, 1}));
    EXPECT_EQ(std::nullopt, RightPanelText({kLogClosed, kConnecting, 1.0F, 1, 1}));
    EXPECT_EQ(std::nullopt, RightPanelText({kLogReady, kLogPaused, 1.0F, 1, 1}));
}

}  // namespace
}  // namespace corvex::test
