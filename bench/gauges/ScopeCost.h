// What the scope costs.
#pragma once

namespace corvex::bench {

// A sample until it is on the screen in plots of several widths, beside the copies of pixels alone that it takes.
void PrintScopeCost();

}  // namespace corvex::bench
