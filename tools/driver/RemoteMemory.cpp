#include "tools/driver/RemoteMemory.h"

#include <commctrl.h>

#include <array>

#include "tools/driver/WindowFinder.h"

namespace corvex::test {

RemoteBlock::RemoteBlock(HWND window, SIZE_T size) {
    DWORD id = 0;
    ::GetWindowThreadProcessId(window, &id);
    process_ = ::OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id);
    if (process_ != nullptr) block_ = ::VirtualAllocEx(process_, nullptr, size, MEM_COMMIT, PAGE_READWRITE);
}

RemoteBlock::~RemoteBlock() {
    if (block_ != nullptr) ::VirtualFreeEx(process_, block_, 0, MEM_RELEASE);
    if (process_ != nullptr) ::CloseHandle(process_);
}

void RemoteBlock::Put(SIZE_T offset, const void* bytes, SIZE_T count) const {
    if (IsThere()) ::WriteProcessMemory(process_, Place(offset), bytes, count, nullptr);
}

void RemoteBlock::Get(SIZE_T offset, void* bytes, SIZE_T count) const {
    if (IsThere()) ::ReadProcessMemory(process_, Place(offset), bytes, count, nullptr);
}

RECT AskRectangle(HWND window, UINT message, WPARAM wParam, const RECT& asked) {
    RECT rectangle = asked;
    const RemoteBlock block(window);
    if (!block.IsThere()) return {};
    block.Put(0, &rectangle, sizeof rectangle);
    Ask(window, message, wParam, reinterpret_cast<LPARAM>(block.Place(0)));
    block.Get(0, &rectangle, sizeof rectangle);
    return rectangle;
}

std::string AskText(HWND window, UINT message) {
    constexpr std::size_t kLength = 256;
    const RemoteBlock block(window);
    if (!block.IsThere()) return {};
    std::array<char, kLength> text = {};
    block.Put(0, text.data(), kLength);
    Ask(window, message, reinterpret_cast<WPARAM>(block.Place(0)), kLength);
    block.Get(0, text.data(), kLength);
    text.back() = '\0';
    return text.data();
}

std::string CellText(HWND list, int row, int column) {
    constexpr SIZE_T kText = 1024;
    const RemoteBlock block(list);
    if (!block.IsThere()) return {};
    std::array<char, 300> text = {};
    LVITEMA cell = {};
    cell.iSubItem = column;
    cell.pszText = block.Place(kText);
    cell.cchTextMax = static_cast<int>(text.size());
    block.Put(0, &cell, sizeof cell);
    Ask(list, LVM_GETITEMTEXTA, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(block.Place(0)));
    block.Get(kText, text.data(), text.size());
    text.back() = '\0';
    return text.data();
}

}  // namespace corvex::test
