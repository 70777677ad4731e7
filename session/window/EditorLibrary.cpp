#include "session/window/EditorLibrary.h"

#include "session/SessionState.h"

namespace corvex {

namespace {

constexpr char kLibrary[] = "ADXEditor.dll";
// Captions and texts stand as users know them.
constexpr char kNoLibraryCaption[] = "Tarvex";
constexpr char kNoLibrary[] =
    "Unable to ADXEditor.dll. Be sure it is in your path or application directory and restart the application";
constexpr char kNoEntryCaption[] = "Error";
constexpr char kNoEntry[] =
    "Unable to get ADXEditor entry point. Makes sure ADXEditor.dll is valid and in the correct directory.";

bool Refuse(const char* caption, const char* text) {
    ::MessageBoxA(nullptr, text, caption, MB_OK | MB_ICONWARNING);
    return false;
}

}  // namespace

bool LoadEditor(SessionState& session) {
    const HMODULE library = ::LoadLibraryA(kLibrary);
    if (library == nullptr) return Refuse(kNoLibraryCaption, kNoLibrary);
    session.editorModule = library;
    const FARPROC entry = ::GetProcAddress(library, MAKEINTRESOURCEA(1));
    if (entry == nullptr) return Refuse(kNoEntryCaption, kNoEntry);
    session.editorEntry = reinterpret_cast<void (*)()>(entry);
    return true;
}

EditorEntry EditorOf(const SessionState& session) {
    return reinterpret_cast<EditorEntry>(session.editorEntry);
}

}  // namespace corvex
