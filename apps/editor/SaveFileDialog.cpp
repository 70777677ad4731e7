#include "apps/editor/SaveFileDialog.h"

#include <cderr.h>
#include <commdlg.h>

#include <algorithm>
#include <cstring>

#include "apps/editor/EditorSession.h"
#include "platform/WorkingFolder.h"

namespace corvex {

std::string AskForSaveName(HWND owner, const std::string& path) {
    const KeptWorkingFolder kept;
    char name[EditorSession::kPathSize] = {};
    path.copy(name, sizeof name - 1);
    std::replace(name, name + std::strlen(name), '/', '\\');  // the dialog takes only these
    OPENFILENAMEA request{};
    request.lStructSize = sizeof request;
    request.hwndOwner = owner;
    request.lpstrFilter = "ADX Files (*.adx)\0*.adx\0";
    request.lpstrFile = name;
    request.nMaxFile = sizeof name;
    request.lpstrTitle = "Choose file to save to...";
    request.lpstrDefExt = "adx";
    request.Flags = OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    if (::GetSaveFileNameA(&request) != FALSE) return name;
    if (::CommDlgExtendedError() != FNERR_INVALIDFILENAME) return {};
    name[0] = '\0';  // a path that is no proper name is no place to begin at
    return ::GetSaveFileNameA(&request) != FALSE ? std::string(name) : std::string();
}

}  // namespace corvex
