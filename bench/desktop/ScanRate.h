// How close a scan comes to what the line can carry, and what the program itself could carry, view by view.
#pragma once

namespace corvex::bench {

// Scans the paced example engine with each view in front: the rate of replies as a share of the line's limit, and the
// program's share of a processor meanwhile. Throws std::runtime_error when there are too few replies to tell.
void PrintScanRate();

// The same with an engine and a line that take no time: replies per second.
void PrintSustainedRate();

}  // namespace corvex::bench
