#include "session/RecordingItems.h"

#include <optional>

#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCSendCommand.h"

namespace corvex {

namespace {

// Bytes of what the command brings; no value when that is nothing to record.
std::optional<std::uint32_t> RecordedSize(const ADXObject& object) {
    if (const auto* listen = As<ADXC160BaudListen>(&object)) return listen->packetsize;
    const auto* send = As<ADXCSendCommand>(&object);
    return send != nullptr && send->ExpectsReply() ? std::optional(send->replysize) : std::nullopt;
}

}  // namespace

void AddRecordingItems(DataLogEngine& log, const ADXDefinition& definition) {
    for (const auto& object : definition.Objects()) {
        const std::optional<std::uint32_t> size = RecordedSize(*object);
        if (!size) continue;
        LogItem item;
        item.commandId = object->GetIdHash();
        item.type = object->GetType();
        item.packedSize = item.fullSize = *size;
        item.mask = LogMask::AllSet();
        // A log that could not be opened takes no recording either, and says so then.
        static_cast<void>(log.AddItem(item));
    }
}

}  // namespace corvex
