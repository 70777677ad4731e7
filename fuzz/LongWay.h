// What is dear is tried on some of the inputs alone, so that many more are tried at all.
#pragma once

#include <cstddef>
#include <cstdint>

namespace corvex {

// One input in so many, always the same ones, and the first of each process: a seed of the tests, or one that is looked
// at alone because it went wrong.
inline bool TakesLongWay(const std::uint8_t* data, std::size_t size, std::uint32_t oneIn) {
    static unsigned runs = 0;
    if (runs < 64) {
        ++runs;
        return true;
    }
    std::uint32_t sum = 0;
    for (std::size_t i = 0; i < size; ++i)
        sum = sum * 31 + data[i];
    return (sum >> 8U) % oneIn == 0;
}

}  // namespace corvex

// Freed memory is not kept for longer than a few inputs: fresh pages for every buffer cost more than the inputs do.
extern "C" __attribute__((used)) inline const char* __asan_default_options() {
    return "quarantine_size_mb=4";
}
