// The geometry of a dial: where a value lies on the scale, and the points and lines that belong to it. Pure functions,
// with y growing downward. Every float is survived: what has no place lies far outside of the dial.
#pragma once

#include <vector>

namespace corvex {

// The values at the ends of the scale, and the angles of its ends: degrees, clockwise on the screen from straight down.
struct DialScale {
    float rangeMinimum, rangeMaximum;
    float sweepStart, sweepEnd;
};

struct DialPoint {
    int x, y;
};

struct DialLine {
    DialPoint from, to;
};

struct DialTick {
    float value;
    bool major;  // with a label
};

// Degrees, clockwise on the screen from straight to the right. A range without length gives no number.
float DialAngle(const DialScale& scale, float value);

// At a whole distance from the centre, cut toward it. For labels, ends of arcs and the needle.
DialPoint PlainPoint(DialPoint centre, int radius, double angle);
// Rounded, as a tick that is cut would be seen to waver. For ticks and the mark on the rim.
DialLine RadialLine(DialPoint centre, int fromRadius, int toRadius, double angle);

// Where a label lies from its anchor, so that it leans inward: a value for SetTextAlign.
unsigned LabelAlignment(double angle);

// In the order in which they are drawn: each major tick, then the minor ones between the one before and itself.
std::vector<DialTick> DialTicks(const DialScale& scale, unsigned majorCount, unsigned minorDivisions);

}  // namespace corvex
