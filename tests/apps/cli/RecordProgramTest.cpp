// Recordings of the tool as a program, on a pseudo-terminal with the simulator at its other end.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "logging/LogWalk.h"
#include "tests/apps/cli/LogTestHelper.h"

namespace corvex {
namespace {

// The summary that a scan with --json ends with.
nlohmann::json SummaryOf(const ToolResult& scan) {
    const std::string text = scan.out.substr(scan.out.rfind("{\"summary\""));
    return nlohmann::json::parse(text, nullptr, false)["summary"];
}

// A scan that lost no reply, which a loaded machine may bring about: the next one tries again.
ToolResult RunWithoutLoss(const Words& args) {
    ToolResult scan;
    for (int i = 0; i < 5; ++i) {
        scan = RunTool(args);
        if (scan.code != 0 || SummaryOf(scan)["codes"].empty()) return scan;
    }
    ADD_FAILURE() << "each scan lost replies: " << SummaryOf(scan);
    return scan;
}

// The packed bytes of all records, in order.
std::vector<std::string> RepliesOf(const std::string& path) {
    DataLogEngine log;
    EXPECT_EQ(log.Open(path.c_str(), kLogForLooking), kLogSuccess);
    LogWalk walk(log);
    std::vector<std::string> replies;
    while (walk.Next())
        replies.emplace_back(walk.Packed(), walk.Packed() + walk.Item().packedSize);
    return replies;
}

class RecordProgramTest : public ::testing::Test {
protected:
    Words Args(const std::string& example, Words more) {
        more.insert(more.begin(), {"scan", "--simulate", "-d", Example(example), "--record", log.Path()});
        return more;
    }
    // The records of the log, which has been ended as it should.
    int EndedRecords() const {
        const ToolResult result = RunInside({"info", log.Path()});
        EXPECT_EQ(result.code, 0) << result.err;
        const nlohmann::json info = nlohmann::json::parse(result.out, nullptr, false);
        EXPECT_GT(info["records"], 0);
        EXPECT_EQ(info["records"], info["sampleCount"]);
        EXPECT_EQ(info["endMark"], std::filesystem::file_size(log.Path()) + 1);
        EXPECT_EQ(info["result"], 7);
        return info["records"];
    }
    std::string Line(const std::string& text) const { return log.Path() + ": " + text; }

    const TempFile log{"", ".xdl"};
};

// What is printed goes nowhere then, and least of all into the log.
TEST_F(RecordProgramTest, IsWholeWithAllStreamsClosed) {
    const ToolResult scan = RunTool(Args("harrier-8192.adx", {"--seconds", "2", "--plain", "--verbose"}),
                                    "sh -c '\"$0\" \"$@\" <&- >&- 2>&-' ");
    EXPECT_EQ(scan.code, 0);
    EXPECT_EQ(scan.out + scan.err, "");
    EndedRecords();
}

// Macros with silent commands, several polled commands, and a slow stream.
TEST_F(RecordProgramTest, HoldsEveryGoodReply) {
    for (const char* example : kExamples) {
        // At the line's pace: replies that a slow reader of the lines made the scan drop are in the log alone.
        const ToolResult scan = RunTool(Args(example, {"--seconds", "4", "--json", "--force"}));
        ASSERT_EQ(scan.code, 0) << scan.err;
        const nlohmann::json replies = SummaryOf(scan)["replies"];
        EXPECT_EQ(EndedRecords(), replies) << example;
        EXPECT_TRUE(Has(scan.err, Line(replies.dump() + " record")));
        const auto sample = nlohmann::json::parse(LinesOf(scan.out).front());
        EXPECT_TRUE(sample["t"].is_number());
        EXPECT_GT(sample["values"].size(), 1U) << sample;
    }
}

TEST_F(RecordProgramTest, EndsTheLogAtCtrlC) {
    const ToolResult scan =
        RunTool(Args("osprey-multi.adx", {"--plain"}), "timeout --foreground --preserve-status -s INT 2 ");
    EXPECT_EQ(scan.code, 0) << scan.err;
    const std::string records = std::to_string(EndedRecords());
    EXPECT_TRUE(Has(scan.out, Line(records + " record")));
    EXPECT_TRUE(Has(scan.out, records + " good repl"));
}

TEST_F(RecordProgramTest, EndsTheLogWhenThePortVanishes) {
    const ToolResult scan = RunTool(Args("harrier-8192.adx", {"--unplug-after", "0.5", "--plain"}));
    EXPECT_EQ(scan.code, 1);
    EXPECT_TRUE(Has(scan.err, "vanished"));
    EndedRecords();
}

// Said at once, as the drive is still going on.
TEST_F(RecordProgramTest, SaysThatItsFileIsGone) {
    const ToolResult scan = RunTool(Args("harrier-8192.adx", {"--seconds", "2", "--plain"}),
                                    "sh -c '{ until [ -s " + log.Path() + " ]; do sleep 0.05; done; rm " + log.Path() +
                                        "; } & exec \"$0\" \"$@\" 2>&1' ");
    EXPECT_EQ(scan.code, 1);
    const std::string gone = Line("the recording is no longer there: another program has removed or replaced it\n");
    EXPECT_LT(scan.out.find("corvex-cli: " + gone), scan.out.find(" good repl")) << scan.out;
}

// No file may grow beyond two blocks of 512 bytes for the scan, as if the disk were full.
TEST_F(RecordProgramTest, ScansOnWhenTheDiskIsFull) {
    const ToolResult scan =
        RunTool(Args("harrier-8192.adx", {"--seconds", "2", "--json"}),
                "sh -c '{ (trap \"\" XFSZ; ulimit -f 2; exec \"$@\"); echo code $? >&2; } | cat' sh ");
    EXPECT_TRUE(Has(scan.err, "\ncode 1\n"));
    EXPECT_LE(std::filesystem::file_size(log.Path()), 2U * 512);
    const int lost = SummaryOf(scan)["replies"].get<int>() - EndedRecords();
    EXPECT_GT(lost, 1);
    const auto lines = LinesOf(scan.err);
    const std::string begin = "corvex-cli: " + Line("");
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(), [&](const auto& line) { return line.starts_with(begin); }), 2);
    EXPECT_EQ(lines.front(), begin + "the recording cannot be written");
    EXPECT_TRUE(Has(scan.err, begin + std::to_string(lost) + " samples could not be recorded\n"));
}

TEST_F(RecordProgramTest, RecordsTheSameRepliesWhenItsLogIsReplayed) {
    for (const char* example : kExamples) {
        const TempFile again("", ".xdl");
        const ToolResult first =
            RunWithoutLoss(Args(example, {"--no-pace", "--seed", "77", "--seconds", "1", "--json", "--force"}));
        const ToolResult second =
            RunWithoutLoss({"scan", "--simulate", "-d", Example(example), "--no-pace", "--seed", "5", "--seconds",
                            "0.5", "--json", "--force", "--replay", log.Path(), "--record", again.Path()});
        ASSERT_EQ(first.code + second.code, 0) << first.err << second.err;
        std::vector<std::string> recorded = RepliesOf(log.Path()), replayed = RepliesOf(again.Path());
        const std::size_t common = std::min(recorded.size(), replayed.size());
        ASSERT_GT(common, 1U) << example;
        recorded.resize(common);
        replayed.resize(common);
        EXPECT_EQ(replayed, recorded) << example;
    }
}

TEST_F(RecordProgramTest, NeverReplacesItsDefinitionOrTheLogThatItReplays) {
    const TempFile definition(ReadFile(Example("harrier-8192.adx")));
    const TempFile replayed(ReadFile(Example("harrier-8192.xdl")), ".xdl");
    for (const std::string& target : {definition.Path(), replayed.Path()}) {
        const std::string before = ReadFile(target);
        const ToolResult scan = RunInside({"scan", "--simulate", "-d", definition.Path(), "--replay", replayed.Path(),
                                           "--record", target, "--force", "--seconds", "1"});
        EXPECT_EQ(scan.code, 1);
        EXPECT_EQ(scan.err, "corvex-cli: " + target + ": would be replaced by the recording\n");
        EXPECT_EQ(ReadFile(target), before);
    }
}

}  // namespace
}  // namespace corvex
