#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "controls/chart/YUpSpace.h"
#include "controls/chart2d/AxisFigure.h"
#include "controls/chart2d/Chart2DPaint.h"
#include "tests/controls/window/FigureRecorder.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

class SilentOwner final : public ISeries2DOwner {
    void OnPointChanged(const Point2D*, const Point2D*) override {}
    void OnPointsCleared() override {}
    void PaintSoon() override {}
};

class PointNames final : public IChart2DLabels {
public:
    std::optional<std::string> LabelOf(ChartLabelKind kind, const Point2D&, QZChart2DSeries* series,
                                       int index) override {
        if (!isOn || index == 1) return std::nullopt;
        return std::to_string(kind) + " " + std::to_string(index) + (series == nullptr ? "" : " of " + NameOf(*series));
    }
    static std::string NameOf(const QZChart2DSeries& series) {
        char name[65];
        series.getName(name, sizeof name);
        return name;
    }
    bool isOn = false;
};

class Chart2DPaintTest : public ::testing::Test {
protected:
    Chart2DPaintTest() { Size(500, 400); }
    void Size(int width, int height) {
        chart.width = width;
        chart.height = height;
    }
    QZChart2DSeries& AddSeries(const std::vector<Point2D>& points) {
        chart.series.push_back(std::make_unique<QZChart2DSeries>(owner));
        for (const Point2D& point : points)
            chart.series.back()->addPoint(point);
        return *chart.series.back();
    }
    Figures Paint() {
        return FiguresOf([&](HDC dc) { PaintChart2D(dc, chart, fonts, labels); });
    }
    // Without the ground, titles, and axes that come first.
    Figures PaintSeries() {
        Figures figures = Paint();
        auto series = std::exchange(chart.series, {});
        figures.erase(figures.begin(), figures.begin() + static_cast<std::ptrdiff_t>(Paint().size()));
        chart.series = std::move(series);
        return figures;
    }

    SilentOwner owner;
    Chart2DModel chart;
    const Chart2DFonts fonts;
    PointNames labels;
};

TEST_F(Chart2DPaintTest, AnEmptyChartShowsItsTitlesAndAxes) {
    const struct {
        int width, height;
        Figures figures;
    } cases[] = {
        {500,
         400,
         {"fill 0,0,500,400 brush ffffff", "mapping anisotropic window 1,1 viewport 1,-1",
          "text 250,384 align 6 font Arial 22 600 2 32 colour 000000 transparent: 2D Chart",
          "text 10,200 align 6 font Arial 12 600 2 32 colour 000000 transparent: Y Axis",
          "text 250,20 align 6 font Arial 14 600 2 32 colour 000000 transparent: X Axis",
          "line 70,200 to 430,200 pen 0 1 000000", "polygon 60,200 70,196 70,204 pen 0 1 000000 brush 000000",
          "polygon 440,200 430,196 430,204 pen 0 1 000000 brush 000000", "line 250,70 to 250,330 pen 0 1 000000",
          "polygon 250,60 246,70 254,70 pen 0 1 000000 brush 000000",
          "polygon 250,340 246,330 254,330 pen 0 1 000000 brush 000000"}},
        {1201,
         141,
         {"fill 0,0,1201,141 brush ffffff", "mapping anisotropic window 1,1 viewport 1,-1",
          "text 600,125 align 6 font Arial 22 600 2 32 colour 000000 transparent: 2D Chart",
          "text 10,70 align 6 font Arial 12 600 2 32 colour 000000 transparent: Y Axis",
          "text 600,20 align 6 font Arial 14 600 2 32 colour 000000 transparent: X Axis",
          "line 70,70 to 1131,70 pen 0 1 000000", "polygon 60,70 70,66 70,74 pen 0 1 000000 brush 000000",
          "polygon 1141,70 1131,66 1131,74 pen 0 1 000000 brush 000000", "line 600,70 to 600,71 pen 0 1 000000",
          "polygon 600,60 596,70 604,70 pen 0 1 000000 brush 000000",
          "polygon 600,81 596,71 604,71 pen 0 1 000000 brush 000000"}},
    };
    for (const auto& one : cases) {
        Size(one.width, one.height);
        EXPECT_EQ(Paint(), one.figures);
    }
    chart.ranges = {ChartRange{1, 2}, ChartRange{-2, -1}};
    EXPECT_EQ(Paint().size(), 5U) << "no zero, no axis";
}

TEST_F(Chart2DPaintTest, TextsAndLinesHaveTheirColours) {
    for (std::uint32_t i = 0; i < kChart2DColourEnd; ++i)
        chart.colours[i] = 0x010101 * i + 0x100000;
    chart.style |= kChart2DSubtitle;
    for (TickList& ticks : chart.ticks) {
        ticks.SetCount(1);
        ticks.Set(0, 51.0F, "ab");
    }
    const int height = YUpTextMeasure(MemoryDc().Get(), fonts.xTick.Get()).Measure("ab").height, half = height / 2;
    labels.isOn = true;
    AddSeries({{0, 0}}).setName("A");
    const Figures expected = {
        "fill 0,0,500,400 brush 100000",
        "mapping anisotropic window 1,1 viewport 1,-1",
        "text 250,398 align 6 font Arial 12 100 2 32 colour 1b0b0b transparent: QZ2DChart v2",
        "text 250,384 align 6 font Arial 22 600 2 32 colour 130303 transparent: 2D Chart",
        "line 286,70 to 286,330 pen 2 1 110101",
        "line 286,203 to 286,197 pen 0 1 120202",
        Printed("text %d,194 align 0 font Arial 12 400 2 32 colour 140404 transparent: ab", 286 - half + height),
        "line 70,226 to 430,226 pen 2 1 110101",
        "line 253,226 to 247,226 pen 0 1 120202",
        Printed("text 244,%d align 2 font Arial 12 400 2 32 colour 150505 transparent: ab", 226 + half),
        "text 10,200 align 6 font Arial 12 600 2 32 colour 190909 transparent: Y Axis",
        "text 250,20 align 6 font Arial 14 600 2 32 colour 180808 transparent: X Axis",
        "line 70,200 to 430,200 pen 0 1 120202",
        "polygon 60,200 70,196 70,204 pen 0 1 120202 brush 120202",
        "polygon 440,200 430,196 430,204 pen 0 1 120202 brush 120202",
        "line 250,70 to 250,330 pen 0 1 120202",
        "polygon 250,60 246,70 254,70 pen 0 1 120202 brush 120202",
        "polygon 250,340 246,330 254,330 pen 0 1 120202 brush 120202",
        "line 250,200 to 250,200 pen 0 1 000000",
        "ellipse 245,195,255,205 pen 0 1 000000 brush 100000",
        "text 250,207 align 14 font Arial 12 600 2 32 colour 170707 transparent: 0 0 of A",
    };
    EXPECT_EQ(Paint(), expected);
}

TEST_F(Chart2DPaintTest, SeriesAreDrawnInOrderLineByLineEachWithItsMarker) {
    QZChart2DSeries& first = AddSeries({{-255, -255}, {0, 127.5F, 0, 1}, {510, 0}});
    first.setPointRadius(3);
    first.setPenWidth(4);
    first.setColor(kSeriesLineColour, 0x00000A);
    first.setColor(kSeriesPointColour, 0x00000B);
    first.setColor(kSeriesSelectedColour, 0x00000C);
    QZChart2DSeries& second = AddSeries({{255, 255}, {-255, 255}});
    second.setFlags(kSeriesFromOrigin | kSeriesNoMarkers, 0);
    AddSeries({{1, 1}, {2, 2}}).setFlags(kSeriesHidden, 0);
    AddSeries({}).setFlags(kSeriesFromOrigin, 0);
    const Figures lines = {
        "line 70,70 to 70,70 pen 0 4 00000a",     "ellipse 67,67,73,73 pen 0 1 00000b brush ffffff",
        "line 70,70 to 250,265 pen 0 4 00000a",   "ellipse 247,262,253,268 pen 0 2 00000a brush 00000c",
        "line 250,265 to 610,200 pen 0 4 00000a", "ellipse 607,197,613,203 pen 0 1 00000b brush ffffff",
        "line 250,200 to 430,330 pen 0 1 000000", "line 430,330 to 70,330 pen 0 1 000000",
    };
    EXPECT_EQ(PaintSeries(), lines) << "beyond the plot too, from the origin, none hidden";
    labels.isOn = true;
    first.setName("A");
    const Figures texts = FiguresOfKind(PaintSeries(), "text");
    ASSERT_EQ(texts.size(), 3U);
    EXPECT_EQ(texts[0], "text 70,77 align 14 font Arial 12 600 2 32 colour ff0000 transparent: 0 0 of A");
    EXPECT_EQ(texts[1], "text 610,207 align 14 font Arial 12 600 2 32 colour ff0000 transparent: 0 2 of A");
    Size(141, 141);
    EXPECT_FALSE(PaintSeries().empty());
    for (const SIZE& size : {SIZE{140, 400}, SIZE{400, 140}, SIZE{0, 0}}) {
        Size(size.cx, size.cy);
        EXPECT_EQ(PaintSeries(), Figures{}) << "no plot";
    }
}

TEST_F(Chart2DPaintTest, MarkersHideTheLinesBelowAndNothingIsClipped) {
    const TestBitmap bitmap(500, 400, 0);
    AddSeries({{-255, 0}, {0, 0}, {255, 0, 0, 1}, {300, 0}});
    const auto at = [&](int x, int y) { return bitmap.At(x, 399 - y); };
    PaintChart2D(bitmap.Dc(), chart, fonts, labels);
    EXPECT_EQ(at(250, 201), 0xFFFFFFU) << "inside of an unselected marker";
    EXPECT_EQ(at(430, 201), 0x0000FFU) << "of a selected one";
    EXPECT_EQ(at(450, 199), 0U) << "the line to a point outside of the plot";
    EXPECT_EQ(at(480, 199), 0xFFFFFFU);
    EXPECT_EQ(at(498, 398), 0xFFFFFFU);
}

TEST_F(Chart2DPaintTest, AnyNumbersInAnySizeArePaintedAndTheContextIsAsItWas) {
    const float odd[] = {
        0.0F, 1e-40F, 3e38F, -3e38F, std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()};
    const TestBitmap bitmap(300, 200, 0);
    const std::size_t before = LiveGdiObjects();
    const HGDIOBJ pen = ::GetCurrentObject(bitmap.Dc(), OBJ_PEN), font = ::GetCurrentObject(bitmap.Dc(), OBJ_FONT);
    for (const float x : odd) {
        for (const float y : odd)
            AddSeries({{x, y}, {y, x, 0, 1}, {1, 2}});
    }
    chart.series.front()->setPointRadius(0xFFFF);
    PaintChart2D(bitmap.Dc(), chart, fonts, labels);
    chart.series.front()->setPointRadius(200);
    for (const float minimum : odd) {
        for (const float maximum : odd) {
            chart.ranges = {ChartRange{minimum, maximum}, ChartRange{maximum, minimum}};
            for (TickList& ticks : chart.ticks)
                ticks.Spread(5, chart.ranges[kChart2DX], nullptr);
            Size(300, 4000);
            PaintChart2D(bitmap.Dc(), chart, fonts, labels);
        }
    }
    EXPECT_EQ(LiveGdiObjects(), before);
    EXPECT_EQ(::GetMapMode(bitmap.Dc()), MM_TEXT);
    EXPECT_EQ(pen, ::GetCurrentObject(bitmap.Dc(), OBJ_PEN));
    EXPECT_EQ(font, ::GetCurrentObject(bitmap.Dc(), OBJ_FONT));
}

}  // namespace
}  // namespace corvex
