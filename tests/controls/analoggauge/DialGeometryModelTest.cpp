#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include "controls/analoggauge/DialGeometryModel.h"
#include "tests/controls/analoggauge/DialReference.h"

namespace corvex {
namespace {

constexpr DialScale kDefault{0.0f, 150.0f, 40.0f, 300.0f};
constexpr DialPoint kCentre{90, 90};
constexpr float kNan = std::numeric_limits<float>::quiet_NaN(), kInfinity = std::numeric_limits<float>::infinity();
constexpr float kLargestFloat = std::numeric_limits<float>::max();

template <class Point>
std::pair<int, int> Xy(const Point& point) {
    return {point.x, point.y};
}

TEST(DialGeometryModelTest, ScaleRunsClockwiseFromTheLowerLeftToTheLowerRight) {
    EXPECT_EQ(DialAngle(kDefault, 0.0f), -230.0f);
    EXPECT_EQ(DialAngle(kDefault, 75.0f), -100.0f);
    EXPECT_EQ(DialAngle(kDefault, 150.0f), 30.0f);
    EXPECT_EQ(DialAngle({-40.0f, 60.0f, 0.0f, 360.0f}, -40.0f), -270.0f);
    EXPECT_EQ(DialAngle({-40.0f, 60.0f, 0.0f, 360.0f}, 10.0f), -90.0f);
    EXPECT_EQ(DialAngle({150.0f, 0.0f, 40.0f, 300.0f}, 0.0f), 30.0f);
    EXPECT_EQ(DialAngle(kDefault, 300.0f), 290.0f) << "and on beyond its range";
    EXPECT_EQ(DialAngle(kDefault, -150.0f), -490.0f);
}

TEST(DialGeometryModelTest, AngleIsHeldAsAFloat) {
    for (int i = 0; i <= 1000; ++i) {
        const float value = 0.37f * static_cast<float>(i) - 50.0f;
        const ReferenceScale scale{0.0, 150.0, 40.0, 300.0};
        EXPECT_EQ(static_cast<double>(DialAngle(kDefault, value)), ReferenceAngle(scale, static_cast<double>(value)));
    }
}

TEST(DialGeometryModelTest, RangeWithoutLengthGivesNoNumber) {
    EXPECT_TRUE(std::isnan(DialAngle({5.0f, 5.0f, 40.0f, 300.0f}, 5.0f)));
    EXPECT_EQ(DialAngle({5.0f, 5.0f, 40.0f, 300.0f}, 6.0f), kInfinity);
    EXPECT_EQ(DialAngle({5.0f, 5.0f, 40.0f, 300.0f}, 4.0f), -kInfinity);
    EXPECT_TRUE(std::isnan(DialAngle(kDefault, kNan)));
    EXPECT_EQ(DialAngle({0.0f, 1.0f, 0.0f, kLargestFloat}, kLargestFloat), kInfinity);
    EXPECT_EQ(DialAngle({0.0f, 1.0f, 0.0f, -kLargestFloat}, kLargestFloat), -kInfinity);
}

// At radius 87: 87 * sin and cos of 0, 30, 50 degrees are 0; 43.50, 75.34; 66.65, 55.92. A half
// goes outward, as the number of the circle is a little too long.
TEST(DialGeometryModelTest, PlainPointsAreCutAndRadialOnesRounded) {
    const struct {
        double angle;
        int plainX, plainY, roundedX, roundedY;
    } cases[] = {{0.0, 177, 90, 177, 90},    {-90.0, 90, 3, 90, 3},      {90.0, 90, 177, 90, 177},
                 {-230.0, 35, 156, 34, 157}, {-130.0, 35, 24, 34, 23},   {50.0, 145, 156, 146, 157},
                 {-150.0, 15, 47, 15, 47},   {30.0, 165, 133, 165, 134}, {-30.0, 165, 47, 165, 46},
                 {-180.0, 3, 90, 3, 90}};
    for (const auto& c : cases) {
        EXPECT_EQ(Xy(PlainPoint(kCentre, 87, c.angle)), std::pair(c.plainX, c.plainY)) << c.angle;
        EXPECT_EQ(Xy(RadialLine(kCentre, 87, 0, c.angle).from), std::pair(c.roundedX, c.roundedY)) << c.angle;
    }
}

TEST(DialGeometryModelTest, EveryDegreeAgreesWithTheReference) {
    for (int degree = -720; degree <= 720; ++degree) {
        const double angle = degree + 0.25;
        for (const int radius : {2, 75, 76, 179})
            EXPECT_EQ(Xy(PlainPoint(kCentre, radius, angle)), Xy(ReferencePoint(radius, angle))) << angle;
        const DialLine line = RadialLine(kCentre, 87, 79, angle);
        EXPECT_EQ(Xy(line.from), Xy(ReferenceRoundedPoint(87, angle))) << angle;
        EXPECT_EQ(Xy(line.to), Xy(ReferenceRoundedPoint(79, angle))) << angle;
    }
}

// Fifty turns leave 4.1e-8 of a radian.
TEST(DialGeometryModelTest, TurnsByTheRoundedNumberOfTheCircle) {
    EXPECT_EQ(PlainPoint({0, 0}, 2000000000, -18000.0).y, -82);
}

TEST(DialGeometryModelTest, WhatHasNoPlaceLiesFarOutsideOfTheDial) {
    for (const float angle : {kNan, kInfinity, -kInfinity}) {
        const DialPoint plain = PlainPoint(kCentre, 76, static_cast<double>(angle));
        EXPECT_LT(plain.x, -5000);
        EXPECT_LT(plain.y, -5000);
        EXPECT_GT(plain.x, -30000);
        const DialLine line = RadialLine(kCentre, 87, 79, static_cast<double>(angle));
        for (const int coordinate : {line.from.x, line.from.y, line.to.x, line.to.y}) {
            EXPECT_LT(coordinate, -5000);
            EXPECT_GT(coordinate, -30000);
        }
    }
    const DialPoint huge = PlainPoint(kCentre, 76, static_cast<double>(kLargestFloat));
    EXPECT_GE(huge.x, 90 - 76);
    EXPECT_LE(huge.x, 90 + 76);
}

// The number of the circle is a little too long, so that half a turn ends just beyond the horizon.
TEST(DialGeometryModelTest, LabelsLeanInwardAndCentreNearTheVertical) {
    const std::pair<double, unsigned> cases[] = {
        {-20, 2},   {-69.9, 2}, {-70.1, 6}, {-90, 6}, {-109.9, 6}, {-110.1, 0}, {-135, 0}, {-179.9, 0},
        {20, 26},   {69.9, 26}, {70.1, 30}, {90, 30}, {109.9, 30}, {110.1, 24}, {135, 24}, {179.9, 24},
        {-230, 24}, {30, 26},   {-270, 30}, {0, 2},   {-180, 24},  {180, 0}};
    for (const auto& [angle, alignment] : cases)
        EXPECT_EQ(LabelAlignment(angle), alignment) << angle;
    for (int degree = -720; degree <= 720; ++degree)
        EXPECT_EQ(LabelAlignment(degree + 0.5), ReferenceAlignment(degree + 0.5)) << degree;
    EXPECT_EQ(LabelAlignment(static_cast<double>(kNan)), 0u);
    EXPECT_EQ(LabelAlignment(static_cast<double>(kInfinity)), 0u);
}

TEST(DialGeometryModelTest, EachMajorTickIsFollowedByTheMinorOnesBeforeItFromEndToEnd) {
    const struct {
        DialScale scale;
        unsigned majors, parts;
        std::vector<float> values;
    } cases[] = {{kDefault, 3, 5, {0, 75, 15, 30, 45, 60, 150, 90, 105, 120, 135}},
                 {{-1.5f, 6.0f, 0.0f, 90.0f}, 4, 2, {-1.5f, 1.0f, -0.25f, 3.5f, 2.25f, 6.0f, 4.75f}},
                 {{10.0f, 0.0f, 0.0f, 90.0f}, 2, 1, {10, 0}},
                 {{-kLargestFloat, kLargestFloat, 0.0f, 90.0f}, 3, 1, {-kLargestFloat, 0, kLargestFloat}},
                 {kDefault, 0, 5, {}}};
    for (const auto& expected : cases) {
        std::vector<float> values;
        for (const auto& tick : DialTicks(expected.scale, expected.majors, expected.parts)) {
            EXPECT_EQ(tick.major, values.empty() || (values.size() - 1) % expected.parts == 0);
            values.push_back(tick.value);
        }
        EXPECT_EQ(values, expected.values);
    }
}

TEST(DialGeometryModelTest, SingleMajorTickHasNoValue) {
    const auto ticks = DialTicks(kDefault, 1, 5);
    ASSERT_EQ(ticks.size(), 1u);
    EXPECT_TRUE(std::isnan(ticks[0].value));
    EXPECT_EQ(DialTicks(kDefault, 2, 0).size(), 2u);
}

}  // namespace
}  // namespace corvex
