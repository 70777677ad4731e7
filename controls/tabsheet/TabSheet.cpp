#include "controls/tabsheet/TabSheet.h"

#include "controls/tabsheet/TabSheetWindow.h"
// After windows.h, which it leans on.
#include <commctrl.h>

namespace corvex {

namespace {

template <class Result, class Operation>
Result OnSheet(HWND sheet, Result otherwise, Operation operation) {
    TabSheetWindow* const control = ControlOf<TabSheetWindow>(sheet);
    if (control == nullptr) return otherwise;
    const WindowHold hold(control);
    return operation(*control);
}

}  // namespace

bool TabSheet::Register(HINSTANCE instance) {
    INITCOMMONCONTROLSEX needed{sizeof needed, ICC_TAB_CLASSES};
    ::InitCommonControlsEx(&needed);
    ControlClass windowClass{kTabSheetClass};
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.background = SystemBackground(COLOR_BTNFACE);
    return RegisterControl<TabSheetWindow>(instance, windowClass);
}

HWND TabSheet::addDialogPage(HWND sheet, DLGPROC dialogProc, HINSTANCE instance, int templateId, const char* title,
                             int index, LPARAM param, bool show) {
    return OnSheet(sheet, HWND{}, [&](TabSheetWindow& control) -> HWND {
        if (control.Tabs().Control() == nullptr) return nullptr;
        const HWND page =
            ::CreateDialogParamA(instance, MAKEINTRESOURCEA(templateId), control.Tabs().Control(), dialogProc, param);
        if (page == nullptr) return nullptr;
        if (control.Add(page, title, index, show)) return page;
        if (::IsWindow(page)) ::DestroyWindow(page);
        return nullptr;
    });
}

bool TabSheet::addWindowPage(HWND sheet, HWND window, const char* title, int index) {
    return OnSheet(sheet, false, [&](TabSheetWindow& control) { return control.Add(window, title, index, false); });
}

bool TabSheet::removePage(HWND sheet, int index, bool destroy) {
    return OnSheet(sheet, false, [&](TabSheetWindow& control) { return control.Remove(index, destroy); });
}

bool TabSheet::selectPage(HWND sheet, int index) {
    return OnSheet(sheet, false, [&](TabSheetWindow& control) { return control.Select(control.Tabs().PageAt(index)); });
}

bool TabSheet::selectPageByWindow(HWND sheet, HWND window) {
    return OnSheet(sheet, false, [&](TabSheetWindow& control) { return control.Select(window); });
}

HWND TabSheet::getPage(HWND sheet, int index) {
    return OnSheet(sheet, HWND{}, [&](TabSheetWindow& control) { return control.Tabs().PageAt(index); });
}

int TabSheet::indexOfPage(HWND sheet, HWND window) {
    return OnSheet(sheet, -1, [&](TabSheetWindow& control) { return control.Tabs().IndexOf(window); });
}

int TabSheet::getTitle(HWND sheet, int index, char* buffer, int capacity) {
    return OnSheet(sheet, 0, [&](TabSheetWindow& control) { return control.Tabs().Title(index, buffer, capacity); });
}

int TabSheet::pageCount(HWND sheet) {
    return OnSheet(sheet, 0, [](TabSheetWindow& control) { return control.Tabs().Count(); });
}

bool TabSheet::detach(HWND sheet) {
    return OnSheet(sheet, false, [](TabSheetWindow& control) { return control.Detach(); });
}

bool TabSheet::dock(HWND sheet) {
    return OnSheet(sheet, false, [](TabSheetWindow& control) { return control.Dock(); });
}

HWND TabSheet::detachedPage(HWND sheet) {
    return OnSheet(sheet, HWND{}, [](TabSheetWindow& control) { return control.DetachedPage(); });
}

void TabSheet::setHitTestLocks(HWND sheet, unsigned locks) {
    OnSheet(sheet, false, [&](TabSheetWindow& control) { return control.SetLocks(locks), true; });
}

void TabSheet::setMovable(HWND sheet, bool movable) {
    OnSheet(sheet, false, [&](TabSheetWindow& control) { return control.SetMovable(movable), true; });
}

}  // namespace corvex
