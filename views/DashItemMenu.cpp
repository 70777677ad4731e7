#include "views/DashItemMenu.h"

#include "views/DashBindingModel.h"

namespace corvex {

namespace {

constexpr std::uint32_t kLabelLength = 255;
constexpr UINT kValuesId = 1, kBitmasksId = 2, kFirstItemId = 10;

// Goes with all that hangs below it.
class Popup {
public:
    Popup() : menu_(::CreatePopupMenu()) {}
    ~Popup() { ::DestroyMenu(menu_); }
    Popup(const Popup&) = delete;
    Popup& operator=(const Popup&) = delete;
    HMENU Get() const { return menu_; }

private:
    const HMENU menu_;
};

void Insert(HMENU menu, MENUITEMINFOA& row, const char* label) {
    row.cbSize = sizeof row;
    row.fMask |= MIIM_STRING | MIIM_ID;
    row.dwTypeData = const_cast<char*>(label);
    ::InsertMenuItemA(menu, static_cast<UINT>(::GetMenuItemCount(menu)), TRUE, &row);
}

HMENU InsertSubmenu(HMENU menu, UINT id, const char* label) {
    const HMENU submenu = ::CreatePopupMenu();
    MENUITEMINFOA row{};
    row.fMask = MIIM_SUBMENU;
    row.wID = id;
    row.hSubMenu = submenu;
    Insert(menu, row, label);
    return submenu;
}

// All objects of the type, from this id on. The id after the last.
UINT InsertItems(HMENU menu, const ADXDefinition& definition, std::uint32_t type, const ADXObject* present, UINT id) {
    for (const auto& object : definition.Objects()) {
        if (object->GetType() != type) continue;
        char title[kLabelLength + 1];
        object->GetTitle(title, sizeof title);
        MENUITEMINFOA row{};
        row.fMask = MIIM_DATA | MIIM_STATE;
        row.wID = id++;
        row.fState = object.get() == present ? MFS_CHECKED : MFS_UNCHECKED;
        row.dwItemData = reinterpret_cast<ULONG_PTR>(object.get());
        Insert(menu, row, title);
    }
    return id;
}

ADXObject* ItemOfRow(HMENU menu, UINT id) {
    MENUITEMINFOA row{};
    row.cbSize = sizeof row;
    row.fMask = MIIM_DATA;
    if (id < kFirstItemId || ::GetMenuItemInfoA(menu, id, FALSE, &row) == 0) return nullptr;
    return reinterpret_cast<ADXObject*>(row.dwItemData);
}

}  // namespace

ADXObject* AskForItem(HWND page, const ADXDefinition& definition, const ADXDGENTRY& entry, POINT place) {
    const Popup menu;
    const HMENU values = InsertSubmenu(menu.Get(), kValuesId, "Values");
    const UINT next = InsertItems(values, definition, kTypeValue, entry.item, kFirstItemId);
    if (entry.gaugetype != kAnalogGaugeType) {
        const HMENU bitmasks = InsertSubmenu(menu.Get(), kBitmasksId, "Bitmasks");
        InsertItems(bitmasks, definition, kTypeBitmask, entry.item, next);
    }
    const BOOL chosen =
        ::TrackPopupMenu(menu.Get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, place.x, place.y, 0, page, nullptr);
    return ItemOfRow(menu.Get(), static_cast<UINT>(chosen));
}

}  // namespace corvex
