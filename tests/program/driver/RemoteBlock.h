// Memory in another process.
#pragma once

#include "platform/WindowsApi.h"

namespace corvex::test {

// Zeroed bytes in the process of a window, which is assumed to have the same number of bits. Gone with the object.
class RemoteBlock {
public:
    explicit RemoteBlock(HWND window, SIZE_T size = 4096);
    ~RemoteBlock();
    RemoteBlock(const RemoteBlock&) = delete;
    RemoteBlock& operator=(const RemoteBlock&) = delete;

    // False when the window or its process is gone; nothing is put or got then.
    bool IsThere() const { return block_ != nullptr; }
    // An address there.
    char* Place(SIZE_T offset) const { return static_cast<char*>(block_) + offset; }
    void Put(SIZE_T offset, const void* bytes, SIZE_T count) const;
    void Get(SIZE_T offset, void* bytes, SIZE_T count) const;

private:
    HANDLE process_ = nullptr;
    void* block_ = nullptr;
};

}  // namespace corvex::test
