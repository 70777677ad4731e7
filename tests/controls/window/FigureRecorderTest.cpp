#include <gtest/gtest.h>

#include "controls/gauge/GaugeFont.h"
#include "controls/gauge/LogicalSquare.h"
#include "tests/controls/window/FigureRecorder.h"

namespace corvex {
namespace {

TEST(FigureRecorderTest, TellsEachFigureWithWhatIsInForce) {
    const Figures figures = FiguresOf([](HDC dc) {
        const OwnedPen wide(::CreatePen(PS_SOLID, 2, 0x0000FF));
        const OwnedBrush green(::CreateSolidBrush(0x00FF00));
        const OwnedFont letters = MakeGaugeFont(12);
        const RECT area{0, 0, 30, 20};
        ::FillRect(dc, &area, green.Get());
        {
            const SelectGuard pen(dc, wide.Get()), brush(dc, green.Get());
            ::Ellipse(dc, 2, 3, 20, 30);
            ::Arc(dc, 2, 3, 20, 30, 1, 2, 3, 4);
        }
        const SelectGuard pen(dc, ::GetStockObject(BLACK_PEN)), brush(dc, ::GetStockObject(NULL_BRUSH));
        const POINT corners[] = {{1, 2}, {3, 4}, {5, 6}};
        ::Polygon(dc, corners, 3);
        ::MoveToEx(dc, 7, 8, nullptr);
        ::LineTo(dc, 9, 10);
        const SelectGuard font(dc, letters.Get());
        ::SetTextAlign(dc, TA_CENTER);
        ::TextOutA(dc, 11, 12, "first", 5);
        ::SetBkMode(dc, TRANSPARENT);
        ::SetTextColor(dc, 0x0000FF);
        ::TextOutA(dc, 13, 14, "second", 6);
    });
    EXPECT_EQ(figures, (Figures{"fill 0,0,30,20 brush 00ff00", "ellipse 2,3,20,30 pen 0 2 0000ff brush 00ff00",
                                "arc 2,3,20,30 from 1,2 to 3,4 ccw pen 0 2 0000ff",
                                "polygon 1,2 3,4 5,6 pen 0 0 000000 brush none", "line 7,8 to 9,10 pen 0 0 000000",
                                "text 11,12 align 6 font Arial 12 600 2 32 colour 000000 on ffffff: first",
                                "text 13,14 align 6 font Arial 12 600 2 32 colour 0000ff transparent: second"}));
}

TEST(FigureRecorderTest, ForgetsWhatARestoredContextForgets) {
    const Figures figures = FiguresOf([](HDC dc) {
        const OwnedPen wide(::CreatePen(PS_SOLID, 2, 0x0000FF));
        {
            const LogicalSquare square(dc, RECT{0, 0, 300, 200}, 100, true);
            ::SelectObject(dc, wide.Get());
            ::Rectangle(dc, 0, 0, 10, 10);
        }
        ::Rectangle(dc, 0, 0, 10, 10);
    });
    EXPECT_EQ(figures, (Figures{"mapping isotropic window 100,100 viewport 300,200",
                                "rectangle 0,0,10,10 pen 0 2 0000ff brush ffffff",
                                "rectangle 0,0,10,10 pen 0 0 000000 brush ffffff"}));
}

TEST(FigureRecorderTest, TellsWhereAFigureIsClipped) {
    const OwnedRegion part(::CreateRectRgn(5, 0, 10, 5));
    const Figures figures = FiguresOf([&](HDC dc) {
        ::SelectClipRgn(dc, part.Get());
        ::Rectangle(dc, 0, 0, 10, 10);
        ::SelectClipRgn(dc, nullptr);
        ::SetBkMode(dc, TRANSPARENT);
        ::TextOutA(dc, 0, 0, "a", 1);
    });
    EXPECT_EQ(figures, (Figures{"clip 5,0,10,5 rectangle 0,0,10,10 pen 0 0 000000 brush ffffff",
                                "text 0,0 align 0 font Arial -13 400 3 0 colour 000000 transparent: a"}));
}

}  // namespace
}  // namespace corvex
