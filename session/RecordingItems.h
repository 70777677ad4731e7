// What a recording of a definition's replies can hold.
#pragma once

#include "definition/ADXDefinition.h"
#include "logging/DataLogEngine.h"

namespace corvex {

// Adds an item for each command that brings a reply worth keeping, in definition order: send commands that process
// their reply, with their replysize, and 160-baud listens, with their packetsize. Between Open for writing and
// StartRecording, on the thread that calls those.
void AddRecordingItems(DataLogEngine& log, const ADXDefinition& definition);

}  // namespace corvex
