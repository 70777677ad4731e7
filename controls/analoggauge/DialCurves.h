// The curves of a dial that reach around it: the rim of its face, and the arcs on the rim.
#pragma once

#include "controls/analoggauge/DialGeometryModel.h"
#include "platform/WindowsApi.h"

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

}  // namespace corvex
