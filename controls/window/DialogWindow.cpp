#include "controls/window/DialogWindow.h"

#include <exception>

namespace corvex {

namespace {

// Of these the procedure's own value is the result; of all others it tells only whether they were handled.
bool GivesItsResult(UINT message) {
    switch (message) {
        case WM_CTLCOLORMSGBOX:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORDLG:
        case WM_CTLCOLORSCROLLBAR:
        case WM_CTLCOLORSTATIC:
        case WM_COMPAREITEM:
        case WM_VKEYTOITEM:
        case WM_CHARTOITEM:
        case WM_QUERYDRAGICON:
            return true;
        default:
            return false;
    }
}

void BindDialog(HWND window, DialogWindow* dialog) {
    ::SetWindowLongPtrA(window, DWLP_USER, reinterpret_cast<LONG_PTR>(dialog));
}

DialogWindow* BoundTo(HWND window) {
    return reinterpret_cast<DialogWindow*>(::GetWindowLongPtrA(window, DWLP_USER));
}

INT_PTR Give(HWND window, UINT message, LONG_PTR result) {
    if (GivesItsResult(message)) return result;
    ::SetWindowLongPtrA(window, DWLP_MSGRESULT, result);
    return TRUE;
}

}  // namespace

// Nothing may leave a dialog procedure but its result: the frames below are the system's.
INT_PTR DispatchToDialog(HWND window, UINT message, WPARAM wParam, LPARAM lParam) try {
    if (message == WM_INITDIALOG)
        BindDialog(window, reinterpret_cast<std::unique_ptr<DialogWindow>*>(lParam)->release());
    DialogWindow* const dialog = BoundTo(window);
    if (dialog == nullptr) return FALSE;

    const WindowHold hold(dialog);
    if (message == WM_INITDIALOG) dialog->SetWindow(window);
    const DialogAnswer answer = dialog->OnMessage(message, wParam, lParam);
    if (message == WM_INITDIALOG) return dialog->focus_ == DialogFocus::kFirstControl ? TRUE : FALSE;
    if (message == WM_NCDESTROY) {
        BindDialog(window, nullptr);
        hold.Release();
    }
    return answer ? Give(window, message, *answer) : FALSE;
} catch (...) {
    std::terminate();
}

INT_PTR CALLBACK PlainDialogProcedure(HWND, UINT message, WPARAM, LPARAM) {
    return message == WM_INITDIALOG ? TRUE : FALSE;
}

DialogWindow* DialogObjectOf(HWND window, DLGPROC procedure) {
    if (window == nullptr || ::GetWindowLongPtrA(window, DWLP_DLGPROC) != reinterpret_cast<LONG_PTR>(procedure))
        return nullptr;
    return BoundTo(window);
}

}  // namespace corvex
