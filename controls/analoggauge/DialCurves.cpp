#include "controls/analoggauge/DialCurves.h"

#include <algorithm>
#include <cstdint>

#include "controls/analoggauge/AnalogGaugeModel.h"
#include "controls/gauge/LogicalSquare.h"

namespace corvex {

namespace {

constexpr int kRim = 2;  // from the edge of the square to the dial
constexpr int kFar = AnalogGaugeModel::kSide - kRim;

constexpr std::int64_t kMostPixels = 1 << 22;

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

// A sheet to draw on aside, to see which pixels a figure covers. Black, and as large as the area.
class MaskBitmap {
public:
    explicit MaskBitmap(const RECT& area);

    HDC Dc() const { return dc_.Get(); }
    // All pixels of just this colour, from 0, 0 of the area. Null when there is no sheet: for an area without pixels,
    // for one that is too large, as odd definitions ask for, and for want of memory.
    OwnedRegion ShapeOf(COLORREF colour) const;

private:
    const int width_, height_;
    std::uint32_t* pixels_ = nullptr;  // the bitmap's
    MemoryDc dc_;
    OwnedBitmap bitmap_;
    SelectGuard selected_;
};

MaskBitmap::MaskBitmap(const RECT& area)
    : width_(area.right - area.left),
      height_(area.bottom - area.top),
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

// Any two that differ from each other and from black, which the sheet is of.
constexpr COLORREF kLine = RGB(255, 255, 255), kGround = RGB(255, 0, 0);

bool SameEnds(const DialArc& a, const DialArc& b) {
    return a.from.x == b.from.x && a.from.y == b.from.y && a.to.x == b.to.x && a.to.y == b.to.y;
}

bool SameSize(const RECT& a, const RECT& b) {
    return a.right - a.left == b.right - b.left && a.bottom - a.top == b.bottom - b.top;
}

void Fill(HDC dc, const OwnedRegion& shape, COLORREF colour) {
    const OwnedBrush brush(::CreateSolidBrush(colour));
    const int saved = ::SaveDC(dc);
    ::SetMapMode(dc, MM_TEXT);
    ::FillRgn(dc, shape.Get(), brush.Get());
    ::RestoreDC(dc, saved);
}

}  // namespace

void DialCurves::Begin(const RECT&, bool) {}

void DialCurves::DrawFace(HDC dc, COLORREF outline, COLORREF face) {
    const OwnedPen line(::CreatePen(PS_SOLID, 1, outline));
    const OwnedBrush ground(::CreateSolidBrush(face));
    const SelectGuard pen(dc, line.Get()), brush(dc, ground.Get());
    ::Ellipse(dc, kRim, kRim, kFar, kFar);
}

void DialCurves::DrawArc(HDC dc, const DialArc& arc, COLORREF colour) {
    const OwnedPen line(::CreatePen(PS_SOLID, 2, colour));
    const SelectGuard pen(dc, line.Get());
    ::SetArcDirection(dc, AD_COUNTERCLOCKWISE);
    ::Arc(dc, kRim, kRim, kFar, kFar, arc.from.x, arc.from.y, arc.to.x, arc.to.y);
}

void KeptDialCurves::Begin(const RECT& client, bool round) {
    arcs_.erase(arcs_.begin() + static_cast<std::ptrdiff_t>(next_), arcs_.end());
    next_ = 0;
    if (SameSize(client, client_) && round == round_) return;
    client_ = client;
    round_ = round;
    outline_.Reset();
    face_.Reset();
    arcs_.clear();
}

void KeptDialCurves::DrawFace(HDC dc, COLORREF outline, COLORREF face) {
    if (!outline_ || !face_) {
        const MaskBitmap sheet(client_);
        const LogicalSquare square(sheet.Dc(), client_, AnalogGaugeModel::kSide, round_);
        DialCurves::DrawFace(sheet.Dc(), kLine, kGround);
        outline_ = sheet.ShapeOf(kLine);
        face_ = sheet.ShapeOf(kGround);
    }
    if (!outline_ || !face_) return DialCurves::DrawFace(dc, outline, face);
    Fill(dc, face_, face);
    Fill(dc, outline_, outline);
}

void KeptDialCurves::DrawArc(HDC dc, const DialArc& arc, COLORREF colour) {
    if (next_ == arcs_.size()) arcs_.push_back({arc, ShapeOf(arc)});
    KeptArc& kept = arcs_[next_++];
    if (!SameEnds(kept.ends, arc)) kept = {arc, ShapeOf(arc)};
    if (!kept.shape) return DialCurves::DrawArc(dc, arc, colour);
    Fill(dc, kept.shape, colour);
}

OwnedRegion KeptDialCurves::ShapeOf(const DialArc& arc) {
    const MaskBitmap sheet(client_);
    const LogicalSquare square(sheet.Dc(), client_, AnalogGaugeModel::kSide, round_);
    DialCurves::DrawArc(sheet.Dc(), arc, kLine);
    return sheet.ShapeOf(kLine);
}

}  // namespace corvex
