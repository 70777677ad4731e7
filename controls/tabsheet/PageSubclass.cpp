#include "controls/tabsheet/PageSubclass.h"

#include "controls/tabsheet/TabSheet.h"
#include "controls/window/PageWindow.h"

namespace corvex {

namespace {

constexpr char kProcedureProperty[] = "CorvexPageProcedure";
constexpr char kSheetProperty[] = "CorvexPageSheet";

HWND SheetOf(HWND page) {
    return static_cast<HWND>(::GetPropA(page, kSheetProperty));
}

WNDPROC OwnProcedure(HWND page) {
    return reinterpret_cast<WNDPROC>(::GetPropA(page, kProcedureProperty));
}

LRESULT CALLBACK PageProcedure(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC own = OwnProcedure(page);
    if (own == nullptr) return ::DefWindowProcA(page, message, wParam, lParam);
    if (message == WM_CONTEXTMENU) {
        const HWND sheet = SheetOf(page);
        const HWND parent = sheet == nullptr ? nullptr : ParentToTell(sheet);
        if (parent != nullptr) ::SendMessageA(parent, TSM_PAGECONTEXTMENU, wParam, lParam);
        if (!::IsWindow(page)) return 0;
    }
    if (message == WM_NCDESTROY) {
        const HWND sheet = SheetOf(page);
        UnsubclassPage(page);
        ::RemovePropA(page, kProcedureProperty);
        if (sheet != nullptr) ::SendMessageA(sheet, kPageGone, 0, reinterpret_cast<LPARAM>(page));
    }
    return ::CallWindowProcA(own, page, message, wParam, lParam);
}

bool PageProcedureIsFirst(HWND page) {
    return ::GetWindowLongPtrA(page, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&PageProcedure);
}

}  // namespace

bool SubclassPage(HWND page, HWND sheet) {
    // A page that came back with somebody else's procedure in front of ours still has ours in its chain.
    if (OwnProcedure(page) == nullptr) {
        const LONG_PTR own = ::GetWindowLongPtrA(page, GWLP_WNDPROC);
        if (own == 0 || !::SetPropA(page, kProcedureProperty, reinterpret_cast<HANDLE>(own))) return false;
        ::SetWindowLongPtrA(page, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&PageProcedure));
    }
    return ::SetPropA(page, kSheetProperty, sheet) != FALSE;
}

void UnsubclassPage(HWND page) {
    ::RemovePropA(page, kSheetProperty);
    const WNDPROC own = OwnProcedure(page);
    // Whoever came in front of us calls us on: then our procedure stays, and hands everything through.
    if (own == nullptr || !PageProcedureIsFirst(page)) return;
    ::SetWindowLongPtrA(page, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(own));
    ::RemovePropA(page, kProcedureProperty);
}

bool IsSubclassedPage(HWND window) {
    return SheetOf(window) != nullptr;
}

}  // namespace corvex
