// What the log engine takes from the heap.
#include <gtest/gtest.h>

#include "tests/logging/LogTestHelper.h"
#include "tests/support/AllocationCount.h"
#include "tests/support/MemoryFiles.h"

namespace corvex::test {
namespace {

TEST(LogAllocationTest, SamplesTakeNothingAfterTheFirst) {
    MemoryFiles files;
    files.Reserve(kPath, 100'000);
    DataLogEngine log(files);
    ASSERT_EQ(0U, log.Open(kPath, kLogForWriting));
    ASSERT_EQ(0U, log.AddItem(MakeItem(kId, 3)));
    ASSERT_EQ(0U, log.AddItem(MakeItem(5, 60)));
    ASSERT_EQ(0U, log.StartRecording());
    const Bytes shorter(3, 1), longer(60, 2);
    ASSERT_EQ(0U, log.AddSample(kId, shorter.data(), 3));
    const std::uint64_t before = testing::AllocationCount();
    for (std::uint32_t i = 0; i < 200; ++i) {
        static_cast<void>(log.AddSample(kId, shorter.data(), 3));
        static_cast<void>(log.AddSample(5, longer.data(), 60));
    }
    EXPECT_EQ(before, testing::AllocationCount());
    EXPECT_EQ(401U, log.header.sampleCount);
}

TEST(LogAllocationTest, EndlessItemCountTakesNoMoreThanTheFileJustifies) {
    LogBytes bytes;
    bytes.Header(44, 0).ItemCount(0xFFFFFFFF).Raw({1, 2, 3, 4, 5, 6});
    MemoryFiles files;
    files.Put(kPath, bytes.bytes);
    DataLogEngine log(files);
    const std::uint64_t before = testing::AllocationCount();
    EXPECT_EQ(1U, log.Open(kPath, kLogForReading));
    EXPECT_GT(50U, testing::AllocationCount() - before);
}

TEST(LogAllocationTest, WalkTakesTheSameForAnyLength) {
    std::uint64_t taken[2] = {};
    for (const std::uint32_t i : {0U, 1U}) {
        MemoryFiles files;
        files.Put(kPath, SmallLog(i == 0 ? 10 : 20'000).bytes);
        DataLogEngine log(files);
        const std::uint64_t before = testing::AllocationCount();
        ASSERT_EQ(0U, log.Open(kPath, kLogForLooking));
        Bytes buffer(16);
        LogRecord record;
        const LogItem* item = nullptr;
        while (log.ReadRecord(&record, buffer.data(), 16, &item) == kLogSuccess) {
        }
        taken[i] = testing::AllocationCount() - before;
    }
    EXPECT_EQ(taken[0], taken[1]);
}

}  // namespace
}  // namespace corvex::test
