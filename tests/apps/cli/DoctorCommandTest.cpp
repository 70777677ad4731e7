// Every verdict, from an engine on a pseudo-terminal.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "apps/sim/SimulatorSession.h"
#include "files/adx/ADXParser.h"
#include "tests/apps/cli/LogTestHelper.h"

namespace corvex {
namespace {

struct Poll {
    int replysize = 24, replytimeout = 200;
    bool echo = false;
    std::string monitor = "POLL";
};

std::string TextOf(const Poll& poll) {
    return std::string("<ADXFORMAT version=\"0.50\" /><ADXHEADER><flags>") + (poll.echo ? "0x1" : "0x0") +
           "</flags><baud>8192</baud><monitorcmd>" + poll.monitor +
           "</monitorcmd></ADXHEADER><ADXCSENDCOMMAND id=\"POLL\" title=\"Poll\" flags=\"0x1\">"
           "<bytestring size=\"0x4\">0xF4 0x57 0x01 0xB4 </bytestring><replysize>" +
           std::to_string(poll.replysize) + "</replysize><replytimeout>" + std::to_string(poll.replytimeout) +
           "</replytimeout><packetoffset>3</packetoffset><packetsize>20</packetsize></ADXCSENDCOMMAND>";
}

ToolResult Examine(const std::string& text, const SimOptions& line, const std::string& definition,
                   const char* seconds) {
    ADXDefinition simulated;
    ADXParser parser;
    EXPECT_EQ(parser.ParseMemory(text.data(), text.size(), simulated), 1);
    SimulatorSession simulator;
    std::string error;
    const std::string port = simulator.Start(simulated, line, error);
    EXPECT_NE(port, "") << error;
    return RunInside({"doctor", "--json", "--port", port, "-d", definition, "--seconds", seconds});
}

SimOptions With(void (*change)(SimOptions&)) {
    SimOptions line;
    change(line);
    return line;
}

TEST(DoctorCommandTest, GivesOneVerdictAndTheNextStep) {
    const struct {
        const char* verdict;
        Poll engine, asked;
        SimOptions line;
        const char* seconds = "1";
    } rows[] = {
        {"good", {}, {}, {}},
        {"good", {24, 200, true}, {24, 200, true}, {}},
        {"silent", {}, {}, With([](SimOptions& o) { o.silent = true; })},
        {"only-echo", {}, {}, With([](SimOptions& o) { o.echo = true, o.drop = 1.0; })},
        {"unanswered", {}, {}, With([](SimOptions& o) { o.chatter = true, o.drop = 1.0; }), "3"},
        {"chatter", {}, {}, With([](SimOptions& o) { o.chatter = true; }), "2"},
        {"unknown-echo", {}, {}, With([](SimOptions& o) { o.echo = true; })},
        {"missing-echo", {}, {24, 200, true}, {}},
        {"wrong-length", {30}, {}, {}},
        {"wrong-length", {20}, {}, {}},
        {"late", {}, {}, With([](SimOptions& o) { o.late = 300; })},
        {"noise", {}, {}, With([](SimOptions& o) { o.noise = 0.9; })},
        {"missing-replies", {}, {24, 20}, With([](SimOptions& o) { o.drop = 0.5, o.seed = 3; }), "3"},
        {"lost-port", {}, {}, With([](SimOptions& o) { o.unplugAfter = 0.3; })},
        {"nothing-to-ask", {}, {24, 200, false, "NOBODY"}, {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.verdict);
        const TempFile definition(TextOf(row.asked));
        const ToolResult result = Examine(TextOf(row.engine), row.line, definition.Path(), row.seconds);
        const auto json = nlohmann::json::parse(result.out);
        EXPECT_EQ(json["verdict"], row.verdict) << result.out;
        EXPECT_NE(json["next"], "");
        EXPECT_EQ(json["echoDelayMs"].is_number(), row.line.echo || row.engine.echo);
        const bool good = json["verdict"] == "good";
        EXPECT_EQ(result.code, good ? 0 : 1);
        EXPECT_EQ(LinesOf(result.err).size(), good ? 0U : 1U);
    }
}

TEST(DoctorCommandTest, JudgesAStreamByItsPackets) {
    const std::string stream =
        "<ADXFORMAT version=\"0.50\" /><ADXHEADER><baud>1600</baud><monitorcmd>S</monitorcmd></ADXHEADER>"
        "<ADXCLISTEN160BAUD id=\"S\"><packetsize>20</packetsize></ADXCLISTEN160BAUD>";
    const struct {
        const char* verdict;
        std::string engine;
        SimOptions line;
    } rows[] = {{"good", stream, With([](SimOptions& o) { o.pace = true; })},
                {"silent", stream, With([](SimOptions& o) { o.silent = true; })},
                {"noise", TextOf({}), With([](SimOptions& o) { o.chatter = true; })}};
    const TempFile definition(stream);
    for (const auto& row : rows) {
        const ToolResult result = Examine(row.engine, row.line, definition.Path(), "2");
        EXPECT_EQ(nlohmann::json::parse(result.out)["verdict"], row.verdict) << result.out;
    }
}

TEST(DoctorCommandTest, SaysThatThePortIsNotThere) {
    const ToolResult result = RunInside({"doctor", "--port", "NOPORT9", "-d", Example("harrier-8192.adx")});
    EXPECT_EQ(result.code, 1);
    EXPECT_TRUE(Has(result.out, "NOPORT9: no-port: "));
    EXPECT_TRUE(Has(result.out, "\nNext: See which ports there are with corvex-cli ports"));
}

}  // namespace
}  // namespace corvex
