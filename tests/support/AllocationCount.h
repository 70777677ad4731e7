// Counts heap allocations of the whole program. Link AllocationCount.cpp, which replaces operator new.
#pragma once

#include <cstdint>

namespace corvex::testing {

// Calls of operator new so far, in all threads.
std::uint64_t AllocationCount();

}  // namespace corvex::testing
