// What the strip chart of a monitor costs.
#pragma once

namespace corvex::bench {

// A paint of the same visible samples at the end of short and of long histories, beside the same calls bare; samples
// appended with and without a scroll; a layout; the memory of an hour.
void PrintChartCost();

}  // namespace corvex::bench
