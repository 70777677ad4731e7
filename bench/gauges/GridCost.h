// What the grid control costs.
#pragma once

namespace corvex::bench {

// A paint of a full screen of cells, beside the same calls bare; a cell that a sample changes; the largest table:
// sized, scrolled to its end, and its memory.
void PrintGridCost();

}  // namespace corvex::bench
