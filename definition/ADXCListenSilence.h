// Waits for the line to fall quiet, or merely waits.
#pragma once

#include <cstdint>

#include "definition/ADXObject.h"

namespace corvex {

class ADXCListenSilence : public ADXObject {
public:
    static constexpr std::uint32_t kType = kTypeListenSilence;

    ADXCListenSilence() : ADXObject(kType) {}
    int Write(XMLWriter* writer) const override;

    std::uint32_t silencelen = 0;      // milliseconds of quiet wanted; 0 makes the command a pure delay of totaltimeout
    std::uint32_t totaltimeout = 400;  // milliseconds
};

}  // namespace corvex
