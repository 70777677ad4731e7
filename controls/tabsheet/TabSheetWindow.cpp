#include "controls/tabsheet/TabSheetWindow.h"

#include <utility>

#include "controls/tabsheet/PageSubclass.h"
#include "controls/tabsheet/TabSheet.h"
#include "controls/tabsheet/TabSheetModel.h"
#include "controls/window/PageWindow.h"
// After windows.h, which it leans on.
#include <commctrl.h>

namespace corvex {

namespace {

HFONT MakeSheetFont() {
    return ::CreateFontA(14, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, PROOF_QUALITY, 0x32, "Arial");
}

}  // namespace

TabSheetWindow::TabSheetWindow(HWND window) : ControlWindow(window), font_(MakeSheetFont()) {}

LRESULT TabSheetWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            return Create() ? 0 : -1;
        case kMessageReady:
            Tell(TSN_READY);
            return 0;
        case kMessageShowAnotherPage:
            ShowAnother(static_cast<int>(wParam));
            return 0;
        case kMessagePageGone:
            OnPageGone(reinterpret_cast<HWND>(lParam));
            return 0;
        case WM_SIZE:
            Layout();
            return 0;
        case WM_NOTIFY: {
            const auto* const notice = reinterpret_cast<const NMHDR*>(lParam);
            if (notice->hwndFrom == tabs_.Control() && notice->code == static_cast<UINT>(TCN_SELCHANGE)) {
                OnTabSelected();
            }
            return 0;
        }
        case WM_PARENTNOTIFY:
            if (LOWORD(wParam) == WM_DESTROY) OnChildGone(reinterpret_cast<HWND>(lParam));
            return 0;
        case WM_CLOSE:
            Close();
            return 0;
        case WM_DESTROY:
            OnDestroy();
            return 0;
        case WM_NCDESTROY:
            TellParent(std::exchange(parent_, nullptr), Window(), TSN_DESTROYED);
            break;
    }
    return OnFrameMessage(message, wParam, lParam);
}

// What of the sheet's own frame can be dragged, and its caption.
LRESULT TabSheetWindow::OnFrameMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETMINMAXINFO: {
            const LRESULT result = Default(message, wParam, lParam);
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize.y = kSheetMinimumTrackHeight;
            return result;
        }
        case WM_NCHITTEST:
            return LockedHit(static_cast<int>(Default(message, wParam, lParam)), locks_);
        case WM_NCLBUTTONDBLCLK:
            if (wParam != HTCAPTION) break;
            Detach();
            return 0;
        case WM_SYSCOMMAND:
            if ((wParam & 0xFFF0) == SC_MOVE && !movable_) return 0;  // the low bits are the system's own
            break;
    }
    return Default(message, wParam, lParam);
}

bool TabSheetWindow::Create() {
    if (!tabs_.Create(Window(), font_.Get())) return false;
    ::PostMessageA(Window(), kMessageReady, 0, 0);
    return true;
}

void TabSheetWindow::Tell(UINT code) {
    TellParent(ParentToTell(Window()), Window(), code);
}

void TabSheetWindow::Layout() {
    tabs_.FillParent();
    for (int i = 0; i < tabs_.Count(); ++i)
        Fit(tabs_.PageAt(i));  // counted anew: a page may answer by going
    if (!closing_) Tell(TSN_RESIZED);
}

void TabSheetWindow::Fit(HWND page) {
    const RECT area = tabs_.PageArea();
    const PageBox box = BoxOfEdges(area.left, area.top, area.right, area.bottom);
    ::MoveWindow(page, box.x, box.y, box.width, box.height, TRUE);
}

bool TabSheetWindow::Add(HWND page, const char* title, int index, bool show) {
    if (closing_ || tabs_.Control() == nullptr || IsSubclassedPage(page)) return false;
    if (!BecomePage(page, tabs_.Control()) || closing_ || !SubclassPage(page, Window())) return false;
    if (tabs_.Insert(index, title, page) < 0) {
        UnsubclassPage(page);
        return false;
    }
    Fit(page);
    // The tab control shows its first tab as chosen, so its page can't stay hidden.
    const bool alone = current_ == nullptr && detached_ == nullptr;
    if (tabs_.IndexOf(page) >= 0 && (show || alone)) Show(page, show);
    return tabs_.IndexOf(page) >= 0;
}

bool TabSheetWindow::Remove(int index, bool destroy) {
    const HWND page = tabs_.PageAt(index);
    if (page == nullptr) return false;
    const bool shown = page == current_;
    if (shown) current_ = nullptr;
    tabs_.Delete(index);  // before the window: its end is no news then
    UnsubclassPage(page);
    if (destroy) {
        ::DestroyWindow(page);
    } else {
        LeaveParent(page);
    }
    if (shown || tabs_.Count() == 0) ShowAnother(index);
    return true;
}

bool TabSheetWindow::Select(HWND page) {
    if (page == nullptr || closing_) return false;
    if (page != detached_ && tabs_.IndexOf(page) < 0) return false;
    Show(page, true);
    return StillShows(page);
}

void TabSheetWindow::OnTabSelected() {
    const HWND page = tabs_.PageAt(tabs_.Selected());
    if (page != nullptr) Show(page, true);
}

void TabSheetWindow::Show(HWND page, bool focus) {
    PutBack();
    if (closing_ || tabs_.IndexOf(page) < 0) return;
    const HWND former = std::exchange(current_, page);
    tabs_.Select(tabs_.IndexOf(page));
    if (former != nullptr && former != page) ::ShowWindow(former, SW_HIDE);
    if (StillShows(page)) ::ShowWindow(page, SW_SHOW);
    // Its handler chose another page before it was there to be hidden.
    if (!StillShows(page) && tabs_.IndexOf(page) >= 0) ::ShowWindow(page, SW_HIDE);
    if (StillShows(page) && focus) ::SetFocus(page);
    if (StillShows(page)) ::SetWindowTextA(Window(), tabs_.TitleAt(tabs_.IndexOf(page)).c_str());
    if (StillShows(page)) Fit(page);
}

// Finds something to show after the page at `index` went; a sheet without pages has no reason to stay.
void TabSheetWindow::ShowAnother(int index) {
    if (closing_ || current_ != nullptr) return;
    if (tabs_.Count() > 0) {
        Show(tabs_.PageAt(TabAfterRemoval(index, tabs_.Count())), false);
    } else if (detached_ != nullptr && tabs_.Control() != nullptr) {
        Show(detached_, false);
    } else {
        ::DestroyWindow(Window());
    }
}

// While a page or the tab control is being destroyed is no time to destroy what stands around it.
void TabSheetWindow::ShowAnotherLater(int index) {
    ::PostMessageA(Window(), kMessageShowAnotherPage, static_cast<WPARAM>(index), 0);
}

bool TabSheetWindow::Detach() {
    const HWND page = current_;
    if (page == nullptr) {  // pulled out already: the second double click brings it back
        Dock();
        return false;
    }
    current_ = nullptr;
    detached_ = page;
    detachedIndex_ = tabs_.IndexOf(page);
    detachedTitle_ = tabs_.TitleAt(detachedIndex_);
    tabs_.Delete(detachedIndex_);
    tabs_.Select(-1);  // so that a click on any tab is a change of page, which docks
    LeaveParent(page);
    if (detached_ == page) ::ShowWindow(page, SW_MAXIMIZE);
    return detached_ == page;
}

bool TabSheetWindow::Dock() {
    const HWND page = detached_;
    if (page == nullptr) return false;
    Show(page, true);
    return StillShows(page);
}

// The detached page gets its tab and its place back, and is not shown.
void TabSheetWindow::PutBack() {
    const HWND page = std::exchange(detached_, nullptr);
    if (page == nullptr) return;
    ::ShowWindow(page, SW_HIDE);
    const LONG_PTR style = ::GetWindowLongPtrA(page, GWL_STYLE);
    ::SetWindowLongPtrA(page, GWL_STYLE,
                        style & ~static_cast<LONG_PTR>(WS_MAXIMIZE));  // or it would stay so as a child
    if (closing_ || !BecomePage(page, tabs_.Control())) return Orphaned(page);
    tabs_.Insert(detachedIndex_, detachedTitle_.c_str(), page);
    Fit(page);
}

// On its way back a page lost its sheet, or itself.
void TabSheetWindow::Orphaned(HWND page) {
    if (!closing_) return ShowAnotherLater(detachedIndex_);
    UnsubclassPage(page);
    ::DestroyWindow(page);
}

void TabSheetWindow::Close() {
    if (current_ != nullptr) {
        Remove(tabs_.IndexOf(current_), true);
    } else if (detached_ != nullptr) {
        const HWND page = std::exchange(detached_, nullptr);
        UnsubclassPage(page);
        ::DestroyWindow(page);
        ShowAnother(detachedIndex_);
    } else {
        ShowAnother(0);
    }
}

void TabSheetWindow::OnChildGone(HWND child) {
    if (child == tabs_.Control()) {
        tabs_.Forget();
        current_ = nullptr;
        ShowAnotherLater(0);
    } else {
        OnPageGone(child);
    }
}

// Comes by WM_PARENTNOTIFY, and by the page itself, which alone can tell while it is detached.
void TabSheetWindow::OnPageGone(HWND page) {
    if (page == nullptr || closing_) return;
    int index = tabs_.IndexOf(page);
    if (page == detached_) {
        index = detachedIndex_;
        detached_ = nullptr;
    } else if (index >= 0) {
        tabs_.Delete(index);
    } else {
        return;
    }
    const bool shown = page == current_;
    if (shown) current_ = nullptr;
    if (current_ == nullptr && detached_ == nullptr) ShowAnotherLater(index);
}

void TabSheetWindow::OnDestroy() {
    if (std::exchange(closing_, true)) return;  // a handler that destroys the window once more makes it come again
    parent_ = ParentToTell(Window());
    current_ = nullptr;
    tabs_.Forget();
    if (detached_ == nullptr) return;
    const HWND page = std::exchange(detached_, nullptr);
    UnsubclassPage(page);
    ::DestroyWindow(page);
}

}  // namespace corvex
