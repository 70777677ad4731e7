#include <cstdio>
#include <regex>

#include "tests/program/ProgramTest.h"
#include "tests/program/driver/ReplyLines.h"

namespace corvex::test {
namespace {

class Scan : public ProgramTest {
protected:
    ReplyCounts Replies() { return CountReplies(Window().OutputLines()); }
    void ExpectRight(const std::string& pattern) {
        const std::regex wanted(pattern);
        EXPECT_TRUE(Eventually([&] { return std::regex_match(Window().RightText(), wanted); })) << Window().RightText();
    }
    // The simulator damages some of the first replies, and the panel counts those that came once connected.
    void ExpectErrorsCounted(const std::vector<std::string>& faults, const char* what);
};

TEST_F(Scan, GetsThroughAndTellsSo) {
    Settle();
    Start();
    engines.Start({"--pace"});
    const Timer timer;
    Window().Send(kScan);
    ExpectLeft("ALDL: Connected");
    std::printf("connected %.0f ms after the command\n", timer.Milliseconds());
    ExpectBar({.play = true, .record = true, .load = true});
    ExpectRight("[1-9][0-9]*\\.[0-9]{2} Hz   Errors: 0");
    EXPECT_EQ(Window().Title(), TitleOf(folder.ShortName("harrier-8192.adx")));
    const std::vector<std::string> lines = Window().OutputLines();
    ASSERT_GE(lines.size(), 6U);
    const std::vector<std::string> first(lines.begin(), lines.begin() + 5);
    EXPECT_EQ(first, (std::vector<std::string>{"BEGIN MACRO", "Looking for 10 ms of silence...", "Silence found",
                                               "END MACRO", "BEGIN MACRO"}));
    EXPECT_TRUE(std::regex_match(lines[5], std::regex("[0-9]+\\.[0-9]{3}: Command/Reply Success"))) << lines[5];
    Window().Send(kScan);
    ExpectLeft("ALDL: Not Connected");
    ExpectRight("");
    ExpectBar({.play = true, .load = true});
}

TEST_F(Scan, StartsAndStopsWithItsButton) {
    Settle();
    Start();
    engines.Start({"--pace"});
    for (int i = 0; i < 2; ++i) {
        Window().Press(kScanToolbarId, kScan);
        ExpectLeft("ALDL: Connected");
        Window().Press(kScanToolbarId, kScan);
        ExpectLeft("ALDL: Not Connected");
    }
}

TEST_F(Scan, WaitsForAnEngineThatSaysNothing) {
    Settle();
    Start();
    engines.Start({"--silent"});
    Window().Send(kScan);
    ExpectLeft("ALDL: Connecting...");
    ExpectOutput("!!!!!!SEND COMMAND FAILURE (0x00000006)!!!!!!");
    EXPECT_EQ(Window().LeftText(), "ALDL: Connecting...");
    ExpectBar({.play = true, .load = true});
    Window().Send(kScan);
    ExpectLeft("ALDL: Not Connected");
    EXPECT_EQ(Window().RightText(), "");
}

TEST_F(Scan, SaysWhichPortWillNotOpen) {
    Settle({{"comport", "COM9"}});
    Start();
    for (int i = 0; i < 2; ++i) {
        Window().Send(kScan);
        ExpectOutput("Unable to open port (COM9)!");
        ExpectLeft("ALDL: Not Connected");
        ExpectBar({.play = true, .load = true});
    }
}

void Scan::ExpectErrorsCounted(const std::vector<std::string>& faults, const char* what) {
    Settle();
    Start();
    std::vector<std::string> options{"--pace", "--faulty-replies", "30", "--seed", "3"};
    options.insert(options.end(), faults.begin(), faults.end());
    engines.Start(options);
    Window().Send(kScan);
    ExpectLeft("ALDL Data Error!");
    ASSERT_TRUE(Eventually([&] { return Replies().All() >= 32; }));
    const ReplyCounts told = Replies();
    const std::string right = Window().RightText();
    Window().Send(kScan);
    ExpectLeft("ALDL: Not Connected");
    const std::string json = engines.Stop();
    const auto injected = static_cast<int>(CountIn(json, "drops") + CountIn(json, "cut"));
    std::printf("%s: %s, told: %d bad of %d, panel: %s\n", what, json.c_str(), told.bad, told.All(), right.c_str());
    EXPECT_GT(injected, 2);
    EXPECT_EQ(told.bad, injected);
    const std::string count = "Errors: " + std::to_string(injected - told.badBeforeGood);
    EXPECT_EQ(right.substr(right.find("Errors")), count);
}

TEST_F(Scan, CountsEveryReplyThatDidNotCome) {
    ExpectErrorsCounted({"--drop", "0.3"}, "--drop");
}

TEST_F(Scan, CountsEveryReplyThatCameShort) {
    ExpectErrorsCounted({"--noise", "0.5"}, "--noise");
}

TEST_F(Scan, CountsNothingBeforeTheFirstReplyThatIsWell) {
    Settle();
    Start();
    engines.Start({"--pace", "--drop", "1", "--faulty-replies", "3"});
    Window().Send(kScan);
    ExpectLeft("ALDL: Connected");
    EXPECT_EQ(Replies().badBeforeGood, 3);
    ExpectRight("[0-9]+\\.[0-9]{2} Hz   Errors: 0");
}

TEST_F(Scan, GoesOnWhenTheDeviceVanishesAndStopsWhenTold) {
    Settle();
    Start();
    Connect();
    engines.Unplug();
    EXPECT_TRUE(Eventually([&] { return Replies().bad >= 2; })) << Window().Output();
    Window().Send(kScan);
    ExpectLeft("ALDL: Not Connected");
    engines.Start({"--pace"});
    Window().Send(kScan);
    ExpectLeft("ALDL: Connected");
}

TEST_F(Scan, BeginsWithACleanOutputAndNoErrors) {
    Settle();
    Start();
    Connect();
    Window().Send(kScan);
    ExpectLeft("ALDL: Not Connected");
    engines.Start({"--silent"});
    Window().Send(kScan);
    ExpectLeft("ALDL: Connecting...");
    EXPECT_TRUE(Eventually([&] { return Replies().good == 0; })) << Window().Output();
}

}  // namespace
}  // namespace corvex::test
