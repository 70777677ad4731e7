// What the 2-D chart costs.
#pragma once

namespace corvex::bench {

// Paints of a thousand points in four series beside the same calls of the system alone, and a point that is dragged.
// Throws std::runtime_error when a paint calls something unforeseen.
void PrintChart2DCost();

}  // namespace corvex::bench
