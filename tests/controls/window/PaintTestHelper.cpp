#include "tests/controls/window/PaintTestHelper.h"

#include <cstdlib>
#include <fstream>

#include "tests/controls/window/ControlTestHelper.h"

namespace corvex {

OwnedFont MakeTestFont() {
    return OwnedFont(::CreateFontA(-13, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                                   CLIP_DEFAULT_PRECIS, NONANTIALIASED_QUALITY, DEFAULT_PITCH, "Arial"));
}

TestBitmap::TestBitmap(int width, int height, COLORREF ground)
    : width_(width),
      height_(height),
      bitmap_(MakePixelBitmap(width, height, &pixels_)),
      selected_(dc_.Get(), bitmap_.Get()) {
    const OwnedBrush brush(::CreateSolidBrush(ground));
    const RECT area{0, 0, width, height};
    ::FillRect(Dc(), &area, brush.Get());
}

TestBitmap::TestBitmap(HWND window)
    : TestBitmap(static_cast<int>(ClientOf(window).right), static_cast<int>(ClientOf(window).bottom), 0) {
    ::BitBlt(Dc(), 0, 0, width_, height_, ClientDc(window).Get(), 0, 0, SRCCOPY);
}

COLORREF TestBitmap::At(int x, int y) const {
    ::GdiFlush();
    const std::uint32_t pixel = pixels_[y * width_ + x];
    return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
}

std::vector<COLORREF> TestBitmap::Pixels(const RECT& part) const {
    std::vector<COLORREF> pixels;
    for (int y = static_cast<int>(part.top); y < part.bottom; ++y) {
        for (int x = static_cast<int>(part.left); x < part.right; ++x)
            pixels.push_back(At(x, y));
    }
    return pixels;
}

Colours TestBitmap::ColoursIn(const RECT& part) const {
    const std::vector<COLORREF> pixels = Pixels(part);
    return {pixels.begin(), pixels.end()};
}

void TestBitmap::Save(const std::string& path) const {
    ::GdiFlush();
    BITMAPINFOHEADER info{};
    info.biSize = sizeof info;
    info.biWidth = width_;
    info.biHeight = -height_;
    info.biPlanes = 1;
    info.biBitCount = 32;
    const std::streamsize length = std::streamsize{width_} * height_ * 4;
    BITMAPFILEHEADER header{};
    header.bfType = 0x4D42;
    header.bfOffBits = static_cast<DWORD>(sizeof header + sizeof info);
    header.bfSize = header.bfOffBits + static_cast<DWORD>(length);
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(&header), sizeof header);
    file.write(reinterpret_cast<const char*>(&info), sizeof info);
    file.write(reinterpret_cast<const char*>(pixels_), length);
}

std::size_t AllGdiObjects() {
    std::size_t count = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS);
    for (ULONG_PTR handle = 1; handle < 0x10000; ++handle) {
        if (::GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) != 0) ++count;
    }
    return count;
}

COLORREF PixelOf(HWND window, int x, int y) {
    return ::GetPixel(ClientDc(window).Get(), x, y);
}

Colours ColoursOf(HWND window) {
    return TestBitmap(window).ColoursIn(ClientOf(window));
}

void SavePicture(HWND window, const std::string& name) {
    ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_FRAME);
    const char* const folder = std::getenv("CORVEX_PICTURES");
    if (folder == nullptr) return;
    RECT place{};
    ::GetWindowRect(window, &place);
    const int width = static_cast<int>(place.right - place.left), height = static_cast<int>(place.bottom - place.top);
    // From the client area's corner back over caption and frame.
    POINT corner{};
    ::ClientToScreen(window, &corner);
    const TestBitmap picture(width, height, 0);
    ::BitBlt(picture.Dc(), 0, 0, width, height, ClientDc(window).Get(), place.left - corner.x, place.top - corner.y,
             SRCCOPY);
    picture.Save(std::string(folder) + "/" + name + ".bmp");
}

}  // namespace corvex
