// Pixels of bitmaps and windows. What a paint function draws, figure by figure, tells FigureRecorder.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "controls/window/GdiObjects.h"

namespace corvex {

OwnedFont MakeTestFont();

using Colours = std::set<COLORREF>;

// A bitmap to paint on, of one colour, or a copy of what a window on show has in its client.
class TestBitmap {
public:
    TestBitmap(int width, int height, COLORREF ground);
    explicit TestBitmap(HWND window);
    HDC Dc() const { return dc_.Get(); }
    COLORREF At(int x, int y) const;
    // All that are in a part, right and bottom outside, row by row; and the colours among them.
    std::vector<COLORREF> Pixels(const RECT& part) const;
    std::vector<COLORREF> Pixels() const { return Pixels({0, 0, width_, height_}); }
    Colours ColoursIn(const RECT& part) const;
    // Writes it as a file of Windows' kind.
    void Save(const std::string& path) const;

private:
    const int width_, height_;
    std::uint32_t* pixels_ = nullptr;  // the bitmap's
    MemoryDc dc_;
    OwnedBitmap bitmap_;
    SelectGuard selected_;
};

// All objects and contexts of this process, whoever owns them: Windows counts them, elsewhere their handles are small
// numbers to be tried.
std::size_t AllGdiObjects();

// Of a window on show.
COLORREF PixelOf(HWND window, int x, int y);
Colours ColoursOf(HWND window);

// For people to look at: writes the window with all in it as NAME.bmp into the folder that the environment variable
// CORVEX_PICTURES names; without one it only has the window painted. It must be visible and belong to this thread.
void SavePicture(HWND window, const std::string& name);

}  // namespace corvex
