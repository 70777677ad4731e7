// What a definition makes of a record of a log, by the rules of a playback.
#pragma once

#include <cstdint>

#include "definition/PacketView.h"

namespace corvex {

class ADXDefinition;
class ADXObject;
struct LogItem;

struct DecodedRecord {
    std::uint32_t commandId = 0;
    PacketView packet{nullptr};  // what items may read of the reply given; never "no packet"
    bool updates = false;        // the raw words of the command's items follow the packet before anybody looks
};

// Finds the record's command by its id hash: a send command for a reply to one, anything for a packet of a 160-baud
// stream. False when the definition has none, or the record is of neither kind. `reply` is the expanded record.
bool DecodeRecord(const ADXDefinition& definition, const LogItem& item, PacketView reply, DecodedRecord* record);

}  // namespace corvex
