#include "session/window/DefinitionCommands.h"

#include <algorithm>
#include <cstring>
#include <optional>

#include "files/ads/AdsConverter.h"
#include "files/ads/AdsReader.h"
#include "session/window/Desktop.h"
#include "session/window/EditorLibrary.h"
#include "session/window/FileDialogs.h"
#include "session/window/ResourceIds.h"
#include "session/window/StatusPanels.h"
#include "session/window/TitleBar.h"
#include "views/DashPage.h"
#include "views/HistogramPage.h"
#include "views/ItemListPage.h"
#include "views/MonitorPage.h"

namespace corvex {

namespace {

void SetPath(char (&target)[AppSettings::kPathSize], const std::string& path) {
    const std::size_t length = std::min(path.size(), sizeof target - 1);
    std::memcpy(target, path.data(), length);
    target[length] = '\0';
}

}  // namespace

void DefinitionCommands::LoadDefinition(const std::string& path) {
    quiet_.Run([this, path] { LoadNow(path); });
}

void DefinitionCommands::ImportDefinition(const std::string& path) {
    quiet_.Run([this, path] { ImportNow(path); });
}

void DefinitionCommands::LoadNow(const std::string& path) {
    SessionState& session = desktop_.session;
    char error[ADXDefinition::kErrorSize] = {};
    int loaded = 0;
    {
        PanelProgress progress(AsWindow(session.statusRight));
        loaded = session.definition.Load(path.c_str(), error, &progress);
    }
    session.origin.Loaded(loaded != 0);
    if (loaded != 0) {
        SetPath(session.settings.lastadxpath, path);
        DebugOutput::Print(&session.debug, "Loaded %s", path.c_str());
    } else {
        DebugOutput::Print(&session.debug, "FAILED to Load %s", path.c_str());
        if (error[0] != '\0') DebugOutput::Print(&session.debug, "%s", error);
    }
    RefreshPages();
    RefreshTitle(session);
}

// What an import gives has no file yet: Save asks for one, also after an import that failed. The title is written
// before, and so goes on showing the former name for a while.
void DefinitionCommands::ImportNow(const std::string& path) {
    SessionState& session = desktop_.session;
    AdsReader reader;
    const bool imported = ReadAds(path.c_str(), &reader) != 0 && ConvertAds(&session.definition, &reader) != 0;
    session.origin.Imported(imported);
    if (imported) {
        RefreshPages();
        RefreshTitle(session);
    } else {
        DebugOutput::Print(&session.debug, "FAILED to Import %s", path.c_str());
    }
    session.settings.lastadxpath[0] = '\0';
}

void DefinitionCommands::RefreshPages() {
    SessionState& session = desktop_.session;
    RefreshDashPage(session);
    RefreshItemListPage(session);
    RefreshHistogramPage(session);
    RefreshMonitorPage(session);
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
void DefinitionCommands::SaveCommand() {
    const SessionState& session = desktop_.session;
    const char* const path = session.settings.lastadxpath;
    if (path[0] == '\0' || !session.origin.HasFile()) {
        ::SendMessageA(desktop_.MainWindow(), WM_COMMAND, IDM_SAVE_DEFINITION_AS, 0);
    } else {
        static_cast<void>(Write(path));
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
    {
        PanelProgress progress(AsWindow(session.statusRight));
        saved = session.definition.Save(path.c_str(), &progress);
    }
    if (saved == 0) {
        DebugOutput::Print(&session.debug, "FAILED to Save %s", path.c_str());
        return false;
    }
    session.origin.Saved();
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
    if (Edit(settings.lastadxpath)) LoadDefinition(settings.lastadxpath);
}

void DefinitionCommands::NewCommand() {
    char path[AppSettings::kPathSize] = {};
    if (!Edit(path)) return;
    path[sizeof path - 1] = '\0';
    SetPath(desktop_.session.settings.lastadxpath, path);
    LoadDefinition(path);
}

}  // namespace corvex
