#include <gtest/gtest.h>

#include "tests/controls/chart3d/Chart3DWindowTest.h"

namespace corvex {
namespace {

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
