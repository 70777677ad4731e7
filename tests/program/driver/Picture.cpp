#include "tests/program/driver/Picture.h"

#include <algorithm>

#include "controls/window/GdiObjects.h"

namespace corvex::test {

int Picture::Count(const RECT& part, COLORREF colour) const {
    const std::uint32_t wanted = static_cast<std::uint32_t>(GetRValue(colour)) << 16 |
                                 static_cast<std::uint32_t>(GetGValue(colour)) << 8 | GetBValue(colour);
    int count = 0;
    for (LONG y = std::max(part.top, 0L); y < std::min<LONG>(part.bottom, height); ++y) {
        for (LONG x = std::max(part.left, 0L); x < std::min<LONG>(part.right, width); ++x)
            count +=
                pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)] ==
                        wanted
                    ? 1
                    : 0;
    }
    return count;
}

void PrintTo(const Picture& picture, std::ostream* out) {
    *out << "a picture of " << picture.width << " x " << picture.height;
}

Picture Drawn(int width, int height, const std::function<void(HDC)>& draw) {
    Picture picture{width, height, {}};
    if (width <= 0 || height <= 0) return picture;
    std::uint32_t* words = nullptr;
    const OwnedBitmap bitmap = MakePixelBitmap(width, height, &words);
    if (!bitmap) return picture;
    const MemoryDc memory;
    const SelectGuard selected(memory.Get(), bitmap.Get());
    draw(memory.Get());
    ::GdiFlush();
    picture.pixels.assign(words, words + static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (std::uint32_t& pixel : picture.pixels)
        pixel &= 0xFFFFFFU;  // whatever is above says nothing
    return picture;
}

}  // namespace corvex::test
