#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/apps/cli/LogTestHelper.h"

namespace corvex {
namespace {

using test::Bytes;
using test::LogBytes;

class PlayCommandTest : public ::testing::Test {
protected:
    ToolResult Play(const LogBytes& log, std::vector<std::string> more) {
        const LogTempFile file(log);
        path = file.Path();
        std::vector<std::string> args{"play", "-d", definition.Path(), path, "--speed", speed};
        args.insert(args.end(), more.begin(), more.end());
        const std::string before = ReadFile(path);
        const ToolResult result = RunInside(args);
        EXPECT_EQ(ReadFile(path), before);  // whatever it was asked to do
        return result;
    }

    // Three polls, the last an hour after the first; never ended.
    static LogBytes ThreePolls() {
        LogBytes log = BeginLog({kPollHash, kStreamHash, 0x11});
        return log.Record(0, 0, PollReply({1})).Record(0, 100, PollReply({2})).Record(0, 3600250, PollReply({3}));
    }

    const TempFile definition{StreamDefinition(ValueText("V", "X*10"))};
    std::string path, speed = "0";
};

TEST_F(PlayCommandTest, ShowsEachRecordAtTheLogsTime) {
    const ToolResult result = Play(ThreePolls(), {"--json"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out,
              "{\"t\":0.0,\"command\":\"POLL\",\"values\":{\"V\":10.0}}\n"
              "{\"t\":0.1,\"command\":\"POLL\",\"values\":{\"V\":20.0}}\n"
              "{\"t\":3600.25,\"command\":\"POLL\",\"values\":{\"V\":30.0}}\n"
              "{\"summary\":{\"seconds\":3600.25,\"replies\":3,\"rate\":0.001,\"errors\":0,\"codes\":{}}}\n");
}

TEST_F(PlayCommandTest, KeepsTheMillisecondsOfALongLog) {
    LogBytes log = BeginLog({kPollHash});
    log.Record(0, 0, PollReply({1})).Record(0, 40000123, PollReply({2}));
    EXPECT_NE(Play(log, {"--json"}).out.find("{\"t\":40000.123,"), std::string::npos);
}

TEST_F(PlayCommandTest, ShowsLinesAndASummary) {
    const ToolResult result = Play(ThreePolls(), {"--plain"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out,
              "0.000 POLL: V title 10.00\n"
              "0.100 POLL: V title 20.00\n"
              "3600.250 POLL: V title 30.00\n"
              "3 good replies in 3600.2 s, 0.00 Hz; no errors\n");
}

TEST_F(PlayCommandTest, KeepsTheFactorOfItsSpeed) {
    // At recorded time this would take an hour.
    speed = "1e8";
    EXPECT_EQ(Play(ThreePolls(), {"--plain"}).code, 0);
}

TEST_F(PlayCommandTest, DeliversNothingFromBeforeItsStart) {
    const auto first = [&](const char* from) {
        std::istringstream out(Play(ThreePolls(), {"--json", "--from", from}).out);
        std::string line;
        std::getline(out, line);
        return nlohmann::json::parse(line)["t"].get<double>();
    };
    const auto replies = [&](const char* from) {
        const std::string out = Play(ThreePolls(), {"--json", "--from", from}).out;
        return nlohmann::json::parse(out.substr(out.rfind("{\"summary\"")))["summary"]["replies"];
    };
    EXPECT_EQ(replies("0"), 3);
    EXPECT_EQ(replies("0.0005"), 2);
    EXPECT_EQ(replies("0.1"), 2);  // a record at that very second belongs to it
    EXPECT_EQ(first("0.1"), 0.1);
    EXPECT_EQ(replies("0.101"), 1);
}

TEST_F(PlayCommandTest, SaysThatTheLogEndsBeforeItsStart) {
    const ToolResult result = Play(ThreePolls(), {"--json", "--from", "4000"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "corvex-cli: " + path + ": ends before second 4000\n");
}

TEST_F(PlayCommandTest, CountsRecordsOfCommandsThatTheDefinitionDoesNotHave) {
    LogBytes log = ThreePolls();
    log.Record(2, 3600300, Bytes(24, 1)).Record(2, 3600400, Bytes(24, 1));
    const ToolResult result = Play(log, {"--json"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "corvex-cli: " + path + ": 2 records of commands that the definition does not have\n");
}

TEST_F(PlayCommandTest, ShowsPacketsOfTheSlowStream) {
    LogBytes log = BeginLog({kStreamHash});
    log.Record(0, 0, Bytes(24, 7)).Record(0, 1200, Bytes(24, 8));
    const ToolResult result = Play(log, {"--json"});
    EXPECT_EQ(result.code, 0);
    EXPECT_NE(result.out.find("{\"t\":1.2,\"command\":\"STREAM\",\"values\":{\"V\":80.0}}\n"), std::string::npos)
        << result.out;
}

TEST_F(PlayCommandTest, TellsWhereAnUnknownItemEndsIt) {
    LogBytes log = BeginLog({kPollHash});
    log.Record(0, 0, PollReply({1})).Record(9, 10, PollReply({2})).Record(0, 20, PollReply({3}));
    const ToolResult result = Play(log, {"--plain"});
    EXPECT_EQ(result.code, 1);
    EXPECT_NE(result.out.find("1 good reply in "), std::string::npos) << result.out;
    EXPECT_EQ(result.err,
              "corvex-cli: " + path +
                  ": playback ended at byte 128 with error 0x4: a record of an unknown item (see corvex-cli "
                  "repair)\n");
}

TEST_F(PlayCommandTest, EndsWithTheLastWholeRecord) {
    LogBytes log = ThreePolls();
    log.Word32(0).Word32(3600300).Word32(0).Raw({1, 2, 3});
    const ToolResult result = Play(log, {"--plain"});
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_NE(result.out.find("3 good replies in "), std::string::npos) << result.out;
}

TEST_F(PlayCommandTest, EndsAtZerosAndTellsWhatIsLost) {
    LogBytes log = ThreePolls();
    log.Raw(Bytes(36, 0)).Record(0, 3600400, PollReply({4})).PutWord32(36, 5).MarkEnd();
    const ToolResult result = Play(log, {"--plain"});
    EXPECT_EQ(result.code, 0);
    EXPECT_NE(result.out.find("3 good replies in "), std::string::npos) << result.out;
    const std::string begin = "corvex-cli: " + path + ": ";
    EXPECT_EQ(result.err, begin + "damaged at byte 296: 72 bytes from there on not read (see corvex-cli repair)\n" +
                              begin + "its header counts 5 records, 2 are missing\n");
}

// It plays what the log holds, whatever that is; the loss is told from how the records lead to one another.
TEST_F(PlayCommandTest, TellsOfDamageThatItPlayedThrough) {
    LogBytes log = ThreePolls();
    log.PutWord32(188 + 36, 7).PutWord32(36, 3).MarkEnd();
    const ToolResult result = Play(log, {"--plain"});
    EXPECT_NE(result.out.find("3 good replies in "), std::string::npos) << result.out;
    EXPECT_NE(result.err.find("damaged at byte 224: 72 bytes"), std::string::npos) << result.err;
    EXPECT_NE(result.err.find("its header counts 3 records, 2 are missing"), std::string::npos) << result.err;
}

TEST_F(PlayCommandTest, PlaysALogWithoutARecord) {
    const ToolResult result = Play(BeginLog({kPollHash}), {"--plain"});
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(result.out, "0 good replies in 0.0 s, 0.00 Hz; no errors\n");
}

TEST_F(PlayCommandTest, NamesTheEnginesCodeOfABadLog) {
    LogBytes log;
    log.Header(44, 0, 2).ItemCount(0);
    const ToolResult result = Play(log, {"--plain"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err, "corvex-cli: " + path + ": error 0xD (no log of version 3)\n");
}

TEST_F(PlayCommandTest, WritesTheTextLogWhenAsked) {
    const ToolResult result = Play(ThreePolls(), {"--plain", "--verbose"});
    EXPECT_NE(result.err.find("3600.250: Command/Reply Success\n"), std::string::npos) << result.err;
    EXPECT_NE(result.err.find("Playback stopped\n"), std::string::npos) << result.err;
}

}  // namespace
}  // namespace corvex
