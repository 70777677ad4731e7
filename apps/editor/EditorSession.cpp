#include "apps/editor/EditorSession.h"

#include "apps/editor/SaveFileDialog.h"

namespace corvex {
namespace {

void Tell(HWND owner, std::string what, const std::string& path, const std::string& error) {
    what.append("\n\n").append(path).append("\n\n").append(error);
    ::MessageBoxA(owner, what.c_str(), kEditorTitle, MB_OK | MB_ICONERROR);
}

}  // namespace

bool EditorSession::Open(HWND owner) {
    std::string error;
    if (path_.empty() || document_.Load(path_, error)) return true;
    Tell(owner, "The definition could not be loaded.", path_, error);
    return false;
}

bool EditorSession::Save(HWND owner, bool ask) {
    std::string path = path_;
    if (ask || path.empty()) {
        path = AskForSaveName(owner, path_);
        if (path.empty()) return false;
    }
    std::string error;
    if (!document_.Save(path, error)) {
        Tell(owner, "The definition could not be saved.", path, error);
        return false;
    }
    path_ = path;
    saved_ = true;
    return true;
}

}  // namespace corvex
