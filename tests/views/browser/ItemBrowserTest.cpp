// The real dialog, with somebody at it.
// commctrl.h leans on what WindowsApi.h brings.
// clang-format off
#include "views/browser/ItemBrowser.h"

#include <commctrl.h>
// clang-format on

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "definition/ADXBitmask.h"
#include "definition/ADXMacro.h"
#include "definition/ADXValue.h"
#include "tests/support/DefinitionTestHelper.h"
#include "tests/views/browser/DialogPerson.h"

namespace corvex {
namespace {

using test::Add;
using test::AddTitled;
using test::DialogPerson;

constexpr int kList = 1001;
constexpr test::DialogLook kBrowser = {"ADX Item Browser", kList};

std::vector<std::string> Rows(HWND list) {
    char text[300] = {};
    LVITEMA item{};
    item.pszText = text;
    item.cchTextMax = sizeof text;
    std::vector<std::string> rows;
    const auto count = static_cast<WPARAM>(::SendMessageA(list, LVM_GETITEMCOUNT, 0, 0));
    for (WPARAM row = 0; row < count; ++row) {
        ::SendMessageA(list, LVM_GETITEMTEXTA, row, reinterpret_cast<LPARAM>(&item));
        rows.emplace_back(text);
    }
    return rows;
}

void Select(HWND list, int row) {
    LVITEMA item{};
    item.state = LVIS_SELECTED | LVIS_FOCUSED;
    item.stateMask = item.state;
    ::SendMessageA(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

void Click(HWND list, UINT message, POINT at) {
    ::PostMessageA(list, message, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    ::PostMessageA(list, WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
}

void DoubleClick(HWND list, POINT at) {
    Click(list, WM_LBUTTONDOWN, at);
    Click(list, WM_LBUTTONDBLCLK, at);
}

POINT MiddleOfRow(HWND list, int row) {
    RECT place{LVIR_LABEL, 0, 0, 0};
    ::SendMessageA(list, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
    return {place.left + 20, (place.top + place.bottom) / 2};
}

class ItemBrowserTest : public ::testing::Test {
protected:
    ItemBrowserTest() {
        rpm_ = AddTitled<ADXValue>(definition_, "RPM", "Engine speed");
        loop_ = AddTitled<ADXMacro>(definition_, "LOOP", "Loop");
        fan_ = AddTitled<ADXBitmask>(definition_, "FAN", "Fan");
        untitled_ = Add<ADXValue>(definition_, "NONAME");
        tps_ = AddTitled<ADXValue>(definition_, "TPS", "Throttle");
    }
    bool Browse(std::uint32_t mask, std::uint32_t options, std::function<void(HWND dialog, HWND list)> acts) {
        const DialogPerson person(kBrowser,
                                  [acts = std::move(acts)](HWND dialog) { acts(dialog, ::GetDlgItem(dialog, kList)); });
        return BrowseItems(parent_, definition_, mask, options, items_, count_);
    }
    std::vector<ADXObject*> Items() const { return {items_.get(), items_.get() + count_}; }

    HWND parent_ = nullptr;
    ADXDefinition definition_;
    ADXObject *rpm_, *loop_, *fan_, *untitled_, *tps_;
    std::unique_ptr<ADXObject*[]> items_;
    std::uint32_t count_ = 99;
};

TEST_F(ItemBrowserTest, ListsTheTitlesOfTheMaskInTheirOrder) {
    const std::pair<std::uint32_t, std::vector<std::string>> lists[] = {
        {kTypeValue, {"Engine speed", "", "Throttle"}},
        {kTypeMacro | kTypeBitmask, {"Loop", "Fan"}},
        {kTypeAny, {"Engine speed", "Loop", "Fan", "", "Throttle"}}};
    for (const auto& [mask, titles] : lists) {
        std::vector<std::string> rows;
        EXPECT_FALSE(Browse(mask, 0, [&](HWND dialog, HWND list) {
            rows = Rows(list);
            DialogPerson::Press(dialog, IDCANCEL);
        }));
        EXPECT_EQ(rows, titles);
    }
}

TEST_F(ItemBrowserTest, HasOneWideColumnFullRowsAndGridLines) {
    Browse(kTypeAny, 0, [](HWND dialog, HWND list) {
        char text[32] = {}, name[32] = {};
        LVCOLUMNA column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH;
        column.pszText = text;
        column.cchTextMax = sizeof text;
        EXPECT_NE(::SendMessageA(list, LVM_GETCOLUMNA, 0, reinterpret_cast<LPARAM>(&column)), 0);
        EXPECT_STREQ(text, "Item");
        EXPECT_EQ(column.cx, 500);
        EXPECT_EQ(::SendMessageA(list, LVM_GETCOLUMNA, 1, reinterpret_cast<LPARAM>(&column)), 0);
        EXPECT_EQ(::SendMessageA(list, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0), LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
        ::GetClassNameA(list, name, sizeof name);
        EXPECT_STREQ(name, "SysListView32");
        EXPECT_EQ(DialogPerson::Text(dialog, IDOK), "OK");
        EXPECT_EQ(DialogPerson::Text(dialog, IDCANCEL), "Cancel");
        DialogPerson::Press(dialog, IDCANCEL);
    });
}

// Of the options only the lowest bit counts: one alone may be selected.
TEST_F(ItemBrowserTest, GivesWhatIsSelectedInTheOrderOfTheList) {
    const struct {
        std::uint32_t options;
        std::vector<int> rows;
        std::vector<ADXObject*> items;
    } cases[] = {{0, {4, 1}, {loop_, tps_}},
                 {kBrowseSingle, {1, 2}, {fan_}},
                 {0xFFFFFFFE, {0, 3}, {rpm_, untitled_}},
                 {0, {}, {}}};
    for (const auto& expected : cases) {
        EXPECT_TRUE(Browse(kTypeAny, expected.options, [&](HWND dialog, HWND list) {
            for (const int row : expected.rows)
                Select(list, row);
            DialogPerson::Press(dialog, IDOK);
        }));
        EXPECT_EQ(Items(), expected.items);
        EXPECT_NE(items_, nullptr) << "an array even of nothing";
    }
}

TEST_F(ItemBrowserTest, CancelLeavesTheResultsAlone) {
    EXPECT_FALSE(Browse(kTypeAny, 0, [](HWND dialog, HWND list) {
        Select(list, 2);
        DialogPerson::Press(dialog, IDCANCEL);
    }));
    EXPECT_EQ(count_, 99U);
    EXPECT_EQ(items_, nullptr);
    EXPECT_FALSE(Browse(kTypeAny, 0, [](HWND dialog, HWND) { ::PostMessageA(dialog, WM_CLOSE, 0, 0); }));
    EXPECT_EQ(count_, 99U);
}

TEST_F(ItemBrowserTest, ADoubleClickOnARowIsOkAndBesideTheRowsNothing) {
    EXPECT_FALSE(Browse(kTypeMacro, 0, [](HWND dialog, HWND list) {
        RECT area{};
        ::GetClientRect(list, &area);
        DoubleClick(list, {area.right / 2, area.bottom - 20});
        DialogPerson::Press(dialog, IDCANCEL);
    }));
    EXPECT_EQ(count_, 99U);
    EXPECT_TRUE(Browse(kTypeAny, 0, [](HWND, HWND list) { DoubleClick(list, MiddleOfRow(list, 2)); }));
    EXPECT_EQ(Items(), std::vector<ADXObject*>{fan_});
}

TEST_F(ItemBrowserTest, OpensCentredAtItsSmallestSize) {
    parent_ = ::CreateWindowExA(0, "Static", "", WS_POPUP | WS_VISIBLE, 301, 101, 400, 351, nullptr, nullptr, nullptr,
                                nullptr);
    Browse(kTypeAny, 0, [&](HWND dialog, HWND) {
        const auto place = [dialog] {
            RECT area{};
            ::GetWindowRect(dialog, &area);
            return std::array{area.left, area.top, area.right - area.left, area.bottom - area.top};
        };
        const auto resize = [dialog](int width, int height) {
            ::SetWindowPos(dialog, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
        };
        const std::array<LONG, 4> smallest{401, 126, 200, 300};
        EXPECT_EQ(place(), smallest);
        EXPECT_FALSE(::IsWindowEnabled(parent_));
        resize(90, 90);
        EXPECT_EQ(place(), smallest);
        resize(390, 410);
        EXPECT_EQ(place()[2], 390);
        DialogPerson::Press(dialog, IDCANCEL);
    });
    ::DestroyWindow(parent_);
}

TEST_F(ItemBrowserTest, ItsControlsStayInsideAndApartAtAnySize) {
    Browse(kTypeAny, 0, [](HWND dialog, HWND) {
        for (const int width : {200, 260, 777}) {
            ::SetWindowPos(dialog, nullptr, 0, 0, width, width + 100, SWP_NOMOVE | SWP_NOZORDER);
            RECT client{}, places[3], both{};
            ::GetClientRect(dialog, &client);
            const int controls[] = {kList, IDOK, IDCANCEL};
            for (int i = 0; i < 3; ++i) {
                ::GetWindowRect(::GetDlgItem(dialog, controls[i]), &places[i]);
                ::MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&places[i]), 2);
                ::UnionRect(&both, &client, &places[i]);
                EXPECT_TRUE(::EqualRect(&both, &client)) << width << ": control " << controls[i];
                EXPECT_FALSE(::IsRectEmpty(&places[i]));
                for (int j = 0; j < i; ++j)
                    EXPECT_FALSE(::IntersectRect(&both, &places[i], &places[j])) << width << ": " << controls[i];
            }
            EXPECT_GT(places[0].bottom - places[0].top, client.bottom / 2);
        }
        DialogPerson::Press(dialog, IDCANCEL);
    });
}

}  // namespace
}  // namespace corvex
