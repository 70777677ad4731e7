#include <gtest/gtest.h>

#include <algorithm>

#include "controls/chart/ChartPaint.h"
#include "controls/chart/YUpSpace.h"
#include "controls/chart3d/BoxFigure.h"
#include "controls/chart3d/Chart3DPaint.h"
#include "controls/chart3d/SurfaceFigure.h"
#include "tests/controls/window/FigureRecorder.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

class NoOwner final : public IPlot3DOwner {
    void OnPointSet(const QZChart3DPlot&, const Point3D&, const Point3D&) override {}
    void OnPointsSet() override {}
    void PaintSoon() override {}
};

class Labels final : public IChart3DLabels {
public:
    std::optional<std::string> LabelOf(ChartLabelKind, const Point3D&, QZChart3DPlot*, int, int) override {
        return own;
    }
    std::optional<std::string> own;
};

class Chart3DPaintTest : public ::testing::Test {
protected:
    Chart3DPaintTest() {
        chart.width = 500;
        chart.height = 400;
        chart.space.boxSize = 200;
        chart.space.pivot = {100, 100, 100};
        chart.space.translation = {150, 100, 0};
    }
    // So many points each way, over the whole box, as high as their row is far.
    QZChart3DPlot& AddPlot(int rows, int columns) {
        chart.plots.push_back(std::make_unique<QZChart3DPlot>(owner));
        QZChart3DPlot& plot = *chart.plots.back();
        plot.setGridSize(rows, columns);
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column)
                plot.setPoint(row, column, PointOf(rows, columns, row, column), 0);
        }
        return plot;
    }
    static Point3D PointOf(int rows, int columns, int row, int column) {
        const auto along = [](int i, int count) {
            return count < 2 ? 0.0F : 255.0F * static_cast<float>(i) / static_cast<float>(count - 1);
        };
        return {along(column, columns), along(row, rows), along(row, rows), 0};
    }
    Figures Paint() {
        return FiguresOf([&](HDC dc) { PaintChart3D(dc, chart, fonts, labels); });
    }
    std::array<FaceFigure, 3> Faces() const {
        const MemoryDc dc;
        return FacesOf(chart, chart.Seen(), YUpTextMeasure(dc.Get(), fonts.tick.Get()));
    }
    static std::string PolygonLine(const std::array<YUpPoint, 4>& corners, const std::string& rest) {
        std::string line = "polygon";
        for (const YUpPoint& corner : corners)
            line += Printed(" %d,%d", corner.x, corner.y);
        return line + " " + rest;
    }
    Figures BoxLines() const {
        Figures lines;
        for (const FaceFigure& face : Faces())
            lines.push_back(PolygonLine(face.corners, "pen 0 1 969696 brush none"));
        return lines;
    }
    // Those of the quads, which come after the box's.
    static Figures Quads(const Figures& figures) {
        Figures lines = FiguresOfKind(figures, "polygon");
        lines.erase(lines.begin(), lines.begin() + 3);
        return lines;
    }
    Figures QuadLines(const QZChart3DPlot& plot, const std::string& rest) const {
        Figures lines;
        SurfaceFigure(plot, chart.Seen()).ForEachQuad([&](const SurfaceQuad& quad) {
            lines.push_back(PolygonLine(quad.corners, rest));
        });
        return lines;
    }
    void GiveTicks(int count) {
        for (TickList& ticks : chart.ticks)
            ticks.Spread(count, {0, 255}, nullptr);
    }

    NoOwner owner;
    Chart3DModel chart;
    const Chart3DFonts fonts;
    Labels labels;
};

TEST_F(Chart3DPaintTest, TheGroundComesFirstAndTheRestStandsUpright) {
    chart.colours[kChart3DGround] = 0x102030;
    const Figures figures = Paint();
    ASSERT_GE(figures.size(), 2U);
    EXPECT_EQ("fill 0,0,500,400 brush 102030", figures[0]);
    EXPECT_EQ("mapping anisotropic window 1,1 viewport 1,-1", figures[1]);
}

TEST_F(Chart3DPaintTest, TheBoxIsBehindTheDataFromEverySide) {
    AddPlot(2, 2);
    for (const float yaw : {0.7F, 2.3F, 3.9F, 5.5F}) {
        for (const float pitch : {-0.5F, 0.5F}) {
            chart.space.rotation = {pitch, yaw, 0};
            Figures polygons = FiguresOfKind(Paint(), "polygon");
            ASSERT_EQ(4U, polygons.size());
            polygons.pop_back();
            EXPECT_EQ(BoxLines(), polygons);
        }
    }
}

TEST_F(Chart3DPaintTest, EachFacesTicksComeBeforeItsOutline) {
    GiveTicks(5);
    Figures expected;
    for (const FaceFigure& face : Faces()) {
        for (const TickLine& tick : face.ticks)
            expected.push_back(
                Printed("line %d,%d to %d,%d pen 2 0 969696", tick.from.x, tick.from.y, tick.to.x, tick.to.y));
        expected.push_back(PolygonLine(face.corners, "pen 0 1 969696 brush none"));
    }
    Figures drawn = Paint();
    std::erase_if(drawn,
                  [](const std::string& line) { return !line.starts_with("line") && !line.starts_with("polygon"); });
    EXPECT_EQ(expected, drawn);
    chart.style &= ~std::uint32_t{kChart3DTickLines};
    EXPECT_TRUE(FiguresOfKind(Paint(), "line").empty());
}

TEST_F(Chart3DPaintTest, LabelsThatFitAreDrawnInTheirAxesColours) {
    GiveTicks(60);
    chart.colours[kChart3DXLabels] = 0x000001;
    chart.colours[kChart3DDepthLabels] = 0x000002;
    chart.colours[kChart3DVerticalLabels] = 0x000003;
    chart.title.clear();
    const int rise = YUpTextMeasure(MemoryDc().Get(), fonts.tick.Get()).Measure("0").height / 2;
    Figures expected;
    for (const FaceFigure& face : Faces()) {
        for (const TickLine& tick : face.ticks) {
            if (!tick.label) continue;
            expected.push_back(
                Printed("text %d,%d align %d font Arial 12 400 2 32 colour 00000%d transparent: ", tick.label->at.x,
                        tick.label->at.y + rise, tick.label->side == TextSide::kLeft ? TA_RIGHT : TA_LEFT,
                        static_cast<int>(tick.axis) + 1) +
                tick.label->text);
        }
    }
    EXPECT_LT(expected.size(), 150U) << "of 300: the others have no room";
    Figures texts = FiguresOfKind(Paint(), "text");
    std::erase_if(texts, [](const std::string& line) { return line.ends_with(": "); });  // titles without a text
    EXPECT_EQ(expected, texts);
}

TEST_F(Chart3DPaintTest, AxesTitlesStandWhereTheModelHasThem) {
    chart.axisTitles = {"Speed", "Load", "Trim"};
    chart.colours[kChart3DDepthTitle] = 0x00000A;
    const Figures texts = FiguresOfKind(Paint(), "text");
    const auto places = AxisTitlesOf(chart, chart.Seen());
    for (std::size_t i = 0; i < places.size(); ++i) {
        const AxisTitle& title = places[i];
        const int align = title.side == TextSide::kCentred ? TA_CENTER
                          : title.side == TextSide::kLeft  ? TA_RIGHT
                                                           : TA_LEFT;
        const std::string expected =
            Printed("text %d,%d align %d font Arial 12 600 2 32 colour %s transparent: %s", title.at.x, title.at.y,
                    align, title.axis == kDepthAxis ? "00000a" : "787878", chart.axisTitles[title.axis].c_str());
        EXPECT_EQ(expected, texts.at(i));
    }
}

TEST_F(Chart3DPaintTest, TitlesStandAtTheTop) {
    chart.style |= kChart3DSubtitle;
    Figures texts = FiguresOfKind(Paint(), "text");
    ASSERT_GE(texts.size(), 2U);
    EXPECT_EQ("text 250,398 align 6 font Arial 12 100 2 32 colour c8c8c8 transparent: v2.0", texts[texts.size() - 2]);
    EXPECT_EQ("text 250,384 align 6 font Arial 18 700 2 32 colour 000000 transparent: 3D Chart", texts.back());
    chart.style &= ~std::uint32_t{kChart3DSubtitle};
    EXPECT_EQ(texts.size() - 1, FiguresOfKind(Paint(), "text").size());
    chart.title = std::string(100, 'w');
    const std::string cut = FiguresOfKind(Paint(), "text").back();
    const std::string shown = cut.substr(cut.find(": ") + 2);
    EXPECT_TRUE(shown.starts_with("www") && shown.ends_with("w...")) << shown;
    EXPECT_LE(YUpTextMeasure(MemoryDc().Get(), fonts.title.Get()).Measure(shown).width, chart.width);
}

TEST_F(Chart3DPaintTest, AFilledChartShowsItsFirstPlotAndWiresShowAll) {
    const QZChart3DPlot &first = AddPlot(3, 4), &second = AddPlot(4, 2);
    EXPECT_EQ(QuadLines(first, "pen 0 1 000000 brush 0000ff"), Quads(Paint()));
    chart.plots[0]->setFlags(kPlotHidden, 0);
    chart.plots[1]->setLineWidth(3);
    chart.plots[1]->setColor(kPlotLineColour, 0x00FF00);
    chart.plots[1]->setColor(kFaceColour, 0xABCDEF);
    EXPECT_EQ(QuadLines(second, "pen 0 3 00ff00 brush abcdef"), Quads(Paint()));
    chart.plots[0]->clearFlags(kPlotHidden, 0);
    chart.style |= kChart3DWireframe;
    Figures expected = QuadLines(first, "pen 0 1 000000 brush none");
    for (const std::string& line : QuadLines(second, "pen 0 3 00ff00 brush none"))
        expected.push_back(line);
    EXPECT_EQ(expected, Quads(Paint()));
}

TEST_F(Chart3DPaintTest, HeightsAreColouredByTheRampOfPlotOrChart) {
    QZChart3DPlot& plot = AddPlot(2, 2);
    plot.setFlags(kPlotColourHeight, 0);
    const auto brush = [&] { return Quads(Paint()).front().substr(Quads(Paint()).front().find("brush")); };
    ColorRamp ramp;
    ramp.setRange(0, 255);
    EXPECT_EQ(Printed("brush %06x", ramp.map(127.5F)), brush()) << "of the plot";
    plot.setType(kRampOfChart);
    chart.space.ranges[kVerticalAxis] = {0, 130};
    ramp.setRange(0, 130);
    EXPECT_EQ(Printed("brush %06x", ramp.map(127.5F)), brush()) << "of the chart";
}

TEST_F(Chart3DPaintTest, PointsAreDrawnOnTheSurfaceWhenSelectedOrWanted) {
    QZChart3DPlot& plot = AddPlot(1, 3);
    plot.setColor(kPointColour, 0x00000C);
    plot.setPointRadius(5);
    EXPECT_TRUE(FiguresOfKind(Paint(), "ellipse").empty()) << "none is selected";
    plot.selectPoint(0, 1, 1, 0);
    const auto line = [&](int column, const char* rest) {
        const YUpPoint at = chart.Seen().Project(plot.At(0, column)).at;
        return Printed("ellipse %d,%d,%d,%d %s", at.x - 5, at.y - 5, at.x + 5, at.y + 5, rest);
    };
    EXPECT_EQ(Figures{line(1, "pen 0 2 000000 brush ff0000")}, FiguresOfKind(Paint(), "ellipse"));
    EXPECT_EQ(3U, FiguresOfKind(Paint(), "polygon").size()) << "the box: one row has no quads";
    plot.setFlags(kPlotAllPoints, 0);
    EXPECT_EQ((Figures{line(0, "pen 0 1 000000 brush 00000c"), line(1, "pen 0 2 000000 brush ff0000"),
                       line(2, "pen 0 1 000000 brush 00000c")}),
              FiguresOfKind(Paint(), "ellipse"));
    plot.setFlags(kPlotColourHeight, 0);
    chart.style |= kChart3DWireframe;
    EXPECT_EQ(line(1, "pen 0 2 000000 brush ff0000"), FiguresOfKind(Paint(), "ellipse").at(1))
        << "the start colour: no range";
    plot.setFlags(kPlotNoPoints, 0);
    EXPECT_TRUE(FiguresOfKind(Paint(), "ellipse").empty());
}

TEST_F(Chart3DPaintTest, WiresColourTheirPointsByHeight) {
    QZChart3DPlot& plot = AddPlot(3, 1);
    plot.setFlags(kPlotColourHeight | kPlotAllPoints, 0);
    chart.style |= kChart3DWireframe;
    ColorRamp ramp;
    ramp.setRange(0, 255);
    const Figures points = FiguresOfKind(Paint(), "ellipse");
    ASSERT_EQ(3U, points.size());
    for (std::size_t row = 0; row < 3; ++row)
        EXPECT_TRUE(points[row].ends_with(Printed("brush %06x", ramp.map(127.5F * static_cast<float>(row)))))
            << points[row];
}

TEST_F(Chart3DPaintTest, TheSelectionLabelStandsAtTheUpperRight) {
    QZChart3DPlot& plot = AddPlot(2, 2);
    EXPECT_TRUE(FiguresOfKind(Paint(), "rectangle").empty());
    plot.selectPoint(0, 0, 1, 0);
    chart.lastSelected = &plot;
    const auto check = [&](const char* text) {
        const Figures figures = Paint();
        const YUpSize size = YUpTextMeasure(MemoryDc().Get(), fonts.selection.Get()).Measure(text);
        const int left = 480 - size.width;
        EXPECT_EQ(
            Figures{Printed("rectangle %d,12,483,%d pen 0 0 000000 brush 9efafe", left - 3, 15 + size.height + 3)},
            FiguresOfKind(figures, "rectangle"));
        EXPECT_EQ(Printed("text %d,15 align 0 font Arial 14 400 2 32 colour 000000 transparent: %s", left, text),
                  FiguresOfKind(figures, "text").back());
    };
    check("1 Point Selected");
    labels.own = "cell 0, 0";
    check("cell 0, 0");
}

TEST_F(Chart3DPaintTest, TheBandDrawnTwiceLeavesThePictureAsItWas) {
    const TestBitmap bitmap(500, 400, RGB(0, 0, 0));
    const auto before = bitmap.Pixels();
    const auto paint = [&] { PaintChartBand(bitmap.Dc(), chart, chart.height); };
    paint();
    EXPECT_EQ(before, bitmap.Pixels()) << "no band";
    chart.band = YUpBox{{10, 350}, {200, 20}};
    paint();
    EXPECT_EQ(0xFFFFFFU, bitmap.At(10, 100)) << "its left edge";
    EXPECT_EQ(0U, bitmap.At(100, 100)) << "inside";
    EXPECT_EQ(0xFFFFFFU, bitmap.At(100, 400 - 350)) << "upward from below";
    paint();
    EXPECT_EQ(before, bitmap.Pixels());
}

TEST_F(Chart3DPaintTest, APaintLeavesTheContextAsItWas) {
    AddPlot(3, 3).selectPoint(0, 0, 1, 0);
    GiveTicks(4);
    chart.band = YUpBox{{1, 1}, {9, 9}};
    const MemoryDc dc;
    const auto state = [&] {
        return std::array{::GetMapMode(dc.Get()),
                          static_cast<int>(::GetTextAlign(dc.Get())),
                          ::GetBkMode(dc.Get()),
                          ::GetROP2(dc.Get()),
                          static_cast<int>(::GetTextColor(dc.Get())),
                          static_cast<int>(::GetBkColor(dc.Get()))};
    };
    const auto before = state();
    const HGDIOBJ pen = ::GetCurrentObject(dc.Get(), OBJ_PEN), font = ::GetCurrentObject(dc.Get(), OBJ_FONT);
    PaintChart3D(dc.Get(), chart, fonts, labels);
    PaintChartBand(dc.Get(), chart, chart.height);
    EXPECT_EQ(before, state());
    EXPECT_EQ(pen, ::GetCurrentObject(dc.Get(), OBJ_PEN));
    EXPECT_EQ(font, ::GetCurrentObject(dc.Get(), OBJ_FONT));
}

}  // namespace
}  // namespace corvex
