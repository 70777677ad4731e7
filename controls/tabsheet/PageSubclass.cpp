#include "controls/tabsheet/PageSubclass.h"

#include "controls/tabsheet/TabSheet.h"
#include "controls/window/PageWindow.h"
#include "controls/window/WindowSubclass.h"

namespace corvex {

namespace {

class PageSubclass final : public WindowSubclass {
public:
    using WindowSubclass::WindowSubclass;

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    HWND sheet = nullptr;  // null while whoever came in front of this keeps it from going
};

LRESULT PageSubclass::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CONTEXTMENU) {
        const HWND parent = sheet == nullptr ? nullptr : ParentToTell(sheet);
        if (parent != nullptr) ::SendMessageA(parent, TSM_PAGECONTEXTMENU, wParam, lParam);
        if (!::IsWindow(Window())) return 0;
    }
    if (message == WM_NCDESTROY) {
        const HWND told = sheet;
        UnsubclassPage(Window());
        if (told != nullptr) ::SendMessageA(told, kMessagePageGone, 0, reinterpret_cast<LPARAM>(Window()));
    }
    return Former(message, wParam, lParam);
}

}  // namespace

bool SubclassPage(HWND page, HWND sheet) {
    // A page that came back with somebody else's procedure in front of ours still has ours in its chain.
    if (SubclassOf<PageSubclass>(page) == nullptr && !Attach(std::make_unique<PageSubclass>(page))) return false;
    SubclassOf<PageSubclass>(page)->sheet = sheet;
    return true;
}

void UnsubclassPage(HWND page) {
    if (auto* const subclass = SubclassOf<PageSubclass>(page)) subclass->sheet = nullptr;
    static_cast<void>(Detach<PageSubclass>(page));
}

bool IsSubclassedPage(HWND window) {
    const auto* const subclass = SubclassOf<PageSubclass>(window);
    return subclass != nullptr && subclass->sheet != nullptr;
}

}  // namespace corvex
