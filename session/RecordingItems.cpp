#include "session/RecordingItems.h"

#include <optional>

#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCSendCommand.h"

namespace corvex {

namespace {

// Bytes of what the command brings; no value when that is nothing to record.
std::optional<std::uint32_t> RecordedSize(const ADXObject& object) {
    if (object.GetType() == kType160BaudListen) return static_cast<const ADXC160BaudListen&>(object).packetsize;
    if (object.GetType() != kTypeSendCommand) return std::nullopt;
    const auto& command = static_cast<const ADXCSendCommand&>(object);
    return (command.flags & ADXCSendCommand::kReplyExpected) != 0 ? std::optional(command.replysize) : std::nullopt;
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
