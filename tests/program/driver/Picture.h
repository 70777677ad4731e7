// Pixels, to be counted and compared.
#pragma once

#include <cstdint>
#include <functional>
#include <ostream>
#include <vector>

#include "platform/WindowsApi.h"

namespace corvex::test {

// From the left, then from the top. Each is 0x00RRGGBB.
struct Picture {
    int width = 0, height = 0;
    std::vector<std::uint32_t> pixels;

    bool operator==(const Picture&) const = default;
    // How many of them in a part have this colour; right and bottom are outside.
    int Count(const RECT& part, COLORREF colour) const;
};
// Nobody reads the pixels in a message.
void PrintTo(const Picture& picture, std::ostream* out);

// What is drawn on a black ground of this size.
Picture Drawn(int width, int height, const std::function<void(HDC)>& draw);

}  // namespace corvex::test
