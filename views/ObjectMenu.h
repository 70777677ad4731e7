// A menu in which the user picks an object of the definition.
#pragma once

#include <functional>
#include <optional>

#include "definition/ADXDefinition.h"
#include "platform/WindowsApi.h"

namespace corvex {

// The rows of such a menu, each with its object. Row ids go up from the first one, through all submenus.
class ObjectRows {
public:
    explicit ObjectRows(UINT firstId);
    ~ObjectRows();
    ObjectRows(ObjectRows&& other) noexcept;
    ObjectRows& operator=(ObjectRows&&) = delete;

    // The rows from here on hang below this one. Its id is smaller than the first row's.
    void BeginSubmenu(UINT id, const char* label);
    // A row for every object of the type, in definition order, of at most 255 characters of its title.
    void Add(const ADXDefinition& definition, std::uint32_t type,
             const std::function<bool(const ADXObject&)>& isChecked);

    HMENU Get() const { return menu_; }

private:
    HMENU menu_, target_;  // the target is the menu, or hangs below it
    UINT nextId_;
};

struct ObjectChoice {
    ADXObject* object;
    bool wasChecked;
};

// The one such menu that a page has open at a time. While it is open all messages are handled, a load of a definition
// among them, which leaves nothing of what was offered. Belongs to the page. Main thread.
class ObjectMenu {
public:
    bool IsOpen() const { return isOpen_; }
    // Shows the rows at a place of the screen and waits. Nothing when nothing was chosen, when Drop was called
    // meanwhile, and at once when a menu is open. The caller holds the page's object.
    std::optional<ObjectChoice> Ask(HWND page, POINT place, const ObjectRows& rows);
    // What is offered is going, or the page is: a menu that is open closes, and its choice does not count.
    void Drop();

private:
    bool isOpen_ = false;
    unsigned generation_ = 0;
};

}  // namespace corvex
