// Memory in another process, and messages that carry a pointer to it.
#pragma once

#include <string>

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

// For messages that fill a rectangle, some of which read in it what is asked for. Empty on failure.
RECT AskRectangle(HWND window, UINT message, WPARAM wParam, const RECT& asked = {});

// For messages of the gauges that fill a buffer in wParam of the size in lParam. Empty on failure.
std::string AskText(HWND window, UINT message);

// What a cell of a list view says, whoever it has to ask for it. Empty on failure.
std::string CellText(HWND list, int row, int column);

}  // namespace corvex::test
