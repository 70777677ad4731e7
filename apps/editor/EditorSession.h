// One opening of the editor: the document, the file it belongs to, and the words with the user about both.
#pragma once

#include <string>

#include "apps/editor/DocumentModel.h"
#include "platform/WindowsApi.h"

namespace corvex {

inline constexpr char kEditorTitle[] = "Corvex Definition Editor";

// On the thread of the window that owns the editor.
class EditorSession {
public:
    // The buffer for a path in the program holds 259 characters and a terminator.
    static constexpr std::size_t kPathSize = 260;

    // An empty path stands for a new definition.
    explicit EditorSession(std::string path) : path_(std::move(path)) {}

    // Reads the file, if there is one. False: the user has been told why there is nothing to edit.
    bool Open(HWND owner);
    // Saves to the session's file, or to one that the user names when there is none or `ask` is set. False: not saved;
    // the user has been told, or would not name a file.
    bool Save(HWND owner, bool ask);

    DocumentModel& Document() { return document_; }
    const std::string& Path() const { return path_; }
    bool IsSaved() const { return saved_; }

private:
    DocumentModel document_;
    std::string path_;
    bool saved_ = false;
};

}  // namespace corvex
