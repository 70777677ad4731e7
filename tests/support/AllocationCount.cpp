#include "tests/support/AllocationCount.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::uint64_t> allocations{0};
std::atomic<int> refusals{0};

}  // namespace

namespace corvex::testing {

std::uint64_t AllocationCount() {
    return allocations.load(std::memory_order_relaxed);
}

NoMemory::NoMemory() {
    refusals.fetch_add(1, std::memory_order_relaxed);
}

NoMemory::~NoMemory() {
    refusals.fetch_sub(1, std::memory_order_relaxed);
}

}  // namespace corvex::testing

// The array and nothrow forms of the library end here too. Memory of aligned new is not counted.
void* operator new(std::size_t size) {
    allocations.fetch_add(1, std::memory_order_relaxed);
    const bool refused = refusals.load(std::memory_order_relaxed) != 0;
    if (void* memory = refused ? nullptr : std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
