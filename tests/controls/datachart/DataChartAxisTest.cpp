#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <tuple>

#include "controls/datachart/DataChartAxis.h"
#include "controls/datachart/DataChartModel.h"

namespace corvex {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity(), kNan = std::numeric_limits<float>::quiet_NaN();

class DataChartAxisTest : public ::testing::Test {
protected:
    // On a plot of 350 by 200 pixels: ten intervals on either side.
    DataChartAxisTest() { axis.plot = {10, 20, 360, 220}; }

    std::vector<float> TicksOf(float min, float max, AxisPosition position = AxisPosition::kLeft) {
        axis.setPosition(position);
        axis.setRange(min, max);
        axis.CalculateTicks();
        return axis.Ticks();
    }
    DataChartModel chart;
    DataChartAxis& axis = *chart.AddAxis();
};

using Ticks = std::vector<float>;

TEST_F(DataChartAxisTest, BeginsWithTheDefaults) {
    EXPECT_EQ(axis.flags, 0u);
    EXPECT_EQ(axis.Position(), AxisPosition::kLeft);
    EXPECT_EQ(axis.Minimum(), 0.0f);
    EXPECT_EQ(axis.Maximum(), 255.0f);
    EXPECT_EQ(axis.LowLimit(), 0.0f);
    EXPECT_EQ(axis.HighLimit(), 255.0f);
    EXPECT_EQ(axis.scrollPercent, 15);
    EXPECT_EQ(axis.LongestLimit(), "255.00");
}

TEST_F(DataChartAxisTest, AValueLiesOnThePixelOfItsShareOfThePlot) {
    struct {
        AxisPosition position;
        float min, max, value;
        int pixel;
    } const kCases[] = {
        {AxisPosition::kBottom, 0, 100, 0, 10},
        {AxisPosition::kBottom, 0, 100, 100, 360},
        {AxisPosition::kTop, 0, 100, 33.4f, 126},  // 116.9 toward zero
        {AxisPosition::kTop, 0, 100, -0.2f, 10},   // -0.7 toward zero
        {AxisPosition::kTop, 0, 100, -33.4f, -106},
        {AxisPosition::kLeft, 0, 100, 0, 220},
        {AxisPosition::kRight, 0, 100, 100, 20},
        {AxisPosition::kLeft, 0, 100, 50.4f, 120},  // 100.8 up, toward zero
        {AxisPosition::kLeft, 100, 0, 100, 220},    // upside down
        {AxisPosition::kLeft, 100, 0, 25, 70},
        {AxisPosition::kLeft, 5, 5, 1000, 220},  // without a range all on the low edge
        {AxisPosition::kBottom, 5, 5, -1000, 10},
        {AxisPosition::kBottom, 0, 1, 1e30f, 10 + (1 << 26)},
        {AxisPosition::kBottom, 0, 1, -kInfinity, 10 - (1 << 26)},
        {AxisPosition::kLeft, 0, 1, kNan, 220},
        {AxisPosition::kLeft, kNan, 1, 0, 220},
    };
    for (const auto& test : kCases) {
        axis.setPosition(test.position);
        axis.setRange(test.min, test.max);
        EXPECT_EQ(axis.PixelOf(test.value), test.pixel) << test.value << " in " << test.min << ".." << test.max;
    }
}

TEST_F(DataChartAxisTest, TicksAreMultiplesOfOneTwoOrFiveFromTheMinimumAndBelowTheMaximum) {
    const struct {
        float min, max;
        Ticks ticks;
    } cases[] = {{0, 10, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
                 {0, 11, {0, 2, 4, 6, 8, 10}},
                 {0, 30, {0, 5, 10, 15, 20, 25}},
                 {0, 60, {0, 10, 20, 30, 40, 50}},
                 {0, 255, {0, 50, 100, 150, 200, 250}},
                 {3.5f, 13.5f, {4, 5, 6, 7, 8, 9, 10, 11, 12, 13}},
                 {-3, 7, {-3, -2, -1, 0, 1, 2, 3, 4, 5, 6}},
                 {-3.5f, 6.5f, {-3, -2, -1, 0, 1, 2, 3, 4, 5, 6}},
                 {-13, -3, {-13, -12, -11, -10, -9, -8, -7, -6, -5, -4}}};
    for (const auto& expected : cases) {
        for (const AxisPosition position : {AxisPosition::kLeft, AxisPosition::kBottom})
            EXPECT_EQ(TicksOf(expected.min, expected.max, position), expected.ticks) << expected.min;
    }
}

TEST_F(DataChartAxisTest, DecimalsFollowTheStep) {
    for (const auto& [min, max, label] : {std::tuple{0.0f, 10.0f, "0"},
                                          {0.5f, 1.5f, "0.5"},
                                          {0.0f, 0.2f, "0.00"},
                                          {0.0f, 0.6f, "0.0"},  // ten times a hundredth
                                          {0.0f, 6.0f, "0"}})   // ten times a tenth
        EXPECT_EQ(axis.LabelOf(TicksOf(min, max).at(0), nullptr), label) << min << ".." << max;
}

TEST_F(DataChartAxisTest, APlotOfFewPixelsHasOneInterval) {
    axis.plot = {0, 0, 100, 19};
    EXPECT_EQ(TicksOf(0, 10), Ticks{0});
    axis.plot = {0, 0, 34, 100};
    EXPECT_EQ(TicksOf(0, 10, AxisPosition::kBottom), Ticks{0});
}

TEST_F(DataChartAxisTest, ARangeThatIsNoneKeepsTheStepAndHasNoTicks) {
    TicksOf(0, 10);
    EXPECT_TRUE(TicksOf(5, 5).empty());
    EXPECT_TRUE(TicksOf(10, 0).empty());
    EXPECT_TRUE(TicksOf(kNan, 1).empty());
    EXPECT_EQ(axis.LongestLimit(), "nan");
}

TEST_F(DataChartAxisTest, NoRangeIsWalkedForEver) {
    TicksOf(0, 1e-3f);  // a small step to be kept
    for (const auto& [min, max] : {std::pair{0.0f, kInfinity},
                                   {-kInfinity, 0.0f},
                                   {-kInfinity, kInfinity},
                                   {3e38f, 3.1e38f},
                                   {-3.4e38f, 3.4e38f},
                                   {1e7f, 1e7f + 1},
                                   {-1e-45f, 1e-45f}}) {
        EXPECT_LE(TicksOf(min, max).size(), 201u) << min << ".." << max;
    }
}

TEST_F(DataChartAxisTest, TheLongerLimitIsMeasuredAndTheMinimumAtATie) {
    for (const auto& [min, max, longest] : {std::tuple{0.0f, 99.0f, "99.00"},
                                            {-5.0f, 99.0f, "-5.00"},  // two characters before the point, like 99
                                            {-5.0f, 100.0f, "100.00"},
                                            {0.0f, 0.5f, "0.00"},  // below 1 is one digit
                                            {1.0f, 1000.0f, "1000.00"},
                                            {0.0f, kInfinity, "inf"}}) {
        axis.setRange(min, max);
        EXPECT_EQ(axis.LongestLimit(), longest);
    }
}

TEST_F(DataChartAxisTest, ASampleBeyondTheRangeMovesItByTheOvershootAndTheMargin) {
    axis.Follow(1000);
    EXPECT_EQ(axis.Maximum(), 255.0f) << "without the flag nothing moves it";
    EXPECT_FALSE(chart.IsLayoutDue());
    axis.flags = kAxisAutoScroll;
    axis.setRange(0, 20);
    axis.setLimits(0, 20);
    axis.Follow(20);
    EXPECT_EQ(axis.Maximum(), 20.0f) << "one at the maximum moves nothing";
    EXPECT_FALSE(chart.IsLayoutDue());
    axis.Follow(21);
    EXPECT_EQ(axis.Minimum(), 4.0f);
    EXPECT_EQ(axis.Maximum(), 24.0f);
    EXPECT_EQ(axis.LowLimit(), 0.0f);
    EXPECT_EQ(axis.HighLimit(), 24.0f);
    EXPECT_TRUE(chart.IsLayoutDue());
    axis.Follow(1000);
    EXPECT_EQ(axis.Maximum(), 1003.0f) << "the span stays, however far it is";
    EXPECT_EQ(axis.Minimum(), 983.0f);
    axis.Follow(980);
    EXPECT_EQ(axis.Minimum(), 977.0f);
    EXPECT_EQ(axis.LowLimit(), 977.0f) << "as told, though the range was lower before";
    EXPECT_EQ(axis.HighLimit(), 1003.0f);
}

TEST_F(DataChartAxisTest, LabelsComeFromTheFormatterWhenItIsWanted) {
    axis.formatter = [](void* window, const DataChartAxis&, float value, char* buffer, std::uint32_t* length) {
        EXPECT_EQ(*length, 30u);
        buffer[0] = window == nullptr ? '-' : '+';
        buffer[1] = static_cast<char>('0' + static_cast<int>(value));
        *length = value == 9 ? 400 : 2;
    };
    EXPECT_EQ(axis.LabelOf(7, nullptr), "7.00");
    axis.flags = kAxisFormatter;
    EXPECT_EQ(axis.LabelOf(7, &axis), "+7");
    EXPECT_EQ(axis.LabelOf(9, nullptr).size(), 30u) << "no more than the buffer holds";
    axis.formatter = nullptr;
    EXPECT_EQ(axis.LabelOf(7, nullptr), "7.00");
    EXPECT_EQ(axis.LabelOf(3e38f, nullptr).size(), 30u);
}

TEST_F(DataChartAxisTest, TitlesAreCopiesOfJustThatLength) {
    axis.setTitle("km/hour", 4);
    char title[10] = "";
    EXPECT_EQ(axis.getTitle(title, 10), 4u);
    EXPECT_STREQ(title, "km/h");
    EXPECT_EQ(axis.getTitle(title, 3), 2u);
    EXPECT_STREQ(title, "km");
    EXPECT_EQ(axis.getTitle(nullptr, 3), 0u);
    EXPECT_EQ(axis.getTitle(title, 0), 0u);
    axis.setTitle(nullptr, 4);
    EXPECT_EQ(axis.getTitle(title, 10), 0u);
}

}  // namespace
}  // namespace corvex
