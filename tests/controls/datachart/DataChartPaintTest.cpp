#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "controls/datachart/DataChartPaint.h"
#include "tests/controls/window/FigureRecorder.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

class DataChartPaintTest : public ::testing::Test {
protected:
    DataChartPaintTest() {
        time_.setPosition(AxisPosition::kBottom);
        time_.setTitle("Time", 4);
        time_.lineColour = 0x111111;
        time_.textColour = 0x222222;
        speed_.setTitle("km/h", 4);
        speed_.lineColour = 0x333333;
        chart_.SetTitle("Engine");
        series_.setXAxis(&time_);
        series_.setYAxis(&speed_);
        series_.colour = 0x0000FF;
        series_.lineWidth = 2;
        for (const float x : {0.0f, 100.0f, 200.0f})
            series_.addSample(x, x);
    }
    const ChartBackground& LayOut(int width, int height) {
        const MemoryDc dc;
        const DataChartFonts fonts(dc.Get());
        layout_ = chart_.LayOut(width, height, fonts, nullptr).value();
        return layout_;
    }
    Figures Background() {
        return FiguresOf([&](HDC dc) { PaintChartBackground(dc, layout_, chart_, DataChartFonts(dc)); });
    }
    Figures Drawn() const {
        return FiguresOf([&](HDC dc) { PaintChartLines(dc, chart_, layout_.plot); });
    }

    DataChartModel chart_;
    DataChartAxis &time_ = *chart_.AddAxis(), &speed_ = *chart_.AddAxis();
    DataChartSeries& series_ = *chart_.AddSeries();
    ChartBackground layout_;
};

TEST_F(DataChartPaintTest, TheBackgroundIsGroundTitleAxesAndPlotInThisOrder) {
    for (const auto& [width, height] : {std::pair{400, 300}, std::pair{1000, 500}}) {
        const ChartBackground& layout = LayOut(width, height);
        const Figures figures = Background();
        const std::string size = std::to_string(width) + "," + std::to_string(height);
        ASSERT_GT(figures.size(), 10u);
        EXPECT_EQ(figures[0], "fill 0,0," + size + " brush ffffff");
        EXPECT_TRUE(figures[1].starts_with("text ")) << figures[1];
        EXPECT_TRUE(figures[1].ends_with("font Arial 14 600 2 32 colour 000000 transparent: Engine")) << figures[1];
        EXPECT_TRUE(figures[2].ends_with("font Arial 14 400 2 32 colour 222222 transparent: Time")) << figures[2];
        EXPECT_TRUE(figures[3].ends_with("pen 0 1 111111")) << figures[3];
        const ChartArea& plot = layout.plot;
        EXPECT_EQ(figures.back(), Printed("rectangle %d,%d,%d,%d pen 0 1 000000 brush f0f0f0", plot.left, plot.top,
                                          plot.right, plot.bottom));
        const Figures texts = FiguresOfKind(figures, "text");
        const auto count =
            static_cast<std::size_t>(std::count_if(texts.begin(), texts.end(), [](const std::string& line) {
                return line.find("font Arial 14 400 2 32 colour 000000 transparent: ") != std::string::npos;
            }));
        EXPECT_EQ(count, layout.axes[1].ticks.size()) << "the labels of the speed";
        EXPECT_TRUE(std::any_of(texts.begin(), texts.end(), [](const std::string& line) {
            return line.ends_with("font Arial 12 400 2 32 colour 000000 transparent: km/h");
        }));
    }
}

TEST_F(DataChartPaintTest, SeriesAreDrawnBeforeMarkers) {
    LayOut(400, 300);
    time_.flags = kAxisMarker;
    time_.marker = 50;
    const ChartArea& plot = layout_.plot;
    const auto line = [&](float from, float to, const char* pen) {
        return Printed("clip %d,%d,%d,%d line %d,%d to %d,%d pen %s", plot.left + 1, plot.top + 1, plot.right - 1,
                       plot.bottom - 1, time_.PixelOf(from), speed_.PixelOf(from), time_.PixelOf(to),
                       speed_.PixelOf(to), pen);
    };
    const Figures drawn = Drawn();
    ASSERT_EQ(drawn.size(), 3u);
    EXPECT_EQ(drawn[0], line(0, 100, "0 2 0000ff"));
    EXPECT_EQ(drawn[1], line(100, 200, "0 2 0000ff"));
    const int marker = time_.PixelOf(50);
    EXPECT_TRUE(
        drawn[2].ends_with(Printed("line %d,%d to %d,%d pen 0 0 000000", marker, plot.bottom, marker, plot.top)));
}

// In pixels: nothing leaves the plot, and a marker inverts what it crosses.
TEST_F(DataChartPaintTest, NothingLeavesThePlotAndTheMarkerInverts) {
    LayOut(300, 200);
    const ChartArea plot = layout_.plot;
    series_.lineWidth = 40;
    time_.setRange(50, 120);
    time_.flags = kAxisMarker;
    time_.marker = 65;
    speed_.setRange(60, 90);
    TestBitmap bitmap(300, 200, 0xF0F0F0);
    PaintChartLines(bitmap.Dc(), chart_, plot);
    Colours outside, inside;
    for (int y = 0; y < 200; ++y) {
        for (int x = 0; x < 300; ++x) {
            const bool isIn = x > plot.left && x < plot.right - 1 && y > plot.top && y < plot.bottom - 1;
            (isIn ? inside : outside).insert(bitmap.At(x, y));
        }
    }
    EXPECT_EQ(outside, Colours{0xF0F0F0});
    EXPECT_EQ(inside, (Colours{0xF0F0F0, 0x0000FF, 0x0F0F0F, 0xFFFF00}));
    EXPECT_EQ(::GetROP2(bitmap.Dc()), R2_COPYPEN);
    EXPECT_EQ(::GetClipBox(bitmap.Dc(), std::array<RECT, 1>{}.data()), SIMPLEREGION);
}

TEST_F(DataChartPaintTest, APlotWithoutAnInsideHasNoLines) {
    for (const auto& [width, height] : {std::pair{40, 300}, std::pair{400, 40}, std::pair{1, 1}}) {
        LayOut(width, height);
        EXPECT_TRUE(Drawn().empty()) << width << " by " << height;
    }
}

}  // namespace
}  // namespace corvex
