#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/apps/cli/LogTestHelper.h"

namespace corvex {
namespace {

using test::Bytes;
using test::LogBytes;

class PlayCommandTest : public ::testing::Test {
protected:
    ToolResult Play(const LogBytes& log, Words more) {
        const LogTempFile file(log);
        path = file.Path();
        more.insert(more.begin(), {"play", "-d", definition.Path(), path, "--speed", speed});
        const std::string before = ReadFile(path);
        const ToolResult result = RunInside(more);
        EXPECT_EQ(ReadFile(path), before);  // whatever it was asked to do
        return result;
    }
    // Of a log that is not in order.
    void ExpectPlayed(const LogBytes& log, int code, const std::string& replies, const std::string& err) {
        const ToolResult result = Play(log, {"--plain"});
        EXPECT_EQ(result.code, code);
        EXPECT_TRUE(Has(result.out, replies + " in "));
        EXPECT_TRUE(Has(result.err, "corvex-cli: " + path + ": " + err));
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
    const ToolResult result = Play(ThreePolls().Record(1, 40000123, Bytes(24, 8)), {"--json"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out,
              "{\"t\":0.0,\"command\":\"POLL\",\"values\":{\"V\":10.0}}\n"
              "{\"t\":0.1,\"command\":\"POLL\",\"values\":{\"V\":20.0}}\n"
              "{\"t\":3600.25,\"command\":\"POLL\",\"values\":{\"V\":30.0}}\n"
              "{\"t\":40000.123,\"command\":\"STREAM\",\"values\":{\"V\":80.0}}\n"
              "{\"summary\":{\"seconds\":40000.123,\"replies\":4,\"rate\":0.0,\"errors\":0,\"codes\":{}}}\n");
}

TEST_F(PlayCommandTest, ShowsLinesASummaryAndTheTextLogWhenAsked) {
    speed = "1e8";  // at recorded time this would take an hour
    const ToolResult result = Play(ThreePolls(), {"--plain", "--verbose"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out,
              "0.000 POLL: V title 10.00\n"
              "0.100 POLL: V title 20.00\n"
              "3600.250 POLL: V title 30.00\n"
              "3 good replies in 3600.2 s, 0.00 Hz; no errors\n");
    EXPECT_TRUE(Has(result.err, "3600.250: Command/Reply Success\n"));
    EXPECT_TRUE(Has(result.err, "Playback stopped\n"));
}

TEST_F(PlayCommandTest, DeliversNothingFromBeforeItsStart) {
    const struct {
        const char* from;
        double first;
        int replies;
    } rows[] = {{"0", 0.0, 3}, {"0.0005", 0.1, 2}, {"0.1", 0.1, 2}, {"0.101", 3600.25, 1}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.from);
        const auto lines = LinesOf(Play(ThreePolls(), {"--json", "--from", row.from}).out);
        EXPECT_EQ(nlohmann::json::parse(lines.front())["t"].get<double>(), row.first);
        EXPECT_EQ(nlohmann::json::parse(lines.back())["summary"]["replies"], row.replies);
    }
    const ToolResult none = Play(ThreePolls(), {"--json", "--from", "4000"});
    EXPECT_EQ(none.code, 1);
    EXPECT_EQ(none.out, "");
    EXPECT_EQ(none.err, "corvex-cli: " + path + ": ends before second 4000\n");
}

// What a log holds is played, whatever that is; the loss is told from how the records lead to one another.
TEST_F(PlayCommandTest, TellsWhatOfALogIsNotShown) {
    LogBytes foreign = ThreePolls(), unknown = BeginLog({kPollHash}), zeros = ThreePolls(), through = ThreePolls();
    foreign.Record(2, 3600300, Bytes(24, 1)).Record(2, 3600400, Bytes(24, 1));
    ExpectPlayed(foreign, 0, "3 good replies", "2 records of commands that the definition does not have\n");
    unknown.Record(0, 0, PollReply({1})).Record(9, 10, PollReply({2})).Record(0, 20, PollReply({3}));
    ExpectPlayed(unknown, 1, "1 good reply",
                 "playback ended at byte 128: a record of an unknown item (see corvex-cli repair)\n");
    zeros.Raw(Bytes(36, 0)).Record(0, 3600400, PollReply({4})).PutWord32(36, 5).MarkEnd();
    ExpectPlayed(zeros, 0, "3 good replies", "damaged at byte 296: 72 bytes from there on not read");
    ExpectPlayed(zeros, 0, "3 good replies", "its header counts 5 records, 2 are missing\n");
    through.PutWord32(188 + 36, 7).PutWord32(36, 3).MarkEnd();
    ExpectPlayed(through, 0, "3 good replies", "damaged at byte 224: 72 bytes");
    ExpectPlayed(through, 0, "3 good replies", "its header counts 3 records, 2 are missing");
}

}  // namespace
}  // namespace corvex
