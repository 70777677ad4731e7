// Makes the views catch up in the middle of a macro.
#pragma once

#include <cstdint>

#include "definition/ADXObject.h"

namespace corvex {

class ADXCTrigger : public ADXObject {
public:
    // Bits of triggertype.
    enum View : std::uint32_t { kHistograms = 0x2, kItemList = 0x4, kMonitors = 0x8, kDash = 0x10 };
    static constexpr std::uint32_t kType = kTypeTrigger;

    ADXCTrigger() : ADXObject(kType) {}
    int Write(XMLWriter* writer) const override;

    bool Wakes(View view) const { return (triggertype & view) != 0; }

    std::uint32_t triggertype = 0;
    std::uint32_t flags = 0;  // loaded and saved; tested by nothing
};

}  // namespace corvex
