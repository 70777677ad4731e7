#include "apps/editor/HeaderDialog.h"

#include <array>
#include <cstdint>
#include <memory>

#include "apps/editor/EditorResource.h"
#include "apps/editor/OwnModule.h"
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

}  // namespace

HeaderDialog::HeaderDialog(EditorSession& session) : session_(session), model_(session.Document().Definition()) {}

void HeaderDialog::Show(HWND owner) {
    ::DialogBoxParamA(OwnModule(), MAKEINTRESOURCEA(IDD_HEADER), owner, &HeaderDialog::Procedure,
                      reinterpret_cast<LPARAM>(this));
}

// Nothing may leave through the system's frames: what is thrown here ends the program.
INT_PTR CALLBACK HeaderDialog::Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_INITDIALOG) ::SetWindowLongPtrA(dialog, DWLP_USER, lParam);
    auto* const page = reinterpret_cast<HeaderDialog*>(::GetWindowLongPtrA(dialog, DWLP_USER));
    if (page == nullptr) return FALSE;
    page->dialog_ = dialog;
    return page->OnMessage(message, wParam, lParam) ? TRUE : FALSE;
}

bool HeaderDialog::OnMessage(UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_INITDIALOG) {
        Fill();
        return true;  // the focus goes to the first field
    }
    if (message != WM_COMMAND) return false;
    if (HIWORD(wParam) == BN_CLICKED) OnCommand(LOWORD(wParam));
    return true;
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
    ::SetWindowTextA(Control(IDC_FILE), session_.Path().empty() ? "(a new definition)" : session_.Path().c_str());
    ::SetWindowTextA(Control(IDC_AUTHOR), fields.author.c_str());
    ::SetWindowTextA(Control(IDC_VERSION), fields.version.c_str());
    ::SetWindowTextA(Control(IDC_DESCRIPTION), fields.description.c_str());
    ::SendMessageA(Control(IDC_AUTHOR), EM_LIMITTEXT, HeaderModel::kAuthorLength, 0);
    ::SendMessageA(Control(IDC_VERSION), EM_LIMITTEXT, HeaderModel::kVersionLength, 0);
    ::SendMessageA(Control(IDC_DESCRIPTION), EM_LIMITTEXT, HeaderModel::kDescriptionLength, 0);
    for (const int baud : kUsualBauds)
        ::SendMessageA(Control(IDC_BAUD), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(std::to_string(baud).c_str()));
    ::SetWindowTextA(Control(IDC_BAUD), fields.baud.c_str());
    ::CheckDlgButton(dialog_, IDC_ECHO, fields.echo ? BST_CHECKED : BST_UNCHECKED);
    FillCommands();
    shown_ = Read();
}

void HeaderDialog::FillCommands() {
    for (std::size_t place = 0; place < kHeaderCommandCount; ++place) {
        const auto command = static_cast<HeaderCommand>(place);
        const HWND box = Control(CommandId(IDC_COMMAND, command));
        for (const CommandChoice& choice : model_.Choices(command))
            ::SendMessageA(box, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(choice.label.c_str()));
        ::SendMessageA(box, CB_SETCURSEL, model_.Fields().command[place], 0);
    }
}

std::string HeaderDialog::Text(int id) const {
    const HWND control = Control(id);
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
    fields.echo = ::IsDlgButtonChecked(dialog_, IDC_ECHO) == BST_CHECKED;
    for (std::size_t place = 0; place < kHeaderCommandCount; ++place) {
        const HWND box = Control(CommandId(IDC_COMMAND, static_cast<HeaderCommand>(place)));
        fields.command[place] = static_cast<std::size_t>(::SendMessageA(box, CB_GETCURSEL, 0, 0));
    }
    return fields;
}

void HeaderDialog::Save(bool ask) {
    const HeaderFields fields = model_.Typed(shown_, Read());
    if (const auto problem = model_.Validate(fields)) return Complain(*problem);
    model_.Apply(fields);
    if (session_.Save(dialog_, ask)) ::EndDialog(dialog_, IDOK);
}

void HeaderDialog::Complain(const HeaderProblem& problem) {
    ::MessageBoxA(dialog_, problem.message.c_str(), kEditorTitle, MB_OK | MB_ICONWARNING);
    const HWND control = Control(ControlOf(problem.field));
    ::SendMessageA(dialog_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

void HeaderDialog::Cancel() {
    if (Read() != shown_ && ::MessageBoxA(dialog_, "The changes have not been saved. Leave the editor without them?",
                                          kEditorTitle, MB_YESNO | MB_ICONQUESTION) != IDYES) {
        return;
    }
    ::EndDialog(dialog_, IDCANCEL);
}

void HeaderDialog::Browse(HeaderCommand command) {
    std::unique_ptr<ADXObject*[]> items;
    std::uint32_t count = 0;
    if (!BrowseItems(dialog_, session_.Document().Definition(), kHeaderCommandTypes, kBrowseSingle, items, count))
        return;
    if (count == 0) return;
    ::SendMessageA(Control(CommandId(IDC_COMMAND, command)), CB_SETCURSEL, model_.ChoiceOf(command, items[0]), 0);
}

}  // namespace corvex
