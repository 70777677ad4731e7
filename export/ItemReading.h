// One item of a definition, read for showing.
#pragma once

#include <cstdint>
#include <string>

#include "definition/PacketView.h"

namespace corvex {

class ADXDefinition;
class ADXObject;

struct ItemReading {
    std::string text;     // UTF-8, without units
    double number = 0.0;  // of a value, through its table; of a bitmask 1 or 0
    bool istext = false;  // a value whose table gives texts: `number` says nothing
    bool alarm = false;
    std::uint32_t colour = 0;  // 0x00BBGGRR, of the alarm
};

// `item` is a value or a bitmask. Without a packet the last raw word counts. Drives the equation evaluators, so all
// calls for one definition come from one thread.
ItemReading ReadItem(const ADXDefinition& definition, ADXObject& item, PacketView packet);

// The id hash of the command that an item belongs to; 0 for any.
std::uint32_t ParentOf(const ADXObject& item);
// UTF-8; empty for a bitmask.
std::string UnitsOf(const ADXObject& item);

}  // namespace corvex
