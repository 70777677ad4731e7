#include "apps/editor/HeaderDialog.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "apps/editor/EditorResource.h"
#include "apps/editor/HeaderModel.h"
#include "apps/editor/OwnModule.h"
#include "controls/window/DialogWindow.h"
#include "views/browser/ItemBrowser.h"

namespace corvex {
namespace {

constexpr std::array kUsualBauds = {160, 1200, 2400, 4800, 8192, 9600, 10400, 19200, 38400, 57600, 115200};

int CommandId(int first, HeaderCommand command) {
    return first + static_cast<int>(command);
}

int ControlOf(HeaderField field) {
    switch (field) {
        case HeaderField::kAuthor:
            return IDC_AUTHOR;
        case HeaderField::kVersion:
            return IDC_VERSION;
        case HeaderField::kDescription:
            return IDC_DESCRIPTION;
        case HeaderField::kBaud:
            return IDC_BAUD;
        case HeaderField::kConnect:
            return IDC_COMMAND;
        case HeaderField::kMonitor:
            return IDC_COMMAND_MONITOR;
        case HeaderField::kDisconnect:
            return IDC_COMMAND_DISCONNECT;
    }
    return IDC_AUTHOR;
}

// Shows what the HeaderModel holds and gives back what was typed.
class HeaderDialog final : public DialogWindow {
public:
    explicit HeaderDialog(EditorSession& session)
        : DialogWindow(DialogFocus::kFirstControl), session_(session), model_(session.Document().Definition()) {}

private:
    DialogAnswer OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnCommand(int id);

    void Fill();
    void FillCommands();
    HeaderFields Read() const;
    void Save(bool ask);
    void Cancel();
    void Browse(HeaderCommand command);
    void Complain(const HeaderProblem& problem);
    std::string Text(int id) const;

    EditorSession& session_;
    HeaderModel model_;
    HeaderFields shown_;  // as the controls gave back what they had been filled with
};

DialogAnswer HeaderDialog::OnMessage(UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_INITDIALOG) Fill();
    if (message != WM_COMMAND) return {};
    if (HIWORD(wParam) == BN_CLICKED) OnCommand(LOWORD(wParam));
    return 0;
}

void HeaderDialog::OnCommand(int id) {
    switch (id) {
        case IDOK:
            return Save(false);
        case IDC_SAVE_AS:
            return Save(true);
        case IDCANCEL:
            return Cancel();
        case IDC_BROWSE:
            return Browse(HeaderCommand::kConnect);
        case IDC_BROWSE_MONITOR:
            return Browse(HeaderCommand::kMonitor);
        case IDC_BROWSE_DISCONNECT:
            return Browse(HeaderCommand::kDisconnect);
        default:
            return;
    }
}

void HeaderDialog::Fill() {
    const HeaderFields& fields = model_.Fields();
    ::SetWindowTextA(Item(IDC_FILE), session_.Path().empty() ? "(a new definition)" : session_.Path().c_str());
    ::SetWindowTextA(Item(IDC_AUTHOR), fields.author.c_str());
    ::SetWindowTextA(Item(IDC_VERSION), fields.version.c_str());
    ::SetWindowTextA(Item(IDC_DESCRIPTION), fields.description.c_str());
    ::SendMessageA(Item(IDC_AUTHOR), EM_LIMITTEXT, HeaderModel::kAuthorLength, 0);
    ::SendMessageA(Item(IDC_VERSION), EM_LIMITTEXT, HeaderModel::kVersionLength, 0);
    ::SendMessageA(Item(IDC_DESCRIPTION), EM_LIMITTEXT, HeaderModel::kDescriptionLength, 0);
    for (const int baud : kUsualBauds)
        ::SendMessageA(Item(IDC_BAUD), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(std::to_string(baud).c_str()));
    ::SetWindowTextA(Item(IDC_BAUD), fields.baud.c_str());
    ::CheckDlgButton(Window(), IDC_ECHO, fields.echo ? BST_CHECKED : BST_UNCHECKED);
    FillCommands();
    shown_ = Read();
}

void HeaderDialog::FillCommands() {
    for (std::size_t place = 0; place < kHeaderCommandCount; ++place) {
        const auto command = static_cast<HeaderCommand>(place);
        const HWND box = Item(CommandId(IDC_COMMAND, command));
        for (const CommandChoice& choice : model_.Choices(command))
            ::SendMessageA(box, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(choice.label.c_str()));
        ::SendMessageA(box, CB_SETCURSEL, model_.Fields().command[place], 0);
    }
}

std::string HeaderDialog::Text(int id) const {
    const HWND control = Item(id);
    std::string text(static_cast<std::size_t>(::GetWindowTextLengthA(control)) + 1, '\0');
    text.resize(static_cast<std::size_t>(::GetWindowTextA(control, text.data(), static_cast<int>(text.size()))));
    return text;
}

HeaderFields HeaderDialog::Read() const {
    HeaderFields fields;
    fields.author = Text(IDC_AUTHOR);
    fields.version = Text(IDC_VERSION);
    fields.description = Text(IDC_DESCRIPTION);
    fields.baud = Text(IDC_BAUD);
    fields.echo = ::IsDlgButtonChecked(Window(), IDC_ECHO) == BST_CHECKED;
    for (std::size_t place = 0; place < kHeaderCommandCount; ++place) {
        const HWND box = Item(CommandId(IDC_COMMAND, static_cast<HeaderCommand>(place)));
        fields.command[place] = static_cast<std::size_t>(::SendMessageA(box, CB_GETCURSEL, 0, 0));
    }
    return fields;
}

void HeaderDialog::Save(bool ask) {
    const HeaderFields fields = model_.Typed(shown_, Read());
    if (const auto problem = model_.Validate(fields)) return Complain(*problem);
    model_.Apply(fields);
    if (session_.Save(Window(), ask)) ::EndDialog(Window(), IDOK);
}

void HeaderDialog::Complain(const HeaderProblem& problem) {
    ::MessageBoxA(Window(), problem.message.c_str(), kEditorTitle, MB_OK | MB_ICONWARNING);
    const HWND control = Item(ControlOf(problem.field));
    ::SendMessageA(Window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

void HeaderDialog::Cancel() {
    if (Read() != shown_ && ::MessageBoxA(Window(), "The changes have not been saved. Leave the editor without them?",
                                          kEditorTitle, MB_YESNO | MB_ICONQUESTION) != IDYES) {
        return;
    }
    ::EndDialog(Window(), IDCANCEL);
}

void HeaderDialog::Browse(HeaderCommand command) {
    std::unique_ptr<ADXObject*[]> items;
    std::uint32_t count = 0;
    if (!BrowseItems(Window(), session_.Document().Definition(), kHeaderCommandTypes, kBrowseSingle, items, count))
        return;
    if (count == 0) return;
    ::SendMessageA(Item(CommandId(IDC_COMMAND, command)), CB_SETCURSEL, model_.ChoiceOf(command, items[0]), 0);
}

}  // namespace

void ShowHeaderDialog(EditorSession& session, HWND owner) {
    RunDialog(std::make_unique<HeaderDialog>(session), OwnModule(), IDD_HEADER, owner);
}

}  // namespace corvex
