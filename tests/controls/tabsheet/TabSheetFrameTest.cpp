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

    // Asks for a move by the system menu. Whether the window began to move; Escape ends it.
    bool BeginsToMove(WPARAM command) {
        const WindowSpy spy(sheet_);
        ::PostMessageA(sheet_, WM_KEYDOWN, VK_ESCAPE, 0);
        ::SendMessageA(sheet_, WM_SYSCOMMAND, command, MAKELPARAM(MiddleX(), frame_.top + 5));
        Pump();
        return spy.Count(WM_ENTERSIZEMOVE) != 0;
    }

    RECT frame_{};
};

// Which lock is whose tells the model.
TEST_F(TabSheetFrameTest, ALockedEdgeReadsAsClientArea) {
    const int bottom = frame_.bottom - 1;
    EXPECT_EQ(HitAt(MiddleX(), bottom), HTBOTTOM);
    TabSheet::setHitTestLocks(sheet_, kLockBottom);
    EXPECT_EQ(HitAt(MiddleX(), bottom), HTCLIENT);
    EXPECT_EQ(HitAt(frame_.left, bottom), HTBOTTOMLEFT);
    TabSheet::setHitTestLocks(sheet_, 0xFF);
    EXPECT_EQ(HitAt(frame_.left, bottom), HTCLIENT);
    EXPECT_EQ(HitAt(MiddleX(), frame_.top + 8), HTCAPTION);
}

TEST_F(TabSheetFrameTest, ItCannotBeMadeLowerThan60) {
    MINMAXINFO limits{};
    limits.ptMinTrackSize = {112, 27};
    ::SendMessageA(sheet_, WM_GETMINMAXINFO, 0, L(&limits));
    EXPECT_EQ(limits.ptMinTrackSize.y, 60);
    EXPECT_EQ(limits.ptMinTrackSize.x, 112);
    ::SetWindowPos(sheet_, nullptr, 0, 0, 300, 10, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(SizeOf(sheet_).cy, 60);
}

TEST_F(TabSheetFrameTest, ItMovesUnlessItIsToldNotTo) {
    EXPECT_TRUE(BeginsToMove(SC_MOVE));
    EXPECT_TRUE(BeginsToMove(SC_MOVE | HTCAPTION));
    TabSheet::setMovable(sheet_, false);
    EXPECT_FALSE(BeginsToMove(SC_MOVE));
    EXPECT_FALSE(BeginsToMove(SC_MOVE | HTCAPTION));
    ::SendMessageA(sheet_, WM_SYSCOMMAND, SC_MAXIMIZE, 0);
    EXPECT_TRUE(::IsZoomed(sheet_)) << "other commands work";
    ::SendMessageA(sheet_, WM_SYSCOMMAND, SC_RESTORE, 0);
    TabSheet::setMovable(sheet_, true);
    EXPECT_TRUE(BeginsToMove(SC_MOVE));
}

TEST_F(TabSheetFrameTest, ItsOwnerHearsOfIt) {
    TestWindow& page = AddPage("A");
    ::SendMessageA(page.Window(), WM_CONTEXTMENU, 1, 2);
    EXPECT_EQ(parent_.Heard(TSM_PAGECONTEXTMENU).size(), 1u);
    parent_.notices.clear();
    ::DestroyWindow(sheet_);
    EXPECT_EQ(parent_.Codes(), std::vector<UINT>{1});
}

}  // namespace
}  // namespace corvex
