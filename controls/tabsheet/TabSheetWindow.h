// The object behind a tab sheet's window. The operations are those of TabSheet, told there.
#pragma once

#include <string>

#include "controls/tabsheet/TabStrip.h"
#include "controls/window/ControlWindow.h"
#include "controls/window/GdiObjects.h"

namespace corvex {

// A page's own handlers run inside most of what is done here, and may remove pages or destroy the sheet: after each
// such call only members are trusted, which then say that the sheet is closing. Callers from outside hold the object.
class TabSheetWindow final : public ControlWindow {
public:
    explicit TabSheetWindow(HWND window);

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    bool Add(HWND page, const char* title, int index, bool show);
    bool Remove(int index, bool destroy);
    // What a click on the page's tab does. A detached page comes back for it.
    bool Select(HWND page);
    bool Detach();
    bool Dock();

    const TabStrip& Tabs() const { return tabs_; }
    HWND DetachedPage() const { return detached_; }
    void SetLocks(unsigned locks) { locks_ = locks; }
    void SetMovable(bool movable) { movable_ = movable; }

private:
    LRESULT OnFrameMessage(UINT message, WPARAM wParam, LPARAM lParam);
    bool Create();
    void Layout();
    void Close();
    void OnDestroy();
    void OnTabSelected();
    void OnChildGone(HWND child);
    void OnPageGone(HWND page);

    void Show(HWND page, bool focus);
    bool StillShows(HWND page) const { return !closing_ && current_ == page; }
    void Fit(HWND page);
    void PutBack();
    void Orphaned(HWND page);
    void ShowAnother(int index);
    void ShowAnotherLater(int index);
    void Tell(UINT code);

    OwnedFont font_;
    TabStrip tabs_;
    // Never both: to show a page is to put the detached one back, and only the page on show can be pulled out.
    HWND current_ = nullptr;
    HWND detached_ = nullptr;
    int detachedIndex_ = -1;
    std::string detachedTitle_;
    HWND parent_ = nullptr;  // who heard of the end; from the beginning of it until it is told
    unsigned locks_ = 0;
    bool movable_ = true;
    bool closing_ = false;
};

}  // namespace corvex
