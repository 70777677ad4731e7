// The dialog on a definition's header.
#pragma once

#include <string>

#include "apps/editor/EditorSession.h"
#include "apps/editor/HeaderModel.h"
#include "platform/WindowsApi.h"

namespace corvex {

// One page of the editor: it shows what the HeaderModel holds and gives back what was typed. Modal; used once; on the
// thread of its owner.
class HeaderDialog {
public:
    // The session is open and outlives the dialog.
    explicit HeaderDialog(EditorSession& session);

    // Returns when the user has saved or given up: ask the session which.
    void Show(HWND owner);

private:
    static INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void OnCommand(int id);

    void Fill();
    void FillCommands();
    HeaderFields Read() const;
    void Save(bool ask);
    void Cancel();
    void Browse(HeaderCommand command);
    void Complain(const HeaderProblem& problem);

    HWND Control(int id) const { return ::GetDlgItem(dialog_, id); }
    std::string Text(int id) const;

    EditorSession& session_;
    HeaderModel model_;
    HeaderFields shown_;  // as the controls gave back what they had been filled with
    HWND dialog_ = nullptr;
};

}  // namespace corvex
