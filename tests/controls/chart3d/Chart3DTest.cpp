#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <random>

#include "controls/chart3d/Chart3D.h"
#include "controls/window/GdiObjects.h"
#include "tests/controls/chart/ChartWindowTest.h"

namespace corvex {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr int kHeight = 200;

WPARAM At(int index) {
    return static_cast<WPARAM>(index);
}

// Where a point of the y-up space lies for the mouse.
LPARAM Place(int x, int y) {
    return MAKELPARAM(x, kHeight - y);
}

struct ToldOfChart {
    ToldOfChart(UINT tellsCode, IQZChart3DPlot* tellsPlot, int tellsRow, int tellsColumn)
        : code(tellsCode), plot(tellsPlot), row(tellsRow), column(tellsColumn) {}
    explicit ToldOfChart(const Chart3DNotification& block)
        : ToldOfChart(block.header.code, block.plot, block.row, block.column) {}
    UINT code;
    IQZChart3DPlot* plot;
    int row, column;
    friend bool operator==(const ToldOfChart&, const ToldOfChart&) = default;
};
void PrintTo(const ToldOfChart& told, std::ostream* out) {
    *out << told.code << " " << told.plot << " " << told.row << " " << told.column;
}

// A chart of 300 by 200 pixels, unturned, with its box at 0, 0: a point stands at its x and its height. One plot of 2
// rows and 2 columns has points at 50 and 100.
class Chart3DTest : public ChartWindowTest<Chart3DNotification, ToldOfChart> {
protected:
    Chart3DTest() : ChartWindowTest(RegisterOnce(), 300, kHeight) {
        const float size = 255.0F, none[3] = {};
        Send(CH3M_SETBOXSIZE, 0, L(&size));
        Send(CH3M_SETROTATION, W(none));
        Send(CH3M_SETTRANSLATION, W(none));
        plot = AddPlot();
    }
    static const char* RegisterOnce() {
        Chart3D::Register(::GetModuleHandleA(nullptr));
        return kChart3DClass;
    }
    IQZChart3DPlot* AddPlot() const {
        auto* const added = reinterpret_cast<IQZChart3DPlot*>(Send(CH3M_ADDPLOT, 99, 0));
        added->setGridSize(2, 2);
        for (int i = 0; i < 4; ++i)
            added->setPoint(i / 2, i % 2,
                            {50.0F * static_cast<float>(i % 2 + 1), 0, 50.0F * static_cast<float>(i / 2 + 1)}, 0);
        return added;
    }
    std::vector<float> Floats(UINT message, bool isVector) const {
        std::vector<float> values(3, -77.0F);
        Send(message, W(values.data()), isVector ? 0 : L(&values[1]));
        return values;
    }

    IQZChart3DPlot* plot = nullptr;
};

TEST_F(Chart3DTest, AnswersEachMessage) {
    const auto add = [&](int index) { return Send(CH3M_ADDPLOT, At(index), FALSE); };
    const LPARAM first = add(0), last = add(99);
    const struct {
        UINT message;
        WPARAM wParam;
        LPARAM lParam, result;
    } cases[] = {
        {CH3M_GETSTYLE, 0, 0, 0x461},
        {CH3M_CLEARSTYLE, 0x61, TRUE, 0},
        {CH3M_GETSTYLE, 0, 0, 0x400},
        {CH3M_SETSTYLE, 0x4000, 0, 0},
        {CH3M_GETSTYLE, 0, 0, 0x4400},
        {CH3M_SETSTYLE, 0, 0, 0},
        {CH3M_GETSTYLE, 0, 0, 0},
        {CH3M_REPAINT, 0, 0, 0},
        {CH3M_GETPLOTCOUNT, 0, 0, 3},
        {CH3M_GETPLOT, 0, 0, first},
        {CH3M_GETPLOT, 1, 0, L(plot)},
        {CH3M_GETPLOT, 2, 0, last},
        {CH3M_GETPLOT, 3, 0, 0},
        {CH3M_GETPLOT, static_cast<WPARAM>(-1), 0, 0},
        {CH3M_DELETEPLOT, static_cast<WPARAM>(first), TRUE, 1},
        {CH3M_DELETEPLOT, static_cast<WPARAM>(first), TRUE, 0},
        {CH3M_DELETEPLOT, 0, TRUE, 0},
        {CH3M_GETPLOTCOUNT, 0, 0, 2},
        {CH3M_GETCOLOR, 0, 0, 0xFFFFFF},
        {CH3M_SETCOLOR, 17, 0x123456, 0},
        {CH3M_GETCOLOR, 17, 0, 0x123456},
        {CH3M_SETCOLOR, 12, 0x123456, 0},
        {CH3M_GETCOLOR, 12, 0, 0},
        {CH3M_GETXTICKCOUNT, 0, 0, 0},
        {CH3M_SETXTICKCOUNT, 0, 3, 0},
        {CH3M_SETDEPTHTICKCOUNT, 0, 4, 0},
        {CH3M_SETVERTTICKCOUNT, 0, 5, 0},
        {CH3M_SETVERTTICKCOUNT, 0, -1, 0},
        {CH3M_GETXTICKCOUNT, 0, 0, 3},
        {CH3M_GETDEPTHTICKCOUNT, 0, 0, 4},
        {CH3M_GETVERTTICKCOUNT, 0, 0, 5},
        {CH3M_SETXTICK, 0, 0, 0},
        {CH3M_GETXTICK, 0, 0, 0},
        {CH3M_SETSUBTITLE, 0, 0, 0},
        {CH3M_SETSUBTITLE, 0, L("under"), 0},
        {CH3M_SETLABELCALLBACK, 0, 0, 0},
        {WM_GETDLGCODE, 0, 0, 0x85},
        {WM_ERASEBKGND, 0, 0, 1},
        {WM_MOUSEACTIVATE, 0, 0, 1},
    };
    for (const auto& one : cases)
        EXPECT_EQ(Send(one.message, one.wParam, one.lParam), one.result) << one.message << " " << one.wParam;
    EXPECT_EQ(::GetFocus(), window);
    EXPECT_EQ(told, std::vector<ToldOfChart>{});
}

TEST_F(Chart3DTest, NumbersComeAndGoByPointers) {
    float low = 1.5F, high = 2.5F, three[] = {1.0F, 2.0F, 3.0F};
    for (const UINT set : {CH3M_SETXRANGE, CH3M_SETDEPTHRANGE, CH3M_SETVERTRANGE, CH3M_SETXLIMITS, CH3M_SETDEPTHLIMITS,
                           CH3M_SETVERTLIMITS}) {
        EXPECT_EQ(Floats(set + 1, false), (std::vector{0.0F, 255.0F, -77.0F}));
        Send(set, W(&low), 0);
        EXPECT_EQ(Floats(set + 1, false), (std::vector{low, 255.0F, -77.0F}));
        Send(set, 0, L(&high));
        EXPECT_EQ(Floats(set + 1, false), (std::vector{low, high, -77.0F}));
        Send(set + 1);
        low += 1.0F;  // so that no two hold the same
        high += 1.0F;
    }
    EXPECT_EQ(Floats(CH3M_GETXRANGE, false)[0], 1.5F);
    for (const UINT set : {CH3M_SETROTATION, CH3M_SETTRANSLATION}) {
        EXPECT_EQ(shown.PaintsIn([&] { Send(set, W(three), TRUE); }), 1);
        EXPECT_EQ(shown.PaintsIn([&] { Send(set, W(three), FALSE); }), 0);
        Send(set, 0, TRUE);
        EXPECT_EQ(Floats(set + 1, true), (std::vector{three[0], 2.0F, 3.0F}));
        Send(set + 1);
        three[0] = 9.0F;
    }
    EXPECT_EQ(Floats(CH3M_GETROTATION, true)[0], 1.0F);
    EXPECT_EQ(shown.PaintsIn([&] { Send(CH3M_SETSCALE, W(&high), TRUE); }), 1);
    Send(CH3M_SETSCALE, 0, TRUE);
    EXPECT_EQ(Floats(CH3M_GETSCALE, true), (std::vector{high, -77.0F, -77.0F}));
    Send(CH3M_SETBOXSIZE, 0, L(&high));
    Send(CH3M_SETBOXSIZE, 0, 0);
    float size = 0.0F;
    Send(CH3M_GETBOXSIZE, 0, L(&size));
    EXPECT_EQ(size, high);
    EXPECT_FLOAT_EQ(Floats(CH3M_GETTRANSLATION, true)[0], (300.0F - high) / 2.0F) << "in the middle again";
    Send(CH3M_SETSTYLE, kChart3DXFollows, 0);
    Send(CH3M_SETXRANGE, W(three), L(three));
    EXPECT_EQ(Floats(CH3M_GETXRANGE, false), (std::vector{50.0F, 100.0F, -77.0F}));
    for (const UINT get : {CH3M_GETBOXSIZE, CH3M_GETSCALE})
        EXPECT_EQ(Send(get), 0);
}

TEST_F(Chart3DTest, TicksAreCopied) {
    char text[64] = "untouched";
    const std::string given(50, 'x');
    Chart3DTick tick{1, 4.5F, const_cast<char*>("label"), 3};
    for (UINT axis = 0; axis < 3; ++axis) {
        Send(CH3M_SETXTICKCOUNT + axis, 0, 2);
        tick.value += 1.0F;
        EXPECT_EQ(Send(CH3M_SETXTICK + axis, 0, L(&tick)), 1);
    }
    Chart3DTick got{9, -1.0F, text, sizeof text};
    EXPECT_EQ(Send(CH3M_GETXTICK, 2, L(&got)), 0);
    EXPECT_EQ(got.value, -1.0F);
    EXPECT_STREQ(text, "untouched");
    for (UINT axis = 0; axis < 3; ++axis) {
        EXPECT_EQ(Send(CH3M_GETXTICK + axis, 1, L(&got)), 1);
        EXPECT_EQ(got.value, 5.5F + static_cast<float>(axis));
        EXPECT_STREQ(text, "lab");
        EXPECT_EQ(Send(CH3M_GETXTICK + axis, 0, L(&got)), 1);
        EXPECT_EQ(got.value, 0.0F);
        EXPECT_STREQ(text, "");
    }
    tick = {0, 1.0F, const_cast<char*>(given.data()), 50};
    Send(CH3M_SETXTICK, 0, L(&tick));
    Send(CH3M_GETXTICK, 0, L(&got));
    EXPECT_EQ(text, given.substr(0, 40));
    got.length = 3;
    Send(CH3M_GETXTICK, 0, L(&got));
    EXPECT_STREQ(text, "xx");
    got.length = 0;
    EXPECT_EQ(Send(CH3M_GETXTICK, 0, L(&got)), 1);
    EXPECT_STREQ(text, "xx");
    got.text = tick.text = nullptr;
    EXPECT_EQ(Send(CH3M_SETXTICK, 0, L(&tick)), 1);
    EXPECT_EQ(Send(CH3M_GETXTICK, 0, L(&got)), 1);
    tick.index = 2;
    EXPECT_EQ(Send(CH3M_SETXTICK, 0, L(&tick)), 0);
}

TEST_F(Chart3DTest, TextsAreNeverReadBeyondTheirRoom) {
    const EdgeOfMemory edge;
    const auto last = [&](std::size_t length) { return edge.Last(length); };
    const float size = 60.0F, angles[] = {-0.5F, 0.707F, 0.0F};
    Send(CH3M_SETBOXSIZE, 0, L(&size));
    Send(CH3M_SETROTATION, W(angles), TRUE);
    for (const UINT message : {CH3M_SETXTITLE, CH3M_SETDEPTHTITLE, CH3M_SETVERTTITLE}) {
        const auto look = TestBitmap(window).Pixels();
        Send(message, W(last(40)), 1000);
        Send(message, W(last(40)), -1);
        EXPECT_EQ(shown.PaintsIn([&] { Send(CH3M_REPAINT); }), 1);
        EXPECT_NE(TestBitmap(window).Pixels(), look) << "it is shown";
        Send(message, W(last(0)), 0);
        Send(message, 0, 5);
    }
    Send(CH3M_SETSUBTITLE, 0, L(last(60)));
    EXPECT_EQ(TextOfWindow(window), "3D Chart");
    EXPECT_EQ(TextOfWindow(ShownControl(kChart3DClass, 9, 9, 7, "Spark").Window()), "Spark");
    const auto look = TestBitmap(window).Pixels();
    Send(CH3M_SETTITLE, 0, L(last(100)));
    EXPECT_EQ(TextOfWindow(window), std::string(100, 'x'));
    Send(CH3M_REPAINT);
    EXPECT_NE(TestBitmap(window).Pixels(), look);
}

struct AskedLabel {
    HWND window;
    std::vector<float> place;
    IQZChart3DPlot* plot;
    int row, column, kind, capacity;
};
std::vector<AskedLabel> asked;

int CALLBACK WriteLabel(HWND window, float x, float y, float z, IQZChart3DPlot* plot, int row, int column, int kind,
                        char* text, int* capacity) {
    asked.push_back({window, {x, y, z}, plot, row, column, kind, *capacity});
    std::memset(text, 'y', static_cast<std::size_t>(*capacity));
    return kind == kXTickLabel ? 0 : 1;
}

TEST_F(Chart3DTest, ThePageWritesLabels) {
    asked.clear();
    Send(CH3M_SETSTYLE, kChart3DAnyTicks);
    Send(CH3M_SETLABELCALLBACK, 0, reinterpret_cast<LPARAM>(&WriteLabel));
    ASSERT_EQ(asked.size(), 18U);
    for (std::size_t i = 0; i < asked.size(); ++i) {
        std::vector<float> place(3, 0.0F);
        place[i / 6] = 255.0F * static_cast<float>(i % 6) / 5.0F;
        EXPECT_EQ(asked[i].place, place);
        EXPECT_EQ(asked[i].kind, 1 << i / 6);
        EXPECT_EQ(asked[i].window, window);
        EXPECT_EQ(asked[i].capacity, 40);
    }
    char text[64] = {};
    Chart3DTick tick{0, 0.0F, text, sizeof text};
    Send(CH3M_GETXTICK, 1, L(&tick));
    EXPECT_STREQ(text, "51.00");
    Send(CH3M_GETDEPTHTICK, 1, L(&tick));
    EXPECT_EQ(text, std::string(40, 'y'));
    asked.clear();
    Send(WM_LBUTTONDOWN, MK_LBUTTON, Place(100, 50));
    ASSERT_FALSE(asked.empty());
    EXPECT_EQ(asked.back().kind, 8);
    EXPECT_EQ(asked.back().place, (std::vector{100.0F, 0.0F, 50.0F}));
    EXPECT_EQ(asked.back().plot, plot);
    EXPECT_EQ(asked.back().row * 10 + asked.back().column, 1);
    asked.clear();
    ::DestroyWindow(window);
    EXPECT_TRUE(asked.empty());
}

TEST_F(Chart3DTest, TheParentIsToldOfPoints) {
    const std::vector<ToldOfChart> selected{{kPointWasSelected, plot, 1, 0}};
    Send(WM_LBUTTONDOWN, MK_LBUTTON, Place(53, 97));
    EXPECT_EQ(told, selected);
    EXPECT_EQ(::GetCapture(), window);
    told.clear();
    Send(WM_MOUSEMOVE, MK_LBUTTON, Place(53, 117));
    EXPECT_EQ(told, (std::vector<ToldOfChart>{{kPointWasMoved, plot, 1, 0}}));
    Point3D point;
    for (const int beyond : {2000, -2000}) {  // of the window
        Send(WM_MOUSEMOVE, MK_LBUTTON, Place(53, beyond));
        plot->getPoint(1, 0, &point);
        EXPECT_EQ(point.z, beyond > 0 ? 255.0F : 0.0F);
    }
    told.clear();
    Send(WM_LBUTTONUP, 0, Place(53, 117));
    EXPECT_EQ(told, (std::vector<ToldOfChart>{{kDragHasEnded, nullptr, 0, 0}}));
    EXPECT_EQ(::GetCapture(), nullptr);
    told.clear();
    plot->selectPoint(0, 0, 1, 0);
    Send(WM_LBUTTONDBLCLK, MK_LBUTTON, Place(50, 0));
    EXPECT_EQ(told, selected) << "anew";
}

TEST_F(Chart3DTest, ModifiersComeWithTheButtonOrByKeys) {
    Send(WM_LBUTTONDOWN, MK_LBUTTON | MK_CONTROL, Place(10, 10));
    Send(WM_MOUSEMOVE, MK_LBUTTON, Place(11, 10));
    EXPECT_EQ(Floats(CH3M_GETROTATION, true), (std::vector{0.0F, 0.01F, 0.0F}));
    Send(WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, Place(10, 10));
    Send(WM_MOUSEMOVE, MK_LBUTTON, Place(10, 12));
    EXPECT_EQ(Floats(CH3M_GETTRANSLATION, true), (std::vector{0.0F, 0.9F, 0.0F}));
    Send(WM_KEYDOWN, VK_CONTROL);
    Send(WM_KEYDOWN, 0xDD);
    EXPECT_EQ(Floats(CH3M_GETSCALE, true)[0], 1.02F);
    Send(WM_KEYUP, VK_SHIFT);
    Send(WM_KEYDOWN, VK_DOWN);
    EXPECT_EQ(Floats(CH3M_GETROTATION, true)[0], 0.05F);
    Send(WM_KILLFOCUS);
    Send(WM_KEYDOWN, VK_DOWN);
    EXPECT_EQ(Floats(CH3M_GETROTATION, true)[0], 0.05F);
}

TEST_F(Chart3DTest, LosingTheMouseEndsTheDragAndShowsThePointer) {
    const int pointer = Cursor();
    const auto begin = [&] {
        Send(WM_LBUTTONDOWN, MK_LBUTTON, Place(50, 50));
        Send(WM_MOUSEMOVE, MK_LBUTTON, Place(50, 60));
        Send(WM_MOUSEMOVE, MK_LBUTTON, Place(50, 50));
        EXPECT_EQ(Cursor(), pointer - 1);
        told.clear();
    };
    begin();
    ::SetCapture(shown.Parent().Window());
    EXPECT_EQ(told, (std::vector<ToldOfChart>{{kDragHasEnded, nullptr, 0, 0}}));
    EXPECT_EQ(::GetCapture(), shown.Parent().Window()) << "stays with who took it";
    EXPECT_EQ(Cursor(), pointer);
    ::ReleaseCapture();
    Send(WM_MOUSEMOVE, MK_LBUTTON, Place(50, 90));
    EXPECT_EQ(told.size(), 1U);
    begin();
    ::DestroyWindow(window);
    EXPECT_EQ(Cursor(), pointer);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(Chart3DTest, TheBandIsDrawnAndGoes) {
    Send(CH3M_CLEARSTYLE, kChart3DSelectionLabel);
    Send(CH3M_REPAINT);
    for (const bool isOffscreen : {true, false}) {
        Send(isOffscreen ? CH3M_SETSTYLE : CH3M_CLEARSTYLE, kChart3DOffscreen);
        const auto look = TestBitmap(window).Pixels();
        Send(WM_LBUTTONDOWN, MK_LBUTTON, Place(5, 5));
        Send(WM_MOUSEMOVE, MK_LBUTTON, Place(20, 15));
        EXPECT_EQ(PixelOf(window, 5, kHeight - 10), 0U);
        EXPECT_EQ(PixelOf(window, 12, kHeight - 15), 0U);
        Send(WM_MOUSEMOVE, MK_LBUTTON, Place(20, 25));
        EXPECT_EQ(PixelOf(window, 5, kHeight - 10), 0U);
        EXPECT_EQ(PixelOf(window, 12, kHeight - 15), 0xFFFFFFU) << "where it was";
        Send(WM_LBUTTONUP);
        EXPECT_EQ(TestBitmap(window).Pixels(), look);
    }
    EXPECT_EQ(told, std::vector<ToldOfChart>{});
}

TEST_F(Chart3DTest, NothingIsPaintedWhileRedrawIsOffNorLostByThat) {
    Send(WM_SETREDRAW, FALSE);
    shown.Mark();
    Send(CH3M_REPAINT);
    EXPECT_TRUE(shown.HasMark());
    EXPECT_FALSE(::GetUpdateRect(window, nullptr, FALSE)) << "or the loop of messages would never come to rest";
    Send(WM_SETREDRAW, TRUE);
    EXPECT_TRUE(::GetUpdateRect(window, nullptr, FALSE));
    ::UpdateWindow(window);
    EXPECT_FALSE(shown.HasMark());
    Send(WM_SETREDRAW, FALSE);
    Send(WM_SETREDRAW, TRUE);
    EXPECT_FALSE(::GetUpdateRect(window, nullptr, FALSE));
}

TEST_F(Chart3DTest, StoringAPointPaintsWithTheNextPaint) {
    EXPECT_EQ(shown.PaintsIn([&] {
        plot->setPoint(0, 0, {1.0F, 2.0F, 3.0F}, 1);
        plot->selectPoint(0, 0, 1, 1);
        Send(CH3M_CLEARSELECTION, 0, 1);
    }),
              0);
    EXPECT_TRUE(::GetUpdateRect(window, nullptr, FALSE));
    EXPECT_EQ(shown.PaintsIn([] { Pump(); }), 1);
    EXPECT_EQ(plot->getSelectedCount(), 0);
    Send(CH3M_CLEARSELECTION, 0, 2);
    EXPECT_FALSE(::GetUpdateRect(window, nullptr, FALSE));
}

TEST_F(Chart3DTest, TheParentMayDestroyTheWindowWheneverItIsTold) {
    for (int i = 0; i < 4; ++i) {
        ShownControl other(kChart3DClass, 300, kHeight, 7);
        const auto send = [&](UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
            return other.Send(message, wParam, lParam);
        };
        auto* const own = reinterpret_cast<IQZChart3DPlot*>(send(CH3M_ADDPLOT));
        own->setGridSize(2, 2);
        send(CH3M_SETSTYLE, kChart3DAnyFollows | kChart3DAnyTicks);
        send(CH3M_SETLABELCALLBACK, 0, reinterpret_cast<LPARAM>(&WriteLabel));
        own->setPointRadius(0xFFFF);
        asked.clear();
        int count = 0;
        other.Parent().handler = [&](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
            if (message == WM_NOTIFY && ++count == 1) ::DestroyWindow(other.Window());
            return std::nullopt;
        };
        const std::vector<Point3D> points(4, {1.0F, 2.0F, 3.0F, 1});
        if (i == 0) own->setPoint(0, 0, points[0], 1);
        if (i == 1) own->setPoints(points.data(), 1);
        if (i == 2) send(CH3M_SETSTYLE, kChart3DXFollows, TRUE);
        if (i == 3) send(WM_LBUTTONDOWN, MK_LBUTTON, 0);
        EXPECT_EQ(count, 1) << i;
        EXPECT_FALSE(::IsWindow(other.Window()));
        EXPECT_TRUE(asked.empty()) << "nobody is asked for a window that is gone";
    }
}

// Whatever the numbers, and whatever the parent does meanwhile.
TEST_F(Chart3DTest, StandsEveryMessageInEveryOrder) {
    std::mt19937 random(11);
    const auto next = [&](unsigned below) { return static_cast<unsigned>(random()) % below; };
    const float numbers[] = {0.0F,      1.0F,      -1.0F,  255.0F,
                             3e38F,     -3e38F,    1e-40F, std::numeric_limits<float>::quiet_NaN(),
                             kInfinity, -kInfinity};
    float values[30] = {};  // also the bytes of texts, which have a 0 in the end
    const float size = 120.0F;
    char text[64] = {};
    const auto draw = [&] {
        for (std::size_t i = 0; i < 29; ++i)
            values[i] = next(3) == 0 ? static_cast<float>(next(300)) : numbers[next(std::size(numbers))];
    };
    const auto someone = [&] { return reinterpret_cast<IQZChart3DPlot*>(Send(CH3M_GETPLOT, next(3))); };
    const auto message = [&] {
        const UINT number = CH3M_SETSTYLE + next(CH3M_GETSCALE - CH3M_SETSTYLE + 1);
        Chart3DTick tick{next(9), values[0], text, next(sizeof text)};
        WPARAM wParam = next(8) == 0 ? 0 : W(values);
        LPARAM lParam = next(8) == 0 ? 0 : L(values);
        if (number == CH3M_SETSTYLE) wParam = 1U << next(16);
        if (number == CH3M_SETBOXSIZE && next(9) != 0) lParam = L(&size);  // a large one has many ticks to paint
        if (number == CH3M_DELETEPLOT || (number == CH3M_ADDPLOT && Send(CH3M_GETPLOTCOUNT) > 5))
            return Send(CH3M_DELETEPLOT, W(someone()), next(2));
        if (number == CH3M_ADDPLOT) return static_cast<LRESULT>(AddPlot()->testFlag(1));
        if (number == CH3M_SETLABELCALLBACK) lParam = next(2) == 0 ? 0 : reinterpret_cast<LPARAM>(&WriteLabel);
        if (number >= CH3M_SETXTICKCOUNT && number <= CH3M_SETVERTTICKCOUNT) lParam = static_cast<LPARAM>(next(20));
        if (number >= CH3M_SETXTICK && number <= CH3M_GETVERTTICK) lParam = L(&tick);
        return Send(number, number >= CH3M_GETXTICK && number <= CH3M_GETVERTTICK ? next(9) : wParam, lParam);
    };
    const auto input = [&] {
        const UINT mouse[] = {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_MOUSEMOVE,
                              WM_MOUSEMOVE,   WM_LBUTTONUP,     WM_CAPTURECHANGED};
        const UINT keys[] = {VK_SHIFT, VK_CONTROL, VK_LEFT, VK_UP, VK_RIGHT, VK_DOWN, 0xDB, 0xDD};
        if (next(3) == 0) return Send(next(2) == 0 ? WM_KEYDOWN : WM_KEYUP, keys[next(std::size(keys))]);
        const UINT number = mouse[next(std::size(mouse))];
        if (number == WM_CAPTURECHANGED) return Send(number);
        const auto far = [&] { return next(4) == 0 ? next(0x10000) : next(300); };
        return Send(number, next(16), MAKELPARAM(far(), far()));
    };
    const auto doOne = [&] {
        draw();
        const unsigned what = next(30);
        if (what == 0) {
            shown.Resize(static_cast<int>(next(5) * 100), static_cast<int>(next(5) * 100));
        } else if (what < 12) {
            message();
        } else if (what < 18) {
            const Point3D point{values[0], values[1], values[2], next(2)};
            if (IQZChart3DPlot* const one = someone()) one->setPoint(static_cast<int>(next(3)), 0, point, 1);
        } else {
            input();
        }
    };
    int depth = 0;
    onTold = [&] {
        if (next(3) != 0 || depth == 3) return;
        ++depth;
        doOne();
        --depth;
    };
    const std::size_t objects = LiveGdiObjects();
    const int pointer = Cursor();
    for (int i = 0; i < 2000; ++i) {
        doOne();
        told.clear();
        asked.clear();
    }
    Send(WM_LBUTTONUP);
    EXPECT_EQ(Cursor(), pointer);
    EXPECT_LE(LiveGdiObjects(), objects + 2) << "the bitmap that is kept";
}

}  // namespace
}  // namespace corvex
