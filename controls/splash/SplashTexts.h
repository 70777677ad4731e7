// The texts over a splash, each known by an id.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "controls/window/GdiObjects.h"

namespace corvex {

struct SplashText {
    int itemId = 0;
    std::string text;
    RECT rectangle{};  // in pixels of the bitmap; a longer text goes beyond it
    OwnedFont font;    // null: the splash's own
    std::uint32_t colour = 0;
};

// Owns the fonts. On one thread.
class SplashTexts {
public:
    static constexpr std::size_t kMaximumLength = 254;

    // Replaces the text with this id, or adds it behind the others.
    void Set(SplashText item);
    const std::vector<SplashText>& Items() const { return items_; }

private:
    std::vector<SplashText> items_;
};

}  // namespace corvex
