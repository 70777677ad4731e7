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

TEST(AdsTableText, PutsTheNumberOfALineIntoItsSlot) {
    const AdsSlots slots = ReadTable("0,1.5\n1,-2\n2,3e2\n");
    EXPECT_EQ(slots.At(0), 1.5F);
    EXPECT_EQ(slots.At(1), -2.0F);
    EXPECT_EQ(slots.At(2), 300.0F);
    EXPECT_EQ(slots.At(3), 0.0F);
    EXPECT_TRUE(slots.IsGiven(2));
    EXPECT_FALSE(slots.IsGiven(3));
}

TEST(AdsTableText, DrawsALineThroughAGapAndLeavesItUngiven) {
    const AdsSlots slots = ReadTable("2,10\n5,40\n", 256, true);
    EXPECT_EQ(slots.At(3), 20.0F);
    EXPECT_EQ(slots.At(4), 30.0F);
    EXPECT_FALSE(slots.IsGiven(3));
    EXPECT_FALSE(slots.IsGiven(4));
    EXPECT_TRUE(slots.IsGiven(5));
}

TEST(AdsTableText, TheLineThroughAGapHasFractionsInATableOfWholeNumbersToo) {
    EXPECT_EQ(ReadTable("0,0\n4,2\n", 256, true).At(1), 0.5F);
}

TEST(AdsTableText, AGapBeforeTheFirstLineStartsAtZero) {
    EXPECT_EQ(ReadTable("4,8\n").At(1), 2.0F);
}

TEST(AdsTableText, DrawsALineBackwardsToo) {
    const AdsSlots slots = ReadTable("6,60\n2,20\n");
    EXPECT_EQ(slots.At(4), 40.0F);
    EXPECT_EQ(slots.At(6), 60.0F);
}

TEST(AdsTableText, AnIndexOfZeroStartsAnew) {
    const AdsSlots slots = ReadTable("4,8\n0,100\n");
    EXPECT_EQ(slots.At(1), 2.0F);
    EXPECT_EQ(slots.At(0), 100.0F);
}

TEST(AdsTableText, WholeNumbersEndAtTheirPoint) {
    EXPECT_EQ(ReadTable("0,7.9\n", 256, true).At(0), 7.0F);
    EXPECT_EQ(ReadTable("0,-7.9\n", 256, true).At(0), -7.0F);
    EXPECT_EQ(ReadTable("0,7.9\n", 256, false).At(0), 7.9F);
}

TEST(AdsTableText, DropsWhatStandsBehindTheLastLineFeed) {
    const AdsSlots slots = ReadTable("0,1\n1,2");
    EXPECT_FALSE(slots.IsGiven(1));
    EXPECT_EQ(slots.At(1), 0.0F);
}

TEST(AdsTableText, ACommaEndsTheIndexWhereverItStands) {
    const AdsSlots slots = ReadTable("3\n9,4\n\n5,6,7\n");
    EXPECT_EQ(slots.At(3), 4.0F);
    EXPECT_FALSE(slots.IsGiven(9));
    EXPECT_EQ(slots.At(5), 6.0F);
    EXPECT_FALSE(slots.IsGiven(7));
}

TEST(AdsTableText, DropsLinesWhoseIndexIsNoSlot) {
    const AdsSlots slots = ReadTable("-1,5\n256,6\n4294967295,7\n2147483648,8\n99999999999999999999,9\n2,10\n");
    EXPECT_EQ(slots.droppedLines, 5u);
    EXPECT_EQ(slots.numbers.size(), 3u);
    EXPECT_EQ(slots.At(2), 10.0F);
    EXPECT_EQ(slots.At(-1), 0.0F);
    EXPECT_EQ(slots.At(256), 0.0F);
}

TEST(AdsTableText, SlotsPastTheMaskCountAsGiven) {
    const AdsSlots slots = ReadTable("255,1\n299,2\n", 300);
    EXPECT_FALSE(slots.IsGiven(254));
    EXPECT_TRUE(slots.IsGiven(255));
    EXPECT_TRUE(slots.IsGiven(256));
    EXPECT_TRUE(slots.IsGiven(299));
    EXPECT_EQ(slots.At(299), 2.0F);
}

TEST(AdsTableText, MemoryGrowsWithWhatIsFilled) {
    EXPECT_EQ(ReadTable("", 0xFFFFFFFF).numbers.capacity(), 0u);
    EXPECT_EQ(ReadTable("9,1\n", 0xFFFFFFFF).numbers.size(), 10u);
    EXPECT_EQ(ReadTable("0,1\n", 0).numbers.size(), 0u);
}

}  // namespace
}  // namespace corvex
