// A sheet that is a frame of its own: what of it can be dragged.
#include "tests/controls/tabsheet/TabSheetFixture.h"

namespace corvex {
namespace {

class TabSheetFrameTest : public TabSheetFixture {
protected:
    TabSheetFrameTest() {
        MakeFrame();
        ::GetWindowRect(sheet_, &frame_);
    }
    LRESULT HitAt(int x, int y) const { return ::SendMessageA(sheet_, WM_NCHITTEST, 0, MAKELPARAM(x, y)); }
    int MiddleX() const { return (frame_.left + frame_.right) / 2; }
    int MiddleY() const { return (frame_.top + frame_.bottom) / 2; }

    // Asks for a move by the system menu. Whether the window began to move; Escape ends it.
    bool BeginsToMove(WPARAM command) {
        moving_ = false;
        const HHOOK hook =
            ::SetWindowsHookExA(WH_CALLWNDPROC, &TabSheetFrameTest::Watch, nullptr, ::GetCurrentThreadId());
        ::PostMessageA(sheet_, WM_KEYDOWN, VK_ESCAPE, 0);
        ::SendMessageA(sheet_, WM_SYSCOMMAND, command, MAKELPARAM(MiddleX(), frame_.top + 5));
        ::UnhookWindowsHookEx(hook);
        Pump();
        return moving_;
    }
    static LRESULT CALLBACK Watch(int code, WPARAM wParam, LPARAM lParam) {
        if (reinterpret_cast<const CWPSTRUCT*>(lParam)->message == WM_ENTERSIZEMOVE) moving_ = true;
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static inline bool moving_ = false;
    RECT frame_{};
};

TEST_F(TabSheetFrameTest, ALockedEdgeReadsAsClientArea) {
    const int l = frame_.left, t = frame_.top, r = frame_.right - 1, b = frame_.bottom - 1;
    const struct {
        int x, y;
        LRESULT hit;
        unsigned lock;
    } parts[] = {
        {MiddleX(), t, HTTOP, kLockTop},       {MiddleX(), b, HTBOTTOM, kLockBottom},
        {l, MiddleY(), HTLEFT, kLockLeft},     {r, MiddleY(), HTRIGHT, kLockRight},
        {l, t, HTTOPLEFT, kLockTopLeft},       {r, t, HTTOPRIGHT, kLockTopRight},
        {l, b, HTBOTTOMLEFT, kLockBottomLeft}, {r, b, HTBOTTOMRIGHT, kLockBottomRight},
    };
    for (const auto& part : parts) {
        TabSheet::setHitTestLocks(sheet_, 0);
        EXPECT_EQ(HitAt(part.x, part.y), part.hit);
        TabSheet::setHitTestLocks(sheet_, part.lock);
        EXPECT_EQ(HitAt(part.x, part.y), HTCLIENT) << part.lock;
        TabSheet::setHitTestLocks(sheet_, 0xFF & ~part.lock);
        EXPECT_EQ(HitAt(part.x, part.y), part.hit) << part.lock;
    }
}

TEST_F(TabSheetFrameTest, TheBottomEdgeCannotBeDraggedOnceItsBitIsSet) {
    TabSheet::setHitTestLocks(sheet_, 0x02);
    EXPECT_EQ(HitAt(MiddleX(), frame_.bottom - 1), HTCLIENT);
    EXPECT_EQ(HitAt(MiddleX(), frame_.top), HTTOP);
    EXPECT_EQ(HitAt(frame_.right - 1, frame_.bottom - 1), HTBOTTOMRIGHT);
}

TEST_F(TabSheetFrameTest, TheCaptionStaysACaption) {
    TabSheet::setHitTestLocks(sheet_, 0xFF);
    EXPECT_EQ(HitAt(MiddleX(), frame_.top + 8), HTCAPTION);
}

TEST_F(TabSheetFrameTest, ItCannotBeMadeLowerThan60) {
    MINMAXINFO limits{};
    limits.ptMinTrackSize = {112, 27};
    ::SendMessageA(sheet_, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    EXPECT_EQ(limits.ptMinTrackSize.y, 60);
    EXPECT_EQ(limits.ptMinTrackSize.x, 112);
    ::SetWindowPos(sheet_, nullptr, 0, 0, 300, 10, SWP_NOMOVE | SWP_NOZORDER);
    ::GetWindowRect(sheet_, &frame_);
    EXPECT_EQ(frame_.bottom - frame_.top, 60);
}

TEST_F(TabSheetFrameTest, ItMovesUnlessItIsToldNotTo) {
    EXPECT_TRUE(BeginsToMove(SC_MOVE));
    EXPECT_TRUE(BeginsToMove(SC_MOVE | HTCAPTION));
    TabSheet::setMovable(sheet_, false);
    EXPECT_FALSE(BeginsToMove(SC_MOVE));
    EXPECT_FALSE(BeginsToMove(SC_MOVE | HTCAPTION));
    TabSheet::setMovable(sheet_, true);
    EXPECT_TRUE(BeginsToMove(SC_MOVE));
}

TEST_F(TabSheetFrameTest, OtherSystemCommandsWorkWithoutMovement) {
    TabSheet::setMovable(sheet_, false);
    ::SendMessageA(sheet_, WM_SYSCOMMAND, SC_MAXIMIZE, 0);
    EXPECT_TRUE(::IsZoomed(sheet_));
}

TEST_F(TabSheetFrameTest, ItsOwnerHearsOfIt) {
    parent_.listenFor = {1524};
    TestWindow& page = AddPage("A");
    ::SendMessageA(page.Window(), WM_CONTEXTMENU, 1, 2);
    EXPECT_EQ(parent_.heard.size(), 1u);
    parent_.notices.clear();
    ::DestroyWindow(sheet_);
    EXPECT_EQ(parent_.Codes(), std::vector<UINT>{1});
}

}  // namespace
}  // namespace corvex
