// The tree control of a property tree: titles, each with its page's window.
#pragma once

#include "controls/window/GdiObjects.h"
#include "platform/WindowsApi.h"
// After windows.h, which it leans on.
#include <commctrl.h>

namespace corvex {

// Does not own the tree control, which goes with its parent. Without one the tree is empty. On the windows' thread.
class TitleTree {
public:
    using Node = HTREEITEM;

    bool Create(HWND parent);
    void Forget() { control_ = nullptr; }
    HWND Control() const { return control_; }
    // MS Shell Dlg, as high as the tree control's own.
    HFONT Font() const { return font_.Get(); }

    Node FirstChild(Node item) const;
    Node NextSibling(Node item) const;
    Node Parent(Node item) const;

    Node FindTitle(const char* title) const;  // null for null, and when no item has it
    Node FindPage(HWND page) const;
    HWND PageOf(Node item) const;

    // Under the item `parent`, at the root for null; after the item `after` when that stands there, else last.
    Node Insert(Node parent, Node after, const char* title, HWND page);
    // With everything below it; TVI_ROOT for all.
    void Delete(Node item);
    void Select(Node item);

private:
    Node Root() const;
    Node Next(unsigned relation, Node item) const;
    bool HasTitle(Node item, const char* title) const;

    OwnedFont font_;
    HWND control_ = nullptr;
};

}  // namespace corvex
