#include "tests/program/driver/RemoteBlock.h"

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

}  // namespace corvex::test
