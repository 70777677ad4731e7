// How soon a command of the user reaches the line.
#pragma once

namespace corvex::bench {

// Scans a line that never answers, again and again, and prints the time from the scan command to the first byte, and
// from the command that stops to the closed port. Throws std::runtime_error when one of them does not come.
void PrintLineLatency();

}  // namespace corvex::bench
