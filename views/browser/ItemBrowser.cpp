#include "views/browser/ItemBrowser.h"

#include <utility>
#include <vector>

#include "controls/window/CommonControls.h"
#include "controls/window/DialogWindow.h"
#include "views/browser/DialogTemplate.h"

namespace corvex {
namespace {

constexpr WORD kListId = 1001;
constexpr int kWidth = 200, kHeight = 300, kColumnWidth = 500;
constexpr int kMargin = 6, kButtonWidth = 75, kButtonHeight = 23;

class ItemBrowser final : public DialogWindow {
public:
    // What was selected goes to `selected`, which is there until the dialog has ended.
    ItemBrowser(HWND parent, const ADXDefinition& definition, std::uint32_t mask, std::vector<ADXObject*>& selected)
        : DialogWindow(DialogFocus::kUntouched),
          parent_(parent),
          definition_(definition),
          mask_(mask),
          selected_(selected) {}

private:
    DialogAnswer OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    DialogAnswer OnCommand(int id);
    DialogAnswer OnNotify(const NMITEMACTIVATE& notice);
    void Fill();
    void OpenCentred();
    void Layout(int width, int height);
    void Finish();
    HWND List() const { return Item(kListId); }

    const HWND parent_;
    const ADXDefinition& definition_;
    const std::uint32_t mask_;
    std::vector<ADXObject*>& selected_;
};

DialogAnswer ItemBrowser::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG:
            Fill();
            OpenCentred();
            ::SetFocus(List());
            return 0;
        case WM_SIZE:
            Layout(LOWORD(lParam), HIWORD(lParam));
            return 0;
        case WM_GETMINMAXINFO:
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {kWidth, kHeight};
            return 0;
        case WM_COMMAND:
            return OnCommand(LOWORD(wParam));
        case WM_NOTIFY:
            return OnNotify(*reinterpret_cast<const NMITEMACTIVATE*>(lParam));
        default:
            return {};
    }
}

DialogAnswer ItemBrowser::OnCommand(int id) {
    if (id != IDOK && id != IDCANCEL) return {};
    if (id == IDOK) Finish();
    if (id == IDCANCEL) ::EndDialog(Window(), IDCANCEL);
    return 0;
}

DialogAnswer ItemBrowser::OnNotify(const NMITEMACTIVATE& notice) {
    if (notice.hdr.idFrom != kListId || notice.hdr.code != static_cast<UINT>(NM_DBLCLK)) return {};
    if (notice.iItem >= 0) Finish();
    return 0;
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
    ::SetWindowPos(Window(), nullptr, left, top, kWidth, kHeight, SWP_NOZORDER | SWP_NOACTIVATE);
}

void ItemBrowser::Layout(int width, int height) {
    const int buttons = height - kMargin - kButtonHeight;
    const int cancel = width - kMargin - kButtonWidth;
    ::MoveWindow(List(), kMargin, kMargin, width - 2 * kMargin, buttons - 2 * kMargin, TRUE);
    ::MoveWindow(::GetDlgItem(Window(), IDOK), cancel - kMargin - kButtonWidth, buttons, kButtonWidth, kButtonHeight,
                 TRUE);
    ::MoveWindow(::GetDlgItem(Window(), IDCANCEL), cancel, buttons, kButtonWidth, kButtonHeight, TRUE);
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
    ::EndDialog(Window(), IDOK);
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
    std::vector<ADXObject*> selected;
    auto browser = std::make_unique<ItemBrowser>(parent, definition, mask, selected);
    if (RunDialog(std::move(browser), OwnModule(), made.Get(), parent) != IDOK) return false;
    items = std::make_unique<ADXObject*[]>(selected.size());
    count = static_cast<std::uint32_t>(selected.size());
    for (std::size_t i = 0; i < selected.size(); ++i)
        items[i] = selected[i];
    return true;
}

}  // namespace corvex
