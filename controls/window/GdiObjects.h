// Owners of GDI objects and device contexts. DeleteObject, DeleteDC and ReleaseDC are called here and nowhere else.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "platform/WindowsApi.h"

namespace corvex {

// Objects and contexts that owners of this process hold now; a test proves with it that painting leaks nothing.
std::size_t LiveGdiObjects();

namespace gdi_detail {
extern std::atomic<std::size_t> live;
}

// Owns one object, or none. Move-only. To be used on one thread at a time; an object must not go while it is selected.
template <class Handle>
class GdiOwner {
public:
    GdiOwner() = default;
    // Takes over what a Create... call gave; null, which is its failure, makes an empty owner.
    explicit GdiOwner(Handle handle) : handle_(handle) {
        if (handle_ != nullptr) gdi_detail::live.fetch_add(1, std::memory_order_relaxed);
    }
    ~GdiOwner() { Reset(); }
    GdiOwner(GdiOwner&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    GdiOwner& operator=(GdiOwner&& other) noexcept {
        if (this != &other) {
            Reset();
            handle_ = std::exchange(other.handle_, nullptr);
        }
        return *this;
    }

    Handle Get() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }
    // Gives the object away, to a caller that deletes it.
    Handle Release() {
        if (handle_ != nullptr) gdi_detail::live.fetch_sub(1, std::memory_order_relaxed);
        return std::exchange(handle_, nullptr);
    }
    void Reset() {
        if (handle_ == nullptr) return;
        gdi_detail::live.fetch_sub(1, std::memory_order_relaxed);
        ::DeleteObject(std::exchange(handle_, nullptr));
    }

private:
    Handle handle_ = nullptr;
};

using OwnedFont = GdiOwner<HFONT>;
using OwnedBrush = GdiOwner<HBRUSH>;
using OwnedPen = GdiOwner<HPEN>;
using OwnedBitmap = GdiOwner<HBITMAP>;
using OwnedRegion = GdiOwner<HRGN>;

// A context in memory, compatible with another, or with the screen when that is null.
class MemoryDc {
public:
    explicit MemoryDc(HDC like = nullptr);
    ~MemoryDc();
    MemoryDc(const MemoryDc&) = delete;
    MemoryDc& operator=(const MemoryDc&) = delete;
    HDC Get() const { return dc_; }

private:
    HDC dc_;
};

// The client area of a window, or the screen when it is null, to measure or to draw outside of WM_PAINT.
class ClientDc {
public:
    explicit ClientDc(HWND window);
    ~ClientDc();
    ClientDc(const ClientDc&) = delete;
    ClientDc& operator=(const ClientDc&) = delete;
    HDC Get() const { return dc_; }

private:
    HWND window_;
    HDC dc_;
};

// A black bitmap of 32 bits a pixel, 0x00RRGGBB, rows from the top down. Its pixels live as long as it does; what was
// drawn on it is there after GdiFlush. Null, like `pixels`, for no area and for want of memory.
OwnedBitmap MakePixelBitmap(int width, int height, std::uint32_t** pixels);

// Selects an object for its lifetime and puts the former one back. Null selects nothing.
class SelectGuard {
public:
    SelectGuard(HDC dc, HGDIOBJ object) : dc_(dc), former_(object == nullptr ? nullptr : ::SelectObject(dc, object)) {}
    ~SelectGuard() {
        if (former_ != nullptr) ::SelectObject(dc_, former_);
    }
    SelectGuard(const SelectGuard&) = delete;
    SelectGuard& operator=(const SelectGuard&) = delete;
    explicit operator bool() const { return former_ != nullptr; }

private:
    HDC dc_;
    HGDIOBJ former_;
};

}  // namespace corvex
