// The whole road on a pseudo-terminal: simulator, line, engine, session, definition, output.
#include <gtest/gtest.h>

#include <cstdlib>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "tests/apps/cli/LogTestHelper.h"

namespace corvex {
namespace {

ToolResult Simulate(const std::string& example, Words more) {
    more.insert(more.begin(), {"scan", "--simulate", "--definition", Example(example)});
    return RunTool(more);
}

TEST(ScanProgramTest, ShowsRepliesAsLinesAndASummary) {
    const ToolResult result = Simulate("harrier-8192.adx", {"--seconds", "2", "--plain"});
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(result.err, "");
    const auto lines = LinesOf(result.out);
    ASSERT_GE(lines.size(), 3U);
    EXPECT_TRUE(Has(lines[0], " POLL: Engine Speed "));
    EXPECT_TRUE(Has(lines.back(), " good replies in "));
    EXPECT_TRUE(Has(lines.back(), " Hz; "));
}

TEST(ScanProgramTest, EndsAsAStopWouldWhenNobodyReadsItsOutput) {
    const ToolResult result = RunTool({"scan", "--simulate", "--definition", Example("harrier-8192.adx"), "--plain"},
                                      "sh -c '\"$@\" | head -n 1' sh ");
    EXPECT_EQ(LinesOf(result.out).size(), 1U);
    EXPECT_TRUE(Has(result.err, "nobody takes the output any more"));
}

// Every command that feeds values has answered when --once ends, so no value is left without one.
TEST(ScanProgramTest, ShowsEveryValueOnce) {
    for (const char* example : kExamples) {
        const ToolResult result = Simulate(example, {"--once", "--seconds", "20"});
        EXPECT_EQ(result.code, 0) << result.err;
        const auto definition = nlohmann::json::parse(RunInside({"list", "--json", Example(example)}).out);
        EXPECT_EQ(LinesOf(result.out).size(), definition["values"].size() + definition["bitmasks"].size() + 1);
        EXPECT_EQ(result.out.find("  -  "), std::string::npos) << result.out;
    }
}

TEST(ScanProgramTest, SaysThatTheLineIsSilent) {
    const ToolResult result = Simulate("harrier-8192.adx", {"--seconds", "1", "--silent", "--plain"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(LinesOf(result.err).size(), 1U) << result.err;
    EXPECT_TRUE(Has(result.err, ": the line is silent\n"));
    EXPECT_TRUE(Has(result.out, "0 good replies"));
    EXPECT_TRUE(Has(result.out, "short reply (6)"));
}

TEST(ScanProgramTest, DoubtsAnEchoThatTheDefinitionDoesNotKnow) {
    const ToolResult result = Simulate("harrier-8192.adx", {"--seconds", "1", "--echo", "--plain"});
    EXPECT_EQ(result.code, 0);
    EXPECT_TRUE(Has(result.out, "the interface seems to echo"));
}

TEST(ScanProgramTest, APipeThatNobodyWritesToIsNoDefinition) {
    for (const std::string suffix : {".adx", ".ads"}) {
        const TempFile pipe("", suffix);
        ASSERT_EQ(std::system(("rm \"" + pipe.Path() + "\" && mkfifo \"" + pipe.Path() + '"').c_str()), 0);
        const ToolResult result = RunTool({"convert", pipe.Path(), pipe.Path() + ".new"}, "timeout 20 ");
        EXPECT_EQ(result.code, 1);
        EXPECT_EQ(LinesOf(result.err).size(), 1U) << result.err;
    }
}

// Whatever the command in hand waits for: here for ever.
TEST(ScanProgramTest, TheEndOfItsTimeAndCtrlCStopAScanAlike) {
    const TempFile file(
        "<ADXFORMAT version=\"0.50\" /><ADXHEADER><baud>8192</baud><monitorcmd>WAIT</monitorcmd>"
        "<disconnectcmd>LEAVE</disconnectcmd></ADXHEADER><ADXCSENDCOMMAND id=\"WAIT\" flags=\"0x1\"><bytestring "
        "size=\"0x1\">1 </bytestring><replysize>10</replysize><replytimeout>0</replytimeout><packetsize>10</packetsize>"
        "</ADXCSENDCOMMAND><ADXCSENDCOMMAND id=\"LEAVE\"><bytestring size=\"0x1\">2 </bytestring></ADXCSENDCOMMAND>");
    const Words scan{"scan", "--simulate", "--definition", file.Path(), "--silent", "--plain", "--verbose"};
    Words limited = scan;
    limited.insert(limited.end(), {"--seconds", "1"});
    for (const ToolResult& result :
         {RunTool(limited), RunTool(scan, "timeout --foreground --preserve-status -s INT 1.5 ")}) {
        EXPECT_TRUE(Has(result.out, "0 good replies in 1."));
        EXPECT_TRUE(Has(result.err, ": Command sent. Reply not processed.\n"));
    }
}

// What is only sent succeeds on a line where nobody is.
TEST(ScanProgramTest, FailsWhenNothingButSendsSucceed) {
    const std::string send = "<ADXCSENDCOMMAND id=\"SEND\"><bytestring size=\"0x1\">1 </bytestring></ADXCSENDCOMMAND>";
    for (const bool polls : {true, false}) {
        const TempFile file(
            "<ADXFORMAT version=\"0.50\" /><ADXHEADER><monitorcmd>M</monitorcmd></ADXHEADER>" + send +
            "<ADXCSENDCOMMAND id=\"POLL\" flags=\"0x1\"><bytestring size=\"0x1\">2 "
            "</bytestring><replysize>9</replysize>"
            "<packetsize>9</packetsize></ADXCSENDCOMMAND><ADXMACRO id=\"M\"><NODE commandID=\"SEND\" />" +
            (polls ? "<NODE commandID=\"POLL\" />" : "") + "</ADXMACRO>");
        const ToolResult result = RunInside({"scan", "--simulate", "-d", file.Path(), "--seconds", "0.5", "--silent"});
        EXPECT_EQ(result.code, 1);
        EXPECT_TRUE(Has(result.err, polls ? ": the line is silent\n" : "asks for no replies\n"));
    }
}

TEST(ScanProgramTest, SaysThatADefinitionAsksForNothing) {
    const TempFile file("<ADXFORMAT version=\"0.50\" />");
    const ToolResult result = RunInside({"scan", "--simulate", "--definition", file.Path()});
    EXPECT_EQ(result.code, 1);
    EXPECT_TRUE(Has(result.err, "asks for no replies"));
}

}  // namespace
}  // namespace corvex
