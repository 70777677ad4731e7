#include "controls/gauge/MaskBitmap.h"

#include <algorithm>
#include <vector>

namespace corvex {

namespace {

constexpr std::int64_t kMostPixels = 1 << 24;

OwnedBitmap MakeSheet(int width, int height, std::uint32_t** pixels) {
    if (static_cast<std::int64_t>(width) * height > kMostPixels) return {};
    return MakePixelBitmap(width, height, pixels);
}

// The runs of one row, appended.
void AddRuns(const std::uint32_t* row, int width, int y, std::uint32_t wanted, std::vector<RECT>& runs) {
    int x = 0;
    while (x < width) {
        while (x < width && (row[x] & 0xFFFFFF) != wanted)
            ++x;
        const int begin = x;
        while (x < width && (row[x] & 0xFFFFFF) == wanted)
            ++x;
        if (x > begin) runs.push_back({begin, y, x, y + 1});
    }
}

OwnedRegion RegionOf(const std::vector<RECT>& runs, const RECT& bounds) {
    if (runs.empty()) return OwnedRegion(::CreateRectRgn(0, 0, 0, 0));
    const std::size_t size = runs.size() * sizeof(RECT);
    std::vector<RECT> memory(sizeof(RGNDATAHEADER) / sizeof(RECT) + runs.size());
    static_assert(sizeof(RGNDATAHEADER) % sizeof(RECT) == 0);
    auto* const data = reinterpret_cast<RGNDATA*>(memory.data());
    data->rdh = {sizeof data->rdh, RDH_RECTANGLES, static_cast<DWORD>(runs.size()), static_cast<DWORD>(size), bounds};
    std::copy(runs.begin(), runs.end(), memory.begin() + sizeof(RGNDATAHEADER) / sizeof(RECT));
    return OwnedRegion(::ExtCreateRegion(nullptr, static_cast<DWORD>(sizeof data->rdh + size), data));
}

}  // namespace

MaskBitmap::MaskBitmap(const RECT& area, HDC like)
    : width_(area.right - area.left),
      height_(area.bottom - area.top),
      dc_(like),
      bitmap_(MakeSheet(width_, height_, &pixels_)),
      selected_(dc_.Get(), bitmap_.Get()) {}

OwnedRegion MaskBitmap::ShapeOf(COLORREF colour) const {
    // On a sheet that nothing can be drawn on, every figure would be an empty one, and kept.
    if (pixels_ == nullptr || !selected_) return {};
    ::GdiFlush();  // what is drawn may come late
    const std::uint32_t wanted = static_cast<std::uint32_t>(GetRValue(colour)) << 16 |
                                 static_cast<std::uint32_t>(GetGValue(colour)) << 8 | GetBValue(colour);
    std::vector<RECT> runs;
    for (int y = 0; y < height_; ++y)
        AddRuns(pixels_ + static_cast<std::ptrdiff_t>(y) * width_, width_, y, wanted, runs);
    return RegionOf(runs, {0, 0, width_, height_});
}

}  // namespace corvex
