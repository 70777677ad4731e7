// The gauges of a dash page.
#pragma once

#include <cstdint>

#include "definition/ADXObject.h"
#include "definition/EntryList.h"

namespace corvex {

struct ADXDGENTRY {
    std::uint32_t flags = 0;                                     // loaded and saved
    std::uint32_t gaugetype = 0;                                 // 0 analog gauge, 1 digital readout, 2 status gauge
    std::uint16_t top = 0, left = 0, bottom = 100, right = 100;  // percent of the page area
    ADXObject* item = nullptr;                                   // not owned; an ADXValue or ADXBitmask
    std::uint32_t itemidhash = 0;                                // what the link pass resolves
};

class ADXDashboard : public ADXObject, public EntryList<ADXDGENTRY> {
public:
    static constexpr std::uint32_t kType = kTypeDashboard;

    ADXDashboard() : ADXObject(kType) {}
    int Write(XMLWriter* writer) const override;

    std::uint32_t flags = 0;  // loaded and saved
};

}  // namespace corvex
