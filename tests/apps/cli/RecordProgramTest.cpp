// Recordings of the tool as a program, on a pseudo-terminal with the simulator at its other end.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "logging/LogWalk.h"
#include "tests/apps/cli/LogTestHelper.h"

namespace corvex {
namespace {

std::size_t CountLines(const std::string& text, const std::string& with = "") {
    std::size_t count = 0;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        count += line.find(with) != std::string::npos ? 1U : 0U;
    return count;
}

nlohmann::json InfoOf(const std::string& log) {
    const ToolResult result = RunInside({"info", log});
    EXPECT_EQ(result.code, 0) << result.err;
    return nlohmann::json::parse(result.out, nullptr, false);
}

// The summary that a scan with --json ends with.
nlohmann::json SummaryOf(const ToolResult& scan) {
    const std::string text = scan.out.substr(scan.out.rfind("{\"summary\""));
    return nlohmann::json::parse(text, nullptr, false)["summary"];
}

class RecordProgramTest : public ::testing::Test {
protected:
    std::vector<std::string> Args(const std::string& example, std::vector<std::string> more) {
        std::vector<std::string> args{"scan", "--simulate", "-d", Example(example), "--record", log.Path()};
        args.insert(args.end(), more.begin(), more.end());
        return args;
    }

    const TempFile log{"", ".xdl"};
};

// A scan that lost no reply, which a loaded machine may bring about: the next one tries again.
ToolResult RunWithoutLoss(const std::vector<std::string>& args) {
    ToolResult scan;
    for (int i = 0; i < 5; ++i) {
        scan = RunTool(args);
        if (scan.code != 0 || SummaryOf(scan)["codes"].empty()) return scan;
    }
    ADD_FAILURE() << "each scan lost replies: " << SummaryOf(scan);
    return scan;
}

// What is printed goes nowhere then, and least of all into the log.
TEST_F(RecordProgramTest, IsWholeWithAllStreamsClosed) {
    const ToolResult scan = RunTool(Args("harrier-8192.adx", {"--seconds", "2", "--plain", "--verbose"}),
                                    "sh -c '\"$0\" \"$@\" <&- >&- 2>&-' ");
    EXPECT_EQ(scan.code, 0);
    EXPECT_EQ(scan.out + scan.err, "");
    const nlohmann::json info = InfoOf(log.Path());
    EXPECT_GT(info["records"], 1);
    EXPECT_EQ(info["records"], info["sampleCount"]);
    EXPECT_EQ(info["result"], 7);
}

// Macros with silent commands, several polled commands, and a slow stream.
TEST_F(RecordProgramTest, HoldsEveryGoodReply) {
    for (const char* example : {"harrier-8192.adx", "osprey-multi.adx", "merlin-160.adx"}) {
        // At the line's pace: replies that a slow reader of the lines made the scan drop are in the log alone.
        const ToolResult scan = RunTool(Args(example, {"--seconds", "4", "--json", "--force"}));
        ASSERT_EQ(scan.code, 0) << scan.err;
        const nlohmann::json summary = SummaryOf(scan);
        const nlohmann::json info = InfoOf(log.Path());
        EXPECT_GT(summary["replies"], 1) << example;
        EXPECT_EQ(info["records"], summary["replies"]) << example;
        EXPECT_EQ(info["sampleCount"], summary["replies"]) << example;
        EXPECT_EQ(info["endMark"], std::filesystem::file_size(log.Path()) + 1);
        EXPECT_EQ(info["result"], 7);
        EXPECT_NE(scan.err.find(log.Path() + ": " + summary["replies"].dump() + " record"), std::string::npos)
            << scan.err;
    }
}

TEST_F(RecordProgramTest, DecodesToWhatTheScanShowed) {
    const ToolResult scan = RunTool(Args("harrier-8192.adx", {"--seconds", "2", "--json"}));
    const ToolResult decoded = RunInside({"decode", "-d", Example("harrier-8192.adx"), "--items", "RPM", log.Path()});
    ASSERT_EQ(decoded.code, 0) << decoded.err;
    std::istringstream shown(scan.out), rows(decoded.out);
    std::string json, row;
    std::getline(rows, row);
    std::size_t compared = 0;
    while (std::getline(rows, row)) {
        ASSERT_TRUE(std::getline(shown, json));
        const double rpm = nlohmann::json::parse(json)["values"]["RPM"].get<double>();
        EXPECT_EQ(std::stod(row.substr(row.find(',') + 1)), rpm);
        ++compared;
    }
    EXPECT_GT(compared, 10U);
    EXPECT_EQ(compared + 1, CountLines(scan.out));
}

TEST_F(RecordProgramTest, EndsTheLogAtCtrlC) {
    const ToolResult scan =
        RunTool(Args("osprey-multi.adx", {"--plain"}), "timeout --foreground --preserve-status -s INT 2 ");
    EXPECT_EQ(scan.code, 0) << scan.err;
    const nlohmann::json info = InfoOf(log.Path());
    EXPECT_GT(info["records"], 0);
    EXPECT_EQ(info["endMark"], std::filesystem::file_size(log.Path()) + 1);
    EXPECT_NE(scan.out.find(log.Path() + ": " + info["records"].dump() + " record"), std::string::npos) << scan.out;
    EXPECT_NE(scan.out.find(info["records"].dump() + " good repl"), std::string::npos) << scan.out;
}

TEST_F(RecordProgramTest, EndsTheLogWhenThePortVanishes) {
    const ToolResult scan = RunTool(Args("harrier-8192.adx", {"--unplug-after", "0.5", "--plain"}));
    EXPECT_EQ(scan.code, 1);
    const nlohmann::json info = InfoOf(log.Path());
    EXPECT_GT(info["records"], 0);
    EXPECT_EQ(info["endMark"], std::filesystem::file_size(log.Path()) + 1);
}

TEST_F(RecordProgramTest, KeepsAnOldLog) {
    const TempFile old("something", ".xdl");
    std::vector<std::string> args{"scan",     "--port",  "/nowhere", "-d", Example("harrier-8192.adx"),
                                  "--record", old.Path()};
    ToolResult scan = RunTool(args);
    EXPECT_EQ(scan.code, 1);
    EXPECT_EQ(scan.err, "corvex-cli: " + old.Path() + ": exists and is not empty; --force replaces it\n");
    EXPECT_EQ(ReadFile(old.Path()), "something");
    args.back() = "/nowhere/drive.xdl";
    scan = RunTool(args);
    EXPECT_EQ(scan.code, 1);
    EXPECT_EQ(scan.err, "corvex-cli: /nowhere/drive.xdl: cannot be opened: No such file or directory\n");
}

// Said at once, as the drive is still going on.
TEST_F(RecordProgramTest, SaysThatItsFileIsGone) {
    const ToolResult scan = RunTool(Args("harrier-8192.adx", {"--seconds", "2", "--plain"}),
                                    "sh -c '{ until [ -s " + log.Path() + " ]; do sleep 0.05; done; rm " + log.Path() +
                                        "; } & exec \"$0\" \"$@\" 2>&1' ");
    EXPECT_EQ(scan.code, 1);
    const std::string gone = "corvex-cli: " + log.Path() +
                             ": the recording is no longer there: another program has removed or replaced it\n";
    EXPECT_LT(scan.out.find(gone), scan.out.find(" good repl")) << scan.out;
}

TEST_F(RecordProgramTest, NeverReplacesItsDefinition) {
    const TempFile definition(ReadFile(Example("harrier-8192.adx")));
    const ToolResult scan = RunTool(
        {"scan", "--simulate", "-d", definition.Path(), "--record", definition.Path(), "--force", "--seconds", "1"});
    EXPECT_EQ(scan.code, 1);
    EXPECT_EQ(scan.err, "corvex-cli: " + definition.Path() + ": would be replaced by the recording\n");
    EXPECT_EQ(ReadFile(definition.Path()), ReadFile(Example("harrier-8192.adx")));
}

// No file may grow beyond two blocks of 512 bytes for the scan, as if the disk were full.
TEST_F(RecordProgramTest, ScansOnWhenTheDiskIsFull) {
    const ToolResult scan =
        RunTool(Args("harrier-8192.adx", {"--seconds", "2", "--json"}),
                "sh -c '{ (trap \"\" XFSZ; ulimit -f 2; exec \"$@\"); echo code $? >&2; } | cat' sh ");
    EXPECT_NE(scan.err.find("\ncode 1\n"), std::string::npos) << scan.err;
    const nlohmann::json summary = SummaryOf(scan);
    const nlohmann::json info = InfoOf(log.Path());
    EXPECT_GT(info["records"], 0);
    EXPECT_LE(std::filesystem::file_size(log.Path()), 2U * 512);
    EXPECT_EQ(info["endMark"], std::filesystem::file_size(log.Path()) + 1);
    const int lost = summary["replies"].get<int>() - info["records"].get<int>();
    EXPECT_GT(lost, 1);
    const std::string begin = "corvex-cli: " + log.Path() + ": ";
    EXPECT_EQ(CountLines(scan.err, begin), 2U) << scan.err;
    EXPECT_EQ(scan.err.find(begin + "the recording cannot be written\n"), 0U) << scan.err;
    EXPECT_NE(scan.err.find(begin + std::to_string(lost) + " samples could not be recorded\n"), std::string::npos)
        << scan.err;
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

TEST_F(RecordProgramTest, RecordsTheSameRepliesWhenItsLogIsReplayed) {
    for (const char* example : {"harrier-8192.adx", "osprey-multi.adx", "merlin-160.adx"}) {
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

TEST_F(RecordProgramTest, DoesNotRecordOverTheLogThatItReplays) {
    const std::string before = ReadFile(Example("harrier-8192.xdl"));
    const TempFile old(before, ".xdl");
    const ToolResult scan = RunTool({"scan", "--simulate", "-d", Example("harrier-8192.adx"), "--replay", old.Path(),
                                     "--record", old.Path(), "--force", "--seconds", "1"});
    EXPECT_EQ(scan.code, 1);
    EXPECT_EQ(scan.err, "corvex-cli: " + old.Path() + ": would be replaced by the recording\n");
    EXPECT_EQ(ReadFile(old.Path()), before);
}

TEST_F(RecordProgramTest, SaysThatALogCannotBeReplayed) {
    const ToolResult scan = RunTool(
        {"scan", "--simulate", "-d", Example("harrier-8192.adx"), "--replay", "/no/such.xdl", "--seconds", "1"});
    EXPECT_EQ(scan.code, 1);
    EXPECT_EQ(scan.err, "corvex-cli: --simulate: /no/such.xdl: error 0xC\n");
}

}  // namespace
}  // namespace corvex
