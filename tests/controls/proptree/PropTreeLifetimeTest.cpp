// Window, tree and pages go in any order, and from inside each other's handlers. The program's heap takes the pages of
// deleted objects away, so that a call on one of them ends it.
#include "controls/window/GdiObjects.h"
#include "tests/controls/proptree/PropTreeFixture.h"

namespace corvex {
namespace {

class PropTreeLifetimeTest : public PropTreeFixture {
protected:
    PropTreeLifetimeTest() {
        Pump();
        parent_.notices.clear();
    }
    void DestroyOn(UINT code) {
        parent_.answer = [code](const Notice& notice) {
            if (notice.code == code) ::DestroyWindow(notice.from);
            return LRESULT{1};
        };
    }
    void DeleteItem(HTREEITEM item) { ::SendMessageA(Tree(), TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item)); }
};

TEST_F(PropTreeLifetimeTest, AnItemThatIsDeletedTakesItsPageAlong) {
    const HWND general = Add(kWide, "General");
    const HWND keys = Add(kTall, "Keys");
    Select("General");
    bool alive = false;
    parent_.answer = [&](const Notice& notice) {
        if (notice.code == PTN_PAGE_GONE) alive = ::IsWindow(general) != FALSE;
        return LRESULT{0};
    };
    DeleteItem(FirstRoot());
    Pump();
    EXPECT_EQ(parent_.CountOf(PTN_PAGE_GONE), 1);
    EXPECT_TRUE(alive);  // told first
    EXPECT_FALSE(::IsWindow(general));
    EXPECT_TRUE(::IsWindow(keys));
    EXPECT_NE(PropTreeContainer::currentPage(window_), general);
}

TEST_F(PropTreeLifetimeTest, PagesBelowADestroyedOneGoWithIt) {
    const HWND general = Add(kWide, "General");
    const HWND com = Add(kTall, "COM Setup", nullptr, "General");
    const HWND speed = Add(kTall, "Speed", nullptr, "COM Setup");
    const HWND keys = Add(kTall, "Keys");
    Select("General");
    ::DestroyWindow(general);
    EXPECT_NE(PropTreeContainer::currentPage(window_), general);
    EXPECT_FALSE(::IsWindow(com));
    EXPECT_FALSE(::IsWindow(speed));
    EXPECT_TRUE(::IsWindow(keys));
    EXPECT_EQ(Shape(), "Keys");
    EXPECT_EQ(parent_.CountOf(PTN_PAGE_GONE), 3);
}

TEST_F(PropTreeLifetimeTest, AnyNotificationMayDestroyTheWindow) {
    for (const UINT code : {UINT{PTN_READY}, UINT{PTN_CLOSED}, UINT{PTN_CLOSING}, UINT{PTN_OK}, UINT{PTN_CANCEL}}) {
        if (!::IsWindow(window_)) Open();
        Add(kWide, "General");
        Add(kTall, "COM Setup", nullptr, "General");
        Select("COM Setup");
        parent_.notices.clear();
        DestroyOn(code);
        if (code == PTN_READY) ::SendMessageA(window_, 0x8000, 0, 0);
        if (code == PTN_CLOSED || code == PTN_CLOSING) ::SendMessageA(window_, WM_CLOSE, 0, 0);
        if (code == PTN_OK) Press(1000);
        if (code == PTN_CANCEL) Press(1001);
        parent_.answer = nullptr;
        EXPECT_FALSE(::IsWindow(window_)) << code;
        EXPECT_EQ(parent_.CountOf(PTN_CLOSED), 1) << code;
        EXPECT_EQ(parent_.CountOf(PTN_PAGE_GONE), 2) << code;
        Pump();
    }
}

TEST_F(PropTreeLifetimeTest, TheNoticeOfAPagesEndMayDestroyTheWindow) {
    for (const bool fromOutside : {false, true}) {
        if (!::IsWindow(window_)) Open();
        const HWND general = Add(kWide, "General");
        Add(kTall, "COM Setup", nullptr, "General");
        const HWND keys = Add(kTall, "Keys");
        Select("COM Setup");
        DestroyOn(PTN_PAGE_GONE);
        if (fromOutside) {
            ::DestroyWindow(general);
        } else {
            DeleteItem(FirstRoot());
        }
        Pump();
        EXPECT_FALSE(::IsWindow(window_)) << fromOutside;
        EXPECT_FALSE(::IsWindow(keys));
    }
}

TEST_F(PropTreeLifetimeTest, WithoutItsTreeItHasNoPagesAndStillCloses) {
    const HWND general = Add(kWide, "General");
    Select("General");
    ::DestroyWindow(Tree());
    Pump();
    EXPECT_FALSE(::IsWindow(general));
    EXPECT_EQ(parent_.CountOf(PTN_PAGE_GONE), 1);
    EXPECT_EQ(Add(kWide, "late"), nullptr);
    EXPECT_FALSE(PropTreeContainer::selectByTitle(window_, "General"));
    EXPECT_EQ(PropTreeContainer::currentPage(window_), nullptr);
    ::SetWindowPos(window_, nullptr, 0, 0, 333, 333, SWP_NOMOVE);
    ::SendMessageA(window_, WM_CLOSE, 0, 0);
    EXPECT_FALSE(::IsWindow(window_));
}

TEST_F(PropTreeLifetimeTest, AParentThatGoesTakesAllAlong) {
    const HWND general = Add(kWide, "General");
    ::DestroyWindow(parent_.Window());
    EXPECT_FALSE(::IsWindow(window_));
    EXPECT_FALSE(::IsWindow(general));
    EXPECT_EQ(parent_.Codes(), (std::vector<UINT>{PTN_PAGE_GONE, PTN_CLOSED}));
}

INT_PTR CALLBACK DestroysParent(HWND dialog, UINT message, WPARAM, LPARAM) {
    if (message == WM_INITDIALOG) ::DestroyWindow(::GetParent(dialog));
    return FALSE;
}

TEST_F(PropTreeLifetimeTest, ADialogMayDestroyTheWindowWhileItBecomesAPage) {
    EXPECT_EQ(PropTreeContainer::addPage(window_, &DestroysParent, Instance(), kWide, "x", nullptr, nullptr), nullptr);
    EXPECT_FALSE(::IsWindow(window_));
}

HWND g_victim = nullptr;
INT_PTR CALLBACK DestroysOnShow(HWND, UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_SHOWWINDOW && wParam != 0) ::DestroyWindow(g_victim);
    return FALSE;
}

TEST_F(PropTreeLifetimeTest, APageMayDestroyAnotherWhenItIsShown) {
    g_victim = Add(kTall, "Keys");
    const HWND page = PropTreeContainer::addPage(window_, &DestroysOnShow, Instance(), kWide, "Bad", nullptr, nullptr);
    Select("Keys");
    EXPECT_TRUE(PropTreeContainer::selectByTitle(window_, "Bad"));
    EXPECT_EQ(Shape(), "Bad");
    EXPECT_EQ(PropTreeContainer::currentPage(window_), page);
}

TEST_F(PropTreeLifetimeTest, WindowsLeaveNoObjectBehind) {
    ::DestroyWindow(window_);
    const std::size_t before = LiveGdiObjects();
    Open();
    EXPECT_GT(LiveGdiObjects(), before);
    ::DestroyWindow(window_);
    EXPECT_EQ(LiveGdiObjects(), before);
}

}  // namespace
}  // namespace corvex
