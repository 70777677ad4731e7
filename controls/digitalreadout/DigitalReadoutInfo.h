// The words that the digital readout and whoever drives it share.
#pragma once

#include <cstdint>

namespace corvex {

// The colours of a readout, all 0x00BBGGRR.
enum DigitalReadoutColour : std::uint32_t {
    kReadoutFrameColour = 0,
    kReadoutTitleColour = 1,
    kReadoutUnitsColour = 2,
    kReadoutNormalColour = 3,  // of the digits
    kReadoutHighColour = 4,    // of the digits at the high limit
    kReadoutLowColour = 5,     // of the digits at the low limit
    kReadoutBackground = 6,
    kReadoutColourCount = 7,
};

// Nearly all of a readout in one record. Odd and wanted: both limit slots are those of the low limit, the high one does
// not travel. The texts that are got belong to the readout and live as long as its window.
struct DigitalReadoutInfo {
    std::uint32_t flags;
    std::uint32_t normalColour, highColour, lowColour;
    std::uint32_t background, frameColour;
    float lowLimit[2];  // the second one decides
    std::int32_t floating;
    std::uint32_t decimals;
    const char* title;  // null to keep it
    const char* units;  // null to keep them
    std::uint32_t userWord;
    std::uint32_t lowLimitEnabled, highLimitEnabled;
};

}  // namespace corvex
