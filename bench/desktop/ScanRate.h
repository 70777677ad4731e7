// How close a scan comes to what the line can carry while its text is on show.
#pragma once

namespace corvex::bench {

// Scans the paced example engine with the Output tab in front and prints the rate of replies as a share of the line's
// limit. Throws std::runtime_error when there are too few replies to tell.
void PrintScanRate();

}  // namespace corvex::bench
