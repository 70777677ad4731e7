// Counts heap allocations of the whole program, and has them fail. Link AllocationCount.cpp, which replaces operator
// new.
#pragma once

#include <cstdint>

namespace corvex::testing {

// Calls of operator new so far, in all threads.
std::uint64_t AllocationCount();

// As long as one of these is there, every call of operator new throws, in all threads.
class NoMemory {
public:
    NoMemory();
    ~NoMemory();
    NoMemory(const NoMemory&) = delete;
    NoMemory& operator=(const NoMemory&) = delete;
};

}  // namespace corvex::testing
