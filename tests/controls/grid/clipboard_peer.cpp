// Another program at the clipboard: "put" puts there what the environment variable CORVEX_CLIP holds, "has" ends with 0
// when that is what is there, as Unicode text.
#include <cstdlib>
#include <cstring>
#include <string>

#include "platform/WindowsApi.h"

namespace {

bool Put(const char* text) {
    const std::size_t length = std::strlen(text) + 1;
    const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, length);
    if (block == nullptr || ::EmptyClipboard() == FALSE) return false;
    std::memcpy(::GlobalLock(block), text, length);
    ::GlobalUnlock(block);
    return ::SetClipboardData(CF_TEXT, block) != nullptr;
}

bool Has(const std::string& text) {
    const HANDLE block = ::GetClipboardData(CF_UNICODETEXT);
    return block != nullptr && std::wstring(text.begin(), text.end()) == static_cast<const WCHAR*>(::GlobalLock(block));
}

}  // namespace

int main(int count, char** arguments) {
    const char* const text = std::getenv("CORVEX_CLIP");
    const HWND owner = ::CreateWindowExA(0, "STATIC", "", 0, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    if (count != 2 || text == nullptr || ::OpenClipboard(owner) == FALSE) return 2;
    const bool isDone = std::strcmp(arguments[1], "put") == 0 ? Put(text) : Has(text);
    ::CloseClipboard();
    return isDone ? 0 : 1;
}
