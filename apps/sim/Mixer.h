// Chance that can be repeated: numbers that look random and depend on their arguments alone.
#pragma once

#include <cstdint>

namespace corvex {

// Spreads every bit of the argument over the whole word.
constexpr std::uint64_t Spread(std::uint64_t word) {
    word ^= word >> 32;
    word *= 0xD6E8FEB86659FD93U;
    word ^= word >> 32;
    word *= 0xD6E8FEB86659FD93U;
    word ^= word >> 32;
    return word;
}

constexpr std::uint64_t Mix(std::uint64_t seed, std::uint64_t number) {
    return Spread(Spread(seed + 0x9E3779B97F4A7C15U) + number * 0x9E3779B97F4A7C15U);
}

// A number from 0 to 1, excluding 1.
constexpr double FractionOf(std::uint64_t seed, std::uint64_t number) {
    return static_cast<double>(Mix(seed, number) >> 11) * 0x1p-53;
}

}  // namespace corvex
