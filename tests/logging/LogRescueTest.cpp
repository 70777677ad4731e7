#include <gtest/gtest.h>

#include <algorithm>

#include "logging/LogRescue.h"
#include "tests/logging/FarFile.h"
#include "tests/logging/LogTestHelper.h"
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
    static std::size_t PlaceOf(std::uint32_t i) { return kSmallDataOffset + std::size_t{15} * i; }

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

TEST_F(LogRescueTest, GoodLogComesOutWhole) {
    const Rescued rescued = Rescue(SmallLog(20));
    ExpectAllBut(rescued, {}, 20);
    EXPECT_EQ(rescued.skipped + rescued.left, 0U);
    EXPECT_EQ(rescued.places, 0U);
}

TEST_F(LogRescueTest, OneWrongOffsetCostsOneRecord) {
    for (const std::uint32_t i : {0U, 7U, 19U}) {
        const Rescued rescued = Rescue(SmallLog(20).PutWord32(PlaceOf(i), 5));
        ExpectAllBut(rescued, {i}, 20);
        EXPECT_EQ(rescued.skipped, i == 19 ? 0U : 15U);
        EXPECT_EQ(rescued.places, i == 19 ? 0U : 1U);
        EXPECT_EQ(rescued.left, i == 19 ? 15U : 0U);
    }
}

TEST_F(LogRescueTest, OneAloneBetweenDamageComesOut) {
    const Rescued rescued = Rescue(SmallLog(20).PutWord32(PlaceOf(7), 5).PutWord32(PlaceOf(9), 5));
    ExpectAllBut(rescued, {7, 9}, 20);
    EXPECT_EQ(rescued.places, 2U);
}

TEST_F(LogRescueTest, HoleOfZerosIsPassedOver) {
    const Rescued rescued = Rescue(Fill(SmallLog(20), PlaceOf(5), 40, 0));
    ExpectAllBut(rescued, {5, 6, 7}, 20);
    EXPECT_EQ(rescued.skipped, 45U);
}

// The nextOffset of the first record in the hole is still there, its time and data are not.
TEST_F(LogRescueTest, HoleBehindAnOffsetMakesNoRecord) {
    ExpectAllBut(Rescue(Fill(SmallLog(20), PlaceOf(5) + 4, 40, 0)), {5, 6, 7}, 20);
}

TEST_F(LogRescueTest, InsertedBlockCostsAtMostTheRecordThatItIsIn) {
    const LogBytes log = SmallLog(20);
    const Rescued between = Rescue(Insert(log, PlaceOf(5), Bytes(100, 0x55)));
    ExpectAllBut(between, {}, 20);
    EXPECT_EQ(between.skipped, 100U);
    ExpectAllBut(Rescue(Insert(log, PlaceOf(5) + 2, Bytes(100, 0x55))), {5}, 20);
    // Behind the nextOffset, so that the record has a time from the block.
    ExpectAllBut(Rescue(Insert(log, PlaceOf(5) + 6, {0x55})), {5}, 20);
}

TEST_F(LogRescueTest, RemovedBlockCostsWhatItTook) {
    const LogBytes log = SmallLog(20);
    const Rescued whole = Rescue(Cut(log, PlaceOf(5), 45));
    EXPECT_EQ(whole.gone, 45U);
    ExpectAllBut(whole, {5, 6, 7}, 20);
    EXPECT_EQ(whole.skipped, 0U);
    ExpectAllBut(Rescue(Cut(log, PlaceOf(5) + 1, 40)), {5, 6, 7}, 20);
}

// Its nextOffset is right, but the next whole record begins inside of what it takes for its data.
TEST_F(LogRescueTest, RecordThatReachesIntoAnotherIsNone) {
    for (const std::size_t own : {12U, 13U})
        ExpectAllBut(Rescue(Cut(SmallLog(20), PlaceOf(5) + own, 44 - own)), {5, 6, 7}, 20);
}

TEST_F(LogRescueTest, LastRecordOfAMovedEndComesOut) {
    LogBytes log = Insert(SmallLog(20), PlaceOf(18) + 3, Bytes(10, 0x55));
    ExpectAllBut(Rescue(log), {18}, 20);
    // Without the end mark nothing proves it.
    ExpectAllBut(Rescue(log.PutWord32(8, kNeverEnded)), {18, 19}, 20);
}

TEST_F(LogRescueTest, WrongDataOffsetCostsNothing) {
    for (const std::uint32_t offset : {0U, 60U, kSmallDataOffset + 15, kSmallDataOffset + 7, 0x80000000U}) {
        const Rescued rescued = Rescue(SmallLog(20).PutWord32(4, offset));
        ExpectAllBut(rescued, {}, 20);
        EXPECT_EQ(rescued.skipped, 0U);
    }
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

// It would take good records with it.
TEST_F(LogRescueTest, UnknownItemThatLeadsToNoRecordIsDamage) {
    LogBytes log = SmallLog(20).PutWord32(PlaceOf(5), static_cast<std::uint32_t>(PlaceOf(15) + 3));
    log.bytes[PlaceOf(5) + 8] = 9;
    ExpectAllBut(Rescue(log), {5}, 20);
    // No record in front looks where it leads.
    log.PutWord32(PlaceOf(0), static_cast<std::uint32_t>(PlaceOf(3) + 3));
    log.bytes[PlaceOf(0) + 8] = 9;
    ExpectAllBut(Rescue(log), {0, 5}, 20);
}

TEST_F(LogRescueTest, UnknownItemsThatLeadToEachOtherAndNoFurtherAreDamage) {
    LogBytes log = SmallLog(20).PutWord32(PlaceOf(5), static_cast<std::uint32_t>(PlaceOf(12)));
    log.PutWord32(PlaceOf(12), static_cast<std::uint32_t>(PlaceOf(15) + 3));
    log.bytes[PlaceOf(5) + 8] = log.bytes[PlaceOf(12) + 8] = 9;
    ExpectAllBut(Rescue(log), {5, 12}, 20);
}

TEST_F(LogRescueTest, CutEndIsLeft) {
    LogBytes log = SmallLog(20);
    log.bytes.resize(PlaceOf(19) + 14);
    const Rescued rescued = Rescue(log);
    ExpectAllBut(rescued, {19}, 20);
    EXPECT_EQ(rescued.left, 14U);
}

TEST_F(LogRescueTest, CopyOfAnOlderBlockIsNoRecord) {
    const LogBytes log = SmallLog(20);
    const Bytes older(log.bytes.begin() + static_cast<std::ptrdiff_t>(PlaceOf(2)),
                      log.bytes.begin() + static_cast<std::ptrdiff_t>(PlaceOf(6)));
    ExpectAllBut(Rescue(Insert(log, PlaceOf(12), older)), {}, 20);
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
