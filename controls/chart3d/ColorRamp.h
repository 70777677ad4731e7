// From a height to a colour: a walk from one colour to another by hue, saturation and value.
#pragma once

#include <cstdint>

namespace corvex {

// What of a colour the ramp walks; the rest stays at its start. In any other mode every value is black.
enum class RampMode : std::uint32_t { kAll = 0, kValue = 2, kSaturation = 3, kHue = 4 };

// Hue in degrees from 0 to below 360, saturation from 0 to 1.
struct HueColour {
    float hue = 0.0F, saturation = 0.0F;
    std::uint8_t value = 0;
};

HueColour HueOf(std::uint32_t colour);     // 0x00BBGGRR
std::uint32_t ColourOf(HueColour colour);  // 0x00BBGGRR, each channel to the nearest

class ColorRamp {
public:
    ColorRamp() { SetColours(0xFF0000, 0x0000FF); }

    void SetColours(std::uint32_t start, std::uint32_t end);
    void setMode(RampMode mode) { mode_ = mode; }
    // At first 0 to 1000. Finite ones.
    void setRange(float minimum, float maximum);
    // Values outside of the range have the colour of its end; all have the start's where it has no extent.
    std::uint32_t map(float value) const;

private:
    RampMode mode_ = RampMode::kAll;
    float minimum_ = 0.0F, maximum_ = 1000.0F;
    HueColour start_, end_;
};

}  // namespace corvex
