#include <gtest/gtest.h>

#include <limits>

#include "files/ads/AdsRawText.h"

namespace corvex {
namespace {

ALDLValue Value(std::uint32_t operation, double factor = 1.0, double offset = 0.0) {
    ALDLValue value{ALDLItem{}};
    value.dwOperation = operation;
    value.dFactor = factor;
    value.dOffset = offset;
    return value;
}

TEST(AdsRawText, Operation0IsLinearWithTwoDecimals) {
    EXPECT_EQ(RawText(Value(0, 0.75, -40.0), 100), "35.00");
    EXPECT_EQ(RawText(Value(0, 1.0 / 3, 0.0), 10), "3.33");
    EXPECT_EQ(RawText(Value(0, 1.0, 0.0), 0xFFFFFFFF), "4294967295.00");
    EXPECT_EQ(RawText(Value(0, 1.0, 0.0), -40), "-40.00");
    EXPECT_EQ(RawLimit(Value(0, 1.0 / 3, 0.0), 10), 3.33F);
}

TEST(AdsRawText, Operation1DividesByTheRawNumberUnlessItIsZero) {
    EXPECT_EQ(RawText(Value(1, 1200.0, 0.5), 10), "120.50");
    EXPECT_EQ(RawText(Value(1, 1200.0, 0.5), 0), "0.50");
}

TEST(AdsRawText, Operation2HasTwoDigitsForEachByte) {
    ALDLValue value = Value(2);
    EXPECT_EQ(RawText(value, 0x0A), "0A");
    EXPECT_EQ(RawText(value, 0x1AB), "1AB");
    value.dwItemSizeBits = 16;
    EXPECT_EQ(RawText(value, 0x0A), "000A");
    value.dwItemSizeBits = 32;
    EXPECT_EQ(RawText(value, -1), "FFFFFFFF");
    value.dwItemSizeBits = 1;
    EXPECT_EQ(RawText(value, 0), "");
    EXPECT_EQ(RawText(value, 1), "1");
}

TEST(AdsRawText, HexadecimalTextComesBackAsADecimalNumber) {
    EXPECT_EQ(RawLimit(Value(2), 255), 0.0F);
    EXPECT_EQ(RawLimit(Value(2), 0x10), 10.0F);
    EXPECT_EQ(RawLimit(Value(2), 0x1F), 1.0F);
    ALDLValue wide = Value(2);
    wide.dwItemSizeBits = 16;
    // "01E3" is one thousand to whoever reads it as a decimal number.
    EXPECT_EQ(RawLimit(wide, 0x1E3), 1000.0F);
}

TEST(AdsRawText, Operation3IsCutToAWholeNumber) {
    EXPECT_EQ(RawText(Value(3, 2.5, 0.0), 3), "7");
    EXPECT_EQ(RawText(Value(3, -2.5, 0.0), 3), "-7");
    EXPECT_EQ(RawText(Value(3, 1e300, 0.0), 3), "-2147483648");
}

TEST(AdsRawText, Operation4IsThePartOfTheRangeInDoubles) {
    ALDLValue value = Value(4);
    value.iRangeLow = 0;
    value.iRangeHigh = 200;
    EXPECT_EQ(RawText(value, 1), "0.50");
    EXPECT_EQ(RawText(value, 50), "25.00");
    value.iRangeHigh = std::numeric_limits<std::int32_t>::max();
    value.iRangeLow = std::numeric_limits<std::int32_t>::min();
    EXPECT_EQ(RawText(value, value.iRangeLow), "0.00");
}

TEST(AdsRawText, AnEmptyRangeGivesZero) {
    ALDLValue value = Value(4);
    value.iRangeLow = value.iRangeHigh = 7;
    EXPECT_EQ(RawLimit(value, 7), 0.0F);
    EXPECT_EQ(RawLimit(value, 8), 0.0F);
}

TEST(AdsRawText, Operation5IsACharacter) {
    EXPECT_EQ(RawText(Value(5), 'A'), "A");
    EXPECT_EQ(RawText(Value(5), 0), "?");
    EXPECT_EQ(RawText(Value(5), 0x139), "9");
    EXPECT_EQ(RawLimit(Value(5), '7'), 7.0F);
    EXPECT_EQ(RawLimit(Value(5), 'A'), 0.0F);
    EXPECT_EQ(RawLimit(Value(5), 0), 0.0F);
}

TEST(AdsRawText, Operation6GoesThroughTheTable) {
    ALDLValue value = Value(6);
    EXPECT_EQ(RawLimit(value, 2), 0.0F);
    ALDLLookupTable table{ALDLItem{}};
    table.slots.count = 256;
    ReadTableText("0,10\n4,30\n", false, table.slots);
    value.table = &table;
    EXPECT_EQ(RawText(value, 2), "20.00");
    EXPECT_EQ(RawText(value, 255), "0.00");
    EXPECT_EQ(RawText(value, -1), "0.00");
    EXPECT_EQ(RawText(value, 0xFFFFFFFF), "0.00");
}

TEST(AdsRawText, AnOperationThatThereIsNotGivesNothing) {
    EXPECT_EQ(RawText(Value(7), 3), "");
    EXPECT_EQ(RawLimit(Value(0xFFFFFFFF), 3), 0.0F);
}

TEST(AdsRawText, AFieldOfAnOddWidthCountsAsZero) {
    for (const std::uint32_t bits : {1u, 8u, 16u, 24u, 32u}) {
        ALDLValue value = Value(0);
        value.dwItemSizeBits = bits;
        EXPECT_EQ(RawText(value, 5), "5.00") << bits;
    }
    for (const std::uint32_t bits : {0u, 2u, 4u, 12u, 40u, 0x80000000u, 0xFFFFFFFFu}) {
        ALDLValue value = Value(0, 1.0, 3.0);
        value.dwItemSizeBits = bits;
        EXPECT_EQ(RawText(value, 5), "3.00") << bits;
        value.dwOperation = 2;
        EXPECT_EQ(RawLimit(value, 5), 0.0F) << bits;
        EXPECT_LE(RawText(value, 5).size(), 8u);
    }
}

}  // namespace
}  // namespace corvex
