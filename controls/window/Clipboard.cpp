#include "controls/window/Clipboard.h"

#include <cstring>

namespace corvex {

namespace {

class OpenedClipboard {
public:
    explicit OpenedClipboard(HWND owner) : isOpen_(::OpenClipboard(owner) != FALSE) {}
    ~OpenedClipboard() {
        if (isOpen_) ::CloseClipboard();
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    explicit operator bool() const { return isOpen_; }

private:
    const bool isOpen_;
};

}  // namespace

bool PutOnClipboard(HWND owner, const std::string& text) {
    const OpenedClipboard clipboard(owner);
    if (!clipboard || ::EmptyClipboard() == FALSE) return false;
    const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
    void* const place = block == nullptr ? nullptr : ::GlobalLock(block);
    if (place != nullptr) {
        std::memcpy(place, text.c_str(), text.size() + 1);
        ::GlobalUnlock(block);
        if (::SetClipboardData(CF_TEXT, block) != nullptr) return true;  // the system's from now on
    }
    ::GlobalFree(block);
    return false;
}

std::optional<std::string> TextOfClipboard(HWND owner) {
    if (::IsClipboardFormatAvailable(CF_TEXT) == FALSE) return std::nullopt;
    const OpenedClipboard clipboard(owner);
    const HANDLE block = clipboard ? ::GetClipboardData(CF_TEXT) : nullptr;
    const auto* const place = block == nullptr ? nullptr : static_cast<const char*>(::GlobalLock(block));
    if (place == nullptr) return std::nullopt;
    std::string text(place, ::strnlen(place, ::GlobalSize(block)));  // somebody may have forgotten its end
    ::GlobalUnlock(block);
    return text;
}

}  // namespace corvex
