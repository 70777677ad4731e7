#include "tests/views/ListTestHelper.h"

namespace corvex::test {
namespace {

class ItemListPageTest : public ListTest {
protected:
    ItemListPageTest() { CreateItemListPage(session); }
};

TEST_F(ItemListPageTest, HasAValueColumnAlignedRightBehindOneWithoutWidth) {
    const struct {
        const char* text;
        int width, format;
    } expected[] = {{"", 0, LVCFMT_LEFT}, {"Value", 100, LVCFMT_RIGHT}, {"Title", 500, LVCFMT_LEFT}};
    char text[32] = "";
    LVCOLUMNA column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
    column.pszText = text;
    column.cchTextMax = sizeof text;
    for (WPARAM i = 0; i < 3; ++i) {
        ASSERT_TRUE(::SendMessageA(List(), LVM_GETCOLUMNA, i, L(&column)));
        EXPECT_STREQ(expected[i].text, text);
        EXPECT_EQ(expected[i].width, column.cx);
        EXPECT_EQ(expected[i].format, column.fmt & LVCFMT_JUSTIFYMASK);
    }
    EXPECT_FALSE(::SendMessageA(List(), LVM_GETCOLUMNA, 3, L(&column)));
}

TEST_F(ItemListPageTest, ListIsOfTheStylesThatItsRowsNeed) {
    const DWORD style = StyleOfWindow(List());
    EXPECT_EQ(static_cast<DWORD>(LVS_REPORT), style & LVS_TYPEMASK);
    EXPECT_TRUE(style & LVS_SINGLESEL);
    EXPECT_EQ(static_cast<DWORD>(LVS_ALIGNLEFT), style & LVS_ALIGNMASK);
    EXPECT_TRUE(style & LVS_NOCOLUMNHEADER);
    EXPECT_EQ(LVS_EX_FULLROWSELECT, ::SendMessageA(List(), LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0));
}

TEST_F(ItemListPageTest, TheListHasWhatTheComboBoxLeaves) {
    const RECT before = PlaceOf(List());
    for (const auto& [width, height] : {std::pair{700, 420}, std::pair{1600, 800}}) {
        Resize(width, height);
        const RECT client = ClientOf(Page(1));
        EXPECT_EQ((RECT{before.left, before.top, before.left + client.right, client.bottom}), PlaceOf(List()));
        EXPECT_GE(before.top, PlaceOf(Item(session.listPage, IDC_LIST_COMBO)).bottom);
    }
}

}  // namespace
}  // namespace corvex::test
