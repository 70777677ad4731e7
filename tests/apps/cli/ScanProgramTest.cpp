// The whole road on a pseudo-terminal: simulator, line, engine, session, definition, output.
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "tests/apps/cli/ToolRunner.h"
#include "tests/checking/CheckTestHelper.h"

namespace corvex {
namespace {

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

ToolResult Simulate(const std::string& example, std::vector<std::string> more) {
    std::vector<std::string> args{"scan", "--simulate", "--definition", Example(example)};
    args.insert(args.end(), more.begin(), more.end());
    return RunTool(args);
}

TEST(ScanProgramTest, ShowsRepliesAsLinesAndASummary) {
    const ToolResult result = Simulate("harrier-8192.adx", {"--seconds", "2", "--plain"});
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(result.err, "");
    const auto lines = LinesOf(result.out);
    ASSERT_GE(lines.size(), 3U);
    EXPECT_NE(lines[0].find(" POLL: Engine Speed "), std::string::npos) << lines[0];
    EXPECT_NE(lines.back().find(" good replies in "), std::string::npos) << lines.back();
    EXPECT_NE(lines.back().find(" Hz; "), std::string::npos) << lines.back();
}

TEST(ScanProgramTest, EndsAsAStopWouldWhenNobodyReadsItsOutput) {
    const ToolResult result = RunTool({"scan", "--simulate", "--definition", Example("harrier-8192.adx"), "--plain"},
                                      "sh -c '\"$@\" | head -n 1' sh ");
    EXPECT_EQ(LinesOf(result.out).size(), 1U);
    EXPECT_NE(result.err.find("nobody takes the output any more"), std::string::npos) << result.err;
}

TEST(ScanProgramTest, ShowsRepliesAsJson) {
    for (const char* example : {"harrier-8192.adx", "osprey-multi.adx", "merlin-160.adx"}) {
        const ToolResult result = Simulate(example, {"--once", "--seconds", "20", "--json"});
        EXPECT_EQ(result.code, 0) << result.err;
        const auto lines = LinesOf(result.out);
        ASSERT_GE(lines.size(), 2U);
        const auto sample = nlohmann::json::parse(lines[0]);
        EXPECT_TRUE(sample["t"].is_number());
        EXPECT_GT(sample["values"].size(), 1U) << lines[0];
        const auto summary = nlohmann::json::parse(lines.back())["summary"];
        EXPECT_GE(summary["replies"], lines.size() - 1);
    }
}

// Every command that feeds values has answered when --once ends, so no value is left without one.
TEST(ScanProgramTest, ShowsEveryValueOnce) {
    for (const char* example : {"harrier-8192.adx", "osprey-multi.adx", "merlin-160.adx"}) {
        const ToolResult result = Simulate(example, {"--once", "--seconds", "20"});
        EXPECT_EQ(result.code, 0) << result.err;
        const auto definition = nlohmann::json::parse(RunTool({"list", "--json", Example(example)}).out);
        EXPECT_EQ(LinesOf(result.out).size(), definition["values"].size() + definition["bitmasks"].size() + 1);
        for (const std::string& line : LinesOf(result.out))
            EXPECT_EQ(line.find("  -  "), std::string::npos) << line;
    }
}

TEST(ScanProgramTest, RepeatsARunOfTheSameSeed) {
    const auto values = [](const char* seed) {
        const auto result = Simulate("harrier-8192.adx", {"--once", "--json", "--no-pace", "--seed", seed});
        return nlohmann::json::parse(LinesOf(result.out)[0])["values"];
    };
    EXPECT_EQ(values("7"), values("7"));
    EXPECT_NE(values("7"), values("8"));
}

TEST(ScanProgramTest, SaysThatTheLineIsSilent) {
    const ToolResult result = Simulate("harrier-8192.adx", {"--seconds", "1", "--silent", "--plain"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(LinesOf(result.err).size(), 1U) << result.err;
    EXPECT_NE(result.err.find(": the line is silent\n"), std::string::npos) << result.err;
    EXPECT_NE(result.out.find("0 good replies"), std::string::npos) << result.out;
    EXPECT_NE(result.out.find("short reply (6)"), std::string::npos) << result.out;
}

TEST(ScanProgramTest, SaysThatOnlyTheEchoComesBack) {
    const ToolResult result = Simulate("harrier-8192.adx", {"--seconds", "1", "--silent", "--echo", "--plain"});
    EXPECT_EQ(result.code, 1);
    EXPECT_NE(result.err.find(": only our own echo comes back\n"), std::string::npos) << result.err;
}

TEST(ScanProgramTest, DoubtsAnEchoThatTheDefinitionDoesNotKnow) {
    const ToolResult result = Simulate("harrier-8192.adx", {"--seconds", "1", "--echo", "--plain"});
    EXPECT_EQ(result.code, 0);
    EXPECT_NE(result.out.find("the interface seems to echo"), std::string::npos) << result.out;
}

TEST(ScanProgramTest, EndsWhenThePortVanishes) {
    const ToolResult result = Simulate("harrier-8192.adx", {"--unplug-after", "0.5", "--plain"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(LinesOf(result.err).size(), 1U) << result.err;
    EXPECT_NE(result.err.find("vanished"), std::string::npos) << result.err;
}

TEST(ScanProgramTest, PrintsTheTextLogWhenAsked) {
    const ToolResult result = Simulate("harrier-8192.adx", {"--once", "--verbose"});
    EXPECT_EQ(result.code, 0);
    const auto log = LinesOf(result.err);
    ASSERT_GE(log.size(), 4U);
    EXPECT_EQ(log[0], "BEGIN MACRO");
    EXPECT_NE(result.err.find("Command/Reply Success\n"), std::string::npos);
    // The disconnect command of the example has run.
    EXPECT_EQ(log.back(), "END MACRO");
}

TEST(ScanProgramTest, StopsAtCtrlCAndRunsTheDisconnectCommand) {
    const ToolResult result = RunTool({"scan", "--simulate", "--definition", Example("osprey-multi.adx"), "--plain"},
                                      "timeout --foreground --preserve-status -s INT 2 ");
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_NE(result.out.find(" good replies in "), std::string::npos) << result.out;
}

// Whatever the command in hand waits for: here for ever.
TEST(ScanProgramTest, TheEndOfItsTimeAndCtrlCStopAScanAlike) {
    const TempFile file(
        "<ADXFORMAT version=\"0.50\" /><ADXHEADER><baud>8192</baud><monitorcmd>WAIT</monitorcmd>"
        "<disconnectcmd>LEAVE</disconnectcmd></ADXHEADER><ADXCSENDCOMMAND id=\"WAIT\" flags=\"0x1\"><bytestring "
        "size=\"0x1\">1 </bytestring><replysize>10</replysize><replytimeout>0</replytimeout><packetsize>10</packetsize>"
        "</ADXCSENDCOMMAND><ADXCSENDCOMMAND id=\"LEAVE\"><bytestring size=\"0x1\">2 </bytestring></ADXCSENDCOMMAND>");
    const std::vector<std::string> scan{"scan",     "--simulate", "--definition", file.Path(),
                                        "--silent", "--plain",    "--verbose"};
    std::vector<std::string> limited = scan;
    limited.insert(limited.end(), {"--seconds", "1"});
    for (const ToolResult& result :
         {RunTool(limited), RunTool(scan, "timeout --foreground --preserve-status -s INT 1 ")}) {
        EXPECT_NE(result.out.find("0 good replies in 1."), std::string::npos) << result.out;
        EXPECT_NE(result.err.find(": Command sent. Reply not processed.\n"), std::string::npos) << result.err;
    }
}

TEST(ScanProgramTest, SaysThatADefinitionAsksForNothing) {
    const TempFile file("<ADXFORMAT version=\"0.50\" />");
    const ToolResult result = RunTool({"scan", "--simulate", "--definition", file.Path()});
    EXPECT_EQ(result.code, 1);
    EXPECT_NE(result.err.find("asks for no replies"), std::string::npos) << result.err;
}

}  // namespace
}  // namespace corvex
