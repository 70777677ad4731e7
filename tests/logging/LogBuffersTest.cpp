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

TEST(LogBuffersTest, OrdinaryReplyIsGivenWhole) {
    EXPECT_EQ(63U, ExpandedSize(Sized(63, 63), 155));
    EXPECT_EQ(65536U, ExpandedSize(Sized(0, 65536), 0));
    EXPECT_EQ(0U, ExpandedSize(Sized(63, 0), 155));
}

TEST(LogBuffersTest, ReplyIsNoLargerThanItsRecordAndMaskCouldFill) {
    EXPECT_EQ(65536U, ExpandedSize(Sized(3, kHuge), 1'000'000));
    EXPECT_EQ(100'000U + 2040, ExpandedSize(Sized(100'000, kHuge), 1'000'000));
    EXPECT_EQ(1'000'000U + 2040, ExpandedSize(Sized(kHuge, kHuge), 1'000'000));
    EXPECT_EQ(kHuge, ExpandedSize(Sized(kHuge, kHuge), std::numeric_limits<std::uint32_t>::max()));
}

TEST(LogBuffersTest, ExpandedBufferHoldsEveryItem) {
    const std::vector<LogItem> items = {Sized(3, kHuge), Sized(100'000, 90'000), Sized(1, 1)};
    EXPECT_EQ(90'000U, ExpandedBufferSize(items, 1'000'000));
    EXPECT_EQ(1U, ExpandedBufferSize({}, 100));
}

TEST(LogBuffersTest, BufferOnlyGrows) {
    std::vector<std::uint8_t> buffer(10, 1);
    EXPECT_TRUE(GrowBuffer(buffer, 5));
    EXPECT_EQ(10U, buffer.size());
    EXPECT_TRUE(GrowBuffer(buffer, 20));
    EXPECT_EQ(20U, buffer.size());
}

TEST(LogBuffersTest, ImpossibleSizeLeavesTheBuffer) {
    std::vector<std::uint8_t> buffer(10, 1);
    EXPECT_FALSE(GrowBuffer(buffer, std::numeric_limits<std::size_t>::max()));
    EXPECT_EQ(10U, buffer.size());
}

}  // namespace
}  // namespace corvex::test
