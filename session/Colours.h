// The colours that several units say things in, as 0x00BBGGRR.
#pragma once

#include <cstdint>

namespace corvex {

inline constexpr std::uint32_t kBlack = 0x000000, kWhite = 0xFFFFFF, kRed = 0x0000FF, kGreen = 0x00FF00,
                               kAmber = 0x82AAFF;

}  // namespace corvex
