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
    OPENFILENAMEA words{};
    words.lStructSize = sizeof words;
    words.hwndOwner = owner;
    words.lpstrFilter = "ADX Files (*.adx)\0*.adx\0";
    words.lpstrFile = name;
    words.nMaxFile = sizeof name;
    words.lpstrTitle = "Choose file to save to...";
    words.lpstrDefExt = "adx";
    words.Flags = OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    if (::GetSaveFileNameA(&words) != FALSE) return name;
    if (::CommDlgExtendedError() != FNERR_INVALIDFILENAME) return {};
    name[0] = '\0';  // a path that is no proper name is no place to begin at
    return ::GetSaveFileNameA(&words) != FALSE ? std::string(name) : std::string();
}

}  // namespace corvex
