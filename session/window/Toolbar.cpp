#include "session/window/Toolbar.h"

#include "controls/window/CommonControls.h"

namespace corvex {

HWND MakeToolbar(HWND parent, HINSTANCE instance, int id, void* images, const ToolButton* buttons, int count) {
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | CCS_NODIVIDER |
                        CCS_NOPARENTALIGN | CCS_NORESIZE;
    const HWND bar = ::CreateWindowExA(0, TOOLBARCLASSNAMEA, "", style, 0, 0, 0, 0, parent,
                                       reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), instance, nullptr);
    ::SendMessageA(bar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    ::SendMessageA(bar, TB_SETBITMAPSIZE, 0, MAKELPARAM(16, 16));
    ::SendMessageA(bar, TB_SETBUTTONSIZE, 0, MAKELPARAM(22, 21));
    ::SendMessageA(bar, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images));
    for (int i = 0; i < count; ++i) {
        TBBUTTON button{};
        button.iBitmap = buttons[i].image;
        button.idCommand = buttons[i].command;
        button.fsState = TBSTATE_ENABLED;
        button.fsStyle = BTNS_BUTTON;
        ::SendMessageA(bar, TB_ADDBUTTONSA, 1, reinterpret_cast<LPARAM>(&button));
    }
    return bar;
}

}  // namespace corvex
