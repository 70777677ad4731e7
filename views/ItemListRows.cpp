#include "views/ItemListRows.h"

#include "views/ItemAlarmModel.h"

namespace corvex {

namespace {

constexpr std::uint32_t kTitleLength = 255;

void SetText(HWND control, int row, int column, const char* text) {
    LVITEMA rowInfo{};
    rowInfo.mask = LVIF_TEXT;
    rowInfo.iItem = row;
    rowInfo.iSubItem = column;
    rowInfo.pszText = const_cast<char*>(text);
    ::SendMessageA(control, LVM_SETITEMA, 0, reinterpret_cast<LPARAM>(&rowInfo));
}

void SetTitle(HWND control, int row, const ADXLVENTRY& entry) {
    if (entry.entrytype == ADXLVENTRY::kHeadingRow) {
        SetText(control, row, kTitleColumn, entry.title.IsSet() ? entry.title.CStr() : "");
    } else if (entry.item != nullptr) {
        char title[kTitleLength + 1];
        entry.item->GetTitle(title, sizeof title);
        SetText(control, row, kTitleColumn, title);
    }
}

void InsertRow(HWND control, std::uint32_t place, const ADXLVENTRY& entry) {
    LVITEMA rowInfo{};
    rowInfo.mask = LVIF_TEXT | LVIF_IMAGE | LVIF_PARAM | LVIF_STATE;
    rowInfo.iItem = static_cast<int>(place);
    rowInfo.pszText = LPSTR_TEXTCALLBACKA;
    rowInfo.lParam = reinterpret_cast<LPARAM>(&entry);
    const auto row = static_cast<int>(::SendMessageA(control, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&rowInfo)));
    if (row < 0) return;
    SetText(control, row, kValueColumn, LPSTR_TEXTCALLBACKA);
    SetTitle(control, row, entry);
}

}  // namespace

void FillItemList(HWND control, const ADXListView* list) {
    ::SendMessageA(control, LVM_DELETEALLITEMS, 0, 0);
    if (list == nullptr) return;
    for (std::uint32_t i = 0; i < list->GetEntryCount(); ++i) {
        const ADXLVENTRY& entry = *list->GetEntry(i);
        if (entry.entrytype != ADXLVENTRY::kItemRow || entry.item != nullptr) InsertRow(control, i, entry);
    }
}

const ADXLVENTRY* EntryOfRow(HWND control, int row) {
    LVITEMA rowInfo{};
    rowInfo.mask = LVIF_PARAM;
    rowInfo.iItem = row;
    const bool isThere = ::SendMessageA(control, LVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&rowInfo)) != 0;
    return isThere ? reinterpret_cast<const ADXLVENTRY*>(rowInfo.lParam) : nullptr;
}

void RepaintRows(HWND control) {
    ::SendMessageA(control, WM_SETREDRAW, FALSE, 0);
    LVITEMA rowInfo{};
    rowInfo.pszText = LPSTR_TEXTCALLBACKA;
    const LRESULT rows = ::SendMessageA(control, LVM_GETITEMCOUNT, 0, 0);
    for (WPARAM row = 0; row < static_cast<WPARAM>(rows); ++row)
        ::SendMessageA(control, LVM_SETITEMTEXTA, row, reinterpret_cast<LPARAM>(&rowInfo));
    ::InvalidateRect(control, nullptr, FALSE);
    ::SendMessageA(control, WM_SETREDRAW, TRUE, 0);
}

}  // namespace corvex
