// What the table of the "Histograms" tab costs: one sample until its cell is drawn, and all of it anew.
#pragma once

namespace corvex::bench {

void PrintHistogramCost();

}  // namespace corvex::bench
