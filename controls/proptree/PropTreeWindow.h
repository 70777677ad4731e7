// The object behind a property tree's window. The operations are those of PropTreeContainer, told there.
#pragma once

#include <vector>

#include "controls/proptree/PropTreeModel.h"
#include "controls/proptree/TitleTree.h"
#include "controls/window/ControlWindow.h"

namespace corvex {

// What CreateWindowExA hands over; without it both are 0.
struct PropTreeSizes {
    int treeWidth = 0;
    int minimumHeight = 0;
};

// The parent's handlers run inside the notifications and may destroy the window: after each only members are trusted,
// which then say that it is closing. Callers from outside hold the object.
class PropTreeWindow final : public ControlWindow {
public:
    PropTreeWindow(HWND window, void* sizes);

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    // A window that becomes a page. False when it can't, or is destroyed on the way.
    bool Add(HWND page, const char* title, const char* insertAfterTitle, const char* parentTitle);
    bool SelectByTitle(const char* title);
    HWND CurrentPage() const { return current_; }
    // Makes the window large enough for its pages, never smaller.
    void Grow();

private:
    LRESULT OnInput(UINT message, WPARAM wParam, LPARAM lParam);
    bool Create();
    HWND MakeButton(const char* text, int id, DWORD style);
    void Layout();
    void Place(HWND page);
    void OnCommand(int id);
    void OnNotify(const NMHDR& notice);
    void OnSelected(HWND former, HWND chosen);
    void OnChildGone(HWND child);
    void OnDestroy();
    void AskAndDestroy(UINT code);
    void DeleteItem(HTREEITEM item);
    void DropPages();
    PropSize Client() const;
    LRESULT Tell(UINT code);

    PropTreeModel model_;
    TitleTree tree_;
    HWND ok_ = nullptr, cancel_ = nullptr;
    HWND current_ = nullptr;
    // Pages whose items went, to be told of and destroyed once the tree control is done with the item.
    std::vector<HWND> dropped_;
    HWND dying_ = nullptr;   // a page that somebody else is destroying right now
    HWND parent_ = nullptr;  // who hears of the end; from the beginning of it until it is told
    bool deleting_ = false;  // the tree's items, by ourselves
    bool settled_ = false;   // shown for a while: the user may have moved it
    bool closing_ = false;
};

}  // namespace corvex
