// The curves of a dial that reach around it: the rim of its face, and the arcs on the rim.
#pragma once

#include <vector>

#include "controls/analoggauge/DialGeometryModel.h"
#include "controls/window/GdiObjects.h"

namespace corvex {

// An arc goes against the clock. Of its ends only the direction from the dial's centre matters.
struct DialArc {
    DialPoint from, to;
};

// Draws each of them when it is told to, on a context that is mapped to the dial's logical square.
class DialCurves {
public:
    DialCurves() = default;
    virtual ~DialCurves() = default;
    DialCurves(const DialCurves&) = delete;
    DialCurves& operator=(const DialCurves&) = delete;

    // Before the first curve of a paint: what the square is mapped to, see LogicalSquare.
    virtual void Begin(const RECT& client, bool round);
    virtual void DrawFace(HDC dc, COLORREF outline, COLORREF face);
    virtual void DrawArc(HDC dc, const DialArc& arc, COLORREF colour);
};

// The same curves for a dial that is painted again and again. It exists for Wine, which computes a curve with a wide
// pen anew at each paint and takes longer for it than for all the rest of the dial. So each is drawn once, aside, to
// see which pixels it covers, and from then on those pixels are filled: the picture is the same to the last one. The
// shapes alone are kept, the colours are those of each call. A dial of more than 2^22 pixels is drawn as ever. One for
// each window; on the window's thread.
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
