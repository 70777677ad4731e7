// The dial once more, by other formulas: sectors of degrees instead of sines, floors instead of remainders. What tests
// compare the geometry with.
#pragma once

namespace corvex {

struct ReferenceScale {
    double minimum, maximum, start, end;
};

// Degrees clockwise from straight to the right, as a float holds them.
double ReferenceAngle(const ReferenceScale& scale, double value);

struct ReferencePlace {
    int x, y;
};
// About the centre 90, 90, with y growing downward.
ReferencePlace ReferencePoint(int radius, double angle);         // cut toward the centre
ReferencePlace ReferenceRoundedPoint(int radius, double angle);  // to the nearest

// The words of SetTextAlign for the sector in which the angle lies.
unsigned ReferenceAlignment(double angle);

}  // namespace corvex
