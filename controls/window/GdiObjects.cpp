#include "controls/window/GdiObjects.h"

namespace corvex {

std::atomic<std::size_t> gdi_detail::live{0};

std::size_t LiveGdiObjects() {
    return gdi_detail::live.load(std::memory_order_relaxed);
}

MemoryDc::MemoryDc(HDC like) : dc_(::CreateCompatibleDC(like)) {
    if (dc_ != nullptr) gdi_detail::live.fetch_add(1, std::memory_order_relaxed);
}

MemoryDc::~MemoryDc() {
    if (dc_ == nullptr) return;
    gdi_detail::live.fetch_sub(1, std::memory_order_relaxed);
    ::DeleteDC(dc_);
}

ClientDc::ClientDc(HWND window) : window_(window), dc_(::GetDC(window)) {
    if (dc_ != nullptr) gdi_detail::live.fetch_add(1, std::memory_order_relaxed);
}

ClientDc::~ClientDc() {
    if (dc_ == nullptr) return;
    gdi_detail::live.fetch_sub(1, std::memory_order_relaxed);
    ::ReleaseDC(window_, dc_);
}

OwnedBitmap MakePixelBitmap(int width, int height, std::uint32_t** pixels) {
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof format.bmiHeader;
    format.bmiHeader.biWidth = width;
    format.bmiHeader.biHeight = -height;  // from the top down
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    void* memory = nullptr;
    OwnedBitmap bitmap(::CreateDIBSection(nullptr, &format, DIB_RGB_COLORS, &memory, nullptr, 0));
    *pixels = static_cast<std::uint32_t*>(memory);
    return bitmap;
}

}  // namespace corvex
