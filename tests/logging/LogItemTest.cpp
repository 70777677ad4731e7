#include <gtest/gtest.h>

#include <numeric>

#include "logging/LogItem.h"
#include "tests/support/LogBytes.h"

namespace corvex::test {
namespace {

constexpr std::uint8_t kUntouched = 0xEE;

Bytes Counted(std::size_t count) {
    Bytes bytes(count);
    std::iota(bytes.begin(), bytes.end(), std::uint8_t{1});
    return bytes;
}

Bytes Pack(const LogMask& mask, const Bytes& reply, std::uint32_t packedSize) {
    Bytes packed(packedSize, kUntouched);
    PackReply(mask, reply.data(), static_cast<std::uint32_t>(reply.size()), packed.data(), packedSize);
    return packed;
}

Bytes Expand(const LogMask& mask, const Bytes& packed, std::uint32_t fullSize) {
    Bytes reply(fullSize, kUntouched);
    ExpandRecord(mask, packed.data(), static_cast<std::uint32_t>(packed.size()), reply.data(), fullSize);
    return reply;
}

TEST(LogItemTest, RecordersMaskHasFifteenSetBytes) {
    EXPECT_EQ(Bytes(15, 0xFF), LogMask::AllSet().Bytes());
    EXPECT_EQ(120U, LogMask::AllSet().LengthInBits());
}

TEST(LogItemTest, BitsAreCountedFromTheLowestOfTheFirstByte) {
    const LogMask mask({0x01, 0x80});
    for (std::uint32_t i = 0; i < 16; ++i)
        EXPECT_EQ(i == 0 || i == 15, mask.IsSet(i)) << i;
}

TEST(LogItemTest, BitPastTheMaskIsSet) {
    const LogMask mask(Bytes{0});
    EXPECT_FALSE(mask.IsSet(7));
    EXPECT_TRUE(mask.IsSet(8));
    EXPECT_TRUE(mask.IsSet(0xFFFFFFFF));
    EXPECT_TRUE(LogMask().IsSet(0));
}

TEST(LogItemTest, FullMaskCopiesBothWays) {
    const Bytes reply = Counted(63);
    EXPECT_EQ(reply, Pack(LogMask::AllSet(), reply, 63));
    EXPECT_EQ(reply, Expand(LogMask::AllSet(), reply, 63));
}

TEST(LogItemTest, BytesPastTheMaskAreStoredToo) {
    const Bytes reply = Counted(200);
    EXPECT_EQ(reply, Pack(LogMask::AllSet(), reply, 200));
    EXPECT_EQ(reply, Expand(LogMask::AllSet(), reply, 200));
}

// Writers and readers do not agree on this, and files depend on the reading side: bytes keep their places in the
// record, and are read as if they had been moved together.
TEST(LogItemTest, PackingLeavesGapsThatExpandingDoesNotKnow) {
    const LogMask mask(Bytes{0x05});
    const Bytes reply = {1, 2, 3};
    const Bytes packed = Pack(mask, reply, 3);
    EXPECT_EQ((Bytes{1, kUntouched, 3}), packed);
    EXPECT_EQ((Bytes{1, 0, kUntouched}), Expand(mask, packed, 3));
    EXPECT_EQ((Bytes{1, 0, 3}), Expand(mask, {1, 3}, 3));
}

TEST(LogItemTest, PackingWalksNoFurtherThanTheRecordOrTheReply) {
    EXPECT_EQ((Bytes{1, 2}), Pack(LogMask::AllSet(), Counted(5), 2));
    EXPECT_EQ((Bytes{1, 2, kUntouched}), Pack(LogMask::AllSet(), Counted(2), 3));
    // The second byte has a place in the reply only: the record ends before it.
    EXPECT_EQ((Bytes{kUntouched}), Pack(LogMask(Bytes{0x02}), Counted(2), 1));
}

TEST(LogItemTest, ExpandingEndsWithZerosWhereTheRecordIsShorter) {
    EXPECT_EQ((Bytes{1, 2, 0, 0}), Expand(LogMask::AllSet(), {1, 2}, 4));
    EXPECT_EQ((Bytes{1, 2, 0, 0}), Expand(LogMask(), {1, 2}, 4));
    EXPECT_EQ((Bytes{1, 0, 2, 0}), Expand(LogMask(Bytes{0xFD}), {1, 2}, 4));
}

TEST(LogItemTest, ExpandingTakesNoMoreThanTheReply) {
    EXPECT_EQ((Bytes{1, 2}), Expand(LogMask::AllSet(), Counted(5), 2));
    EXPECT_EQ(Bytes(), Expand(LogMask(Bytes{0x00}), Counted(5), 0));
}

TEST(LogItemTest, ExpandingCrossesTheEndOfTheMask) {
    EXPECT_EQ((Bytes{0, 1, 0, 2, 0, 3, 0, 4, 5, 6, 0}), Expand(LogMask(Bytes{0xAA}), Counted(6), 11));
}

}  // namespace
}  // namespace corvex::test
