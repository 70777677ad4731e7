// What a dial and whoever sets it up tell each other.
#pragma once

#include <cstdint>

namespace corvex {

enum AnalogGaugeFlag : std::uint32_t {
    AGF_VALUE = 0x04,    // the current value in digits
    AGF_HIGHEST = 0x08,  // the "Max: " line
    AGF_LOWEST = 0x10,   // the "Min: " line
    AGF_ALARMS = 0x40,   // the alarm bands
    AGF_ROUND = 0x80,    // a circle in every window
};

enum AnalogGaugeColour : std::uint32_t {
    AGC_FACE,
    AGC_OUTLINE,  // with the arc of the scale
    AGC_NEEDLE,   // its outline
    AGC_TITLE,
    AGC_UNITS,
    AGC_BACKGROUND,  // of the window
    AGC_TICKLABEL,
    AGC_MAJORTICK,
    AGC_MINORTICK,
    AGC_VALUE,
    AGC_COUNT,
};

// A coloured part of the rim, in values of the scale. With low above high it goes the long way round.
struct GaugeAlarmBand {
    float low, high;
    std::uint32_t colour;  // 0x00BBGGRR
};

}  // namespace corvex
