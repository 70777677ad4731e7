#include <gtest/gtest.h>

#include <limits>

#include "files/ads/AdsRawText.h"

namespace corvex {
namespace {

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();

struct RawCase {
    const char* behaviour;
    std::uint32_t operation;
    std::int64_t raw;
    std::string text;
    float limit;
    double factor = 1.0, offset = 0.0;
    std::uint32_t bits = 8;
    std::int32_t rangelow = 0, rangehigh = 255;
};

const RawCase kRaws[] = {
    {"operation 0 is linear with two decimals", 0, 100, "35.00", 35.0F, 0.75, -40.0},
    {"", 0, 10, "3.33", 3.33F, 1.0 / 3},
    {"", 0, 0xFFFFFFFF, "4294967295.00", 4294967295.0F},
    {"", 0, -40, "-40.00", -40.0F},
    {"operation 1 divides by the raw number unless it is zero", 1, 10, "120.50", 120.5F, 1200.0, 0.5},
    {"", 1, 0, "0.50", 0.5F, 1200.0, 0.5},
    // Its text comes back as a decimal number; "01E3" is one thousand to whoever reads it so.
    {"operation 2 has two digits for each byte", 2, 0x0A, "0A", 0.0F},
    {"", 2, 0x10, "10", 10.0F},
    {"", 2, 0x1F, "1F", 1.0F},
    {"", 2, 255, "FF", 0.0F},
    {"", 2, 0x1AB, "1AB", 1.0F},
    {"", 2, 0x0A, "000A", 0.0F, 1.0, 0.0, 16},
    {"", 2, 0x1E3, "01E3", 1000.0F, 1.0, 0.0, 16},
    {"", 2, -1, "FFFFFFFF", 0.0F, 1.0, 0.0, 32},
    {"", 2, 0, "", 0.0F, 1.0, 0.0, 1},
    {"", 2, 1, "1", 1.0F, 1.0, 0.0, 1},
    {"operation 3 is cut to a whole number", 3, 3, "7", 7.0F, 2.5},
    {"", 3, 3, "-7", -7.0F, -2.5},
    {"", 3, 3, "-2147483648", -2147483648.0F, 1e300},
    {"operation 4 is the part of the range in doubles", 4, 1, "0.50", 0.5F, 1.0, 0.0, 8, 0, 200},
    {"", 4, 50, "25.00", 25.0F, 1.0, 0.0, 8, 0, 200},
    {"", 4, kLowest, "0.00", 0.0F, 1.0, 0.0, 8, kLowest, std::numeric_limits<std::int32_t>::max()},
    {"operation 5 is a character", 5, 'A', "A", 0.0F},
    {"", 5, 0, "?", 0.0F},
    {"", 5, 0x139, "9", 9.0F},
    {"operation 6 without a table is zero", 6, 2, "0.00", 0.0F},
    {"an operation that there is not gives nothing", 7, 3, "", 0.0F},
    {"", 0xFFFFFFFF, 3, "", 0.0F},
};

TEST(AdsRawText, FollowsTheOperation) {
    for (const RawCase& one : kRaws) {
        SCOPED_TRACE(testing::Message() << one.behaviour << ": " << one.operation << " of " << one.raw);
        ALDLValue value{ALDLItem{}};
        value.dwOperation = one.operation;
        value.dFactor = one.factor;
        value.dOffset = one.offset;
        value.dwItemSizeBits = one.bits;
        value.iRangeLow = one.rangelow;
        value.iRangeHigh = one.rangehigh;
        EXPECT_EQ(RawText(value, one.raw), one.text);
        EXPECT_EQ(RawLimit(value, one.raw), one.limit);
    }
}

TEST(AdsRawText, AnEmptyRangeGivesZero) {
    ALDLValue value{ALDLItem{}};
    value.dwOperation = 4;
    value.iRangeLow = value.iRangeHigh = 7;
    EXPECT_EQ(RawLimit(value, 7), 0.0F);
    EXPECT_EQ(RawLimit(value, 8), 0.0F);
}

TEST(AdsRawText, Operation6GoesThroughTheTable) {
    ALDLValue value{ALDLItem{}};
    value.dwOperation = 6;
    ALDLLookupTable table{ALDLItem{}};
    table.slots.count = 256;
    ReadTableText("0,10\n4,30\n", false, table.slots);
    value.table = &table;
    EXPECT_EQ(RawText(value, 2), "20.00");
    for (const std::int64_t outside : {255LL, -1LL, 0xFFFFFFFFLL})
        EXPECT_EQ(RawText(value, outside), "0.00");
}

TEST(AdsRawText, AFieldOfAnOddWidthCountsAsZero) {
    ALDLValue value{ALDLItem{}};
    value.dFactor = 1.0;
    value.dOffset = 3.0;
    for (const std::uint32_t bits : {1u, 8u, 16u, 24u, 32u}) {
        value.dwItemSizeBits = bits;
        EXPECT_EQ(RawText(value, 5), "8.00") << bits;
    }
    for (const std::uint32_t bits : {0u, 2u, 4u, 12u, 40u, 0x80000000u, 0xFFFFFFFFu}) {
        value.dwItemSizeBits = bits;
        value.dwOperation = 0;
        EXPECT_EQ(RawText(value, 5), "3.00") << bits;
        value.dwOperation = 2;
        EXPECT_EQ(RawLimit(value, 5), 0.0F) << bits;
        EXPECT_LE(RawText(value, 5).size(), 8u);
    }
}

}  // namespace
}  // namespace corvex
