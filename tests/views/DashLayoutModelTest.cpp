#include <gtest/gtest.h>

#include "views/DashLayoutModel.h"

namespace corvex {
namespace {

ADXDGENTRY Entry(std::uint16_t left, std::uint16_t top, std::uint16_t right, std::uint16_t bottom) {
    ADXDGENTRY entry;
    entry.left = left;
    entry.top = top;
    entry.right = right;
    entry.bottom = bottom;
    return entry;
}

void ExpectPlace(const PixelArea& expected, const PixelArea& place) {
    EXPECT_EQ(expected.left, place.left);
    EXPECT_EQ(expected.top, place.top);
    EXPECT_EQ(expected.right, place.right);
    EXPECT_EQ(expected.bottom, place.bottom);
}

TEST(DashLayoutModelTest, ANewEntryFillsTheArea) {
    const PixelArea area{0, 27, 641, 388};
    ExpectPlace(area, GaugePlace(ADXDGENTRY(), area));
    ExpectPlace(area, GaugePlace(Entry(0, 0, 100, 100), area));
}

TEST(DashLayoutModelTest, PercentagesAreOfTheAreaAndCountFromItsCorner) {
    ExpectPlace({10 + 100, 30 + 20, 10 + 200, 30 + 180}, GaugePlace(Entry(25, 10, 50, 90), {10, 30, 410, 230}));
}

TEST(DashLayoutModelTest, PartsOfPixelsAreCutBeforeTheStartIsAdded) {
    // 33 % of 101 is 33.33, 67 % of 77 is 51.59.
    ExpectPlace({5 + 33, 7 + 51, 5 + 67, 7 + 76}, GaugePlace(Entry(33, 67, 67, 99), {5, 7, 106, 84}));
}

TEST(DashLayoutModelTest, AnAreaTurnedInsideOutIsCutTowardZero) {
    // 50 % of -7 is -3.5.
    ExpectPlace({0, 27, 50, 27 - 3}, GaugePlace(Entry(0, 0, 50, 50), {0, 27, 100, 20}));
}

TEST(DashLayoutModelTest, NeighboursMeet) {
    const PixelArea area{0, 24, 997, 613};
    for (std::uint16_t edge = 0; edge <= 100; ++edge) {
        const PixelArea before = GaugePlace(Entry(0, 0, edge, edge), area);
        const PixelArea after = GaugePlace(Entry(edge, edge, 100, 100), area);
        EXPECT_EQ(before.right, after.left);
        EXPECT_EQ(before.bottom, after.top);
    }
}

TEST(DashLayoutModelTest, TheGreatestPercentagesOverflowNothing) {
    const PixelArea area{0, 0, 32767, 0x40000000};
    const PixelArea place = GaugePlace(Entry(0, 0, 65535, 65535), area);
    EXPECT_EQ(21473853, place.right);
    EXPECT_EQ(INT32_MAX, place.bottom);
}

}  // namespace
}  // namespace corvex
