#include "views/ObjectMenu.h"

#include <utility>

namespace corvex {

namespace {

constexpr std::uint32_t kLabelLength = 255;

void Insert(HMENU menu, MENUITEMINFOA& row, const char* label) {
    row.cbSize = sizeof row;
    row.fMask |= MIIM_STRING | MIIM_ID;
    row.dwTypeData = const_cast<char*>(label);
    ::InsertMenuItemA(menu, static_cast<UINT>(::GetMenuItemCount(menu)), TRUE, &row);
}

std::optional<ObjectChoice> ChoiceOf(HMENU menu, UINT id) {
    MENUITEMINFOA row{};
    row.cbSize = sizeof row;
    row.fMask = MIIM_DATA | MIIM_STATE;
    if (id == 0 || ::GetMenuItemInfoA(menu, id, FALSE, &row) == 0 || row.dwItemData == 0) return {};
    return ObjectChoice{reinterpret_cast<ADXObject*>(row.dwItemData), (row.fState & MFS_CHECKED) != 0};
}

}  // namespace

ObjectRows::ObjectRows(UINT firstId) : menu_(::CreatePopupMenu()), target_(menu_), nextId_(firstId) {}

ObjectRows::ObjectRows(ObjectRows&& other) noexcept
    : menu_(std::exchange(other.menu_, nullptr)), target_(other.target_), nextId_(other.nextId_) {}

ObjectRows::~ObjectRows() {
    if (menu_ != nullptr) ::DestroyMenu(menu_);
}

void ObjectRows::BeginSubmenu(UINT id, const char* label) {
    target_ = ::CreatePopupMenu();
    MENUITEMINFOA row{};
    row.fMask = MIIM_SUBMENU;
    row.wID = id;
    row.hSubMenu = target_;
    Insert(menu_, row, label);
}

void ObjectRows::Add(const ADXDefinition& definition, std::uint32_t type,
                     const std::function<bool(const ADXObject&)>& isChecked) {
    for (const auto& object : definition.Objects()) {
        if (object->GetType() != type) continue;
        char title[kLabelLength + 1];
        object->GetTitle(title, sizeof title);
        MENUITEMINFOA row{};
        row.fMask = MIIM_DATA | MIIM_STATE;
        row.wID = nextId_++;
        row.fState = isChecked(*object) ? MFS_CHECKED : MFS_UNCHECKED;
        row.dwItemData = reinterpret_cast<ULONG_PTR>(object.get());
        Insert(target_, row, title);
    }
}

std::optional<ObjectChoice> ObjectMenu::Ask(HWND page, POINT place, const ObjectRows& rows) {
    if (isOpen_) return {};
    const unsigned generation = generation_;
    isOpen_ = true;
    const BOOL chosen =
        ::TrackPopupMenu(rows.Get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, place.x, place.y, 0, page, nullptr);
    isOpen_ = false;
    if (generation_ != generation) return {};
    return ChoiceOf(rows.Get(), static_cast<UINT>(chosen));
}

void ObjectMenu::Drop() {
    ++generation_;
    if (isOpen_) ::EndMenu();
}

}  // namespace corvex
