// What a histogram costs as a surface.
#pragma once

namespace corvex::bench {

// Paints of a surface beside the same calls of the system alone, the projection of a point, a surface stored anew, a
// sample until it is drawn, and the picture following the mouse. Throws std::runtime_error when a paint calls something
// unforeseen.
void PrintSurfaceCost();

}  // namespace corvex::bench
