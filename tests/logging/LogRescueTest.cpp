#include <gtest/gtest.h>

#include <algorithm>

#include "logging/LogRescue.h"
#include "tests/logging/FarFile.h"
#include "tests/logging/LogTestHelper.h"
#include "tests/support/Listed.h"
#include "tests/support/MemoryFiles.h"

namespace corvex::test {
namespace {

struct Rescued {
    std::vector<std::uint32_t> times;
    std::vector<Bytes> data;
    std::uint32_t unknown = 0, places = 0;
    std::uint64_t unknownBytes = 0, skipped = 0, left = 0, gone = 0;
};

// Logs of SmallLog: records of 15 bytes, 80 ms apart.
class LogRescueTest : public ::testing::Test {
protected:
    static Rescued RescueFile(IFile& file, const LogHeader& header, std::uint64_t tableEnd) {
        LogRescue rescue(file, header, {MakeItem(kId, 3)}, tableEnd);
        Rescued rescued;
        while (rescue.Next()) {
            rescued.times.push_back(rescue.Record().timeMs);
            rescued.data.emplace_back(rescue.Packed(), rescue.Packed() + 3);
        }
        EXPECT_FALSE(rescue.Next());
        EXPECT_FALSE(rescue.Failed());
        EXPECT_EQ(rescued.times.size(), rescue.Records());
        rescued.unknown = rescue.Unknown();
        rescued.places = rescue.Places();
        rescued.unknownBytes = rescue.UnknownBytes();
        rescued.skipped = rescue.Skipped();
        rescued.left = rescue.Left();
        rescued.gone = rescue.Gone();
        return rescued;
    }
    Rescued Rescue(const LogBytes& bytes) {
        files_.Put(kPath, bytes.bytes);
        const std::unique_ptr<IFile> file = files_.Open(kPath, FileAccess::kRead);
        return RescueFile(*file, DecodeHeader(bytes.bytes.data()), kSmallDataOffset);
    }
    // All of SmallLog(count) came out, but for those named, each as it was.
    static void ExpectAllBut(const Rescued& rescued, const std::vector<std::uint32_t>& lost, std::uint32_t count) {
        std::vector<std::uint32_t> times;
        std::vector<Bytes> data;
        for (std::uint32_t i = 0; i < count; ++i) {
            if (std::find(lost.begin(), lost.end(), i) != lost.end()) continue;
            times.push_back(i * 80);
            data.push_back(DataOf(i));
        }
        EXPECT_EQ(rescued.times, times);
        EXPECT_EQ(rescued.data, data);
    }

    MemoryFiles files_;
};

LogBytes Cut(LogBytes log, std::size_t at, std::size_t count) {
    const auto from = log.bytes.begin() + static_cast<std::ptrdiff_t>(at);
    log.bytes.erase(from, from + static_cast<std::ptrdiff_t>(count));
    return log;
}

LogBytes Insert(LogBytes log, std::size_t at, const Bytes& block) {
    log.bytes.insert(log.bytes.begin() + static_cast<std::ptrdiff_t>(at), block.begin(), block.end());
    return log;
}

LogBytes Fill(LogBytes log, std::size_t at, std::size_t count, std::uint8_t byte) {
    std::fill_n(log.bytes.begin() + static_cast<std::ptrdiff_t>(at), count, byte);
    return log;
}

// A record's item, that of another writer.
LogBytes Foreign(LogBytes log, std::size_t at) {
    log.bytes[at + 8] = 9;
    return log;
}

// Where record i of SmallLog(20) stands, and where one leads that is of no use.
constexpr std::size_t At(std::uint32_t i) {
    return kSmallDataOffset + std::size_t{15} * i;
}
constexpr std::uint32_t Amid(std::uint32_t i) {
    return static_cast<std::uint32_t>(At(i) + 3);
}

TEST_F(LogRescueTest, TakesAllButWhatWasHit) {
    const LogBytes log = SmallLog(20);
    const Bytes older(log.bytes.begin() + static_cast<std::ptrdiff_t>(At(2)),
                      log.bytes.begin() + static_cast<std::ptrdiff_t>(At(6)));
    const LogBytes moved = Insert(log, At(18) + 3, Bytes(10, 0x55));
    const struct {
        const char* behaviour;
        LogBytes log;
        std::vector<std::uint32_t> lost;
        std::uint64_t skipped, left;
        std::uint32_t places;
    } cases[] = {
        {"a good log", log, {}, 0, 0, 0},
        {"one wrong offset costs one record", LogBytes(log).PutWord32(At(0), 5), {0}, 15, 0, 1},
        {"in the middle", LogBytes(log).PutWord32(At(7), 5), {7}, 15, 0, 1},
        {"at the end", LogBytes(log).PutWord32(At(19), 5), {19}, 0, 15, 0},
        {"one alone between damage comes out", LogBytes(log).PutWord32(At(7), 5).PutWord32(At(9), 5), {7, 9}, 30, 0, 2},
        {"a hole of zeros is passed over", Fill(log, At(5), 40, 0), {5, 6, 7}, 45, 0, 1},
        // The nextOffset of the first record in the hole is still there, its time and data are not.
        {"a hole behind an offset makes no record", Fill(log, At(5) + 4, 40, 0), {5, 6, 7}, 45, 0, 1},
        {"an inserted block between records", Insert(log, At(5), Bytes(100, 0x55)), {}, 100, 0, 1},
        {"costs the record that it is in", Insert(log, At(5) + 2, Bytes(100, 0x55)), {5}, 115, 0, 1},
        // Behind the nextOffset, so that the record has a time from the block.
        {"even a byte of it", Insert(log, At(5) + 6, {0x55}), {5}, 16, 0, 1},
        {"a removed block of whole records", Cut(log, At(5), 45), {5, 6, 7}, 0, 0, 1},
        {"costs what it took", Cut(log, At(5) + 1, 40), {5, 6, 7}, 5, 0, 1},
        // Its nextOffset is right, but the next whole record begins inside of what it takes for its data.
        {"a record that reaches into another is none", Cut(log, At(5) + 12, 32), {5, 6, 7}, 13, 0, 1},
        {"nor with a byte of its own", Cut(log, At(5) + 13, 31), {5, 6, 7}, 14, 0, 1},
        {"the last record of a moved end comes out", moved, {18}, 25, 0, 1},
        {"without the end mark nothing proves it", LogBytes(moved).PutWord32(8, kNeverEnded), {18, 19}, 0, 40, 0},
        {"a wrong offset of the data costs nothing", LogBytes(log).PutWord32(4, 0), {}, 0, 0, 0},
        {"into the table", LogBytes(log).PutWord32(4, 60), {}, 0, 0, 0},
        {"behind a record", LogBytes(log).PutWord32(4, kSmallDataOffset + 15), {}, 0, 0, 0},
        {"amid a record", LogBytes(log).PutWord32(4, kSmallDataOffset + 7), {}, 0, 0, 0},
        {"past the file", LogBytes(log).PutWord32(4, 0x80000000U), {}, 0, 0, 0},
        // It would take good records with it.
        {"an unknown item that leads to no record",
         Foreign(LogBytes(log).PutWord32(At(5), Amid(15)), At(5)),
         {5},
         15,
         0,
         1},
        // No record in front looks where it leads.
        {"at the begin", Foreign(LogBytes(log).PutWord32(At(0), Amid(3)), At(0)), {0}, 15, 0, 1},
        {"unknown items that lead to each other and no further",
         Foreign(Foreign(LogBytes(log).PutWord32(At(5), static_cast<std::uint32_t>(At(12))).PutWord32(At(12), Amid(15)),
                         At(5)),
                 At(12)),
         {5, 12},
         30,
         0,
         2},
        {"an end that is cut is left", Cut(log, At(20) - 1, 1), {19}, 0, 14, 0},
        {"a copy of an older block is no record", Insert(log, At(12), older), {}, 60, 0, 1},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.behaviour);
        const Rescued rescued = Rescue(one.log);
        ExpectAllBut(rescued, one.lost, 20);
        EXPECT_EQ(Listed(rescued.skipped, rescued.left, rescued.places), Listed(one.skipped, one.left, one.places));
    }
    EXPECT_EQ(Rescue(Cut(log, At(5), 45)).gone, 45U);
}

TEST_F(LogRescueTest, TableThatReachesIntoTheDataCostsNothing) {
    files_.Put(kPath, SmallLog(20).bytes);
    const std::unique_ptr<IFile> file = files_.Open(kPath, FileAccess::kRead);
    const Rescued rescued = RescueFile(*file, DecodeHeader(SmallLog(20).bytes.data()), kSmallDataOffset + 30);
    ExpectAllBut(rescued, {}, 20);
}

TEST_F(LogRescueTest, GapBehindTheTableIsNoLoss) {
    LogBytes log = SmallLogHead(2).PutWord32(4, kSmallDataOffset + 10);
    log.Raw(Bytes(10, 0x55)).Record(0, 0, DataOf(0)).Record(0, 80, DataOf(1)).MarkEnd();
    const Rescued rescued = Rescue(log);
    ExpectAllBut(rescued, {}, 2);
    EXPECT_EQ(rescued.skipped, 0U);
    EXPECT_EQ(rescued.places, 0U);
}

TEST_F(LogRescueTest, UnknownItemsArePassedOverWhereTheyLeadOn) {
    LogBytes log = SmallLogHead();
    log.Record(0, 0, DataOf(0)).Record(7, 50, Bytes(20, 1)).Record(8, 60, {}).Record(0, 80, DataOf(1));
    const Rescued rescued = Rescue(log.Record(7, 90, {1}).MarkEnd());
    ExpectAllBut(rescued, {}, 2);
    EXPECT_EQ(rescued.unknown, 3U);
    EXPECT_EQ(rescued.unknownBytes, 32U + 12U + 13U);
    EXPECT_EQ(rescued.skipped + rescued.left, 0U);
}

TEST_F(LogRescueTest, GarbageHoldsNothing) {
    LogBytes log = SmallLogHead();
    std::uint32_t noise = 1;
    for (int i = 0; i < 300'000; ++i) {
        noise = noise * 1664525 + 1013904223;
        log.Word8(noise >> 24U);
    }
    const Rescued rescued = Rescue(log);
    ExpectAllBut(rescued, {}, 0);
    EXPECT_EQ(rescued.left, 300'000U);
}

TEST_F(LogRescueTest, FailureToReadIsTold) {
    files_.Put(kPath, SmallLog(6000).bytes);
    const std::unique_ptr<IFile> file = files_.Open(kPath, FileAccess::kRead);
    LogRescue rescue(*file, {}, {MakeItem(kId, 3)}, kSmallDataOffset);
    ASSERT_TRUE(rescue.Next());
    files_.failReads = true;
    while (rescue.Next()) {
    }
    EXPECT_TRUE(rescue.Failed());
    EXPECT_LT(1000U, rescue.Records());
    EXPECT_EQ(6000 * 15U, rescue.Records() * 15 + rescue.Left());
}

TEST_F(LogRescueTest, OffsetsWrapIn32Bits) {
    const std::uint64_t begin = 0x100000000 - 20;
    LogBytes tail;
    tail.RecordTo(0xFFFFFFFB, 0, 0, DataOf(0)).RecordTo(10, 0, 80, DataOf(1)).RecordTo(25, 9, 90, {1, 2, 3});
    tail.RecordTo(40, 0, 160, DataOf(2)).RecordTo(56, 0, 200, DataOf(9)).RecordTo(70, 0, 240, DataOf(3));
    FarFile file({}, begin, tail.bytes);
    const Rescued rescued = RescueFile(file, {}, begin);
    ExpectAllBut(rescued, {}, 4);
    EXPECT_EQ(rescued.unknown, 1U);
    EXPECT_EQ(rescued.skipped, 15U);
}

}  // namespace
}  // namespace corvex::test
