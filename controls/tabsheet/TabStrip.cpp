#include "controls/tabsheet/TabStrip.h"

#include <algorithm>
#include <cstring>

#include "controls/tabsheet/TabSheetModel.h"
// After windows.h, which it leans on.
#include <commctrl.h>

namespace corvex {

bool TabStrip::Create(HWND parent, HFONT font) {
    const auto instance = reinterpret_cast<HINSTANCE>(::GetWindowLongPtrA(parent, GWLP_HINSTANCE));
    control_ = ::CreateWindowExA(0, WC_TABCONTROLA, "", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, 0, 0,
                                 0, 0, parent, nullptr, instance, nullptr);
    if (control_ == nullptr) return false;
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    return true;
}

int TabStrip::Count() const {
    return control_ == nullptr ? 0 : static_cast<int>(Send(TCM_GETITEMCOUNT));
}

HWND TabStrip::PageAt(int index) const {
    if (index < 0 || index >= Count()) return nullptr;
    TCITEMA item{};
    item.mask = TCIF_PARAM;
    if (Send(TCM_GETITEMA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item)) == FALSE) return nullptr;
    return reinterpret_cast<HWND>(item.lParam);
}

int TabStrip::IndexOf(HWND page) const {
    if (page == nullptr) return -1;
    for (int i = 0, count = Count(); i < count; ++i) {
        if (PageAt(i) == page) return i;
    }
    return -1;
}

int TabStrip::Selected() const {
    return control_ == nullptr ? -1 : static_cast<int>(Send(TCM_GETCURSEL));
}

void TabStrip::Select(int index) {
    if (control_ != nullptr) Send(TCM_SETCURSEL, static_cast<WPARAM>(index));
}

int TabStrip::Insert(int index, const char* title, HWND page) {
    if (control_ == nullptr) return -1;
    std::string text = title == nullptr ? "" : title;
    TCITEMA item{};
    item.mask = TCIF_TEXT | TCIF_PARAM;
    item.pszText = text.data();
    item.lParam = reinterpret_cast<LPARAM>(page);
    const int place = TabPlace(index, Count());
    return static_cast<int>(Send(TCM_INSERTITEMA, static_cast<WPARAM>(place), reinterpret_cast<LPARAM>(&item)));
}

void TabStrip::Delete(int index) {
    if (control_ != nullptr) Send(TCM_DELETEITEM, static_cast<WPARAM>(index));
}

int TabStrip::Title(int index, char* buffer, int capacity) const {
    if (buffer == nullptr || capacity <= 0) return 0;
    buffer[0] = '\0';
    if (index < 0 || index >= Count()) return 0;
    TCITEMA item{};
    item.mask = TCIF_TEXT;
    item.pszText = buffer;
    item.cchTextMax = capacity;
    if (Send(TCM_GETITEMA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item)) == FALSE) return 0;
    const auto room = static_cast<std::size_t>(capacity) - 1;
    if (item.pszText != buffer && item.pszText != nullptr) {  // the control may answer with its own text instead
        const std::size_t length = std::min(std::strlen(item.pszText), room);
        std::memcpy(buffer, item.pszText, length);
        buffer[length] = '\0';
    }
    buffer[room] = '\0';
    return static_cast<int>(std::strlen(buffer));
}

std::string TabStrip::TitleAt(int index) const {
    char title[kTabTitleCapacity];
    Title(index, title, static_cast<int>(sizeof title));
    return title;
}

void TabStrip::FillParent() {
    RECT client{};
    if (control_ == nullptr || !::GetClientRect(::GetParent(control_), &client)) return;
    ::MoveWindow(control_, 0, 0, client.right, client.bottom, TRUE);
}

RECT TabStrip::PageArea() const {
    RECT area{};
    if (control_ == nullptr || !::GetClientRect(control_, &area)) return area;
    Send(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
    return area;
}

}  // namespace corvex
