#include "views/ItemListPage.h"

#include "controls/tabsheet/TabSheet.h"
#include "controls/window/CommonControls.h"
#include "definition/ADXListView.h"
#include "views/PageCombo.h"
#include "views/PageDialog.h"
#include "views/PageResources.h"

namespace corvex {

namespace {

struct Column {
    const char* header;  // never shown
    int width, format;
};

// The first column can only be aligned left, hence one without width before the values.
constexpr Column kColumns[] = {{"", 0, LVCFMT_LEFT}, {"Value", 100, LVCFMT_RIGHT}, {"Title", 500, LVCFMT_LEFT}};

HWND ListOf(HWND page) {
    return ::GetDlgItem(page, IDC_LIST_VIEW);
}

SessionState& SessionOf(HWND page) {
    return *reinterpret_cast<SessionState*>(::GetWindowLongPtrA(page, GWLP_USERDATA));
}

void InsertColumns(HWND list) {
    ::SendMessageA(list, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_FULLROWSELECT);
    for (int i = 0; const Column& column : kColumns) {
        LVCOLUMNA words{};
        words.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;
        words.pszText = const_cast<char*>(column.header);
        words.cx = column.width;
        words.fmt = column.format;
        words.iSubItem = i;
        ::SendMessageA(list, LVM_INSERTCOLUMNA, static_cast<WPARAM>(i++), reinterpret_cast<LPARAM>(&words));
    }
}

// The rows of the list on show are inserted here.
void FillItemList(HWND page) {
    ::SendMessageA(ListOf(page), LVM_DELETEALLITEMS, 0, 0);
}

void TakeSelection(SessionState& session, HWND page) {
    const HWND combo = ::GetDlgItem(page, IDC_LIST_COMBO);
    session.currentListView = static_cast<ADXListView*>(SelectedObject(combo, session.definition, kTypeListView));
    FillItemList(page);
}

void LayOut(HWND page) {
    RECT client{};
    ::GetClientRect(page, &client);
    const HWND list = ListOf(page);
    const int height = static_cast<int>(client.bottom - RectInParent(list).top);
    ::SetWindowPos(list, nullptr, 0, 0, client.right, height, SWP_NOMOVE | SWP_NOZORDER);
}

void Begin(HWND page, LPARAM session) {
    ::SetWindowLongPtrA(page, GWLP_USERDATA, session);
    SessionOf(page).listPage = page;
    InsertColumns(ListOf(page));
}

// The list asks for its values and colours by WM_NOTIFY, which belongs here too.
INT_PTR CALLBACK ItemListProcedure(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG:
            Begin(page, lParam);
            return FALSE;
        case WM_COMMAND:
            if (wParam == MAKEWPARAM(IDC_LIST_COMBO, CBN_SELCHANGE)) TakeSelection(SessionOf(page), page);
            return TRUE;
        case WM_SIZE:
            LayOut(page);
            return TRUE;
        case WM_ERASEBKGND:
            return DialogResult(page, 1);
        case WM_PAINT:
            PaintPageGround(page);
            return TRUE;
        case WM_DESTROY:
            SessionOf(page).listPage = nullptr;
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace

void CreateItemListPage(SessionState& session) {
    const HWND page = TabSheet::addDialogPage(static_cast<HWND>(session.tabSheet), &ItemListProcedure,
                                              static_cast<HINSTANCE>(session.instance), IDD_LIST_PAGE, "Item Lists", -1,
                                              reinterpret_cast<LPARAM>(&session), false);
    if (page != nullptr) FillItemList(page);
}

void RefreshItemListPage(SessionState& session) {
    const HWND page = static_cast<HWND>(session.listPage);
    session.currentListView = nullptr;
    if (page == nullptr) return;
    FillPageCombo(::GetDlgItem(page, IDC_LIST_COMBO), session.definition, kTypeListView);
    TakeSelection(session, page);
}

bool IsItemListVisible(const SessionState& session) {
    const HWND page = static_cast<HWND>(session.listPage);
    return page != nullptr && ::IsWindowVisible(ListOf(page)) != FALSE;
}

}  // namespace corvex
