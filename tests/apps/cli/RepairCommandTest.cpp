#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "tests/apps/cli/LogTestHelper.h"

namespace corvex {
namespace {

using test::Bytes;
using test::LogBytes;

struct Repaired {
    ToolResult result;
    std::string bytes;  // of the new log; empty when there is none
};

Repaired Repair(const LogBytes& log) {
    const LogTempFile input(log);
    const std::string before = ReadFile(input.Path());
    const std::string output = input.Path() + ".out";
    Repaired repaired;
    repaired.result = RunInside({"repair", input.Path(), output});
    repaired.bytes = ReadFile(output);
    std::error_code ignored;
    std::filesystem::remove(output, ignored);
    EXPECT_EQ(ReadFile(input.Path()), before);
    return repaired;
}

std::string BytesOf(const LogBytes& log) {
    return {log.bytes.begin(), log.bytes.end()};
}

// What one is that was cut has a header and a count of its own in either case.
TEST(RepairCommandTest, AGoodLogComesOutByteForByteAndACutOneToItsLastWholeRecord) {
    const LogBytes none = BeginLog({kPollHash}).PutWord32(8, 1);
    LogBytes first = BeginLog({kPollHash, kStreamHash}), both = first, cut = first;
    first.Record(1, 0, Bytes(24, 1)).PutWord32(36, 1).MarkEnd();
    cut.Record(1, 0, Bytes(24, 1)).Record(0, 83, Bytes(23, 2));
    both.Record(1, 0, Bytes(24, 1)).Record(0, 83, Bytes(24, 2)).PutWord32(36, 2).MarkEnd();
    for (const LogBytes& good : {none, first, both}) {
        EXPECT_EQ(Repair(good).bytes, BytesOf(good));
        EXPECT_EQ(Repair(good).result.code, 0);
    }
    const Repaired repaired = Repair(cut);
    EXPECT_EQ(repaired.bytes, BytesOf(first));
    EXPECT_EQ(repaired.result.code, 1);
    EXPECT_TRUE(Has(repaired.result.out, "the last 35 bytes, which are no whole record"));
}

TEST(RepairCommandTest, TellsWhatIsLeftOut) {
    const LogBytes whole = BeginLog({kPollHash}).Record(0, 0, Bytes(24, 1)).Record(0, 83, Bytes(24, 2));
    LogBytes unknown = BeginLog({kPollHash}), clean = whole;
    unknown.Record(0, 0, Bytes(24, 1)).Record(5, 40, Bytes(3, 9)).Record(0, 83, Bytes(24, 2)).MarkEnd();
    clean.PutWord32(36, 2).MarkEnd();
    const Repaired without = Repair(unknown);
    EXPECT_EQ(without.bytes, BytesOf(clean));
    EXPECT_TRUE(Has(without.result.out, "left out: 15 bytes with 1 record of unknown items\n"));

    LogBytes damaged = BeginLog({kPollHash});
    damaged.Record(0, 0, Bytes(24, 1)).RecordTo(0, 5, 40, Bytes(3, 9)).Record(0, 83, Bytes(24, 2));
    damaged.Raw(Bytes(4096, 0)).Record(0, 166, Bytes(24, 3)).Record(0, 249, Bytes(24, 4)).Raw(Bytes(5, 9)).MarkEnd();
    clean = whole;
    clean.Record(0, 166, Bytes(24, 3)).Record(0, 249, Bytes(24, 4)).PutWord32(36, 4).MarkEnd();
    const Repaired repaired = Repair(damaged.PutWord32(36, 6));
    EXPECT_EQ(repaired.bytes, BytesOf(clean));
    EXPECT_EQ(repaired.result.code, 1);
    EXPECT_TRUE(Has(repaired.result.out,
                    ": 4 records copied; left out: 4111 bytes of damage at 2 places; the last 5 bytes, which are no "
                    "whole record; 2 records of the 6 that its header counts\n"));
    EXPECT_TRUE(Has(repaired.result.err, "not all of it could be saved"));
}

TEST(RepairCommandTest, SaysWhatCannotBeSaved) {
    LogBytes log = BeginLog({kPollHash, 0x11});
    log.bytes.resize(100);
    const Repaired repaired = Repair(log);
    EXPECT_EQ(repaired.result.code, 1);
    EXPECT_EQ(repaired.bytes, "");
    EXPECT_TRUE(Has(repaired.result.err, "ends before its header"));
    EXPECT_TRUE(Has(repaired.result.err, "nothing can be saved"));
}

TEST(RepairCommandTest, WritesOverADriveOnlyWhenForcedAndOverItsInputNever) {
    const LogBytes log = BeginLog({kPollHash}).PutWord32(8, 1);
    const LogTempFile input(log);
    const TempFile output("precious", ".xdl"), empty("", ".xdl");
    const ToolResult refused = RunInside({"repair", input.Path(), output.Path()});
    EXPECT_EQ(refused.code, 1);
    EXPECT_TRUE(Has(refused.err, "--force"));
    EXPECT_EQ(ReadFile(output.Path()), "precious");
    EXPECT_EQ(RunInside({"repair", input.Path(), output.Path(), "--force"}).code, 0);
    EXPECT_EQ(ReadFile(output.Path()), BytesOf(log));
    EXPECT_EQ(RunInside({"repair", input.Path(), empty.Path()}).code, 0);
    EXPECT_EQ(ReadFile(empty.Path()), BytesOf(log));

    const std::string link = input.Path() + ".link";
    std::filesystem::create_hard_link(input.Path(), link);
    for (const std::string& name : {input.Path(), link}) {
        const ToolResult result = RunInside({"repair", input.Path(), name, "--force"});
        EXPECT_EQ(result.code, 1);
        EXPECT_TRUE(Has(result.err, "is the log itself"));
    }
    EXPECT_EQ(ReadFile(link), BytesOf(log));
    std::filesystem::remove(link);
    EXPECT_EQ(RunInside({"repair", input.Path(), "no/such/folder/out.xdl"}).code, 1);
    const std::string folder = std::filesystem::temp_directory_path().string();
    EXPECT_TRUE(Has(RunInside({"repair", input.Path(), folder, "--force"}).err, "cannot be written"));
}

TEST(RepairCommandTest, WritesSeveralIntoAFolderUnderTheirNames) {
    const LogTempFile good(BeginLog({kPollHash}).PutWord32(8, 1)), cut(BeginLog({kPollHash}).Raw(Bytes(3, 1)));
    const test::TestFolder folder, empty;
    const std::string first = empty.Put("one.xdl", ReadFile(good.Path())),
                      second = empty.Put("two.xdl", ReadFile(cut.Path()));
    const ToolResult result = RunInside({"repair", second, first, "--out-dir", folder.Path().string()});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(LinesOf(result.out).size(), 2U) << result.out;
    EXPECT_EQ(ReadFile((folder.Path() / "one.xdl").string()), ReadFile(first));
    EXPECT_EQ(RunInside({"repair", first, "--out-dir", std::filesystem::path(first).parent_path().string()}).code, 1);
}

}  // namespace
}  // namespace corvex
