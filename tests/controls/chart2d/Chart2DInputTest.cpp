#include <gtest/gtest.h>

#include "tests/controls/chart2d/Chart2DWindowTest.h"

namespace corvex {
namespace {

struct Asked2D {
    HWND window;
    float x, y;
    IQZChart2DSeries* series;
    int point, kind, capacity;
};
std::vector<Asked2D> asked2D;

int CALLBACK WriteLabel2D(HWND window, float x, float y, IQZChart2DSeries* series, int point, int kind, char* text,
                          int* capacity) {
    asked2D.push_back({window, x, y, series, point, kind, *capacity});
    std::memset(text, 'y', static_cast<std::size_t>(*capacity));
    return kind == kXTickLabel ? 0 : 1;
}

TEST_F(Chart2DTest, ThePageWritesLabels) {
    asked2D.clear();
    const float low = 0.0F, high = 100.0F;
    Send(CH2M_SETXRANGE, W(&low), L(&high));
    Send(CH2M_SETYRANGE, W(&low), L(&high));
    Send(CH2M_SETLABELCALLBACK, 0, reinterpret_cast<LPARAM>(&WriteLabel2D));
    ASSERT_EQ(asked2D.size(), 23U);
    for (std::size_t i = 0; i < asked2D.size(); ++i) {
        const bool isX = i < 11;
        const float value = 100.0F * static_cast<float>(isX ? i : i - 11) / (isX ? 10.0F : 11.0F);
        EXPECT_EQ(asked2D[i].x, isX ? value : 0.0F);
        EXPECT_EQ(asked2D[i].y, isX ? 0.0F : value);
        EXPECT_EQ(asked2D[i].kind, isX ? 1 : 2);
        EXPECT_EQ(asked2D[i].window, window);
        EXPECT_EQ(asked2D[i].series, nullptr);
        EXPECT_EQ(asked2D[i].capacity, 40);
    }
    asked2D.clear();
    Send(CH2M_REPAINT);
    ASSERT_EQ(asked2D.size(), 2U);
    EXPECT_EQ(asked2D[1].kind + asked2D[1].point, 1);
    EXPECT_EQ(asked2D[1].x + asked2D[1].y, 200.0F);
    EXPECT_EQ(asked2D[1].series, series);
    Send(CH2M_SETLABELCALLBACK);
    asked2D.clear();
    Send(CH2M_REPAINT);
    EXPECT_TRUE(asked2D.empty());
}

TEST_F(Chart2DTest, TheParentIsToldOfPointsAndThePointerIsPutOnThem) {
    const int pointer = Cursor();
    ::SetCursorPos(1, 1);
    ::SetWindowPos(shown.Parent().Window(), nullptr, 30, 20, 0, 0, SWP_NOZORDER | SWP_NOSIZE);
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MouseAt(97, 103));
    EXPECT_EQ(::GetCapture(), window);
    Send(WM_MOUSEMOVE, MK_LBUTTON, MouseAt(147, 83));
    EXPECT_EQ(Cursor(), pointer - 1);
    EXPECT_EQ(PointAt(1), std::pair(150.0F, 80.0F));
    Send(WM_MOUSEMOVE, MK_LBUTTON, MouseAt(2000, -2000));
    EXPECT_EQ(PointAt(1), std::pair(255.0F, -255.0F));
    Send(WM_LBUTTONUP, 0, MouseAt(2000, -2000));
    EXPECT_EQ(told, (std::vector<ToldOf2D>{{kChart2DPointSelected, series, 1},
                                           {kChart2DPointMoved, series, 1},
                                           {kChart2DPointMoved, series, 1},
                                           {kChart2DDragEnded, nullptr, 0}}));
    EXPECT_EQ(Cursor(), pointer);
    EXPECT_EQ(::GetCapture(), nullptr);
    POINT place{};
    ::GetCursorPos(&place);
    ::ScreenToClient(window, &place);
    EXPECT_EQ(place.x, 325 + 255);
    EXPECT_EQ(place.y, 325 + 255);
    const float beyond = 2000.0F;
    Send(CH2M_SETXLIMITS, 0, L(&beyond));
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MouseAt(255, -255));
    Send(WM_MOUSEMOVE, MK_LBUTTON, MouseAt(1000, -200));
    Send(WM_LBUTTONUP);
    ::GetCursorPos(&place);
    ::ScreenToClient(window, &place);
    EXPECT_EQ(place.x, 325 + 255) << "the point is nowhere to be seen";
    told.clear();
    Send(WM_LBUTTONDBLCLK, MK_LBUTTON, MouseAt(-100, -100));
    EXPECT_EQ(told, (std::vector<ToldOf2D>{{kChart2DPointSelected, series, 0}}));
    EXPECT_EQ(series->getSelectedCount(), 1);
}

TEST_F(Chart2DTest, TheBandIsDrawnAndGoes) {
    for (const bool isOffscreen : {true, false}) {
        Send(isOffscreen ? CH2M_SETSTYLE : CH2M_CLEARSTYLE, kChart2DOffscreen);
        Send(CH2M_REPAINT);
        const auto look = TestBitmap(window).Pixels();
        Send(WM_LBUTTONDOWN, MK_LBUTTON, MouseAt(-320, 300));
        Send(WM_MOUSEMOVE, MK_LBUTTON, MouseAt(-300, 310));
        EXPECT_EQ(PixelOf(window, 5, 20), 0U);
        EXPECT_EQ(PixelOf(window, 12, 15), 0U);
        Send(WM_MOUSEMOVE, MK_LBUTTON, MouseAt(-300, 320));
        EXPECT_EQ(PixelOf(window, 5, 20), 0U);
        EXPECT_EQ(PixelOf(window, 12, 15), 0xFFFFFFU) << "where it was";
        Send(WM_LBUTTONUP);
        EXPECT_EQ(TestBitmap(window).Pixels(), look);
    }
    EXPECT_EQ(told, std::vector<ToldOf2D>{});
}

TEST_F(Chart2DTest, WhatAPageDoesToPointsPaintsWithTheNextPaint) {
    EXPECT_EQ(shown.PaintsIn([&] {
        series->setPoint(0, {1.0F, 2.0F}, 1);
        series->selectPoint(0, 1, 1);
        series->clear();
        Send(CH2M_CLEARSELECTION, 0, 1);
    }),
              0);
    EXPECT_EQ(shown.PaintsIn([] { Pump(); }), 1);
    series->addPoint({0, 0, 0, 1});
    Send(CH2M_CLEARSELECTION, 0, 2);
    EXPECT_EQ(series->getSelectedCount(), 0);
    EXPECT_FALSE(::GetUpdateRect(window, nullptr, FALSE));
}

TEST_F(Chart2DTest, TheParentMayDestroyTheWindowWheneverItIsTold) {
    for (int i = 0; i < 6; ++i) {
        ShownControl other(kChart2DClass, 300, 300, 7, "Trim");
        EXPECT_EQ(TextOfWindow(other.Window()), "Trim");
        auto* const own = reinterpret_cast<IQZChart2DSeries*>(other.Send(CH2M_ADDSERIES));
        other.Send(CH2M_SETSTYLE, kChart2DAnyFollows);
        own->setPointRadius(0xFFFF);
        int count = i == 1 || i > 2 ? -2 : 0;  // the point itself moves both ranges
        other.Parent().handler = [&](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
            if (message == WM_NOTIFY && ++count == 1) ::DestroyWindow(other.Window());
            return std::nullopt;
        };
        own->addPoint({1.0F, 2.0F});
        if (i == 1) own->setPoint(0, {5.0F, 6.0F}, 1);
        if (i == 3) own->insertPoint({9.0F, 9.0F}, 0);
        if (i == 4) other.Send(WM_LBUTTONDOWN, MK_LBUTTON, 0);
        if (i == 5) {
            other.Send(CH2M_CLEARSTYLE, kChart2DAnyFollows);
            own->addPoint({5.0F, 6.0F});
            other.Send(CH2M_SETSTYLE, kChart2DYFollows, TRUE);
        }
        EXPECT_EQ(count, 1) << i;
        EXPECT_FALSE(::IsWindow(other.Window()));
    }
}

int CALLBACK WriteHeight(HWND, float, float y, IQZChart2DSeries* series, int, int kind, char* text, int* capacity) {
    if (kind != kPointLabel || series->testFlag(kSeriesNoMarkers) != 0) return 0;
    std::snprintf(text, static_cast<std::size_t>(*capacity), "%.0f", static_cast<double>(y));
    return 1;
}

// As in an editor of tables: a curve of the spark's advance beside that of the factory, three of its points dragged.
TEST_F(Chart2DTest, ATableIsEditedInEverySize) {
    const float ends[] = {0.0F, 6000.0F, -10.0F, 50.0F};
    series->clear();
    series->setFlags(0, 0);
    series->setFlags(kSeriesNoMarkers, 0);
    series->setColor(kSeriesLineColour, 0xA0A0A0);
    auto* const edited = reinterpret_cast<IQZChart2DSeries*>(Send(CH2M_ADDSERIES, 9));
    edited->setPenWidth(2);
    edited->setColor(kSeriesLineColour, 0xB04000);
    for (const float speed : {400.0F, 1200.0F, 2000.0F, 2800.0F, 3600.0F, 4400.0F, 5200.0F, 5900.0F}) {
        const float advance = -6.0F + speed / 110.0F - speed * speed / 1800000.0F;
        series->addPoint({speed, advance});
        edited->addPoint({speed, advance});
    }
    Send(CH2M_SETTITLE, 0, L("Spark Advance"));
    Send(CH2M_SETXTITLE, W("Engine Speed (rpm)"), 18);
    Send(CH2M_SETYTITLE, W("Advance (deg)"), 13);
    for (const UINT set : {CH2M_SETXRANGE, CH2M_SETXLIMITS})
        Send(set, W(&ends[0]), L(&ends[1]));
    for (const UINT set : {CH2M_SETYRANGE, CH2M_SETYLIMITS})
        Send(set, W(&ends[2]), L(&ends[3]));
    Send(CH2M_SETSTYLE, kChart2DSubtitle);
    Send(CH2M_SETLABELCALLBACK, 0, reinterpret_cast<LPARAM>(&WriteHeight));
    for (const SIZE& size : {SIZE{240, 200}, SIZE{650, 420}, SIZE{1020, 760}}) {
        shown.Resize(size.cx, size.cy);
        const auto at = [&](float speed, float advance) {
            const float x = 70.0F + speed * static_cast<float>(size.cx - 140) / 6000.0F;
            const float y = 70.0F + (advance + 10.0F) * static_cast<float>(size.cy - 140) / 60.0F;
            return MAKELPARAM(static_cast<int>(x), size.cy - static_cast<int>(y));
        };
        Send(WM_LBUTTONDOWN, MK_LBUTTON, at(3000.0F, 49.0F));
        Send(WM_MOUSEMOVE, MK_LBUTTON, at(5700.0F, 0.0F));
        SavePicture(window, "Chart2D band " + std::to_string(size.cx));
        Send(WM_LBUTTONUP, 0, at(5700.0F, 0.0F));
        EXPECT_EQ(edited->getSelectedCount(), 3);
        Point2D before, after;
        edited->getPoint(5, &before);
        Send(WM_LBUTTONDOWN, MK_LBUTTON, at(before.x, before.y));
        Send(WM_MOUSEMOVE, MK_LBUTTON, at(before.x, before.y + 6.0F));
        Send(WM_LBUTTONUP, 0, at(before.x, before.y + 6.0F));
        edited->getPoint(5, &after);
        EXPECT_NEAR(after.y, before.y + 6.0F, 1.1F);
        SavePicture(window, "Chart2D dragged " + std::to_string(size.cx));
        EXPECT_TRUE(shown.Shows(0x0000FF)) << "what is selected";
        EXPECT_TRUE(shown.Shows(0xB04000));
    }
}

TEST_F(Chart2DTest, EverySizeIsPainted) {
    for (const SIZE& size : {SIZE{0, 0}, SIZE{1, 1}, SIZE{139, 141}, SIZE{4000, 3}, SIZE{4000, 4000}}) {
        shown.Resize(size.cx, size.cy);
        Send(CH2M_REPAINT);
        EXPECT_EQ(Send(CH2M_GETXTICKCOUNT), size.cx < 190 ? 1 : (size.cx - 140) / 50 + 1);
    }
}

// Whatever the numbers, and whatever the parent does meanwhile.
TEST_F(Chart2DTest, StandsEveryMessageInEveryOrder) {
    ChartStorm storm(11);
    const auto next = [&](int below) { return static_cast<WPARAM>(storm.Next(below)); };
    float values[30] = {};  // also the bytes of texts, which have a 0 in the end
    const auto someone = [&] { return reinterpret_cast<IQZChart2DSeries*>(Send(CH2M_GETSERIES, next(3))); };
    const auto message = [&] {
        const UINT number = CH2M_SETSTYLE + static_cast<UINT>(next(CH2M_GETSUBTITLE - CH2M_SETSTYLE + 1));
        TickBlock tick{static_cast<std::uint32_t>(next(9)), values[0], reinterpret_cast<char*>(values), 50};
        WPARAM wParam = storm.Once(8) ? 0 : W(values);
        LPARAM lParam = storm.Once(8) ? 0 : L(values);
        const bool adds = number == CH2M_ADDSERIES || number == CH2M_CLEARTICKS || number == CH2M_CLEARYTICKS;
        const bool isCounted = number == CH2M_SETXTICKCOUNT || number == CH2M_SETYTICKCOUNT;
        const bool isTitle = number >= CH2M_SETYTITLE && number <= CH2M_GETXTITLE;
        if (number == CH2M_SETSTYLE || number == CH2M_CLEARSTYLE) wParam = storm.Bit(7);
        if (number == CH2M_SETLABELCALLBACK) lParam = storm.Once(2) ? 0 : reinterpret_cast<LPARAM>(&WriteLabel2D);
        if (isCounted || isTitle) lParam = storm.Next(20);
        if (number == CH2M_SETXTICK || number == CH2M_SETYTICK) lParam = storm.Once(8) ? 0 : L(&tick);
        if (number == CH2M_DELETESERIES || (adds && Send(CH2M_GETSERIESCOUNT) > 5)) {
            Send(CH2M_DELETESERIES, W(someone()), storm.Next(2));
        } else {
            Send(number, adds ? next(4) : wParam, lParam);
        }
    };
    const auto points = [&] {
        IQZChart2DSeries* const one = someone();
        const auto index = static_cast<std::uint32_t>(next(6));
        const Point2D point{values[0], values[1], 0, storm.Bit(2)};
        if (one == nullptr || one->getPointCount() > 50) return;
        const int what = storm.Next(5);
        if (what == 0) one->addPoint(point);
        if (what == 1) one->insertPoint(point, index);
        if (what == 2) one->deletePoint(index);
        if (what == 3) one->setPoint(index, point, 1);
        if (what == 4) one->setFlags(storm.Bit(8), 1);
    };
    const ChartStorm::Doings doings = {[&] {
        for (std::size_t i = 0; i < 29; ++i)
            values[i] = storm.Number();
        const int what = storm.Next(30);
        if (what == 0) {
            shown.Resize(storm.Next(5) * 100, storm.Next(5) * 100);
        } else if (what < 12) {
            message();
        } else if (what < 18) {
            points();
        } else {
            SendInput(storm);
        }
    }};
    const std::size_t objects = LiveGdiObjects();
    const int pointer = Cursor();
    storm.Rage(2000, doings, onTold, [&](int) {
        told.clear();
        asked2D.clear();
    });
    Send(WM_LBUTTONUP);
    EXPECT_EQ(Cursor(), pointer);
    EXPECT_LE(LiveGdiObjects(), objects + 2) << "the bitmap that is kept";
}

}  // namespace
}  // namespace corvex
