#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/apps/cli/LogTestHelper.h"

namespace corvex {
namespace {

using test::Bytes;
using test::LogBytes;

std::string Human(const LogBytes& log, const std::vector<std::string>& more = {}) {
    const LogTempFile file(log);
    std::vector<std::string> args{"info", file.Path(), "--human"};
    args.insert(args.end(), more.begin(), more.end());
    const ToolResult result = RunInside(args);
    EXPECT_EQ(result.code, 0) << result.err;
    return result.out;
}

testing::AssertionResult Has(const std::string& text, const std::string& part) {
    if (text.find(part) != std::string::npos) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "no \"" << part << "\" in:\n" << text;
}

LogBytes TwoCommands() {
    LogBytes log = BeginLog({kPollHash, 0x11});
    for (std::uint32_t i = 0; i < 5; ++i)
        log.Record(0, i * 100, Bytes(24, 1));
    return log.Record(1, 450, Bytes(24, 2)).PutWord32(36, 6).MarkEnd();
}

TEST(InfoCommandTest, TellsAllInTheOrderOfItsKeys) {
    const LogTempFile file(TwoCommands());
    const ToolResult result = RunInside({"info", file.Path()});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(nlohmann::ordered_json::parse(result.out).dump(),
              "{\"version\":3,\"dataOffset\":140,\"endMark\":357,\"sampleCount\":6,"
              "\"startTime\":\"2026-07-01T12:34:56.789\",\"items\":["
              "{\"commandId\":\"0xA6607299\",\"type\":131072,\"packedSize\":24,\"fullSize\":24},"
              "{\"commandId\":\"0x00000011\",\"type\":131072,\"packedSize\":24,\"fullSize\":24}],"
              "\"records\":6,\"result\":7}");
}

TEST(InfoCommandTest, LeavesTheLogAsItWas) {
    const LogTempFile file(TwoCommands());
    const std::string before = ReadFile(file.Path());
    RunInside({"info", file.Path()});
    RunInside({"info", file.Path(), "--human"});
    EXPECT_EQ(ReadFile(file.Path()), before);
}

TEST(InfoCommandTest, CountsWhatCanBeReadWhateverTheHeaderSays) {
    LogBytes log = BeginLog({kPollHash});
    log.Record(0, 0, Bytes(24, 1)).Record(0, 100, Bytes(23, 1));
    const LogTempFile file(log);
    const auto json = nlohmann::json::parse(RunInside({"info", file.Path()}).out);
    EXPECT_EQ(json["records"], 1);
    EXPECT_EQ(json["sampleCount"], 0);
    EXPECT_EQ(json["endMark"], 4294967295U);
    EXPECT_EQ(json["result"], 7);
}

TEST(InfoCommandTest, GivesTheStartTimeAsItStands) {
    LogBytes log = BeginLog({});
    log.PutWord32(12, 0xFFFF0000);  // year 0, month 65535
    const LogTempFile file(log);
    const auto json = nlohmann::json::parse(RunInside({"info", file.Path()}).out);
    EXPECT_EQ(json["startTime"], "0000-65535-01T12:34:56.789");
    EXPECT_EQ(json["items"].dump(), "[]");
}

TEST(InfoCommandTest, PassesOverUnknownItems) {
    LogBytes log = BeginLog({kPollHash});
    log.Record(0, 0, Bytes(24, 1)).Record(7, 50, Bytes(3, 9)).Record(0, 100, Bytes(24, 1)).MarkEnd();
    const LogTempFile file(log);
    const auto json = nlohmann::json::parse(RunInside({"info", file.Path()}).out);
    EXPECT_EQ(json["records"], 2);
    EXPECT_EQ(json["result"], 7);
    EXPECT_TRUE(Has(Human(log), "1 record of unknown items passed over\n"));
}

TEST(InfoCommandTest, EndsWhereAnUnknownItemLeadsBack) {
    LogBytes log = BeginLog({kPollHash});
    log.Record(0, 0, Bytes(24, 1)).RecordTo(92, 7, 50, Bytes(3, 9)).MarkEnd();
    const LogTempFile file(log);
    const auto json = nlohmann::json::parse(RunInside({"info", file.Path()}).out);
    EXPECT_EQ(json["records"], 1);
    EXPECT_EQ(json["result"], 4);
    EXPECT_TRUE(Has(Human(log), "reading ended 15 bytes before the end of the file with error 0x4"));
}

TEST(InfoCommandTest, TellsOfDamageAndOfWhatIsMissing) {
    LogBytes log = BeginLog({kPollHash});
    log.Record(0, 0, Bytes(24, 1)).Raw(Bytes(50, 0)).Record(0, 100, Bytes(24, 1)).PutWord32(36, 3).MarkEnd();
    const std::string damaged = "damaged at byte 128: 86 bytes from there on not read (see corvex-cli repair)";
    const std::string missing = "its header counts 3 records, 2 are missing";
    const LogTempFile file(log);
    const ToolResult result = RunInside({"info", file.Path()});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(nlohmann::json::parse(result.out)["records"], 1);
    EXPECT_EQ(nlohmann::json::parse(result.out)["result"], 7);
    EXPECT_EQ(result.err, "corvex-cli: " + file.Path() + ": " + missing + "; " + damaged + "\n");
    EXPECT_TRUE(Has(Human(log), "          " + missing + "\n          " + damaged + "\n"));
    EXPECT_EQ(RunInside({"info", file.Path(), "--human"}).err, "");
    // A header that leads past a record.
    EXPECT_TRUE(Has(Human(TwoCommands().PutWord32(4, 140 + 36)), "36 bytes in front of the first record not read\n"));
}

TEST(InfoCommandTest, EndsWithOneOnWhatIsNoLog) {
    const TempFile file("no log at all, but longer than a header is: that much is certain", ".xdl");
    const ToolResult result = RunInside({"info", file.Path()});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_TRUE(Has(result.err, "error 0xD"));
    EXPECT_TRUE(Has(RunInside({"info", "no/such.xdl"}).err, "error 0xC"));
}

TEST(InfoCommandTest, TellsAPersonDurationAndRates) {
    const std::string text = Human(TwoCommands());
    EXPECT_TRUE(Has(text,
                    "Began     2026-07-01 12:34:56.789\nDuration  0.450 s\nRecords   6, 11.11 Hz\n"
                    "State     ended properly\nCommands\n"));
    EXPECT_TRUE(Has(text,
                    "  0xA6607299  send command  24 bytes  5 records  10.00 Hz\n"
                    "  0x00000011  send command  24 bytes  1 record   0.00 Hz\n"));
    EXPECT_TRUE(Has(text, "Gaps      none longer than 1 s and than 4 times the median interval of 0.100 s\n"));
}

TEST(InfoCommandTest, NamesCommandsByTheDefinition) {
    const TempFile definition(DefinitionWith(""));
    EXPECT_TRUE(Has(Human(TwoCommands(), {"-d", definition.Path()}), "  Poll 0xA6607299  send command"));
}

TEST(InfoCommandTest, FindsGapsBesideTheUsualInterval) {
    LogBytes log = BeginLog({kPollHash});
    for (const std::uint32_t time : {0U, 100U, 200U, 1201U, 1301U, 9301U})
        log.Record(0, time, Bytes(24, 0));
    EXPECT_TRUE(Has(Human(log),
                    "Gaps      2 longer than 1 s and than 4 times the median interval of 0.100 s\n"
                    "  at 0.200 s for 1.001 s\n  at 1.301 s for 8.000 s\n"));
    LogBytes slow = BeginLog({kPollHash});
    for (const std::uint32_t time : {0U, 1200U, 2400U, 3600U, 8400U, 8300U, 13101U})
        slow.Record(0, time, Bytes(24, 0));
    EXPECT_TRUE(Has(Human(slow),
                    "Gaps      1 longer than 1 s and than 4 times the median interval of 1.200 s\n"
                    "  at 8.300 s for 4.801 s\n"));
}

TEST(InfoCommandTest, TellsAPersonHowTheLogEnds) {
    LogBytes log = BeginLog({kPollHash});
    log.Record(0, 0, Bytes(24, 1));
    EXPECT_TRUE(Has(Human(log), "State     never ended: the recording goes on, or was cut off\n"));
    log.Raw(Bytes(5, 1));
    EXPECT_TRUE(Has(Human(log), "cut: the last 5 bytes are no whole record\n"));
    log.MarkEnd().Raw(Bytes(2, 1));
    const std::string longer = Human(log);
    EXPECT_TRUE(Has(longer, "ended, but its end mark is for a file of 133 bytes and this one has 135\n"));
    EXPECT_TRUE(Has(longer, "its header counts 0 records\n"));
    // As a recording that ended before its first sample.
    EXPECT_TRUE(Has(Human(BeginLog({kPollHash}).PutWord32(8, 1)), "State     ended properly\n"));
}

TEST(InfoCommandTest, TellsOfALogWithoutItems) {
    const std::string text = Human(BeginLog({}).MarkEnd());
    EXPECT_TRUE(Has(text, "Records   0, 0.00 Hz\n"));
    EXPECT_TRUE(Has(text, "Commands  none\n"));
}

}  // namespace
}  // namespace corvex
