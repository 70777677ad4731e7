#include <gtest/gtest.h>

#include <limits>

#include "controls/chart/ChartTerms.h"

namespace corvex {
namespace {

TEST(SaturatedPixelTest, CutsTowardZero) {
    EXPECT_EQ(SaturatedPixel(2.999), 2);
    EXPECT_EQ(SaturatedPixel(-2.999), -2);
    EXPECT_EQ(SaturatedPixel(-0.5), 0);
}

TEST(SaturatedPixelTest, KeepsWithinItsEdges) {
    constexpr int kEdge = 1 << 26;
    EXPECT_EQ(SaturatedPixel(kEdge - 1.0), kEdge - 1);
    EXPECT_EQ(SaturatedPixel(kEdge + 1.0), kEdge);
    EXPECT_EQ(SaturatedPixel(-kEdge - 1.0), -kEdge);
    EXPECT_EQ(SaturatedPixel(std::numeric_limits<double>::infinity()), kEdge);
    EXPECT_EQ(SaturatedPixel(-std::numeric_limits<double>::infinity()), -kEdge);
    EXPECT_EQ(SaturatedPixel(std::numeric_limits<double>::quiet_NaN()), -kEdge);
}

}  // namespace
}  // namespace corvex
