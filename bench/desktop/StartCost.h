// What it costs to have a window: time until it is painted, and memory.
#pragma once

namespace corvex::bench {

// Starts Corvex with the example definition and a bare window in turn and prints what each takes, and the ratio. Throws
// std::runtime_error when one of them does not come.
void PrintStartCost();

}  // namespace corvex::bench
