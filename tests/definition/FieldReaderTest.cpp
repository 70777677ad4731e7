#include <gtest/gtest.h>

#include "definition/FieldReader.h"

namespace corvex {
namespace {

constexpr std::uint8_t kRisingBytes[8] = {0x12, 0x34, 0x56, 0x78, 0x9A, 0xBC, 0xDE, 0xF0};

TEST(FieldReader, SwapsFieldsOfTwoAndFourBytes) {
    EXPECT_EQ(ReadField(kRisingBytes, 8, false), 0x12u);
    EXPECT_EQ(ReadField(kRisingBytes, 16, false), 0x1234u);
    EXPECT_EQ(ReadField(kRisingBytes, 32, false), 0x12345678u);
}

TEST(FieldReader, TakesLowByteFirstFieldsAsTheyStand) {
    EXPECT_EQ(ReadField(kRisingBytes, 8, true), 0x12u);
    EXPECT_EQ(ReadField(kRisingBytes, 16, true), 0x3412u);
    EXPECT_EQ(ReadField(kRisingBytes, 32, true), 0x78563412u);
}

TEST(FieldReader, NeverSwapsThreeBytes) {
    EXPECT_EQ(ReadField(kRisingBytes, 24, false), 0x563412u);
    EXPECT_EQ(ReadField(kRisingBytes, 24, true), 0x563412u);
}

TEST(FieldReader, ReadsWholeBytesOnly) {
    EXPECT_EQ(ReadField(kRisingBytes, 7, false), 0u);
    EXPECT_EQ(ReadField(kRisingBytes, 12, false), 0x12u);
    EXPECT_EQ(ReadField(kRisingBytes, 20, false), 0x1234u);
}

TEST(FieldReader, NeverWritesPastItsWord) {
    EXPECT_EQ(ReadField(kRisingBytes, 64, false), 0x9ABCDEF0u);
    EXPECT_EQ(ReadField(kRisingBytes, 64, true), 0x78563412u);
    EXPECT_EQ(ReadField(kRisingBytes, 40, false), 0x78563412u);
    EXPECT_EQ(ReadField(kRisingBytes, 0xFFFFFFFF, false), 0x78563412u);
}

}  // namespace
}  // namespace corvex
