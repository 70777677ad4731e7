#include "tests/views/WindowPicture.h"

#include <cstdlib>
#include <fstream>
#include <vector>

#include "controls/window/GdiObjects.h"

namespace corvex::test {

namespace {

BITMAPINFO TopDown(int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    return info;
}

void Write(const std::string& path, const BITMAPINFO& info, const void* pixels, std::size_t length) {
    BITMAPFILEHEADER header{};
    header.bfType = 0x4D42;
    header.bfOffBits = static_cast<DWORD>(sizeof header + sizeof info.bmiHeader);
    header.bfSize = header.bfOffBits + static_cast<DWORD>(length);
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(&header), sizeof header);
    file.write(reinterpret_cast<const char*>(&info.bmiHeader), sizeof info.bmiHeader);
    file.write(static_cast<const char*>(pixels), static_cast<std::streamsize>(length));
}

}  // namespace

void SavePicture(HWND window, const std::string& name) {
    ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_FRAME);
    const char* const folder = std::getenv("CORVEX_PICTURES");
    if (folder == nullptr) return;

    RECT place{};
    ::GetWindowRect(window, &place);
    const int width = static_cast<int>(place.right - place.left), height = static_cast<int>(place.bottom - place.top);
    const BITMAPINFO info = TopDown(width, height);
    void* pixels = nullptr;
    const OwnedBitmap bitmap(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
    const MemoryDc memory;
    const SelectGuard selected(memory.Get(), bitmap.Get());
    // From the client area's corner back over caption and frame.
    POINT corner{};
    ::ClientToScreen(window, &corner);
    const ClientDc source(window);
    ::BitBlt(memory.Get(), 0, 0, width, height, source.Get(), place.left - corner.x, place.top - corner.y, SRCCOPY);
    ::GdiFlush();
    Write(std::string(folder) + "/" + name + ".bmp", info, pixels, static_cast<std::size_t>(width) * height * 4);
}

}  // namespace corvex::test
