#include "views/browser/ItemBrowser.h"

#include <vector>

// commctrl.h leans on what WindowsApi.h brings.
// clang-format off
#include <commctrl.h>
// clang-format on

#include "views/browser/DialogTemplate.h"

namespace corvex {
namespace {

constexpr WORD kListId = 1001;
constexpr int kWidth = 200, kHeight = 300, kColumnWidth = 500;
constexpr int kMargin = 6, kButtonWidth = 75, kButtonHeight = 23;

class ItemBrowser {
public:
    ItemBrowser(HWND parent, const ADXDefinition& definition, std::uint32_t mask)
        : parent_(parent), definition_(definition), mask_(mask) {}

    static INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    const std::vector<ADXObject*>& Selected() const { return selected_; }

private:
    INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void Fill();
    void OpenCentred();
    void Layout(int width, int height);
    void Finish();
    HWND List() const { return ::GetDlgItem(dialog_, kListId); }

    const HWND parent_;
    const ADXDefinition& definition_;
    const std::uint32_t mask_;
    HWND dialog_ = nullptr;
    std::vector<ADXObject*> selected_;
};

// The system's frames lie between here and the caller, so whatever is thrown ends here; running out of memory ends the
// program, as it does in any other window.
INT_PTR CALLBACK ItemBrowser::Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_INITDIALOG) ::SetWindowLongPtrA(dialog, DWLP_USER, lParam);
    auto* const browser = reinterpret_cast<ItemBrowser*>(::GetWindowLongPtrA(dialog, DWLP_USER));
    if (browser == nullptr) return FALSE;
    browser->dialog_ = dialog;
    return browser->OnMessage(message, wParam, lParam);
}

INT_PTR ItemBrowser::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG:
            Fill();
            OpenCentred();
            ::SetFocus(List());
            return FALSE;
        case WM_SIZE:
            Layout(LOWORD(lParam), HIWORD(lParam));
            return TRUE;
        case WM_GETMINMAXINFO:
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {kWidth, kHeight};
            return TRUE;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDOK) Finish();
            if (LOWORD(wParam) == IDCANCEL) ::EndDialog(dialog_, IDCANCEL);
            return LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL;
        case WM_NOTIFY: {
            const auto& activated = *reinterpret_cast<const NMITEMACTIVATE*>(lParam);
            if (activated.hdr.idFrom != kListId || activated.hdr.code != static_cast<UINT>(NM_DBLCLK)) return FALSE;
            if (activated.iItem >= 0) Finish();
            return TRUE;
        }
        default:
            return FALSE;
    }
}

void ItemBrowser::Fill() {
    const HWND list = List();
    ::SendMessageA(list, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
    char heading[] = "Item";
    LVCOLUMNA column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.cx = kColumnWidth;
    column.pszText = heading;
    ::SendMessageA(list, LVM_INSERTCOLUMNA, 0, reinterpret_cast<LPARAM>(&column));
    int row = 0;
    for (std::uint32_t n = 0; ADXObject* const object = definition_.GetObject(mask_, n); ++n) {
        LVITEMA item{};
        item.mask = LVIF_TEXT | LVIF_PARAM;
        item.iItem = row++;
        item.pszText = const_cast<char*>(object->Title());  // the control copies it
        item.lParam = reinterpret_cast<LPARAM>(object);
        ::SendMessageA(list, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
    }
}

void ItemBrowser::OpenCentred() {
    RECT around{};
    ::GetWindowRect(parent_ != nullptr ? parent_ : ::GetDesktopWindow(), &around);
    const int left = around.left + (around.right - around.left - kWidth) / 2;
    const int top = around.top + (around.bottom - around.top - kHeight) / 2;
    ::SetWindowPos(dialog_, nullptr, left, top, kWidth, kHeight, SWP_NOZORDER | SWP_NOACTIVATE);
}

void ItemBrowser::Layout(int width, int height) {
    const int buttons = height - kMargin - kButtonHeight;
    const int cancel = width - kMargin - kButtonWidth;
    ::MoveWindow(List(), kMargin, kMargin, width - 2 * kMargin, buttons - 2 * kMargin, TRUE);
    ::MoveWindow(::GetDlgItem(dialog_, IDOK), cancel - kMargin - kButtonWidth, buttons, kButtonWidth, kButtonHeight,
                 TRUE);
    ::MoveWindow(::GetDlgItem(dialog_, IDCANCEL), cancel, buttons, kButtonWidth, kButtonHeight, TRUE);
}

int NextSelected(HWND list, int row) {
    return static_cast<int>(::SendMessageA(list, LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED));
}

void ItemBrowser::Finish() {
    selected_.clear();
    const HWND list = List();
    for (int row = NextSelected(list, -1); row >= 0; row = NextSelected(list, row)) {
        LVITEMA item{};
        item.mask = LVIF_PARAM;
        item.iItem = row;
        if (::SendMessageA(list, LVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item)) != 0)
            selected_.push_back(reinterpret_cast<ADXObject*>(item.lParam));
    }
    ::EndDialog(dialog_, IDOK);
}

// Where the controls lie is Layout's: the template gives them no room.
DialogTemplate MakeTemplate(bool single) {
    DialogTemplate made(WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | DS_FIXEDSYS, {0, 0, 130, 180},
                        L"ADX Item Browser", 8, L"MS Shell Dlg");
    const DWORD selection = single ? LVS_SINGLESEL : 0;
    made.Add(kListId, WS_TABSTOP | WS_BORDER | LVS_REPORT | LVS_SHOWSELALWAYS | selection, {}, WC_LISTVIEWW, L"");
    made.Add(IDOK, WS_TABSTOP | BS_DEFPUSHBUTTON, {}, L"Button", L"OK");
    made.Add(IDCANCEL, WS_TABSTOP | BS_PUSHBUTTON, {}, L"Button", L"Cancel");
    return made;
}

// The template and the procedure are found by the system in the module that holds them, whichever that is.
HINSTANCE OwnModule() {
    HMODULE module = nullptr;
    constexpr DWORD kByAddress = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    ::GetModuleHandleExA(kByAddress, reinterpret_cast<LPCSTR>(&kListId), &module);
    return module;
}

}  // namespace

bool BrowseItems(HWND parent, const ADXDefinition& definition, std::uint32_t mask, std::uint32_t options,
                 std::unique_ptr<ADXObject*[]>& items, std::uint32_t& count) {
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_LISTVIEW_CLASSES};
    ::InitCommonControlsEx(&classes);
    const DialogTemplate made = MakeTemplate((options & kBrowseSingle) != 0);
    ItemBrowser browser(parent, definition, mask);
    const INT_PTR answer = ::DialogBoxIndirectParamA(OwnModule(), made.Get(), parent, &ItemBrowser::Procedure,
                                                     reinterpret_cast<LPARAM>(&browser));
    if (answer != IDOK) return false;
    const std::vector<ADXObject*>& selected = browser.Selected();
    items = std::make_unique<ADXObject*[]>(selected.size());
    count = static_cast<std::uint32_t>(selected.size());
    for (std::size_t i = 0; i < selected.size(); ++i)
        items[i] = selected[i];
    return true;
}

}  // namespace corvex
