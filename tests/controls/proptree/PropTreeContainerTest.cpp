#include "controls/proptree/PropTreeContainer.h"
#include "tests/controls/proptree/PropTreeFixture.h"
#include "tests/support/Eventually.h"

namespace corvex {
namespace {

class PropTreeContainerTest : public PropTreeFixture {
protected:
    // As the message loop hands it on.
    void PressKey(HWND where, WPARAM code) {
        MSG key{};
        key.hwnd = where;
        key.message = WM_KEYDOWN;
        key.wParam = code;
        EXPECT_TRUE(::IsDialogMessageA(window_, &key));
        Pump();
    }
};
using Codes = std::vector<UINT>;

TEST_F(PropTreeContainerTest, ItIsAVisibleFrameOwnedByItsParent) {
    ASSERT_TRUE(::IsWindow(window_));
    EXPECT_TRUE(::IsWindowVisible(window_));
    EXPECT_EQ(TextOfWindow(window_), "Preferences");
    EXPECT_EQ(::GetWindow(window_, GW_OWNER), parent_.Window());
    EXPECT_EQ(StyleOfWindow(window_) & (WS_CAPTION | WS_SYSMENU), static_cast<DWORD>(WS_CAPTION | WS_SYSMENU));
}

TEST_F(PropTreeContainerTest, TellsThatItIsReadyWhenTheQueueComesToItAndOfClicksOnButtonsAlone) {
    EXPECT_EQ(parent_.CountOf(1), 0);
    Pump();
    ::SendMessageA(window_, WM_COMMAND, MAKEWPARAM(1000, BN_SETFOCUS), 0);
    ::SendMessageA(window_, WM_COMMAND, MAKEWPARAM(1002, BN_CLICKED), 0);
    EXPECT_EQ(parent_.Codes(), Codes{1});
    EXPECT_EQ(parent_.notices[0].from, window_);
}

TEST_F(PropTreeContainerTest, HoldsATreeAndTwoButtons) {
    EXPECT_EQ(StyleOfWindow(Tree()), 0x50808037u);
    EXPECT_EQ(TextOfWindow(Button(1000)), "OK");
    EXPECT_EQ(TextOfWindow(Button(1001)), "Cancel");
    EXPECT_EQ(StyleOfWindow(Button(1000)) & BS_TYPEMASK, static_cast<DWORD>(BS_DEFPUSHBUTTON));
    EXPECT_EQ(StyleOfWindow(Button(1001)) & BS_TYPEMASK, static_cast<DWORD>(BS_PUSHBUTTON));
    const HWND plain =
        ::CreateWindowExA(0, WC_TREEVIEWA, "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, Instance(), nullptr);
    EXPECT_STREQ(FontOf(Tree()).lfFaceName, "MS Shell Dlg");
    EXPECT_NE(FontOf(Tree()).lfHeight, 0);
    EXPECT_EQ(FontOf(Tree()).lfHeight, FontOf(plain).lfHeight);
    ::DestroyWindow(plain);
}

TEST_F(PropTreeContainerTest, PartsStandToThePixelAtAnySize) {
    const HWND page = Add(kWide, "General");
    Select("General");
    const LONG wide = SizeOf(page).cx;
    for (const SIZE size : {SIZE{640, 480}, SIZE{900, 333}}) {
        Resize(size.cx, size.cy);
        const SIZE client = ClientSize();
        EXPECT_EQ(PlaceOf(Tree()), (RECT{0, 0, client.cx - wide, client.cy}));
        EXPECT_EQ(PlaceOf(Button(1000)), (RECT{client.cx - 70, client.cy - 27, client.cx - 5, client.cy - 5}));
        EXPECT_EQ(PlaceOf(Button(1001)), (RECT{client.cx - 143, client.cy - 27, client.cx - 78, client.cy - 5}));
        EXPECT_EQ(PlaceOf(page).left, PlaceOf(Tree()).right + 2);
        EXPECT_EQ(PlaceOf(page).top, 0);
        EXPECT_EQ(SizeOf(page).cx, wide);
    }
}

TEST_F(PropTreeContainerTest, APageIsAHiddenChildOfTheWindowUnlessItsTemplateIsMissing) {
    EXPECT_EQ(Add(999, "General"), nullptr);
    EXPECT_EQ(Shape(), "");
    const HWND page = Add(kFramed, "Keys");
    ASSERT_TRUE(::IsWindow(page));
    EXPECT_EQ(StyleOfWindow(page) & (WS_POPUP | WS_CAPTION | WS_THICKFRAME | WS_CHILD | WS_VISIBLE),
              static_cast<DWORD>(WS_CHILD));
    EXPECT_EQ(::GetAncestor(page, GA_PARENT), window_);
}

TEST_F(PropTreeContainerTest, ItGrowsWithItsPagesAndNeverShrinks) {
    const HWND wide = Add(kWide, "Wide"), tall = Add(kTall, "Tall");
    EXPECT_EQ(ClientSize(), (SIZE{150 + SizeOf(wide).cx, SizeOf(tall).cy + 32}));
    MINMAXINFO limits{};
    ::SendMessageA(window_, WM_GETMINMAXINFO, 0, L(&limits));
    EXPECT_EQ(limits.ptMinTrackSize.x, 150 + SizeOf(wide).cx);
    EXPECT_EQ(limits.ptMinTrackSize.y, SizeOf(tall).cy);
    Resize(900, 700);
    Add(kFramed, "Small");
    EXPECT_EQ(SizeOf(window_), (SIZE{900, 700}));
}

TEST_F(PropTreeContainerTest, ItStandsInTheMiddleOfItsParentUntilItIsReady) {
    Add(kTall, "Tall");
    RECT owner{}, window{};
    ::GetWindowRect(parent_.Window(), &owner);
    ::GetWindowRect(window_, &window);
    EXPECT_NEAR(window.left + window.right, owner.left + owner.right, 1);
    EXPECT_NEAR(window.top + window.bottom, owner.top + owner.bottom, 1);
    Pump();
    ::SetWindowPos(window_, nullptr, 3, 4, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    Add(kWide, "Wide");
    ::GetWindowRect(window_, &window);
    EXPECT_EQ(window.left, 3);
    EXPECT_EQ(window.top, 4);
}

TEST_F(PropTreeContainerTest, PagesFindParentAndNeighbourByTitle) {
    Add(kWide, "General");
    Add(kTall, "Keys");
    Add(kTall, "COM Setup", "General");
    EXPECT_EQ(Shape(), "General COM Setup Keys");
    Add(kTall, "Speed", nullptr, "COM Setup");
    Add(kTall, "Deep", nullptr, "Speed");
    Add(kTall, "Port", "Speed", "COM Setup");
    Add(kTall, "Echo", "Speed", "COM Setup");
    EXPECT_EQ(Shape(), "General COM Setup(Speed(Deep) Echo Port) Keys");
}

TEST_F(PropTreeContainerTest, AnUnknownParentMeansTheRootAndAnUnknownNeighbourTheEnd) {
    Add(kWide, "General");
    Add(kTall, "Keys");
    Add(kTall, "COM Setup", "nobody", "no one");
    EXPECT_EQ(Shape(), "General Keys COM Setup");
    Add(kTall, "Speed", "Keys", "General");  // a neighbour elsewhere
    EXPECT_EQ(Shape(), "General(Speed) Keys COM Setup");
    Add(kTall, "keys", nullptr, "general");  // titles differ by case
    EXPECT_EQ(Shape(), "General(Speed) Keys COM Setup keys");
}

TEST_F(PropTreeContainerTest, SelectingATitleShowsItsPageAlone) {
    const HWND general = Add(kWide, "General");
    const HWND com = Add(kTall, "COM Setup", nullptr, "General");
    EXPECT_TRUE(PropTreeContainer::selectByTitle(window_, "COM Setup"));
    EXPECT_EQ(PropTreeContainer::currentPage(window_), com);
    EXPECT_TRUE(HasShownStyle(com));
    EXPECT_FALSE(HasShownStyle(general));
    EXPECT_EQ(PlaceOf(com).left, PlaceOf(Tree()).right + 2);
    EXPECT_TRUE(PropTreeContainer::selectByTitle(window_, "General"));
    EXPECT_TRUE(HasShownStyle(general));
    EXPECT_FALSE(HasShownStyle(com));
    EXPECT_FALSE(PropTreeContainer::selectByTitle(window_, "COM"));
    EXPECT_FALSE(PropTreeContainer::selectByTitle(window_, "COM Setup 2"));
    EXPECT_FALSE(PropTreeContainer::selectByTitle(window_, nullptr));
    EXPECT_EQ(PropTreeContainer::currentPage(window_), general);
}

TEST_F(PropTreeContainerTest, TheArrowKeysChangeThePageAndStayInTheTree) {
    Add(kWide, "General");
    const HWND keys = Add(kTall, "Keys");
    Select("General");
    ::SetFocus(Tree());
    ::SendMessageA(Tree(), WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_EQ(PropTreeContainer::currentPage(window_), keys);
    EXPECT_EQ(::GetFocus(), Tree());
}

TEST_F(PropTreeContainerTest, TheButtonsAskTheParentAndAreRefusedByNothing) {
    const auto click = [this](int id) { ::SendMessageA(window_, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), 0); };
    for (const auto& [id, code] : {std::pair{1000, 4U}, {1001, 5U}, {int{IDOK}, 4U}, {int{IDCANCEL}, 5U}}) {
        if (!::IsWindow(window_)) Open();
        Pump();
        parent_.notices.clear();
        parent_.answer = nullptr;
        click(id);
        EXPECT_EQ(parent_.Codes(), Codes{code});
        EXPECT_TRUE(::IsWindow(window_)) << id;
        parent_.answer = [](const Notice& notice) { return LRESULT{notice.code == 4 || notice.code == 5}; };
        click(id);
        EXPECT_FALSE(::IsWindow(window_)) << id;
        EXPECT_EQ(parent_.Codes(), (Codes{code, code, 2}));
    }
}

TEST_F(PropTreeContainerTest, ClosingIsToldWithEachPageAndThenTheEnd) {
    const HWND general = Add(kWide, "General");
    const HWND com = Add(kTall, "COM Setup", nullptr, "General");
    Select("COM Setup");
    Pump();
    parent_.notices.clear();
    const HWND window = window_;
    ::SendMessageA(window_, WM_CLOSE, 0, 0);
    EXPECT_EQ(parent_.Codes(), (Codes{3, 6, 6, 2}));
    for (const Notice& notice : parent_.notices)
        EXPECT_EQ(notice.from, window);
    EXPECT_FALSE(::IsWindow(general));
    EXPECT_FALSE(::IsWindow(com));
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(PropTreeContainerTest, TheDialogKeysReachTheButtons) {
    Add(kWide, "General");
    Select("General");
    EXPECT_EQ(::SendMessageA(window_, DM_GETDEFID, 0, 0), MAKELRESULT(1000, DC_HASDEFID));
    Pump();
    parent_.notices.clear();
    PressKey(Tree(), VK_RETURN);
    EXPECT_EQ(parent_.Codes(), Codes{4});
    PressKey(Tree(), VK_ESCAPE);
    EXPECT_EQ(parent_.Codes(), (Codes{4, 5}));
}

TEST_F(PropTreeContainerTest, TheTabKeyWalksThroughButtonsAndPage) {
    const HWND page = Add(kWide, "General");
    Select("General");
    const std::vector<HWND> expected{Tree(), Button(1000), Button(1001), ::GetDlgItem(page, 40),
                                     ::GetDlgItem(page, 41)};
    std::vector<HWND> order;
    // The desktop has one focus, which another program's window may take in between.
    EXPECT_TRUE(test::Eventually(
        [&] {
            ::SetFocus(window_);
            order = {::GetFocus()};
            while (order.size() < expected.size() && order.back() == expected[order.size() - 1]) {
                PressKey(::GetFocus(), VK_TAB);
                order.push_back(::GetFocus());
            }
            return order == expected;
        },
        120))
        << ::testing::PrintToString(order);
}

TEST_F(PropTreeContainerTest, OtherWindowsAnswerNothing) {
    for (const HWND other : {HWND{}, parent_.Window(), Tree()}) {
        EXPECT_EQ(PropTreeContainer::addPage(other, nullptr, Instance(), kWide, "x", nullptr, nullptr), nullptr);
        EXPECT_FALSE(PropTreeContainer::selectByTitle(other, "x"));
        EXPECT_EQ(PropTreeContainer::currentPage(other), nullptr);
    }
}

TEST_F(PropTreeContainerTest, WithoutAParentItStaysOpenUntilItIsClosed) {
    const HWND alone = PropTreeContainer::create(nullptr, Instance(), "Alone", 10, 10);
    ::SendMessageA(alone, WM_COMMAND, 1000, 0);
    EXPECT_TRUE(::IsWindow(alone));
    ::SendMessageA(alone, WM_CLOSE, 0, 0);
    EXPECT_FALSE(::IsWindow(alone));
}

}  // namespace
}  // namespace corvex
