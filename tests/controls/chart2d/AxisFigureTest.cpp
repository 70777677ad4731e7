#include <gtest/gtest.h>

#include "controls/chart2d/AxisFigure.h"
#include "tests/controls/chart2d/Chart2DHostFake.h"

namespace corvex {
namespace {

class SixPixelLetters final : public ITickTextMeasure {
public:
    YUpSize Measure(std::string_view text) const override { return {6 * static_cast<int>(text.size()), 12}; }
};

class AxisFigureTest : public ::testing::Test {
protected:
    AxisFigure Of(Chart2DAxis axis) const { return AxisFigureOf(chart, axis, SixPixelLetters()); }
    // One tick of the caller's.
    AxisTick TickAt(Chart2DAxis axis, float value, const char* label = "ab") {
        chart.ticks[axis].SetCount(1);
        chart.ticks[axis].Set(0, value, label);
        return Of(axis).ticks.at(0);
    }

    FakeChart2D fake;
    Chart2DModel& chart = fake.machine.chart;
};

TEST_F(AxisFigureTest, ATickStandsAcrossItsAxisWithItsGridLineAndLabel) {
    const AxisTick x = TickAt(kChart2DX, 100.0F), y = TickAt(kChart2DY, -30.0F);
    EXPECT_EQ(x.gridFrom, (YUpPoint{425, 70}));
    EXPECT_EQ(x.gridTo, (YUpPoint{425, 580}));
    EXPECT_EQ(x.markFrom, (YUpPoint{425, 328}));
    EXPECT_EQ(x.markTo, (YUpPoint{425, 322}));
    ASSERT_TRUE(x.label);
    EXPECT_EQ(x.label->text, "ab");
    EXPECT_EQ(x.label->at, (YUpPoint{431, 319})) << "6 below, its line's middle at the tick";
    EXPECT_EQ(y.gridFrom, (YUpPoint{70, 295}));
    EXPECT_EQ(y.gridTo, (YUpPoint{580, 295}));
    EXPECT_EQ(y.markFrom, (YUpPoint{328, 295}));
    EXPECT_EQ(y.markTo, (YUpPoint{322, 295}));
    ASSERT_TRUE(y.label);
    EXPECT_EQ(y.label->at, (YUpPoint{319, 301}));
    EXPECT_FALSE(TickAt(kChart2DX, 0.0F, "").label);
}

TEST_F(AxisFigureTest, WithoutZeroInTheRangeTicksStandOnThePlotsEdgeAndNoLineIsDrawn) {
    const float low = 10.0F;
    fake.machine.ranges.Set(kChart2DY, &low, nullptr);
    AxisTick tick = TickAt(kChart2DX, 0.0F);
    EXPECT_EQ(tick.markFrom, (YUpPoint{325, 70}));
    EXPECT_EQ(tick.markTo, (YUpPoint{325, 64}));
    EXPECT_EQ(tick.label->at, (YUpPoint{331, 64}));
    EXPECT_FALSE(Of(kChart2DX).line);
    EXPECT_TRUE(Of(kChart2DY).line);
    fake.machine.ranges.Set(kChart2DX, &low, nullptr);
    tick = TickAt(kChart2DY, 10.0F);
    EXPECT_EQ(tick.markFrom, (YUpPoint{70, 70}));
    EXPECT_EQ(tick.markTo, (YUpPoint{64, 70}));
    EXPECT_EQ(tick.label->at, (YUpPoint{64, 76}));
    EXPECT_FALSE(Of(kChart2DY).line);
}

TEST_F(AxisFigureTest, AxesCrossAtTheOriginWithAHeadAtEachEndBeyondZero) {
    const struct {
        float minimum, maximum;
        std::vector<int> tips;
    } cases[] = {{-255, 255, {60, 590}}, {0, 255, {590}}, {-255, 0, {60}}, {-1, 3, {60, 590}},
                 {5, 9, {590}},          {-9, -5, {60}},  {0, 0, {}}};
    for (const auto& one : cases) {
        fake.machine.ranges.Set(kChart2DX, &one.minimum, &one.maximum);
        const auto line = Of(kChart2DX).line;
        ASSERT_TRUE(line);
        EXPECT_EQ(line->from, (YUpPoint{70, 325}));
        EXPECT_EQ(line->to, (YUpPoint{580, 325}));
        std::vector<int> tips;
        for (const auto& head : line->heads) {
            const int base = head[0].x < 100 ? 70 : 580;
            tips.push_back(head[0].x);
            EXPECT_EQ(head[0].y, 325);
            EXPECT_EQ(head[1], (YUpPoint{base, 321}));
            EXPECT_EQ(head[2], (YUpPoint{base, 329}));
        }
        EXPECT_EQ(tips, one.tips) << one.minimum;
    }
    const float low = -200.0F, high = 310.0F;
    fake.machine.ranges.Set(kChart2DX, &low, &high);
    const auto line = Of(kChart2DY).line;
    ASSERT_TRUE(line);
    EXPECT_EQ(line->from, (YUpPoint{270, 70}));
    EXPECT_EQ(line->to, (YUpPoint{270, 580}));
    EXPECT_EQ(line->heads.at(1), (std::array{YUpPoint{270, 590}, YUpPoint{266, 580}, YUpPoint{274, 580}}));
}

TEST_F(AxisFigureTest, LabelsThatWouldLieOnTheOneBeforeAreLeftOut) {
    // So many pixels from label to label; the letters' air may be shared: 1 to each side, 3 above and below.
    const struct {
        Chart2DAxis axis;
        float step;
        std::string shown;
    } cases[] = {{kChart2DX, 12, "1111111"}, {kChart2DX, 10, "1111111"}, {kChart2DX, 9, "1010101"},
                 {kChart2DX, 3, "1000100"},  {kChart2DY, 6, "1111111"},  {kChart2DY, 5, "1010101"},
                 {kChart2DY, 0, "1000000"}};
    for (const auto& one : cases) {
        chart.ticks[one.axis].SetCount(7);
        for (std::size_t i = 0; i < 7; ++i)
            chart.ticks[one.axis].Set(i, one.step * static_cast<float>(i), "1234");
        std::string shown;
        for (const AxisTick& tick : Of(one.axis).ticks)
            shown += tick.label ? '1' : '0';
        EXPECT_EQ(shown, one.shown) << one.axis << " by " << one.step;
    }
}

}  // namespace
}  // namespace corvex
