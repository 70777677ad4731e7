// The series of a strip chart.
#pragma once

#include <cstdint>

#include "definition/ADXObject.h"
#include "definition/EntryList.h"

namespace corvex {

// Colours are 0x00BBGGRR words.
struct ADXMONSERIES {
    std::uint32_t flags = 0;  // low 16 bits are saved and loaded
    std::uint32_t linecolor = 0;
    std::uint32_t axiscolor = 0;
    std::uint8_t linewidth = 1;
    std::uint8_t linetype = 0;     // pen style, passed through to the chart
    ADXObject* item = nullptr;     // not owned; the value traced
    std::uint32_t itemidhash = 0;  // what the link pass resolves
};

class ADXMonitor : public ADXObject, public EntryList<ADXMONSERIES> {
public:
    static constexpr std::uint32_t kType = kTypeMonitor;

    ADXMonitor() : ADXObject(kType) {}
    int Write(XMLWriter* writer) const override;

    std::uint32_t flags = 0;  // loaded and saved
};

}  // namespace corvex
