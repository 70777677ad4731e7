// What every control that draws itself keeps to, whatever it shows. A new one is a row more.
#include <gtest/gtest.h>

#include <functional>
#include <ostream>

#include "controls/RegisterControlClasses.h"
#include "controls/analoggauge/AnalogGauge.h"
#include "controls/analoggauge/AnalogGaugePaint.h"
#include "controls/chart/ChartPaint.h"
#include "controls/chart2d/Chart2D.h"
#include "controls/chart2d/Chart2DPaint.h"
#include "controls/chart3d/Chart3D.h"
#include "controls/chart3d/Chart3DPaint.h"
#include "controls/datachart/DataChart.h"
#include "controls/datachart/DataChartPaint.h"
#include "controls/digitalreadout/DigitalReadout.h"
#include "controls/digitalreadout/DigitalReadoutPaint.h"
#include "controls/grid/Grid.h"
#include "controls/grid/GridPaint.h"
#include "controls/proptree/PropTreeContainer.h"
#include "controls/richstatic/RichStatic.h"
#include "controls/richstatic/RichStaticPaint.h"
#include "controls/scope/Scope.h"
#include "controls/scope/ScopePaint.h"
#include "controls/statusgauge/StatusGauge.h"
#include "controls/statusgauge/StatusGaugePaint.h"
#include "controls/tabsheet/TabSheet.h"
#include "controls/textprogress/TextProgress.h"
#include "controls/textprogress/TextProgressPaint.h"
#include "controls/window/ControlWindow.h"
#include "tests/controls/window/ShownControl.h"

namespace corvex {
namespace {

constexpr int kNullBrush = -2;

struct ControlKind {
    const char* name;
    UINT style;
    int background;  // a system colour, or -1 for none; or kNullBrush, and then it has no pointer either
    // Shows this much of something at once, with one paint; no two of 0 to 9 look alike.
    std::function<void(HWND, int)> show = nullptr;
    // The same things by its paint function.
    std::function<void(HDC, const RECT&)> paint = nullptr;
    std::vector<UINT> foreign = {};  // numbers among its own that other controls have
    UINT menuCode = 0;
    const char* toldText = "text";  // when that was set
};
void PrintTo(const ControlKind& kind, std::ostream* out) {
    *out << kind.name;
}

void ShowOnDial(HWND window, int value) {
    const auto number = static_cast<float>(15 * value);
    const GaugeAlarmBand band{1.0F, 9.0F, 0x0000FF};
    ::SendMessageA(window, AGM_SETTITLE, W("Coolant"), 7);
    ::SendMessageA(window, AGM_SETALARM, 0, L(&band));
    ::SendMessageA(window, AGM_SETVALUE, W(&number), TRUE);
}

void ShowOnLamp(HWND window, int value) {
    const std::string text = std::to_string(value);
    ::SendMessageA(window, SGM_SETTITLE, W("Fan"), 3);
    ::SendMessageA(window, SGM_SETTRUETEXT, W(text.c_str()), static_cast<LPARAM>(text.size()));
    ::SendMessageA(window, SGM_SETSTATE, 1, TRUE);
}

void ShowOnChart(HWND window, int value) {
    ::SetWindowTextA(window, std::to_string(value).c_str());
    ::SendMessageA(window, DCM_RELAYOUT, 0, 0);
}

void PaintNewChart(HDC dc, const RECT& area) {
    DataChartModel chart;
    DataChartAxis& axis = *chart.AddAxis();
    DataChartSeries& series = *chart.AddSeries();
    series.setYAxis(&axis);
    for (const float x : {0.0F, 10.0F})
        series.addSample(x, x);
    const DataChartFonts fonts(dc);
    const auto layout = chart.LayOut(area.right, area.bottom, fonts, nullptr);
    PaintChartBackground(dc, *layout, chart, fonts);
    PaintChartLines(dc, chart, layout->plot);
}

void ShowOnGrid(HWND window, int value) {
    ::SendMessageA(window, GRM_SETCOLOR, kGridHeadingFill, RGB(20 * value, 0, 0));
}

void PaintNewGrid(HDC dc, const RECT& area) {
    GridModel grid(0xF0F0F0);
    grid.title = "Title";
    grid.titleHeight = 20;
    grid.cells.At(1, 1).SetText("text");
    grid.clientWidth = static_cast<int>(area.right);
    grid.clientHeight = static_cast<int>(area.bottom);
    grid.FindVisible();
    PaintGrid(dc, grid, GridFonts(), area);
}

void ShowIn3D(HWND window, int value) {
    const float angles[] = {0.1F * static_cast<float>(value + 1), 0.5F, 0.0F};
    ::SendMessageA(window, CH3M_SETROTATION, W(angles), TRUE);
}

class NoLabels final : public IChart3DLabels {
    std::optional<std::string> LabelOf(ChartLabelKind, const Point3D&, QZChart3DPlot*, int, int) override {
        return std::nullopt;
    }
};

void PaintNewChart3D(HDC dc, const RECT& area) {
    Chart3DModel chart;
    chart.width = static_cast<int>(area.right);
    chart.height = static_cast<int>(area.bottom);
    chart.band = YUpBox{{10, 10}, {20, 20}};
    NoLabels labels;
    PaintChart3D(dc, chart, Chart3DFonts(), labels);
    PaintChartBand(dc, chart, chart.height);
}

// It leaves its painting to its thread's own time.
void ShowOnScope(HWND window, int value) {
    CarryCall(window, [&](ControlWindow&) {
        ::SendMessageA(window, SCM_SETTEXTCOLOR, 0, RGB(20 * value + 20, 0, 0));
        ::UpdateWindow(window);
    });
}

void PaintNewScope(HDC dc, const RECT& area) {
    ScopeModel scope;
    scope.message = "message";
    scope.SetClient(static_cast<int>(area.right), static_cast<int>(area.bottom));
    const ScopeFrame frame = scope.LayOut();
    const ScopeFonts fonts;
    const OwnedPen pen(::CreatePen(PS_SOLID, 0, scope.traceColour));
    const HBRUSH ground = static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH));
    PaintScopeFrame(dc, frame, scope, fonts);
    ScopeTrace(dc, frame, ground).Draw(*scope.AddSample(5.0), ground, pen.Get());
    PaintScopeMessage(dc, scope, fonts);
}

void ShowIn2D(HWND window, int value) {
    ::SendMessageA(window, CH2M_SETCOLOR, kChart2DAxisLines, RGB(20 * value, 0, 0));
    ::SendMessageA(window, CH2M_REPAINT, 0, 0);
}

class NoLabels2D final : public IChart2DLabels {
    std::optional<std::string> LabelOf(ChartLabelKind, const Point2D&, QZChart2DSeries*, int) override {
        return std::nullopt;
    }
};

void PaintNewChart2D(HDC dc, const RECT& area) {
    Chart2DModel chart;
    chart.width = static_cast<int>(area.right);
    chart.height = static_cast<int>(area.bottom);
    NoLabels2D labels;
    PaintChart2D(dc, chart, Chart2DFonts(), labels);
}

template <class Model, auto kPaint>
void PaintNew(HDC dc, const RECT& area) {
    kPaint(dc, area, Model());
}

void PaintTwoTones(HDC dc, const RECT& area) {
    TextProgressModel model;
    model.position = 100;
    model.label.SetText("MMM");
    model.label.SetTextColour(kNoColour);
    model.label.SetBackColour(0xFFFFFF);
    PaintTextProgress(dc, area, model);
}

const ControlKind kKinds[] = {
    {kAnalogGaugeClass,
     CS_DBLCLKS,
     COLOR_WINDOW,
     &ShowOnDial,
     [](HDC dc, const RECT& area) { PaintAnalogGauge(dc, area, AnalogGaugeModel()); },
     {1523, 1525, 1530, 1531, 1535, 1536, 1547},
     1574},
    {kDigitalReadoutClass,
     0,
     COLOR_WINDOW,
     [](HWND window, int value) { DigitalReadoutSetValueInt(window, value + 1); },
     &PaintNew<DigitalReadoutModel, &PaintDigitalReadout>,
     {WM_APP, WM_APP + 5, 1524, 1532},
     1424},
    {kStatusGaugeClass,
     CS_DBLCLKS,
     COLOR_WINDOW,
     &ShowOnLamp,
     &PaintNew<StatusGaugeModel, &PaintStatusGauge>,
     {1523, 1525, 1527, 1528, 1530, 1537},
     1574},
    {kDataChartClass, CS_DBLCLKS, COLOR_WINDOW, &ShowOnChart, &PaintNewChart, {1482}, kDataChartMenuCode, ""},
    {kGridClass, CS_DBLCLKS, kNullBrush, &ShowOnGrid, &PaintNewGrid, {GRM_RESERVED, 1323, 1369}},
    {kChart2DClass, CS_DBLCLKS, COLOR_WINDOW, &ShowIn2D, &PaintNewChart2D, {1134, 1146, 1150, 1175, 1247, 1323}},
    {kChart3DClass,
     CS_DBLCLKS,
     COLOR_WINDOW,
     &ShowIn3D,
     &PaintNewChart3D,
     {1243, 1265, 1266, 1267, 1281, 1297, 1323},
     kChart3DMenuWanted},
    {kScopeClass, 0, COLOR_WINDOW, &ShowOnScope, &PaintNewScope, {1031, 1047}, kScopeMenuCode},
    {kRichStaticClass, CS_HREDRAW | CS_VREDRAW, -1,
     [](HWND window, int value) { ::SetWindowTextA(window, std::to_string(value).c_str()); },
     &PaintNew<RichStaticModel, &PaintRichStatic>},
    {kTextProgressClass, CS_HREDRAW | CS_VREDRAW, -1,
     [](HWND window, int value) { ::SendMessageA(window, TPM_SETPOS, static_cast<WPARAM>(value * 20 + 20), 0); },
     &PaintTwoTones},
};

class ControlContractTest : public ::testing::TestWithParam<ControlKind> {
protected:
    HWND Window() const { return control.Window(); }

    const ControlKind& kind = GetParam();
    const bool registered = RegisterControlClasses(::GetModuleHandleA(nullptr));
    ShownControl control{kind.name, 120, 90, 0x12345};
};

TEST_P(ControlContractTest, EraseIsLeftToThePaint) {
    control.Mark();
    EXPECT_EQ(control.Send(WM_ERASEBKGND, W(ClientDc(Window()).Get())), 1);
    EXPECT_EQ(ColoursOf(Window()).size(), 1U);
    EXPECT_TRUE(control.HasMark());
}

TEST_P(ControlContractTest, EveryPixelIsPaintedInEverySize) {
    for (const SIZE& size : {SIZE{60, 60}, SIZE{300, 300}, SIZE{500, 200}, SIZE{60, 300}}) {
        control.Resize(size.cx, size.cy);
        control.Mark();
        control.Repaint();
        EXPECT_FALSE(control.HasMark()) << size.cx << " by " << size.cy;
    }
}

TEST_P(ControlContractTest, WhatIsToldFromAnotherThreadIsPaintedByTheOwnerWhenTheCallReturns) {
    int late = 0;
    control.Spy().Forget();
    ASSERT_TRUE(WhilePumping([&] {
        for (int i = 0; i < 100; ++i)
            late += control.PaintsIn([&] { kind.show(Window(), i % 10); }) == 1 ? 0 : 1;
    }));
    EXPECT_EQ(late, 0);
    for (const HeardMessage& heard : control.Spy().Heard())
        ASSERT_EQ(heard.thread, ::GetCurrentThreadId()) << heard.message;
    const auto last = TestBitmap(Window()).Pixels();
    kind.show(Window(), 3);
    EXPECT_NE(TestBitmap(Window()).Pixels(), last);
}

TEST_P(ControlContractTest, ThousandPaintsAndTheEndLeaveNothingBehind) {
    ::DestroyWindow(Window());
    const std::size_t before = LiveGdiObjects();
    ShownControl painted(kind.name, 40, 40);
    kind.show(painted.Window(), 9);
    const std::size_t owned = LiveGdiObjects(), all = AllGdiObjects();
    EXPECT_EQ(painted.PaintsIn([&] {
        for (int i = 0; i < 1000; ++i)
            kind.show(painted.Window(), i % 10);
    }),
              1000);
    EXPECT_EQ(LiveGdiObjects(), owned);
    EXPECT_EQ(AllGdiObjects(), all);
    ::DestroyWindow(painted.Window());
    EXPECT_EQ(LiveGdiObjects(), before);
}

TEST_P(ControlContractTest, PaintLeavesTheContextAsItWasAndNoObjectBehind) {
    const TestBitmap bitmap(120, 90, 0);
    const std::size_t before = LiveGdiObjects();
    const auto selected = [&] {
        std::vector<HGDIOBJ> objects;
        for (const UINT type : {OBJ_PEN, OBJ_BRUSH, OBJ_FONT, OBJ_BITMAP})
            objects.push_back(::GetCurrentObject(bitmap.Dc(), type));
        return objects;
    };
    const auto own = selected();
    for (int i = 0; i < 1000; ++i)
        kind.paint(bitmap.Dc(), RECT{0, 0, 120, 90});
    EXPECT_EQ(LiveGdiObjects(), before);
    EXPECT_EQ(selected(), own);
    EXPECT_EQ(::GetMapMode(bitmap.Dc()), MM_TEXT);
    EXPECT_EQ(::SetPixel(bitmap.Dc(), 2, 2, 0x00FF00), 0x00FF00U) << "clipped";
}

TEST_P(ControlContractTest, NumbersOfOthersAreNotItsOwn) {
    float value = 5.0F;
    for (const UINT message : kind.foreign) {
        EXPECT_EQ(control.PaintsIn([&] { EXPECT_EQ(control.Send(message, W(&value), 0), 0); }), 0) << message;
        EXPECT_EQ(value, 5.0F) << message;
    }
    EXPECT_EQ(control.Send(WM_SETTEXT, 0, L("text")), TRUE);
    EXPECT_EQ(TextOfWindow(Window()), kind.toldText);
}

TEST_P(ControlContractTest, MenuIsAskedOfTheParentWhichMayDestroyIt) {
    if (kind.menuCode == 0) return;
    const WPARAM asked = kind.menuCode << 16 | 0x2345;
    EXPECT_EQ(control.Send(WM_CONTEXTMENU, W(Window()), MAKELPARAM(-5, 700)), 0);
    control.Send(WM_RBUTTONUP, 0, MAKELPARAM(3, 4));
    POINT place{3, 4};
    ::ClientToScreen(Window(), &place);
    ASSERT_EQ(control.Commands().size(), 2U);
    EXPECT_EQ(control.Commands()[0].wParam, asked);
    EXPECT_EQ(control.Commands()[0].lParam, static_cast<LPARAM>(MAKELPARAM(-5, 700)));
    EXPECT_EQ(control.Commands()[1].lParam, static_cast<LPARAM>(MAKELPARAM(place.x, place.y)));
    EXPECT_EQ(control.Parent().Count(WM_CONTEXTMENU), 0);
    control.Parent().handler = [&](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
        if (message == WM_COMMAND) ::DestroyWindow(Window());
        return std::nullopt;
    };
    EXPECT_EQ(control.Send(WM_CONTEXTMENU), 0);
    EXPECT_FALSE(::IsWindow(Window()));
}

INSTANTIATE_TEST_SUITE_P(Each, ControlContractTest, ::testing::ValuesIn(kKinds),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(ControlClassesTest, AreRegisteredAsTold) {
    const HINSTANCE instance = ::GetModuleHandleA(nullptr);
    ASSERT_TRUE(RegisterControlClasses(instance));
    ASSERT_TRUE(RegisterControlClasses(instance)) << "a second time";
    std::vector<ControlKind> kinds(std::begin(kKinds), std::end(kKinds));
    kinds.push_back({kTabSheetClass, CS_HREDRAW | CS_VREDRAW, COLOR_BTNFACE});
    kinds.push_back({kPropTreeClass, 0, COLOR_BTNFACE});
    for (const ControlKind& kind : kinds) {
        SCOPED_TRACE(kind.name);
        WNDCLASSA windowClass{};
        ASSERT_TRUE(::GetClassInfoA(instance, kind.name, &windowClass));
        EXPECT_EQ(windowClass.style, kind.style);
        EXPECT_EQ(windowClass.cbWndExtra, static_cast<int>(sizeof(void*)));
        if (kind.background == kNullBrush) {
            EXPECT_EQ(windowClass.hbrBackground, ::GetStockObject(NULL_BRUSH));
            EXPECT_EQ(windowClass.hCursor, nullptr);
            continue;
        }
        EXPECT_EQ(reinterpret_cast<UINT_PTR>(windowClass.hbrBackground), static_cast<UINT_PTR>(kind.background + 1));
        EXPECT_EQ(windowClass.hCursor, ::LoadCursorA(nullptr, MAKEINTRESOURCEA(32512)));
    }
}

}  // namespace
}  // namespace corvex
