// Recordings of the tool as a program, on a pseudo-terminal with the simulator at its other end.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "tests/apps/cli/LogTestHelper.h"

namespace corvex {
namespace {

// The summary that a scan with --json ends with.
nlohmann::json SummaryOf(const ToolResult& scan) {
    const std::string text = scan.out.substr(scan.out.rfind("{\"summary\""));
    return nlohmann::json::parse(text, nullptr, false)["summary"];
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

TEST_F(RecordProgramTest, BeginsWithTheFirstReplyOfTheLogThatItReplays) {
    const std::string replayed = Example("harrier-8192.xdl");
    ASSERT_EQ(RunTool(Args("harrier-8192.adx", {"--replay", replayed, "--seconds", "0.5", "--plain"})).code, 0);
    const auto begin = [](const std::string& path) {
        return LinesOf(RunInside({"decode", "-d", Example("harrier-8192.adx"), path}).out).at(1);
    };
    EXPECT_EQ(begin(log.Path()), begin(replayed));
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
