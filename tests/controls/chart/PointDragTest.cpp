#include <gtest/gtest.h>

#include <limits>

#include "controls/chart/PointDrag.h"

namespace corvex {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();

TEST(PointDragTest, PixelsAreSoMuchOfTheSpanAsTheyAreOfTheLength) {
    EXPECT_EQ(ShiftOf(-10, 400.0F, 200.0F), -20.0F);
    EXPECT_EQ(ShiftOf(10, 0.0F, 200.0F), 0.0F);
    for (const float odd : {0.0F, kInfinity, -kInfinity, kInfinity * 0.0F, 1e-40F}) {
        EXPECT_EQ(ShiftOf(10, 3e38F, odd), 0.0F) << odd;
        EXPECT_EQ(ShiftOf(0, odd, 1.0F), 0.0F) << odd;
    }
}

TEST(PointDragTest, AShiftEndsAtTheLimit) {
    const ChartRange limits{0.0F, 255.0F};
    for (const auto& [value, shift, within] : {std::array{100.0F, 50.0F, 50.0F},
                                               {100.0F, 155.0F, 155.0F},
                                               {100.0F, 156.0F, 155.0F},
                                               {100.0F, -100.0F, -100.0F},
                                               {100.0F, -101.0F, -100.0F},
                                               {300.0F, 1.0F, -45.0F},
                                               {-5.0F, -1.0F, 5.0F},
                                               {kInfinity, 7.0F, 7.0F},
                                               {-kInfinity, 7.0F, 7.0F},
                                               {kInfinity * 0.0F, 7.0F, 7.0F}})
        EXPECT_EQ(ShiftWithin(value, shift, limits), within) << value << " by " << shift;
}

}  // namespace
}  // namespace corvex
