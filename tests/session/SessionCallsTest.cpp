#include <gtest/gtest.h>

#include "session/SessionCalls.h"
#include "tests/support/Listed.h"

namespace corvex::test {
namespace {

TEST(SessionCallsTest, EmptyCallsDoNothing) {
    const SessionCalls calls = WithoutGaps({});
    calls.refreshStatus();
    calls.refreshButtons();
    calls.carrySample({0, 0.0, nullptr, 0, {}});
    calls.flash("", 0, 0, 0);
    calls.clearMonitors();
    calls.setMonitorTime(1.0);
    calls.setLogSlider(1);
    calls.setLogRange(1);
    calls.refreshTitle();
    calls.checkSpeed(1);
    EXPECT_FALSE(calls.askSavePath(kSaveLogPrompt));
    EXPECT_FALSE(calls.askOpenPath(kOpenLogPrompt));
    calls.showBox("", "");
    calls.postMain(kMessageScanStopped);
    calls.portRefused("");
    calls.replyEnded({}, nullptr);
}

TEST(SessionCallsTest, GivenCallsStay) {
    SessionCalls given;
    int refreshed = 0;
    given.refreshStatus = [&] { ++refreshed; };
    given.askSavePath = [](const FilePrompt&) { return "name"; };
    const SessionCalls calls = WithoutGaps(given);
    calls.refreshStatus();
    EXPECT_EQ(1, refreshed);
    EXPECT_EQ("name", calls.askSavePath(kSaveLogPrompt));
}

TEST(SessionCallsTest, PromptsAreTheDialogs) {
    EXPECT_STREQ("Select/Create file to save...", kSaveLogPrompt.title);
    EXPECT_STREQ("Select datalog...", kOpenLogPrompt.title);
    for (const FilePrompt& prompt : {kSaveLogPrompt, kOpenLogPrompt}) {
        EXPECT_STREQ("Datalog (XDL) Files (*.xdl)", prompt.filter);
        EXPECT_STREQ("xdl", prompt.extension);
        EXPECT_EQ(0x2002U, prompt.flags);
    }
}

TEST(SessionCallsTest, MessagesKeepTheirNumbers) {
    EXPECT_EQ("32768 32769 32770 32771",
              Listed(kMessageDestroyWindow, kMessageScanStopped, kMessageLogStopped, kMessagePlaybackRests));
}

}  // namespace
}  // namespace corvex::test
