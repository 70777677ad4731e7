#include "apps/editor/EntryPoint.h"

#include <atomic>
#include <string>
#include <type_traits>

#include "apps/editor/EditorSession.h"
#include "apps/editor/HeaderDialog.h"
#include "definition/OwnedText.h"

namespace corvex {
namespace {

static_assert(std::is_same_v<decltype(&EditDefinition), EditorEntry>);

std::atomic_flag isOpen;

// Modal or not, the program's messages run on while the editor is open, and one of them may be another call.
class OnlyOne {
public:
    OnlyOne() : first_(!isOpen.test_and_set()) {}
    ~OnlyOne() {
        if (first_) isOpen.clear();
    }
    OnlyOne(const OnlyOne&) = delete;
    OnlyOne& operator=(const OnlyOne&) = delete;
    explicit operator bool() const { return first_; }

private:
    const bool first_;
};

int RunEditor(HWND owner, char* path, DebugOutput* output) {
    EditorSession session(std::string(path, TextLength(path, EditorSession::kPathSize - 1)));
    if (!session.Open(owner)) return 0;
    ShowHeaderDialog(session, owner);
    if (!session.IsSaved()) return 0;
    const std::size_t length = session.Path().copy(path, EditorSession::kPathSize - 1);
    path[length] = '\0';
    DebugOutput::Print(output, "Editor: saved %s", path);
    return 1;
}

}  // namespace
}  // namespace corvex

extern "C" int __cdecl EditDefinition(HWND owner, char* path, corvex::DebugOutput* output, std::uintptr_t) try {
    const corvex::OnlyOne only;
    if (!only || path == nullptr) return 0;
    return corvex::RunEditor(owner, path, output);
} catch (...) {
    return 0;
}
