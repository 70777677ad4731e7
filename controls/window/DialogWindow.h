// The one dialog wrapper: binds an object to a dialog made from a template, and turns its messages into calls.
#pragma once

#include <memory>
#include <optional>

#include "controls/window/WindowObject.h"

namespace corvex {

// What a dialog answers, or that it leaves the message to the system.
using DialogAnswer = std::optional<LONG_PTR>;

enum class DialogFocus {
    kFirstControl,  // where the system puts it
    kUntouched,     // where it was, or where OnMessage has put it
};

// The object behind a dialog. It is there before the dialog is, is bound at WM_INITDIALOG and belongs to the dialog
// from then on.
class DialogWindow : public WindowObject {
public:
    explicit DialogWindow(DialogFocus focus) : WindowObject(nullptr), focus_(focus) {}

    // Every message from WM_INITDIALOG, whose answer is of no account, to WM_NCDESTROY. May not throw.
    virtual DialogAnswer OnMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;

protected:
    HWND Item(int id) const { return ::GetDlgItem(Window(), id); }

private:
    friend INT_PTR DispatchToDialog(HWND, UINT, WPARAM, LPARAM);
    const DialogFocus focus_;
};

INT_PTR DispatchToDialog(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
DialogWindow* DialogObjectOf(HWND window, DLGPROC procedure);

// The procedure to make a dialog with, whose parameter is what ParameterOf tells. One for each class, so that a window
// can be asked whether its object is of it.
template <class Dialog>
INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return DispatchToDialog(window, message, wParam, lParam);
}

// For a dialog that nobody listens to: no object, and the focus goes to its first control.
INT_PTR CALLBACK PlainDialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// The dialog takes the object over when it is made; until then, and if it is not made at all, it stays where it is.
inline LPARAM ParameterOf(std::unique_ptr<DialogWindow>& dialog) {
    return reinterpret_cast<LPARAM>(&dialog);
}

// The object of a dialog; null when the window is none of this class or its object is gone.
template <class Dialog>
Dialog* DialogOf(HWND window) {
    return static_cast<Dialog*>(DialogObjectOf(window, &DialogProcedure<Dialog>));
}

// Modal over `owner`, which may be null, from a template of the module. What EndDialog was given; -1 when there can be
// no dialog.
template <class Dialog>
INT_PTR RunDialog(std::unique_ptr<Dialog> dialog, HINSTANCE module, int templateId, HWND owner) {
    std::unique_ptr<DialogWindow> object = std::move(dialog);
    return ::DialogBoxParamA(module, MAKEINTRESOURCEA(templateId), owner, &DialogProcedure<Dialog>,
                             ParameterOf(object));
}

// The same from a template in memory.
template <class Dialog>
INT_PTR RunDialog(std::unique_ptr<Dialog> dialog, HINSTANCE module, const DLGTEMPLATE* layout, HWND owner) {
    std::unique_ptr<DialogWindow> object = std::move(dialog);
    return ::DialogBoxIndirectParamA(module, layout, owner, &DialogProcedure<Dialog>, ParameterOf(object));
}

// Modeless, a child of `parent` or owned by it as the template says. Null on failure.
template <class Dialog>
HWND MakeDialog(std::unique_ptr<Dialog> dialog, HINSTANCE module, int templateId, HWND parent) {
    std::unique_ptr<DialogWindow> object = std::move(dialog);
    return ::CreateDialogParamA(module, MAKEINTRESOURCEA(templateId), parent, &DialogProcedure<Dialog>,
                                ParameterOf(object));
}

}  // namespace corvex
