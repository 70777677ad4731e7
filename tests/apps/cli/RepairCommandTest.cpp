#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <random>

#include "logging/LogWalk.h"
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

// Records as a reader gets them: "item time data" each.
std::vector<std::string> RecordsOf(const std::string& bytes) {
    const TempFile file(bytes, ".xdl");
    DataLogEngine log;
    if (log.Open(file.Path().c_str(), kLogForLooking) != kLogSuccess) return {"cannot be opened"};
    std::vector<std::string> records;
    LogWalk walk(log);
    while (walk.Next()) {
        const std::string data(walk.Packed(), walk.Packed() + walk.Item().packedSize);
        records.push_back(std::to_string(walk.Record().itemIndex) + ' ' + std::to_string(walk.Record().timeMs) + ' ' +
                          data);
    }
    return records;
}

std::uint32_t Draw(std::mt19937& random, std::uint32_t below) {
    return static_cast<std::uint32_t>(random() % below);
}

// A finished log as the recorder writes it, with a random table and random records.
LogBytes RandomLog(std::mt19937& random) {
    const std::uint32_t items = 1 + Draw(random, 3);
    std::vector<std::uint32_t> sizes;
    LogBytes log;
    log.Header(LogBytes::DataOffsetFor(std::vector<std::uint32_t>(items, 15)), 0).ItemCount(items);
    for (std::uint32_t i = 0; i < items; ++i) {
        sizes.push_back(Draw(random, 12));
        log.Item(static_cast<std::uint32_t>(random()), 0x20000, sizes[i], sizes[i], Bytes(15, 0xFF));
    }
    const std::uint32_t records = 1 + Draw(random, 6);
    for (std::uint32_t i = 0; i < records; ++i) {
        const std::uint32_t item = Draw(random, items);
        Bytes data(sizes[item]);
        for (std::uint8_t& byte : data)
            byte = static_cast<std::uint8_t>(random());
        log.Record(item, i * 83, data);
    }
    return log.PutWord32(36, records).MarkEnd();
}

TEST(RepairCommandTest, ALogOfWhichNoRecordWasMadeComesOutByteForByte) {
    const LogBytes log = BeginLog({kPollHash}).PutWord32(8, 1);
    EXPECT_EQ(Repair(log).bytes, BytesOf(log));
}

TEST(RepairCommandTest, SavesEveryWholeRecordWhereverALogIsCut) {
    std::mt19937 random(4);
    for (int i = 0; i < 6; ++i) {
        LogBytes log = RandomLog(random);
        ASSERT_EQ(Repair(log).bytes, BytesOf(log));
        ASSERT_EQ(Repair(log).result.code, 0);
        log.PutWord32(8, 0xFFFFFFFF).PutWord32(36, 0);
        const std::size_t data = log.bytes[4] + log.bytes[5] * std::size_t{256};
        while (!log.bytes.empty()) {
            log.bytes.pop_back();
            const Repaired repaired = Repair(log);
            const bool clean = repaired.result.out.find("nothing left out") != std::string::npos;
            ASSERT_EQ(repaired.result.code, log.bytes.size() >= data && clean ? 0 : 1) << log.bytes.size();
            if (log.bytes.size() < data) {
                ASSERT_EQ(repaired.bytes, "");
                continue;
            }
            ASSERT_EQ(RecordsOf(repaired.bytes), RecordsOf(BytesOf(log)));
            // What is not in a whole record is told with its size.
            const std::size_t partly = log.bytes.size() - repaired.bytes.size();
            ASSERT_EQ(clean, partly == 0) << repaired.result.out;
            LogBytes again;
            again.bytes.assign(repaired.bytes.begin(), repaired.bytes.end());
            ASSERT_EQ(Repair(again).bytes, repaired.bytes);
        }
    }
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
    EXPECT_TRUE(Has(repaired.result.err, "error 0x1"));
    EXPECT_TRUE(Has(repaired.result.err, "nothing can be saved"));
}

TEST(RepairCommandTest, WritesOverADriveOnlyWhenForcedAndOverItsInputNever) {
    std::mt19937 random(9);
    const LogBytes log = RandomLog(random);
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

}  // namespace
}  // namespace corvex
