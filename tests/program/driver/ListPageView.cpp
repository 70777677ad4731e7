#include "tests/program/driver/ListPageView.h"

#include <commctrl.h>

#include "tools/driver/RemoteMemory.h"
#include "tools/driver/WindowFinder.h"

namespace corvex::test {

namespace {

constexpr int kListId = 1000, kListComboId = 1006;
constexpr int kValueColumn = 1, kTitleColumn = 2;

}  // namespace

HWND ListPageView::List() const {
    return FindBelow(window_, WC_LISTVIEWA, kListId);
}

HWND ListPageView::Combo() const {
    return FindBelow(window_, "ComboBox", kListComboId);
}

int ListPageView::RowCount() const {
    return static_cast<int>(Ask(List(), LVM_GETITEMCOUNT));
}

std::vector<std::string> ListPageView::Rows() const {
    std::vector<std::string> rows;
    const int count = RowCount();
    for (int i = 0; i < count; ++i)
        rows.push_back(CellText(List(), i, kValueColumn).append("|").append(CellText(List(), i, kTitleColumn)));
    return rows;
}

RECT ListPageView::ValuePlace(int row) const {
    const RECT asked{LVIR_BOUNDS, kValueColumn, 0, 0};
    return AskRectangle(List(), LVM_GETSUBITEMRECT, static_cast<WPARAM>(row), asked);
}

}  // namespace corvex::test
