#include "session/window/FileDialogs.h"

#include <cderr.h>
#include <commdlg.h>

#include <cstring>

#include "platform/WindowsApi.h"
#include "platform/WorkingFolder.h"
#include "session/AppSettings.h"

namespace corvex {

namespace {

// Pairs of text and pattern, each with its terminator, and one more terminator at the end.
std::string FilterOf(const FilePrompt& prompt) {
    std::string filter = prompt.filter;
    filter.append(1, '\0').append("*.").append(prompt.extension).append(2, '\0');
    return filter;
}

// `dialog` is one of the system's two, which take the same words.
std::optional<std::string> Ask(BOOL(WINAPI* dialog)(OPENFILENAMEA*), HWND owner, const FilePrompt& prompt,
                               DebugOutput* debug) {
    char path[AppSettings::kPathSize] = "";
    std::strncpy(path, prompt.suggested, sizeof path - 1);
    const std::string filter = FilterOf(prompt);
    OPENFILENAMEA dialogInfo{};
    dialogInfo.lStructSize = sizeof dialogInfo;
    dialogInfo.hwndOwner = owner;
    dialogInfo.lpstrFilter = filter.c_str();
    dialogInfo.lpstrFile = path;
    dialogInfo.nMaxFile = sizeof path;
    dialogInfo.lpstrTitle = prompt.title;
    dialogInfo.lpstrDefExt = prompt.extension;
    // The scratch log and the settings are found by the program's folder, but a name given without one is not. The flag
    // means nothing to the dialog that opens files.
    const KeptWorkingFolder kept;
    dialogInfo.Flags = prompt.flags | OFN_NOCHANGEDIR;
    if (dialog(&dialogInfo) == FALSE) {
        if (::CommDlgExtendedError() == FNERR_BUFFERTOOSMALL) {
            DebugOutput::Print(debug, "The name is longer than %u characters.", unsigned{AppSettings::kPathSize - 1});
        }
        return std::nullopt;
    }
    return std::string(path);
}

}  // namespace

std::optional<std::string> AskOpenPath(HWND owner, const FilePrompt& prompt, DebugOutput* debug) {
    return Ask(&::GetOpenFileNameA, owner, prompt, debug);
}

std::optional<std::string> AskSavePath(HWND owner, const FilePrompt& prompt, DebugOutput* debug) {
    return Ask(&::GetSaveFileNameA, owner, prompt, debug);
}

}  // namespace corvex
