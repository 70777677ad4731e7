// What becomes of a window's style when the window turns into a page of another one, and when it stands alone again.
#pragma once

#include <cstdint>

namespace corvex {

inline constexpr std::uint32_t kPageStyleMask = 0x7F3BFFFF;  // without pop-up, caption and thick frame
inline constexpr std::uint32_t kChildStyle = 0x40000000;
inline constexpr std::uint32_t kPopUpStyle = 0x80000000;

constexpr std::uint32_t PageStyle(std::uint32_t style) {
    return (style & kPageStyleMask) | kChildStyle;
}

constexpr std::uint32_t AloneStyle(std::uint32_t style) {
    return (style & ~kChildStyle) | kPopUpStyle;
}

}  // namespace corvex
