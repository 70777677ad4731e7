#include "tests/program/RemoteMemory.h"

#include <commctrl.h>

#include <array>
#include <vector>

#include "tests/program/WindowFinder.h"

namespace corvex::test {

namespace {

constexpr SIZE_T kBlock = 4096;

// Memory in the process of a window, the same number of bits assumed.
class RemoteBlock {
public:
    explicit RemoteBlock(HWND window) {
        DWORD id = 0;
        ::GetWindowThreadProcessId(window, &id);
        process_ = ::OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id);
        if (process_ != nullptr) block_ = ::VirtualAllocEx(process_, nullptr, kBlock, MEM_COMMIT, PAGE_READWRITE);
    }
    ~RemoteBlock() {
        if (block_ != nullptr) ::VirtualFreeEx(process_, block_, 0, MEM_RELEASE);
        if (process_ != nullptr) ::CloseHandle(process_);
    }
    RemoteBlock(const RemoteBlock&) = delete;
    RemoteBlock& operator=(const RemoteBlock&) = delete;

    bool IsThere() const { return block_ != nullptr; }
    char* Place(SIZE_T offset) const { return static_cast<char*>(block_) + offset; }
    void Put(SIZE_T offset, const void* bytes, SIZE_T count) const {
        ::WriteProcessMemory(process_, Place(offset), bytes, count, nullptr);
    }
    void Get(SIZE_T offset, void* bytes, SIZE_T count) const {
        ::ReadProcessMemory(process_, Place(offset), bytes, count, nullptr);
    }

private:
    HANDLE process_ = nullptr;
    void* block_ = nullptr;
};

}  // namespace

RECT AskRectangle(HWND window, UINT message, WPARAM wParam) {
    RECT rectangle = {};
    const RemoteBlock block(window);
    if (!block.IsThere()) return rectangle;
    block.Put(0, &rectangle, sizeof rectangle);
    Ask(window, message, wParam, reinterpret_cast<LPARAM>(block.Place(0)));
    block.Get(0, &rectangle, sizeof rectangle);
    return rectangle;
}

std::string TabTitle(HWND tabControl, int index) {
    constexpr SIZE_T kText = 1024;
    const RemoteBlock block(tabControl);
    if (!block.IsThere()) return {};
    std::array<char, 256> text = {};
    TCITEMA item = {};
    item.mask = TCIF_TEXT;
    item.pszText = block.Place(kText);
    item.cchTextMax = static_cast<int>(text.size());
    block.Put(0, &item, sizeof item);
    Ask(tabControl, TCM_GETITEMA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(block.Place(0)));
    block.Get(kText, text.data(), text.size());
    text.back() = '\0';
    return text.data();
}

}  // namespace corvex::test
