// One gauge of the dash page: a child window of the page that holds the entry it shows. Main thread.
#pragma once

#include <cstdint>
#include <optional>

#include "definition/ADXDashboard.h"
#include "definition/ADXDefinition.h"
#include "platform/WindowsApi.h"

namespace corvex {

// The control id of entry 0's gauge; entry n has this plus n.
inline constexpr int kFirstGaugeId = 10000;

// Hidden, not bound yet, and laid out by the caller. Null for a type that there is no gauge for, and on failure.
HWND MakeGauge(HWND page, ADXDGENTRY* entry, std::uint32_t index);

// The dashboard's own, as it was given to MakeGauge. Null for a null or dead window.
ADXDGENTRY* EntryOf(HWND gauge);

// Tells the gauge what its entry's item is called, its limits, and its present value. Nothing happens when the item is
// missing or does not fit the gauge. A null gauge is left alone, here and below.
void BindGauge(HWND gauge, const ADXDefinition& definition);

// What a sample makes a gauge show.
struct GaugeReading {
    HWND gauge;
    std::uint32_t gaugetype;
    float value;  // of a lamp 0 or 1
};

// Nothing when the command is not the item's, unless the item has none. No packet: the last raw word.
std::optional<GaugeReading> ReadGauge(HWND gauge, const ADXDefinition& definition, PacketView packet,
                                      std::uint32_t commandId);
// Painted at once.
void ShowReading(const GaugeReading& reading);

}  // namespace corvex
