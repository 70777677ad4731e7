#include <regex>

#include "tests/program/ProgramTest.h"
#include "tools/driver/LogFiles.h"
#include "tools/driver/ReplyLines.h"

namespace corvex::test {
namespace {

class Scan : public ProgramTest {
protected:
    ReplyCounts Replies() { return CountReplies(Window().OutputLines()); }
    void ExpectRight(const std::string& pattern) {
        const std::regex wanted(pattern);
        EXPECT_TRUE(Eventually([&] { return std::regex_match(Window().RightText(), wanted); })) << Window().RightText();
    }
};

TEST_F(Scan, GetsThroughAndTellsSo) {
    Settle();
    Start();
    Connect();
    ExpectBar({.play = true, .record = true, .load = true});
    ExpectRight("[1-9][0-9]*\\.[0-9]{2} Hz   Errors: 0");
    const std::vector<std::string> lines = Window().OutputLines();
    ASSERT_GE(lines.size(), 6U);
    const std::vector<std::string> first(lines.begin(), lines.begin() + 5);
    EXPECT_EQ(first, (std::vector<std::string>{"BEGIN MACRO", "Looking for 10 ms of silence...", "Silence found",
                                               "END MACRO", "BEGIN MACRO"}));
    EXPECT_TRUE(std::regex_match(lines[5], std::regex("[0-9]+\\.[0-9]{3}: Command/Reply Success"))) << lines[5];
    Window().Press(kScanToolbarId, kScan);
    ExpectLeft("ALDL: Not Connected");
    ExpectRight("");
    ExpectBar({.play = true, .load = true});
}

// The simulator damages some of the first replies, and the panel counts those that came once connected.
TEST_F(Scan, CountsEveryReplyThatDidNotComeOrCameShort) {
    Settle();
    Start();
    for (const auto& [fault, share] : {std::pair{"--drop", "0.3"}, {"--noise", "0.5"}}) {
        SCOPED_TRACE(fault);
        engines.Start({"--pace", "--faulty-replies", "30", "--seed", "3", fault, share});
        Window().Send(kScan);
        ExpectLeft("ALDL Data Error!");
        ASSERT_TRUE(Eventually([&] { return Replies().All() >= 32; }));
        const ReplyCounts told = Replies();
        const std::string right = Window().RightText();
        Window().Send(kScan);
        ExpectLeft("ALDL: Not Connected");
        const std::string json = engines.Stop();
        const auto injected = static_cast<int>(CountIn(json, "drops") + CountIn(json, "cut"));
        EXPECT_GT(injected, 2) << json;
        EXPECT_EQ(told.bad, injected) << json;
        const std::string count = "Errors: " + std::to_string(injected - told.badBeforeGood);
        EXPECT_EQ(right.substr(right.find("Errors")), count);
    }
}

TEST_F(Scan, StopsWhileItWaitsForADeviceThatVanished) {
    Settle();
    Start();
    Connect();
    engines.Unplug();
    ExpectLeft("ALDL: Connecting...");
    ExpectOutput(TestPort() + " has vanished, waiting for it");
    EXPECT_EQ(Replies().bad, 1);
    Window().Send(kScan);
    ExpectLeft("ALDL: Not Connected");
    Connect();
}

// The recording that runs takes what comes after as what came before.
TEST_F(Scan, GoesOnInTheSameRecordingWhenTheDeviceIsBack) {
    Settle();
    Start();
    Connect();
    Window().Send(kRecord);
    const auto records = [&](std::uintmax_t bytes) {
        return Eventually([&] { return folder.Size("temp.xdl") > bytes; });
    };
    EXPECT_TRUE(records(400));
    engines.Unplug();
    ExpectOutput(TestPort() + " has vanished, waiting for it");
    const std::uintmax_t size = folder.Size("temp.xdl");
    engines.Start({"--pace"});
    ExpectOutput(TestPort() + " is back");
    EXPECT_TRUE(records(size + 400)) << Window().Output();
    ExpectLeft("Log Recording");
    ExpectRight("[0-9]+\\.[0-9]{2} Hz   Errors: 1");
    Window().Send(kScan);
    Window().Press(kLogToolbarId, kStopButton);
    ChooseFile(program->Id(), kSaveLogTitle, folder.Name("drive.xdl"));
    ExpectOutput("Log saved to " + folder.Name("drive.xdl"));
    const std::string log = folder.Files().Content("drive.xdl");
    EXPECT_EQ(HeaderOf(log).endMark, log.size() + 1);
    EXPECT_GE(HeaderOf(log).sampleCount, 10U);
}

}  // namespace
}  // namespace corvex::test
