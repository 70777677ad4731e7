#include <gtest/gtest.h>

#include "definition/FieldReader.h"

namespace corvex {
namespace {

constexpr std::uint8_t kRisingBytes[8] = {0x12, 0x34, 0x56, 0x78, 0x9A, 0xBC, 0xDE, 0xF0};

TEST(FieldReader, SwapsTwoAndFourBytesUnlessTheLowOneIsFirst) {
    const struct {
        std::uint32_t bits, word, lowByteFirst;
    } cases[] = {
        {8, 0x12, 0x12},
        {16, 0x1234, 0x3412},
        {32, 0x12345678, 0x78563412},
        {24, 0x563412, 0x563412},  // three bytes are never swapped
        {7, 0, 0},                 // whole bytes only
        {12, 0x12, 0x12},
        {20, 0x1234, 0x3412},
        {64, 0x9ABCDEF0, 0x78563412},  // nothing is written past the word
        {40, 0x78563412, 0x78563412},
        {0xFFFFFFFF, 0x78563412, 0x78563412},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(ReadField(kRisingBytes, one.bits, false), one.word) << one.bits;
        EXPECT_EQ(ReadField(kRisingBytes, one.bits, true), one.lowByteFirst) << one.bits;
    }
}

}  // namespace
}  // namespace corvex
