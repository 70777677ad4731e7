// Ways to see what a paint function or a window has drawn.
#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "controls/window/GdiObjects.h"

namespace corvex {

OwnedFont MakeTestFont();

// What was drawn on a metafile with the test font selected, one line per record, e.g. "brush 0000ff", "fill 0,0,10,5"
// (right and bottom outside), "pen 0 1 00ff00", "rectangle 0,0,10,5", "text colour 000000", "transparent",
// "clip 5,0,10,5", "clip none", "text 3,1 Ready". Colours are 0xBBGGRR, as everywhere.
std::vector<std::string> Recorded(const std::function<void(HDC)>& paint);
// The places of a line in a record.
std::vector<std::size_t> PlacesOf(const std::vector<std::string>& lines, const std::string& line);
// The line that a text drawn in the middle of such an area leaves; the height should be odd, as that of the font is.
std::string CentredText(const std::string& text, int width, int height);

// A bitmap to paint on, of one colour, or a copy of what a window on show has in its client.
class TestBitmap {
public:
    TestBitmap(int width, int height, COLORREF ground);
    explicit TestBitmap(HWND window);
    HDC Dc() const { return dc_.Get(); }
    COLORREF At(int x, int y) const;
    // The colours in a part, right and bottom outside.
    std::set<COLORREF> ColoursIn(int left, int top, int right, int bottom) const;

private:
    int width_;
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
void SetPixelOf(HWND window, int x, int y, COLORREF colour);
std::set<COLORREF> ColoursOf(HWND window);

}  // namespace corvex
