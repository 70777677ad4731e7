#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/apps/cli/LogTestHelper.h"

namespace corvex {
namespace {

using test::Bytes;
using test::LogBytes;

ToolResult Info(const LogBytes& log, Words more = {}) {
    const LogTempFile file(log);
    more.insert(more.begin(), {"info", file.Path()});
    const std::string before = ReadFile(file.Path());
    const ToolResult result = RunInside(more);
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(ReadFile(file.Path()), before);
    return result;
}

std::string Human(const LogBytes& log) {
    return Info(log, {"--human"}).out;
}

LogBytes AtTimes(const std::vector<std::uint32_t>& times) {
    LogBytes log = BeginLog({kPollHash});
    for (const std::uint32_t time : times)
        log.Record(0, time, Bytes(24, 1));
    return log;
}

LogBytes TwoCommands() {
    LogBytes log = BeginLog({kPollHash, 0x11});
    for (std::uint32_t i = 0; i < 5; ++i)
        log.Record(0, i * 100, Bytes(24, 1));
    return log.Record(1, 450, Bytes(24, 2)).PutWord32(36, 6).MarkEnd();
}

TEST(InfoCommandTest, TellsAllInTheOrderOfItsKeys) {
    const ToolResult result = Info(TwoCommands());
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(nlohmann::ordered_json::parse(result.out).dump(),
              "{\"version\":3,\"dataOffset\":140,\"endMark\":357,\"sampleCount\":6,"
              "\"startTime\":\"2026-07-01T12:34:56.789\",\"items\":["
              "{\"commandId\":\"0xA6607299\",\"type\":131072,\"packedSize\":24,\"fullSize\":24},"
              "{\"commandId\":\"0x00000011\",\"type\":131072,\"packedSize\":24,\"fullSize\":24}],"
              "\"records\":6,\"result\":7}");
}

TEST(InfoCommandTest, NamesTheCommandsInJsonToo) {
    const TempFile definition(DefinitionWith(""));
    const auto items = nlohmann::json::parse(Info(TwoCommands(), {"--json", "-d", definition.Path()}).out)["items"];
    EXPECT_EQ(items[0]["command"], "Poll");
    EXPECT_FALSE(items[1].contains("command"));
}

TEST(InfoCommandTest, TellsOfSeveralLogs) {
    const LogTempFile one(TwoCommands()), two(AtTimes({0}));
    const ToolResult result = RunInside({"info", "--json", one.Path(), two.Path(), "no/such.xdl"});
    EXPECT_EQ(result.code, 1);
    const Words lines = LinesOf(result.out);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(nlohmann::json::parse(lines[1])["file"], two.Path());
}

TEST(InfoCommandTest, CountsWhatCanBeReadWhateverTheHeaderSays) {
    LogBytes cut = AtTimes({0}), unknown = cut, back = cut, zeros = cut, empty = BeginLog({});
    cut.Record(0, 100, Bytes(23, 1));
    unknown.Record(7, 50, Bytes(3, 9)).Record(0, 100, Bytes(24, 1)).MarkEnd();
    back.RecordTo(92, 7, 50, Bytes(3, 9)).MarkEnd();
    zeros.Raw(Bytes(50, 0)).Record(0, 100, Bytes(24, 1)).PutWord32(36, 3).MarkEnd();
    empty.PutWord32(12, 0xFFFF0000);  // year 0, month 65535
    const struct {
        const char* name;
        const LogBytes& log;
        const char *key, *value;
        int records, result;
    } rows[] = {{"cut short", cut, "endMark", "4294967295", 1, 7},
                {"an unknown item", unknown, "endMark", "180", 2, 7},
                {"an unknown item that leads back", back, "sampleCount", "0", 1, 4},
                {"zeros", zeros, "sampleCount", "3", 1, 7},
                {"no time", empty, "startTime", "\"0000-65535-01T12:34:56.789\"", 0, 7}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const auto json = nlohmann::json::parse(Info(row.log).out);
        EXPECT_EQ(json[row.key].dump(), row.value);
        EXPECT_EQ(json["records"], row.records);
        EXPECT_EQ(json["result"], row.result);
    }
    EXPECT_TRUE(Has(Human(unknown), "1 record of unknown items passed over\n"));
    EXPECT_TRUE(Has(Human(back), "reading ended 15 bytes before the end of the file: a record of an unknown item"));
    const std::string damaged = "damaged at byte 128: 86 bytes from there on not read (see corvex-cli repair)";
    const std::string missing = "its header counts 3 records, 2 are missing";
    EXPECT_TRUE(Has(Info(zeros).err, ": " + missing + "; " + damaged + "\n"));
    EXPECT_TRUE(Has(Human(zeros), "          " + missing + "\n          " + damaged + "\n"));
    EXPECT_EQ(Info(zeros, {"--human"}).err, "");
    // A header that leads past a record.
    EXPECT_TRUE(Has(Human(TwoCommands().PutWord32(4, 140 + 36)), "36 bytes in front of the first record not read\n"));
}

TEST(InfoCommandTest, TellsAPersonDurationRatesAndNames) {
    const TempFile definition(DefinitionWith(""));
    const std::string text = Info(TwoCommands(), {"--human", "-d", definition.Path()}).out;
    EXPECT_TRUE(Has(text,
                    "Began     2026-07-01 12:34:56.789\nDuration  0.450 s\nRecords   6, 11.11 Hz\n"
                    "State     ended properly\nCommands\n"));
    EXPECT_TRUE(Has(text, "  Poll 0xA6607299  send command  24 bytes  5 records  10.00 Hz\n"));
    EXPECT_TRUE(Has(text, "  0x00000011       send command  24 bytes  1 record   0.00 Hz\n"));
    EXPECT_TRUE(Has(text, "Gaps      none longer than 1 s and than 4 times the median interval of 0.100 s\n"));
    EXPECT_TRUE(Has(Human(BeginLog({}).MarkEnd()), "Records   0, 0.00 Hz\n"));
    EXPECT_TRUE(Has(Human(BeginLog({}).MarkEnd()), "Commands  none\n"));
}

TEST(InfoCommandTest, FindsGapsBesideTheUsualInterval) {
    EXPECT_TRUE(Has(Human(AtTimes({0, 100, 200, 1201, 1301, 9301})),
                    "Gaps      2 longer than 1 s and than 4 times the median interval of 0.100 s\n"
                    "  at 0.200 s for 1.001 s\n  at 1.301 s for 8.000 s\n"));
    EXPECT_TRUE(Has(Human(AtTimes({0, 1200, 2400, 3600, 8400, 8300, 13101})),
                    "Gaps      1 longer than 1 s and than 4 times the median interval of 1.200 s\n"
                    "  at 8.300 s for 4.801 s\n"));
}

TEST(InfoCommandTest, TellsAPersonHowTheLogEnds) {
    LogBytes log = AtTimes({0});
    EXPECT_TRUE(Has(Human(log), "State     never ended: the recording goes on, or was cut off\n"));
    log.Raw(Bytes(5, 1));
    EXPECT_TRUE(Has(Human(log), "cut: the last 5 bytes are no whole record\n"));
    log.MarkEnd().Raw(Bytes(2, 1));
    EXPECT_TRUE(Has(Human(log), "ended, but its end mark is for a file of 133 bytes and this one has 135\n"));
    EXPECT_TRUE(Has(Human(log), "its header counts 0 records\n"));
    // As a recording that ended before its first sample.
    EXPECT_TRUE(Has(Human(BeginLog({kPollHash}).PutWord32(8, 1)), "State     ended properly\n"));
}

}  // namespace
}  // namespace corvex
