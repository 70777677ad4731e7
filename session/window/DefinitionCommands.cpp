#include "session/window/DefinitionCommands.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <optional>
#include <system_error>

#include "files/ads/AdsConverter.h"
#include "files/ads/AdsReader.h"
#include "session/window/Desktop.h"
#include "session/window/EditorLibrary.h"
#include "session/window/FileDialogs.h"
#include "session/window/ResourceIds.h"
#include "session/window/StatusPanels.h"
#include "session/window/TitleBar.h"
#include "views/Pages.h"

namespace corvex {

namespace {

constexpr char kQuestionCaption[] = "Corvex";

const char* QuestionFor(const SessionState& session) {
    if (session.monitorsChanged == 0) return "The dashboard was changed. Save the definition first?";
    if (session.dashChanged == 0) return "The monitors were changed. Save the definition first?";
    return "The dashboard and the monitors were changed. Save the definition first?";
}

bool HasChanges(const SessionState& session) {
    return session.dashChanged != 0 || session.monitorsChanged != 0;
}

void ForgetChanges(SessionState& session) {
    session.dashChanged = session.monitorsChanged = 0;
}

// `error` is the system's, 0 when it has given none. Empty when nobody knows.
std::string WhyNotSaved(const std::string& path, DWORD error) {
    std::error_code unknown;
    const std::filesystem::path place(path);
    if (std::filesystem::is_directory(place, unknown)) return "It is a folder.";
    if (place.has_parent_path() && !std::filesystem::exists(place.parent_path(), unknown))
        return "Its folder is not there.";
    char text[256] = "";
    constexpr DWORD kOneLine =
        FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK;
    if (error != 0) ::FormatMessageA(kOneLine, nullptr, error, 0, text, sizeof text, nullptr);
    return text;
}

void SetPath(char (&target)[AppSettings::kPathSize], const std::string& path) {
    const std::size_t length = std::min(path.size(), sizeof target - 1);
    std::memcpy(target, path.data(), length);
    target[length] = '\0';
}

}  // namespace

void DefinitionCommands::LoadDefinition(const std::string& path) {
    Drop([this, path] { LoadNow(path); });
}

void DefinitionCommands::ImportDefinition(const std::string& path) {
    Drop([this, path] { ImportNow(path); });
}

bool DefinitionCommands::MayDrop() {
    if (!HasChanges(desktop_.session)) return true;
    if (asking_) return false;
    asking_ = true;
    const bool may = AskAboutChanges();
    asking_ = false;
    return may;
}

bool DefinitionCommands::AskAboutChanges() {
    switch (::MessageBoxA(desktop_.MainWindow(), QuestionFor(desktop_.session), kQuestionCaption,
                          MB_YESNOCANCEL | MB_ICONWARNING)) {
        case IDYES:
            return HasName() ? Write(desktop_.session.settings.lastadxpath) : SaveAs();
        case IDNO:
            return true;
        default:
            return false;
    }
}

// The question comes first, so that one who thinks better of it finds everything going on as before.
void DefinitionCommands::Drop(const std::function<void()>& work) {
    if (MayDrop()) DropWhenQuiet(work);
}

// What is changed only now was in nobody's mind when the question was answered. The answer takes its time, so the work
// waits for its turn anew.
void DefinitionCommands::DropWhenQuiet(const std::function<void()>& work) {
    const bool givenUp = HasChanges(desktop_.session);
    quiet_.Run([this, work, givenUp] {
        if (HasChanges(desktop_.session) && !givenUp) return Drop(work);
        work();
    });
}

// The last packet goes with the definition: read through another one it is the reply of an engine that is not there.
void DefinitionCommands::LoadNow(const std::string& path) {
    SessionState& session = desktop_.session;
    char error[ADXDefinition::kErrorSize] = {};
    int loaded = 0;
    {
        PanelProgress progress(AsWindow(session.statusRight));
        loaded = session.definition.Load(path.c_str(), error, &progress);
    }
    session.origin.Loaded(loaded != 0);
    ForgetChanges(session);  // the dashboards that were are gone in any case
    session.StoreLastPacket({});
    if (loaded != 0) {
        SetPath(session.settings.lastadxpath, path);
        DebugOutput::Print(&session.debug, "Loaded %s", path.c_str());
    } else {
        DebugOutput::Print(&session.debug, "FAILED to Load %s", path.c_str());
        if (error[0] != '\0') DebugOutput::Print(&session.debug, "%s", error);
        // A first start, which has none to load.
        if (path.empty()) DebugOutput::Print(&session.debug, "Choose one with File, Load Definition (Ctrl+L)");
    }
    RefreshPages(session);
    RefreshTitle(session);
}

// What an import gives has no file yet: Save asks for one, also after an import that failed. The title is written
// before, and so goes on showing the former name for a while.
void DefinitionCommands::ImportNow(const std::string& path) {
    SessionState& session = desktop_.session;
    AdsReader reader;
    const bool imported = ReadAds(path.c_str(), &reader) != 0 && ConvertAds(&session.definition, &reader) != 0;
    session.origin.Imported(imported);
    if (imported && (!reader.Losses().header || session.definition.GetCount() == 0))
        DebugOutput::Print(&session.debug, "Nothing was imported: %s holds nothing for a definition", path.c_str());
    if (imported) {
        ForgetChanges(session);
        session.StoreLastPacket({});
        RefreshPages(session);
        RefreshTitle(session);
    } else {
        DebugOutput::Print(&session.debug, "FAILED to Import %s", path.c_str());
    }
    session.settings.lastadxpath[0] = '\0';
}

void DefinitionCommands::LoadCommand() {
    const std::optional<std::string> path =
        AskOpenPath(desktop_.MainWindow(), kLoadDefinitionPrompt, &desktop_.session.debug);
    if (path) LoadDefinition(*path);
}

void DefinitionCommands::ImportCommand() {
    const std::optional<std::string> path =
        AskOpenPath(desktop_.MainWindow(), kImportDefinitionPrompt, &desktop_.session.debug);
    if (path) ImportDefinition(*path);
}

// Without a file of its own the definition may not take the place of what the last name stands for.
bool DefinitionCommands::HasName() const {
    return desktop_.session.origin.HasFile() && desktop_.session.settings.lastadxpath[0] != '\0';
}

void DefinitionCommands::SaveCommand() {
    if (HasName()) {
        static_cast<void>(Write(desktop_.session.settings.lastadxpath));
    } else {
        ::SendMessageA(desktop_.MainWindow(), WM_COMMAND, IDM_SAVE_DEFINITION_AS, 0);
    }
}

void DefinitionCommands::SaveAsCommand() {
    static_cast<void>(SaveAs());
}

bool DefinitionCommands::SaveAs() {
    const std::optional<std::string> path =
        AskSavePath(desktop_.MainWindow(), kSaveDefinitionPrompt, &desktop_.session.debug);
    if (!path || !Write(*path)) return false;
    SetPath(desktop_.session.settings.lastadxpath, *path);
    return true;
}

// Workers only read what is written here, and their raw words are no part of a file.
bool DefinitionCommands::Write(const std::string& path) {
    SessionState& session = desktop_.session;
    int saved = 0;
    std::string reason;
    {
        PanelProgress progress(AsWindow(session.statusRight));
        ::SetLastError(ERROR_SUCCESS);
        saved = session.definition.Save(path.c_str(), &progress);
        if (saved == 0) reason = WhyNotSaved(path, ::GetLastError());
    }
    if (saved == 0) {
        DebugOutput::Print(&session.debug, "FAILED to Save %s", path.c_str());
        if (!reason.empty()) DebugOutput::Print(&session.debug, "%s", reason.c_str());
        return false;
    }
    DebugOutput::Print(&session.debug, "Saved %s", path.c_str());
    session.origin.Saved();
    ForgetChanges(session);
    return true;
}

bool DefinitionCommands::Edit(char* path) {
    SessionState& session = desktop_.session;
    const EditorEntry editor = EditorOf(session);
    if (editor == nullptr || editor(desktop_.MainWindow(), path, &session.debug, 0) == 0) return false;
    session.origin.FileEdited();
    return true;
}

// The editor works on files: what is in none yet would be lost by it. What a failed load left is worth no question.
void DefinitionCommands::EditCommand() {
    AppSettings& settings = desktop_.session.settings;
    if (desktop_.session.origin.IsUnsaved() && !SaveAs()) return;
    if (MayDrop() && Edit(settings.lastadxpath)) LoadEdited(settings.lastadxpath);
}

// The question was asked before the editor opened.
void DefinitionCommands::LoadEdited(const std::string& path) {
    DropWhenQuiet([this, path] { LoadNow(path); });
}

void DefinitionCommands::NewCommand() {
    char path[AppSettings::kPathSize] = {};
    if (!MayDrop() || !Edit(path)) return;
    path[sizeof path - 1] = '\0';
    SetPath(desktop_.session.settings.lastadxpath, path);
    LoadEdited(path);
}

}  // namespace corvex
