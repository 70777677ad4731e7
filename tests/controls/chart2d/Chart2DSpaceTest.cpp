#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "controls/chart2d/Chart2DSpace.h"

namespace corvex {
namespace {

constexpr float kEndless2D = std::numeric_limits<float>::infinity(), kNothing = std::numeric_limits<float>::quiet_NaN();
constexpr int kEdge = 67108864;

TEST(Chart2DSpaceTest, ValuesStandBetweenTheMargins) {
    const struct {
        ChartRange range;
        int client;
        float value;
        int pixel;
    } cases[] = {
        {{-255, 255}, 500, -255, 70},
        {{-255, 255}, 500, 0, 250},
        {{-255, 255}, 500, 255, 430},
        {{-255, 255}, 500, 510, 610},
        {{-255, 255}, 500, -300, 38},
        {{0, 3}, 147, 1, 72},
        {{0, 3}, 147, 2, 74},
        {{0, 100}, 170, -69, 49},
        {{0, 100}, 170, -2.5F, 69},
        {{0, 100}, 170, -71, 48},
        {{0, 10}, 150, -70.5F, 0},
        {{0, 10}, 150, -71.0F, -1},
        {{5, 5}, 500, 5, 70},
        {{5, 5}, 500, 900, 70},
        {{5, 5}, 500, kEndless2D, -kEdge},
        {{0, kEndless2D}, 500, 7, 70},
        {{-kEndless2D, 0}, 500, 7, -kEdge},
        {{-3e38F, 3e38F}, 500, 0, 250},
        {{-3e38F, 3e38F}, 500, 3e38F, 430},
        {{0, 1}, 500, 3e38F, kEdge},
        {{0, 1}, 500, -3e38F, -kEdge},
        {{0, 1}, 500, kNothing, -kEdge},
        {{kNothing, 1}, 500, 0.5F, -kEdge},
        {{0, kNothing}, 500, 0.5F, -kEdge},
        {{0, 1e-45F}, 500, 1, kEdge},
        {{0, 10}, 140, 5, 70},
        {{0, 10}, 0, 10, -70},
        {{0, 10}, 4000, 10, 3930},
    };
    for (const auto& one : cases)
        EXPECT_EQ(Chart2DScale(one.range, one.client).ToPixel(one.value), one.pixel)
            << one.range.minimum << " to " << one.range.maximum << ", " << one.value << " on " << one.client;
}

TEST(Chart2DSpaceTest, IsThePlainFormulaForAnyNumbers) {
    std::mt19937 random(5);
    std::uniform_real_distribution<float> any(-500.0F, 500.0F);
    for (int i = 0; i < 20000; ++i) {
        const ChartRange range{any(random), any(random)};
        const int client = static_cast<int>(random() % 2000);
        const float value = any(random);
        const long double span = std::abs(static_cast<long double>(range.maximum) - range.minimum);
        const long double place = 70 + (static_cast<long double>(value) - range.minimum) * ((client - 140) / span);
        const int pixel = Chart2DScale(range, client).ToPixel(value);
        EXPECT_TRUE(pixel == static_cast<int>(place - 1e-6L) || pixel == static_cast<int>(place + 1e-6L)) << place;
    }
}

TEST(Chart2DSpaceTest, AnAxisRunsThroughTheOriginOrHasNoLine) {
    const struct {
        ChartRange x, y;
        bool hasX, hasY;
        int levelOfX, levelOfY;
    } cases[] = {
        {{-255, 255}, {-100, 300}, true, true, 170, 220}, {{0, 10}, {-10, 0}, true, true, 470, 70},
        {{1, 10}, {-10, -1}, false, false, 70, 70},       {{-10, -1}, {0, 0}, true, false, 70, 70},
        {{kNothing, 1}, {-1, 1}, true, false, 270, 70},   {{-1, 1}, {-1, kNothing}, false, true, 70, 220},
    };
    for (const auto& one : cases) {
        const Chart2DSpace space({one.x, one.y}, 440, 540);
        EXPECT_EQ(space.HasAxis(kChart2DX), one.hasX) << one.y.minimum;
        EXPECT_EQ(space.HasAxis(kChart2DY), one.hasY) << one.x.minimum;
        EXPECT_EQ(space.LevelOf(kChart2DX), one.levelOfX);
        EXPECT_EQ(space.LevelOf(kChart2DY), one.levelOfY);
    }
    EXPECT_TRUE(Chart2DSpace({}, 141, 141).HasPlot());
    EXPECT_FALSE(Chart2DSpace({}, 140, 900).HasPlot());
    EXPECT_FALSE(Chart2DSpace({}, 900, 0).HasPlot());
}

}  // namespace
}  // namespace corvex
