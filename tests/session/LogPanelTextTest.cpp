#include <gtest/gtest.h>

#include "logging/DataLogEngine.h"
#include "session/LogPanelText.h"

namespace corvex::test {
namespace {

TEST(LogPanelTextTest, ARecordingComesFirstThenALogOnShowThenTheLastRecording) {
    LogPanelState state;
    EXPECT_EQ("", LogPanelText(state));
    EXPECT_EQ("", LogPanelTip(state, 1));
    state.kept = "C:\\corvex\\temp.xdl";
    EXPECT_EQ("unsaved: temp.xdl", LogPanelText(state));
    EXPECT_EQ(
        "The last recording was not saved. It is in C:\\corvex\\temp.xdl, 7 bytes, and gets a name with its date "
        "before another one begins.",
        LogPanelTip(state, 7));
    state.kept = "C:\\logs\\monday.xdl";
    state.saved = true;
    EXPECT_EQ("monday.xdl", LogPanelText(state));
    EXPECT_EQ("Log saved to C:\\logs\\monday.xdl, 7 bytes.", LogPanelTip(state, 7));
    EXPECT_EQ("Log saved to C:\\logs\\monday.xdl.", LogPanelTip(state, -1));
    state.playing = "D:/sunday.xdl";
    for (const std::uint32_t log : {kLogClosed, kLogReady, kLogStopRequested, kLogOpenedForWrite}) {
        state.log = log;
        EXPECT_EQ("monday.xdl", LogPanelText(state)) << log;
    }
    state.paused = true;
    EXPECT_EQ("sunday.xdl", LogPanelText(state));
    EXPECT_EQ("D:/sunday.xdl", LogPanelFile(state));
    EXPECT_EQ("Paused: D:/sunday.xdl, 9 bytes.", LogPanelTip(state, 9));
    state.paused = false;
    state.log = kLogPlaying;
    EXPECT_EQ("Playing D:/sunday.xdl, 9 bytes.", LogPanelTip(state, 9));
    state.log = kLogRecording;
    state.recording = "C:\\corvex\\temp.xdl";
    state.seconds = 723.9;
    state.records = 4512;
    EXPECT_EQ("12:03  4512", LogPanelText(state));
    EXPECT_EQ(state.recording, LogPanelFile(state));
    EXPECT_EQ("Recording to C:\\corvex\\temp.xdl: 12:03, 4512 records, 9 bytes. Stop asks for a name.",
              LogPanelTip(state, 9));
    state.seconds = 4323.0;
    EXPECT_EQ("1:12:03  4512", LogPanelText(state));
}

}  // namespace
}  // namespace corvex::test
