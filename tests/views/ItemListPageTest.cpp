#include <gtest/gtest.h>

#include "controls/window/CommonControls.h"
#include "definition/ADXListView.h"
#include "tests/views/PageTestHelper.h"
#include "views/ItemListPage.h"
#include "views/PageResources.h"

namespace corvex::test {
namespace {

class ItemListPageTest : public PageTest {
protected:
    HWND List() const { return Item(session.listPage, IDC_LIST_VIEW); }
};

TEST_F(ItemListPageTest, IsATabOfTheSheet) {
    CreateItemListPage(session);
    ASSERT_EQ(2, TabSheet::pageCount(sheet));
    EXPECT_EQ("Item Lists", Title(1));
    EXPECT_EQ(session.listPage, Page(1));
}

TEST_F(ItemListPageTest, HasAValueColumnAlignedRightBehindOneWithoutWidth) {
    CreateItemListPage(session);
    const struct {
        const char* text;
        int width, format;
    } expected[] = {{"", 0, LVCFMT_LEFT}, {"Value", 100, LVCFMT_RIGHT}, {"Title", 500, LVCFMT_LEFT}};
    for (int i = 0; i < 3; ++i) {
        char text[32] = "";
        LVCOLUMNA column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
        column.pszText = text;
        column.cchTextMax = sizeof text;
        ASSERT_TRUE(::SendMessageA(List(), LVM_GETCOLUMNA, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&column)));
        EXPECT_STREQ(expected[i].text, text);
        EXPECT_EQ(expected[i].width, column.cx);
        EXPECT_EQ(expected[i].format, column.fmt & LVCFMT_JUSTIFYMASK);
    }
    LVCOLUMNA none{};
    none.mask = LVCF_WIDTH;
    EXPECT_FALSE(::SendMessageA(List(), LVM_GETCOLUMNA, 3, reinterpret_cast<LPARAM>(&none)));
}

TEST_F(ItemListPageTest, ListIsOfTheStylesThatItsRowsNeed) {
    CreateItemListPage(session);
    const auto style = static_cast<DWORD>(::GetWindowLongPtrA(List(), GWL_STYLE));
    EXPECT_EQ(static_cast<DWORD>(LVS_REPORT), style & LVS_TYPEMASK);
    EXPECT_TRUE(style & LVS_SINGLESEL);
    EXPECT_EQ(static_cast<DWORD>(LVS_ALIGNLEFT), style & LVS_ALIGNMASK);
    EXPECT_TRUE(style & LVS_NOCOLUMNHEADER);
    EXPECT_EQ(LVS_EX_FULLROWSELECT, ::SendMessageA(List(), LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0));
}

TEST_F(ItemListPageTest, RefreshOffersAllAndTakesTheFirst) {
    CreateItemListPage(session);
    ADXListView* const first = AddTitled<ADXListView>(session.definition, "A", "All");
    ADXListView* const second = AddTitled<ADXListView>(session.definition, "B", "Faults");
    RefreshItemListPage(session);
    EXPECT_EQ((std::vector<std::string>{"All", "Faults"}), Rows(Item(session.listPage, IDC_LIST_COMBO)));
    EXPECT_EQ(first, session.currentListView);
    Choose(Page(1), IDC_LIST_COMBO, 1);
    EXPECT_EQ(second, session.currentListView);
    Choose(Page(1), IDC_LIST_COMBO, -1);
    EXPECT_EQ(nullptr, session.currentListView);
}

TEST_F(ItemListPageTest, AnEmptyDefinitionShowsNone) {
    CreateItemListPage(session);
    AddTitled<ADXListView>(session.definition, "A", "All");
    RefreshItemListPage(session);
    session.definition.Clear();
    Choose(Page(1), IDC_LIST_COMBO, 0);
    EXPECT_EQ(nullptr, session.currentListView) << "taken although it is gone";
    RefreshItemListPage(session);
    EXPECT_EQ(nullptr, session.currentListView);
    EXPECT_TRUE(Rows(Item(session.listPage, IDC_LIST_COMBO)).empty());
}

TEST_F(ItemListPageTest, TheListHasWhatTheComboBoxLeaves) {
    CreateItemListPage(session);
    const RECT before = PlaceInParent(List());
    for (const auto& [width, height] : {std::pair{700, 420}, std::pair{1600, 800}}) {
        Resize(width, height);
        const RECT client = ClientOf(Page(1)), list = PlaceInParent(List());
        EXPECT_EQ(before.left, list.left);
        EXPECT_EQ(before.top, list.top);
        EXPECT_EQ(client.right, list.right - list.left);
        EXPECT_EQ(client.bottom, list.bottom);
        EXPECT_GE(list.top, PlaceInParent(Item(session.listPage, IDC_LIST_COMBO)).bottom);
    }
}

TEST_F(ItemListPageTest, LeavesItsGroundToThePaint) {
    CreateItemListPage(session);
    EXPECT_TRUE(ErasesNothing(Page(1)));
}

TEST_F(ItemListPageTest, TheListIsVisibleOnTheChosenTabOfAVisibleWindow) {
    EXPECT_FALSE(Wants(SampleViewKind::kList));
    CreateItemListPage(session);
    ShowFrame();
    EXPECT_FALSE(Wants(SampleViewKind::kList));
    TabSheet::selectPage(sheet, 1);
    EXPECT_TRUE(Wants(SampleViewKind::kList));
}

TEST_F(ItemListPageTest, ItsEndIsKnown) {
    CreateItemListPage(session);
    ::DestroyWindow(std::exchange(frame, nullptr));
    EXPECT_EQ(nullptr, session.listPage);
    EXPECT_FALSE(Wants(SampleViewKind::kList));
    session.currentListView = reinterpret_cast<ADXListView*>(&session);
    RefreshItemListPage(session);
    EXPECT_EQ(nullptr, session.currentListView);
}

}  // namespace
}  // namespace corvex::test
