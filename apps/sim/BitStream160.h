// The slow stream as an oversampling receiver sees it: one received byte for each bit.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace corvex {

inline constexpr double kStreamBitsPerSecond = 160.0;
inline constexpr std::uint8_t kStreamOne = 0x00;   // the line stays low for the whole bit
inline constexpr std::uint8_t kStreamZero = 0xFE;  // it comes up again at once
inline constexpr std::size_t kSyncOnes = 9;

// One packet: a separating zero, nine ones in a row for the sync, then each byte as a zero (its start bit) and its
// eight bits, most significant first. The start bits keep any data from holding nine ones. The separator keeps ones at
// the end of the last byte from being counted into the next sync, which would leave a receiver out of step for ever.
std::vector<std::uint8_t> EncodeStreamPacket(std::span<const std::uint8_t> packet);

}  // namespace corvex
