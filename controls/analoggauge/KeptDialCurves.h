// The same curves for a dial that is painted again and again.
#pragma once

#include <vector>

#include "controls/analoggauge/DialCurves.h"
#include "controls/window/GdiObjects.h"

namespace corvex {

// Curves with wide pens are by far the dearest part of a dial, and they seldom change. So each is drawn once, aside, to
// see which pixels it covers, and from then on those pixels are filled: the picture is the same to the last one. The
// shapes alone are kept, the colours are those of each call. One for each window; on the window's thread.
class KeptDialCurves final : public DialCurves {
public:
    // Another size or mapping than before drops all shapes, and so do arcs that the last paint did not draw.
    void Begin(const RECT& client, bool round) override;
    void DrawFace(HDC dc, COLORREF outline, COLORREF face) override;
    // An arc is known by its place in the order of the paint and by its ends.
    void DrawArc(HDC dc, const DialArc& arc, COLORREF colour) override;

private:
    struct KeptArc {
        DialArc ends;
        OwnedRegion shape;
    };
    OwnedRegion ShapeOf(const DialArc& arc);

    RECT client_{};
    bool round_ = false;
    OwnedRegion outline_, face_;  // in pixels, as all shapes
    std::vector<KeptArc> arcs_;
    std::size_t next_ = 0;  // of the arcs, in this paint
};

}  // namespace corvex
