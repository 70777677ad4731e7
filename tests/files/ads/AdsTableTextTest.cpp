#include <gtest/gtest.h>

#include "files/ads/AdsTableText.h"

namespace corvex {
namespace {

AdsSlots ReadTable(std::string_view text, std::uint32_t count = 256, bool whole = false) {
    AdsSlots slots;
    slots.count = count;
    ReadTableText(text, whole, slots);
    return slots;
}

TEST(AdsTableText, PutsTheNumberOfALineIntoItsSlotAndALineThroughEachGap) {
    const struct {
        const char *behaviour, *text;
        bool whole;
        std::initializer_list<std::pair<std::int64_t, float>> slots;
    } cases[] = {
        {"numbers", "0,1.5\n1,-2\n2,3e2\n", false, {{0, 1.5F}, {1, -2}, {2, 300}, {3, 0}}},
        {"a line through a gap", "2,10\n5,40\n", true, {{3, 20}, {4, 30}}},
        {"fractions of it in a table of whole numbers too", "0,0\n4,2\n", true, {{1, 0.5F}}},
        {"a gap before the first line starts at zero", "4,8\n", false, {{1, 2}}},
        {"backwards too", "6,60\n2,20\n", false, {{4, 40}, {6, 60}}},
        {"an index of zero starts anew", "4,8\n0,100\n", false, {{1, 2}, {0, 100}}},
        {"whole numbers end at their point", "0,7.9\n1,-7.9\n", true, {{0, 7}, {1, -7}}},
        {"others do not", "0,7.9\n", false, {{0, 7.9F}}},
        {"what stands behind the last line feed is dropped", "0,1\n1,2", false, {{0, 1}, {1, 0}}},
        {"a comma ends the index wherever it stands", "3\n9,4\n\n5,6,7\n", false, {{3, 4}, {5, 6}}},
    };
    for (const auto& one : cases) {
        const AdsSlots slots = ReadTable(one.text, 256, one.whole);
        for (const auto& [index, number] : one.slots)
            EXPECT_EQ(slots.At(index), number) << one.behaviour << ", slot " << index;
    }
}

TEST(AdsTableText, GivenAreTheSlotsOfLinesAndAllPastTheMask) {
    const struct {
        const char* text;
        std::uint32_t count;
        std::initializer_list<std::uint32_t> given, ungiven;
    } cases[] = {
        {"0,1.5\n1,-2\n2,3e2\n", 256, {0, 1, 2}, {3}},
        {"2,10\n5,40\n", 256, {2, 5}, {3, 4}},
        {"0,1\n1,2", 256, {0}, {1}},
        {"3\n9,4\n\n5,6,7\n", 256, {5}, {9, 7}},
        {"255,1\n299,2\n", 300, {255, 256, 299}, {254}},
    };
    for (const auto& one : cases) {
        const AdsSlots slots = ReadTable(one.text, one.count);
        for (const std::uint32_t index : one.given)
            EXPECT_TRUE(slots.IsGiven(index)) << one.text << index;
        for (const std::uint32_t index : one.ungiven)
            EXPECT_FALSE(slots.IsGiven(index)) << one.text << index;
    }
    EXPECT_EQ(ReadTable("255,1\n299,2\n", 300).At(299), 2.0F);
}

TEST(AdsTableText, DropsLinesWhoseIndexIsNoSlot) {
    const AdsSlots slots = ReadTable("-1,5\n256,6\n4294967295,7\n2147483648,8\n99999999999999999999,9\n2,10\n");
    EXPECT_EQ(slots.droppedLines, 5u);
    EXPECT_EQ(slots.numbers.size(), 3u);
    EXPECT_EQ(slots.At(2), 10.0F);
    EXPECT_EQ(slots.At(-1), 0.0F);
    EXPECT_EQ(slots.At(256), 0.0F);
}

TEST(AdsTableText, MemoryGrowsWithWhatIsFilled) {
    EXPECT_EQ(ReadTable("", 0xFFFFFFFF).numbers.capacity(), 0u);
    EXPECT_EQ(ReadTable("9,1\n", 0xFFFFFFFF).numbers.size(), 10u);
    EXPECT_EQ(ReadTable("0,1\n", 0).numbers.size(), 0u);
}

}  // namespace
}  // namespace corvex
