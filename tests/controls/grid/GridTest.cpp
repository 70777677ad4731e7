#include <gtest/gtest.h>

#include "controls/grid/Grid.h"
#include "controls/window/GdiObjects.h"
#include "tests/controls/window/ShownControl.h"

namespace corvex {
namespace {

class GridTest : public ::testing::Test {
protected:
    GridTest() { shown.Resize(550, 231); }
    static bool RegisterOnce() { return Grid::Register(::GetModuleHandleA(nullptr)); }
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return shown.Send(message, wParam, lParam);
    }
    // Codes and values of what the parent was told since the last call.
    std::vector<std::pair<UINT, LPARAM>> Told() {
        std::vector<std::pair<UINT, LPARAM>> told;
        for (const HeardMessage& heard : shown.Commands()) {
            EXPECT_EQ(LOWORD(heard.wParam), 7);
            told.emplace_back(HIWORD(heard.wParam), heard.lParam);
        }
        shown.Parent().heard.clear();
        return told;
    }
    std::string Text(int row, int column) const {
        char text[512] = "untouched";
        getCell(window, row, column, text);
        return text;
    }

    const bool registered = RegisterOnce();
    ShownControl shown{kGridClass, 550, 231, 7, "A title"};
    const HWND window = shown.Window();
};

TEST_F(GridTest, AnswersEachMessage) {
    const LPARAM cell = cellAddress(2, 3), bad = cellAddress(11, 3);
    const struct {
        UINT message;
        WPARAM wParam;
        LPARAM lParam, result;
    } cases[] = {
        {GRM_GETSTYLE, 0, 0, 0x12FF01},
        {GRM_CLEARSTYLE, 0x6E01, 1, 0},
        {GRM_GETSTYLE, 0, 0, 0x129100},
        {GRM_SETSTYLE, 0x06, 0, 0},
        {GRM_GETSTYLE, 0, 0, 0x129106},
        {GRM_SETSTYLE, 0, 1, 0},
        {GRM_GETSTYLE, 0, 0, 0},
        {GRM_PUTCELL, static_cast<WPARAM>(cell), L("12.5"), 1},
        {GRM_GETCELLTYPE, static_cast<WPARAM>(cell), 0, 2},
        {GRM_GETCELLTEXTLENGTH, static_cast<WPARAM>(cell), 0, 4},
        {GRM_PUTCELL, static_cast<WPARAM>(cell), 0, 1},
        {GRM_GETCELLTYPE, static_cast<WPARAM>(cell), 0, 1},
        {GRM_GETCELLTEXTLENGTH, static_cast<WPARAM>(cell), 0, 0},
        {GRM_GETPROTECT, static_cast<WPARAM>(cell), 0, 0},
        {GRM_SETPROTECT, static_cast<WPARAM>(cell), 1, 0},
        {GRM_GETPROTECT, static_cast<WPARAM>(cell), 0, 1},
        {GRM_SETCHANGED, static_cast<WPARAM>(cell), 1, 0},
        {GRM_GETCHANGED, static_cast<WPARAM>(cell), 0, 1},
        {GRM_CLEARCHANGED, 0, 1, 0},
        {GRM_GETCHANGED, static_cast<WPARAM>(cell), 0, 0},
        {GRM_GETCELLFILL, static_cast<WPARAM>(cell), 0, 0xFFFFFF},
        {GRM_SETCELLFILL, static_cast<WPARAM>(cell), 0x7F123456, 0},
        {GRM_GETCELLFILL, static_cast<WPARAM>(cell), 0, 0x123456},
        {GRM_SETCELLTEXTCOLOR, static_cast<WPARAM>(cell), 0x654321, 0},
        {GRM_GETCELLTEXTCOLOR, static_cast<WPARAM>(cell), 0, 0x654321},
        {GRM_GETROWS, 0, 0, 10},
        {GRM_GETCOLS, 0, 0, 10},
        {GRM_SETCURSOR, 11, 3, 0},
        {GRM_GETCURSORROW, 0, 0, 1},
        {GRM_SETCURSOR, 2, 3, 0},
        {GRM_GETCURSORROW, 0, 0, 2},
        {GRM_GETCURSORCOL, 0, 0, 3},
        {GRM_SETCOLWIDTH, 3, 70, 0},
        {GRM_GETCOLWIDTH, 3, 0, 70},
        {GRM_SETCOLWIDTH, 11, 70, 0},
        {GRM_GETCOLWIDTH, 11, 0, 0},
        {GRM_SETCOLWIDTH, 4, 70000, 0},
        {GRM_GETCOLWIDTH, 4, 0, 65535},
        {GRM_SETROWHEIGHT, 2, 30, 0},
        {GRM_GETROWHEIGHT, 2, 0, 30},
        {GRM_GETROWHEIGHT, static_cast<WPARAM>(-1), 0, 0},
        {GRM_RESERVED, cellAddress(99, 99), 1, 0},
        {GRM_ISMODIFIED, 0, 0, 0},
        {GRM_SETMODIFIED, 1, 0, 0},
        {GRM_ISMODIFIED, 0, 0, 1},
        {GRM_SETALIGN, static_cast<WPARAM>(cell), 0x12, 0},
        {GRM_GETALIGN, static_cast<WPARAM>(cell), 0, 0x12},
        {GRM_SETCOLOR, 4, 0x010203, 0},
        {GRM_GETCOLOR, 4, 0, 0x010203},
        {GRM_GETCOLOR, 8, 0, static_cast<LPARAM>(::GetSysColor(15))},
        {GRM_SETCOLOR, 11, 1, 0},
        {GRM_GETCOLOR, 11, 0, 0},
        {GRM_GETPROTECT, static_cast<WPARAM>(bad), 0, -1},
        {GRM_SETPROTECT, static_cast<WPARAM>(bad), 1, -1},
        {GRM_PUTCELL, static_cast<WPARAM>(bad), L("x"), 0},
        {GRM_GETCELL, static_cast<WPARAM>(bad), 0, 0},
        {GRM_GETCELLTYPE, static_cast<WPARAM>(bad), 0, 0},
        {GRM_SETOVERLAY, static_cast<WPARAM>(cell), bad, 0},
        {GRM_SETSELECTION, static_cast<WPARAM>(cell), cellAddress(0, 1), 0},
        {WM_GETDLGCODE, 0, 0, 0x95},
        {WM_ERASEBKGND, 0, 0, 1},
        {WM_MOUSEACTIVATE, 0, 0, 1},
        {WM_CHAR, 0x7E, 0, 1},
        {WM_CHAR, 3, 0, 0},
    };
    ::SetFocus(window);
    for (const auto& one : cases) {
        Told();
        EXPECT_EQ(Send(one.message, one.wParam, one.lParam), one.result) << one.message << " " << one.wParam;
        const bool isRefused =
            static_cast<LPARAM>(one.wParam) == bad || one.message == GRM_SETSELECTION || one.message == GRM_SETOVERLAY;
        const bool isTold = one.message == GRM_PUTCELL;
        const std::vector<std::pair<UINT, LPARAM>> refused{{3, 0}}, told{{26, cell}}, none;
        EXPECT_EQ(Told(), isRefused ? refused : isTold ? told : none) << one.message;
    }
}

TEST_F(GridTest, TextsSelectionAndPlacesComeThroughPointers) {
    EXPECT_EQ(putCell(window, 1, 2, "a text"), 1);
    EXPECT_EQ(Told(), (std::vector<std::pair<UINT, LPARAM>>{{kGridTextStored, cellAddress(1, 2)}}));
    EXPECT_EQ(Text(1, 2), "a text");
    EXPECT_EQ(Text(1, 1), "");
    EXPECT_EQ(Text(11, 1), "untouched");
    EXPECT_EQ(putCell(window, -1, 2, "x"), 0);
    Send(GRM_SETSELECTION, cellAddress(2, 3), cellAddress(4, 5));
    std::uint32_t anchor = 0, cursor = 0;
    EXPECT_EQ(Send(GRM_GETSELECTION, W(&anchor), L(&cursor)), 1);
    EXPECT_EQ(anchor, cellAddress(2, 3));
    EXPECT_EQ(cursor, cellAddress(4, 5));
    EXPECT_EQ(Send(GRM_GETSELECTION), 1);
    RECT box{};
    EXPECT_EQ(Send(GRM_GETCELLRECT, cellAddress(0, 1), L(&box)), 1);
    const LONG title = box.top;
    EXPECT_GT(title, 10);
    EXPECT_EQ(box, (RECT{50, title, 100, title + 21}));
    EXPECT_EQ(Send(GRM_GETCELLRECT, cellAddress(0, 1), 0), 0);
    Send(GRM_SETTITLEHEIGHT, 5);
    Send(GRM_GETCELLRECT, cellAddress(2, 2), L(&box));
    EXPECT_EQ(box, (RECT{100, 47, 150, 68}));
}

TEST_F(GridTest, TheTitleIsTheWindowsText) {
    EXPECT_EQ(TextOfWindow(window), "A title");
    for (const auto& [text, title] : {std::pair(std::string(300, 'x'), std::string(300, 'x')),
                                      std::pair(std::string(301, 'x'), std::string("Title too long (300 chars max)")),
                                      std::pair(std::string(), std::string())}) {
        EXPECT_EQ(Send(WM_SETTEXT, 0, L(text.c_str())), TRUE);
        EXPECT_EQ(TextOfWindow(window), title);
    }
    RECT box{};
    Send(GRM_GETCELLRECT, 0, L(&box));
    EXPECT_EQ(box.top, 0);
}

TEST_F(GridTest, SwitchedOffItPaintsNothingAtAll) {
    const auto before = TestBitmap(window).Pixels();
    Send(WM_SETREDRAW, FALSE);
    shown.Mark();
    Send(GRM_SETCOLOR, kGridCellFill, 0x123450);
    Send(GRM_CLEARSTYLE, kGridCellColours, 1);
    Send(WM_PAINT);
    EXPECT_TRUE(shown.HasMark());
    EXPECT_EQ(ColoursOf(window).size(), 1u);
    RECT due{};
    EXPECT_FALSE(::GetUpdateRect(window, &due, FALSE)) << "or the message loop would never come to rest";
    Send(WM_SETREDRAW, TRUE);
    ::UpdateWindow(window);
    EXPECT_TRUE(shown.Shows(0x123450));
}

TEST_F(GridTest, PaintsTheSameThroughABitmapAndWithout) {
    Send(GRM_SETSIZE, 40, 40);
    putCell(window, 2, 2, "text");
    shown.Repaint();
    const auto through = TestBitmap(window).Pixels();
    Send(GRM_CLEARSTYLE, kGridOffscreen, 1);
    EXPECT_EQ(TestBitmap(window).Pixels(), through);
    // A part as well as the whole.
    putCell(window, 3, 3, "other");
    for (const std::uint32_t corner : {cellAddress(4, 4), cellAddress(2, 3), 0u}) {
        Send(GRM_SETOVERLAY, corner == 0 ? 0 : cellAddress(3, 3), corner);
        const auto part = TestBitmap(window).Pixels();
        shown.Repaint();
        EXPECT_EQ(TestBitmap(window).Pixels(), part) << corner;
        EXPECT_EQ(shown.Shows(0x00FFFF), corner != 0);
    }
}

TEST_F(GridTest, BarsComeWithTheRowsAndColumnsThatDoNotFit) {
    const auto bars = [&] { return StyleOfWindow(window) & (WS_HSCROLL | WS_VSCROLL); };
    const auto range = [&](int bar) {
        int first = 0, last = 0;
        ::GetScrollRange(window, bar, &first, &last);
        return std::pair(first, last);
    };
    Send(WM_SETTEXT, 0, L(""));
    EXPECT_EQ(bars(), 0u);
    Send(GRM_SETSIZE, 40, 10);
    EXPECT_EQ(bars(), WS_VSCROLL | WS_HSCROLL) << "the bar takes room from the columns";
    const int rowsThatFit = (ClientOf(window).bottom - 21) / 21;
    EXPECT_EQ(range(SB_VERT), std::pair(1, 41 - rowsThatFit));
    Send(WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, 500), 0);
    EXPECT_EQ(::GetScrollPos(window, SB_VERT), 41 - rowsThatFit);
    EXPECT_EQ(::GetFocus(), window);
    Send(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
    EXPECT_LT(::GetScrollPos(window, SB_VERT), 41 - rowsThatFit);
    Send(GRM_SETSIZE, 5, 5);
    EXPECT_EQ(bars(), 0u);
    EXPECT_EQ(ClientOf(window), (RECT{0, 0, 550, 231}));
    Send(GRM_SETSTYLE, kGridNoVerticalBar | kGridNoHorizontalBar, 0);
    Send(GRM_SETSIZE, 40, 40);
    EXPECT_EQ(bars(), 0u);
}

TEST_F(GridTest, IsTypedInto) {
    Send(WM_SETTEXT, 0, L(""));
    ::SetFocus(window);
    shown.Parent().heard.clear();
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(110, 50));
    EXPECT_EQ(::GetCapture(), window);
    Send(WM_LBUTTONUP, 0, MAKELPARAM(110, 50));
    EXPECT_EQ(::GetCapture(), nullptr);
    Send(WM_CHAR, 'x');
    Send(WM_CHAR, 'y');
    POINT caret{};
    ::GetCaretPos(&caret);
    EXPECT_EQ(caret.x, 150 - 8);
    Send(WM_KEYDOWN, VK_F10);
    Send(WM_SYSKEYDOWN, VK_F10);
    ::SetFocus(shown.Parent().Window());
    const LPARAM cell = cellAddress(2, 2);
    EXPECT_EQ(Told(), (std::vector<std::pair<UINT, LPARAM>>{
                          {25, cell}, {5, cell}, {8, cell}, {20, cell}, {20, cell}, {24, 0}, {10, cell}, {26, cell}}));
    EXPECT_EQ(Text(2, 2), "xy");
}

TEST_F(GridTest, LosingTheCaptureEndsADrag) {
    Send(WM_SETTEXT, 0, L(""));
    const auto row = [&] { return Send(GRM_GETCURSORROW); };
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(60, 30));
    Send(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(60, 75));
    EXPECT_EQ(row(), 3);
    ::SetCapture(shown.Parent().Window());
    Send(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(60, 95));
    EXPECT_EQ(row(), 3);
    EXPECT_EQ(::GetCapture(), shown.Parent().Window()) << "somebody else's is left alone";
    Send(WM_LBUTTONUP);
    EXPECT_EQ(::GetCapture(), shown.Parent().Window());
    ::ReleaseCapture();
}

TEST_F(GridTest, ADragBelowScrollsByATimer) {
    Send(WM_SETTEXT, 0, L(""));
    Send(GRM_SETSIZE, 100, 5);
    POINT below{60, 400};
    ::ClientToScreen(window, &below);
    ::SetCursorPos(below.x, below.y);
    Pump();  // a move that was still on its way would end the scrolling
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(60, 30));
    Send(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(60, 400));
    EXPECT_TRUE(Pumps([&] { return ::GetScrollPos(window, SB_VERT) > 20; }));
    Send(WM_LBUTTONUP);
    EXPECT_FALSE(::KillTimer(window, 1)) << "runs no longer";
}

TEST_F(GridTest, OwnsItsFonts) {
    const auto font = [] { return ::CreateFontA(20, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, "Arial"); };
    const HFONT first = font(), second = font();
    Send(WM_SETFONT, W(first), 0);
    Send(GRM_SETHEADINGFONT, W(first), 0);
    Send(WM_SETFONT, 0, 0);
    EXPECT_EQ(Send(WM_SETFONT, W(second), 0), 0);
    EXPECT_NE(::GetObjectType(first), 0u) << "the headings have it still";
    Send(GRM_SETHEADINGFONT, W(second), 0);
    Send(GRM_SETTITLEFONT, W(second), 0);
    EXPECT_EQ(::GetObjectType(first), 0u);
    ::DestroyWindow(window);
    EXPECT_EQ(::GetObjectType(second), 0u);
}

TEST_F(GridTest, OutlivesAParentThatDestroysItWhileItIsTold) {
    for (const UINT code : {25u, 5u, 8u, 10u, 26u, 24u}) {
        ShownControl other(kGridClass, 300, 200);
        const HWND grid = other.Window();
        other.Parent().handler = [&](UINT message, WPARAM wParam, LPARAM) -> std::optional<LRESULT> {
            if (message == WM_COMMAND && HIWORD(wParam) == code) ::DestroyWindow(grid);
            return std::nullopt;
        };
        other.Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(110, 50));
        other.Send(WM_CHAR, 'x');
        other.Send(WM_KEYDOWN, VK_DOWN);
        other.Send(WM_KEYDOWN, VK_TAB);
        EXPECT_FALSE(::IsWindow(grid)) << code;
    }
}

TEST_F(GridTest, TakesAnySizeAndAnyMessageInAnyOrder) {
    std::uint32_t random = 1;
    const auto next = [&](unsigned below) {
        random = random * 1664525 + 1013904223;
        return (random >> 8) % below;
    };
    const UINT inputs[] = {WM_KEYDOWN,   WM_KEYUP,         WM_CHAR,      WM_LBUTTONDOWN, WM_LBUTTONUP,
                           WM_MOUSEMOVE, WM_LBUTTONDBLCLK, WM_VSCROLL,   WM_HSCROLL,     WM_MOUSEWHEEL,
                           WM_TIMER,     WM_SETFOCUS,      WM_KILLFOCUS, WM_ENABLE};
    const SIZE sizes[] = {{0, 0}, {1, 1}, {60, 30}, {300, 200}, {4000, 4000}, {20, 4000}, {4000, 20}};
    for (int i = 0; i < 4000; ++i) {
        const SIZE size = sizes[next(std::size(sizes))];
        if (next(100) == 0) ::MoveWindow(window, 0, 0, size.cx, size.cy, TRUE);
        if (next(3) != 0) {
            Send(inputs[next(std::size(inputs))], next(4) == 0 ? next(0x10000) : next(0x80),
                 MAKELPARAM(next(700) - 50, next(400) - 50));
            continue;
        }
        const UINT message = GRM_SETSTYLE + next(GRM_GETCELLRECT - GRM_SETSTYLE + 1);
        std::uint32_t first = 0, second = 0;
        char text[600] = "x";
        RECT box{};
        WPARAM wParam = next(2) == 0 ? cellAddress(next(15), next(15)) : next(40);
        LPARAM lParam = next(2) == 0 ? static_cast<LPARAM>(cellAddress(next(15), next(15))) : next(300);
        if (message == GRM_PUTCELL || message == GRM_GETCELL) lParam = L(text);
        if (message == GRM_GETCELLRECT) lParam = L(&box);
        if (message == GRM_GETSELECTION) wParam = W(&first), lParam = L(&second);
        if (message == GRM_SETTITLEFONT || message == GRM_SETHEADINGFONT) wParam = 0;
        Send(message, wParam, lParam);
    }
    EXPECT_TRUE(::IsWindow(window));
}

}  // namespace
}  // namespace corvex
