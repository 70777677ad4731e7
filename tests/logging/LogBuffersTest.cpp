#include <gtest/gtest.h>

#include <limits>

#include "logging/LogBuffers.h"
#include "tests/logging/LogTestHelper.h"

namespace corvex::test {
namespace {

constexpr std::uint32_t kHuge = 0xFFFFFFFF;

LogItem Sized(std::uint32_t packedSize, std::uint32_t fullSize) {
    LogItem item = MakeItem(kId, packedSize);
    item.fullSize = fullSize;
    return item;
}

TEST(LogBuffersTest, LargestIsOverAllItems) {
    const std::vector<LogItem> items = {Sized(1, 90), Sized(70, 80), Sized(3, 4)};
    EXPECT_EQ(70U, LargestPackedSize(items));
    EXPECT_EQ(90U, LargestFullSize(items));
    EXPECT_EQ(0U, LargestPackedSize({}));
    EXPECT_EQ(0U, LargestFullSize({}));
}

TEST(LogBuffersTest, RecordIsNoLargerThanTheFile) {
    EXPECT_EQ(63U, PackedBufferSize({Sized(63, 63)}, 5000));
    EXPECT_EQ(50U, PackedBufferSize({Sized(kHuge, 1)}, 50));
    EXPECT_EQ(1U, PackedBufferSize({}, 5000));
    EXPECT_EQ(1U, PackedBufferSize({Sized(kHuge, 1)}, 0));
}

TEST(LogBuffersTest, ReplyIsNoLargerThanItsRecordAndMaskCouldFill) {
    const struct {
        std::uint32_t packed, full, fileSize, size;
    } cases[] = {{63, 63, 155, 63},
                 {0, 65536, 0, 65536},
                 {63, 0, 155, 0},
                 {3, kHuge, 1'000'000, 65536},
                 {0, kHuge, 200'000, 65536},
                 {100'000, kHuge, 1'000'000, 100'000 + 2040},
                 {kHuge, kHuge, 1'000'000, 1'000'000 + 2040},
                 {kHuge, kHuge, kHuge, kHuge}};
    for (const auto& one : cases)
        EXPECT_EQ(one.size, ExpandedSize(Sized(one.packed, one.full), one.fileSize)) << one.packed << ", " << one.full;
}

TEST(LogBuffersTest, ExpandedBufferHoldsEveryItem) {
    const std::vector<LogItem> items = {Sized(3, kHuge), Sized(100'000, 90'000), Sized(1, 1)};
    EXPECT_EQ(90'000U, ExpandedBufferSize(items, 1'000'000));
    EXPECT_EQ(1U, ExpandedBufferSize({}, 100));
}

TEST(LogBuffersTest, BufferOnlyGrowsAndStaysAtAnImpossibleSize) {
    std::vector<std::uint8_t> buffer(10, 1);
    EXPECT_TRUE(GrowBuffer(buffer, 5));
    EXPECT_EQ(10U, buffer.size());
    EXPECT_TRUE(GrowBuffer(buffer, 20));
    EXPECT_FALSE(GrowBuffer(buffer, std::numeric_limits<std::size_t>::max()));
    EXPECT_EQ(20U, buffer.size());
}

}  // namespace
}  // namespace corvex::test
