#include <gtest/gtest.h>

#include "controls/datachart/DataChartModel.h"

namespace corvex {
namespace {

// Six pixels for a character, and a height for each font.
class FixedMeasure final : public IChartTextMeasure {
public:
    ChartTextSize Measure(ChartFont font, std::string_view text) const override {
        const int heights[] = {16, 14, 12, 13, 15};
        return {6 * static_cast<int>(text.size()), heights[static_cast<int>(font)]};
    }
};

std::string Show(const ChartPoint& point) {
    return std::to_string(point.x) + "," + std::to_string(point.y);
}
std::string Show(const ChartLine& line) {
    return Show(line.from) + " to " + Show(line.to);
}
std::string Show(const ChartText& text) {
    return Show(text.place) + " " + text.text;
}
std::string Show(const ChartArea& area) {
    return Show(ChartPoint{area.left, area.top}) + " " + Show(ChartPoint{area.right, area.bottom});
}

class DataChartModelTest : public ::testing::Test {
protected:
    DataChartAxis& AddAxis(AxisPosition position, const std::string& title = "") {
        DataChartAxis& axis = *chart.AddAxis();
        axis.setPosition(position);
        axis.setTitle(title.data(), static_cast<std::uint32_t>(title.size()));
        return axis;
    }
    ChartBackground LayOut(int width = 400, int height = 300) {
        return chart.LayOut(width, height, FixedMeasure(), this).value_or(ChartBackground{});
    }

    DataChartModel chart;
};

TEST_F(DataChartModelTest, APlotWithoutAxesIsTheClientWithoutItsMargins) {
    const ChartBackground background = LayOut();
    EXPECT_EQ(Show(background.client), "0,0 400,300");
    EXPECT_EQ(Show(background.plot), "3,3 397,297");
    EXPECT_FALSE(background.title);
    EXPECT_EQ(chart.colours, (std::array<std::uint32_t, 4>{0x000000, 0xFFFFFF, 0xF0F0F0, 0x000000}));
}

TEST_F(DataChartModelTest, TheTitleMovesTheTopDown) {
    chart.SetTitle(std::string(10, 't'));
    const ChartBackground background = LayOut();
    ASSERT_TRUE(background.title);
    EXPECT_EQ(Show(*background.title), "170,2 tttttttttt");
    EXPECT_EQ(Show(background.plot), "3,21 397,297");
    chart.SetTitle(std::string(200, 't'));
    EXPECT_EQ(LayOut().title->text.size(), 150u);
}

TEST_F(DataChartModelTest, AxesStackFromThePlotOutward) {
    DataChartAxis& first = AddAxis(AxisPosition::kLeft, "km/h");
    DataChartAxis& right = AddAxis(AxisPosition::kRight);
    DataChartAxis& second = AddAxis(AxisPosition::kLeft);
    DataChartAxis& bottom = AddAxis(AxisPosition::kBottom, "Time");
    DataChartAxis& top = AddAxis(AxisPosition::kTop);
    const ChartBackground background = LayOut();
    // "255.00" is 36 wide; a title is 16 high; "1790" is 16 high.
    EXPECT_EQ(first.thickness, 8 + 16 + 2 + 36 + 2);
    EXPECT_EQ(right.thickness, 8 + 36 + 2);
    EXPECT_EQ(bottom.thickness, 8 + 16 + 2 + 16 + 3);
    EXPECT_EQ(top.thickness, 8 + 16 + 3);
    EXPECT_EQ(first.offset, 0);
    EXPECT_EQ(second.offset, 64);
    EXPECT_EQ(Show(background.axes[2].line), "47,252 to 47,30") << "beyond the first";
    EXPECT_EQ(Show(background.plot), "113,30 351,252");
    EXPECT_EQ(Show(first.plot), Show(background.plot));
    EXPECT_EQ(background.axes.size(), 5u);
}

TEST_F(DataChartModelTest, LinesTicksAndTextsLieAsTold) {
    struct {
        AxisPosition position;
        const char *plot, *line, *title, *mark, *label;
        ChartFont font;
        bool isAlignedBelow;
    } const kCases[] = {
        // The tick at 100; its label is 18 by 15, the title "AB" 12 by 12 or 13.
        {AxisPosition::kLeft, "67,3 397,297", "65,297 to 65,3", "9,156 AB", "65,182 to 60,182", "41,175 100",
         ChartFont::kAxisTitleTurned, false},
        {AxisPosition::kRight, "3,3 333,297", "334,297 to 334,3", "385,156 AB", "334,182 to 339,182", "343,175 100",
         ChartFont::kAxisTitleTurned, false},
        {AxisPosition::kTop, "3,48 397,297", "3,46 to 397,46", "194,16 AB", "157,46 to 157,41", "148,40 100",
         ChartFont::kAxisTitle, true},
        {AxisPosition::kBottom, "3,3 397,252", "3,253 to 397,253", "194,280 AB", "157,253 to 157,258", "148,259 100",
         ChartFont::kAxisTitle, false},
    };
    for (const auto& test : kCases) {
        SCOPED_TRACE(static_cast<int>(test.position));
        chart.ClearAxes();
        DataChartAxis& axis = AddAxis(test.position, "AB");
        axis.textColour = 0x112233;
        axis.lineColour = 0x445566;
        const ChartBackground background = LayOut();
        const AxisFigure& figure = background.axes.at(0);
        EXPECT_EQ(Show(background.plot), test.plot);
        EXPECT_EQ(Show(figure.line), test.line);
        EXPECT_EQ(Show(*figure.title), test.title);
        EXPECT_EQ(figure.title->font, test.font);
        EXPECT_EQ(figure.title->isAlignedBelow, test.isAlignedBelow);
        const ChartTick* tick = nullptr;
        for (const ChartTick& each : figure.ticks)
            tick = each.label.text == "100" ? &each : tick;
        ASSERT_NE(tick, nullptr);
        EXPECT_EQ(Show(tick->mark), test.mark);
        EXPECT_EQ(Show(tick->label), test.label);
        EXPECT_EQ(tick->label.isAlignedBelow, test.isAlignedBelow);
        EXPECT_EQ(figure.textColour, 0x112233u);
        EXPECT_EQ(figure.lineColour, 0x445566u);
    }
}

TEST_F(DataChartModelTest, ABandIsCutToEightBits) {
    DataChartAxis& axis = AddAxis(AxisPosition::kLeft);
    axis.setRange(0, 3e38f);
    LayOut();
    EXPECT_EQ(axis.thickness, (8 + 42 * 6 + 2) - 256) << "39 digits and two decimals";
    EXPECT_EQ(axis.plot.left, 3 + 6);
}

TEST_F(DataChartModelTest, TitlesAreMeasuredAndDrawnToTheirLimits) {
    DataChartAxis& axis = AddAxis(AxisPosition::kTop, std::string(170, 'a'));
    const ChartBackground background = LayOut(3000, 300);
    EXPECT_EQ(background.axes[0].title->text.size(), 100u);
    EXPECT_EQ(background.axes[0].title->place.x, 3 + 2994 / 2 - 300) << "centred by what is drawn";
    axis.setTitle("", 0);
    EXPECT_FALSE(LayOut().axes[0].title);
}

TEST_F(DataChartModelTest, NumbersAreMeasuredInTheDecimalsOfTheLayoutBefore) {
    DataChartAxis& axis = AddAxis(AxisPosition::kLeft);
    LayOut();
    EXPECT_EQ(axis.thickness, 8 + 6 * 6 + 2) << "255.00";
    LayOut();
    EXPECT_EQ(axis.thickness, 8 + 3 * 6 + 2) << "255";
}

TEST_F(DataChartModelTest, AClientWithoutPixelsIsNotLaidOut) {
    AddAxis(AxisPosition::kLeft);
    EXPECT_FALSE(chart.LayOut(0, 300, FixedMeasure(), nullptr));
    EXPECT_FALSE(chart.LayOut(300, 0, FixedMeasure(), nullptr));
    for (const int side : {1, 2, 7, 30})
        EXPECT_TRUE(chart.LayOut(side, side, FixedMeasure(), nullptr));
}

TEST_F(DataChartModelTest, AnAxisInUseIsNotDeleted) {
    DataChartAxis& time = AddAxis(AxisPosition::kBottom);
    DataChartAxis& left = AddAxis(AxisPosition::kLeft);
    DataChartSeries& series = *chart.AddSeries();
    series.setXAxis(&time);
    series.setYAxis(&left);
    EXPECT_FALSE(chart.DeleteAxis(0));
    EXPECT_FALSE(chart.DeleteAxis(1));
    EXPECT_EQ(chart.AxisCount(), 2u);
    EXPECT_TRUE(chart.DeleteAxis(2));
    chart.DeleteSeries(1);
    EXPECT_EQ(chart.SeriesCount(), 1u);
    chart.DeleteSeries(0);
    EXPECT_TRUE(chart.DeleteAxis(0));
    EXPECT_EQ(chart.Axis(0), &left);
    EXPECT_EQ(chart.Axis(1), nullptr);
    EXPECT_EQ(chart.Series(0), nullptr);
    chart.AddSeries()->setYAxis(&left);
    chart.ClearAxes();
    EXPECT_EQ(chart.SeriesCount() + chart.AxisCount(), 0u);
}

TEST_F(DataChartModelTest, ClearingSamplesKeepsSeriesAndScrolledRanges) {
    DataChartAxis& time = AddAxis(AxisPosition::kBottom);
    DataChartAxis& left = AddAxis(AxisPosition::kLeft);
    time.flags = kAxisAutoScroll;
    DataChartSeries& series = *chart.AddSeries();
    series.setXAxis(&time);
    series.setYAxis(&left);
    series.addSample(300, 1);
    const float scrolled = time.Maximum();
    EXPECT_GT(scrolled, 300.0f);
    chart.ClearSamples();
    EXPECT_EQ(series.Count(), 0u);
    EXPECT_EQ(time.Maximum(), scrolled);
}

TEST_F(DataChartModelTest, TheMarkerCrossesThePlotWhileItIsInTheRange) {
    DataChartAxis& time = AddAxis(AxisPosition::kBottom);
    DataChartAxis& left = AddAxis(AxisPosition::kLeft);
    LayOut();
    time.marker = left.marker = 51;
    EXPECT_FALSE(DataChartModel::MarkerOf(time));
    time.flags = left.flags = kAxisMarker;
    EXPECT_EQ(Show(*DataChartModel::MarkerOf(time)), "118,270 to 118,3");
    EXPECT_EQ(Show(*DataChartModel::MarkerOf(left)), "49,217 to 397,217");
    for (const float outside : {-0.5f, 255.5f}) {
        time.marker = outside;
        EXPECT_FALSE(DataChartModel::MarkerOf(time));
    }
    for (const float edge : {0.0f, 255.0f}) {
        time.marker = edge;
        EXPECT_TRUE(DataChartModel::MarkerOf(time));
    }
}

// By letter the layout runs at every scroll, and measures with the decimals that the one before left behind.
TEST_F(DataChartModelTest, OneLayoutForManyScrollsIsTheLastOfMany) {
    const FixedMeasure measure;
    const auto begin = [&measure](DataChartModel& model) -> DataChartAxis& {
        DataChartAxis& axis = *model.AddAxis();
        axis.flags = kAxisAutoScroll;
        model.LayOut(400, 300, measure, nullptr);
        axis.setRange(0, 1);  // of other decimals, and not laid out
        return axis;
    };
    DataChartModel byLetter;
    DataChartAxis &told = begin(byLetter), &lazy = begin(chart);
    for (const float value : {2.0f, 3.0f}) {
        told.Follow(value);
        byLetter.LayOut(400, 300, measure, nullptr);
        lazy.Follow(value);
    }
    chart.LayOut(400, 300, measure, nullptr);
    EXPECT_EQ(lazy.thickness, told.thickness);
    EXPECT_EQ(lazy.Maximum(), told.Maximum());
    EXPECT_EQ(lazy.Ticks(), told.Ticks());
}

}  // namespace
}  // namespace corvex
