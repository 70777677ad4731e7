#include <gtest/gtest.h>

#include <array>

#include "definition/FieldReader.h"
#include "definition/RawWord.h"

namespace corvex {
namespace {

constexpr std::array<std::uint8_t, 4> kFourBytes{0x12, 0x34, 0x56, 0x78};

TEST(RawWordTest, KeepsTheWordOfTheLastPacketThatHoldsTheWholeField) {
    const PacketView packet(kFourBytes.data(), kFourBytes.size());
    RawWord word;
    EXPECT_EQ(word.Take({0, 16, 0}, nullptr, 0, 0), 0U);
    EXPECT_EQ(word.Take({1, 16, 0}, packet, 0, 0), 0x3456U);
    EXPECT_EQ(word.Take({1, 16, 0}, nullptr, 0, 0), 0x3456U);
    EXPECT_EQ(word.Take({3, 16, 0}, packet, 0, 0), 0x3456U);
    EXPECT_EQ(word.Take({0xFFFFFFFF, 16, 0}, packet, 0, 0), 0x3456U);
    // A peek reads as a take does and keeps nothing.
    EXPECT_EQ(word.Peek({2, 16, 0}, packet, 0, 0), 0x5678U);
    EXPECT_EQ(word.Peek({2, 16, kFlagLowByteFirst}, packet, 1, kReadAtOffset), 0x5634U);
    EXPECT_EQ(word.Peek({3, 16, 0}, packet, 0, 0), 0x3456U);
    EXPECT_EQ(word.Take({0, 16, 0}, nullptr, 0, 0), 0x3456U);
}

TEST(RawWordTest, ReadsAndSwapsAsFlagAndOptionsSay) {
    RawWord word;
    EXPECT_EQ(word.Take({0, 8, 0}, kFourBytes.data(), 2, kReadAtOffset), 0x56U);
    EXPECT_EQ(word.Take({0, 8, 0}, kFourBytes.data(), 2, 0), 0x12U);
    EXPECT_EQ(word.Take({0, 16, kFlagLowByteFirst}, kFourBytes.data(), 0, 0), 0x3412U);
    EXPECT_EQ(word.Take({0, 16, 0}, kFourBytes.data(), 0, kReadNoSwap), 0x3412U);
}

}  // namespace
}  // namespace corvex
