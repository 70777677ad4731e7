// Makes the views catch up in the middle of a macro.
#pragma once

#include <cstdint>

#include "definition/ADXObject.h"

namespace corvex {

class ADXCTrigger : public ADXObject {
public:
    ADXCTrigger() : ADXObject(kTypeTrigger) {}
    int Write(XMLWriter* writer) const override;

    std::uint32_t triggertype = 0;  // 0x2 histograms, 0x4 item list, 0x8 monitors, 0x10 dash
    std::uint32_t flags = 0;        // loaded and saved; tested by nothing
};

}  // namespace corvex
