#include "controls/proptree/TitleTree.h"

#include <cstring>
#include <string>

#include "controls/proptree/TitleSearchModel.h"

namespace corvex {

namespace {

constexpr DWORD kTreeStyle = 0x50808037;
constexpr char kTreeFont[] = "MS Shell Dlg";

// The same height in another face.
HFONT MakeTreeFont(HWND tree) {
    auto like = reinterpret_cast<HFONT>(::SendMessageA(tree, WM_GETFONT, 0, 0));
    if (like == nullptr) like = static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT));
    LOGFONTA font{};
    ::GetObjectA(like, sizeof font, &font);
    font.lfWidth = 0;
    std::memcpy(font.lfFaceName, kTreeFont, sizeof kTreeFont);
    return ::CreateFontIndirectA(&font);
}

}  // namespace

bool TitleTree::Create(HWND parent) {
    const auto instance = reinterpret_cast<HINSTANCE>(::GetWindowLongPtrA(parent, GWLP_HINSTANCE));
    control_ = ::CreateWindowExA(0, WC_TREEVIEWA, "", kTreeStyle, 0, 0, 0, 0, parent, nullptr, instance, nullptr);
    if (control_ == nullptr) return false;
    font_ = OwnedFont(MakeTreeFont(control_));
    ::SendMessageA(control_, WM_SETFONT, reinterpret_cast<WPARAM>(font_.Get()), FALSE);
    return true;
}

HTREEITEM TitleTree::Next(unsigned relation, Node item) const {
    if (control_ == nullptr) return nullptr;
    return reinterpret_cast<Node>(::SendMessageA(control_, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

HTREEITEM TitleTree::Root() const {
    return Next(TVGN_ROOT, nullptr);
}

HTREEITEM TitleTree::FirstChild(Node item) const {
    return Next(TVGN_CHILD, item);
}

HTREEITEM TitleTree::NextSibling(Node item) const {
    return Next(TVGN_NEXT, item);
}

HTREEITEM TitleTree::Parent(Node item) const {
    return Next(TVGN_PARENT, item);
}

bool TitleTree::HasTitle(Node item, const char* title) const {
    // One character longer than what is looked for is enough to tell the two apart.
    std::string text(std::strlen(title) + 2, '\0');
    TVITEMA node{};
    node.mask = TVIF_HANDLE | TVIF_TEXT;
    node.hItem = item;
    node.pszText = text.data();
    node.cchTextMax = static_cast<int>(text.size());
    return ::SendMessageA(control_, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&node)) != FALSE &&
           std::strcmp(text.c_str(), title) == 0;
}

HWND TitleTree::PageOf(Node item) const {
    if (control_ == nullptr || item == nullptr) return nullptr;
    TVITEMA node{};
    node.mask = TVIF_HANDLE | TVIF_PARAM;
    node.hItem = item;
    ::SendMessageA(control_, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&node));
    return reinterpret_cast<HWND>(node.lParam);
}

HTREEITEM TitleTree::FindTitle(const char* title) const {
    if (title == nullptr) return nullptr;
    return FindNode(*this, Root(), [&](Node item) { return HasTitle(item, title); });
}

HTREEITEM TitleTree::FindPage(HWND page) const {
    if (page == nullptr) return nullptr;
    return FindNode(*this, Root(), [&](Node item) { return PageOf(item) == page; });
}

HTREEITEM TitleTree::Insert(Node parent, Node after, const char* title, HWND page) {
    if (control_ == nullptr) return nullptr;
    std::string text = title == nullptr ? "" : title;
    TVINSERTSTRUCTA insertion{};
    insertion.hParent = parent == nullptr ? TVI_ROOT : parent;
    insertion.hInsertAfter = after != nullptr && Parent(after) == parent ? after : TVI_LAST;
    insertion.item.mask = TVIF_TEXT | TVIF_PARAM;
    insertion.item.pszText = text.data();
    insertion.item.lParam = reinterpret_cast<LPARAM>(page);
    return reinterpret_cast<Node>(::SendMessageA(control_, TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insertion)));
}

void TitleTree::Delete(Node item) {
    if (control_ != nullptr) ::SendMessageA(control_, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item));
}

void TitleTree::Select(Node item) {
    if (control_ != nullptr) ::SendMessageA(control_, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
}

}  // namespace corvex
